#pragma once

#include "engines/effects/ColourBlocks.h"

#if FOTARIUM_HAS_AVX2

// R, G, B and Y, U, V in blocks. U, V, R and B have whole-number forms, found by search: with x the first
// product, adding x * factor / 65536 gives 256 times the formula closely enough that the fraction is cut at
// the same place for every difference there is. Y and G do not: where the exact sum is a whole number, single
// precision decides which side it falls on, so they are summed as the formula says.
namespace colour_blocks {

FOTARIUM_AVX2_PART __m256i LumaQuarter(const CBlock& rgb, std::size_t nQuarter) {
    const __m256 r = _mm256_mul_ps(ToFloat(rgb.a, nQuarter), _mm256_set1_ps(0.299F));
    const __m256 g = _mm256_mul_ps(ToFloat(rgb.b, nQuarter), _mm256_set1_ps(0.587F));
    const __m256 b = _mm256_mul_ps(ToFloat(rgb.c, nQuarter), _mm256_set1_ps(0.114F));
    return _mm256_cvttps_epi32(_mm256_add_ps(_mm256_add_ps(r, g), b));
}

FOTARIUM_AVX2_PART __m256i Luma(const CBlock& rgb) {
    return Narrow(LumaQuarter(rgb, 0), LumaQuarter(rgb, 1), LumaQuarter(rgb, 2), LumaQuarter(rgb, 3));
}

// From pairs (channel, Y) in the bytes to chroma - 128 in words. nBias corrects a cut that falls short.
FOTARIUM_AVX2_PART __m256i ChromaWords(__m256i pairs, short nFactor, short nBias) {
    const __m256i x =
        _mm256_maddubs_epi16(pairs, _mm256_set1_epi16(static_cast<short>(0x817F)));  // 127, -127
    __m256i sum = _mm256_adds_epi16(x, _mm256_mulhi_epi16(x, _mm256_set1_epi16(nFactor)));
    if (nBias != 0) sum = _mm256_adds_epi16(sum, _mm256_set1_epi16(nBias));
    return _mm256_srai_epi16(sum, 8);
}

FOTARIUM_AVX2_PART __m256i Chroma(__m256i channel, __m256i y, short nFactor, short nBias) {
    const __m256i low = ChromaWords(_mm256_unpacklo_epi8(channel, y), nFactor, nBias);
    const __m256i high = ChromaWords(_mm256_unpackhi_epi8(channel, y), nFactor, nBias);
    return _mm256_xor_si256(_mm256_packs_epi16(low, high), _mm256_set1_epi8(-128));
}

FOTARIUM_AVX2_PART CBlock WithChroma(const CBlock& rgb, __m256i y) {
    return {y, Chroma(rgb.c, y, 9102, 1), Chroma(rgb.a, y, 28650, 0)};
}

FOTARIUM_AVX2_PART CBlock ToYuv(const CBlock& rgb) {
    return WithChroma(rgb, Luma(rgb));
}

// 0.403 v and 0.770 u of words, cut downwards: what R and B have over Y + v and Y + u.
FOTARIUM_AVX2_PART __m256i RedRest(__m256i v) {
    return _mm256_mulhi_epi16(v, _mm256_set1_epi16(26411));
}

FOTARIUM_AVX2_PART __m256i BlueRest(__m256i u) {
    // The factor alone is too coarse at u = 100 and u = -100, where the product is a whole number.
    const __m256i x = _mm256_mulhi_epi16(_mm256_slli_epi16(u, 8), _mm256_set1_epi16(25231));
    return _mm256_srai_epi16(_mm256_add_epi16(x, _mm256_set1_epi16(1)), 7);
}

FOTARIUM_AVX2_PART __m256i GreenQuarter(__m256i y, __m256 u, __m256 v, std::size_t nQuarter) {
    const __m256 fU = _mm256_mul_ps(u, _mm256_set1_ps(0.344F));
    const __m256 fV = _mm256_mul_ps(v, _mm256_set1_ps(0.714F));
    return _mm256_cvttps_epi32(_mm256_sub_ps(_mm256_sub_ps(ToFloat(y, nQuarter), fU), fV));
}

FOTARIUM_AVX2_PART __m256i GreenQuarter(const CBlock& yuv, std::size_t nQuarter) {
    const __m256 middle = _mm256_set1_ps(128.0F);
    return GreenQuarter(yuv.a, _mm256_sub_ps(ToFloat(yuv.b, nQuarter), middle),
                        _mm256_sub_ps(ToFloat(yuv.c, nQuarter), middle), nQuarter);
}

FOTARIUM_AVX2_PART CBlock FromYuv(const CBlock& yuv) {
    const __m256i zero = _mm256_setzero_si256();
    const __m256i middle = _mm256_set1_epi16(128);
    const __m256i yLow = _mm256_unpacklo_epi8(yuv.a, zero);
    const __m256i yHigh = _mm256_unpackhi_epi8(yuv.a, zero);
    const __m256i uLow = _mm256_sub_epi16(_mm256_unpacklo_epi8(yuv.b, zero), middle);
    const __m256i uHigh = _mm256_sub_epi16(_mm256_unpackhi_epi8(yuv.b, zero), middle);
    const __m256i vLow = _mm256_sub_epi16(_mm256_unpacklo_epi8(yuv.c, zero), middle);
    const __m256i vHigh = _mm256_sub_epi16(_mm256_unpackhi_epi8(yuv.c, zero), middle);
    const __m256i rLow = _mm256_add_epi16(_mm256_add_epi16(yLow, vLow), RedRest(vLow));
    const __m256i rHigh = _mm256_add_epi16(_mm256_add_epi16(yHigh, vHigh), RedRest(vHigh));
    const __m256i bLow = _mm256_add_epi16(_mm256_add_epi16(yLow, uLow), BlueRest(uLow));
    const __m256i bHigh = _mm256_add_epi16(_mm256_add_epi16(yHigh, uHigh), BlueRest(uHigh));
    const __m256i g =
        Narrow(GreenQuarter(yuv, 0), GreenQuarter(yuv, 1), GreenQuarter(yuv, 2), GreenQuarter(yuv, 3));
    return {_mm256_packus_epi16(rLow, rHigh), g, _mm256_packus_epi16(bLow, bHigh)};
}

}  // namespace colour_blocks

#endif
