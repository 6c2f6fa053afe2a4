#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "image/CpuChoice.h"
#include "image/TestPictures.h"

namespace {

using PixelOf = std::function<CColor(int x, int y)>;

// y counts from the bottom.
CxImage Build(int nWidth, int nHeight, const PixelOf& pixelOf) {
    CxImage image(nWidth, nHeight);
    for (int y = 0; y < nHeight; ++y) {
        for (int x = 0; x < nWidth; ++x) image.SetPixelColor(x, y, pixelOf(x, y));
    }
    return image;
}

// The pixels must be the wanted ones, and the alpha, which was the red channel, must have gone with them.
void ExpectLike(const CxImage& image, const CxImage& wanted) {
    ASSERT_EQ(image.GetSize(), wanted.GetSize());
    ASSERT_EQ(image.Pixels(), wanted.Pixels());
    ASSERT_EQ(image.Alpha().size() * 3, image.Pixels().Bytes().size());
    for (std::size_t i = 0; i < image.Alpha().size(); ++i)
        ASSERT_EQ(image.Alpha()[i], image.Pixels().Bytes()[3 * i]);
}

CxImage WithAlpha(CxImage image) {
    Bytes alpha;
    for (std::size_t i = 0; i < image.Pixels().Bytes().size(); i += 3)
        alpha.push_back(image.Pixels().Bytes()[i]);
    EXPECT_TRUE(image.SetAlpha(alpha));
    return image;
}

void CheckTurns(const CxImage& source) {
    const int w = source.GetWidth();
    const int h = source.GetHeight();
    CxImage image = source;
    ASSERT_TRUE(image.Mirror());
    ExpectLike(image, Build(w, h, [&](int x, int y) { return source.GetPixelColor(w - 1 - x, y); }));
    image = source;
    ASSERT_TRUE(image.Flip());
    ExpectLike(image, Build(w, h, [&](int x, int y) { return source.GetPixelColor(x, h - 1 - y); }));
    image = source;
    ASSERT_TRUE(image.Rotate180());
    ExpectLike(image, Build(w, h, [&](int x, int y) { return source.GetPixelColor(w - 1 - x, h - 1 - y); }));
    // Clockwise: the left column becomes the top row, its lower end at the left.
    image = source;
    ASSERT_TRUE(image.Rotate(90.0));
    ExpectLike(image, Build(h, w, [&](int x, int y) { return source.GetPixelColor(w - 1 - y, x); }));
    image = source;
    ASSERT_TRUE(image.Rotate(-90.0));
    ExpectLike(image, Build(h, w, [&](int x, int y) { return source.GetPixelColor(y, h - 1 - x); }));
}

void CheckResample(const CxImage& source, int nWidth, int nHeight) {
    CxImage image = source;
    ASSERT_TRUE(image.Resample(nWidth, nHeight));
    const float fX = static_cast<float>(source.GetWidth()) / static_cast<float>(nWidth);
    const float fY = static_cast<float>(source.GetHeight()) / static_cast<float>(nHeight);
    ExpectLike(image, Build(nWidth, nHeight, [&](int x, int y) {
                   return source.GetPixelColor(static_cast<int>(static_cast<float>(x) * fX),
                                               static_cast<int>(static_cast<float>(y) * fY));
               }));
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
    CheckResample(source, 128, 96);
    CheckResample(source, 32, 24);
    CheckResample(source, 1, 1);
}

TEST(Geometry, ScalingCountsRowsFromTheBottom) {
    // Three rows become two: from the bottom 0 * 1.5 and 1 * 1.5, so the top row is the one that goes.
    CxImage image = Build(1, 3, [](int, int y) { return CColor{static_cast<std::uint8_t>(10 * y), 0, 0}; });
    ASSERT_TRUE(image.Resample(1, 2));
    EXPECT_EQ(image.GetPixelColor(0, 0).r, 0);
    EXPECT_EQ(image.GetPixelColor(0, 1).r, 10);
}

TEST(Geometry, WhatMakesNoSenseChangesNothing) {
    CxImage image = SmoothPicture(8, 5);
    const CxImage before = image;
    EXPECT_FALSE(image.Rotate(45.0));
    EXPECT_FALSE(image.Resample(0, 5));
    EXPECT_FALSE(image.Resample(5, -1));
    EXPECT_FALSE(image.Resample(4, 4, 0));
    EXPECT_FALSE(image.ReplacePixels(SmoothPicture(5, 8).Pixels()));
    EXPECT_TRUE(image.Pixels().SharesWith(before.Pixels()));
    image.SetPixelColor(8, 0, {255, 255, 255});
    image.SetPixelColor(0, -1, {255, 255, 255});
    EXPECT_EQ(image.Pixels(), before.Pixels());
    EXPECT_EQ(image.GetPixelColor(8, 0), CColor{});
    EXPECT_EQ(image.GetPixelColor(0, 5), CColor{});

    CxImage empty;
    EXPECT_FALSE(empty.Rotate(90.0) || empty.Rotate180() || empty.Flip() || empty.Mirror() ||
                 empty.Resample(3, 3) || empty.HistogramEqualize());
    EXPECT_EQ(empty.GetPixelColor(0, 0), CColor{});
}

}  // namespace
