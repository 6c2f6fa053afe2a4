#include "window/CheckTableHand.h"

#include <algorithm>

CCheckTableHand::CCheckTableHand(CDialog& dialog, int nId, CCheckTableModel& table)
    : m_dialog(dialog), m_nId(nId), m_table(table) {
    OnRowsReset();
}

void CCheckTableHand::OnPress(int nRow, bool bOnBox) {
    if (nRow < 0) return;
    m_dialog.Controls().Select(m_nId, nRow);
    if (bOnBox) Toggle(nRow);
}

void CCheckTableHand::OnDoubleClick(int nRow) {
    OnPress(nRow, true);
}

void CCheckTableHand::OnRightClick(int nRow) {
    OnPress(nRow, false);
    m_dialog.OnNotify(m_nId, ENotice::RightClicked);
}

bool CCheckTableHand::OnKey(int nKey) {
    const CControl& control = *m_dialog.Controls().Find(m_nId);
    if (nKey == kKeySpace) {
        if (control.nSel >= 0) Toggle(control.nSel);
        return true;
    }
    const int nSeen = (control.rcPlace.Height() - (HasBorder(control) ? 2 : 0) - kTitlePixels) / kRowPixels;
    const int nRow = CGridLayout{}.Neighbour(control.nSel, nKey, m_table.Count(), std::max(1, nSeen));
    OnPress(nRow, false);
    return nRow >= 0;
}

void CCheckTableHand::OnRowsReset() {
    const int nBefore = m_dialog.Controls().Selection(m_nId);
    const bool bHad = nBefore >= 0 && nBefore < static_cast<int>(m_arrData.size());
    const int nData = bHad ? m_arrData[static_cast<std::size_t>(nBefore)] : 0;
    int nNow = -1;
    m_arrData.clear();
    for (int nRow = 0; nRow < m_table.Count(); ++nRow) {
        m_arrData.push_back(m_table.Row(nRow).nData);
        if (bHad && nNow < 0 && m_arrData.back() == nData) nNow = nRow;
    }
    m_dialog.Controls().Select(m_nId, nNow);
}

void CCheckTableHand::Toggle(int nRow) {
    m_table.Tick(nRow, !m_table.Row(nRow).bTicked);
}
