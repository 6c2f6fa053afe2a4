#pragma once

#include "image/Geometry.h"

// Where the pictures of a grid stand in their control, and how far they scroll. Pixels from the control's top
// left corner, as they are before anything has scrolled.
struct CGridLayout {
    CSize sizeCell;
    CPoint ptFirst;
    CSize sizeStep;  // from a cell to its neighbours
    int nColumns = 1;
    int nScrollRange = 0;  // of the vertical scroll bar, from 0
    int nScrollPage = 0;   // how much of it the bar's thumb stands for

    // The largest scroll position: the thumb's top, whose foot stands at the end of the range by then.
    constexpr int ScrollLimit() const { return std::max(0, nScrollRange - nScrollPage + 1); }
    CRect PlaceOf(int nItem) const;
    // The item of nCount that has that point; -1 beside all of them.
    int ItemAt(CPoint pt, int nCount) const;
    // The item on which an arrow, page, Home or End key ends; from -1, no item, each ends on the first but
    // End. nRows is how many rows are seen at a time. -1 for a key that does not move.
    int Neighbour(int nItem, int nKey, int nCount, int nRows) const;
};
