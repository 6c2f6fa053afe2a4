// The hand in lists of texts and in tables of rows to tick.

#include "play/PlayHost.h"
#include "window/TextListHand.h"

std::string CPlayHost::DoubleClickRow(int nId, int nRow) {
    const CControl* pControl = nullptr;
    if (std::string strWhy = Reach(nId, pControl); !strWhy.empty()) return strWhy;
    return pControl->kind == EControlKind::TextList ? ClickText(nId, nRow, true)
                                                    : ClickTable(nId, nRow, ETableClick::Double);
}

std::string CPlayHost::ClickText(int nId, int nRow, bool bDouble) {
    const int nRows = static_cast<int>(m_dialog.Controls().Find(nId)->arrItems.size());
    if (nRow < 0 || nRow >= nRows) return NoRow(nId, nRow, nRows);
    TakeFocus(nId);
    CTextListHand hand(m_dialog, nId);
    hand.OnPress(nRow);
    if (bDouble) hand.OnDoubleClick(nRow);
    return Done();
}

std::string CPlayHost::ClickTable(int nId, int nRow, ETableClick click) {
    const CControl* pControl = nullptr;
    if (std::string strWhy = Reach(nId, pControl); !strWhy.empty()) return strWhy;
    const auto it = m_mapTables.find(nId);
    if (it == m_mapTables.end()) return std::string("control ") + std::to_string(nId) + " is no table";
    const int nRows = m_dialog.TableOf(nId)->Count();
    const int nLeast = click == ETableClick::Right ? -1 : 0;
    if (nRow < nLeast || nRow >= nRows) return NoRow(nId, nRow, nRows);
    TakeFocus(nId);
    if (click == ETableClick::Right)
        it->second.OnRightClick(nRow);
    else
        it->second.OnPress(nRow, click == ETableClick::Box);
    if (click == ETableClick::Double) it->second.OnDoubleClick(nRow);
    return Done();
}

bool CPlayHost::KeyToRows(const CControl& control, int nKey) {
    if (control.kind == EControlKind::TextList) return CTextListHand(m_dialog, control.nId).OnKey(nKey);
    const auto it = m_mapTables.find(control.nId);
    return it != m_mapTables.end() && it->second.OnKey(nKey);
}

void CPlayHost::OnRowsReset() {
    for (auto& [nId, hand] : m_mapTables) hand.OnRowsReset();
}
