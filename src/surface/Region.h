#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "image/Geometry.h"
#include "surface/PolygonScan.h"

enum class RegionType { kEmpty = 1, kRectangle = 2, kComplex = 3 };

// A value: a set of pixels, kept as runs. Rows that are alike stand once, so a rectangle costs nothing
// however large it is. Of polygons and ellipses only what lies closer to the origin than kReach, further than
// any picture goes.
class CRegion {
  public:
    static constexpr int kReach = 1 << 20;

    // Empty.
    CRegion() = default;
    // Corners in any order; right and bottom edges are left out.
    static CRegion MakeRectangle(const CRect& rc);
    // One column and one row smaller than the ellipse that a surface draws in that box, so that the ellipse
    // in l, t, r, b and the region of l, t, r + 1, b + 1 cover the same pixels. A box that is one pixel wide
    // or high is empty; one of no width is the column left of it, one of no height the row above it.
    static CRegion MakeEllipse(const CRect& rc);
    // All that the outline winds around, itself crossing or not; edges as for a surface's polygon. Empty with
    // fewer than three points.
    static CRegion MakePolygon(std::span<const CPoint> points);

    // An ellipse is complex from 2 by 2 pixels on, even where its pixels form a rectangle.
    RegionType Type() const { return m_type; }
    bool IsEmpty() const { return m_type == RegionType::kEmpty; }
    // The smallest box around the pixels; all zero if there are none.
    const CRect& Box() const { return m_rcBox; }
    bool Contains(CPoint pt) const;
    // The runs of row y from left to right, none of them empty and none touching another.
    std::span<const CRun> RowRuns(int y) const;

    // False, and nothing changes, if the box would leave the range of coordinates.
    bool Offset(int dx, int dy);

  private:
    // Rows nTop .. nBottom - 1 have the runs nFirst .. nFirst + nCount - 1.
    struct CBand {
        int nTop;
        int nBottom;
        std::size_t nFirst;
        std::size_t nCount;
    };
    // Rows come from top to bottom.
    void AddRow(int y, std::span<const CPolygonScan::CSpan> spans);
    void MakeBox();

    std::vector<CBand> m_bands;
    std::vector<CRun> m_runs;
    CRect m_rcBox;
    RegionType m_type = RegionType::kEmpty;
};
