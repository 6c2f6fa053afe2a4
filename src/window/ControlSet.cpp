#include "window/ControlSet.h"

#include <algorithm>
#include <utility>

CControlSet::CControlSet(std::span<const CControlTemplate> arrTemplate,
                         std::span<const CControlLookRow> arrLooks) {
    for (const CControlTemplate& entry : arrTemplate) {
        CControl control;
        control.nId = entry.nId;
        control.kind = entry.kind;
        control.rcPlace = entry.rcPlace;
        control.strCaption = entry.szCaption;
        control.strText = entry.szCaption;
        control.bShown = entry.bShown;
        control.bEnabled = entry.bEnabled;
        control.nMaxText = entry.nMaxText;
        m_mapIndex.emplace(entry.nId, m_arrControls.size());
        m_arrControls.push_back(std::move(control));
    }
    for (const CControlLookRow& row : arrLooks)
        if (CControl* pControl = Get(row.nId); pControl != nullptr) {
            pControl->look = row.look;
            if (row.look.grid) pControl->nMax = row.look.grid->ScrollLimit();
        }
}

CControl* CControlSet::Get(int nId) {
    const auto it = m_mapIndex.find(nId);
    return it == m_mapIndex.end() ? nullptr : &m_arrControls[it->second];
}

const CControl* CControlSet::Find(int nId) const {
    const auto it = m_mapIndex.find(nId);
    return it == m_mapIndex.end() ? nullptr : &m_arrControls[it->second];
}

void CControlSet::Changed(const CControl& control, EControlChange change) {
    if (m_pObserver != nullptr) m_pObserver->OnControlChanged(control, change);
}

template <typename T>
void CControlSet::Set(int nId, T CControl::*pField, T value, EControlChange change) {
    CControl* pControl = Get(nId);
    if (pControl == nullptr || pControl->*pField == value) return;
    pControl->*pField = std::move(value);
    Changed(*pControl, change);
}

bool CControlSet::IsShown(int nId) const {
    const CControl* pControl = Find(nId);
    return pControl != nullptr && pControl->bShown;
}

bool CControlSet::IsEnabled(int nId) const {
    const CControl* pControl = Find(nId);
    return pControl != nullptr && pControl->bEnabled;
}

bool CControlSet::IsChecked(int nId) const {
    const CControl* pControl = Find(nId);
    return pControl != nullptr && pControl->bChecked;
}

std::string CControlSet::Text(int nId) const {
    const CControl* pControl = Find(nId);
    return pControl == nullptr ? std::string{} : pControl->strText;
}

int CControlSet::Position(int nId) const {
    const CControl* pControl = Find(nId);
    return pControl == nullptr ? 0 : pControl->nPos;
}

int CControlSet::Selection(int nId) const {
    const CControl* pControl = Find(nId);
    return pControl == nullptr ? -1 : pControl->nSel;
}

void CControlSet::Show(int nId, bool bShow) {
    Set(nId, &CControl::bShown, bShow, EControlChange::Shown);
    if (!bShow && m_nFocus == nId) m_nFocus = 0;
}

void CControlSet::Show(std::span<const int> arrIds, bool bShow) {
    for (const int nId : arrIds) Show(nId, bShow);
}

void CControlSet::Enable(int nId, bool bEnable) {
    Set(nId, &CControl::bEnabled, bEnable, EControlChange::Enabled);
    if (!bEnable && m_nFocus == nId) m_nFocus = 0;
}

void CControlSet::Check(int nId, bool bCheck) {
    Set(nId, &CControl::bChecked, bCheck, EControlChange::Checked);
}

void CControlSet::SetText(int nId, const std::string& strText) {
    Set(nId, &CControl::strText, strText, EControlChange::Text);
}

void CControlSet::Move(int nId, const CRect& rcPlace) {
    Set(nId, &CControl::rcPlace, rcPlace, EControlChange::Place);
}

void CControlSet::SetRange(int nId, int nMin, int nMax) {
    CControl* pControl = Get(nId);
    if (pControl == nullptr) return;
    pControl->nMin = nMin;
    pControl->nMax = nMax;
    Changed(*pControl, EControlChange::Range);
    SetPosition(nId, pControl->nPos);
}

void CControlSet::SetPosition(int nId, int nPos) {
    const CControl* pControl = Find(nId);
    if (pControl == nullptr) return;
    Set(nId, &CControl::nPos, std::max(pControl->nMin, std::min(nPos, pControl->nMax)),
        EControlChange::Position);
}

void CControlSet::SetItems(int nId, std::vector<CListItem> arrItems) {
    CControl* pControl = Get(nId);
    if (pControl == nullptr) return;
    pControl->arrItems = std::move(arrItems);
    Changed(*pControl, EControlChange::Items);
    if (pControl->nSel >= static_cast<int>(pControl->arrItems.size())) Select(nId, -1);
}

void CControlSet::Select(int nId, int nRow) {
    Set(nId, &CControl::nSel, nRow, EControlChange::Selection);
}

void CControlSet::SetFocus(int nId) {
    const CControl* pControl = Find(nId);
    if (pControl == nullptr || !pControl->bShown || !pControl->bEnabled) return;
    m_nFocus = nId;
    Changed(*pControl, EControlChange::Focus);
}
