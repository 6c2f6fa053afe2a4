#pragma once

#include "image/Color.h"

// A value: fills the inside of figures, or leaves it as it was if it is hollow.
struct CBrush {
    bool bHollow = false;
    CColor color{255, 255, 255};

    static CBrush Solid(CColor color) { return {false, color}; }
    static CBrush Hollow() { return {true, {}}; }
    bool operator==(const CBrush&) const = default;
};
