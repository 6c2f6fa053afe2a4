#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <random>

#include "engines/effects/Effects.h"
#include "engines/effects/ImageEffect.h"
#include "image/CpuChoice.h"
#include "support/Pictures.h"

namespace {

CxImage NoiseImage(int nWidth, int nHeight, unsigned nSeed) {
    std::mt19937 random(nSeed);
    CxImage image(nWidth, nHeight);
    for (std::uint8_t& n : image.MutableBytes()) n = static_cast<std::uint8_t>(random());
    return image;
}

CxImage Applied(CxImage image, EEffect effect, int nLevel) {
    CRandomSequence random;
    EXPECT_TRUE(ApplyEffect(image, effect, nLevel, image.GetWidth(), random));
    return image;
}

struct CNumbered {
    int nNumber;
    void (*apply)(const CEffectCall&);
};
constexpr CNumbered kNumbered[] = {
    {0, Brightness},   {1, Contrast},       {2, Chroma},     {3, Sharpness},
    {4, Negative},     {5, PureBlackWhite}, {6, BlackWhite}, {7, ColourSaturation},
    {8, OldPhoto},     {9, NoiseRemoval},   {10, Backlight}, {12, LowLightRepair},
    {13, Nostalgia},   {14, Moonlight},     {15, Haze1},     {16, Cool},
    {17, Haze2},       {18, Film},          {19, Art},       {20, CrystalFrame},
    {21, Jigsaw},      {22, OilPainting},   {23, Tile},      {24, Laminate},
    {25, Engrave},     {26, ConcaveMirror}, {27, Sketch},    {28, Refraction2},
    {29, Refraction1}, {30, Woodcut},
};

TEST(Engine, RunsTheEffectOfEachNumber) {
    const CxImage src = NoiseImage(67, 53, 1);
    for (const CNumbered& row : kNumbered) {
        for (const int nLevel : {7, 20}) {
            CPixels expected;
            ASSERT_TRUE(expected.Create(67, 53));
            CRandomSequence random;
            row.apply({src.Pixels().View(), expected.MutableView(), nLevel, 67, random});
            EXPECT_EQ(Applied(src, EffectOf(row.nNumber), nLevel).Pixels(), expected) << row.nNumber;
            EXPECT_NE(expected, src.Pixels()) << row.nNumber;
        }
    }
    CxImage equalised = src;
    ASSERT_TRUE(equalised.HistogramEqualize());
    EXPECT_EQ(Applied(src, EffectOf(11), 0).Pixels(), equalised.Pixels());
}

TEST(Engine, LeavesThePictureForNumbersThatAreNoEffect) {
    const CxImage src = NoiseImage(20, 20, 2);
    for (const int nNumber : {-1, 31, INT_MIN, INT_MAX})
        EXPECT_EQ(Applied(src, EffectOf(nNumber), 50).Pixels(), src.Pixels()) << nNumber;
    CxImage empty;
    CRandomSequence random;
    EXPECT_TRUE(ApplyEffect(empty, EEffect::Negative, 0, 0, random));
    EXPECT_FALSE(empty.IsValid());
}

TEST(Engine, KeepsAlphaAndLeavesEveryCopyAlone) {
    CxImage src = NoiseImage(40, 30, 3);
    std::vector<std::uint8_t> alpha(40 * 30);
    for (std::size_t i = 0; i < alpha.size(); ++i) alpha[i] = static_cast<std::uint8_t>(i);
    ASSERT_TRUE(src.SetAlpha(alpha));
    const std::vector<std::uint8_t> before(src.Pixels().Bytes().begin(), src.Pixels().Bytes().end());
    for (int nNumber = -1; nNumber <= 31; ++nNumber) {
        const CxImage result = Applied(src, EffectOf(nNumber), 10);
        EXPECT_TRUE(std::ranges::equal(src.Pixels().Bytes(), before)) << nNumber;
        EXPECT_TRUE(std::ranges::equal(result.Alpha(), alpha)) << nNumber;
        EXPECT_EQ(result.GetSize(), src.GetSize()) << nNumber;
    }
}

TEST(Engine, InvertsAPictureThatNobodySharesWhereItStands) {
    const CxImage src = NoiseImage(37, 11, 4);
    CxImage image = src;
    std::ranges::copy(src.Pixels().Bytes(), image.MutableBytes().begin());
    const std::uint8_t* const pBits = image.Pixels().View().pBits;
    ASSERT_NE(pBits, src.Pixels().View().pBits);
    CRandomSequence random;
    ASSERT_TRUE(ApplyEffect(image, EEffect::Negative, 0, 0, random));
    EXPECT_EQ(image.Pixels().View().pBits, pBits);
    EXPECT_EQ(image.Pixels(), Applied(src, EEffect::Negative, 0).Pixels());
    EXPECT_NE(image.Pixels(), src.Pixels());
}

TEST(Engine, TakesSizesFromTheFullWidthAndElseFromThePicture) {
    const CxImage src = NoiseImage(60, 50, 4);
    CRandomSequence random;
    const auto Laminated = [&](int nLevel, int nRefWidth) {
        CxImage image = src;
        EXPECT_TRUE(ApplyEffect(image, EEffect::Laminate, nLevel, nRefWidth, random));
        return image.Pixels();
    };
    EXPECT_EQ(Laminated(4, 240), Laminated(1, 60)) << "blocks of 10 pixels";
    EXPECT_NE(Laminated(1, 240), Laminated(1, 60));
    for (const int nRefWidth : {0, -5}) EXPECT_EQ(Laminated(1, nRefWidth), Laminated(1, 60));
}

TEST(Engine, GoesOnInItsRandomNumbersUntilTheyAreSeeded) {
    const CxImage src = NoiseImage(60, 50, 5);
    for (const EEffect effect : {EEffect::OilPainting, EEffect::Tile}) {
        CRandomSequence random;
        const auto Next = [&] {
            CxImage image = src;
            EXPECT_TRUE(ApplyEffect(image, effect, 5, 200, random));
            return image.Pixels();
        };
        const CPixels first = Next();
        EXPECT_NE(Next(), first);
        random.Seed(1);
        EXPECT_EQ(Next(), first);
    }
}

TEST(Engine, ChangesNothingAtLevelZeroButForTheWayThroughHue) {
    const CxImage src = NoiseImage(64, 48, 6);
    for (int nNumber = 0; nNumber < kEffectCount; ++nNumber) {
        if (!kEffects[static_cast<std::size_t>(nNumber)].bHasLevel) continue;
        CPixels expected = src.Pixels();
        if (EffectOf(nNumber) == EEffect::Chroma)
            for (int y = 0; y < 48; ++y)
                for (int x = 0; x < 64; ++x)
                    expected.MutableView().Set(x, y,
                                               ColorHSLtoRGB(ColorRGBtoHSL(PixelAt(src.Pixels(), x, y))));
        EXPECT_EQ(Applied(src, EffectOf(nNumber), 0).Pixels(), expected) << nNumber;
    }
}

TEST(Engine, GivesTheSamePictureWithAndWithoutWideVectors) {
    std::mt19937 random(7);
    for (int nRound = 0; nRound < 12; ++nRound) {
        const int nWidth = 1 + static_cast<int>(random() % 300);
        const int nHeight = 1 + static_cast<int>(random() % 200);
        const CxImage src = NoiseImage(nWidth, nHeight, static_cast<unsigned>(nRound));
        for (int nNumber = 0; nNumber < kEffectCount; ++nNumber) {
            const CEffectRow& row = kEffects[static_cast<std::size_t>(nNumber)];
            for (const int nLevel : {row.nMin, row.nMax / 3, row.nMax, 2 * row.nMax + 1}) {
                const CxImage wide = Applied(src, EffectOf(nNumber), nLevel);
                const CPlainLoops plain;
                ASSERT_EQ(Applied(src, EffectOf(nNumber), nLevel).Pixels(), wide.Pixels())
                    << nNumber << " at " << nLevel << ", " << nWidth << " by " << nHeight << ", seed "
                    << nRound;
            }
        }
    }
}

TEST(Engine, GivesColoursOfSixteenBitsWhereItWorksInThem) {
    const CxImage src = NoiseImage(200, 150, 8);
    for (const EEffect effect :
         {EEffect::Film, EEffect::CrystalFrame, EEffect::Engrave, EEffect::ConcaveMirror}) {
        int nBits = 0;
        const CxImage result = Applied(src, effect, 0);
        for (int y = 0; y < 150; ++y)
            for (int x = 0; x < 200; ++x) {
                const CColor cr = PixelAt(result.Pixels(), x, y);
                nBits |= (cr.r & 7) | (cr.g & 3) | (cr.b & 7);
            }
        EXPECT_EQ(nBits, 0) << NumberOf(effect);
    }
}

}  // namespace
