#include "engines/warp/Blend.h"

#include <algorithm>
#include <array>

#include "engines/warp/GreyView.h"
#include "image/CpuChoice.h"

#if FOTARIUM_HAS_AVX2
#include <immintrin.h>
#endif

namespace {

constexpr std::size_t kChunk = 256;  // pixels

// A mask three times, a byte for each channel, and the colour as often.
struct CInk {
    std::array<std::uint8_t, 3 * kChunk> mask;
    std::array<std::uint8_t, 3 * kChunk> colour;
};

// A division by 255 without its fraction, exact for each sum that there can be.
void BlendBytes(const CInk& ink, std::uint8_t* __restrict pBytes, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        const unsigned nMask = ink.mask[i];
        const auto nSum = static_cast<std::uint16_t>((255 - nMask) * ink.colour[i] + nMask * pBytes[i]);
        pBytes[i] = static_cast<std::uint8_t>(static_cast<std::uint16_t>(nSum + 1 + (nSum >> 8)) >> 8);
    }
}

void BlendPlain(const std::uint8_t* pMask, CColor cr, std::uint8_t* pPixels, std::size_t n) {
    CInk ink{};
    for (std::size_t i = 0; i < 3 * kChunk; i += 3) {
        ink.colour[i] = cr.r;
        ink.colour[i + 1] = cr.g;
        ink.colour[i + 2] = cr.b;
    }
    for (std::size_t x = 0; x < n; x += kChunk) {
        const std::size_t nPixels = std::min(kChunk, n - x);
        // Most of a box has no ink.
        if (std::all_of(pMask + x, pMask + x + nPixels, [](std::uint8_t m) { return m == kNoInk; })) continue;
        for (std::size_t i = 0; i < nPixels; ++i)
            ink.mask[3 * i] = ink.mask[3 * i + 1] = ink.mask[3 * i + 2] = pMask[x + i];
        BlendBytes(ink, pPixels + 3 * x, 3 * nPixels);
    }
}

#if FOTARIUM_HAS_AVX2

// BlendBytes for 16 bytes, whose mask lies in the lanes of the pattern.
FOTARIUM_AVX2_PART void BlendSixteen(__m128i mask, __m128i pattern, __m256i colour, std::uint8_t* pBytes) {
    auto* const pBlock = reinterpret_cast<__m128i*>(pBytes);
    const __m256i ink = _mm256_cvtepu8_epi16(_mm_shuffle_epi8(mask, pattern));
    const __m256i rest = _mm256_sub_epi16(_mm256_set1_epi16(255), ink);
    const __m256i bytes = _mm256_cvtepu8_epi16(_mm_loadu_si128(pBlock));
    const __m256i sum = _mm256_add_epi16(_mm256_mullo_epi16(rest, colour), _mm256_mullo_epi16(ink, bytes));
    const __m256i rounded =
        _mm256_add_epi16(_mm256_add_epi16(sum, _mm256_set1_epi16(1)), _mm256_srli_epi16(sum, 8));
    const __m256i mixed = _mm256_srli_epi16(rounded, 8);
    _mm_storeu_si128(pBlock,
                     _mm_packus_epi16(_mm256_castsi256_si128(mixed), _mm256_extracti128_si256(mixed, 1)));
}

FOTARIUM_AVX2 void BlendWide(const std::uint8_t* pMask, CColor cr, std::uint8_t* pPixels, std::size_t n) {
    constexpr std::size_t kBlock = 16;  // pixels, three registers of bytes
    alignas(16) std::uint8_t arrPattern[3 * kBlock];
    alignas(16) std::uint8_t arrColour[3 * kBlock];
    for (std::size_t i = 0; i < 3 * kBlock; ++i) {
        arrPattern[i] = static_cast<std::uint8_t>(i / 3);
        arrColour[i] = i % 3 == 0 ? cr.r : i % 3 == 1 ? cr.g : cr.b;
    }
    __m128i pattern[3];
    __m256i colour[3];
    for (std::size_t k = 0; k < 3; ++k) {
        pattern[k] = _mm_load_si128(reinterpret_cast<const __m128i*>(arrPattern + kBlock * k));
        colour[k] =
            _mm256_cvtepu8_epi16(_mm_load_si128(reinterpret_cast<const __m128i*>(arrColour + kBlock * k)));
    }
    std::size_t x = 0;
    for (; x + kBlock <= n; x += kBlock) {
        const __m128i mask = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pMask + x));
        // The room between letters stays as it is.
        if (_mm_movemask_epi8(_mm_cmpeq_epi8(mask, _mm_set1_epi8(-1))) == 0xFFFF) continue;
        for (std::size_t k = 0; k < 3; ++k)
            BlendSixteen(mask, pattern[k], colour[k], pPixels + 3 * x + kBlock * k);
    }
    BlendPlain(pMask + x, cr, pPixels + 3 * x, n - x);
}

#else

constexpr auto BlendWide = BlendPlain;

#endif

}  // namespace

void BlendRow(const std::uint8_t* pMask, CColor cr, std::uint8_t* pPixels, std::size_t n) {
    (UseAvx2() ? BlendWide : BlendPlain)(pMask, cr, pPixels, n);
}
