#pragma once

#include <string>

enum class EBoxIcon { None, Information, Exclamation, Stop };
enum class EBoxButtons { Ok, OkCancel, YesNo };
enum class EBoxAnswer { Ok, Cancel, Yes, No };

struct CMessageBox {
    std::string strText;
    std::string strTitle;
    EBoxIcon icon = EBoxIcon::Exclamation;
    EBoxButtons buttons = EBoxButtons::Ok;
    bool operator==(const CMessageBox&) const = default;
};

// The system's message box: modal, text shown to the letter.
class CMessageBoxes {
  public:
    virtual ~CMessageBoxes() = default;
    // Closing the box by other means than a button answers Cancel, or No where there is no Cancel, or Ok
    // where there is neither.
    virtual EBoxAnswer Show(const CMessageBox& box) = 0;
};
