#pragma once

#include "window/PopupMenus.h"

class CQtPopupMenus : public CPopupMenus {
  public:
    int Track(std::span<const CMenuItem> arrItems) override;
};
