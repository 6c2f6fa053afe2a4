#include "paint/OptionGrid.h"

#include <algorithm>

void COptionGrid::Layout(const CRect& rcPanel, const COptionGlyphs& glyphs) {
    m_pGlyphs = &glyphs;
    m_arrRects = glyphs.Layout(rcPanel);
}

void COptionGrid::HitTest(CPoint pt) {
    const auto it =
        std::find_if(m_arrRects.begin(), m_arrRects.end(), [&](const CRect& rc) { return rc.Contains(pt); });
    if (it != m_arrRects.end()) m_nSel = static_cast<int>(it - m_arrRects.begin());
}

void COptionGrid::Draw(CClientArea& client) const {
    int nOption = 0;
    for (const CRect& rc : m_arrRects) m_pGlyphs->DrawNormal(client, rc, nOption++);
    m_pGlyphs->DrawSelected(client, m_arrRects[static_cast<std::size_t>(m_nSel)], m_nSel);
}
