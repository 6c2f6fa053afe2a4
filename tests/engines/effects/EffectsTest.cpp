#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <optional>

#include "engines/effects/EffectForms.h"
#include "engines/effects/FrameTables.h"
#include "engines/effects/VignetteMask.h"
#include "image/CpuChoice.h"
#include "support/Pictures.h"

namespace {

// The wide and the plain loops against the naive form, from anywhere in the random sequence.
void Compare(EEffect effect, const CPixels& src, int nLevel, int nRefWidth) {
    CRandomSequence start;
    start.Skip(static_cast<std::uint64_t>(src.Width()));
    CRandomSequence randomNaive = start;
    const CPixels expected = FormsOf(effect).naive(src, nLevel, nRefWidth, randomNaive);
    for (const bool bPlain : {false, true}) {
        std::optional<CPlainLoops> plain;
        if (bPlain) plain.emplace();
        CRandomSequence random = start;
        ASSERT_EQ(Difference(Applied(effect, src, nLevel, nRefWidth, random), expected), "")
            << (bPlain ? "plain" : "wide") << ", level " << nLevel << ", full width " << nRefWidth;
        ASSERT_EQ(random.Words(), randomNaive.Words());
    }
}

class Effects : public testing::TestWithParam<int> {
  protected:
    static EEffect Effect() { return EffectOf(GetParam()); }
};
INSTANTIATE_TEST_SUITE_P(All, Effects, testing::Range(0, kEffectCount), [](const auto& number) {
    return std::string(FormsOf(EffectOf(number.param)).szName);
});

TEST_P(Effects, AreTheNaiveFormAtEverySize) {
    std::vector<CSize> sizes = {{64, 64},   {131, 70},  {1023, 9},  {1025, 7},  {700, 1},   {1, 700},
                                {6, 300},   {900, 2},   {2055, 11}, {2057, 40}, {2064, 30}, {4099, 23},
                                {158, 122}, {122, 158}, {16385, 3}, {3, 1100},  {42, 81},   {43, 161},
                                {160, 120}, {161, 90},  {176, 121}, {319, 83},  {321, 170}, {640, 161},
                                {641, 162}, {98, 1500}, {1001, 47}, {1921, 85}, {2113, 81}, {3001, 21},
                                {4121, 85}, {8300, 3},  {1500, 401}};
    for (int w = 1; w <= 13; ++w)
        for (int h = 1; h <= 13; ++h) sizes.push_back({w, h});
    for (int w = 14; w <= 170; w += 3) sizes.push_back({w, (w * 37) % 101 + 1});
    const CEffectRow& row = RowOf(Effect());
    std::vector<int> levels = {1, 2, row.nMax / 3, row.nMax, row.nMin};
    if (!row.bHasLevel) levels = {0};
    for (unsigned i = 0; i < sizes.size(); ++i) {
        const int nWidth = sizes[i].cx;
        for (unsigned nKind = i; nKind < i + (nWidth < 14 ? 6 : 2); ++nKind) {
            SCOPED_TRACE(testing::Message() << nWidth << " by " << sizes[i].cy << ", " << nKind);
            const CPixels src = MakePicture(sizes[i], static_cast<EKind>(nKind % kKinds), i);
            Compare(Effect(), src, levels[nKind % levels.size()], nWidth);
            if (HasFailure()) return;
        }
    }
}

TEST_P(Effects, AreTheNaiveFormAtEveryLevelAndBeyond) {
    if (!RowOf(Effect()).bHasLevel) return;
    // What grows with the level takes its time.
    const bool bSlow = Effect() == EEffect::Sharpness || Effect() == EEffect::OilPainting;
    const int nMost = bSlow ? 40 : 330;
    for (const EKind kind : {EKind::Noise, EKind::Slopes, EKind::Dim, EKind::Pale}) {
        const CPixels src = MakePicture({45, 38}, kind, 7);
        for (int nLevel = -nMost; nLevel <= nMost; ++nLevel) Compare(Effect(), src, nLevel, 45);
        for (const int nLevel : {INT_MIN, INT_MIN + 1, -70000, -16384, -16383, -8193, -1000, 655, 1000, 1638,
                                 1639, 8127, 8193, 16383, 16384, 70000, INT_MAX - 1, INT_MAX})
            Compare(Effect(), src, nLevel, 45);
        if (HasFailure()) return;
    }
    const CPixels src = MakePicture({61, 47}, EKind::Noise, 5);
    for (const int nRefWidth : {1, 2, 60, 62, 300, 609, 610, 1220, 1221, 4000, 100'000, INT_MAX})
        for (const int nLevel : {1, 3, 10, 20}) Compare(Effect(), src, nLevel, nRefWidth);
}

// A sum wraps from 2,064 pixels of width on; here it also runs for long.
TEST(PureBlackWhite, GoesOnAsItsSumWraps) {
    for (const int nWidth : {2048, 2056, 2064, 4000, 9001})
        for (const int nLevel : {1, 40, 100})
            Compare(EEffect::PureBlackWhite, MakePicture({nWidth, 150}, EKind::Pale, 3), nLevel, nWidth);
}

// The naive form reads the same table.
TEST(CrystalFrame, HasMoreRingsTheWiderThePicture) {
    std::vector<std::size_t> arrRings;
    for (const int nWidth : {160, 161, 176, 177, 320, 321, 4000})
        arrRings.push_back(CrystalRings(nWidth).size());
    EXPECT_EQ(arrRings, (std::vector<std::size_t>{18, 21, 21, 36, 36, 72, 72}));
}

// Enough fields that are done, and wider than the rest of the pictures here.
TEST(OilPainting, IsTheNaiveFormWhereMostDabsAreCovered) {
    for (const int nLevel : {15, 16, 17, 33})
        Compare(EEffect::OilPainting, MakePicture({2500, 130}, EKind::Noise, 12), nLevel, 2500);
}

// ---- values worked out by hand

CPixels Flat(int nWidth, int nHeight, CColor cr) {
    return CPixels::MakeFilled(nWidth, nHeight, cr);
}

CPixels With(CPixels pixels, CPoint pt, int nGrey) {
    pixels.MutableView().Set(pt.x, pt.y, Grey(nGrey));
    return pixels;
}

// Two greys side by side, with others in columns that the histograms leave out.
CPixels TwoGreys(int nLeft, int nRight, std::initializer_list<int> unseen) {
    CPixels src = Flat(64, 64, Grey(nLeft));
    for (int y = 0; y < 64; ++y)
        for (int x = 32; x < 64; ++x) src.MutableView().Set(x, y, Grey(nRight));
    int x = -1;
    for (const int n : unseen) src.MutableView().Set(x += 2, 0, Grey(n));
    return src;
}

TEST(EffectValues, AreThoseWorkedOutByHand) {
    constexpr CColor kWhite{255, 255, 255};
    constexpr CColor kWhite565{248, 252, 248};
    const struct {
        EEffect effect;
        CPixels src;
        int nLevel;
        CPoint pt;
        CColor expected;
    } rows[] = {
        {EEffect::Brightness, Flat(1, 1, Grey(54)), 100, {}, Grey(254)},
        {EEffect::Contrast, Flat(1, 1, {0, 255, 128}), -100, {}, {200, 57, 128}},
        {EEffect::Chroma, Flat(1, 1, {255, 0, 0}), -85, {}, ColorHSLtoRGB({0, 0, 128})},
        {EEffect::Sharpness, With(Flat(7, 7, {}), {3, 3}, 255), -1, {3, 3}, Grey(85)},
        {EEffect::Negative, Flat(1, 1, {1, 2, 255}), 0, {}, {254, 253, 0}},
        // 16 wide, so the sum starts at 256 and settles near twice the grey.
        {EEffect::PureBlackWhite, Flat(16, 20, {90, 110, 3}), 1, {15, 19}, kWhite},
        {EEffect::BlackWhite, Flat(1, 1, {255, 0, 0}), 0, {}, Grey(76)},
        // Contrast has it at (0, 255, 0), hue 85 and lightness 128; saturation can grow no more.
        {EEffect::ColourSaturation, Flat(1, 1, {10, 250, 10}), 100, {}, ColorHSLtoRGB({85, 255, 128})},
        {EEffect::OldPhoto, Flat(1, 1, Grey(90)), 0, {}, ColorYUVtoRGB({90, 113, 143})},
        // The one white counts twice in the medians of red and green and in the mean of blue.
        {EEffect::NoiseRemoval, With(Flat(7, 7, {}), {3, 3}, 255), 0, {3, 3}, {0, 0, 51}},
        // Half the samples at 20: the split is 20 and goes to 60, and 10 is the end of what stays.
        {EEffect::Backlight, TwoGreys(20, 200, {0, 10, 15}), 0, {0, 0}, Grey(60)},
        {EEffect::Backlight, TwoGreys(20, 200, {0, 10, 15}), 0, {3, 0}, Grey(10)},
        {EEffect::Homogenise, TwoGreys(40, 200, {}), 0, {63, 0}, kWhite},
        // Dark and narrow, light and narrow.
        {EEffect::LowLightRepair, TwoGreys(30, 60, {45}), 0, {0, 0}, Grey(43)},
        {EEffect::LowLightRepair, TwoGreys(180, 200, {190}), 0, {0, 0}, Grey(170)},
        {EEffect::Nostalgia, Flat(1, 1, Grey(90)), 1, {}, ColorYUVtoRGB({90, 117, 137})},
        {EEffect::Moonlight, Flat(1, 1, {200, 10, 30}), 50, {}, {70, 0, 50}},
        // Flat: lifted by 255 - 170 and the level. Half black, half white: mean and spread are 127.
        {EEffect::Haze1, Flat(1, 1, Grey(100)), 10, {}, ColorYUVtoRGB({195, 143, 118})},
        {EEffect::Haze1, With(Flat(2, 1, {}), {1, 0}, 255), 50, {}, ColorYUVtoRGB({8, 183, 78})},
        {EEffect::Cool, Flat(1, 1, {10, 20, 30}), 5, {}, {0, 15, 45}},
        {EEffect::Haze2, Flat(9, 9, {150, 100, 90}), 50, {}, ColorYUVtoRGB({113, 112, 162})},
        {EEffect::Film, Flat(176, 66, kWhite), 0, {3, 11}, {}},
        {EEffect::Art, Flat(160, 120, {}), 0, {79, 62}, Grey(16)},
        {EEffect::Art, Flat(160, 120, {}), 0, {10, 30}, Grey(235)},
        // Ring 4 of the table: 11.
        {EEffect::CrystalFrame, Flat(160, 200, Grey(128)), 0, {4, 90}, {136, 136, 136}},
        // A dark line; the first knob hangs down, the second stands up.
        {EEffect::Jigsaw, Flat(200, 200, Grey(100)), 0, {45, 40}, Grey(20)},
        {EEffect::Jigsaw, Flat(200, 200, Grey(100)), 0, {20, 53}, Grey(20)},
        {EEffect::Jigsaw, Flat(200, 200, Grey(100)), 0, {60, 27}, Grey(20)},
        {EEffect::OilPainting, Flat(30, 30, Grey(100)), 15, {9, 9}, Grey(100)},
        {EEffect::Tile, Flat(450, 410, {}), 10, {200, 100}, kWhite},
        {EEffect::Laminate, Flat(50, 40, {101, 200, 7}), 1, {3, 3}, {100, 200, 6}},
        {EEffect::Engrave, Flat(8, 5, {103, 57, 203}), 0, {7, 3}, {96, 56, 200}},
        {EEffect::ConcaveMirror, Flat(101, 101, kWhite), 0, {50, 0}, kWhite565},
        {EEffect::Sketch, With(Flat(9, 9, {}), {2, 2}, 255), 0, {2, 2}, {}},
        {EEffect::Refraction2, Flat(12, 9, {}), 60, {5, 5}, Grey(1)},
        {EEffect::Refraction1, Flat(12, 9, kWhite), 60, {5, 5}, kWhite},
        // Luminance wraps where it falls.
        {EEffect::Woodcut, With(Flat(6, 4, {}), {2, 1}, 255), 0, {2, 1}, Grey(1)},
    };
    for (const auto& row : rows) {
        CRandomSequence random;
        const CPixels dst = Applied(row.effect, row.src, row.nLevel, row.src.Width(), random);
        EXPECT_EQ(PixelAt(dst, row.pt.x, row.pt.y).ToRef(), row.expected.ToRef())
            << FormsOf(row.effect).szName << " at " << testing::PrintToString(row.pt);
    }
}

TEST(VignetteMask, IsASoftOvalInABrightFrame) {
    const auto At = [](int x, int y) { return int{VignetteMask().Row(y)[static_cast<std::size_t>(x)]}; };
    for (int y = 0; y < 120; ++y) {
        EXPECT_EQ(At(0, y), 235);
        EXPECT_EQ(At(159, y), 235);
        for (int x = 0; x < 160; ++x) {
            const double fX = (x - 79) / 34.0;
            const double fY = (y - 62) / 37.0;
            const double fRadius = fX * fX + fY * fY;
            // The measured values themselves allow the floor no more than this.
            const int nMost = fRadius <= 0.4 ? 17 : fRadius <= 1 ? 19 : 235;
            ASSERT_TRUE(At(x, y) >= 16 && At(x, y) <= nMost) << x << "," << y;
            // They climb by up to 12 a column; nothing may be much steeper, or bend sharply.
            const int nLeft = x > 0 ? At(x - 1, y) : At(x, y);
            const int nUp = y > 0 ? At(x, y - 1) : At(x, y);
            ASSERT_LE(std::max(std::abs(At(x, y) - nLeft), std::abs(At(x, y) - nUp)), 16) << x << "," << y;
            if (x > 1 && y > 1) {
                ASSERT_LE(std::abs(At(x, y) - 2 * nLeft + At(x - 2, y)), 6) << x << "," << y;
                ASSERT_LE(std::abs(At(x, y) - 2 * nUp + At(x, y - 2)), 6) << x << "," << y;
            }
        }
    }
}

}  // namespace
