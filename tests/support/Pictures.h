#pragma once

#include <ostream>
#include <sstream>
#include <string>

#include "image/Image.h"

// Pictures that tests make, and plain second forms of what is done to them.

// Every pixel of a picture up to 256 by 256 has a colour of its own; nBlue tells pictures apart.
inline CPixels NumberedPixels(int nWidth, int nHeight, int nBlue = 0) {
    CPixels pixels = CPixels::MakeFilled(nWidth, nHeight, {});
    const CPixelView view = pixels.MutableView();
    for (int y = 0; y < nHeight; ++y)
        for (int x = 0; x < nWidth; ++x)
            view.Set(x, y,
                     {static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y),
                      static_cast<std::uint8_t>(nBlue + x / 256 * 3 + y / 256 * 5)});
    return pixels;
}

inline CxImage NumberedImage(int nWidth, int nHeight, int nBlue = 0) {
    return CxImage(NumberedPixels(nWidth, nHeight, nBlue));
}

inline CxImage FlatImage(int nWidth, int nHeight, CColor color) {
    return CxImage(CPixels::MakeFilled(nWidth, nHeight, color));
}

// Column and row counted from the top left corner.
inline CColor PixelAt(const CPixels& pixels, int x, int y) {
    return pixels.View().Get(x, y);
}

// Where the first difference stands, and both colours there; or nothing.
inline std::string Difference(const CPixels& a, const CPixels& b) {
    if (a.Width() != b.Width() || a.Height() != b.Height()) return "different sizes";
    for (int y = 0; y < a.Height(); ++y)
        for (int x = 0; x < a.Width(); ++x) {
            const CColor p = PixelAt(a, x, y);
            const CColor q = PixelAt(b, x, y);
            if (p == q) continue;
            std::ostringstream text;
            text << "at " << x << "," << y << ": (" << +p.r << " " << +p.g << " " << +p.b << ") and (" << +q.r
                 << " " << +q.g << " " << +q.b << ")";
            return text.str();
        }
    return {};
}

// The nearest-pixel scaling, pixel by pixel, rows counted from the bottom.
inline CPixels NaiveResample(const CPixels& pixels, int nWidth, int nHeight) {
    CPixels result = CPixels::MakeFilled(nWidth, nHeight, {});
    const float sx = static_cast<float>(pixels.Width()) / static_cast<float>(nWidth);
    const float sy = static_cast<float>(pixels.Height()) / static_cast<float>(nHeight);
    const CPixelView view = result.MutableView();
    for (int y = 0; y < nHeight; ++y)
        for (int x = 0; x < nWidth; ++x) {
            const int xFrom = static_cast<int>(static_cast<float>(x) * sx);
            const int yFrom = static_cast<int>(static_cast<float>(y) * sy);
            view.Set(x, nHeight - 1 - y, PixelAt(pixels, xFrom, pixels.Height() - 1 - yFrom));
        }
    return result;
}

// A picture of that size whose pixel (x, y) is the one that fnFrom names, all counted from the top left.
template <typename T>
CPixels NaiveMove(const CPixels& pixels, int nWidth, int nHeight, T fnFrom) {
    CPixels result = CPixels::MakeFilled(nWidth, nHeight, {});
    const CPixelView view = result.MutableView();
    for (int y = 0; y < nHeight; ++y)
        for (int x = 0; x < nWidth; ++x) {
            const CPoint pt = fnFrom(x, y);
            view.Set(x, y, PixelAt(pixels, pt.x, pt.y));
        }
    return result;
}

inline CPixels NaiveFlip(const CPixels& pixels, bool bVertical) {
    const int nRight = pixels.Width() - 1;
    const int nBottom = pixels.Height() - 1;
    return NaiveMove(pixels, pixels.Width(), pixels.Height(), [=](int x, int y) {
        return bVertical ? CPoint{x, nBottom - y} : CPoint{nRight - x, y};
    });
}

inline CPixels NaiveTurn(const CPixels& pixels, bool bClockwise) {
    const int nRight = pixels.Width() - 1;
    const int nBottom = pixels.Height() - 1;
    return NaiveMove(pixels, pixels.Height(), pixels.Width(), [=](int x, int y) {
        return bClockwise ? CPoint{y, nBottom - x} : CPoint{nRight - y, x};
    });
}

// What a failed comparison shows.
inline void PrintTo(const CPixels& pixels, std::ostream* pStream) {
    *pStream << pixels.Width() << " by " << pixels.Height() << " pixels";
}
inline void PrintTo(const CSize& size, std::ostream* pStream) {
    *pStream << size.cx << " by " << size.cy;
}
inline void PrintTo(const CRect& rc, std::ostream* pStream) {
    *pStream << rc.left << ',' << rc.top << ' ' << rc.Width() << " x " << rc.Height();
}
inline void PrintTo(const CPoint& pt, std::ostream* pStream) {
    *pStream << "(" << pt.x << "," << pt.y << ")";
}

// Paints over every pixel, as an edit does.
inline void PaintOver(CxImage& image, CColor color) {
    const CPixelView view = image.MutableView();
    for (int y = 0; y < view.nHeight; ++y)
        for (int x = 0; x < view.nWidth; ++x) view.Set(x, y, color);
}
