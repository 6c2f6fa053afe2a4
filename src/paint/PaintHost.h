#pragma once

#include "image/Color.h"

// What the tools ask of the window that the canvas stands in.
class CPaintHost {
  public:
    virtual ~CPaintHost() = default;
    // The colour picker has found a colour for the foreground, or for the background.
    virtual void PickColor(bool bForeground, CColor color) = 0;
};
