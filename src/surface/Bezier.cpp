// The cubic curve of a surface: flattened in sixteenths of a pixel, then drawn as a polyline.

#include <cstdlib>
#include <vector>

#include "surface/Stroke.h"
#include "surface/Surface.h"

namespace {

// Coordinates in sixteenths of a pixel.
using CCurve = std::array<CFarPoint, 4>;
constexpr std::int64_t kUnit = 16;
constexpr int kMaxHalvings = 8;

std::int64_t WholePixels(std::int64_t n) {
    return FloorDiv(n + kUnit / 2, kUnit);
}

std::int64_t Middle(std::int64_t a, std::int64_t b) {
    return (a + b + 1) / 2;
}

CFarPoint Middle(const CFarPoint& a, const CFarPoint& b) {
    return {Middle(a.x, b.x), Middle(a.y, b.y)};
}

// A piece is straight if both control points lie between its ends along the longer axis of the chord and at
// most one pixel beside it. The chord's slope is cut to whole sixteenths for each pixel; how many pieces a
// curve has, and so where its pixels lie, hangs on that.
bool IsStraight(const CCurve& curve) {
    const bool bFlat = std::abs(curve[3].x - curve[0].x) >= std::abs(curve[3].y - curve[0].y);
    const auto along = bFlat ? &CFarPoint::x : &CFarPoint::y;
    const auto across = bFlat ? &CFarPoint::y : &CFarPoint::x;
    const std::int64_t nStart = curve[0].*along;
    const std::int64_t nEnd = curve[3].*along;
    for (const CFarPoint& pt : {curve[1], curve[2]}) {
        const std::int64_t n = pt.*along;
        if (n < nStart ? n < nEnd : n > nEnd) return false;
    }
    const std::int64_t nPixels = WholePixels(nEnd - nStart);
    if (nPixels == 0) return true;
    const std::int64_t nSlope = (curve[3].*across - curve[0].*across) / nPixels;
    for (const CFarPoint& pt : {curve[1], curve[2]}) {
        const std::int64_t nOnChord = nSlope * WholePixels(pt.*along - nStart);
        if (std::abs(pt.*across - curve[0].*across - nOnChord) > kUnit) return false;
    }
    return true;
}

void Flatten(const CCurve& curve, int nHalvings, std::vector<CFarPoint>& points) {
    if (nHalvings == 0 || IsStraight(curve)) {
        points.push_back({WholePixels(curve[3].x), WholePixels(curve[3].y)});
        return;
    }
    const CFarPoint ptCenter = Middle(curve[1], curve[2]);
    const CFarPoint ptLeft = Middle(curve[0], curve[1]);
    const CFarPoint ptRight = Middle(curve[2], curve[3]);
    const CFarPoint ptLeftInner = Middle(ptLeft, ptCenter);
    const CFarPoint ptRightInner = Middle(ptCenter, ptRight);
    const CFarPoint ptHalf = Middle(ptLeftInner, ptRightInner);
    Flatten({curve[0], ptLeft, ptLeftInner, ptHalf}, nHalvings - 1, points);
    Flatten({ptHalf, ptRightInner, ptRight, curve[3]}, nHalvings - 1, points);
}

}  // namespace

void CSurface::Bezier(const std::array<CPoint, 4>& points) {
    CCurve curve;
    for (std::size_t i = 0; i < curve.size(); ++i) curve[i] = {kUnit * points[i].x, kUnit * points[i].y};
    std::vector<CFarPoint> line = {{points[0].x, points[0].y}};
    Flatten(curve, kMaxHalvings, line);
    CRaster raster = Raster();
    CStroke(raster, m_pen, GapColor()).Polyline(line, false);
}
