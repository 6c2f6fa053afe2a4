#include "engines/warp/ResampleLine.h"

#include <algorithm>
#include <cstring>

#include "engines/warp/GreyView.h"
#include "engines/warp/SteadyLine.h"
#include "image/CpuChoice.h"

#if FOTARIUM_HAS_AVX2
#include <immintrin.h>
#endif

namespace {

// The low byte of a number without its fraction. From 2^63 on a double is a multiple of 256 anyway; the
// infinite and what is no number count as 0.
std::uint8_t LowByte(double f) {
    constexpr double kBeyond = 9223372036854775808.0;
    return f > -kBeyond && f < kBeyond ? static_cast<std::uint8_t>(static_cast<std::int64_t>(f))
                                       : std::uint8_t{0};
}

// Entries of the table of pixels that are written at once, and so may be written behind its end.
constexpr std::size_t kStored = 8;

// How many target pixels lie before the end of each source pixel or on it. An end that is no number lies
// behind them all.
FOTARIUM_INLINE void CountPixelsBody(const float* __restrict pMap, int* __restrict pCount, int n) {
    const auto fLast = static_cast<float>(n - 1);
    for (int u = 0; u < n; ++u) {
        const float fEnd = pMap[u + 1] < 0.0F ? -1.0F : pMap[u + 1];
        pCount[u] = static_cast<int>(fEnd < fLast ? fEnd : fLast) + 1;
    }
}

// For each target pixel the first source pixel that ends on it or behind it. The end of the last source pixel
// is the line's own, so there is always one.
FOTARIUM_INLINE void FindPixelsBody(const int* __restrict pCount, int* __restrict pPixel, int n) {
    int nFilled = 0;
    for (int u = 0; u < n; ++u) {
        const int nCount = pCount[u];
        int* const pNext = pPixel + nFilled;
        for (std::size_t i = 0; i < kStored; ++i) pNext[i] = u;
        for (int i = kStored; i < nCount - nFilled; ++i) pNext[i] = u;
        nFilled = std::max(nFilled, nCount);
    }
}

// The places of target pixels: a source pixel and the share of it that lies before.
FOTARIUM_INLINE void FindPlacesBody(const float* __restrict pMap, const int* __restrict pPixel,
                                    float* __restrict pPlace, int nFirst, int nEnd) {
    for (int x = nFirst; x < nEnd; ++x) {
        const int u = pPixel[x];
        const double fFrom = pMap[u];
        const double d = pMap[u + 1] - fFrom;
        const double fShare = (x - fFrom) / d;
        pPlace[x] = static_cast<float>(u + (d == 0 ? 0.0 : fShare));
    }
}

// pCount is room for n numbers.
void InvertMapPlain(const float* pMap, int* pCount, int* pPixel, float* pPlace, int n) {
    CountPixelsBody(pMap, pCount, n);
    FindPixelsBody(pCount, pPixel, n);
    FindPlacesBody(pMap, pPixel, pPlace, 0, n);
}

#if FOTARIUM_HAS_AVX2

// Both ends of a source pixel: two neighbours of the map at once.
FOTARIUM_AVX2_PART __m128 TwoOf(const float* pMap, int u, int v) {
    const __m128i low = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(pMap + u));
    const __m128i high = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(pMap + v));
    return _mm_castsi128_ps(_mm_unpacklo_epi64(low, high));
}

FOTARIUM_AVX2 void InvertMapWide(const float* pMap, int* pCount, int* pPixel, float* pPlace, int n) {
    CountPixelsBody(pMap, pCount, n);
    FindPixelsBody(pCount, pPixel, n);
    const __m256d four = _mm256_set1_pd(4.0);
    __m256d place = _mm256_setr_pd(0.0, 1.0, 2.0, 3.0);
    int x = 0;
    for (; x + 4 <= n; x += 4, place = _mm256_add_pd(place, four)) {
        const int* const p = pPixel + x;
        const __m128 first = TwoOf(pMap, p[0], p[1]);
        const __m128 second = TwoOf(pMap, p[2], p[3]);
        const __m256d from = _mm256_cvtps_pd(_mm_shuffle_ps(first, second, 0x88));
        const __m256d d = _mm256_sub_pd(_mm256_cvtps_pd(_mm_shuffle_ps(first, second, 0xDD)), from);
        const __m256d share = _mm256_div_pd(_mm256_sub_pd(place, from), d);
        const __m256d none = _mm256_cmp_pd(d, _mm256_setzero_pd(), _CMP_EQ_OQ);
        const __m256d pixel = _mm256_cvtepi32_pd(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)));
        const __m256d sum = _mm256_add_pd(pixel, _mm256_andnot_pd(none, share));
        _mm_storeu_ps(pPlace + x, _mm256_cvtpd_ps(sum));
    }
    FindPlacesBody(pMap, pPixel, pPlace, x, n);
}

#else

constexpr auto InvertMapWide = InvertMapPlain;

#endif

}  // namespace

CLineResampler::CLineResampler(std::size_t nLongest)
    : m_arrPlace(nLongest),
      m_arrCount(nLongest),
      m_arrPixel(nLongest + kStored),
      m_arrSource(nLongest + kSourcePad) {}

void CLineResampler::Run(std::span<float> map, std::uint8_t* pOut) {
    const std::size_t n = map.size() - 1;
    map[n] = static_cast<float>(n);
    pOut[n - 1] = kNoInk;
    if (n < 2) return;
    m_arrSource[n] = kNoInk;
    float* const pPlace = m_arrPlace.data();
    (UseAvx2() ? InvertMapWide : InvertMapPlain)(map.data(), m_arrCount.data(), m_arrPixel.data(), pPlace,
                                                 static_cast<int>(n));
    // The first target pixel covers all from the source's beginning to the second one's place.
    pPlace[0] = 0;
    if (IsSteady(pPlace, n)) {
        ResampleSteady(pPlace, m_arrPixel.data(), m_arrSource.data(), pOut, n);
    } else {
        Walk(n, pOut);
    }
}

// Source and target pixels one after the other, whatever the table. Folds make segments of less than nothing.
void CLineResampler::Walk(std::size_t n, std::uint8_t* pOut) const {
    std::memset(pOut, kNoInk, n);
    const float* const pPlace = m_arrPlace.data();
    const std::uint8_t* const pIn = m_arrSource.data();
    const std::size_t nTooFar = 16 * n + 4096;
    double fInSegment = 1.0;  // what is left of the source pixel
    double fSize = pPlace[1];
    double fOutSegment = fSize;  // what the target pixel still lacks
    double fSum = 0;
    double fHere = pIn[0];
    double fNext = pIn[1];
    std::size_t u = 0;
    for (std::size_t x = 0; x < n - 1;) {
        const double fIntensity = fHere * fInSegment + fNext * (1 - fInSegment);
        if (fInSegment >= fOutSegment) {
            fSum += fIntensity * fOutSegment;
            pOut[x] = fSize == 0 ? std::uint8_t{0} : LowByte(fSum / fSize);
            fSum = 0;
            fInSegment -= fOutSegment;
            ++x;
            // Behind the last pixel but one this is of no use, yet inside the table.
            fSize = static_cast<double>(pPlace[std::min(x + 1, n - 1)]) - pPlace[x];
            fOutSegment = fSize;
        } else {
            fSum += fIntensity * fInSegment;
            fOutSegment -= fInSegment;
            fInSegment = 1.0;
            if (++u > nTooFar) return;
            fHere = fNext;
            fNext = u + 1 < n ? pIn[u + 1] : kNoInk;
        }
    }
}
