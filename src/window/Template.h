#pragma once

#include <span>

#include "window/Control.h"

// Fixed tables from which dialogs and menus are built. The tables themselves live in src/resources/.

struct CControlTemplate {
    int nId = 0;
    EControlKind kind = EControlKind::Static;
    CRect rcPlace;  // client pixels
    const char* szCaption = "";
    bool bShown = true;
    bool bEnabled = true;
    int nMaxText = 0;
};

struct CControlLookRow {
    int nId = 0;
    CControlLook look;
};

enum class EDialogFrame {
    Caption,  // title bar with system menu and minimise box
    Plain,    // title bar with close box
    None,     // no frame at all
    Child,    // stands inside another window
};

// Ids of the platform's own buttons, and the codes with which they end a dialog.
inline constexpr int kDialogOk = 1;
inline constexpr int kDialogCancel = 2;

struct CDialogTemplate {
    int nId;
    const char* szTitle;
    CSize sizeClient;
    EDialogFrame frame;
    std::span<const CControlTemplate> arrControls;
    // Of the controls that need one.
    std::span<const CControlLookRow> arrLooks = {};
    // The buttons that Enter and Esc mean; they need not be there.
    int nDefault = kDialogOk;
    int nCancel = kDialogCancel;
};

struct CMenuItemTemplate {
    int nId;
    const char* szText;
};
