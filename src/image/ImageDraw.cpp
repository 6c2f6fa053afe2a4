// The part of CxImage that draws on a target.

#include <algorithm>
#include <cstring>
#include <vector>

#include "image/Image.h"

namespace {

CRect WholeOf(CPixelView view) {
    return {0, 0, view.nWidth, view.nHeight};
}

}  // namespace

void CxImage::Draw(CPixelView target, int x, int y) const {
    const CRect rc = CRect::FromPlace(x, y, GetWidth(), GetHeight()).Intersect(WholeOf(target));
    if (rc.IsEmpty()) return;
    const std::size_t nBytes = 3 * static_cast<std::size_t>(rc.Width());
    for (int j = rc.top; j < rc.bottom; ++j) {
        const std::uint8_t* const pSrc =
            m_pixels.Row(j - y).data() + 3 * static_cast<std::ptrdiff_t>(rc.left - x);
        std::memcpy(target.Row(j) + 3 * static_cast<std::ptrdiff_t>(rc.left), pSrc, nBytes);
    }
}

void CxImage::Stretch(CPixelView target, const CRect& rc) const {
    const CRect rcSeen = rc.Intersect(WholeOf(target));
    if (!IsValid() || rcSeen.IsEmpty()) return;
    const auto source = [](int nAt, int nSize, int nNewSize) {
        return static_cast<std::ptrdiff_t>(static_cast<std::int64_t>(nAt) * nSize / nNewSize);
    };
    std::vector<std::ptrdiff_t> columns;
    columns.reserve(static_cast<std::size_t>(rcSeen.Width()));
    for (int i = rcSeen.left; i < rcSeen.right; ++i)
        columns.push_back(3 * source(i - rc.left, GetWidth(), rc.Width()));

    for (int j = rcSeen.top; j < rcSeen.bottom; ++j) {
        const std::uint8_t* const pSrc =
            m_pixels.Row(static_cast<int>(source(j - rc.top, GetHeight(), rc.Height()))).data();
        std::uint8_t* pDst = target.Row(j) + 3 * static_cast<std::ptrdiff_t>(rcSeen.left);
        for (const std::ptrdiff_t nColumn : columns) {
            std::memcpy(pDst, pSrc + nColumn, 3);
            pDst += 3;
        }
    }
}

void CxImage::DrawTextA(CPixelView target, CTextRasterizer& rasterizer, int x, int y,
                        const std::string& strText, CColor cr, const std::string& strFace, int nSize,
                        int nWeight, bool bItalic, bool bUnderline) {
    constexpr std::uint8_t kInGlyph = 128;
    const CTextMask mask = rasterizer.Rasterize({strFace, nSize, nWeight, bItalic, bUnderline}, strText);
    const int nTop = y - mask.nHeight;
    const CRect rc = CRect::FromPlace(x, nTop, mask.nWidth, mask.nHeight).Intersect(WholeOf(target));
    for (int j = rc.top; j < rc.bottom; ++j) {
        const std::uint8_t* const pMask =
            mask.coverage.data() + static_cast<std::ptrdiff_t>(j - nTop) * mask.nWidth - x;
        for (int i = rc.left; i < rc.right; ++i) {
            if (pMask[i] >= kInGlyph) target.Set(i, j, cr);
        }
    }
}
