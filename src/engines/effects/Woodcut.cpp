#include <algorithm>

#include "engines/effects/ColourRows.h"
#include "engines/effects/Effects.h"
#include "engines/effects/RowRing.h"
#include "image/CpuChoice.h"

namespace {

FOTARIUM_INLINE void CutBody(const std::uint8_t* __restrict pBelow, std::uint8_t* __restrict pLuma,
                             std::size_t n) {
    for (std::size_t x = 0; x < n; ++x) pLuma[x] = static_cast<std::uint8_t>(pBelow[x] - pLuma[x]);
}

void CutPlain(const std::uint8_t* pBelow, std::uint8_t* pLuma, std::size_t n) {
    CutBody(pBelow, pLuma, n);
}

FOTARIUM_AVX2 void CutWide(const std::uint8_t* pBelow, std::uint8_t* pLuma, std::size_t n) {
    CutBody(pBelow, pLuma, n);
}

}  // namespace

// A woodcut: the luminance of the lower right neighbour less the pixel's own, modulo 256, so flat areas come
// out black and steps to darker nearly white. The neighbour is taken by its number: the last pixel of a row
// has it at the start of the row below the next. Pixels without one keep their luminance.
void Woodcut(const CEffectCall& call) {
    const auto cut = UseAvx2() ? CutWide : CutPlain;
    const auto w = static_cast<std::size_t>(call.src.nWidth);
    const std::size_t nPixels = w * static_cast<std::size_t>(call.src.nHeight);
    // The first pixel of the next row stands behind each, in what the ring and the picture leave free there.
    CRowRing luma(2, call.src.nWidth);
    RgbToY(call.src.pBits, luma.Row(0), w + 1);
    for (int y = 0; y < call.src.nHeight; ++y) {
        const std::size_t nNext = w * (static_cast<std::size_t>(y) + 1);
        if (nNext < nPixels) {
            const std::size_t nThere = std::min(w + 1, nPixels - nNext);
            RgbToY(call.src.pBits + 3 * nNext, luma.Row(y + 1), nThere);
            cut(luma.Row(y + 1) + 1, luma.Row(y), nThere - 1);
        }
        JoinRgb(luma.Row(y), luma.Row(y), luma.Row(y), call.dst.Row(y), w);
    }
}
