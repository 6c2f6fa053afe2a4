#include "window/PictureGridHand.h"

#include <algorithm>
#include <utility>

void CPictureGridHand::OnRelease(int nItem) {
    if (std::exchange(m_nPressed, std::nullopt) == nItem) Choose(nItem);
}

// A key at the end of its way chooses nothing anew; Space does.
bool CPictureGridHand::OnKey(int nKey) {
    const CControl& control = Control();
    const CGridLayout& grid = *control.look.grid;
    const int nRows = std::max(1, Height(control) / grid.sizeStep.cy);
    const int nCount = static_cast<int>(control.arrItems.size());
    const bool bSpace = nKey == kKeySpace && control.nSel >= 0;
    const int nItem = bSpace ? control.nSel : grid.Neighbour(control.nSel, nKey, nCount, nRows);
    if (nItem < 0) return false;
    BringIntoSight(nItem);
    if (bSpace || nItem != control.nSel) Choose(nItem);
    return true;
}

void CPictureGridHand::BringIntoSight(int nItem) {
    const CControl& control = Control();
    const CRect rc = control.look.grid->PlaceOf(nItem);
    // With the room that the first row has above it.
    const int nRoom = control.look.grid->ptFirst.y;
    int nPos = std::max(control.nPos, rc.bottom + nRoom - Height(control));
    nPos = std::min(nPos, rc.top - nRoom);
    m_dialog.Controls().SetPosition(m_nId, nPos);
}

int CPictureGridHand::Height(const CControl& control) {
    return control.rcPlace.Height() - (HasBorder(control) ? 2 : 0);
}

void CPictureGridHand::Choose(int nItem) {
    m_dialog.Controls().Select(m_nId, nItem);
    m_dialog.OnNotify(m_nId, ENotice::Clicked);
}
