#pragma once

#include <span>
#include <string>
#include <vector>

struct CMenuItem {
    int nId = 0;
    std::string strText;
    bool bEnabled = true;
    bool bMarked = false;  // the chosen one of a group
};

// A menu that comes up at the mouse cursor.
class CPopupMenus {
  public:
    virtual ~CPopupMenus() = default;
    // The id of the chosen item, 0 if the menu was left without a choice.
    virtual int Track(std::span<const CMenuItem> arrItems) = 0;
};
