#pragma once

#include <cstdint>

#include "image/Geometry.h"
#include "surface/EllipseOutline.h"
#include "surface/PolygonScan.h"
#include "surface/Stroke.h"

// A box whose corners are quarters of an ellipse; the whole ellipse if that is as large as the box. Both
// sides of the box and of the ellipse are at least 3.
class CRoundFigure {
  public:
    CRoundFigure(const CFarPoint& ptCorner, std::int64_t nBoxWidth, std::int64_t nBoxHeight,
                 std::int64_t nEllipseWidth, std::int64_t nEllipseHeight);

    std::int64_t Top() const { return m_ptCorner.y; }
    std::int64_t Bottom() const { return m_ptCorner.y + m_nHeight; }

    // The columns of a row between Top() and Bottom(): all of the figure, or what lies inside its outline,
    // which is one pixel wide. May be empty.
    CPolygonScan::CSpan Area(std::int64_t y);
    CPolygonScan::CSpan Inside(std::int64_t y);

    // Draws the outline as far as it lies in rows 0 .. nRows - 1.
    void DrawOutline(CStroke& stroke, int nRows);
    // The same as one closed line of a dotted pen.
    void DrawDotted(CStroke& stroke);

  private:
    std::int64_t QuarterRow(std::int64_t y) const;
    void DrawCorners(CStroke& stroke, std::int64_t nRow);

    CFarPoint m_ptCorner;
    std::int64_t m_nWidth;
    std::int64_t m_nHeight;
    CEllipseOutline m_outline;
};
