// Art: a soft bright frame burns the edges of the picture out to white; even its middle gains a little luma.

#include <algorithm>
#include <array>

#include "engines/effects/ColourRows.h"
#include "engines/effects/Effects.h"
#include "engines/effects/VignetteMask.h"
#include "image/CpuChoice.h"

namespace {

// The nearest pixel of a side of nMask for each pixel of a side of nSide, in single precision. Rounding may
// carry the product of a very long side to the mask's end.
struct CNearest {
    CNearest(int nMask, int nSide)
        : fStep(static_cast<float>(nMask) / static_cast<float>(nSide)), nLast(nMask - 1) {}
    int At(int i) const { return std::min(static_cast<int>(static_cast<float>(i) * fStep), nLast); }
    float fStep;
    int nLast;
};

// Where luma and mask come to more than 255 the pixel is white. All in bytes, so that vectors take many: a
// sum that ran over is less than its parts.
FOTARIUM_INLINE void AddMask(const std::uint8_t* pMask, std::uint8_t* pY, std::uint8_t* pU, std::uint8_t* pV,
                             std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        const auto nSum = static_cast<std::uint8_t>(pMask[i] + pY[i]);
        const std::uint8_t nWhite = nSum < pMask[i] ? 255 : 0;
        pY[i] = nSum | nWhite;
        pU[i] = static_cast<std::uint8_t>((pU[i] & ~nWhite) | (128 & nWhite));
        pV[i] = static_cast<std::uint8_t>((pV[i] & ~nWhite) | (128 & nWhite));
    }
}

#if FOTARIUM_HAS_AVX2
FOTARIUM_AVX2 void AddMaskWide(const std::uint8_t* pMask, std::uint8_t* pY, std::uint8_t* pU,
                               std::uint8_t* pV, std::size_t n) {
    AddMask(pMask, pY, pU, pV, n);
}
#endif

// The mask stretched over n pixels of a row, from column x on.
void StretchMask(const CVignetteMask::CRow& row, const CNearest& columns, int x, std::size_t n,
                 std::uint8_t* pMask) {
    for (std::size_t i = 0; i < n; ++i)
        pMask[i] = row[static_cast<std::size_t>(columns.At(x + static_cast<int>(i)))];
}

void BurnPixels(const std::uint8_t* pSrc, const std::uint8_t* pMask, std::uint8_t* pDst,
                std::size_t nPixels) {
    CChunk yuv;
    for (std::size_t i = 0; i < nPixels; i += kChunkPixels) {
        const std::size_t n = std::min(kChunkPixels, nPixels - i);
        RgbToYuv(pSrc + 3 * i, yuv.a, yuv.b, yuv.c, n);
#if FOTARIUM_HAS_AVX2
        if (UseAvx2()) {
            AddMaskWide(pMask + i, yuv.a, yuv.b, yuv.c, n);
        } else
#endif
            AddMask(pMask + i, yuv.a, yuv.b, yuv.c, n);
        YuvToRgb(yuv.a, yuv.b, yuv.c, pDst + 3 * i, n);
    }
}

}  // namespace

// The mask is scaled to the picture by its nearest pixels, rows counted from the bottom.
void Art(const CEffectCall& call) {
    const int w = call.src.nWidth;
    const int h = call.src.nHeight;
    const CVignetteMask& mask = VignetteMask();
    const CNearest columns(CVignetteMask::kWidth, w);
    const CNearest rows(CVignetteMask::kHeight, h);
    const auto MaskRow = [&rows, h](int y) { return CVignetteMask::kHeight - 1 - rows.At(h - 1 - y); };

    // Long runs along a row: memory comes faster when it is walked on and on.
    constexpr std::size_t kRun = 8 * kChunkPixels;
    alignas(64) std::array<std::uint8_t, kRun> stretched;
    int y = 0;
    while (y < h) {
        // Rows that take the same row of the mask go together, so that it is stretched once for them.
        const int yFirst = y;
        while (y < h && MaskRow(y) == MaskRow(yFirst)) ++y;
        for (int x = 0; x < w; x += static_cast<int>(kRun)) {
            const std::size_t n = std::min(kRun, static_cast<std::size_t>(w - x));
            StretchMask(mask.Row(MaskRow(yFirst)), columns, x, n, stretched.data());
            const std::ptrdiff_t nOffset = 3 * static_cast<std::ptrdiff_t>(x);
            for (int i = yFirst; i < y; ++i)
                BurnPixels(call.src.Row(i) + nOffset, stretched.data(), call.dst.Row(i) + nOffset, n);
        }
    }
}
