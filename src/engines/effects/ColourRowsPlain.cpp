#include <algorithm>
#include <array>
#include <cstring>

#include "engines/effects/ColourRowForms.h"
#include "engines/effects/HueRamp.h"
#include "image/ColorSpace.h"

namespace {

// Pixels that are turned at a time. The loops over a block have no branch and a fixed count, so that the
// compiler can take several pixels at once.
constexpr std::size_t kBlock = 1024;

using CBytes = std::array<std::uint8_t, kBlock>;

struct CBlock {
    CBytes a;
    CBytes b;
    CBytes c;
};

using CVector = std::uint8_t __attribute__((vector_size(16)));

// 48 bytes, and what comes out when their second half is dealt between the bytes of their first.
struct CDeck {
    CVector a;
    CVector b;
    CVector c;
};

CDeck Shuffle(const CDeck& deck) {
    return {
        __builtin_shufflevector(deck.a, deck.b, 0, 24, 1, 25, 2, 26, 3, 27, 4, 28, 5, 29, 6, 30, 7, 31),
        __builtin_shufflevector(deck.a, deck.c, 8, 16, 9, 17, 10, 18, 11, 19, 12, 20, 13, 21, 14, 22, 15, 23),
        __builtin_shufflevector(deck.b, deck.c, 0, 24, 1, 25, 2, 26, 3, 27, 4, 28, 5, 29, 6, 30, 7, 31)};
}

// A shuffle takes byte i to 2 i modulo 47; four of them take it to 16 i, which is a third of it: every third
// byte then stands beside the one before.
void SplitRun(const std::uint8_t* __restrict pRgb, std::uint8_t* __restrict pA, std::uint8_t* __restrict pB,
              std::uint8_t* __restrict pC, std::size_t n) {
    std::size_t i = 0;
    for (; i + 16 <= n; i += 16) {
        CDeck deck;
        std::memcpy(&deck, pRgb + 3 * i, sizeof deck);
        deck = Shuffle(Shuffle(Shuffle(Shuffle(deck))));
        std::memcpy(pA + i, &deck.a, sizeof deck.a);
        std::memcpy(pB + i, &deck.b, sizeof deck.b);
        std::memcpy(pC + i, &deck.c, sizeof deck.c);
    }
    for (; i < n; ++i) {
        pA[i] = pRgb[3 * i];
        pB[i] = pRgb[3 * i + 1];
        pC[i] = pRgb[3 * i + 2];
    }
}

void JoinRun(const std::uint8_t* pA, const std::uint8_t* pB, const std::uint8_t* pC,
             std::uint8_t* __restrict pRgb, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        pRgb[3 * i] = pA[i];
        pRgb[3 * i + 1] = pB[i];
        pRgb[3 * i + 2] = pC[i];
    }
}

void ToLuma(CBlock& block) {
    for (std::size_t i = 0; i < kBlock; ++i)
        block.a[i] = ColorRGBtoYUV({block.a[i], block.b[i], block.c[i]}).r;
}

// U, V, R and B are computed in words, of which a vector holds many: whole-number forms that cut the fraction
// at the same place as the formula for every difference there is.

constexpr short HighProduct(short a, short b) {
    return static_cast<short>((a * b) >> 16);
}

constexpr std::uint8_t LimitWord(short n) {
    return static_cast<std::uint8_t>(std::clamp<short>(n, 0, 255));
}

// (B - Y) 0.565 + 128 is (113 (B - Y) + 25600) / 200; beyond these bounds the result is limited.
constexpr std::uint8_t ChromaU(short nDifference) {
    const short n = std::clamp<short>(nDifference, -226, 225);
    return static_cast<std::uint8_t>(static_cast<std::uint16_t>(113 * n + 25600) / 200);
}

// 0.713 is 1 - 18811 / 65536.
constexpr std::uint8_t ChromaV(short nDifference) {
    return LimitWord(static_cast<short>(nDifference + HighProduct(nDifference, -18811) + 128));
}

// block.a holds Y.
void AddChroma(CBlock& block, const CBlock& rgb) {
    for (std::size_t i = 0; i < kBlock; ++i) block.b[i] = ChromaU(static_cast<short>(rgb.c[i] - block.a[i]));
    for (std::size_t i = 0; i < kBlock; ++i) block.c[i] = ChromaV(static_cast<short>(rgb.a[i] - block.a[i]));
}

void ToYuv(CBlock& block) {
    const CBlock rgb = block;
    ToLuma(block);
    AddChroma(block, rgb);
}

// 1.403 is 1 + 26411 / 65536.
constexpr std::uint8_t RedOf(short y, short v) {
    return LimitWord(static_cast<short>(y + v + HighProduct(v, 26411)));
}

// 1.770 is 1 + 25231 / 32768; the added bit sees to u = 100, where the product is a whole number.
constexpr std::uint8_t BlueOf(short y, short u) {
    const short nFine = HighProduct(static_cast<short>(u * 256), 25231);
    return LimitWord(static_cast<short>(y + u + (static_cast<short>(nFine + 1) >> 7)));
}

constexpr std::uint8_t GreenOf(int y, int u, int v) {
    return LimitWord(static_cast<short>(static_cast<int>(
        static_cast<float>(y) - 0.344F * static_cast<float>(u) - 0.714F * static_cast<float>(v))));
}

void FromYuv(CBlock& block) {
    const CBlock yuv = block;
    for (std::size_t i = 0; i < kBlock; ++i) block.a[i] = RedOf(yuv.a[i], static_cast<short>(yuv.c[i] - 128));
    for (std::size_t i = 0; i < kBlock; ++i) block.b[i] = GreenOf(yuv.a[i], yuv.b[i] - 128, yuv.c[i] - 128);
    for (std::size_t i = 0; i < kBlock; ++i)
        block.c[i] = BlueOf(yuv.a[i], static_cast<short>(yuv.b[i] - 128));
}

// (nMul x + d / 2) / d, the fraction cut; 0 where d is 0. Single precision holds the numerator, and a
// quotient that is no whole number lies further from one than it can err.
int RoundedQuotient(int x, int d, int nMul) {
    const int nDivisor = d == 0 ? 1 : d;
    const int nNumerator = nMul * x + d / 2;
    return static_cast<int>(static_cast<float>(nNumerator) / static_cast<float>(nDivisor));
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
        SplitRun(pRgb + 3 * i, block.a.data(), block.b.data(), block.c.data(), nCount);
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
        JoinRun(block.a.data(), block.b.data(), block.c.data(), pRgb + 3 * i, nCount);
    }
}

void ToY(const std::uint8_t* pRgb, std::uint8_t* pY, std::size_t n) {
    CBlock block{};
    for (std::size_t i = 0; i < n; i += kBlock) {
        const std::size_t nCount = std::min(kBlock, n - i);
        SplitRun(pRgb + 3 * i, block.a.data(), block.b.data(), block.c.data(), nCount);
        ToLuma(block);
        std::copy_n(block.a.data(), nCount, pY + i);
    }
}

void ToUv(const std::uint8_t* pRgb, const std::uint8_t* pY, std::uint8_t* pU, std::uint8_t* pV,
          std::size_t n) {
    CBlock rgb{};
    CBlock yuv{};
    for (std::size_t i = 0; i < n; i += kBlock) {
        const std::size_t nCount = std::min(kBlock, n - i);
        SplitRun(pRgb + 3 * i, rgb.a.data(), rgb.b.data(), rgb.c.data(), nCount);
        std::copy_n(pY + i, nCount, yuv.a.data());
        AddChroma(yuv, rgb);
        std::copy_n(yuv.b.data(), nCount, pU + i);
        std::copy_n(yuv.c.data(), nCount, pV + i);
    }
}

void Tint(const std::uint8_t* pY, std::uint8_t nU, std::uint8_t nV, std::uint8_t* pRgb, std::size_t n) {
    // Each with a fourth byte, so that all but the last pixel are stored at once; the next one writes over
    // it.
    std::array<std::array<std::uint8_t, 4>, 256> colours{};
    for (std::size_t nY = 0; nY < colours.size(); ++nY) {
        const CColor rgb = ColorYUVtoRGB({static_cast<std::uint8_t>(nY), nU, nV});
        colours[nY] = {rgb.r, rgb.g, rgb.b, 0};
    }
    for (std::size_t i = 0; i + 1 < n; ++i) std::memcpy(pRgb + 3 * i, colours[pY[i]].data(), 4);
    if (n > 0) std::memcpy(pRgb + 3 * (n - 1), colours[pY[n - 1]].data(), 3);
}

void Add(std::uint8_t* p, int nAdd, std::size_t n) {
    const int nReal = std::clamp(nAdd, -255, 255);
    for (std::size_t i = 0; i < n; ++i) p[i] = LimitToByte(p[i] + nReal);
}

}  // namespace

const CColourRowForms& PlainColourRows() {
    static constexpr CColourRowForms kForms = {SplitRun,      JoinRun, Split<ToYuv>, ToY,           ToUv,
                                               Join<FromYuv>, Tint,    Split<ToHsl>, Join<FromHsl>, Add};
    return kForms;
}
