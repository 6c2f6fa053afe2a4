#pragma once

#include "image/Color.h"
#include "image/Geometry.h"
#include "image/Pixels.h"

// Pixels to draw on: 24 bits, row 0 at the top. Everything that lies beyond the edges is cut off. A surface
// shares its pixels with pictures and other surfaces until one of them is drawn on.
class CSurface {
  public:
    // Black; empty if the size is not positive or does not fit into memory.
    CSurface(int nWidth, int nHeight);
    explicit CSurface(CPixels pixels) : m_pixels(std::move(pixels)) {}

    int Width() const { return m_pixels.Width(); }
    int Height() const { return m_pixels.Height(); }
    CRect Bounds() const { return CRect::FromPlace(0, 0, Width(), Height()); }
    const CPixels& Pixels() const { return m_pixels; }

    // Outside: black, and nothing.
    CColor GetPixel(int x, int y) const;
    void SetPixel(int x, int y, CColor color);

    void FillRect(const CRect& rc, CColor color);
    // One pixel wide, just inside the box's edges.
    void FrameRect(const CRect& rc, CColor color);
    // The pixels of the three calls below are not this surface's own.

    // Copies the pixels with their top left corner at (x, y).
    void DrawPixels(const CPixels& pixels, int x, int y);
    // The part rcSource of the pixels, its top left corner at (x, y).
    void DrawPart(const CPixels& pixels, const CRect& rcSource, int x, int y);
    // Every pixel becomes nFactor by nFactor pixels; nFactor from 1 on.
    void DrawEnlarged(const CPixels& pixels, int x, int y, int nFactor) {
        DrawEnlarged(pixels, x, y, nFactor, Bounds());
    }
    // The same inside rcClip only.
    void DrawEnlarged(const CPixels& pixels, int x, int y, int nFactor, const CRect& rcClip);

  private:
    CPixels m_pixels;
};
