#pragma once

#include "image/Color.h"

// What the tools ask of the window that the canvas stands in.
class CPaintHost {
  public:
    virtual ~CPaintHost() = default;
    // The canvas is fetched and becomes an undo step; nothing is left to redo. False if that failed: the
    // change that it was for must not be made.
    virtual bool BeginChange() = 0;
    // Cut, Copy and Crop on or off.
    virtual void EnableSelectionCommands(bool bEnable) = 0;
    // The colour picker has found a colour for the foreground, or for the background.
    virtual void PickColor(bool bForeground, CColor color) = 0;
};
