#include <gtest/gtest.h>

#include <optional>

#include "image/CpuChoice.h"
#include "image/TestPictures.h"
#include "support/Pictures.h"

namespace {

// A picture whose alpha is its red channel.
CxImage WithAlpha(CxImage image) {
    Bytes alpha;
    for (std::size_t i = 0; i < image.Pixels().Bytes().size(); i += 3)
        alpha.push_back(image.Pixels().Bytes()[i]);
    EXPECT_TRUE(image.SetAlpha(alpha));
    return image;
}

// The pixels must be the wanted ones, and the alpha must have gone with them.
void ExpectLike(const CxImage& image, bool bDone, const CPixels& wanted) {
    ASSERT_TRUE(bDone);
    ASSERT_EQ(Difference(image.Pixels(), wanted), "");
    ASSERT_EQ(image.Alpha().size() * 3, image.Pixels().Bytes().size());
    for (std::size_t i = 0; i < image.Alpha().size(); ++i)
        ASSERT_EQ(image.Alpha()[i], image.Pixels().Bytes()[3 * i]);
}

void CheckTurns(const CxImage& source) {
    const CPixels& pixels = source.Pixels();
    CxImage image = source;
    ExpectLike(image, image.Mirror(), NaiveFlip(pixels, false));
    image = source;
    ExpectLike(image, image.Flip(), NaiveFlip(pixels, true));
    image = source;
    ExpectLike(image, image.Rotate180(), NaiveFlip(NaiveFlip(pixels, true), false));
    image = source;
    ExpectLike(image, image.Rotate(90.0), NaiveTurn(pixels, true));
    image = source;
    ExpectLike(image, image.Rotate(-90.0), NaiveTurn(pixels, false));
}

void CheckResample(const CxImage& source, int nWidth, int nHeight) {
    CxImage image = source;
    ExpectLike(image, image.Resample(nWidth, nHeight), NaiveResample(source.Pixels(), nWidth, nHeight));
}

TEST(Geometry, TurnsAndScalesLikeTheNaiveForm) {
    const unsigned nSeed = TestSeed();
    std::mt19937 random(nSeed);
    const auto side = [&](unsigned nMost) { return 1 + static_cast<int>(random() % nMost); };
    for (int i = 0; i < 60; ++i) {
        std::optional<CPlainLoops> plain;
        if (i % 2 == 0) plain.emplace();
        // Every third picture reaches over the edge of a block.
        const CxImage source =
            WithAlpha(RandomPicture(random, side(i % 3 == 0 ? 200 : 40), side(i % 3 == 0 ? 160 : 40)));
        SCOPED_TRACE(testing::Message() << "seed " << nSeed << ", picture " << i << ": " << source.GetWidth()
                                        << " by " << source.GetHeight());
        CheckTurns(source);
        CheckResample(source, side(90), side(90));
    }
    const CxImage source = WithAlpha(RandomPicture(random, 64, 48));
    for (const CSize size : {CSize{128, 96}, {32, 24}, {1, 1}}) CheckResample(source, size.cx, size.cy);
}

TEST(Geometry, ValuesWorkedOutByHand) {
    // Rows 0, 1, 2 from the bottom become two: 0 * 1.5 and 1 * 1.5, so the top row is the one that goes.
    CxImage image(1, 3);
    for (int y = 0; y < 3; ++y) image.SetPixelColor(0, y, {static_cast<std::uint8_t>(10 * y), 0, 0});
    CxImage turned = image;
    ASSERT_TRUE(image.Resample(1, 2));
    EXPECT_EQ(image.GetPixelColor(0, 0).r, 0);
    EXPECT_EQ(image.GetPixelColor(0, 1).r, 10);
    // Clockwise: the left column becomes the top row, its lower end at the left.
    ASSERT_TRUE(turned.Rotate(90.0));
    EXPECT_EQ(turned.GetPixelColor(0, 0).r, 0);
    EXPECT_EQ(turned.GetPixelColor(2, 0).r, 20);
}

TEST(Geometry, WhatMakesNoSenseChangesNothing) {
    CxImage image = SmoothPicture(8, 5);
    const CxImage before = image;
    EXPECT_FALSE(image.Rotate(45.0) || image.Resample(0, 5) || image.Resample(5, -1) ||
                 image.Resample(4, 4, 0) || image.ReplacePixels(SmoothPicture(5, 8).Pixels()));
    EXPECT_TRUE(image.Pixels().SharesWith(before.Pixels()));
    image.SetPixelColor(8, 0, {255, 255, 255});
    image.SetPixelColor(0, -1, {255, 255, 255});
    EXPECT_EQ(image.Pixels(), before.Pixels());
    EXPECT_EQ(image.GetPixelColor(8, 0), CColor{});
    EXPECT_EQ(image.GetPixelColor(0, 5), CColor{});

    EXPECT_FALSE(image.SetAlpha(Bytes(5)));
    CxImage empty;
    EXPECT_FALSE(empty.Rotate(90.0) || empty.Rotate180() || empty.Flip() || empty.Mirror() ||
                 empty.Resample(3, 3) || empty.HistogramEqualize());
    EXPECT_EQ(empty.GetPixelColor(0, 0), CColor{});
}

}  // namespace
