#include <algorithm>
#include <array>

#include "effects/ColourRowForms.h"
#include "effects/HueRamp.h"
#include "image/ColorSpace.h"

namespace {

// Pixels that are turned at a time. The loops over a block have no branch and a fixed count, so that the
// compiler can take several pixels at once.
constexpr std::size_t kBlock = 256;

using CBytes = std::array<std::uint8_t, kBlock>;

struct CBlock {
    CBytes a;
    CBytes b;
    CBytes c;
};

void SplitBlock(const std::uint8_t* __restrict pRgb, std::uint8_t* __restrict pA, std::uint8_t* __restrict pB,
                std::uint8_t* __restrict pC, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        pA[i] = pRgb[3 * i];
        pB[i] = pRgb[3 * i + 1];
        pC[i] = pRgb[3 * i + 2];
    }
}

void JoinBlock(const std::uint8_t* pA, const std::uint8_t* pB, const std::uint8_t* pC,
               std::uint8_t* __restrict pRgb, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        pRgb[3 * i] = pA[i];
        pRgb[3 * i + 1] = pB[i];
        pRgb[3 * i + 2] = pC[i];
    }
}

void ToYuv(CBlock& block) {
    for (std::size_t i = 0; i < kBlock; ++i) {
        const CColor yuv = ColorRGBtoYUV({block.a[i], block.b[i], block.c[i]});
        block.a[i] = yuv.r;
        block.b[i] = yuv.g;
        block.c[i] = yuv.b;
    }
}

void ToLuma(CBlock& block) {
    for (std::size_t i = 0; i < kBlock; ++i)
        block.a[i] = ColorRGBtoYUV({block.a[i], block.b[i], block.c[i]}).r;
}

void FromYuv(CBlock& block) {
    for (std::size_t i = 0; i < kBlock; ++i) {
        const CColor rgb = ColorYUVtoRGB({block.a[i], block.b[i], block.c[i]});
        block.a[i] = rgb.r;
        block.b[i] = rgb.g;
        block.c[i] = rgb.b;
    }
}

// (nMul x + d / 2) / d, the fraction cut; 0 where d is 0. Single precision holds the numerator, and a
// quotient that is no whole number lies further from one than it can err.
int RoundedQuotient(int x, int d, int nMul) {
    const int nDivisor = d == 0 ? 1 : d;
    return static_cast<int>(static_cast<float>(nMul * x + d / 2) / static_cast<float>(nDivisor));
}

// How far a channel is below the largest, in 42nds of the span. Only the channel in the middle needs the
// division.
int HueDistance(int nChannel, int nMax, int nMin, int nMiddle) {
    const int nUnlessMax = nChannel == nMin ? 42 : nMiddle;
    return nChannel == nMax ? 0 : nUnlessMax;
}

void ToHsl(CBlock& block) {
    for (std::size_t i = 0; i < kBlock; ++i) {
        const int r = block.a[i];
        const int g = block.b[i];
        const int b = block.c[i];
        const int nMax = std::max(std::max(r, g), b);
        const int nMin = std::min(std::min(r, g), b);
        const int nSum = nMax + nMin;
        const int nSpan = nMax - nMin;
        const int nReach = nSum <= 254 ? nSum : 510 - nSum;
        const int nMiddle = RoundedQuotient(nMax + nSum - r - g - b, nSpan, 42);
        const int dR = HueDistance(r, nMax, nMin, nMiddle);
        const int dG = HueDistance(g, nMax, nMin, nMiddle);
        const int dB = HueDistance(b, nMax, nMin, nMiddle);
        const int hUnlessR = g == nMax ? 85 + dR - dB : 170 + dG - dR;
        const int h = r == nMax ? dB - dG : hUnlessR;
        block.a[i] = static_cast<std::uint8_t>(nSpan == 0 ? 170 : h);
        block.b[i] = static_cast<std::uint8_t>(RoundedQuotient(nSpan, nReach, 255));
        block.c[i] = static_cast<std::uint8_t>((nSum + 1) / 2);
    }
}

// What the channels of a block are made of: the top, the bottom and the ramp between.
void HueValues(const CBlock& hsl, CBlock& values) {
    std::array<float, kBlock> arrRamp;
    for (std::size_t i = 0; i < kBlock; ++i) arrRamp[i] = kHueRamp[hsl.a[i]];
    for (std::size_t i = 0; i < kBlock; ++i) {
        const float s = static_cast<float>(hsl.b[i]) / 255.0F;
        const float l = static_cast<float>(hsl.c[i]) / 255.0F;
        // The formula takes the one up to l = 0.5, the other above: that is the smaller one.
        const float fDark = l * (1.0F + s);
        const float fLight = l + s - l * s;
        const float q = fDark < fLight ? fDark : fLight;
        const float p = 2.0F * l - q;
        const float x = p + (q - p) * arrRamp[i] / 60.0F;
        values.a[i] = static_cast<std::uint8_t>(static_cast<int>(255.0F * q));
        values.b[i] = static_cast<std::uint8_t>(static_cast<int>(255.0F * p));
        values.c[i] = static_cast<std::uint8_t>(static_cast<int>(255.0F * x));
    }
}

// change, if the hue is at least nFrom and below nTo.
int Step(int nHue, int nFrom, int nTo, int nChange) {
    return nHue >= nFrom && nHue < nTo ? nChange : 0;
}

void FromHsl(CBlock& block) {
    CBlock values;
    HueValues(block, values);
    for (std::size_t i = 0; i < kBlock; ++i) {
        const int h = block.a[i];
        const int nTop = values.a[i];
        const int nBottom = values.b[i];
        const int nRamp = values.c[i];
        const int nTopRamp = nTop ^ nRamp;
        const int nRampBottom = nRamp ^ nBottom;
        block.a[i] = static_cast<std::uint8_t>(nTop ^ Step(h, kHueRedFalls, kHueBlueFalls, nTopRamp) ^
                                               Step(h, kHueBlueRises, kHueRedRises, nRampBottom));
        block.b[i] = static_cast<std::uint8_t>(nRamp ^ Step(h, kHueRedFalls, kHueGreenFalls, nTopRamp) ^
                                               Step(h, kHueRedRises, 256, nRampBottom));
        block.c[i] = static_cast<std::uint8_t>(nBottom ^ Step(h, kHueBlueRises, 256, nRampBottom) ^
                                               Step(h, kHueGreenFalls, kHueBlueFalls, nTopRamp));
    }
}

using CTurn = void(CBlock&);

template <CTurn* pTurn>
void Split(const std::uint8_t* pRgb, std::uint8_t* pA, std::uint8_t* pB, std::uint8_t* pC, std::size_t n) {
    CBlock block{};
    for (std::size_t i = 0; i < n; i += kBlock) {
        const std::size_t nCount = std::min(kBlock, n - i);
        SplitBlock(pRgb + 3 * i, block.a.data(), block.b.data(), block.c.data(), nCount);
        pTurn(block);
        std::copy_n(block.a.data(), nCount, pA + i);
        std::copy_n(block.b.data(), nCount, pB + i);
        std::copy_n(block.c.data(), nCount, pC + i);
    }
}

template <CTurn* pTurn>
void Join(const std::uint8_t* pA, const std::uint8_t* pB, const std::uint8_t* pC, std::uint8_t* pRgb,
          std::size_t n) {
    CBlock block{};
    for (std::size_t i = 0; i < n; i += kBlock) {
        const std::size_t nCount = std::min(kBlock, n - i);
        std::copy_n(pA + i, nCount, block.a.data());
        std::copy_n(pB + i, nCount, block.b.data());
        std::copy_n(pC + i, nCount, block.c.data());
        pTurn(block);
        JoinBlock(block.a.data(), block.b.data(), block.c.data(), pRgb + 3 * i, nCount);
    }
}

void ToY(const std::uint8_t* pRgb, std::uint8_t* pY, std::size_t n) {
    CBlock block{};
    for (std::size_t i = 0; i < n; i += kBlock) {
        const std::size_t nCount = std::min(kBlock, n - i);
        SplitBlock(pRgb + 3 * i, block.a.data(), block.b.data(), block.c.data(), nCount);
        ToLuma(block);
        std::copy_n(block.a.data(), nCount, pY + i);
    }
}

void Tint(const std::uint8_t* pY, std::uint8_t nU, std::uint8_t nV, std::uint8_t* pRgb, std::size_t n) {
    std::array<CColor, 256> colours;
    for (std::size_t nY = 0; nY < colours.size(); ++nY)
        colours[nY] = ColorYUVtoRGB({static_cast<std::uint8_t>(nY), nU, nV});
    for (std::size_t i = 0; i < n; ++i) {
        const CColor rgb = colours[pY[i]];
        pRgb[3 * i] = rgb.r;
        pRgb[3 * i + 1] = rgb.g;
        pRgb[3 * i + 2] = rgb.b;
    }
}

void Add(std::uint8_t* p, int nAdd, std::size_t n) {
    const int nReal = std::clamp(nAdd, -255, 255);
    for (std::size_t i = 0; i < n; ++i) p[i] = LimitToByte(p[i] + nReal);
}

}  // namespace

const CColourRowForms& PlainColourRows() {
    static constexpr CColourRowForms kForms = {SplitBlock, JoinBlock,    Split<ToYuv>,  ToY, Join<FromYuv>,
                                               Tint,       Split<ToHsl>, Join<FromHsl>, Add};
    return kForms;
}
