#pragma once

#include <algorithm>

// Points, sizes and boxes in pixels. x runs right, y runs down, as on a drawing surface.

struct CPoint {
    int x = 0;
    int y = 0;
    bool operator==(const CPoint&) const = default;
};

struct CSize {
    int cx = 0;
    int cy = 0;
    bool operator==(const CSize&) const = default;
};

// A box that holds its left and top edge and leaves out its right and bottom edge.
struct CRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    static constexpr CRect FromPlace(int x, int y, int nWidth, int nHeight) {
        return {x, y, x + nWidth, y + nHeight};
    }

    constexpr int Width() const { return right - left; }
    constexpr int Height() const { return bottom - top; }
    constexpr CPoint TopLeft() const { return {left, top}; }
    constexpr CSize Size() const { return {Width(), Height()}; }
    constexpr bool IsEmpty() const { return right <= left || bottom <= top; }
    constexpr bool Contains(CPoint pt) const {
        return pt.x >= left && pt.x < right && pt.y >= top && pt.y < bottom;
    }

    // The common part of both boxes; empty (all zero) if they have none.
    constexpr CRect Intersect(const CRect& rc) const {
        const CRect rcBoth{std::max(left, rc.left), std::max(top, rc.top), std::min(right, rc.right),
                           std::min(bottom, rc.bottom)};
        return rcBoth.IsEmpty() ? CRect{} : rcBoth;
    }

    // The smallest box around both; an empty box adds nothing.
    constexpr CRect Union(const CRect& rc) const {
        if (IsEmpty()) return rc;
        if (rc.IsEmpty()) return *this;
        return {std::min(left, rc.left), std::min(top, rc.top), std::max(right, rc.right),
                std::max(bottom, rc.bottom)};
    }

    constexpr CRect Offset(int dx, int dy) const { return {left + dx, top + dy, right + dx, bottom + dy}; }

    bool operator==(const CRect&) const = default;
};
