#pragma once

#include <span>

#include "window/Control.h"

// Fixed tables from which dialogs and menus are built. The tables themselves live in src/resources/.

struct CControlTemplate {
    int nId;
    EControlKind kind;
    CRect rcPlace;  // client pixels
    const char* szCaption = "";
    bool bShown = true;
    bool bEnabled = true;
    int nMaxText = 0;
};

enum class EDialogFrame {
    Caption,  // title bar with system menu and minimise box
    Plain,    // title bar with close box
    None,     // no frame at all
    Child,    // stands inside another window
};

struct CDialogTemplate {
    int nId;
    const char* szTitle;
    CSize sizeClient;
    EDialogFrame frame;
    std::span<const CControlTemplate> arrControls;
};

struct CMenuItemTemplate {
    int nId;
    const char* szText;
};
