#include <algorithm>
#include <cstring>

#include "engines/effects/ColourRows.h"
#include "engines/effects/Effects.h"
#include "engines/effects/RowRing.h"
#include "image/CpuChoice.h"

namespace {

// The reach of the edge search, to the right and down.
constexpr int kReach = 3;

FOTARIUM_INLINE std::uint8_t Distance(std::uint8_t a, std::uint8_t b) {
    return static_cast<std::uint8_t>((a > b ? a : b) - (a > b ? b : a));
}

FOTARIUM_INLINE void EdgesBody(const std::uint8_t* pHere, const std::uint8_t* pBelow,
                               std::uint8_t* __restrict pOut, std::size_t n) {
    for (std::size_t x = 0; x < n; ++x) {
        const std::uint8_t p = pHere[x];
        const std::uint8_t s = pHere[x + kReach];
        const std::uint8_t q = pBelow[x];
        const std::uint8_t t = pBelow[x + kReach];
        const int nEdge = Distance(p, q) | Distance(p, t) | Distance(s, q) | Distance(p, s);
        pOut[x] = static_cast<std::uint8_t>(~nEdge);
    }
}

void EdgesPlain(const std::uint8_t* pHere, const std::uint8_t* pBelow, std::uint8_t* pOut, std::size_t n) {
    EdgesBody(pHere, pBelow, pOut, n);
}

FOTARIUM_AVX2 void EdgesWide(const std::uint8_t* pHere, const std::uint8_t* pBelow, std::uint8_t* pOut,
                             std::size_t n) {
    EdgesBody(pHere, pBelow, pOut, n);
}

}  // namespace

// A pencil drawing: white less the differences of luminance over three pixels to the right and down, put
// together by a bitwise or. The last three rows and columns are white. Least size 4 by 4.
void Sketch(const CEffectCall& call) {
    const int w = call.src.nWidth;
    const int h = call.src.nHeight;
    if (w <= kReach || h <= kReach) return CopyPicture(call);
    const auto edges = UseAvx2() ? EdgesWide : EdgesPlain;
    const auto nPixels = static_cast<std::size_t>(w);
    CRowRing luma(kReach + 1, w);
    CRowRing out(1, w);
    std::uint8_t* const pOut = out.Row(0);
    std::memset(pOut, 255, nPixels);
    for (int y = 0; y < h; ++y) {
        RgbToY(call.src.Row(y), luma.Row(y), nPixels);
        const int yOut = y - kReach;
        if (yOut < 0) continue;
        edges(luma.Row(yOut), luma.Row(y), pOut, nPixels - kReach);
        JoinRgb(pOut, pOut, pOut, call.dst.Row(yOut), nPixels);
    }
    std::memset(call.dst.Row(h - kReach), 255, kReach * call.dst.Stride());
}
