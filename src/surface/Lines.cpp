// The lines of a surface, and the polygon, whose outline is a closed line.

#include <vector>

#include "surface/Stroke.h"
#include "surface/Surface.h"

namespace {

std::vector<CFarPoint> FarPoints(std::span<const CPoint> points) {
    std::vector<CFarPoint> result;
    result.reserve(points.size());
    for (const CPoint& pt : points) result.push_back({pt.x, pt.y});
    return result;
}

}  // namespace

void CSurface::LineTo(CPoint pt) {
    const CPoint points[] = {m_ptPosition, pt};
    m_ptPosition = pt;
    Polyline(points);
}

void CSurface::Polyline(std::span<const CPoint> points) {
    if (points.size() < 2) return;
    CRaster raster = Raster();
    CStroke(raster, m_pen, GapColor()).Polyline(FarPoints(points), false);
}

void CSurface::Polygon(std::span<const CPoint> points) {
    if (points.size() < 2) return;
    const std::vector<CFarPoint> corners = FarPoints(points);
    CRaster raster = Raster();
    if (!m_brush.bHollow) {
        CPolygonScan scan;
        scan.Start(corners, FillRule::kAlternate, 0, Height());
        while (scan.NextRow())
            for (const CPolygonScan::CSpan& span : scan.Spans())
                raster.Span(scan.Row(), span.nLeft, span.nRight, m_brush.color);
    }
    CStroke(raster, m_pen, GapColor()).Polyline(corners, true);
}
