#include <algorithm>
#include <cstring>

#include "engines/effects/ColourRows.h"
#include "engines/effects/Effects.h"
#include "engines/effects/RowRing.h"
#include "image/CpuChoice.h"

namespace {

// A pixel takes the mean of four pixels of the two rows above it, which have taken theirs: the two side by
// side that begin at column x + nFrom. Columns nFirst to nLast counted from the left and the right edge take
// part, and the rows from the third to the last but one.
struct CSmear {
    int nFrom;
    int nFirst;
    int nLast;
};
constexpr CSmear kRightward = {-2, 2, 2};
constexpr CSmear kLeftward = {1, 1, 3};
constexpr int kFirstRow = 2;

// At this level the blend stands by itself.
constexpr int kEvenLevel = 60;

FOTARIUM_INLINE void SmearBody(const std::uint8_t* pUpper, const std::uint8_t* pLower,
                               std::uint8_t* __restrict pOut, std::size_t n) {
    for (std::size_t x = 0; x < n; ++x) {
        pOut[x] = static_cast<std::uint8_t>(
            static_cast<std::uint16_t>(pUpper[x] + pUpper[x + 1] + pLower[x] + pLower[x + 1]) >> 2);
    }
}

// The screen blend of the luminance with the smear, then up and down by an amount of which one is 0.
FOTARIUM_INLINE void BlendBody(const std::uint8_t* __restrict pSmear, std::uint8_t* __restrict pLuma,
                               std::uint8_t nUp, std::uint8_t nDown, std::size_t n) {
    const auto nTop = static_cast<std::uint8_t>(255 - nUp);
    for (std::size_t x = 0; x < n; ++x) {
        const auto a = static_cast<std::uint16_t>(255 - pLuma[x]);
        const auto b = static_cast<std::uint16_t>(255 - pSmear[x]);
        const auto nBlend = static_cast<std::uint8_t>(255 - (static_cast<std::uint16_t>(a * b) >> 8));
        const auto nRaised = static_cast<std::uint8_t>((nBlend < nTop ? nBlend : nTop) + nUp);
        pLuma[x] = static_cast<std::uint8_t>((nRaised > nDown ? nRaised : nDown) - nDown);
    }
}

void SmearPlain(const std::uint8_t* pUpper, const std::uint8_t* pLower, std::uint8_t* pOut, std::size_t n) {
    SmearBody(pUpper, pLower, pOut, n);
}
FOTARIUM_AVX2 void SmearWide(const std::uint8_t* pUpper, const std::uint8_t* pLower, std::uint8_t* pOut,
                             std::size_t n) {
    SmearBody(pUpper, pLower, pOut, n);
}
void BlendPlain(const std::uint8_t* pSmear, std::uint8_t* pLuma, std::uint8_t nUp, std::uint8_t nDown,
                std::size_t n) {
    BlendBody(pSmear, pLuma, nUp, nDown, n);
}
FOTARIUM_AVX2 void BlendWide(const std::uint8_t* pSmear, std::uint8_t* pLuma, std::uint8_t nUp,
                             std::uint8_t nDown, std::size_t n) {
    BlendBody(pSmear, pLuma, nUp, nDown, n);
}

// Every row depends on the two above it only, and inside a row no pixel on another, so a row is worked on in
// any order and in parts.
void Refract(const CEffectCall& call, const CSmear& smear) {
    if (call.nLevel == 0) return CopyPicture(call);
    const int w = call.src.nWidth;
    const int h = call.src.nHeight;
    const auto smearRow = UseAvx2() ? SmearWide : SmearPlain;
    const auto blendRow = UseAvx2() ? BlendWide : BlendPlain;
    const int nAdd = std::clamp(std::clamp(call.nLevel, -1000, 1000) - kEvenLevel, -255, 255);
    const auto nUp = static_cast<std::uint8_t>(std::max(nAdd, 0));
    const auto nDown = static_cast<std::uint8_t>(std::max(-nAdd, 0));
    constexpr int kChunk = static_cast<int>(kChunkPixels);
    CChunk chunk{};
    CRowRing ring(3, w);
    for (int y = 0; y < h; ++y) {
        std::uint8_t* const pOut = ring.Row(y);
        for (int x = 0; x < w; x += kChunk) {
            const int nEnd = std::min(w, x + kChunk);
            const auto n = static_cast<std::size_t>(nEnd - x);
            RgbToYuv(call.src.Row(y) + 3 * static_cast<std::ptrdiff_t>(x), chunk.a, chunk.b, chunk.c, n);
            std::memcpy(pOut + x, chunk.a, n);
            const int nFirst = std::max(x, smear.nFirst);
            const int nLast = std::min(nEnd - 1, w - smear.nLast);
            const int nCount = nLast - nFirst + 1;
            if (y >= kFirstRow && y < h - 1 && nCount > 0) {
                const int nFrom = nFirst + smear.nFrom;
                smearRow(ring.Row(y - 2) + nFrom, ring.Row(y - 1) + nFrom, pOut + nFirst,
                         static_cast<std::size_t>(nCount));
            }
            blendRow(pOut + x, chunk.a, nUp, nDown, n);
            YuvToRgb(chunk.a, chunk.b, chunk.c, call.dst.Row(y) + 3 * static_cast<std::ptrdiff_t>(x), n);
        }
    }
}

}  // namespace

// Streaks that run down to the right, laid over the luminance by a screen blend; the level makes it darker or
// lighter. Nothing at level 0.
void Refraction1(const CEffectCall& call) {
    Refract(call, kRightward);
}

// The same with streaks that run down to the left.
void Refraction2(const CEffectCall& call) {
    Refract(call, kLeftward);
}
