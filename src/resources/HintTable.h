#pragma once

#include "image/Geometry.h"

// The hint balloon of a control: which picture comes up where.
struct CHint {
    int nControl;
    int nBitmap;
    int x;
    int y;
    bool bTakesFocus;  // the control takes the keyboard focus when the mouse comes over it
};

// Rows of the two strips on which the hints stand.
inline constexpr int kTopHintRow = 61;
inline constexpr int kTabHintRow = 110;

// Null for a control without a hint.
const CHint* FindHint(int nControl);
