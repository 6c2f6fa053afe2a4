#include <algorithm>
#include <bit>

#include "engines/effects/ByteMap.h"
#include "engines/effects/Effects.h"
#include "engines/effects/GreyCounts.h"
#include "image/CpuChoice.h"

#if FOTARIUM_HAS_AVX2
#include <immintrin.h>
#endif

namespace {

// The split moves up by this much, so it can stand at 255 - 41 at most.
constexpr std::uint32_t kLift = 40;
constexpr std::uint32_t kMaxSplit = 214;

// The histogram of every second pixel, in all of which 32-bit values wrap around.
struct CGreySums {
    CGreySums(CConstPixelView src, std::uint32_t nHalfWidth) {
        const auto nHeight = static_cast<std::uint32_t>(src.nHeight);
        const std::size_t nPixels = static_cast<std::size_t>(src.nWidth) * nHeight;
        CGreyCounter counter;
        counter.Add(src.pBits, (nPixels + 1) / 2);
        counts = counter.Counts();
        for (std::uint32_t k = 1; k < counts.size(); ++k) {
            sums[k] = k * counts[k] + sums[k - 1];
            counts[k] += counts[k - 1];
        }
        for (std::size_t k = 0; k < counts.size(); ++k) {
            counts[k] /= nHeight;
            sums[k] /= nHeight;
        }
        sums.back() /= nHalfWidth;
    }

    // Both running totals from 0 up, divided by the height; behind the last of the sums stands the mean.
    CGreyCounts counts{};
    CGreyCounts sums{};
};

// The first level at which the running total of the running totals reaches the limit. The double sum is
// meant: the map's identity part hangs on it.
std::uint32_t DarkPoint(const CGreySums& greys, std::uint32_t nLimit) {
    std::uint32_t nTotal = 0;
    for (std::uint32_t k = 0; k < greys.counts.size(); ++k) {
        nTotal += greys.counts[k];
        if (nTotal >= nLimit) return k;
    }
    return 0;
}

// Otsu's threshold: the level that parts the greys into the two classes furthest from each other. Leaves out
// levels below which nearly all greys lie. The squares wrap around in wide pictures.
std::uint32_t SplitPoint(const CGreySums& greys, std::uint32_t nHalfWidth) {
    std::uint32_t nBest = 0;
    std::int32_t nBestValue = 0;
    for (std::uint32_t k = 0; k < greys.counts.size() - 1; ++k) {
        const std::uint32_t nCount = greys.counts[k];
        if (nCount == 0 || nCount >= nHalfWidth * 7 / 8) continue;
        const std::uint32_t n = greys.sums.back() * nCount - greys.sums[k];
        const std::uint32_t nBelow = nCount * (nHalfWidth - nCount);
        if (nBelow == 0) continue;
        const auto nValue = static_cast<std::int32_t>(n * n / nBelow);
        if (nValue <= nBestValue) continue;
        nBestValue = nValue;
        nBest = k;
    }
    return nBest;
}

// Nothing changes up to nLow; from there to the split the levels are stretched and bent upwards until the
// split comes out kLift higher; the rest is squeezed into what is left.
struct CLiftMap {
    CLiftMap(std::uint32_t nLowLevel, std::uint32_t nSplitLevel)
        : nLow(nLowLevel),
          nSplit(nSplitLevel),
          nSpan(nSplit + kLift - nLow),
          nSlopeBelow(nSpan * 128 / (nSplit - nLow)),
          nSlopeAbove((255 - nSplit - kLift) * 256 / (255 - nSplit)) {}

    // How far a level that is k above nLow comes out above it.
    std::uint32_t Bent(std::uint32_t k) const {
        const std::uint32_t nStretched = nSlopeBelow * k / 128;
        return nStretched + (nSpan - nStretched) * nStretched / nSpan;
    }

    std::uint8_t Level(std::uint32_t k) const {
        if (k <= nLow) return static_cast<std::uint8_t>(k);
        if (k < nSplit) return static_cast<std::uint8_t>(nLow + Bent(k - nLow));
        return static_cast<std::uint8_t>(nSplit + kLift + nSlopeAbove * (k - nSplit) / 256);
    }

    std::uint32_t nLow;
    std::uint32_t nSplit;
    std::uint32_t nSpan;
    std::uint32_t nSlopeBelow;  // for 128 levels
    std::uint32_t nSlopeAbove;  // for 256 levels
};

void LiftPlain(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t n, const CLiftMap& map) {
    std::array<std::uint8_t, 256> levels;
    for (std::uint32_t k = 0; k < levels.size(); ++k) levels[k] = map.Level(k);
    CByteMap(levels).Apply(pSrc, pDst, n);
}

#if FOTARIUM_HAS_AVX2

// The map worked out for 32 levels at once, which takes less than looking them up. A level stands in the
// upper half of 16 bits, so that the upper half of a product is the product already shifted down by 8.
class CLiftLanes {
  public:
    FOTARIUM_AVX2_PART explicit CLiftLanes(const CLiftMap& map)
        : m_low(_mm256_set1_epi8(static_cast<char>(map.nLow))),
          m_split(_mm256_set1_epi8(static_cast<char>(map.nSplit))),
          m_steps(_mm256_set1_epi8(static_cast<char>(map.nSplit - map.nLow))),
          m_lastStep(_mm256_set1_epi8(static_cast<char>(map.nSpan - map.Bent(map.nSplit - map.nLow)))),
          m_span(_mm256_set1_epi16(static_cast<short>(map.nSpan))),
          m_slopeBelow(_mm256_set1_epi16(static_cast<short>(2 * map.nSlopeBelow))),
          m_slopeAbove(_mm256_set1_epi16(static_cast<short>(map.nSlopeAbove))) {
        // Division by the span, exact for the products of two parts of it: a factor of 16 bits with its
        // highest one set, rounded up, and a shift.
        const int nShift = std::bit_width(map.nSpan - 1) - 1;
        const std::uint32_t nFactor = ((0x10000U << nShift) + map.nSpan - 1) / map.nSpan;
        m_factor = _mm256_set1_epi16(static_cast<short>(nFactor));
        m_shift = _mm_cvtsi32_si128(nShift);
    }

    // Up to the low level k itself; behind it the bent part, which stands still from the split on; there
    // what it lacks to the full lift, and the straight part.
    FOTARIUM_AVX2_PART __m256i Map(__m256i k) const {
        const __m256i zero = _mm256_setzero_si256();
        const __m256i below = _mm256_min_epu8(_mm256_subs_epu8(k, m_low), m_steps);
        const __m256i above = _mm256_subs_epu8(k, m_split);
        const __m256i sum =
            _mm256_packus_epi16(Half(_mm256_unpacklo_epi8(zero, below), _mm256_unpacklo_epi8(zero, above)),
                                Half(_mm256_unpackhi_epi8(zero, below), _mm256_unpackhi_epi8(zero, above)));
        const __m256i last = _mm256_and_si256(_mm256_cmpeq_epi8(below, m_steps), m_lastStep);
        return _mm256_add_epi8(_mm256_add_epi8(sum, last), _mm256_min_epu8(k, m_low));
    }

  private:
    FOTARIUM_AVX2_PART __m256i Half(__m256i below, __m256i above) const {
        const __m256i stretched = _mm256_mulhi_epu16(below, m_slopeBelow);
        const __m256i product = _mm256_mullo_epi16(_mm256_sub_epi16(m_span, stretched), stretched);
        const __m256i bend = _mm256_srl_epi16(_mm256_mulhi_epu16(product, m_factor), m_shift);
        const __m256i straight = _mm256_mulhi_epu16(above, m_slopeAbove);
        return _mm256_add_epi16(_mm256_add_epi16(stretched, bend), straight);
    }

    __m256i m_low;
    __m256i m_split;
    __m256i m_steps;
    __m256i m_lastStep;
    __m256i m_span;
    __m256i m_slopeBelow;
    __m256i m_slopeAbove;
    __m256i m_factor;
    __m128i m_shift;
};

FOTARIUM_AVX2 void LiftWide(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t n,
                            const CLiftMap& map) {
    // How far ahead, in bytes, memory is asked for: the work on a vector is about as long as its way.
    constexpr std::size_t kAhead = 4096;
    constexpr std::size_t kLanes = 32;
    const CLiftLanes lanes(map);
    std::size_t i = 0;
    for (; i + kLanes <= n; i += kLanes) {
        __builtin_prefetch(pSrc + i + kAhead);
        __builtin_prefetch(pDst + i + kAhead, 1);
        const __m256i k = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(pSrc + i));
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(pDst + i), lanes.Map(k));
    }
    for (; i < n; ++i) pDst[i] = map.Level(pSrc[i]);
}

#endif

void Lift(const CEffectCall& call, const CLiftMap& map) {
    const std::size_t nBytes = call.src.Stride() * static_cast<std::size_t>(call.src.nHeight);
#if FOTARIUM_HAS_AVX2
    if (UseAvx2()) return LiftWide(call.src.pBits, call.dst.pBits, nBytes, map);
#endif
    LiftPlain(call.src.pBits, call.dst.pBits, nBytes, map);
}

}  // namespace

// Lifts the dark side of the picture: the split between dark and light comes from the histogram, and every
// byte of all three channels goes through one map. Least width 2.
void Backlight(const CEffectCall& call) {
    if (call.src.nWidth < 2) return CopyPicture(call);
    const auto nWidth = static_cast<std::uint32_t>(call.src.nWidth);
    const auto nHeight = static_cast<std::uint32_t>(call.src.nHeight);
    const CGreySums greys(call.src, nWidth / 2);
    const std::uint32_t nSplit = std::clamp(SplitPoint(greys, nWidth / 2), 1U, kMaxSplit);
    const std::uint32_t nLow = DarkPoint(greys, nWidth * nHeight / 1024) / 2;
    Lift(call, CLiftMap(nLow < nSplit ? nLow : 0, nSplit));
}
