#include "canvas/MySCrollView.h"

namespace {

constexpr CColor kFrame{0, 0, 0};

}  // namespace

CSize CMySCrollView::PictureSize() const {
    return m_pGuest != nullptr ? m_pGuest->PictureSize() : m_env.images.m_imgDisplay.GetSize();
}

void CMySCrollView::OnInitialUpdate() {
    Invalidate();
    if (m_env.state.m_bImageOpen) SetScrollSizes(PictureSize());
}

void CMySCrollView::OnMouse(const CMouseEvent& event) {
    if (!m_env.state.m_bImageOpen) return;
    if (m_pGuest != nullptr) return m_pGuest->OnMouse(event);
    if (event.action == EMouseAction::Press && event.button == EMouseButton::Right)
        m_env.host.OnPictureMenu();
}

void CMySCrollView::OnTimer(int nTimer) {
    if (m_pGuest != nullptr) m_pGuest->OnTimer(nTimer);
}

// The line around the picture. Returns the place of the picture.
CPoint CMySCrollView::DrawFrame(CSurface& surface) const {
    const CSize sizePicture = PictureSize();
    const CPoint ptUnscrolled =
        m_pGuest != nullptr ? m_pGuest->PictureAt(ClientSize()) : Centred(ClientSize(), sizePicture);
    const CPoint pt{ptUnscrolled.x - ScrollPosition().x, ptUnscrolled.y - ScrollPosition().y};
    surface.FrameRect(CRect::FromPlace(pt.x - 1, pt.y - 1, sizePicture.cx + 2, sizePicture.cy + 2), kFrame);
    return pt;
}

void CMySCrollView::OnDraw(CSurface& surface) {
    surface.FillRect(surface.Bounds(), kGround);
    if (!m_env.state.m_bImageOpen) return;
    const CPoint ptPicture = DrawFrame(surface);
    if (m_pGuest != nullptr)
        m_pGuest->OnDraw(surface, ptPicture);
    else
        surface.DrawPixels(m_env.images.m_imgDisplay.Pixels(), ptPicture.x, ptPicture.y);
    m_env.host.OnCanvasPainted();
}
