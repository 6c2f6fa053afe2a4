#include "surface/Surface.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>

#include "surface/PixelRun.h"

CSurface::CSurface(int nWidth, int nHeight) : m_pixels(CPixels::MakeFilled(nWidth, nHeight, {})) {}

CRect CSurface::TakeDirty() {
    return std::exchange(m_rcDirty, {});
}

CPixelView CSurface::Open(const CRect& rc) {
    if (rc.IsEmpty()) return {};
    const CPixelView view = m_pixels.MutableView();
    if (view.pBits != nullptr) m_rcDirty = m_rcDirty.Union(rc);
    return view;
}

CPen CSurface::SelectPen(const CPen& pen) {
    return std::exchange(m_pen, pen);
}

CBrush CSurface::SelectBrush(const CBrush& brush) {
    return std::exchange(m_brush, brush);
}

std::optional<CColor> CSurface::GapColor() const {
    if (m_bTransparentGaps) return std::nullopt;
    return CColor{255, 255, 255};
}

CColor CSurface::GetPixel(int x, int y) const {
    if (!Bounds().Contains({x, y})) return {};
    const auto row = m_pixels.Row(y);
    const std::size_t n = std::size_t{3} * static_cast<std::size_t>(x);
    return {row[n], row[n + 1], row[n + 2]};
}

void CSurface::SetPixel(int x, int y, CColor color) {
    if (!Bounds().Contains({x, y})) return;
    FillRect(CRect::FromPlace(x, y, 1, 1), color);
}

void CSurface::FillRect(const CRect& rc, CColor color) {
    const CRect rcIn = rc.Intersect(Bounds());
    const CPixelView view = Open(rcIn);
    if (view.pBits == nullptr) return;
    for (int y = rcIn.top; y < rcIn.bottom; ++y)
        PaintRun(view.Row(y) + std::ptrdiff_t{3} * rcIn.left, static_cast<std::size_t>(rcIn.Width()), color);
}

void CSurface::FrameRect(const CRect& rc, CColor color) {
    CRaster raster = Raster();
    const std::int64_t xRight = rc.right;
    const std::int64_t yBottom = rc.bottom;
    raster.Box(rc.left, rc.top, xRight, std::int64_t{rc.top} + 1, color);
    raster.Box(rc.left, yBottom - 1, xRight, yBottom, color);
    raster.Box(rc.left, rc.top, std::int64_t{rc.left} + 1, yBottom, color);
    raster.Box(xRight - 1, rc.top, xRight, yBottom, color);
}

void CSurface::DrawPixels(const CPixels& pixels, int x, int y) {
    DrawPart(pixels, CRect::FromPlace(0, 0, pixels.Width(), pixels.Height()), x, y);
}

void CSurface::DrawPart(const CPixels& pixels, const CRect& rcSource, int x, int y) {
    const CRect rcPart = rcSource.Intersect(CRect::FromPlace(0, 0, pixels.Width(), pixels.Height()));
    const std::int64_t dx = std::int64_t{x} - rcSource.left;
    const std::int64_t dy = std::int64_t{y} - rcSource.top;
    // Cut at the edges before the place has to fit into an int.
    const auto Cut = [](std::int64_t n, int nSide) {
        return static_cast<int>(std::clamp<std::int64_t>(n, 0, nSide));
    };
    const CRect rcTo{Cut(rcPart.left + dx, Width()), Cut(rcPart.top + dy, Height()),
                     Cut(rcPart.right + dx, Width()), Cut(rcPart.bottom + dy, Height())};
    const CPixelView view = Open(rcTo);
    if (view.pBits == nullptr) return;
    for (int row = rcTo.top; row < rcTo.bottom; ++row)
        std::memcpy(view.Row(row) + std::ptrdiff_t{3} * rcTo.left,
                    pixels.Row(static_cast<int>(row - dy)).data() + 3 * (rcTo.left - dx),
                    std::size_t{3} * static_cast<std::size_t>(rcTo.Width()));
}
