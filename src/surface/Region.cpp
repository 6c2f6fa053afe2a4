#include "surface/Region.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "surface/RoundFigure.h"
#include "surface/Surface.h"

namespace {

CFarPoint Far(const CPoint& pt) {
    return {pt.x, pt.y};
}

bool IsInt(std::int64_t n) {
    return n >= std::numeric_limits<int>::min() && n <= std::numeric_limits<int>::max();
}

}  // namespace

CRegion CRegion::MakeRectangle(const CRect& rc) {
    CRegion region;
    const CRun run{std::min(rc.left, rc.right), std::max(rc.left, rc.right)};
    const int nTop = std::min(rc.top, rc.bottom);
    const int nBottom = std::max(rc.top, rc.bottom);
    if (run.nLeft == run.nRight || nTop == nBottom) return region;
    region.m_runs = {run};
    region.m_bands = {{nTop, nBottom, 0, 1}};
    region.MakeBox();
    return region;
}

CRegion CRegion::MakeEllipse(const CRect& rc) {
    static constexpr std::int64_t kFarthest = CSurface::kFarthest;
    const auto Ordered = [](int a, int b) {
        const std::int64_t nLow = std::clamp<std::int64_t>(std::min(a, b), -kFarthest, kFarthest);
        const std::int64_t nHigh = std::clamp<std::int64_t>(std::max(a, b), -kFarthest, kFarthest) - 1;
        // A box of no extent turns round here and is one pixel wide.
        return CPolygonScan::CSpan{std::min(nLow, nHigh), std::max(nLow, nHigh)};
    };
    const CPolygonScan::CSpan columns = Ordered(rc.left, rc.right);
    const CPolygonScan::CSpan rows = Ordered(rc.top, rc.bottom);
    const std::int64_t nWidth = columns.nRight - columns.nLeft;
    const std::int64_t nHeight = rows.nRight - rows.nLeft;
    if (std::min(nWidth, nHeight) <= 2) {
        CRegion region = MakeRectangle({static_cast<int>(columns.nLeft), static_cast<int>(rows.nLeft),
                                        static_cast<int>(columns.nRight), static_cast<int>(rows.nRight)});
        if (nWidth >= 2 && nHeight >= 2) region.m_type = RegionType::kComplex;
        return region;
    }
    CRegion region;
    CRoundFigure figure({columns.nLeft, rows.nLeft}, nWidth, nHeight, nWidth, nHeight);
    const std::int64_t yEnd = std::min<std::int64_t>(figure.Bottom(), kReach);
    for (std::int64_t y = std::max<std::int64_t>(figure.Top(), -kReach); y < yEnd; ++y) {
        const CPolygonScan::CSpan span = figure.Area(y);
        region.AddRow(static_cast<int>(y), {&span, 1});
    }
    region.MakeBox();
    if (!region.IsEmpty()) region.m_type = RegionType::kComplex;
    return region;
}

CRegion CRegion::MakePolygon(std::span<const CPoint> points) {
    CRegion region;
    std::vector<CFarPoint> corners(points.size());
    std::ranges::transform(points, corners.begin(), Far);
    CPolygonScan scan;
    scan.Start(corners, FillRule::kWinding, -kReach, kReach);
    while (scan.NextRow()) region.AddRow(static_cast<int>(scan.Row()), scan.Spans());
    region.MakeBox();
    return region;
}

void CRegion::AddRow(int y, std::span<const CPolygonScan::CSpan> spans) {
    const std::size_t nFirst = m_runs.size();
    for (const CPolygonScan::CSpan& span : spans) {
        const auto Near = [](std::int64_t x) {
            return static_cast<int>(std::clamp<std::int64_t>(x, -kReach, kReach));
        };
        const CRun run{Near(span.nLeft), Near(span.nRight)};
        if (run.nLeft < run.nRight) m_runs.push_back(run);
    }
    const std::size_t nCount = m_runs.size() - nFirst;
    if (nCount == 0) return;
    if (!m_bands.empty() && m_bands.back().nBottom == y && m_bands.back().nCount == nCount &&
        std::equal(m_runs.begin() + static_cast<std::ptrdiff_t>(nFirst), m_runs.end(),
                   m_runs.begin() + static_cast<std::ptrdiff_t>(m_bands.back().nFirst))) {
        m_runs.resize(nFirst);
        ++m_bands.back().nBottom;
        return;
    }
    m_bands.push_back({y, y + 1, nFirst, nCount});
}

void CRegion::MakeBox() {
    if (m_bands.empty()) return;
    const auto itLeft = std::ranges::min_element(m_runs, {}, &CRun::nLeft);
    const auto itRight = std::ranges::max_element(m_runs, {}, &CRun::nRight);
    m_rcBox = {itLeft->nLeft, m_bands.front().nTop, itRight->nRight, m_bands.back().nBottom};
    m_type = m_runs.size() == 1 ? RegionType::kRectangle : RegionType::kComplex;
}

std::span<const CRun> CRegion::RowRuns(int y) const {
    const auto it = std::ranges::upper_bound(m_bands, y, {}, &CBand::nBottom);
    if (it == m_bands.end() || it->nTop > y) return {};
    return std::span(m_runs).subspan(it->nFirst, it->nCount);
}

bool CRegion::Contains(CPoint pt) const {
    const std::span<const CRun> runs = RowRuns(pt.y);
    const auto it = std::ranges::upper_bound(runs, pt.x, {}, &CRun::nRight);
    return it != runs.end() && it->nLeft <= pt.x;
}

bool CRegion::Offset(int dx, int dy) {
    if (IsEmpty()) return true;
    if (!IsInt(std::int64_t{m_rcBox.left} + dx) || !IsInt(std::int64_t{m_rcBox.right} + dx) ||
        !IsInt(std::int64_t{m_rcBox.top} + dy) || !IsInt(std::int64_t{m_rcBox.bottom} + dy))
        return false;
    m_rcBox = m_rcBox.Offset(dx, dy);
    for (CRun& run : m_runs) run = {run.nLeft + dx, run.nRight + dx};
    for (CBand& band : m_bands) {
        band.nTop += dy;
        band.nBottom += dy;
    }
    return true;
}

void CSurface::FillRegion(const CRegion& region, CColor color) {
    CRaster raster = Raster();
    const CRect rcSeen = region.Box().Intersect(Bounds());
    for (int y = rcSeen.top; y < rcSeen.bottom; ++y)
        for (const CRun& run : region.RowRuns(y)) raster.Span(y, run.nLeft, run.nRight, color);
}
