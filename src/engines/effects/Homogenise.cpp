#include <array>

#include "engines/effects/ByteMap.h"
#include "engines/effects/ColourBlocks.h"
#include "engines/effects/ToneChunks.h"
#include "image/CpuChoice.h"
#include "image/Equalize.h"

namespace {

void GreysPlain(const std::uint8_t* pRgb, std::uint8_t* __restrict pGrey, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) pGrey[i] = EqualGrey(pRgb[3 * i], pRgb[3 * i + 1], pRgb[3 * i + 2]);
}

#if FOTARIUM_HAS_AVX2

using namespace colour_blocks;

// Four pixels of each lane, as a pair of words for red and green and a word for blue.
constexpr CLaneMask kRedGreen = {0, 0x80, 1, 0x80, 3, 0x80, 4, 0x80, 6, 0x80, 7, 0x80, 9, 0x80, 10, 0x80};
constexpr CLaneMask kBlue = {2, 0x80, 0x80, 0x80, 5,  0x80, 0x80, 0x80,
                             8, 0x80, 0x80, 0x80, 11, 0x80, 0x80, 0x80};

// The greys of four pixels at pLow and four at pHigh; reads sixteen bytes at both.
FOTARIUM_AVX2_PART __m256i EightGreys(const std::uint8_t* pLow, const std::uint8_t* pHigh) {
    const __m256i pixels = LoadLanes(pLow, pHigh);
    const __m256i redGreen = _mm256_madd_epi16(_mm256_shuffle_epi8(pixels, BothLanes(kRedGreen)),
                                               _mm256_set1_epi32(601 << 16 | 306));
    const __m256i blue =
        _mm256_madd_epi16(_mm256_shuffle_epi8(pixels, BothLanes(kBlue)), _mm256_set1_epi32(117));
    return _mm256_srli_epi32(_mm256_add_epi32(redGreen, blue), 10);
}

FOTARIUM_AVX2 void GreysWide(const std::uint8_t* pRgb, std::uint8_t* __restrict pGrey, std::size_t n) {
    std::size_t i = 0;
    // Two pixels further than a block, for what is read behind the last of its quarters.
    for (; i + kBlock + 2 <= n; i += kBlock) {
        const std::uint8_t* const p = pRgb + 3 * i;
        Store(pGrey + i, Narrow(EightGreys(p, p + 48), EightGreys(p + 12, p + 60), EightGreys(p + 24, p + 72),
                                EightGreys(p + 36, p + 84)));
    }
    GreysPlain(pRgb + 3 * i, pGrey + i, n - i);
}

#else

void GreysWide(const std::uint8_t* pRgb, std::uint8_t* __restrict pGrey, std::size_t n) {
    GreysPlain(pRgb, pGrey, n);
}

#endif

std::array<std::uint64_t, 256> CountGreys(const CEffectCall& call) {
    // Equal greys often follow each other; in tables that take turns their counts do not wait for one
    // another.
    constexpr std::size_t kTables = 8;
    std::array<std::array<std::uint32_t, 256>, kTables> tables{};
    const auto greys = UseAvx2() ? GreysWide : GreysPlain;
    alignas(64) std::array<std::uint8_t, kChunkPixels> arrGrey{};
    ForEachChunk(call, [&](std::size_t nFirst, std::size_t n) {
        greys(call.src.pBits + 3 * nFirst, arrGrey.data(), n);
        std::size_t i = 0;
        for (; i + kTables <= n; i += kTables)
            for (std::size_t k = 0; k < kTables; ++k) ++tables[k][arrGrey[i + k]];
        for (; i < n; ++i) ++tables[0][arrGrey[i]];
    });
    std::array<std::uint64_t, 256> counts{};
    for (const auto& table : tables)
        for (std::size_t i = 0; i < counts.size(); ++i) counts[i] += table[i];
    return counts;
}

}  // namespace

// The luminances are spread over the whole range, as CxImage::HistogramEqualize does it.
void Homogenise(const CEffectCall& call) {
    const std::optional<CEqualLevels> levels = EqualLevels(CountGreys(call));
    if (!levels) return CopyPicture(call);
    const CByteMap map(*levels);
    CChunk yuv;
    ForEachChunk(call, [&](std::size_t i, std::size_t n) {
        RgbToYuv(call.src.pBits + 3 * i, yuv.a, yuv.b, yuv.c, n);
        map.Apply(yuv.a, yuv.a, n);
        YuvToRgb(yuv.a, yuv.b, yuv.c, call.dst.pBits + 3 * i, n);
    });
}
