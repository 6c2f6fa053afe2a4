// The part of CClientArea that draws figures and text.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "window/ClientArea.h"

namespace {

// What lies nCoverage of 255 under a colour.
std::uint8_t Blend(std::uint8_t nUnder, std::uint8_t nOver, int nCoverage) {
    return static_cast<std::uint8_t>((nUnder * (255 - nCoverage) + nOver * nCoverage + 127) / 255);
}

CColor Blend(CColor crUnder, CColor crOver, int nCoverage) {
    return {Blend(crUnder.r, crOver.r, nCoverage), Blend(crUnder.g, crOver.g, nCoverage),
            Blend(crUnder.b, crOver.b, nCoverage)};
}

// The point that stands for the middle of a client pixel, for a pen as wide as that pixel.
CPoint PenPoint(CPoint pt, int nDensity) {
    return {pt.x * nDensity + nDensity / 2, pt.y * nDensity + nDensity / 2};
}

// The last point of a line that is drawn: one client pixel before its end.
CPoint LastDrawn(CPoint ptFrom, CPoint ptTo, int nDensity) {
    const int nSteps = std::max(std::abs(ptTo.x - ptFrom.x), std::abs(ptTo.y - ptFrom.y));
    const double fShare = nSteps == 0 ? 0.0 : (nSteps - 1) / static_cast<double>(nSteps);
    const CPoint ptStart = PenPoint(ptFrom, nDensity);
    const auto part = [&](int nFrom, int nTo) {
        return static_cast<int>(std::lround((nTo - nFrom) * nDensity * fShare));
    };
    return {ptStart.x + part(ptFrom.x, ptTo.x), ptStart.y + part(ptFrom.y, ptTo.y)};
}

}  // namespace

// What is drawn there now, in the area's density.
CSurface CClientArea::CopyOfPart(const CRect& rc) const {
    CSurface part(rc.Width() * m_nDensity, rc.Height() * m_nDensity);
    part.DrawPart(m_surface.Pixels(),
                  {rc.left * m_nDensity, rc.top * m_nDensity, rc.right * m_nDensity, rc.bottom * m_nDensity},
                  0, 0);
    return part;
}

void CClientArea::DrawBox(const CRect& rc, CColor crOutline, CColor crInside) {
    FillRect(rc, crOutline);
    FillRect({rc.left + 1, rc.top + 1, rc.right - 1, rc.bottom - 1}, crInside);
}

void CClientArea::DrawEllipse(const CRect& rc, CColor color) {
    const CRect rcPart = rc.Intersect(CRect::FromPlace(0, 0, m_size.cx, m_size.cy));
    if (rcPart.IsEmpty()) return;
    CSurface part = CopyOfPart(rcPart);
    part.SelectPen(CPen::Solid(1, color));
    part.SelectBrush(CBrush::Solid(color));
    const CRect rcFigure = rc.Offset(-rcPart.left, -rcPart.top);
    part.Ellipse({rcFigure.left * m_nDensity, rcFigure.top * m_nDensity, rcFigure.right * m_nDensity,
                  rcFigure.bottom * m_nDensity});
    DrawPicture(part.Pixels(), rcPart.left, rcPart.top, 1);
}

void CClientArea::DrawLine(CPoint ptFrom, CPoint ptTo, CColor color) {
    const CRect rcReach{std::min(ptFrom.x, ptTo.x) - 1, std::min(ptFrom.y, ptTo.y) - 1,
                        std::max(ptFrom.x, ptTo.x) + 2, std::max(ptFrom.y, ptTo.y) + 2};
    const CRect rcPart = rcReach.Intersect(CRect::FromPlace(0, 0, m_size.cx, m_size.cy));
    if (rcPart.IsEmpty()) return;
    CSurface part = CopyOfPart(rcPart);
    part.SelectPen(CPen::Solid(m_nDensity, color));
    ptFrom = {ptFrom.x - rcPart.left, ptFrom.y - rcPart.top};
    ptTo = {ptTo.x - rcPart.left, ptTo.y - rcPart.top};
    part.MoveTo(PenPoint(ptFrom, m_nDensity));
    // A pen of one pixel leaves out the last point by itself, a wider one does not.
    part.LineTo(m_nDensity == 1 ? ptTo : LastDrawn(ptFrom, ptTo, m_nDensity));
    DrawPicture(part.Pixels(), rcPart.left, rcPart.top, 1);
}

void CClientArea::DrawTextLine(CTextRasterizer& rasterizer, const CTextFont& font, const std::string& strText,
                               CPoint pt, CColor crText, CColor crGround) {
    CTextFont dense = font;
    dense.nHeight *= m_nDensity;
    const CTextMask mask = rasterizer.Rasterize(dense, strText);
    CSurface part((mask.nWidth + m_nDensity - 1) / m_nDensity * m_nDensity, mask.nHeight);
    part.FillRect(part.Bounds(), crGround);
    auto itCoverage = mask.coverage.begin();
    for (int y = 0; y < mask.nHeight; ++y)
        for (int x = 0; x < mask.nWidth; ++x) part.SetPixel(x, y, Blend(crGround, crText, *itCoverage++));
    DrawPicture(part.Pixels(), pt.x, pt.y, 1);
}
