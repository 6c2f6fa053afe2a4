#include "paint/DrawGuest.h"

CDrawGuest::CDrawGuest(const CEnvironment& env)
    : m_env(env),
      m_toolBox({m_paper, m_hand, env.tools, m_selection, env.editor, env.events, env.host, env.random,
                 env.timers, env.canvas},
                env.tools, [this] {
                    if (!PrepareDrop()) return false;
                    DropFloat();
                    return true;
                }) {}

// --- between the paper and the edit ---

void CDrawGuest::LoadCanvas() {
    m_env.canvas.OnInitialUpdate();
    m_paper.Load(m_env.images.m_imgWork.Pixels());
    PlacePicture();
}

CxImage CDrawGuest::Committed() const {
    CxImage image;
    return image.CreateFromHBITMAP(m_paper.Committed().Pixels()) ? image : m_env.images.m_imgWork;
}

bool CDrawGuest::MakeSettled(CxImage& image) const {
    image = Committed();
    if (!IsFloating()) return true;
    CSurface merged(image.Pixels());
    if (!merged.Separate()) return false;
    m_selection.DrawFloat(merged);
    return image.CreateFromHBITMAP(merged.Pixels());
}

void CDrawGuest::Leave() {
    m_env.timers.KillTimer(m_env.canvas, CPaintEnvironment::kSprayTimer);
}

void CDrawGuest::PlacePicture() {
    const int nZoom = m_env.tools.m_nZoom;
    m_ptOrigin = Centred(m_env.canvas.ClientSize(), {m_paper.Width() * nZoom, m_paper.Height() * nZoom});
}

void CDrawGuest::ApplyZoom() {
    m_env.canvas.SetScrollSizes(
        {m_paper.Width() * m_env.tools.m_nZoom, m_paper.Height() * m_env.tools.m_nZoom});
    PlacePicture();
    m_paper.ShowCommitted();
    ShowPaper();
    m_env.canvas.Invalidate();
}

CPoint CDrawGuest::VisibleCorner() const {
    const CPoint ptScroll = m_env.canvas.ScrollPosition();
    return {ptScroll.x / m_env.tools.m_nZoom, ptScroll.y / m_env.tools.m_nZoom};
}

// --- mouse ---

// A division that cuts toward 0, so the margin's first pixels count as the picture's edge at a higher zoom.
CPoint CDrawGuest::ToPicture(CPoint ptClient) const {
    const CPoint ptScroll = m_env.canvas.ScrollPosition();
    const int nZoom = m_env.tools.m_nZoom;
    return {(ptClient.x + ptScroll.x - m_ptOrigin.x) / nZoom,
            (ptClient.y + ptScroll.y - m_ptOrigin.y) / nZoom};
}

void CDrawGuest::OnMouse(const CMouseEvent& event) {
    const CPoint pt = ToPicture(event.pt);
    switch (event.action) {
        case EMouseAction::Press:
            m_toolBox.OnPress(pt, event.button);
            break;
        case EMouseAction::Move:
            // Twice, and meant: a stroke tool commits in the second pass what it drew in the first.
            m_toolBox.OnMove(pt);
            m_toolBox.OnMove(pt);
            break;
        case EMouseAction::Release:
            m_toolBox.OnRelease(pt);
            break;
        case EMouseAction::DoubleClick:
            m_toolBox.OnDoubleClick(pt, event.button);
            break;
    }
    ShowPaper();
}

void CDrawGuest::OnTimer(int nTimer) {
    if (nTimer != CPaintEnvironment::kSprayTimer) return;
    m_toolBox.OnTick();
    ShowPaper();
}

// --- selection ---

void CDrawGuest::Revert() {
    m_paper.Revert();
    ShowPaper();
}

bool CDrawGuest::PrepareDrop() {
    return !IsFloating() || m_paper.Separate() || m_env.editor.ReportNoMemory();
}

void CDrawGuest::EndFloat() {
    m_env.tools.m_nTool = m_env.tools.m_nResumeTool;
    if (m_env.tools.m_nTool == ETool::SelectPolygon) m_hand.m_bReleaseSpent = false;
    if (m_env.tools.m_nTool == ETool::SelectFree) m_selection.m_free.Clear();
    m_selection.SetFloating(false);
}

// Takes no undo step: the paste took one before the float came up.
void CDrawGuest::DropFloat() {
    if (!IsFloating()) return;
    m_selection.DrawFloat(m_paper.Committed());
    m_selection.Unmark();
    EndFloat();
    Revert();
}

void CDrawGuest::ForgetFloat() {
    if (!IsFloating()) return;
    m_selection.Unmark();
    EndFloat();
}

// --- painting ---

// The box of a store, as it is scrolled and enlarged. The picture stays at its origin; what scrolls is the
// part of the store that stands there. Returns the box of the client area that it covers.
CRect CDrawGuest::DrawStore(CSurface& surface, const CSurface& store, const CRect& rc) const {
    const int nZoom = m_env.tools.m_nZoom;
    const CPoint ptCorner = VisibleCorner();
    const CRect rcFrom = rc.Intersect(store.Bounds());
    const CPoint ptTo{m_ptOrigin.x + (rcFrom.left - ptCorner.x) * nZoom,
                      m_ptOrigin.y + (rcFrom.top - ptCorner.y) * nZoom};
    const CRect rcTo = CRect::FromPlace(ptTo.x, ptTo.y, rcFrom.Width() * nZoom, rcFrom.Height() * nZoom)
                           .Intersect({m_ptOrigin.x, m_ptOrigin.y, surface.Width(), surface.Height()});
    surface.DrawEnlarged(store.Pixels(), rcFrom, ptTo.x, ptTo.y, nZoom, rcTo);
    return rcTo;
}

void CDrawGuest::ShowPaper() {
    const CRect rc = m_paper.TakeUnseen();
    if (rc.IsEmpty()) return;
    m_env.canvas.DrawNow([&](CSurface& surface) { return DrawStore(surface, m_paper.Shown(), rc); });
}

// The frame takes no account of the zoom: the enlarged picture covers it.
void CDrawGuest::OnDraw(CSurface& surface, CPoint /*ptPicture*/) {
    DrawStore(surface, m_paper.Scratch(), m_paper.Scratch().Bounds());
    m_paper.SetAllSeen();
}
