#include <array>

#include "effects/ByteMap.h"
#include "effects/CpuChoice.h"
#include "effects/ToneChunks.h"
#include "image/Equalize.h"

namespace {

FOTARIUM_INLINE void GreysBody(const CChunk& rgb, std::uint8_t* __restrict pGrey) {
    for (std::size_t i = 0; i < kChunkPixels; ++i) pGrey[i] = EqualGrey(rgb.a[i], rgb.b[i], rgb.c[i]);
}

void GreysPlain(const CChunk& rgb, std::uint8_t* pGrey) {
    GreysBody(rgb, pGrey);
}

FOTARIUM_AVX2 void GreysWide(const CChunk& rgb, std::uint8_t* pGrey) {
    GreysBody(rgb, pGrey);
}

std::array<std::uint64_t, 256> CountGreys(const CEffectCall& call) {
    // Equal greys often follow each other; in tables that take turns their counts do not wait for one
    // another.
    constexpr std::size_t kTables = 4;
    std::array<std::array<std::uint32_t, 256>, kTables> tables{};
    const auto greys = UseAvx2() ? GreysWide : GreysPlain;
    CChunk rgb{};
    alignas(64) std::array<std::uint8_t, kChunkPixels> arrGrey{};
    ForEachChunk(call, [&](std::size_t nFirst, std::size_t n) {
        SplitRgb(call.src.pBits + 3 * nFirst, rgb.a, rgb.b, rgb.c, n);
        greys(rgb, arrGrey.data());
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
