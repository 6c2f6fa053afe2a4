#include <cstdlib>
#include <vector>

#include "engines/effects/ToneChunks.h"

namespace {

// No sum of a byte and less than this many is anything but limited, so levels stop here.
constexpr long long kBeyond = 100000;

int Limit(long long n) {
    return static_cast<int>(std::clamp(n, -kBeyond, kBeyond));
}

// Luminance stays, every pixel takes the same tint.
void Tint(const CEffectCall& call, std::uint8_t u, std::uint8_t v) {
    CChunk luma;
    ForEachChunk(call, [&](std::size_t i, std::size_t n) {
        RgbToY(call.src.pBits + 3 * i, luma.a, n);
        YuvToRgb(luma.a, u, v, call.dst.pBits + 3 * i, n);
    });
}

long long SumOfDistances(const std::uint8_t* p, int nFrom, std::size_t n) {
    long long nSum = 0;
    for (std::size_t i = 0; i < n; i += kChunkPixels) {
        int nChunk = 0;
        const std::size_t nEnd = std::min(i + kChunkPixels, n);
        for (std::size_t k = i; k < nEnd; ++k) nChunk += std::abs(p[k] - nFrom);
        nSum += nChunk;
    }
    return nSum;
}

}  // namespace

// Luminance rises by twice the level, colour stays.
void Brightness(const CEffectCall& call) {
    if (call.nLevel == 0) return CopyPicture(call);
    CChunk yuv;
    ForEachChunk(call, [&](std::size_t i, std::size_t n) {
        RgbToYuv(call.src.pBits + 3 * i, yuv.a, yuv.b, yuv.c, n);
        AddLimited(yuv.a, Limit(2LL * call.nLevel), n);
        YuvToRgb(yuv.a, yuv.b, yuv.c, call.dst.pBits + 3 * i, n);
    });
}

void BlackWhite(const CEffectCall& call) {
    // Without chroma all three channels are the luminance.
    CChunk luma;
    ForEachChunk(call, [&](std::size_t i, std::size_t n) {
        RgbToY(call.src.pBits + 3 * i, luma.a, n);
        JoinRgb(luma.a, luma.a, luma.a, call.dst.pBits + 3 * i, n);
    });
}

// The brown of an old print.
void OldPhoto(const CEffectCall& call) {
    Tint(call, 113, 143);
}

// A warm tint that grows with the level. Chroma is capped at 255 only; below 0 it wraps as a byte does.
void Nostalgia(const CEffectCall& call) {
    if (call.nLevel == 0) return CopyPicture(call);
    Tint(call, static_cast<std::uint8_t>(std::min(call.nLevel + 116LL, 255LL)),
         static_cast<std::uint8_t>(std::min(call.nLevel + 136LL, 255LL)));
}

// A pale, slightly blue veil: the flatter the picture, the more it is lifted.
void Haze1(const CEffectCall& call) {
    if (call.nLevel == 0) return CopyPicture(call);
    // The luminances wait in the last third of the result: when a chunk is written there, they are done with.
    const std::size_t nPixels = PixelCount(call);
    std::uint8_t* const pLuma = call.dst.pBits + 2 * nPixels;
    ForEachChunk(call, [&](std::size_t i, std::size_t n) { RgbToY(call.src.pBits + 3 * i, pLuma + i, n); });
    const auto nCount = static_cast<long long>(nPixels);
    const auto nMean = static_cast<int>(SumOfDistances(pLuma, 0, nPixels) / nCount);
    const long long nSpread = SumOfDistances(pLuma, nMean, nPixels) / nCount;
    const long long nLift = std::abs(255 - nSpread);

    CChunk yuv;
    ForEachChunk(call, [&](std::size_t i, std::size_t n) {
        std::copy_n(pLuma + i, n, yuv.a);
        RgbToUv(call.src.pBits + 3 * i, yuv.a, yuv.b, yuv.c, n);
        AddLimited(yuv.a, Limit(call.nLevel + nLift - 170), n);
        AddLimited(yuv.b, Limit(call.nLevel + 5LL), n);
        AddLimited(yuv.c, Limit(-1LL * call.nLevel), n);
        YuvToRgb(yuv.a, yuv.b, yuv.c, call.dst.pBits + 3 * i, n);
    });
}
