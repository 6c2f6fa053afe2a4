#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "surface/Exact.h"
#include "surface/Pen.h"
#include "surface/PolygonScan.h"
#include "surface/Raster.h"

// Draws outlines with one pen for one drawing call.
//
// One pixel wide: a line has a pixel for each step along its longer axis, the first point in, the last one
// out; the other coordinate is the nearest to the exact one, and a half goes to the smaller coordinate,
// whichever way the line runs. A line of no length draws nothing.
//
// Wider: the pen's disc at both ends and a body between them; a line of no length is the disc. The disc is
// the filled ellipse of a box as wide as the pen. Both ways give the same pixels.
//
// Dotted: the pattern takes one step a pixel, starts with the object and goes on from line to line, also
// where the pixels are not seen.
class CStroke {
  public:
    // Gaps of dotted pens are painted in crGap, or left as they were.
    CStroke(CRaster& raster, const CPen& pen, std::optional<CColor> crGap);

    // The lines from point to point, and back to the first one if bClosed.
    void Polyline(std::span<const CFarPoint> points, bool bClosed);

    // Parts of the outlines of round figures, for solid pens.

    // All discs from xFrom to xTo, both included, in row y.
    void DiscRow(std::int64_t y, std::int64_t xFrom, std::int64_t xTo);
    // What stands between the discs of a line; of a line one pixel wide nothing.
    void Body(CFarPoint ptFrom, CFarPoint ptTo);
    // The body of an upright line, both its ends included.
    void Column(std::int64_t x, std::int64_t yFrom, std::int64_t yTo);

    // How far pixels may lie from the line, in rows.
    int Reach() const { return m_pen.nWidth; }

  private:
    void ThinLine(CFarPoint ptFrom, CFarPoint ptTo);
    void DottedPixel(std::int64_t x, std::int64_t y, std::size_t nStep);

    CRaster& m_raster;
    CPen m_pen;
    std::optional<CColor> m_crGap;
    // Every pattern repeats after so many steps at the latest; which of them leave a mark.
    static constexpr int kPatternSteps = 24;
    std::array<bool, kPatternSteps> m_marks{};
    // Steps of the pattern done so far, up to whole patterns.
    std::int64_t m_nPhase = 0;
    // The pen's disc: runs from the row Offset() above its point on, columns counted from the point.
    std::vector<CRun> m_disc;
    CPolygonScan m_scan;
};
