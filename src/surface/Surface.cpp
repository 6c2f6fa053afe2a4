#include "surface/Surface.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace {

void FillSpan(std::uint8_t* pTo, int nPixels, CColor color) {
    for (int i = 0; i < nPixels; ++i, pTo += 3) {
        pTo[0] = color.r;
        pTo[1] = color.g;
        pTo[2] = color.b;
    }
}

}  // namespace

CSurface::CSurface(int nWidth, int nHeight) {
    m_pixels.Create(nWidth, nHeight);
}

CColor CSurface::GetPixel(int x, int y) const {
    if (!Bounds().Contains({x, y})) return {};
    const auto row = m_pixels.Row(y);
    const std::size_t n = std::size_t{3} * static_cast<std::size_t>(x);
    return {row[n], row[n + 1], row[n + 2]};
}

void CSurface::SetPixel(int x, int y, CColor color) {
    FillRect(CRect::FromPlace(x, y, 1, 1), color);
}

void CSurface::FillRect(const CRect& rc, CColor color) {
    const CRect rcIn = rc.Intersect(Bounds());
    const CPixelView view = rcIn.IsEmpty() ? CPixelView{} : m_pixels.MutableView();
    if (view.pBits == nullptr) return;
    for (int y = rcIn.top; y < rcIn.bottom; ++y)
        FillSpan(view.Row(y) + std::ptrdiff_t{3} * rcIn.left, rcIn.Width(), color);
}

void CSurface::FrameRect(const CRect& rc, CColor color) {
    FillRect({rc.left, rc.top, rc.right, rc.top + 1}, color);
    FillRect({rc.left, rc.bottom - 1, rc.right, rc.bottom}, color);
    FillRect({rc.left, rc.top, rc.left + 1, rc.bottom}, color);
    FillRect({rc.right - 1, rc.top, rc.right, rc.bottom}, color);
}

void CSurface::DrawPixels(const CPixels& pixels, int x, int y) {
    DrawPart(pixels, CRect::FromPlace(0, 0, pixels.Width(), pixels.Height()), x, y);
}

void CSurface::DrawPart(const CPixels& pixels, const CRect& rcSource, int x, int y) {
    const CRect rcPart = rcSource.Intersect(CRect::FromPlace(0, 0, pixels.Width(), pixels.Height()));
    const int dx = x - rcSource.left;
    const int dy = y - rcSource.top;
    const CRect rcTo = rcPart.Offset(dx, dy).Intersect(Bounds());
    const CPixelView view = rcTo.IsEmpty() ? CPixelView{} : m_pixels.MutableView();
    if (view.pBits == nullptr) return;
    for (int row = rcTo.top; row < rcTo.bottom; ++row)
        std::memcpy(view.Row(row) + std::ptrdiff_t{3} * rcTo.left,
                    pixels.Row(row - dy).data() + std::ptrdiff_t{3} * (rcTo.left - dx),
                    std::size_t{3} * static_cast<std::size_t>(rcTo.Width()));
}

void CSurface::DrawEnlarged(const CPixels& pixels, int x, int y, int nFactor, const CRect& rcClip) {
    const CRect rcTo = CRect::FromPlace(x, y, pixels.Width() * nFactor, pixels.Height() * nFactor)
                           .Intersect(Bounds())
                           .Intersect(rcClip);
    if (nFactor == 1) return DrawPart(pixels, rcTo.Offset(-x, -y), rcTo.left, rcTo.top);
    const CPixelView view = rcTo.IsEmpty() ? CPixelView{} : m_pixels.MutableView();
    if (view.pBits == nullptr) return;
    for (int row = rcTo.top; row < rcTo.bottom; ++row) {
        const auto from = pixels.Row((row - y) / nFactor);
        std::uint8_t* pTo = view.Row(row) + std::ptrdiff_t{3} * rcTo.left;
        for (int column = rcTo.left; column < rcTo.right; ++column, pTo += 3)
            std::memcpy(pTo, from.data() + std::ptrdiff_t{3} * ((column - x) / nFactor), 3);
    }
}
