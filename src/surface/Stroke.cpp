#include "surface/Stroke.h"

#include <array>
#include <cmath>
#include <cstdlib>

#include "surface/EllipseOutline.h"

namespace {

// Marks and gaps in turn, in pixels.
std::span<const int> PatternOf(PenStyle style) {
    static constexpr int kDot[] = {3, 3};
    static constexpr int kDash[] = {18, 6};
    static constexpr int kDashDot[] = {9, 6, 3, 6};
    static constexpr int kDashDotDot[] = {9, 3, 3, 3, 3, 3};
    switch (style) {
        case PenStyle::kDot:
            return kDot;
        case PenStyle::kDash:
            return kDash;
        case PenStyle::kDashDot:
            return kDashDot;
        case PenStyle::kDashDotDot:
            return kDashDotDot;
        case PenStyle::kSolid:
        case PenStyle::kNull:
            break;
    }
    return {};
}

// The filled ellipse in a box of nWidth by nWidth, the box's corner -(nWidth / 2) from the point.
std::vector<CRun> MakeDisc(int nWidth) {
    std::vector<CRun> disc(static_cast<std::size_t>(nWidth), {-(nWidth / 2), nWidth - nWidth / 2});
    if (nWidth <= 2) return disc;
    CEllipseOutline outline(nWidth, nWidth);
    for (int y = 0; y <= outline.MiddleRow(); ++y) {
        const int nInset = static_cast<int>(outline.FirstInside(y));
        CRun& run = disc[static_cast<std::size_t>(y)];
        run = {run.nLeft + nInset, run.nRight - nInset};
        disc[static_cast<std::size_t>(nWidth - 1 - y)] = run;
    }
    return disc;
}

// nWidth * nLeg / hypotenuse, taken to the next whole number above, also where it comes out whole.
std::int64_t BodyExtent(int nWidth, std::int64_t nLeg, std::int64_t nOther) {
    const CInt128 nSquare = CInt128{nLeg} * nLeg + CInt128{nOther} * nOther;
    const CInt128 nTarget = CInt128{nLeg} * nLeg * nWidth * nWidth;
    const double fLeg = static_cast<double>(nLeg);
    auto n =
        static_cast<std::int64_t>(nWidth * (std::abs(fLeg) / std::hypot(fLeg, static_cast<double>(nOther))));
    while (n > 0 && CInt128{n} * n * nSquare > nTarget) --n;
    while (CInt128{n + 1} * (n + 1) * nSquare <= nTarget) ++n;
    return n + 1;
}

}  // namespace

CStroke::CStroke(CRaster& raster, const CPen& pen, std::optional<CColor> crGap)
    : m_raster(raster), m_pen(pen), m_crGap(crGap) {
    if (m_pen.nWidth > 1) m_disc = MakeDisc(m_pen.nWidth);
    if (!m_pen.IsDotted()) return;
    const std::span<const int> pattern = PatternOf(m_pen.style);
    for (std::size_t i = 0, n = 0; n < kPatternSteps; i = (i + 1) % pattern.size())
        for (int nLeft = pattern[i]; nLeft > 0; --nLeft) m_marks[n++] = i % 2 == 0;
}

void CStroke::Polyline(std::span<const CFarPoint> points, bool bClosed) {
    if (m_pen.IsNull() || points.empty()) return;
    const std::size_t nLines = points.size() - (bClosed ? 0 : 1);
    const bool bWide = m_pen.nWidth > 1;
    if (bWide) DiscRow(points[0].y, points[0].x, points[0].x);
    for (std::size_t i = 0; i < nLines; ++i) {
        const CFarPoint& ptFrom = points[i];
        const CFarPoint& ptTo = points[(i + 1) % points.size()];
        if (!bWide) {
            ThinLine(ptFrom, ptTo);
            continue;
        }
        Body(ptFrom, ptTo);
        DiscRow(ptTo.y, ptTo.x, ptTo.x);
    }
}

void CStroke::DiscRow(std::int64_t y, std::int64_t xFrom, std::int64_t xTo) {
    if (m_pen.nWidth <= 1) return m_raster.Span(y, xFrom, xTo + 1, m_pen.color);
    std::int64_t nRow = y - m_pen.nWidth / 2;
    if (nRow >= m_raster.Height() || nRow + m_pen.nWidth <= 0) return;
    for (const CRun& run : m_disc) m_raster.Span(nRow++, xFrom + run.nLeft, xTo + run.nRight, m_pen.color);
}

void CStroke::Column(std::int64_t x, std::int64_t yFrom, std::int64_t yTo) {
    const std::int64_t nLeft = x - m_pen.nWidth / 2;
    m_raster.Box(nLeft, yFrom, nLeft + m_pen.nWidth, yTo + 1, m_pen.color);
}

void CStroke::Body(CFarPoint ptFrom, CFarPoint ptTo) {
    if (m_pen.nWidth <= 1) return;
    const std::int64_t dx = ptTo.x - ptFrom.x;
    const std::int64_t dy = ptTo.y - ptFrom.y;
    if (dx == 0) return Column(ptFrom.x, std::min(ptFrom.y, ptTo.y), std::max(ptFrom.y, ptTo.y));
    if (dy == 0) {
        const std::int64_t yTop = ptFrom.y - m_pen.nWidth / 2;
        return m_raster.Box(std::min(ptFrom.x, ptTo.x), yTop, std::max(ptFrom.x, ptTo.x), yTop + m_pen.nWidth,
                            m_pen.color);
    }
    // The side that gets the bigger half of an odd extent lies to the right, and above lines that fall to the
    // right.
    const std::int64_t nExtentX = BodyExtent(m_pen.nWidth, dy, dx);
    const std::int64_t nExtentY = BodyExtent(m_pen.nWidth, dx, dy);
    const std::int64_t nUp = (dx > 0) == (dy > 0) ? -1 : 1;
    const CFarPoint ptBig{(nExtentX + 1) / 2, nUp * ((nExtentY + 1) / 2)};
    const CFarPoint ptSmall{-(nExtentX / 2), -nUp * (nExtentY / 2)};
    const std::array<CFarPoint, 4> corners = {{{ptFrom.x + ptBig.x, ptFrom.y + ptBig.y},
                                               {ptTo.x + ptBig.x, ptTo.y + ptBig.y},
                                               {ptTo.x + ptSmall.x, ptTo.y + ptSmall.y},
                                               {ptFrom.x + ptSmall.x, ptFrom.y + ptSmall.y}}};
    m_scan.Start(corners, FillRule::kAlternate, 0, m_raster.Height());
    while (m_scan.NextRow())
        for (const CPolygonScan::CSpan& span : m_scan.Spans())
            m_raster.Span(m_scan.Row(), span.nLeft, span.nRight, m_pen.color);
}

void CStroke::DottedPixel(std::int64_t x, std::int64_t y, std::size_t nStep) {
    if (m_marks[nStep])
        m_raster.Pixel(x, y, m_pen.color);
    else if (m_crGap)
        m_raster.Pixel(x, y, *m_crGap);
}

void CStroke::ThinLine(CFarPoint ptFrom, CFarPoint ptTo) {
    const bool bFlat = std::abs(ptTo.x - ptFrom.x) >= std::abs(ptTo.y - ptFrom.y);
    const auto along = bFlat ? &CFarPoint::x : &CFarPoint::y;
    const auto across = bFlat ? &CFarPoint::y : &CFarPoint::x;
    const std::int64_t nRun = ptTo.*along - ptFrom.*along;
    const std::int64_t nRise = ptTo.*across - ptFrom.*across;
    const std::int64_t nSteps = std::abs(nRun);
    if (nSteps == 0) return;
    const std::int64_t nStep = nRun > 0 ? 1 : -1;

    // The steps that are seen along the longer axis.
    const std::int64_t nSide = bFlat ? m_raster.Width() : m_raster.Height();
    const std::int64_t nStart = ptFrom.*along;
    const std::int64_t nFirst = std::max<std::int64_t>(nStep > 0 ? -nStart : nStart - (nSide - 1), 0);
    const std::int64_t nEnd = std::min(nStep > 0 ? nSide - nStart : nStart + 1, nSteps);

    // The other coordinate moves by nRise / nSteps a step; half a step, less the smallest part, rounds it.
    const CInt128 nNumerator = CInt128{2} * nFirst * nRise + (nSteps - 1);
    const auto nMoved = static_cast<std::int64_t>(FloorDiv(nNumerator, CInt128{2} * nSteps));
    auto nRest = static_cast<std::int64_t>(nNumerator - CInt128{2} * nSteps * nMoved);
    CFarPoint pt;
    pt.*along = nStart + nStep * nFirst;
    pt.*across = ptFrom.*across + nMoved;
    const bool bDotted = m_pen.IsDotted();
    auto nMark = static_cast<std::size_t>((m_nPhase + nFirst) % kPatternSteps);
    for (std::int64_t i = nFirst; i < nEnd; ++i, pt.*along += nStep) {
        if (bDotted)
            DottedPixel(pt.x, pt.y, nMark);
        else
            m_raster.Pixel(pt.x, pt.y, m_pen.color);
        nMark = nMark + 1 < kPatternSteps ? nMark + 1 : 0;
        nRest += 2 * nRise;
        if (nRest >= 2 * nSteps) {
            nRest -= 2 * nSteps;
            ++(pt.*across);
        } else if (nRest < 0) {
            nRest += 2 * nSteps;
            --(pt.*across);
        }
    }
    m_nPhase = (m_nPhase + nSteps) % kPatternSteps;
}
