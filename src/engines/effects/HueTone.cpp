#include "engines/effects/Contrast.h"
#include "engines/effects/ToneChunks.h"

namespace {

// More than this many steps of saturation are limited from any start.
int LimitSteps(int nLevel) {
    return std::clamp(nLevel, -255, 255);
}

}  // namespace

// Saturation rises by the level, or falls three times as fast. Level 0 is no copy: the way through hue and
// saturation loses a little.
void Chroma(const CEffectCall& call) {
    const int nSteps = LimitSteps(call.nLevel);
    CChunk hsl;
    ForEachChunk(call, [&](std::size_t i, std::size_t n) {
        RgbToHsl(call.src.pBits + 3 * i, hsl.a, hsl.b, hsl.c, n);
        AddLimited(hsl.b, nSteps > 0 ? nSteps : 3 * nSteps, n);
        HslToRgb(hsl.a, hsl.b, hsl.c, call.dst.pBits + 3 * i, n);
    });
}

// Contrast and saturation together.
void ColourSaturation(const CEffectCall& call) {
    if (call.nLevel == 0) return CopyPicture(call);
    const int nSteps = LimitSteps(call.nLevel);
    CChunk hsl;
    ForEachChunk(call, [&](std::size_t i, std::size_t n) {
        std::uint8_t* const pTo = call.dst.pBits + 3 * i;
        SpreadBytes(call.src.pBits + 3 * i, pTo, call.nLevel, 3 * n);
        RgbToHsl(pTo, hsl.a, hsl.b, hsl.c, n);
        AddLimited(hsl.b, 3 * nSteps, n);
        HslToRgb(hsl.a, hsl.b, hsl.c, pTo, n);
    });
}
