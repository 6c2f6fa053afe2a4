#include <gtest/gtest.h>

#include <algorithm>
#include <climits>

#include "engines/effects/EffectForms.h"
#include "support/Pictures.h"
#include "support/ShortMemory.h"

namespace {

CxImage NoiseImage(int nWidth, int nHeight, unsigned nSeed) {
    return CxImage(MakePicture({nWidth, nHeight}, EKind::Noise, nSeed));
}

CPixels AfterEffect(CxImage image, EEffect effect, int nLevel, int nRefWidth, CRandomSequence& random) {
    EXPECT_TRUE(ApplyEffect(image, effect, nLevel, nRefWidth, random));
    return image.Pixels();
}

TEST(Engine, RunsTheEffectOfEachNumberAndLeavesAlphaAndEveryCopyAlone) {
    CxImage src = NoiseImage(67, 53, 1);
    std::vector<std::uint8_t> alpha(67 * 53);
    for (std::size_t i = 0; i < alpha.size(); ++i) alpha[i] = static_cast<std::uint8_t>(i);
    ASSERT_TRUE(src.SetAlpha(alpha));
    for (int nNumber = 0; nNumber < kEffectCount; ++nNumber) {
        CRandomSequence random, randomNaive;
        const CPixels expected =
            EffectForms()[static_cast<std::size_t>(nNumber)].naive(src.Pixels(), 7, 67, randomNaive);
        CxImage image = src;
        ASSERT_TRUE(ApplyEffect(image, EffectOf(nNumber), 7, 67, random));
        EXPECT_EQ(random.Words(), randomNaive.Words()) << nNumber;
        EXPECT_EQ(image.Pixels(), expected) << nNumber;
        EXPECT_NE(image.Pixels(), src.Pixels()) << nNumber;
        EXPECT_EQ(src.Pixels(), NoiseImage(67, 53, 1).Pixels()) << nNumber;
        EXPECT_TRUE(std::ranges::equal(image.Alpha(), alpha)) << nNumber;
    }
    CRandomSequence random;
    for (const int nNumber : {-1, 31, INT_MIN, INT_MAX})
        EXPECT_EQ(AfterEffect(src, EffectOf(nNumber), 50, 67, random), src.Pixels()) << nNumber;
    EXPECT_TRUE(AfterEffect(CxImage(), EEffect::Negative, 0, 0, random).IsEmpty());
}

TEST(Engine, InvertsAPictureThatNobodySharesWhereItStands) {
    const CxImage src = NoiseImage(37, 11, 4);
    CxImage image = NoiseImage(37, 11, 4);
    const std::uint8_t* const pBits = image.Pixels().View().pBits;
    CRandomSequence random;
    ASSERT_TRUE(ApplyEffect(image, EEffect::Negative, 0, 0, random));
    EXPECT_EQ(image.Pixels().View().pBits, pBits);
    EXPECT_EQ(image.Pixels(), AfterEffect(src, EEffect::Negative, 0, 0, random));
}

TEST(Engine, TakesSizesFromTheFullWidthAndElseFromThePicture) {
    CRandomSequence random;
    const auto Laminated = [&](int nLevel, int nRefWidth) {
        return AfterEffect(NoiseImage(60, 50, 4), EEffect::Laminate, nLevel, nRefWidth, random);
    };
    EXPECT_EQ(Laminated(4, 240), Laminated(1, 60)) << "blocks of 10 pixels";
    EXPECT_NE(Laminated(1, 240), Laminated(1, 60));
    for (const int nRefWidth : {0, -5}) EXPECT_EQ(Laminated(1, nRefWidth), Laminated(1, 60));
}

// Each allocation of an effect fails in turn, then the pixels of the result.
TEST(Engine, WithoutMemoryLeavesThePictureAndSaysSo) {
    const CxImage src = NoiseImage(200, 150, 6);
    CRandomSequence random;
    for (int nNumber = 0; nNumber < kEffectCount; ++nNumber) {
        const auto ExpectRefusal = [&](const CxImage& image, bool bDone, int n) {
            EXPECT_FALSE(bDone) << nNumber << ", " << n;
            EXPECT_TRUE(image.Pixels().SharesWith(src.Pixels())) << nNumber << ", " << n;
        };
        for (int n = 0;; ++n) {
            CxImage image = src;
            bool bDone = false;
            {
                const CShortMemory memory(n);
                bDone = ApplyEffect(image, EffectOf(nNumber), 7, 200, random);
            }
            if (bDone) break;
            ExpectRefusal(image, bDone, n);
        }
        CxImage image = src;
        const CBlockGate gate(1);
        ExpectRefusal(image, ApplyEffect(image, EffectOf(nNumber), 7, 200, random), -1);
    }
}

}  // namespace
