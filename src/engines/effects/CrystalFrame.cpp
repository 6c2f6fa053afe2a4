// Crystal Frame: a bevelled frame of rings, one pixel wide each, that darken and lighten the picture below
// them like polished glass.

#include <algorithm>

#include "engines/effects/Effects.h"
#include "engines/effects/FrameTables.h"
#include "engines/effects/Rgb565.h"
#include "image/CpuChoice.h"

namespace {

// The channels stay colours of 16 bits, so a ring that runs over an earlier one starts from such.
FOTARIUM_INLINE std::uint8_t Shift(std::uint8_t n, int nOffset, std::uint8_t nMask) {
    return static_cast<std::uint8_t>(std::clamp(n + nOffset, 0, 255) & nMask);
}

FOTARIUM_INLINE void ShiftPixel(std::uint8_t* p, int nOffset) {
    p[0] = Shift(p[0], nOffset, kMask565.r);
    p[1] = Shift(p[1], nOffset, kMask565.g);
    p[2] = Shift(p[2], nOffset, kMask565.b);
}

// Changes row y of h rows of w pixels by all rings that touch it, from the outermost inwards. In a picture
// smaller than the frame a pixel can belong to several rings, or twice to one; each changes it. What a ring
// would have outside the picture is left out.
FOTARIUM_INLINE void ShiftRow(std::uint8_t* pRow, int w, int y, int h, std::span<const std::int16_t> rings) {
    const auto Pixel = [pRow](int x) { return pRow + 3 * static_cast<std::ptrdiff_t>(x); };
    for (int r = 0; r < static_cast<int>(rings.size()); ++r) {
        const int nOffset = rings[static_cast<std::size_t>(r)];
        const int nAcross = (y == r ? 1 : 0) + (y == h - 1 - r ? 1 : 0);
        for (int i = 0; i < nAcross; ++i)
            for (int x = r; x < w - r; ++x) ShiftPixel(Pixel(x), nOffset);
        if (y <= r || y >= h - 1 - r) continue;
        if (r < w) ShiftPixel(Pixel(r), nOffset);
        if (w - 1 - r >= 0) ShiftPixel(Pixel(w - 1 - r), nOffset);
    }
}

#if FOTARIUM_HAS_AVX2
FOTARIUM_AVX2 void ShiftRowWide(std::uint8_t* pRow, int w, int y, int h,
                                std::span<const std::int16_t> rings) {
    ShiftRow(pRow, w, y, h, rings);
}
#endif

}  // namespace

void CrystalFrame(const CEffectCall& call) {
    const int w = call.src.nWidth;
    const int h = call.src.nHeight;
    const std::span<const std::int16_t> rings = CrystalRings(w);
    for (int y = 0; y < h; ++y) {
        std::uint8_t* const pRow = call.dst.Row(y);
        ReduceTo565(call.src.Row(y), pRow, static_cast<std::size_t>(w));
#if FOTARIUM_HAS_AVX2
        if (UseAvx2()) {
            ShiftRowWide(pRow, w, y, h, rings);
            continue;
        }
#endif
        ShiftRow(pRow, w, y, h, rings);
    }
}
