#pragma once

#include "engines/effects/ColourBlocks.h"
#include "engines/effects/HueRamp.h"

#if FOTARIUM_HAS_AVX2

// R, G, B and H, S, L in blocks.
namespace colour_blocks {

// (nMul x + d / 2) / d for the bytes x and d of a quarter, the fraction cut; 0 where d is 0. Single precision
// holds the numerator, and a quotient that is no whole number lies further from one than it can err.
FOTARIUM_AVX2_PART __m256i RoundedQuotient(__m256i x, __m256i d, int nMul, std::size_t nQuarter) {
    const __m256i nDivisor = Widen(d, nQuarter);
    const __m256i nNumerator = _mm256_add_epi32(
        _mm256_madd_epi16(Widen(x, nQuarter), _mm256_set1_epi32(nMul)), _mm256_srli_epi32(nDivisor, 1));
    return _mm256_cvttps_epi32(_mm256_div_ps(_mm256_cvtepi32_ps(nNumerator), _mm256_cvtepi32_ps(nDivisor)));
}

FOTARIUM_AVX2_PART __m256i RoundedQuotients(__m256i x, __m256i d, int nMul) {
    return Narrow(RoundedQuotient(x, d, nMul, 0), RoundedQuotient(x, d, nMul, 1),
                  RoundedQuotient(x, d, nMul, 2), RoundedQuotient(x, d, nMul, 3));
}

FOTARIUM_AVX2_PART __m256i Select(__m256i mask, __m256i yes, __m256i no) {
    return _mm256_xor_si256(no, _mm256_and_si256(mask, _mm256_xor_si256(yes, no)));
}

// How far a channel is below the largest, in 42nds of the span: 0 for the largest, 42 for the smallest.
FOTARIUM_AVX2_PART __m256i HueDistance(__m256i channel, __m256i min, __m256i isMax, __m256i middle) {
    const __m256i ifMin = _mm256_and_si256(_mm256_cmpeq_epi8(channel, min), _mm256_set1_epi8(42));
    return _mm256_andnot_si256(isMax, _mm256_max_epu8(middle, ifMin));
}

FOTARIUM_AVX2_PART CBlock ToHsl(const CBlock& rgb) {
    const __m256i maxRG = _mm256_max_epu8(rgb.a, rgb.b);
    const __m256i minRG = _mm256_min_epu8(rgb.a, rgb.b);
    const __m256i max = _mm256_max_epu8(maxRG, rgb.c);
    const __m256i min = _mm256_min_epu8(minRG, rgb.c);
    const __m256i middle = _mm256_max_epu8(minRG, _mm256_min_epu8(maxRG, rgb.c));
    const __m256i span = _mm256_sub_epi8(max, min);
    const __m256i all = _mm256_set1_epi8(-1);

    // (255 sum + 255) / 510 is half of the sum, rounded up.
    const __m256i l = _mm256_avg_epu8(max, min);
    // What the span is held against: the sum of both, or of what both lack of 255. Either fits into a byte.
    const __m256i reach =
        _mm256_blendv_epi8(_mm256_add_epi8(max, min),
                           _mm256_add_epi8(_mm256_xor_si256(max, all), _mm256_xor_si256(min, all)), l);
    const __m256i s = RoundedQuotients(span, reach, 255);

    // Only the channel in the middle needs a division.
    const __m256i distance = RoundedQuotients(_mm256_sub_epi8(max, middle), span, 42);
    const __m256i isR = _mm256_cmpeq_epi8(rgb.a, max);
    const __m256i isG = _mm256_cmpeq_epi8(rgb.b, max);
    const __m256i dR = HueDistance(rgb.a, min, isR, distance);
    const __m256i dG = HueDistance(rgb.b, min, isG, distance);
    const __m256i dB = HueDistance(rgb.c, min, _mm256_cmpeq_epi8(rgb.c, max), distance);
    const __m256i hR = _mm256_sub_epi8(dB, dG);
    const __m256i hG = _mm256_add_epi8(_mm256_sub_epi8(dR, dB), _mm256_set1_epi8(85));
    const __m256i hB = _mm256_add_epi8(_mm256_sub_epi8(dG, dR), _mm256_set1_epi8(static_cast<char>(170)));
    const __m256i h = Select(isR, hR, Select(isG, hG, hB));
    // A grey has come out with hue 0.
    const __m256i grey =
        _mm256_and_si256(_mm256_cmpeq_epi8(max, min), _mm256_set1_epi8(static_cast<char>(170)));
    return {_mm256_or_si256(h, grey), s, l};
}

// x / fDivisor, correctly rounded: the product with the reciprocal and one correction. Proved by trial for
// the values that occur.
FOTARIUM_AVX2_PART __m256 Quotient(__m256 x, float fDivisor) {
    const __m256 reciprocal = _mm256_set1_ps(1.0F / fDivisor);
    const __m256 guess = _mm256_mul_ps(x, reciprocal);
    return _mm256_fmadd_ps(_mm256_fnmadd_ps(guess, _mm256_set1_ps(fDivisor), x), reciprocal, guess);
}

// The three values that the channels of a hue take: at the top, at the bottom and on the ramp.
FOTARIUM_AVX2_PART CBlock RampQuarter(const CBlock& hsl, std::size_t nQuarter) {
    const __m256 t = _mm256_i32gather_ps(kHueRamp.data(), Widen(hsl.a, nQuarter), 4);
    const __m256 s = Quotient(ToFloat(hsl.b, nQuarter), 255.0F);
    const __m256 l = Quotient(ToFloat(hsl.c, nQuarter), 255.0F);
    const __m256 dark = _mm256_mul_ps(l, _mm256_add_ps(_mm256_set1_ps(1.0F), s));
    const __m256 light = _mm256_sub_ps(_mm256_add_ps(l, s), _mm256_mul_ps(l, s));
    // The formula takes the one up to l = 0.5, the other above: that is the smaller one.
    const __m256 q = _mm256_min_ps(dark, light);
    // Twice l is exact, so fusing changes nothing.
    const __m256 p = _mm256_fmsub_ps(_mm256_set1_ps(2.0F), l, q);
    const __m256 x = _mm256_add_ps(p, Quotient(_mm256_mul_ps(_mm256_sub_ps(q, p), t), 60.0F));
    const __m256 scale = _mm256_set1_ps(255.0F);
    return {_mm256_cvttps_epi32(_mm256_mul_ps(scale, q)), _mm256_cvttps_epi32(_mm256_mul_ps(scale, p)),
            _mm256_cvttps_epi32(_mm256_mul_ps(scale, x))};
}

FOTARIUM_AVX2_PART __m256i IsAtLeast(__m256i bytes, int n) {
    return _mm256_cmpeq_epi8(_mm256_max_epu8(bytes, _mm256_set1_epi8(static_cast<char>(n))), bytes);
}

// change, for the hues from the one mask's bound to the other's.
FOTARIUM_AVX2_PART __m256i Step(__m256i from, __m256i to, __m256i change) {
    return _mm256_and_si256(_mm256_xor_si256(from, to), change);
}

FOTARIUM_AVX2_PART CBlock FromHsl(const CBlock& hsl) {
    const CBlock n0 = RampQuarter(hsl, 0);
    const CBlock n1 = RampQuarter(hsl, 1);
    const CBlock n2 = RampQuarter(hsl, 2);
    const CBlock n3 = RampQuarter(hsl, 3);
    const __m256i top = Narrow(n0.a, n1.a, n2.a, n3.a);
    const __m256i bottom = Narrow(n0.b, n1.b, n2.b, n3.b);
    const __m256i ramp = Narrow(n0.c, n1.c, n2.c, n3.c);

    // Which channel takes which value changes at these hues. Each step turns one value into its neighbour.
    const __m256i redFalls = IsAtLeast(hsl.a, kHueRedFalls);
    const __m256i blueRises = IsAtLeast(hsl.a, kHueBlueRises);
    const __m256i greenFalls = IsAtLeast(hsl.a, kHueGreenFalls);
    const __m256i redRises = IsAtLeast(hsl.a, kHueRedRises);
    const __m256i blueFalls = IsAtLeast(hsl.a, kHueBlueFalls);
    const __m256i topRamp = _mm256_xor_si256(top, ramp);
    const __m256i rampBottom = _mm256_xor_si256(ramp, bottom);
    const __m256i none = _mm256_setzero_si256();
    const __m256i r = _mm256_xor_si256(
        top, _mm256_xor_si256(Step(redFalls, blueFalls, topRamp), Step(blueRises, redRises, rampBottom)));
    const __m256i g = _mm256_xor_si256(
        ramp, _mm256_xor_si256(Step(redFalls, greenFalls, topRamp), Step(redRises, none, rampBottom)));
    const __m256i b = _mm256_xor_si256(
        bottom, _mm256_xor_si256(Step(blueRises, none, rampBottom), Step(greenFalls, blueFalls, topRamp)));
    return {r, g, b};
}

}  // namespace colour_blocks

#endif
