#include "paint/OptionGrid.h"

#include <algorithm>

void COptionGrid::Layout(const CRect& rcFrame, EOptNum nOptNum, const COptionGlyphs& glyphs) {
    SetRect(rcFrame);
    m_nOptNum = nOptNum;
    m_pGlyphs = &glyphs;
    m_arrRects = glyphs.Layout(rcFrame);
}

bool COptionGrid::HitTest(CPoint pt) {
    const auto it =
        std::find_if(m_arrRects.begin(), m_arrRects.end(), [&](const CRect& rc) { return rc.Contains(pt); });
    if (it == m_arrRects.end()) return false;
    const int nBefore = m_nSel;
    m_nSel = static_cast<int>(it - m_arrRects.begin());
    return m_nSel != nBefore;
}

void COptionGrid::Draw(CClientArea& client) const {
    if (m_pGlyphs == nullptr) return;
    for (int i = 0; i < Count(); ++i)
        m_pGlyphs->DrawNormal(client, m_arrRects[static_cast<std::size_t>(i)], i);
    m_pGlyphs->DrawSelected(client, m_arrRects[static_cast<std::size_t>(m_nSel)], m_nSel);
    DrawEdge(client);
}
