#include "window/TextListHand.h"

#include <algorithm>

void CTextListHand::OnPress(int nRow) {
    if (nRow < 0 || nRow == m_dialog.Controls().Selection(m_nId)) return;
    m_dialog.Controls().Select(m_nId, nRow);
    m_dialog.OnNotify(m_nId, ENotice::SelectionChanged);
}

void CTextListHand::OnDoubleClick(int nRow) {
    if (nRow < 0) return;
    OnPress(nRow);
    m_dialog.OnNotify(m_nId, ENotice::DoubleClicked);
}

bool CTextListHand::OnKey(int nKey) {
    const CControl& control = *m_dialog.Controls().Find(m_nId);
    const int nSeen = (control.rcPlace.Height() - (HasBorder(control) ? 2 : 0)) / kRowPixels;
    const int nCount = static_cast<int>(control.arrItems.size());
    const int nRow = CGridLayout{}.Neighbour(control.nSel, nKey, nCount, std::max(1, nSeen));
    OnPress(nRow);
    return nRow >= 0;
}
