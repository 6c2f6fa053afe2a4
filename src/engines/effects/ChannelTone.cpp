#include <algorithm>
#include <array>

#include "engines/effects/ToneChunks.h"
#include "image/CpuChoice.h"

namespace {

// Bytes after which three channels and the widest vector meet again.
constexpr std::size_t kPeriod = 96;
using CPeriod = std::array<std::uint8_t, kPeriod>;

CPeriod MakePeriod(std::uint8_t r, std::uint8_t g, std::uint8_t b) {
    CPeriod period;
    for (std::size_t i = 0; i < kPeriod; i += 3) {
        period[i] = r;
        period[i + 1] = g;
        period[i + 2] = b;
    }
    return period;
}

// A step of a level that is not negative; all that matters of it fits into a byte.
std::uint8_t ToStep(long long n) {
    return static_cast<std::uint8_t>(std::min(n, 255LL));
}

std::uint8_t NotBelow0(long long n) {
    return static_cast<std::uint8_t>(std::max(n, 0LL));
}

std::uint8_t AtMost255(long long n) {
    return static_cast<std::uint8_t>(std::min(n, 255LL));
}

FOTARIUM_INLINE void InvertBody(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) pDst[i] = static_cast<std::uint8_t>(255 - pSrc[i]);
}

void InvertPlain(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t n) {
    InvertBody(pSrc, pDst, n);
}

FOTARIUM_AVX2 void InvertWide(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t n) {
    InvertBody(pSrc, pDst, n);
}

// Both loops below take a byte down by one step, not below 0, and then up by another, not above 255.
struct CSteps {
    CPeriod down;
    CPeriod up;
};

FOTARIUM_INLINE std::uint8_t DownAndUp(std::uint8_t n, std::uint8_t nDown, std::uint8_t nUp) {
    const auto nLow = static_cast<std::uint8_t>(std::max(n, nDown) - nDown);
    return static_cast<std::uint8_t>(std::min(nLow, static_cast<std::uint8_t>(255 - nUp)) + nUp);
}

FOTARIUM_INLINE void ShiftRun(const std::uint8_t* __restrict pSrc, std::uint8_t* __restrict pDst,
                              const CSteps& steps, std::size_t n) {
    for (std::size_t k = 0; k < n; ++k) pDst[k] = DownAndUp(pSrc[k], steps.down[k], steps.up[k]);
}

// Bytes, not pixels: n is a multiple of 3.
FOTARIUM_INLINE void ShiftBody(const std::uint8_t* pSrc, std::uint8_t* pDst, const CSteps& steps,
                               std::size_t n) {
    std::size_t i = 0;
    for (; i + kPeriod <= n; i += kPeriod) ShiftRun(pSrc + i, pDst + i, steps, kPeriod);
    ShiftRun(pSrc + i, pDst + i, steps, n - i);
}

void ShiftPlain(const std::uint8_t* pSrc, std::uint8_t* pDst, const CSteps& steps, std::size_t n) {
    ShiftBody(pSrc, pDst, steps, n);
}

FOTARIUM_AVX2 void ShiftWide(const std::uint8_t* pSrc, std::uint8_t* pDst, const CSteps& steps,
                             std::size_t n) {
    ShiftBody(pSrc, pDst, steps, n);
}

// What Moonlight needs besides: where red and green stand, and what is added to a tenth of red.
struct CMoon {
    CSteps steps;
    CPeriod isR = MakePeriod(255, 0, 0);
    CPeriod isG = MakePeriod(0, 255, 0);
    CPeriod red;
};

FOTARIUM_INLINE void MoonRun(const std::uint8_t* __restrict pSrc, std::uint8_t* __restrict pDst,
                             const CMoon& moon, std::size_t n) {
    for (std::size_t k = 0; k < n; ++k) {
        // Green comes from the byte behind it, which is the pixel's blue.
        const auto nFrom = static_cast<std::uint8_t>(pSrc[k] ^ (moon.isG[k] & (pSrc[k] ^ pSrc[k + 1])));
        const std::uint8_t nShifted = DownAndUp(nFrom, moon.steps.down[k], moon.steps.up[k]);
        const auto nTenth = static_cast<std::uint8_t>(static_cast<std::uint16_t>(nFrom * 205) >> 11);
        const auto nRed = static_cast<std::uint8_t>(nTenth + moon.red[k]);
        pDst[k] = static_cast<std::uint8_t>(nShifted ^ (moon.isR[k] & (nShifted ^ nRed)));
    }
}

// Reads one byte behind the last.
FOTARIUM_INLINE void MoonBody(const std::uint8_t* pSrc, std::uint8_t* pDst, const CMoon& moon,
                              std::size_t n) {
    std::size_t i = 0;
    for (; i + kPeriod <= n; i += kPeriod) MoonRun(pSrc + i, pDst + i, moon, kPeriod);
    MoonRun(pSrc + i, pDst + i, moon, n - i);
}

void MoonPlain(const std::uint8_t* pSrc, std::uint8_t* pDst, const CMoon& moon, std::size_t n) {
    MoonBody(pSrc, pDst, moon, n);
}

FOTARIUM_AVX2 void MoonWide(const std::uint8_t* pSrc, std::uint8_t* pDst, const CMoon& moon, std::size_t n) {
    MoonBody(pSrc, pDst, moon, n);
}

// What becomes of the channels for each value that they are made from.
struct CChannelMaps {
    std::array<std::uint8_t, 256> r;
    std::array<std::uint8_t, 256> g;
    std::array<std::uint8_t, 256> b;
};

// nGreen is the place in the pixel that green is made from. For levels that no slider gives: there a channel
// leaves its bounds at the end where the effect does not limit it, and wraps as a byte does.
void MapChannels(const CEffectCall& call, const CChannelMaps& maps, std::size_t nGreen) {
    const std::size_t nBytes = 3 * PixelCount(call);
    const std::uint8_t* const pSrc = call.src.pBits;
    for (std::size_t i = 0; i < nBytes; i += 3) {
        call.dst.pBits[i] = maps.r[pSrc[i]];
        call.dst.pBits[i + 1] = maps.g[pSrc[i + nGreen]];
        call.dst.pBits[i + 2] = maps.b[pSrc[i + 2]];
    }
}

}  // namespace

// src and dst may be the same memory.
void Negative(const CEffectCall& call) {
    (UseAvx2() ? InvertWide : InvertPlain)(call.src.pBits, call.dst.pBits, 3 * PixelCount(call));
}

// Less red and green, more blue.
void Cool(const CEffectCall& call) {
    const long long nLevel = call.nLevel;
    if (nLevel == 0) return CopyPicture(call);
    if (nLevel < 0) {
        CChannelMaps maps;
        for (std::size_t i = 0; i < 256; ++i) {
            const auto n = static_cast<long long>(i);
            maps.r[i] = NotBelow0(n - (nLevel + 50));
            maps.g[i] = NotBelow0(n - nLevel);
            maps.b[i] = AtMost255(n + nLevel + 10);
        }
        return MapChannels(call, maps, 1);
    }
    const CSteps steps = {MakePeriod(ToStep(nLevel + 50), ToStep(nLevel), 0),
                          MakePeriod(0, 0, ToStep(nLevel + 10))};
    (UseAvx2() ? ShiftWide : ShiftPlain)(call.src.pBits, call.dst.pBits, steps, 3 * PixelCount(call));
}

// A night by moonlight: hardly any red, and green made from blue, not from the old green.
void Moonlight(const CEffectCall& call) {
    const long long nLevel = call.nLevel;
    if (nLevel == 0) return CopyPicture(call);
    if (nLevel < 0) {
        CChannelMaps maps;
        for (std::size_t i = 0; i < 256; ++i) {
            const auto n = static_cast<long long>(i);
            const long long nGreen = std::max(n - nLevel, 0LL);
            maps.r[i] =
                NotBelow0(static_cast<long long>(static_cast<double>(n) * 0.1 + static_cast<double>(nLevel)));
            maps.g[i] = NotBelow0(nGreen);
            maps.b[i] = AtMost255(nGreen + nLevel);
        }
        return MapChannels(call, maps, 2);
    }
    const std::uint8_t nStep = ToStep(nLevel);
    CMoon moon;
    moon.steps = {MakePeriod(0, nStep, nStep), MakePeriod(0, 0, nStep)};
    // The sum is kept in a byte and wraps there.
    moon.red = MakePeriod(static_cast<std::uint8_t>(nLevel), 0, 0);
    (UseAvx2() ? MoonWide : MoonPlain)(call.src.pBits, call.dst.pBits, moon, 3 * PixelCount(call));
}
