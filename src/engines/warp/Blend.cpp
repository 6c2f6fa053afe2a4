#include "engines/warp/Blend.h"

#include <algorithm>
#include <array>

#include "engines/warp/GreyView.h"
#include "image/CpuChoice.h"

namespace {

constexpr std::size_t kChunk = 256;  // pixels

// A mask three times, a byte for each channel, and the colour as often.
struct CInk {
    std::array<std::uint8_t, 3 * kChunk> mask;
    std::array<std::uint8_t, 3 * kChunk> colour;
};

// A division by 255 without its fraction, exact for each sum that there can be.
FOTARIUM_INLINE void BlendBody(const CInk& ink, std::uint8_t* __restrict pBytes, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        const unsigned nMask = ink.mask[i];
        const auto nSum = static_cast<std::uint16_t>((255 - nMask) * ink.colour[i] + nMask * pBytes[i]);
        pBytes[i] = static_cast<std::uint8_t>(static_cast<std::uint16_t>(nSum + 1 + (nSum >> 8)) >> 8);
    }
}

void BlendPlain(const CInk& ink, std::uint8_t* pBytes, std::size_t n) {
    BlendBody(ink, pBytes, n);
}

FOTARIUM_AVX2 void BlendWide(const CInk& ink, std::uint8_t* pBytes, std::size_t n) {
    BlendBody(ink, pBytes, n);
}

}  // namespace

void BlendRow(const std::uint8_t* pMask, CColor cr, std::uint8_t* pPixels, std::size_t n) {
    // Most of a box has no ink; what lies before the first letter and behind the last is passed over.
    const auto hasInk = [](std::uint8_t nMask) { return nMask != kNoInk; };
    const std::uint8_t* const pEnd = pMask + n;
    const std::uint8_t* const pFirst = std::find_if(pMask, pEnd, hasInk);
    if (pFirst == pEnd) return;
    const std::uint8_t* pLast = pEnd;
    while (!hasInk(pLast[-1])) --pLast;

    const auto blend = UseAvx2() ? BlendWide : BlendPlain;
    CInk ink;
    for (std::size_t i = 0; i < 3 * kChunk; i += 3) {
        ink.colour[i] = cr.r;
        ink.colour[i + 1] = cr.g;
        ink.colour[i + 2] = cr.b;
    }
    for (const std::uint8_t* p = pFirst; p < pLast;) {
        const std::size_t nPixels = std::min(kChunk, static_cast<std::size_t>(pLast - p));
        for (std::size_t i = 0; i < nPixels; ++i)
            ink.mask[3 * i] = ink.mask[3 * i + 1] = ink.mask[3 * i + 2] = p[i];
        blend(ink, pPixels + 3 * (p - pMask), 3 * nPixels);
        p += nPixels;
    }
}
