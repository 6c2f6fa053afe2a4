#pragma once

#include <algorithm>

#include "image/Color.h"

// How an outline is drawn. The dotted kinds are told apart by the lengths of their marks and gaps; they are
// one pixel wide, and a wider pen of such a style draws a solid line.
enum class PenStyle { kSolid, kDot, kDash, kDashDot, kDashDotDot, kNull };

// A value: draws the outlines of figures. Wider pens have round ends and round joins.
struct CPen {
    // Nothing that a hand draws comes near it, and sums of pen and figure stay small.
    static constexpr int kMaxWidth = 4096;

    PenStyle style = PenStyle::kSolid;
    int nWidth = 1;
    CColor color;

    static CPen Solid(int nWidth, CColor color) {
        return {PenStyle::kSolid, std::clamp(nWidth, 1, kMaxWidth), color};
    }
    static CPen Dotted(PenStyle style, CColor color) { return {style, 1, color}; }
    static CPen Null() { return {PenStyle::kNull, 1, {}}; }

    bool IsNull() const { return style == PenStyle::kNull; }
    bool IsDotted() const { return nWidth == 1 && style != PenStyle::kSolid && !IsNull(); }
    bool operator==(const CPen&) const = default;
};
