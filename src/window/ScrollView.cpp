#include "window/ScrollView.h"

#include <algorithm>

CScrollView::CScrollView(CSize sizeOuter) : m_sizeOuter(sizeOuter), m_surface(sizeOuter.cx, sizeOuter.cy) {}

// A bar that comes up for one direction can make the other direction need one too.
void CScrollView::LayOutBars() {
    m_bHorizontalBar = m_sizeContent.cx > m_sizeOuter.cx;
    m_bVerticalBar = m_sizeContent.cy > m_sizeOuter.cy - (m_bHorizontalBar ? kScrollBarPixels : 0);
    if (m_bVerticalBar) m_bHorizontalBar = m_sizeContent.cx > m_sizeOuter.cx - kScrollBarPixels;
}

void CScrollView::SetScrollSizes(CSize sizeContent) {
    m_sizeContent = sizeContent;
    const CSize sizeBefore = ClientSize();
    LayOutBars();
    const CPoint ptLimit = ScrollLimit();
    m_ptScroll = {std::min(m_ptScroll.x, ptLimit.x), std::min(m_ptScroll.y, ptLimit.y)};
    if (ClientSize() != sizeBefore) Invalidate();
    if (m_pHost != nullptr) m_pHost->OnScrollChanged();
}

void CScrollView::ScrollTo(CPoint pt) {
    const CPoint ptLimit = ScrollLimit();
    const CPoint ptNew{std::clamp(pt.x, 0, ptLimit.x), std::clamp(pt.y, 0, ptLimit.y)};
    if (ptNew == m_ptScroll) return;
    m_ptScroll = ptNew;
    Invalidate();
    if (m_pHost != nullptr) m_pHost->OnScrollChanged();
}

CPoint CScrollView::ScrollLimit() const {
    const CSize sizeClient = ClientSize();
    return {std::max(0, m_sizeContent.cx - sizeClient.cx), std::max(0, m_sizeContent.cy - sizeClient.cy)};
}

CSize CScrollView::ClientSize() const {
    return {m_sizeOuter.cx - (m_bVerticalBar ? kScrollBarPixels : 0),
            m_sizeOuter.cy - (m_bHorizontalBar ? kScrollBarPixels : 0)};
}

void CScrollView::SetCursor(ECursor cursor) {
    if (cursor == m_cursor) return;
    m_cursor = cursor;
    if (m_pHost != nullptr) m_pHost->OnCursorChanged();
}

void CScrollView::Invalidate() {
    if (m_bWantsPaint) return;
    m_bWantsPaint = true;
    if (m_pHost != nullptr) m_pHost->OnPaintWanted();
}

void CScrollView::Paint() {
    if (!m_bWantsPaint) return;
    m_bWantsPaint = false;
    const CSize size = ClientSize();
    if (m_surface.Width() != size.cx || m_surface.Height() != size.cy) m_surface = CSurface(size.cx, size.cy);
    OnDraw(m_surface);
    Drawn(CRect::FromPlace(0, 0, size.cx, size.cy));
}

void CScrollView::Drawn(const CRect& rc) {
    m_rcDamage = m_rcDamage.Union(rc);
    if (m_pHost != nullptr) m_pHost->OnDrawn();
}

CRect CScrollView::TakeDamage() {
    const CRect rc = m_rcDamage.Intersect(CRect::FromPlace(0, 0, m_surface.Width(), m_surface.Height()));
    m_rcDamage = {};
    return rc;
}
