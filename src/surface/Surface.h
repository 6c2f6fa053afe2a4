#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>

#include "image/Color.h"
#include "image/Geometry.h"
#include "image/Pixels.h"
#include "surface/Brush.h"
#include "surface/Pen.h"
#include "surface/Raster.h"
#include "surface/Region.h"

// A block of pixels that runs from the pixel (x, y), that one included, nWidth columns to the right and
// nHeight rows down; a negative extent runs to the left or up.
struct CBlock {
    std::int64_t x = 0;
    std::int64_t y = 0;
    std::int64_t nWidth = 0;
    std::int64_t nHeight = 0;
};

// Pixels to draw on: 24 bits, row 0 at the top. Everything that lies beyond the edges is cut off, and what is
// seen of a figure does not depend on where it is cut; coordinates may be anything that an int holds. A
// surface shares its pixels with pictures and other surfaces until one of them is drawn on. If there is no
// memory to separate them, a call draws nothing.
class CSurface {
  public:
    // Black; empty if the size is not positive or does not fit into memory.
    CSurface(int nWidth, int nHeight);
    explicit CSurface(CPixels pixels) : m_pixels(std::move(pixels)) {}

    int Width() const { return m_pixels.Width(); }
    int Height() const { return m_pixels.Height(); }
    CRect Bounds() const { return CRect::FromPlace(0, 0, Width(), Height()); }
    const CPixels& Pixels() const { return m_pixels; }

    // Makes the pixels this surface's own, so that no drawing call has to. False if memory is short.
    [[nodiscard]] bool Separate() { return m_pixels.Separate(); }

    // The box around all that the drawing calls have painted since the last call, whatever colour was there
    // before; empty if they have painted nothing.
    CRect TakeDirty();

    // Outside: black, and nothing.
    CColor GetPixel(int x, int y) const;
    void SetPixel(int x, int y, CColor color);

    void FillRect(const CRect& rc, CColor color);
    // One pixel wide, just inside the box's edges.
    void FrameRect(const CRect& rc, CColor color);

    // Pen, brush and position stay until others are given. At first they are a black pen one pixel wide, a
    // white brush and (0, 0). Both calls return what was selected before.
    CPen SelectPen(const CPen& pen);
    CBrush SelectBrush(const CBrush& brush);
    const CPen& Pen() const { return m_pen; }
    const CBrush& Brush() const { return m_brush; }
    // The gaps of dotted pens are painted white, as at first, or left as they were.
    void SetTransparentGaps(bool bTransparent) { m_bTransparentGaps = bTransparent; }

    // Figures. The pen draws the outline on the pixels of its points; a line leaves out its last point, and
    // if it has no length it leaves nothing of a pen one pixel wide and a dot of a wider one. The brush fills
    // the inside, under the pen. Boxes take their corners in any order and leave out their right and bottom
    // edge.

    void MoveTo(CPoint pt) { m_ptPosition = pt; }
    // From the position, which the end point becomes.
    void LineTo(CPoint pt);
    // Through the points, without touching the position. Fewer than two draw nothing.
    void Polyline(std::span<const CPoint> points);
    // One cubic Bezier curve from the first point to the last.
    void Bezier(const std::array<CPoint, 4>& points);

    // With the null pen the brush leaves out the last column and the last row of the box as well.
    void Rectangle(const CRect& rc);
    // Corners beyond kFarthest count as being there.
    void Ellipse(const CRect& rc);
    // Corners rounded by quarters of an ellipse of the given size.
    void RoundRect(const CRect& rc, CSize sizeEllipse);
    static constexpr int kFarthest = 1 << 30;
    // Closed from the last point to the first; inside is where a ray crosses the outline an odd number of
    // times. Fewer than two points draw nothing.
    void Polygon(std::span<const CPoint> points);

    // The brush over every pixel that has exactly the colour crOld and hangs together with pt through such
    // pixels to the left, right, above and below. False, and nothing changes, if pt lies outside or has
    // another colour, or if memory is short.
    [[nodiscard]] bool FloodFill(CPoint pt, CColor crOld);

    // Neither pen nor brush takes part.
    void FillRegion(const CRegion& region, CColor color);

    // The pixels of the calls below are not this surface's own; a copy of it that shares them may be given.

    // Copies the pixels with their top left corner at (x, y).
    void DrawPixels(const CPixels& pixels, int x, int y);
    // The part rcSource of the pixels, its top left corner at (x, y).
    void DrawPart(const CPixels& pixels, const CRect& rcSource, int x, int y);
    // The part rcSource of the pixels, each of them nFactor by nFactor pixels large, its top left corner at
    // (x, y); draws only inside rcClip. nFactor from 1 on.
    void DrawEnlarged(const CPixels& pixels, const CRect& rcSource, int x, int y, int nFactor,
                      const CRect& rcClip);
    // Stretches the block from onto the block to: by whole factors each pixel becomes a block of that size,
    // otherwise the nearest pixel is taken. Blocks of opposite directions mirror. Draws only inside rcClip;
    // parts of the source beyond the pixels' edges draw nothing.
    void Stretch(const CPixels& pixels, const CBlock& blockFrom, const CBlock& blockTo, const CRect& rcClip);

  private:
    CRaster Raster() { return {m_pixels, m_rcDirty}; }
    // Separated pixels for a call that paints the box, which lies inside; null if there is nothing to paint.
    CPixelView Open(const CRect& rc);
    std::optional<CColor> GapColor() const;
    void DrawRound(const CRect& rc, std::int64_t nEllipseWidth, std::int64_t nEllipseHeight);

    CPixels m_pixels;
    CRect m_rcDirty;
    CPen m_pen;
    CBrush m_brush;
    bool m_bTransparentGaps = false;
    CPoint m_ptPosition;
};
