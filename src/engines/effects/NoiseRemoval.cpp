#include <algorithm>
#include <array>
#include <cstring>

#include "engines/effects/ColourRows.h"
#include "engines/effects/Effects.h"
#include "engines/effects/RowRing.h"
#include "image/CpuChoice.h"

namespace {

constexpr int kWindow = 5;
// A picture below this has no window; one row and column less than would have room are worked on.
constexpr int kLeastSide = 6;

// The five rows of one channel under a row of windows; [x] is the leftmost column of window x.
using CRows = std::array<const std::uint8_t*, kWindow>;

FOTARIUM_INLINE void Order(std::uint8_t& a, std::uint8_t& b) {
    const std::uint8_t nLow = a < b ? a : b;
    b = a < b ? b : a;
    a = nLow;
}

FOTARIUM_INLINE std::uint8_t Between(std::uint8_t n, std::uint8_t nLow, std::uint8_t nHigh) {
    const std::uint8_t nUp = n > nLow ? n : nLow;
    return nUp < nHigh ? nUp : nHigh;
}

FOTARIUM_INLINE std::uint8_t Mean(std::uint8_t a, std::uint8_t b) {
    return static_cast<std::uint8_t>((a & b) + ((a ^ b) >> 1));
}

// Medians of an even list in which the centre stands twice: with the others sorted, the two middle elements
// are the centre held between the others on either side of the middle.

// The centre twice and its four diagonal neighbours.
FOTARIUM_INLINE void RedBody(const CRows& rows, std::uint8_t* __restrict pOut, std::size_t n) {
    const std::uint8_t* const pAbove = rows[1];
    const std::uint8_t* const pCentre = rows[2];
    const std::uint8_t* const pBelow = rows[3];
    for (std::size_t x = 0; x < n; ++x) {
        std::uint8_t a = pAbove[x + 1];
        std::uint8_t b = pAbove[x + 3];
        std::uint8_t c = pBelow[x + 1];
        std::uint8_t d = pBelow[x + 3];
        Order(a, b);
        Order(c, d);
        Order(a, c);
        Order(b, d);
        Order(b, c);
        const std::uint8_t nCentre = pCentre[x + 2];
        pOut[x] = Mean(Between(nCentre, a, c), Between(nCentre, b, d));
    }
}

// The same with the corners of the window, eight others. Of their order only the middle four count, and of
// those only what holds the centre: so some exchanges of the network are halves, and one of its first four
// can go, which all inputs of 0 and 1 show.
FOTARIUM_INLINE void GreenBody(const CRows& rows, std::uint8_t* __restrict pOut, std::size_t n) {
    const std::uint8_t* const p0 = rows[0];
    const std::uint8_t* const p1 = rows[1];
    const std::uint8_t* const p2 = rows[2];
    const std::uint8_t* const p3 = rows[3];
    const std::uint8_t* const p4 = rows[4];
    for (std::size_t x = 0; x < n; ++x) {
        std::uint8_t a = p0[x];
        std::uint8_t b = p0[x + 4];
        std::uint8_t c = p1[x + 1];
        std::uint8_t d = p1[x + 3];
        std::uint8_t e = p3[x + 1];
        std::uint8_t f = p3[x + 3];
        std::uint8_t g = p4[x];
        std::uint8_t h = p4[x + 4];
        Order(b, d);
        Order(e, g);
        Order(f, h);
        Order(a, e);
        Order(b, f);
        Order(c, g);
        Order(d, h);
        Order(a, b);
        Order(c, d);
        Order(e, f);
        Order(g, h);
        Order(c, e);
        Order(d, f);
        Order(b, e);
        Order(d, g);
        Order(b, c);
        Order(d, e);
        Order(f, g);
        const std::uint8_t nCentre = p2[x + 2];
        pOut[x] = Mean(Between(nCentre, c, e), Between(nCentre, d, f));
    }
}

// The mean of the same ten. 6554 / 65536 is a tenth for every sum of ten bytes.
FOTARIUM_INLINE void BlueBody(const CRows& rows, std::uint8_t* __restrict pOut, std::size_t n) {
    const std::uint8_t* const p0 = rows[0];
    const std::uint8_t* const p1 = rows[1];
    const std::uint8_t* const p2 = rows[2];
    const std::uint8_t* const p3 = rows[3];
    const std::uint8_t* const p4 = rows[4];
    for (std::size_t x = 0; x < n; ++x) {
        const auto nSum =
            static_cast<std::uint16_t>(p0[x] + p0[x + 4] + p1[x + 1] + p1[x + 3] + 2 * p2[x + 2] + p3[x + 1] +
                                       p3[x + 3] + p4[x] + p4[x + 4]);
        pOut[x] = static_cast<std::uint8_t>(nSum * 6554U >> 16);
    }
}

using CChannels = std::array<CRows, 3>;
using COutputs = std::array<std::uint8_t*, 3>;

FOTARIUM_INLINE void CleanBody(const CChannels& channels, const COutputs& outputs, std::size_t n) {
    RedBody(channels[0], outputs[0], n);
    GreenBody(channels[1], outputs[1], n);
    BlueBody(channels[2], outputs[2], n);
}

void CleanPlain(const CChannels& channels, const COutputs& outputs, std::size_t n) {
    CleanBody(channels, outputs, n);
}

FOTARIUM_AVX2 void CleanWide(const CChannels& channels, const COutputs& outputs, std::size_t n) {
    CleanBody(channels, outputs, n);
}

}  // namespace

// Takes single grains away, each channel by its own rule over a cross of diagonals in a 5 by 5 window: red by
// the median of the inner cells, green by that of the inner and outer ones, blue by their mean. The two
// outermost rows and columns at the top and left and the three at the bottom and right stay. Least size 6
// by 6.
void NoiseRemoval(const CEffectCall& call) {
    const int w = call.src.nWidth;
    const int h = call.src.nHeight;
    if (w < kLeastSide || h < kLeastSide) return CopyPicture(call);
    const auto clean = UseAvx2() ? CleanWide : CleanPlain;
    const std::size_t nStride = call.src.Stride();
    const auto nColumns = static_cast<std::size_t>(w) - kLeastSide + 1;
    std::array<CRowRing, 3> rings{CRowRing(kWindow, w), CRowRing(kWindow, w), CRowRing(kWindow, w)};
    CRowRing out(3, w);
    const COutputs outputs{out.Row(0), out.Row(1), out.Row(2)};

    std::memcpy(call.dst.pBits, call.src.pBits, 2 * nStride);
    for (int y = 0; y <= h - 2; ++y) {
        SplitRgb(call.src.Row(y), rings[0].Row(y), rings[1].Row(y), rings[2].Row(y),
                 static_cast<std::size_t>(w));
        const int yTop = y - kWindow + 1;
        if (yTop < 0) continue;
        CChannels channels;
        for (std::size_t c = 0; c < channels.size(); ++c) {
            for (int k = 0; k < kWindow; ++k)
                channels[c][static_cast<std::size_t>(k)] = rings[c].Row(yTop + k);
        }
        clean(channels, outputs, nColumns);
        const std::uint8_t* const pSrc = call.src.Row(yTop + 2);
        std::uint8_t* const pDst = call.dst.Row(yTop + 2);
        std::memcpy(pDst, pSrc, 6);
        JoinRgb(outputs[0], outputs[1], outputs[2], pDst + 6, nColumns);
        std::memcpy(pDst + nStride - 9, pSrc + nStride - 9, 9);
    }
    std::memcpy(call.dst.Row(h - 3), call.src.Row(h - 3), 3 * nStride);
}
