#include "paint/MySCrollView.h"

#include <algorithm>

namespace {

constexpr CColor kFrame{0, 0, 0};

// Where a picture of that size stands in the middle, the fraction cut; 0 where it does not fit.
int Centre(int nClient, int nPicture) {
    return nClient > nPicture ? (nClient - nPicture) / 2 : 0;
}

}  // namespace

CMySCrollView::CMySCrollView(const CEditState& state, const CWorkingImages& images, const CToolState& tools,
                             CCanvasHost& host)
    : CScrollView({659, 543}),
      m_state(state),
      m_images(images),
      m_tools(tools),
      m_host(host),
      m_surfCommit(0, 0),
      m_surfScratch(0, 0) {}

void CMySCrollView::OnInitialUpdate() {
    Invalidate();
    if (!m_images.m_pImgDisplay) return;
    if (!m_state.m_bDrawMode) return SetScrollSizes(m_images.m_pImgDisplay->GetSize());
    SetScrollSizes(m_images.m_pImgWork->GetSize());
    m_surfCommit = CSurface(0, 0);
    m_surfScratch = CSurface(0, 0);
}

void CMySCrollView::LoadPicture(const CxImage& image) {
    m_nImgWidth = image.GetWidth();
    m_nImgHeight = image.GetHeight();
    OnInitialUpdate();
    PlacePicture();
    m_surfCommit = CSurface(image.Pixels());
    m_surfScratch = m_surfCommit;
    Invalidate();
}

void CMySCrollView::PlacePicture() {
    const CSize sizeClient = ClientSize();
    m_ptOrigin = {Centre(sizeClient.cx, m_nImgWidth * m_tools.m_nZoom),
                  Centre(sizeClient.cy, m_nImgHeight * m_tools.m_nZoom)};
}

void CMySCrollView::ApplyZoom() {
    if (!m_state.m_bImageOpen) return;
    SetScrollSizes({m_nImgWidth * m_tools.m_nZoom, m_nImgHeight * m_tools.m_nZoom});
    PlacePicture();
    Invalidate();
}

void CMySCrollView::OnMouse(const CMouseEvent& event) {
    const bool bRightPress = event.action == EMouseAction::Press && event.button == EMouseButton::Right;
    if (!bRightPress || !m_state.m_bImageOpen || m_state.m_bFontMode || m_state.m_bDrawMode) return;
    m_host.OnPictureMenu();
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
    if (!m_state.m_bImageOpen) return;
    CPoint ptPicture;
    if (m_state.m_bDrawMode) {
        DrawFrame(surface, m_images.m_pImgWork->GetSize(), ptPicture);
        const int nZoom = m_tools.m_nZoom;
        const CPoint ptScroll = ScrollPosition();
        // The picture stays at its origin; what scrolls is the part of the store that stands there.
        surface.DrawEnlarged(m_surfScratch.Pixels(), m_ptOrigin.x - ptScroll.x / nZoom * nZoom,
                             m_ptOrigin.y - ptScroll.y / nZoom * nZoom, nZoom);
    } else {
        const CxImage& image = *m_images.m_pImgDisplay;
        DrawFrame(surface, image.GetSize(), ptPicture);
        surface.DrawPixels(image.Pixels(), ptPicture.x, ptPicture.y);
    }
    m_host.OnCanvasPainted();
}
