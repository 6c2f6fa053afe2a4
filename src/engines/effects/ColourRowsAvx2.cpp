#include <algorithm>

#include "engines/effects/ColourBlocks.h"
#include "engines/effects/ColourRowForms.h"
#include "engines/effects/HslBlocks.h"
#include "engines/effects/YuvBlocks.h"

#if FOTARIUM_HAS_AVX2

namespace {

using namespace colour_blocks;

// What becomes of a block of pixels on its way from pixels to arrays.
struct CKeep {
    static FOTARIUM_AVX2_PART CBlock Turn(const CBlock& block) { return block; }
};
struct CToYuv {
    static FOTARIUM_AVX2_PART CBlock Turn(const CBlock& block) { return ToYuv(block); }
};
struct CFromYuv {
    static FOTARIUM_AVX2_PART CBlock Turn(const CBlock& block) { return FromYuv(block); }
};
struct CToHsl {
    static FOTARIUM_AVX2_PART CBlock Turn(const CBlock& block) { return ToHsl(block); }
};
struct CFromHsl {
    static FOTARIUM_AVX2_PART CBlock Turn(const CBlock& block) { return FromHsl(block); }
};

// The last block of a run overlaps the one before it; a run shorter than a block goes through memory of a
// block's size.

template <class TTurn>
FOTARIUM_AVX2 void Split(const std::uint8_t* pRgb, std::uint8_t* pA, std::uint8_t* pB, std::uint8_t* pC,
                         std::size_t n) {
    if (n < kBlock) {
        std::uint8_t arrRgb[3 * kBlock] = {};
        std::uint8_t arrA[kBlock];
        std::uint8_t arrB[kBlock];
        std::uint8_t arrC[kBlock];
        std::copy_n(pRgb, 3 * n, arrRgb);
        Split<TTurn>(arrRgb, arrA, arrB, arrC, kBlock);
        std::copy_n(arrA, n, pA);
        std::copy_n(arrB, n, pB);
        std::copy_n(arrC, n, pC);
        return;
    }
    for (std::size_t nNext = 0; nNext < n; nNext += kBlock) {
        const std::size_t i = std::min(nNext, n - kBlock);
        const CBlock block = TTurn::Turn(LoadRgb(pRgb + 3 * i));
        Store(pA + i, block.a);
        Store(pB + i, block.b);
        Store(pC + i, block.c);
    }
}

template <class TTurn>
FOTARIUM_AVX2 void Join(const std::uint8_t* pA, const std::uint8_t* pB, const std::uint8_t* pC,
                        std::uint8_t* pRgb, std::size_t n) {
    if (n < kBlock) {
        std::uint8_t arrRgb[3 * kBlock];
        std::uint8_t arrA[kBlock] = {};
        std::uint8_t arrB[kBlock] = {};
        std::uint8_t arrC[kBlock] = {};
        std::copy_n(pA, n, arrA);
        std::copy_n(pB, n, arrB);
        std::copy_n(pC, n, arrC);
        Join<TTurn>(arrA, arrB, arrC, arrRgb, kBlock);
        std::copy_n(arrRgb, 3 * n, pRgb);
        return;
    }
    for (std::size_t nNext = 0; nNext < n; nNext += kBlock) {
        const std::size_t i = std::min(nNext, n - kBlock);
        StoreRgb(pRgb + 3 * i, TTurn::Turn({Load(pA + i), Load(pB + i), Load(pC + i)}));
    }
}

FOTARIUM_AVX2 void ToY(const std::uint8_t* pRgb, std::uint8_t* pY, std::size_t n) {
    if (n < kBlock) {
        std::uint8_t arrRgb[3 * kBlock] = {};
        std::uint8_t arrY[kBlock];
        std::copy_n(pRgb, 3 * n, arrRgb);
        ToY(arrRgb, arrY, kBlock);
        std::copy_n(arrY, n, pY);
        return;
    }
    for (std::size_t nNext = 0; nNext < n; nNext += kBlock) {
        const std::size_t i = std::min(nNext, n - kBlock);
        Store(pY + i, Luma(LoadRgb(pRgb + 3 * i)));
    }
}

FOTARIUM_AVX2 void ToUv(const std::uint8_t* pRgb, const std::uint8_t* pY, std::uint8_t* pU, std::uint8_t* pV,
                        std::size_t n) {
    if (n < kBlock) {
        std::uint8_t arrRgb[3 * kBlock] = {};
        std::uint8_t arrY[kBlock] = {};
        std::uint8_t arrU[kBlock];
        std::uint8_t arrV[kBlock];
        std::copy_n(pRgb, 3 * n, arrRgb);
        std::copy_n(pY, n, arrY);
        ToUv(arrRgb, arrY, arrU, arrV, kBlock);
        std::copy_n(arrU, n, pU);
        std::copy_n(arrV, n, pV);
        return;
    }
    for (std::size_t nNext = 0; nNext < n; nNext += kBlock) {
        const std::size_t i = std::min(nNext, n - kBlock);
        const CBlock yuv = WithChroma(LoadRgb(pRgb + 3 * i), Load(pY + i));
        Store(pU + i, yuv.b);
        Store(pV + i, yuv.c);
    }
}

// Adds the same signed word to each byte, limited.
FOTARIUM_AVX2_PART __m256i AddWord(__m256i bytes, __m256i word) {
    const __m256i zero = _mm256_setzero_si256();
    return _mm256_packus_epi16(_mm256_add_epi16(_mm256_unpacklo_epi8(bytes, zero), word),
                               _mm256_add_epi16(_mm256_unpackhi_epi8(bytes, zero), word));
}

FOTARIUM_AVX2 void Tint(const std::uint8_t* pY, std::uint8_t nU, std::uint8_t nV, std::uint8_t* pRgb,
                        std::size_t n) {
    if (n < kBlock) {
        std::uint8_t arrRgb[3 * kBlock];
        std::uint8_t arrY[kBlock] = {};
        std::copy_n(pY, n, arrY);
        Tint(arrY, nU, nV, arrRgb, kBlock);
        std::copy_n(arrRgb, 3 * n, pRgb);
        return;
    }
    const __m256i uWord = _mm256_set1_epi16(static_cast<short>(nU - 128));
    const __m256i vWord = _mm256_set1_epi16(static_cast<short>(nV - 128));
    const __m256i redAdd = _mm256_add_epi16(vWord, RedRest(vWord));
    const __m256i blueAdd = _mm256_add_epi16(uWord, BlueRest(uWord));
    const __m256 u = _mm256_set1_ps(static_cast<float>(nU - 128));
    const __m256 v = _mm256_set1_ps(static_cast<float>(nV - 128));
    for (std::size_t nNext = 0; nNext < n; nNext += kBlock) {
        const std::size_t i = std::min(nNext, n - kBlock);
        const __m256i y = Load(pY + i);
        const __m256i g = Narrow(GreenQuarter(y, u, v, 0), GreenQuarter(y, u, v, 1), GreenQuarter(y, u, v, 2),
                                 GreenQuarter(y, u, v, 3));
        StoreRgb(pRgb + 3 * i, {AddWord(y, redAdd), g, AddWord(y, blueAdd)});
    }
}

FOTARIUM_AVX2 void Add(std::uint8_t* p, int nAdd, std::size_t n) {
    const int nReal = std::clamp(nAdd, -255, 255);
    const __m256i up = _mm256_set1_epi8(static_cast<char>(std::max(nReal, 0)));
    const __m256i down = _mm256_set1_epi8(static_cast<char>(std::max(-nReal, 0)));
    std::size_t i = 0;
    for (; i + kBlock <= n; i += kBlock)
        Store(p + i, _mm256_subs_epu8(_mm256_adds_epu8(Load(p + i), up), down));
    for (; i < n; ++i) p[i] = static_cast<std::uint8_t>(std::clamp(p[i] + nReal, 0, 255));
}

}  // namespace

const CColourRowForms& Avx2ColourRows() {
    static constexpr CColourRowForms kForms = {
        Split<CKeep>, Join<CKeep>,   Split<CToYuv>,  ToY, ToUv, Join<CFromYuv>,
        Tint,         Split<CToHsl>, Join<CFromHsl>, Add};
    return kForms;
}

#else

const CColourRowForms& Avx2ColourRows() {
    return PlainColourRows();
}

#endif
