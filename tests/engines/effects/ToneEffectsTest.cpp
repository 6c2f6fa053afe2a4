#include <gtest/gtest.h>

#include <climits>
#include <random>

#include "engines/effects/Effects.h"
#include "engines/effects/NaiveTones.h"
#include "image/CpuChoice.h"
#include "support/Pictures.h"

namespace {

using CFastForm = void (*)(const CEffectCall&);
using CNaiveForm = CPixels (*)(const CPixels&, int);

struct CTone {
    const char* szName;
    CFastForm fast;
    CNaiveForm naive;
    int nMin;  // the slider's range; both 0 without a level
    int nMax;
};

void PrintTo(const CTone& tone, std::ostream* pStream) {
    *pStream << tone.szName;
}

// The picture container has a form of its own.
CPixels EqualizedImage(const CPixels& src, int) {
    CxImage image(src);
    return image.HistogramEqualize() ? image.Pixels() : CPixels();
}

constexpr CTone kTones[] = {
    {"Brightness", Brightness, NaiveBrightness, -100, 100},
    {"Contrast", Contrast, NaiveContrast, -100, 100},
    {"Chroma", Chroma, NaiveChroma, -100, 100},
    {"Negative", Negative, NaiveNegative, 0, 0},
    {"PureBlackWhite", PureBlackWhite, NaivePureBlackWhite, 0, 100},
    {"BlackWhite", BlackWhite, NaiveBlackWhite, 0, 0},
    {"ColourSaturation", ColourSaturation, NaiveColourSaturation, 0, 100},
    {"OldPhoto", OldPhoto, NaiveOldPhoto, 0, 0},
    {"Nostalgia", Nostalgia, NaiveNostalgia, 0, 20},
    {"Moonlight", Moonlight, NaiveMoonlight, 0, 50},
    {"Haze1", Haze1, NaiveHaze1, 0, 50},
    {"Cool", Cool, NaiveCool, 0, 100},
    {"Homogenise", Homogenise, EqualizedImage, 0, 0},
};

CPixels Applied(CFastForm fast, const CPixels& src, int nLevel) {
    // Anything but black, so that a pixel that was left out shows.
    CPixels dst = CPixels::MakeFilled(src.Width(), src.Height(), {203, 77, 31});
    CRandomSequence random;
    fast({src.View(), dst.MutableView(), nLevel, src.Width(), random});
    return dst;
}

// Bytes between nLow and nHigh.
CPixels NoisePicture(int nWidth, int nHeight, unsigned nSeed, int nLow = 0, int nHigh = 255) {
    std::mt19937 random(nSeed);
    std::uniform_int_distribution<int> bytes(nLow, nHigh);
    CPixels pixels = CPixels::MakeFilled(nWidth, nHeight, {});
    for (std::uint8_t& n : pixels.MutableBytes()) n = static_cast<std::uint8_t>(bytes(random));
    return pixels;
}

class Tone : public testing::TestWithParam<CTone> {
  protected:
    static void Compare(const CPixels& src, int nLevel) {
        const CPixels expected = GetParam().naive(src, nLevel);
        ASSERT_TRUE(Applied(GetParam().fast, src, nLevel) == expected) << "wide, level " << nLevel;
        const CPlainLoops plain;
        ASSERT_TRUE(Applied(GetParam().fast, src, nLevel) == expected) << "plain, level " << nLevel;
    }
    static bool HasLevel() { return GetParam().nMin < GetParam().nMax; }
};

INSTANTIATE_TEST_SUITE_P(Effects, Tone, testing::ValuesIn(kTones),
                         [](const auto& tone) { return std::string(tone.param.szName); });

TEST_P(Tone, IsTheNaiveFormAtEverySize) {
    std::vector<CSize> sizes = {{33, 17},  {64, 64},   {131, 70},  {1023, 9},  {1025, 7},
                                {700, 1},  {1, 700},   {6, 300},   {900, 2},   {2055, 11},
                                {2057, 9}, {2064, 30}, {4099, 23}, {158, 122}, {7, 50},
                                {129, 33}, {63, 3},    {16000, 2}, {16385, 3}};
    for (int w = 1; w <= 9; ++w)
        for (int h = 1; h <= 9; ++h) sizes.push_back({w, h});
    unsigned nSeed = 1;
    for (const CSize& size : sizes) {
        SCOPED_TRACE(testing::Message() << size.cx << " by " << size.cy << ", seed " << nSeed);
        const CPixels src = NoisePicture(size.cx, size.cy, nSeed++);
        for (const int nLevel : {GetParam().nMin, GetParam().nMax / 3, GetParam().nMax}) Compare(src, nLevel);
        if (HasFatalFailure()) return;
    }
}

TEST_P(Tone, IsTheNaiveFormAtEveryLevelAndBeyond) {
    if (!HasLevel()) return;
    // The dark, the pale and the narrow one end at the bounds at other levels than the full range does.
    const CPixels pictures[] = {NoisePicture(45, 38, 7), NoisePicture(24, 40, 8, 0, 40),
                                NoisePicture(24, 40, 9, 200, 255), NoisePicture(24, 40, 10, 120, 136)};
    for (const CPixels& src : pictures) {
        for (int nLevel = -330; nLevel <= 330; ++nLevel) Compare(src, nLevel);
        for (const int nLevel : {INT_MIN, INT_MIN + 1, -70000, -16384, -16383, -8193, -1000, 1000, 8127, 8193,
                                 16383, 16384, 70000, INT_MAX - 1, INT_MAX})
            Compare(src, nLevel);
        if (HasFatalFailure()) return;
    }
}

// A sum wraps from 2,064 pixels of width on; here it also runs for long.
TEST(ToneValues, PureBlackAndWhiteGoesOnAsItsSumWraps) {
    for (const int nWidth : {2048, 2056, 2064, 4000, 9001}) {
        const CPixels src = NoisePicture(nWidth, 150, 3, 100, 255);
        for (const int nLevel : {1, 40, 100})
            EXPECT_TRUE(Applied(PureBlackWhite, src, nLevel) == NaivePureBlackWhite(src, nLevel)) << nWidth;
    }
}

CColor OfOne(CFastForm fast, CColor cr, int nLevel) {
    return PixelAt(Applied(fast, CPixels::MakeFilled(1, 1, cr), nLevel), 0, 0);
}

TEST(ToneValues, SinglePixels) {
    const CColor white = {255, 255, 255};
    EXPECT_EQ(OfOne(Brightness, {55, 55, 55}, 100), white);
    EXPECT_EQ(OfOne(Brightness, {54, 54, 54}, 100), (CColor{254, 254, 254}));
    EXPECT_EQ(OfOne(Contrast, {0, 255, 128}, -100), (CColor{200, 57, 128}));
    EXPECT_EQ(OfOne(Contrast, {12, 200, 129}, 0), (CColor{12, 200, 129}));
    EXPECT_EQ(OfOne(Moonlight, {200, 10, 30}, 50), (CColor{70, 0, 50}));
    EXPECT_EQ(OfOne(Moonlight, {0, 99, 80}, 50), (CColor{50, 30, 80}));
    EXPECT_EQ(OfOne(Cool, white, 100), (CColor{105, 155, 255}));
    EXPECT_EQ(OfOne(Cool, {10, 20, 30}, 5), (CColor{0, 15, 45}));
    EXPECT_EQ(OfOne(Nostalgia, {90, 90, 90}, 1), CxImage::YUVtoRGB({90, 117, 137}));
    // Flat: lifted by 255 - 170 and the level.
    EXPECT_EQ(OfOne(Haze1, {100, 100, 100}, 10), CxImage::YUVtoRGB({195, 143, 118}));
    // Half black, half white: the mean is 127, the spread 127, so that the lift is 128.
    CPixels halves = CPixels::MakeFilled(2, 1, white);
    halves.MutableView().Set(0, 0, {0, 0, 0});
    EXPECT_EQ(PixelAt(Applied(Haze1, halves, 50), 0, 0), CxImage::YUVtoRGB({8, 183, 78}));
    // Contrast has it at (0, 255, 0), hue 85 and lightness 128; saturation can grow no more.
    EXPECT_EQ(OfOne(ColourSaturation, {10, 250, 10}, 100), CxImage::HSLtoRGB({85, 255, 128}));
}

TEST(ToneValues, PureBlackAndWhiteOnFlatGrey) {
    // 16 wide, so the sum starts at 256 and settles near twice the grey.
    const CPixels bright = Applied(PureBlackWhite, CPixels::MakeFilled(16, 20, {90, 110, 3}), 1);
    EXPECT_EQ(PixelAt(bright, 15, 19), (CColor{255, 255, 255}));
    const CPixels dark = Applied(PureBlackWhite, CPixels::MakeFilled(16, 20, {90, 110, 3}), 100);
    EXPECT_EQ(PixelAt(dark, 15, 19), (CColor{0, 0, 0}));
    const CPixels narrow = NoisePicture(7, 20, 4);
    EXPECT_EQ(Applied(PureBlackWhite, narrow, 50), narrow);
}

TEST(ToneValues, HomogeniseLeavesWhatHasNoGreyAboveZero) {
    for (const CColor cr : {CColor{0, 0, 0}, CColor{0, 0, 8}})
        EXPECT_EQ(Applied(Homogenise, CPixels::MakeFilled(33, 9, cr), 0), CPixels::MakeFilled(33, 9, cr));
}

TEST(ToneValues, LevelZero) {
    const CPixels src = NoisePicture(50, 41, 5);
    for (const CTone& tone : kTones) {
        if (tone.nMin == tone.nMax || tone.fast == Chroma) continue;
        EXPECT_EQ(Applied(tone.fast, src, 0), src) << tone.szName;
    }
    // Chroma goes through hue and saturation all the same.
    EXPECT_NE(Applied(Chroma, src, 0), src);
}

}  // namespace
