#include "engines/effects/Contrast.h"

#include <algorithm>
#include <cstdlib>

#include "engines/effects/Effects.h"
#include "image/CpuChoice.h"

#if FOTARIUM_HAS_AVX2
#include <immintrin.h>
#endif

namespace {

// A level above this does to every byte what this one does.
constexpr int kBeyond = 16383;

// What the loop works with: the way of a byte is its distance from 128 times nFactor / 2^16, with the
// distance in the upper half of a word.
struct CSpread {
    std::uint16_t nFactor;
    bool bApart;  // away from 128
};

FOTARIUM_INLINE void SpreadBody(const std::uint8_t* __restrict pSrc, std::uint8_t* __restrict pDst,
                                CSpread spread, std::size_t n) {
    const std::uint16_t nFlip = spread.bApart ? 0 : 0xFFFF;
    for (std::size_t i = 0; i < n; ++i) {
        const auto x = static_cast<std::int16_t>(pSrc[i] - 128);
        const auto nAbove = static_cast<std::int16_t>(x >> 15);  // -1 below 128
        const auto nDistance = static_cast<std::uint16_t>((x ^ nAbove) - nAbove);
        const auto nHigh = static_cast<std::uint16_t>(nDistance << 8);
        const auto nWay = static_cast<std::int16_t>((std::uint32_t{nHigh} * spread.nFactor) >> 16);
        const auto nSign = static_cast<std::int16_t>(nAbove ^ nFlip);
        const auto nMoved = static_cast<std::int16_t>(std::min<std::int16_t>(nWay, 255));
        const auto nSum = static_cast<std::int16_t>(pSrc[i] + ((nMoved ^ nSign) - nSign));
        pDst[i] = static_cast<std::uint8_t>(std::clamp<std::int16_t>(nSum, 0, 255));
    }
}

void SpreadPlain(const std::uint8_t* pSrc, std::uint8_t* pDst, CSpread spread, std::size_t n) {
    SpreadBody(pSrc, pDst, spread, n);
}

#if FOTARIUM_HAS_AVX2

FOTARIUM_AVX2 void SpreadWide(const std::uint8_t* pSrc, std::uint8_t* pDst, CSpread spread, std::size_t n) {
    constexpr std::size_t kVector = 32;
    const __m256i zero = _mm256_setzero_si256();
    const __m256i middle = _mm256_set1_epi8(-128);
    const __m256i factor = _mm256_set1_epi16(static_cast<short>(spread.nFactor));
    // Turns around which bytes go up: their highest bit tells.
    const __m256i flip = _mm256_set1_epi8(spread.bApart ? 0 : -128);
    std::size_t i = 0;
    for (; i + kVector <= n; i += kVector) {
        const __m256i bytes = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(pSrc + i));
        const __m256i distance = _mm256_abs_epi8(_mm256_xor_si256(bytes, middle));
        const __m256i way =
            _mm256_packus_epi16(_mm256_mulhi_epu16(_mm256_unpacklo_epi8(zero, distance), factor),
                                _mm256_mulhi_epu16(_mm256_unpackhi_epi8(zero, distance), factor));
        const __m256i moved = _mm256_blendv_epi8(_mm256_subs_epu8(bytes, way), _mm256_adds_epu8(bytes, way),
                                                 _mm256_xor_si256(bytes, flip));
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(pDst + i), moved);
    }
    SpreadBody(pSrc + i, pDst + i, spread, n - i);
}

#else

void SpreadWide(const std::uint8_t* pSrc, std::uint8_t* pDst, CSpread spread, std::size_t n) {
    SpreadBody(pSrc, pDst, spread, n);
}

#endif

}  // namespace

void SpreadBytes(const std::uint8_t* pSrc, std::uint8_t* pDst, int nLevel, std::size_t n) {
    const int nAmount = std::abs(std::clamp(nLevel, -kBeyond, kBeyond));
    const CSpread spread = {static_cast<std::uint16_t>(4 * nAmount), nLevel >= 0};
    (UseAvx2() ? SpreadWide : SpreadPlain)(pSrc, pDst, spread, n);
}

void Contrast(const CEffectCall& call) {
    SpreadBytes(call.src.pBits, call.dst.pBits, call.nLevel,
                call.src.Stride() * static_cast<std::size_t>(call.src.nHeight));
}
