#include "paint/MySCrollView.h"

#include <algorithm>

namespace {

constexpr CColor kFrame{0, 0, 0};

// Where a picture of that size stands in the middle, the fraction cut; 0 where it does not fit.
int Centre(int nClient, int nPicture) {
    return nClient > nPicture ? (nClient - nPicture) / 2 : 0;
}

// The tools whose release ends the preview of an effect.
bool EndsPreview(int nTool) {
    return (nTool >= kToolPen && nTool <= kToolEraser) || (nTool >= kToolLine && nTool <= kToolRoundRect);
}

}  // namespace

CMySCrollView::CMySCrollView(const CEnvironment& env)
    : CScrollView({659, 543}),
      m_env(env),
      m_toolBox({m_paper, m_hand, env.tools, m_selection, env.paint, env.random, env.timers, *this},
                env.tools, [this] { DropFloat(); }) {}

// In DRAW the stores have no content until a picture is loaded.
void CMySCrollView::OnInitialUpdate() {
    Invalidate();
    if (!m_env.images.m_pImgDisplay) return;
    if (!m_env.state.m_bDrawMode) return SetScrollSizes(m_env.images.m_pImgDisplay->GetSize());
    SetScrollSizes(m_env.images.m_pImgWork->GetSize());
    m_paper.Load({});
}

void CMySCrollView::LoadPicture(const CxImage& image) {
    OnInitialUpdate();
    m_paper.Load(image.Pixels());
    PlacePicture();
    Invalidate();
}

void CMySCrollView::PlacePicture() {
    const CSize sizeClient = ClientSize();
    m_ptOrigin = {Centre(sizeClient.cx, m_paper.Width() * m_env.tools.m_nZoom),
                  Centre(sizeClient.cy, m_paper.Height() * m_env.tools.m_nZoom)};
}

void CMySCrollView::ApplyZoom() {
    if (!m_env.state.m_bImageOpen) return;
    SetScrollSizes({m_paper.Width() * m_env.tools.m_nZoom, m_paper.Height() * m_env.tools.m_nZoom});
    PlacePicture();
    m_paper.ShowCommitted();
    ShowPaper();
    Invalidate();
}

CPoint CMySCrollView::VisibleCorner() const {
    return {ScrollPosition().x / m_env.tools.m_nZoom, ScrollPosition().y / m_env.tools.m_nZoom};
}

// --- mouse ---

void CMySCrollView::OnMouse(const CMouseEvent& event) {
    if (!m_env.state.m_bImageOpen || m_env.state.m_bFontMode) return;
    if (m_env.state.m_bDrawMode) return OnDrawMouse(event);
    if (event.action == EMouseAction::Press && event.button == EMouseButton::Right)
        m_env.host.OnPictureMenu();
}

// A division that cuts toward 0, so the margin's first pixels count as the picture's edge at a higher zoom.
CPoint CMySCrollView::ToPicture(CPoint ptClient) const {
    const int nZoom = m_env.tools.m_nZoom;
    return {(ptClient.x + ScrollPosition().x - m_ptOrigin.x) / nZoom,
            (ptClient.y + ScrollPosition().y - m_ptOrigin.y) / nZoom};
}

void CMySCrollView::OnDrawMouse(const CMouseEvent& event) {
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
            if (EndsPreview(m_env.tools.m_nTool)) m_env.state.m_bEffectPending = false;
            break;
        case EMouseAction::DoubleClick:
            m_toolBox.OnDoubleClick(pt, event.button);
            break;
    }
    ShowPaper();
}

void CMySCrollView::OnTimer(int nTimer) {
    if (nTimer != CPaintEnvironment::kSprayTimer) return;
    if (!m_env.state.m_bDrawMode || !m_env.state.m_bImageOpen) return m_env.timers.KillTimer(*this, nTimer);
    m_toolBox.OnTick();
    ShowPaper();
}

// --- selection ---

void CMySCrollView::Revert() {
    m_paper.Revert();
    ShowPaper();
}

// Takes no undo step: the paste took one before the float came up.
void CMySCrollView::DropFloat() {
    m_selection.DrawFloat(m_paper.Committed());
    m_env.tools.m_nTool = m_env.tools.m_nResumeTool;
    m_selection.m_bSelection = false;
    if (m_env.tools.m_nTool == kToolSelectPolygon) m_hand.m_nVertexCount = std::max(0, m_hand.m_nVertexCount);
    if (m_env.tools.m_nTool == kToolSelectFree) m_selection.m_free.Clear();
    m_selection.m_bFloating = false;
    Revert();
}

// --- painting ---

// The box of a store, as it is scrolled and enlarged. The picture stays at its origin; what scrolls is the
// part of the store that stands there. Returns the box of the client area that it covers.
CRect CMySCrollView::DrawStore(CSurface& surface, const CSurface& store, const CRect& rc) const {
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

// A paint that is still to come draws everything.
void CMySCrollView::ShowPaper() {
    const CRect rc = m_paper.TakeUnseen();
    if (rc.IsEmpty() || WantsPaint()) return;
    const CRect rcDrawn = DrawStore(ClientSurface(), m_paper.Shown(), rc);
    if (!rcDrawn.IsEmpty()) Drawn(rcDrawn);
}

// Finds the picture's place in the client area and draws the line around it.
void CMySCrollView::DrawFrame(CSurface& surface, CSize sizePicture, CPoint& ptPicture) {
    const CSize sizeClient = ClientSize();
    const CPoint ptScroll = ScrollPosition();
    ptPicture = {Centre(sizeClient.cx, sizePicture.cx) - ptScroll.x,
                 Centre(sizeClient.cy, sizePicture.cy) - ptScroll.y};
    surface.FrameRect(
        CRect::FromPlace(ptPicture.x - 1, ptPicture.y - 1, sizePicture.cx + 2, sizePicture.cy + 2), kFrame);
}

void CMySCrollView::OnDraw(CSurface& surface) {
    surface.FillRect(surface.Bounds(), kGround);
    if (!m_env.state.m_bImageOpen) return;
    CPoint ptPicture;
    if (m_env.state.m_bDrawMode) {
        // The frame takes no account of the zoom: the enlarged picture covers it.
        DrawFrame(surface, m_env.images.m_pImgWork->GetSize(), ptPicture);
        DrawStore(surface, m_paper.Scratch(), m_paper.Scratch().Bounds());
        m_paper.SetAllSeen();
    } else {
        const CxImage& image = *m_env.images.m_pImgDisplay;
        DrawFrame(surface, image.GetSize(), ptPicture);
        surface.DrawPixels(image.Pixels(), ptPicture.x, ptPicture.y);
    }
    m_env.host.OnCanvasPainted();
}
