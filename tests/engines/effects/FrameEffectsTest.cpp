#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <random>

#include "engines/effects/Effects.h"
#include "engines/effects/NaiveFrames.h"
#include "engines/effects/Rgb565.h"
#include "engines/effects/VignetteMask.h"
#include "image/CpuChoice.h"
#include "support/Pictures.h"

namespace {

using CFastForm = void (*)(const CEffectCall&);

// What a call depends on besides the picture.
struct CSetting {
    int nLevel = 0;
    int nRefWidth = 0;  // 0 for the picture's own width
};
using CNaiveForm = std::function<CPixels(const CPixels&, const CSetting&, CRandomSequence&)>;

int RefWidth(const CPixels& src, const CSetting& setting) {
    return setting.nRefWidth > 0 ? setting.nRefWidth : src.Width();
}

CPixels Applied(CFastForm fast, const CPixels& src, const CSetting& setting, CRandomSequence& random) {
    // Anything but black, so that a pixel that was left out shows.
    CPixels dst = CPixels::MakeFilled(src.Width(), src.Height(), {203, 77, 31});
    fast({src.View(), dst.MutableView(), setting.nLevel, RefWidth(src, setting), random});
    return dst;
}

CPixels Applied(CFastForm fast, const CPixels& src, int nLevel = 0) {
    CRandomSequence random;
    return Applied(fast, src, {nLevel, 0}, random);
}

// Steep slopes with noise on them, so that neighbours differ and every byte occurs.
CPixels NoisePicture(int nWidth, int nHeight, unsigned nSeed) {
    std::mt19937 random(nSeed);
    CPixels pixels = CPixels::MakeFilled(nWidth, nHeight, {});
    const unsigned nSpread = nSeed % 2 == 0 ? 256 : 30;
    unsigned i = 0;
    for (std::uint8_t& n : pixels.MutableBytes())
        n = static_cast<std::uint8_t>(i++ / 7 + static_cast<unsigned>(random()) % nSpread);
    return pixels;
}

CPixels MaskPicture() {
    CPixels mask = CPixels::MakeFilled(CVignetteMask::kWidth, CVignetteMask::kHeight, {});
    for (int y = 0; y < mask.Height(); ++y)
        for (int x = 0; x < mask.Width(); ++x) {
            const std::uint8_t n = VignetteMask().Row(y)[static_cast<std::size_t>(x)];
            mask.MutableView().Set(x, y, {n, n, n});
        }
    return mask;
}

struct CFrame {
    const char* szName;
    CFastForm fast;
    CNaiveForm naive;
    std::vector<int> levels;  // for every size
    int nMax;                 // the levels up to this are put on one picture
};

void PrintTo(const CFrame& frame, std::ostream* pStream) {
    *pStream << frame.szName;
}

template <class TForm>
CNaiveForm OfPicture(TForm form) {
    return [form](const CPixels& src, const CSetting&, CRandomSequence&) { return form(src); };
}

std::vector<CFrame> Frames() {
    const CNaiveForm oil = [](const CPixels& src, const CSetting& setting, CRandomSequence& random) {
        return NaiveOilPainting(src, setting.nLevel, random);
    };
    const CNaiveForm tile = [](const CPixels& src, const CSetting& setting, CRandomSequence& random) {
        return NaiveTile(src, setting.nLevel, RefWidth(src, setting), random);
    };
    const CNaiveForm laminate = [](const CPixels& src, const CSetting& setting, CRandomSequence&) {
        return NaiveLaminate(src, setting.nLevel, RefWidth(src, setting));
    };
    const auto art = [](const CPixels& src) { return NaiveArt(src, MaskPicture()); };
    return {
        {"Film", Film, OfPicture(NaiveFilm), {0}, 0},
        {"Art", Art, OfPicture(art), {0}, 0},
        {"CrystalFrame", CrystalFrame, OfPicture(NaiveCrystalFrame), {0}, 0},
        {"Jigsaw", Jigsaw, OfPicture(NaiveJigsaw), {0}, 0},
        {"OilPainting", OilPainting, oil, {1, 2, 8, 15}, 40},
        {"Tile", Tile, tile, {1, 2, 10}, 25},
        {"Laminate", Laminate, laminate, {1, 3, 20}, 40},
        {"ConcaveMirror", ConcaveMirror, OfPicture(NaiveConcaveMirror), {0}, 0},
    };
}

class Frame : public testing::TestWithParam<CFrame> {
  protected:
    // Two calls in a row: the second one goes on in the random sequence where the first one stopped.
    static void Compare(const CPixels& src, const CSetting& setting) {
        CRandomSequence randomNaive;
        const CPixels first = GetParam().naive(src, setting, randomNaive);
        const CPixels second = GetParam().naive(src, setting, randomNaive);
        const auto CompareFast = [&](const char* szPath) {
            CRandomSequence random;
            const auto Next = [&] { return Applied(GetParam().fast, src, setting, random); };
            EXPECT_EQ(Difference(Next(), first), "") << szPath << ", level " << setting.nLevel;
            EXPECT_EQ(Difference(Next(), second), "") << szPath << ", again, level " << setting.nLevel;
            EXPECT_EQ(random.Words(), randomNaive.Words()) << szPath << ", level " << setting.nLevel;
        };
        CompareFast("wide");
        const CPlainLoops plain;
        CompareFast("plain");
    }
};

TEST_P(Frame, IsTheNaiveFormAtEverySize) {
    std::vector<CSize> sizes = {{33, 17},   {41, 39},   {42, 81},   {43, 161},  {160, 120}, {161, 90},
                                {176, 121}, {177, 60},  {319, 83},  {321, 170}, {640, 161}, {641, 162},
                                {98, 1500}, {40, 700},  {1001, 47}, {1921, 85}, {2113, 81}, {3001, 21},
                                {4121, 85}, {8300, 3},  {4000, 2},  {1, 700},   {700, 1},   {158, 122},
                                {122, 158}, {1500, 401}};
    for (int w = 1; w <= 13; ++w)
        for (int h = 1; h <= 13; ++h) sizes.push_back({w, h});
    for (int w = 14; w <= 170; w += 3) sizes.push_back({w, (w * 37) % 101 + 1});
    unsigned nSeed = 1;
    for (const CSize& size : sizes) {
        SCOPED_TRACE(testing::Message() << size.cx << " by " << size.cy << ", seed " << nSeed);
        const CPixels src = NoisePicture(size.cx, size.cy, nSeed++);
        for (const int nLevel : GetParam().levels) Compare(src, {nLevel, 0});
        if (HasFailure()) return;
    }
}

TEST_P(Frame, IsTheNaiveFormAtEveryLevelAndReferenceWidth) {
    if (GetParam().nMax == 0) return;
    const CPixels src = NoisePicture(61, 47, 5);
    for (int nLevel = -3; nLevel <= GetParam().nMax; ++nLevel) Compare(src, {nLevel, 0});
    for (const int nLevel : {INT_MIN, INT_MIN + 1, 64, 163, 164, 655, 1638, 1639, 5000, 100'000, INT_MAX})
        Compare(src, {nLevel, 0});
    for (const int nRefWidth : {1, 2, 60, 62, 300, 609, 610, 1220, 1221, 4000, 100'000, INT_MAX})
        for (const int nLevel : {1, 3, 10, 20}) Compare(src, {nLevel, nRefWidth});
    EXPECT_EQ(Applied(GetParam().fast, src, 0), src);
}

INSTANTIATE_TEST_SUITE_P(All, Frame, testing::ValuesIn(Frames()),
                         [](const auto& frame) { return std::string(frame.param.szName); });

TEST(Rgb565, DropsTheLowBitsOfEveryPixelAndTouchesNoOther) {
    CPixels pixels = NoisePicture(301, 1, 3);
    CPixels reduced = pixels;
    for (int n = 0; n < 301; n += 7) {
        reduced = pixels;
        ReduceTo565(pixels.Bytes().data(), reduced.MutableBytes().data(), static_cast<std::size_t>(n));
        for (int x = 0; x < 301; ++x) {
            const CColor cr = PixelAt(pixels, x, 0);
            // There and back through a packed word.
            const int nWord = cr.r / 8 * 2048 + cr.g / 4 * 32 + cr.b / 8;
            const CColor expected = {static_cast<std::uint8_t>(nWord / 2048 * 8),
                                     static_cast<std::uint8_t>(nWord / 32 % 64 * 4),
                                     static_cast<std::uint8_t>(nWord % 32 * 8)};
            ASSERT_EQ(PixelAt(reduced, x, 0), x < n ? expected : cr) << x << " of " << n;
        }
    }
}

TEST(Film, HasEdgesThatGrowWithTheWidth) {
    for (const auto& [nWidth, nEdge] :
         {std::pair{176, 4}, {177, 8}, {320, 8}, {321, 16}, {640, 16}, {641, 32}}) {
        const int nBand = nWidth / 8;
        const CPixels film = Applied(Film, CPixels::MakeFilled(nWidth, 3 * nBand, {255, 255, 255}));
        const int nMiddle = nBand / 2;
        EXPECT_EQ(PixelAt(film, nEdge - 1, nMiddle), kBlack565) << nWidth;
        EXPECT_EQ(PixelAt(film, nEdge, nMiddle), kWhite565) << nWidth;
        EXPECT_EQ(PixelAt(film, 3 * nEdge - 1, nMiddle), kWhite565) << nWidth;
        EXPECT_EQ(PixelAt(film, 3 * nEdge, nMiddle), kBlack565) << nWidth;
        for (int x = 0; x < nWidth; ++x) {
            ASSERT_EQ(PixelAt(film, x, nBand - nEdge), kBlack565) << nWidth;
            ASSERT_EQ(PixelAt(film, x, nBand - 1), kBlack565) << nWidth;
        }
    }
}

TEST(Film, ChangesTheOuterStripsAndLeavesAPictureThatIsTooFlat) {
    const CPixels src = NumberedPixels(200, 100);
    const CPixels film = Applied(Film, src);
    EXPECT_EQ(PixelAt(film, 0, 50), ReduceTo565(PixelAt(src, 176, 50)));
    EXPECT_EQ(PixelAt(film, 199, 50), ReduceTo565(PixelAt(src, 23, 50)));
    EXPECT_EQ(PixelAt(film, 24, 50), kBlack565);
    EXPECT_EQ(PixelAt(film, 39, 50), kBlack565);
    EXPECT_EQ(PixelAt(film, 40, 50), ReduceTo565(PixelAt(src, 40, 50)));
    const CPixels flat = NumberedPixels(200, 49);
    EXPECT_EQ(Applied(Film, flat), flat);
}

TEST(Art, BurnsToWhiteAndGivesTheMaskOnBlack) {
    EXPECT_EQ(Applied(Art, CPixels::MakeFilled(77, 55, {255, 255, 255})),
              CPixels::MakeFilled(77, 55, {255, 255, 255}));
    EXPECT_EQ(Applied(Art, CPixels::MakeFilled(160, 120, {0, 0, 0})), MaskPicture());
}

TEST(VignetteMask, RunsThroughTheMeasuredRows) {
    const std::pair<int, std::array<int, 16>> rows[] = {
        {0, {235, 235, 235, 235, 234, 230, 219, 210, 205, 212, 224, 230, 235, 235, 235, 235}},
        {30, {235, 235, 235, 203, 123, 39, 18, 17, 17, 17, 18, 53, 145, 217, 235, 235}},
        {60, {235, 235, 208, 115, 23, 17, 16, 16, 16, 16, 16, 17, 37, 151, 231, 235}},
        {90, {235, 235, 234, 180, 84, 21, 17, 16, 16, 17, 17, 32, 119, 204, 235, 235}},
        {119, {235, 235, 235, 235, 234, 222, 198, 176, 173, 180, 204, 228, 234, 235, 235, 235}},
    };
    for (const auto& [y, values] : rows)
        for (std::size_t i = 0; i < values.size(); ++i)
            EXPECT_EQ(VignetteMask().Row(y)[10 * i], values[i]) << 10 * i << "," << y;
}

TEST(VignetteMask, IsASoftOvalInABrightFrame) {
    const auto At = [](int x, int y) { return int{VignetteMask().Row(y)[static_cast<std::size_t>(x)]}; };
    for (int y = 0; y < 120; ++y) {
        EXPECT_EQ(At(0, y), 235);
        EXPECT_EQ(At(159, y), 235);
        for (int x = 0; x < 160; ++x) {
            ASSERT_TRUE(At(x, y) >= 16 && At(x, y) <= 235);
            const double fX = (x - 79) / 34.0;
            const double fY = (y - 62) / 37.0;
            const double fRadius = fX * fX + fY * fY;
            // The measured values themselves allow the floor no more than this.
            if (fRadius <= 0.4) {
                ASSERT_LE(At(x, y), 17) << x << "," << y;
            }
            if (fRadius <= 1) {
                ASSERT_LE(At(x, y), 19) << x << "," << y;
            }
            // They climb by up to 12 a column; nothing may be much steeper, or bend sharply.
            if (x > 0) {
                ASSERT_LE(std::abs(At(x, y) - At(x - 1, y)), 16) << x << "," << y;
            }
            if (y > 0) {
                ASSERT_LE(std::abs(At(x, y) - At(x, y - 1)), 16) << x << "," << y;
            }
            if (x > 1) {
                ASSERT_LE(std::abs(At(x, y) - 2 * At(x - 1, y) + At(x - 2, y)), 6) << x << "," << y;
            }
            if (y > 1) {
                ASSERT_LE(std::abs(At(x, y) - 2 * At(x, y - 1) + At(x, y - 2)), 6) << x << "," << y;
            }
        }
    }
}

TEST(CrystalFrame, TakesItsRingsByTheWidth) {
    // Ring 4 of the four tables: 11, -44, -88 and -232.
    for (const auto& [nWidth, nGrey] :
         {std::pair{160, 136}, {161, 80}, {176, 80}, {177, 40}, {320, 40}, {321, 0}}) {
        const CPixels frame = Applied(CrystalFrame, CPixels::MakeFilled(nWidth, 200, {128, 128, 128}));
        EXPECT_EQ(PixelAt(frame, nWidth / 2, 4).r, nGrey) << nWidth;
        EXPECT_EQ(PixelAt(frame, nWidth / 2, 195).b, nGrey) << nWidth;
        EXPECT_EQ(PixelAt(frame, 4, 100).r, nGrey) << nWidth;
        EXPECT_EQ(PixelAt(frame, nWidth - 5, 100).b, nGrey) << nWidth;
    }
}

TEST(Jigsaw, CutsNothingUpToOnePiece) {
    const CPixels src = NoisePicture(40, 40, 9);
    CPixels expected = src;
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x)
            expected.MutableView().Set(x, y, ColorYUVtoRGB(ColorRGBtoYUV(PixelAt(src, x, y))));
    EXPECT_EQ(Difference(Applied(Jigsaw, src), expected), "");
}

TEST(Jigsaw, DrawsADarkLineWithLightsBelowAndToTheRight) {
    const CPixels cut = Applied(Jigsaw, CPixels::MakeFilled(200, 200, {100, 100, 100}));
    const auto GreyAt = [&cut](int x, int y) { return int{PixelAt(cut, x, y).r}; };
    EXPECT_EQ(GreyAt(45, 40), 20);
    EXPECT_EQ(GreyAt(45, 41), 120);
    EXPECT_EQ(GreyAt(45, 42), 160);
    EXPECT_EQ(GreyAt(45, 43), 100);
    EXPECT_EQ(GreyAt(80, 10), 20);
    EXPECT_EQ(GreyAt(81, 10), 120);
    EXPECT_EQ(GreyAt(82, 10), 160);
    EXPECT_EQ(GreyAt(60, 40), 100);  // open for a knob
    EXPECT_EQ(GreyAt(20, 53), 20);   // the first knob hangs down,
    EXPECT_EQ(GreyAt(60, 27), 20);   // the second stands up
    EXPECT_EQ(GreyAt(30, 20), 20);   // the first points left,
    EXPECT_EQ(GreyAt(90, 20), 20);   // the second right
}

TEST(OilPainting, PaintsNothingNewWithDabsOfOnePixel) {
    const CPixels src = NoisePicture(50, 30, 4);
    EXPECT_EQ(Difference(Applied(OilPainting, src, 1), Applied(OilPainting, src, -1)), "");
}

TEST(OilPainting, IsTheNaiveFormWhereMostDabsAreCovered) {
    // Enough fields that are done, and wider than the rest of the pictures here.
    const CPixels src = NoisePicture(2500, 130, 12);
    CRandomSequence random;
    CRandomSequence randomNaive;
    for (const int nLevel : {15, 16, 17, 33})
        EXPECT_EQ(Difference(Applied(OilPainting, src, {nLevel, 0}, random),
                             NaiveOilPainting(src, nLevel, randomNaive)),
                  "")
            << nLevel;
}

TEST(Tile, IsTwoHundredPixelsWideAtTheHighestLevel) {
    const CPixels tiled = Applied(Tile, CPixels::MakeFilled(450, 410, {0, 0, 0}), 10);
    for (int y = 0; y < 410; ++y)
        for (int x = 0; x < 450; ++x) {
            const bool bFirst = x % 200 == 0 || y % 200 == 0;
            const bool bNever = x % 200 > 2 && y % 200 > 2;
            if (bFirst) {
                ASSERT_EQ(PixelAt(tiled, x, y), (CColor{255, 255, 255})) << x << "," << y;
            }
            if (bNever) {
                ASSERT_EQ(PixelAt(tiled, x, y), (CColor{0, 0, 0})) << x << "," << y;
            }
        }
}

TEST(Laminate, HalvesAFlatPictureTwice) {
    EXPECT_EQ(PixelAt(Applied(Laminate, CPixels::MakeFilled(50, 40, {101, 200, 7}), 1), 3, 3),
              (CColor{100, 200, 6}));
    // One block that is higher than sums of sixteen bits can hold.
    EXPECT_EQ(PixelAt(Applied(Laminate, CPixels::MakeFilled(700, 701, {255, 255, 255}), 100), 0, 0).r, 254);
    // Behind the last block of the lowest row the corner stays.
    const CPixels laminated = Applied(Laminate, CPixels::MakeFilled(50, 40, {101, 101, 101}), 1);
    EXPECT_EQ(PixelAt(laminated, 39, 39).r, 100);
    EXPECT_EQ(PixelAt(laminated, 40, 39).r, 101);
    EXPECT_EQ(PixelAt(laminated, 49, 29).r, 100);
}

TEST(ConcaveMirror, LeavesACircleInBlackCorners) {
    const CPixels round = Applied(ConcaveMirror, CPixels::MakeFilled(101, 101, {255, 255, 255}));
    int nLight = 0;
    for (int y = 0; y < 101; ++y)
        for (int x = 0; x < 101; ++x) nLight += PixelAt(round, x, y) == kWhite565 ? 1 : 0;
    EXPECT_NEAR(nLight, 3.1416 * 50.5 * 50.5, 160);
    for (const int y : {0, 100}) {
        EXPECT_EQ(PixelAt(round, 49, y), kBlack565);
        EXPECT_EQ(PixelAt(round, 50, y), kWhite565);
        EXPECT_EQ(PixelAt(round, 51, y), kBlack565);
    }
    EXPECT_EQ(PixelAt(round, 50, 50), kWhite565);
    EXPECT_EQ(PixelAt(round, 0, 0), kBlack565);
}

}  // namespace
