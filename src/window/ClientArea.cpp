#include "window/ClientArea.h"

#include <string>

#include "image/Image.h"

namespace {

CRect Scale(const CRect& rc, int nFactor) {
    return {rc.left * nFactor, rc.top * nFactor, rc.right * nFactor, rc.bottom * nFactor};
}

}  // namespace

CClientArea::CClientArea(CSize sizeClient) : m_size(sizeClient), m_surface(sizeClient.cx, sizeClient.cy) {}

void CClientArea::SetUp(CBitmaps* pBitmaps, int nDensity) {
    m_pBitmaps = pBitmaps;
    m_nDensity = nDensity;
    m_surface = CSurface(m_size.cx * nDensity, m_size.cy * nDensity);
    m_rcDamage = CRect::FromPlace(0, 0, m_size.cx, m_size.cy);
}

// What may be drawn on, in client pixels.
CRect CClientArea::Drawable() const {
    const CRect rcAll = CRect::FromPlace(0, 0, m_size.cx, m_size.cy);
    return m_rcClip.IsEmpty() ? rcAll : rcAll.Intersect(m_rcClip);
}

// nFactor: how many pixels of the surface one of the picture makes in each direction.
void CClientArea::DrawPicture(const CPixels& pixels, int x, int y, int nFactor) {
    const int nPerClient = m_nDensity / nFactor;
    const CRect rcPlace = CRect::FromPlace(x, y, pixels.Width() / nPerClient, pixels.Height() / nPerClient);
    const CRect rcTo = rcPlace.Intersect(Drawable());
    if (rcTo.IsEmpty()) return;
    m_surface.DrawEnlarged(pixels, CRect::FromPlace(0, 0, pixels.Width(), pixels.Height()), x * m_nDensity,
                           y * m_nDensity, nFactor, Scale(rcTo, m_nDensity));
    m_rcDamage = m_rcDamage.Union(rcTo);
}

void CClientArea::DrawBitmap(const std::string& strName, int x, int y) {
    const CxImage* pImage = m_pBitmaps == nullptr ? nullptr : m_pBitmaps->Find(strName, m_nDensity);
    if (pImage != nullptr) DrawPicture(pImage->Pixels(), x, y, 1);
}

void CClientArea::DrawBitmap(int nResource, int x, int y) {
    DrawBitmap(std::to_string(nResource), x, y);
}

void CClientArea::DrawKeyed(int nResource, int x, int y) {
    const CxImage* pImage =
        m_pBitmaps == nullptr ? nullptr : m_pBitmaps->Find(std::to_string(nResource), m_nDensity);
    if (pImage == nullptr) return;
    const CConstPixelView view = pImage->Pixels().View();
    const CColor colorKey = view.Get(0, 0);
    const CRect rcTo = Scale(Drawable(), m_nDensity);
    for (int row = 0; row < view.nHeight; ++row) {
        for (int column = 0; column < view.nWidth; ++column) {
            const CPoint pt{x * m_nDensity + column, y * m_nDensity + row};
            const CColor color = view.Get(column, row);
            if (color != colorKey && rcTo.Contains(pt)) m_surface.SetPixel(pt.x, pt.y, color);
        }
    }
    m_rcDamage = m_rcDamage.Union(
        CRect::FromPlace(x, y, view.nWidth / m_nDensity, view.nHeight / m_nDensity).Intersect(Drawable()));
}

void CClientArea::FillRect(const CRect& rc, CColor color) {
    const CRect rcTo = rc.Intersect(Drawable());
    m_surface.FillRect(Scale(rcTo, m_nDensity), color);
    m_rcDamage = m_rcDamage.Union(rcTo);
}

void CClientArea::DrawSurface(const CSurface& surface, int x, int y) {
    DrawPicture(surface.Pixels(), x, y, m_nDensity);
}

CRect CClientArea::TakeDamage() {
    const CRect rc = m_rcDamage.Intersect(CRect::FromPlace(0, 0, m_size.cx, m_size.cy));
    m_rcDamage = {};
    return rc;
}
