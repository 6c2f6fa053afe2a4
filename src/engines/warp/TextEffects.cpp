#include "engines/warp/TextEffects.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

#include "image/CpuChoice.h"

namespace {

// The lamp stands at (128, 128, 90); the normal of a pixel is its two slopes and this height.
constexpr int kLightXY = 128;
constexpr int kLightZ = 90;
constexpr int kNormalZ = 1530;

// In the middle of three rows, from x = 1 to n - 2. A flat place needs no case of its own: light and normal
// then give 90 exactly, the lamp's height.
FOTARIUM_INLINE void ShadeRowBody(const std::uint8_t* __restrict pAbove, const std::uint8_t* __restrict pHere,
                                  const std::uint8_t* __restrict pBelow, std::uint8_t* __restrict pOut,
                                  int n) {
    for (int x = 1; x < n - 1; ++x) {
        const int a = pAbove[x - 1], b = pAbove[x], c = pAbove[x + 1];
        const int f = pBelow[x - 1], g = pBelow[x], h = pBelow[x + 1];
        const int dx = a + pHere[x - 1] + f - c - pHere[x + 1] - h;
        const int dy = f + g + h - a - b - c;
        const int nDot = std::max(kLightXY * dx + kLightXY * dy + kLightZ * kNormalZ, 0);
        const double fLength = std::sqrt(static_cast<double>(dx * dx + dy * dy + kNormalZ * kNormalZ));
        const int nShade = static_cast<int>(nDot / fLength);
        const bool bEmpty = nShade == kLightZ && pHere[x] == kNoInk;
        pOut[x] = bEmpty ? kNoInk : static_cast<std::uint8_t>(nShade);
    }
}

void ShadeRowPlain(const std::uint8_t* pAbove, const std::uint8_t* pHere, const std::uint8_t* pBelow,
                   std::uint8_t* pOut, int n) {
    ShadeRowBody(pAbove, pHere, pBelow, pOut, n);
}

FOTARIUM_AVX2 void ShadeRowWide(const std::uint8_t* pAbove, const std::uint8_t* pHere,
                                const std::uint8_t* pBelow, std::uint8_t* pOut, int n) {
    ShadeRowBody(pAbove, pHere, pBelow, pOut, n);
}

// A pixel of the text is one darker than this.
constexpr std::uint8_t kInkBelow = 31;
// How near to the edge of the mask the two passes do not go.
constexpr int kOutlineRim = 2;

// Five rows round the one in the middle, which is p[2]; all pixels are 0 or 1. The result is 1 where the
// diamond of radius 2 holds a 1.
void SwellRow(const std::uint8_t* const (&p)[5], std::uint8_t* __restrict pOut, int n) {
    for (int x = kOutlineRim; x < n - kOutlineRim; ++x)
        pOut[x] = static_cast<std::uint8_t>(p[0][x] | p[1][x - 1] | p[1][x] | p[1][x + 1] | p[2][x - 2] |
                                            p[2][x - 1] | p[2][x] | p[2][x + 1] | p[2][x + 2] | p[3][x - 1] |
                                            p[3][x] | p[3][x + 1] | p[4][x]);
}

// Ink where the 3 by 3 pixels round the one in the middle are neither all 0 nor all 1.
void EdgeRow(const std::uint8_t* pAbove, const std::uint8_t* pHere, const std::uint8_t* pBelow,
             std::uint8_t* __restrict pOut, int n) {
    for (int x = kOutlineRim; x < n - kOutlineRim; ++x) {
        const int nSet = pAbove[x - 1] + pAbove[x] + pAbove[x + 1] + pHere[x - 1] + pHere[x] + pHere[x + 1] +
                         pBelow[x - 1] + pBelow[x] + pBelow[x + 1];
        pOut[x] = nSet % 9 == 0 ? kNoInk : std::uint8_t{0};
    }
}

}  // namespace

void ShadeText(CConstGreyView src, CGreyView dst) {
    std::memset(dst.pBits, kNoInk, dst.Size());
    const auto shadeRow = UseAvx2() ? ShadeRowWide : ShadeRowPlain;
    for (int y = 1; y < src.nHeight - 1; ++y)
        shadeRow(src.Row(y - 1), src.Row(y), src.Row(y + 1), dst.Row(y), src.nWidth);
}

void OutlineText(CConstGreyView src, CGreyView dst) {
    std::memset(dst.pBits, kNoInk, dst.Size());
    std::vector<std::uint8_t> arrInk(src.Size());
    std::ranges::transform(src.pBits, src.pBits + src.Size(), arrInk.begin(),
                           [](std::uint8_t n) { return static_cast<std::uint8_t>(n < kInkBelow); });
    std::vector<std::uint8_t> arrSwollen(src.Size());
    const CConstGreyView ink{arrInk.data(), src.nWidth, src.nHeight};
    const CGreyView swollen{arrSwollen.data(), src.nWidth, src.nHeight};
    for (int y = kOutlineRim; y < src.nHeight - kOutlineRim; ++y)
        SwellRow({ink.Row(y - 2), ink.Row(y - 1), ink.Row(y), ink.Row(y + 1), ink.Row(y + 2)}, swollen.Row(y),
                 src.nWidth);
    for (int y = kOutlineRim; y < src.nHeight - kOutlineRim; ++y)
        EdgeRow(swollen.Row(y - 1), swollen.Row(y), swollen.Row(y + 1), dst.Row(y), src.nWidth);
}

void ReverseText(CConstGreyView src, CGreyView dst) {
    std::ranges::transform(src.pBits, src.pBits + src.Size(), dst.pBits,
                           [](std::uint8_t n) { return static_cast<std::uint8_t>(255 - n); });
}
