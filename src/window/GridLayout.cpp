#include "window/GridLayout.h"

#include <algorithm>

#include "window/Events.h"

CRect CGridLayout::PlaceOf(int nItem) const {
    return CRect::FromPlace(ptFirst.x + nItem % nColumns * sizeStep.cx,
                            ptFirst.y + nItem / nColumns * sizeStep.cy, sizeCell.cx, sizeCell.cy);
}

int CGridLayout::ItemAt(CPoint pt, int nCount) const {
    for (int i = 0; i < nCount; ++i)
        if (PlaceOf(i).Contains(pt)) return i;
    return -1;
}

// Down ends on the last item also where its row is too short to have one right below.
int CGridLayout::Neighbour(int nItem, int nKey, int nCount, int nRows) const {
    const int nLast = nCount - 1;
    const auto down = [&](int nBy) {
        if (nItem / nColumns == nLast / nColumns) return nItem;
        return std::min(nItem + nBy * nColumns, nLast);
    };
    const auto up = [&](int nBy) {
        const int nMost = nItem / nColumns;
        return nItem - std::min(nBy, nMost) * nColumns;
    };
    if (nCount == 0) return -1;
    const bool bNone = nItem < 0;
    switch (nKey) {
        case kKeyHome:
            return 0;
        case kKeyEnd:
            return nLast;
        case kKeyLeft:
            return bNone ? 0 : std::max(nItem - 1, 0);
        case kKeyRight:
            return bNone ? 0 : std::min(nItem + 1, nLast);
        case kKeyUp:
            return bNone ? 0 : up(1);
        case kKeyDown:
            return bNone ? 0 : down(1);
        case kKeyPageUp:
            return bNone ? 0 : up(nRows);
        case kKeyPageDown:
            return bNone ? 0 : down(nRows);
        default:
            return -1;
    }
}
