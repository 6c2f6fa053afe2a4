#pragma once

#include "window/ClientArea.h"

// What the tool controller asks of the window that its panel stands in.
class CToolHost {
  public:
    virtual ~CToolHost() = default;
    // What the panel is drawn on.
    virtual CClientArea& PanelArea() = 0;
    // What has been drawn there goes to the screen.
    virtual void PresentPanel() = 0;
    // The whole window is painted anew, the panel with it.
    virtual void RepaintWindow() = 0;
    // The help line takes the text of the code.
    virtual void SetHelp(int nCode) = 0;
    // Cut, Copy and Crop on or off.
    virtual void EnableSelectionCommands(bool bEnable) = 0;
};
