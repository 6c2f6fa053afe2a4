#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "image/Geometry.h"
#include "image/Pixels.h"
#include "surface/PixelRun.h"

// Where the pixels of one drawing call go. Cuts at the edges, separates shared pixels at the first pixel that
// is seen and not before, and adds the box of what it painted to the surface's changed box at its end.
class CRaster {
  public:
    CRaster(CPixels& pixels, CRect& rcDirty)
        : m_pixels(pixels), m_rcDirty(rcDirty), m_nWidth(pixels.Width()), m_nHeight(pixels.Height()) {}
    CRaster(const CRaster&) = delete;
    CRaster& operator=(const CRaster&) = delete;
    ~CRaster() {
        if (m_nRight > 0) m_rcDirty = m_rcDirty.Union({m_nLeft, m_nTop, m_nRight, m_nBottom});
    }

    int Width() const { return m_nWidth; }
    int Height() const { return m_nHeight; }

    // The pixels xLeft .. xRight - 1 of row y.
    void Span(std::int64_t y, std::int64_t xLeft, std::int64_t xRight, CColor color) {
        if (y < 0 || y >= m_nHeight) return;
        const int nLeft = static_cast<int>(std::max<std::int64_t>(xLeft, 0));
        const int nRight = static_cast<int>(std::min<std::int64_t>(xRight, m_nWidth));
        if (xLeft >= m_nWidth || nLeft >= nRight || !Open()) return;
        const int nRow = static_cast<int>(y);
        m_nLeft = std::min(m_nLeft, nLeft);
        m_nRight = std::max(m_nRight, nRight);
        m_nTop = std::min(m_nTop, nRow);
        m_nBottom = std::max(m_nBottom, nRow + 1);
        PaintRun(m_view.Row(nRow) + std::ptrdiff_t{3} * nLeft, static_cast<std::size_t>(nRight - nLeft),
                 color);
    }
    void Pixel(std::int64_t x, std::int64_t y, CColor color) { Span(y, x, x + 1, color); }

    // The rows yTop .. yBottom - 1 of the columns xLeft .. xRight - 1.
    void Box(std::int64_t xLeft, std::int64_t yTop, std::int64_t xRight, std::int64_t yBottom, CColor color) {
        const std::int64_t yEnd = std::min<std::int64_t>(yBottom, m_nHeight);
        for (std::int64_t y = std::max<std::int64_t>(yTop, 0); y < yEnd; ++y) Span(y, xLeft, xRight, color);
    }

  private:
    bool Open() {
        if (m_view.pBits == nullptr && !m_bFailed) {
            m_view = m_pixels.MutableView();
            m_bFailed = m_view.pBits == nullptr;
        }
        return !m_bFailed;
    }

    CPixels& m_pixels;
    CRect& m_rcDirty;
    CPixelView m_view;
    int m_nWidth;
    int m_nHeight;
    bool m_bFailed = false;
    int m_nLeft = std::numeric_limits<int>::max();
    int m_nTop = std::numeric_limits<int>::max();
    int m_nRight = 0;
    int m_nBottom = 0;
};
