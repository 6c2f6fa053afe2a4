#include "window/ClientArea.h"

#include <string>

#include "image/Image.h"

CClientArea::CClientArea(CSize sizeClient) : m_size(sizeClient), m_surface(sizeClient.cx, sizeClient.cy) {}

void CClientArea::SetUp(CBitmaps* pBitmaps, int nDensity) {
    m_pBitmaps = pBitmaps;
    m_nDensity = nDensity;
    m_surface = CSurface(m_size.cx * nDensity, m_size.cy * nDensity);
    m_rcDamage = CRect::FromPlace(0, 0, m_size.cx, m_size.cy);
}

void CClientArea::DrawBitmap(const std::string& strName, int x, int y) {
    const CxImage* pImage = m_pBitmaps == nullptr ? nullptr : m_pBitmaps->Find(strName, m_nDensity);
    if (pImage == nullptr) return;
    const CPixels& pixels = pImage->Pixels();
    m_surface.DrawPixels(pixels, x * m_nDensity, y * m_nDensity);
    m_rcDamage =
        m_rcDamage.Union(CRect::FromPlace(x, y, pixels.Width() / m_nDensity, pixels.Height() / m_nDensity));
}

void CClientArea::DrawBitmap(int nResource, int x, int y) {
    DrawBitmap(std::to_string(nResource), x, y);
}

void CClientArea::FillRect(const CRect& rc, CColor color) {
    m_surface.FillRect(
        {rc.left * m_nDensity, rc.top * m_nDensity, rc.right * m_nDensity, rc.bottom * m_nDensity}, color);
    m_rcDamage = m_rcDamage.Union(rc);
}

void CClientArea::DrawSurface(const CSurface& surface, int x, int y) {
    m_surface.DrawEnlarged(surface.Pixels(), x * m_nDensity, y * m_nDensity, m_nDensity);
    m_rcDamage = m_rcDamage.Union(CRect::FromPlace(x, y, surface.Width(), surface.Height()));
}

CRect CClientArea::TakeDamage() {
    const CRect rc = m_rcDamage.Intersect(CRect::FromPlace(0, 0, m_size.cx, m_size.cy));
    m_rcDamage = {};
    return rc;
}
