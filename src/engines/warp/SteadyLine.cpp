#include "engines/warp/SteadyLine.h"

#include <cstring>

#include "engines/warp/FourBytes.h"

namespace {

constexpr float kLeastPlace = 1.0F / 65536;

FOTARIUM_INLINE bool IsSteadyBody(const float* __restrict pPlace, std::size_t n) {
    int nBad = 0;
    for (std::size_t x = 1; x < n; ++x) {
        const float f = pPlace[x];
        nBad |= static_cast<int>(!(f >= pPlace[x - 1])) | static_cast<int>(f < kLeastPlace && f != 0.0F);
    }
    return nBad == 0;
}

// For each place the source pixel that a target pixel which ends there has come to: one that it covers to
// its end counts, and the next has then not been begun.
FOTARIUM_INLINE void FirstPixelsBody(const float* __restrict pPlace, int* __restrict pFirst, std::size_t n) {
    for (std::size_t x = 0; x < n; ++x) {
        const int nWhole = static_cast<int>(pPlace[x]);
        const int nPixel = static_cast<float>(nWhole) < pPlace[x] ? nWhole : nWhole - 1;
        pFirst[x] = nPixel < 0 ? 0 : nPixel;
    }
}

// The mean of the source from one place to another; uFirst and uLast are the pixels that they lie in.
FOTARIUM_INLINE std::uint8_t MeanOf(const std::uint8_t* pIn, double fFrom, double fTo, int uFirst,
                                    int uLast) {
    const double fSize = fTo - fFrom;
    const double fLeft = uFirst + 1 - fFrom;
    double fSum = pIn[uFirst] * fLeft + pIn[uFirst + 1] * (1 - fLeft);
    if (uFirst == uLast) {
        fSum *= fSize;
    } else {
        fSum *= fLeft;
        for (int u = uFirst + 1; u < uLast; ++u) fSum += pIn[u];
        fSum += pIn[uLast] * (fTo - uLast);
    }
    return fSize == 0 ? std::uint8_t{0} : static_cast<std::uint8_t>(static_cast<int>(fSum / fSize));
}

FOTARIUM_INLINE void MeansBody(const float* pPlace, const int* pFirst, const std::uint8_t* pIn,
                               std::uint8_t* pOut, std::size_t nBegin, std::size_t nEnd) {
    for (std::size_t x = nBegin; x < nEnd; ++x)
        pOut[x] = MeanOf(pIn, pPlace[x], pPlace[x + 1], pFirst[x], pFirst[x + 1]);
}

bool IsSteadyPlain(const float* pPlace, std::size_t n) {
    return IsSteadyBody(pPlace, n);
}

void ResamplePlain(const float* pPlace, int* pFirst, const std::uint8_t* pIn, std::uint8_t* pOut,
                   std::size_t n) {
    FirstPixelsBody(pPlace, pFirst, n);
    MeansBody(pPlace, pFirst, pIn, pOut, 0, n - 1);
}

FOTARIUM_AVX2 bool IsSteadyWide(const float* pPlace, std::size_t n) {
    return IsSteadyBody(pPlace, n);
}

#if FOTARIUM_HAS_AVX2

// The most source pixels that a target pixel may end in front of and still be one of four: four bytes of the
// source are read for each.
constexpr int kMostSteps = 3;

// MeanOf for four target pixels that end at most kMostSteps pixels from where they begin.
FOTARIUM_AVX2_PART __m128i FourMeans(const std::uint8_t* pIn, __m128 from, __m128 to, __m128i first,
                                     __m128i last) {
    const __m128i low = _mm_set1_epi32(255);
    const __m128i steps = _mm_sub_epi32(last, first);
    const __m128i bytes = FourBytesAt(pIn, first);
    const __m256d b0 = _mm256_cvtepi32_pd(_mm_and_si128(bytes, low));
    const __m256d b1 = _mm256_cvtepi32_pd(_mm_and_si128(_mm_srli_epi32(bytes, 8), low));
    const __m256d bLast =
        _mm256_cvtepi32_pd(_mm_and_si128(_mm_srlv_epi32(bytes, _mm_slli_epi32(steps, 3)), low));
    const __m256d placeFrom = _mm256_cvtps_pd(from);
    const __m256d placeTo = _mm256_cvtps_pd(to);
    const __m256d one = _mm256_set1_pd(1.0);
    const __m256d size = _mm256_sub_pd(placeTo, placeFrom);
    const __m256d left = _mm256_sub_pd(_mm256_add_pd(_mm256_cvtepi32_pd(first), one), placeFrom);
    const __m256d inside = _mm256_castsi256_pd(_mm256_cvtepi32_epi64(_mm_cmpeq_epi32(first, last)));
    __m256d sum = _mm256_add_pd(_mm256_mul_pd(b0, left), _mm256_mul_pd(b1, _mm256_sub_pd(one, left)));
    sum = _mm256_mul_pd(sum, _mm256_blendv_pd(left, size, inside));
    const __m128i two = _mm_cmpgt_epi32(steps, _mm_set1_epi32(1));
    if (_mm_movemask_epi8(two) != 0) {
        const __m256d b2 = _mm256_cvtepi32_pd(_mm_and_si128(_mm_srli_epi32(bytes, 16), low));
        const __m128i three = _mm_cmpgt_epi32(steps, _mm_set1_epi32(2));
        sum = _mm256_add_pd(sum, _mm256_and_pd(b1, _mm256_castsi256_pd(_mm256_cvtepi32_epi64(two))));
        sum = _mm256_add_pd(sum, _mm256_and_pd(b2, _mm256_castsi256_pd(_mm256_cvtepi32_epi64(three))));
    }
    const __m256d end = _mm256_mul_pd(bLast, _mm256_sub_pd(placeTo, _mm256_cvtepi32_pd(last)));
    sum = _mm256_add_pd(sum, _mm256_andnot_pd(inside, end));
    const __m256d none = _mm256_cmp_pd(size, _mm256_setzero_pd(), _CMP_EQ_OQ);
    return _mm256_cvttpd_epi32(_mm256_andnot_pd(none, _mm256_div_pd(sum, size)));
}

FOTARIUM_AVX2 void ResampleWide(const float* pPlace, int* pFirst, const std::uint8_t* pIn, std::uint8_t* pOut,
                                std::size_t n) {
    FirstPixelsBody(pPlace, pFirst, n);
    std::size_t x = 0;
    for (; x + 4 < n; x += 4) {
        const __m128i first = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pFirst + x));
        const __m128i last = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pFirst + x + 1));
        const __m128i far = _mm_cmpgt_epi32(_mm_sub_epi32(last, first), _mm_set1_epi32(kMostSteps));
        if (_mm_movemask_epi8(far) != 0) {
            MeansBody(pPlace, pFirst, pIn, pOut, x, x + 4);
            continue;
        }
        const __m128i means =
            FourMeans(pIn, _mm_loadu_ps(pPlace + x), _mm_loadu_ps(pPlace + x + 1), first, last);
        const __m128i packed = _mm_shuffle_epi8(means, _mm_set1_epi32(0x0C080400));
        const int nFour = _mm_cvtsi128_si32(packed);
        std::memcpy(pOut + x, &nFour, sizeof nFour);
    }
    MeansBody(pPlace, pFirst, pIn, pOut, x, n - 1);
}

#else

constexpr auto ResampleWide = ResamplePlain;

#endif

}  // namespace

bool IsSteady(const float* pPlace, std::size_t n) {
    // What does not descend lies between its ends.
    return n <= kLongestSteady && pPlace[0] == 0.0F && pPlace[n - 1] <= static_cast<float>(n) &&
           (UseAvx2() ? IsSteadyWide : IsSteadyPlain)(pPlace, n);
}

void ResampleSteady(const float* pPlace, int* pFirst, const std::uint8_t* pIn, std::uint8_t* pOut,
                    std::size_t n) {
    (UseAvx2() ? ResampleWide : ResamplePlain)(pPlace, pFirst, pIn, pOut, n);
}
