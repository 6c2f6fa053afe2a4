// The figures of a surface that are given by a box.

#include <algorithm>
#include <array>
#include <cstdlib>

#include "surface/RoundFigure.h"
#include "surface/Stroke.h"
#include "surface/Surface.h"

namespace {

CRect InOrder(const CRect& rc) {
    return {std::min(rc.left, rc.right), std::min(rc.top, rc.bottom), std::max(rc.left, rc.right),
            std::max(rc.top, rc.bottom)};
}

int Near(int n) {
    return std::clamp(n, -CSurface::kFarthest, CSurface::kFarthest);
}

}  // namespace

void CSurface::Rectangle(const CRect& rc) {
    const CRect rcBox = InOrder(rc);
    if (rcBox.IsEmpty()) return;
    CRaster raster = Raster();
    const std::int64_t xRight = std::int64_t{rcBox.right} - 1;
    const std::int64_t yBottom = std::int64_t{rcBox.bottom} - 1;
    if (!m_brush.bHollow) raster.Box(rcBox.left, rcBox.top, xRight, yBottom, m_brush.color);
    // A dotted pattern starts in the upper right corner.
    const std::array<CFarPoint, 4> corners = {
        {{xRight, rcBox.top}, {rcBox.left, rcBox.top}, {rcBox.left, yBottom}, {xRight, yBottom}}};
    CStroke(raster, m_pen, GapColor()).Polyline(corners, true);
}

void CSurface::Ellipse(const CRect& rc) {
    const CRect rcBox = InOrder({Near(rc.left), Near(rc.top), Near(rc.right), Near(rc.bottom)});
    DrawRound(rcBox, CEllipseOutline::kMaxSide, CEllipseOutline::kMaxSide);
}

void CSurface::RoundRect(const CRect& rc, CSize sizeEllipse) {
    DrawRound(InOrder(rc), std::abs(std::int64_t{sizeEllipse.cx}), std::abs(std::int64_t{sizeEllipse.cy}));
}

void CSurface::DrawRound(const CRect& rc, std::int64_t nEllipseWidth, std::int64_t nEllipseHeight) {
    const std::int64_t nWidth = std::int64_t{rc.right} - rc.left;
    const std::int64_t nHeight = std::int64_t{rc.bottom} - rc.top;
    const std::int64_t nCornerWidth = std::min({nEllipseWidth, nWidth, CEllipseOutline::kMaxSide});
    const std::int64_t nCornerHeight = std::min({nEllipseHeight, nHeight, CEllipseOutline::kMaxSide});
    // Such corners have no room to be round.
    if (std::min(nCornerWidth, nCornerHeight) <= 2) {
        Rectangle(rc);
        return;
    }
    CRoundFigure figure({rc.left, rc.top}, nWidth, nHeight, nCornerWidth, nCornerHeight);
    CRaster raster = Raster();
    if (!m_brush.bHollow) {
        const std::int64_t yEnd = std::min<std::int64_t>(figure.Bottom(), Height());
        for (std::int64_t y = std::max<std::int64_t>(figure.Top(), 0); y < yEnd; ++y) {
            const CPolygonScan::CSpan span = m_pen.IsNull() ? figure.Area(y) : figure.Inside(y);
            raster.Span(y, span.nLeft, span.nRight, m_brush.color);
        }
    }
    if (m_pen.IsNull()) return;
    // Of figures that are far larger than any picture the pattern is not kept.
    constexpr std::int64_t kMaxDotted = 1 << 20;
    const bool bDotted = m_pen.IsDotted() && nCornerHeight <= kMaxDotted;
    CStroke stroke(raster, m_pen, GapColor());
    if (bDotted)
        figure.DrawDotted(stroke);
    else
        figure.DrawOutline(stroke, Height());
}
