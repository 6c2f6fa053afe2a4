#include "image/Pixels.h"

#include <gtest/gtest.h>

#include "image/BlockGate.h"
#include "image/TestPictures.h"

namespace {

// Pictures and a model of each that shares nothing: whatever is done to one of them, every other one must
// stay.
TEST(Pixels, AWriteIsNeverSeenThroughAnotherCopy) {
    const unsigned nSeed = TestSeed();
    SCOPED_TRACE(nSeed);
    std::mt19937 random(nSeed);
    for (const int nSide : {9, 1300}) {  // small blocks, and large ones that are kept for the next picture
        std::vector<CxImage> images(4, RandomPicture(random, nSide, nSide));
        std::vector<Bytes> models;
        models.reserve(images.size());
        for (const CxImage& image : images)
            models.emplace_back(image.Pixels().Bytes().begin(), image.Pixels().Bytes().end());

        for (int nStep = 0; nStep < 60; ++nStep) {
            const std::size_t a = random() % images.size();
            const std::size_t b = random() % images.size();
            const int x = static_cast<int>(random() % static_cast<unsigned>(nSide));
            const int y = static_cast<int>(random() % static_cast<unsigned>(nSide));
            const auto nAt = 3 * static_cast<std::size_t>((nSide - 1 - y) * nSide + x);
            const unsigned nWay = random() % 4;
            if (nWay == 0) {
                images[a] = images[b];
                models[a] = models[b];
            } else if (nWay == 1) {
                CPixels stale = images[a].Pixels();
                images[a].SetPixelColor(x, y, {3, 5, 7});
                stale.MutableBytes()[0] ^= 0xFF;
                for (std::size_t c = 0; c < 3; ++c) models[a][nAt + c] = static_cast<std::uint8_t>(3 + 2 * c);
            } else if (nWay == 2) {
                images[a].MutableBytes()[nAt] = models[a][nAt] = 1;
            } else {
                CxImage other = images[a];
                ASSERT_TRUE(other.Mirror() && other.HistogramEqualize());
            }
            for (std::size_t i = 0; i < images.size(); ++i) {
                ASSERT_TRUE(std::ranges::equal(images[i].Pixels().Bytes(), models[i]))
                    << "step " << nStep << " image " << i;
            }
        }
    }
}

TEST(Pixels, CopiesCostNothingUntilAWrite) {
    const CxImage image = SmoothPicture(20, 10);
    CxImage copy = image;
    EXPECT_TRUE(copy.Pixels().SharesWith(image.Pixels()));
    EXPECT_TRUE(copy.Resample(20, 10)) << "the same size is a plain copy";
    EXPECT_EQ(copy.GetPixelColor(3, 3), image.GetPixelColor(3, 3));
    EXPECT_TRUE(copy.Pixels().SharesWith(image.Pixels()));

    copy.SetPixelColor(0, 0, {1, 2, 3});
    EXPECT_FALSE(copy.Pixels().SharesWith(image.Pixels()));
    const std::uint8_t* const pBits = copy.Pixels().Bytes().data();
    copy.SetPixelColor(1, 0, {1, 2, 3});
    EXPECT_EQ(copy.Pixels().Bytes().data(), pBits) << "an unshared picture is written where it stands";
}

TEST(Pixels, SizesThatCannotBeHeldAreRefused) {
    CxImage image = SmoothPicture(5, 4);
    // 2 GiB of pixels are the limit.
    for (const CSize size : {CSize{0, 10}, {10, 0}, {-3, 10}, {65500, 65500}, {INT32_MAX, 1}}) {
        EXPECT_FALSE(image.Create(size.cx, size.cy) || image.Resample(size.cx, size.cy)) << size.cx;
        EXPECT_FALSE(CxImage(size.cx, size.cy).IsValid()) << size.cx;
        EXPECT_EQ(image.Pixels(), SmoothPicture(5, 4).Pixels()) << size.cx;
    }
    EXPECT_FALSE(CPixels::Fits(26755, 26755));
    EXPECT_FALSE(CxImage(4, 4, 7).IsValid()) << "no such depth";
}

// The n-th block that an operation takes is refused, until it needs no more of them. Small pictures never
// come near the gate; the large one's blocks are kept ones from the second round on.
TEST(Pixels, WithoutMemoryEveryOperationLeavesThePictureAsItWas) {
    const std::pair<const char*, bool (*)(CxImage&)> operations[] = {
        {"write", [](CxImage& image) { return !image.MutableBytes().empty(); }},
        {"create", [](CxImage& image) { return image.Create(1500, 1000); }},
        {"scale", [](CxImage& image) { return image.Resample(1600, 999); }},
        {"turn", [](CxImage& image) { return image.Rotate(90.0); }},
        {"flip", [](CxImage& image) { return image.Flip(); }},
        {"alpha", [](CxImage& image) { return image.SetAlpha(Bytes(1500 * 1000, 9)); }},
        {"equalise", [](CxImage& image) { return image.HistogramEqualize(); }},
    };
    CxImage source = SmoothPicture(1500, 1000);
    ASSERT_TRUE(source.SetAlpha(Bytes(1500 * 1000, 77)));
    for (const auto& [szName, operate] : operations) {
        bool bDone = false;
        for (int n = 1; !bDone; ++n) {
            CxImage image = source;
            const CBlockGate gate(n);
            bDone = operate(image);
            EXPECT_EQ(bDone, !gate.HasRefused()) << szName << ", block " << n;
            EXPECT_EQ(gate.Count(), bDone ? n - 1 : n) << szName;
            if (bDone) break;
            EXPECT_TRUE(image.Pixels().SharesWith(source.Pixels())) << szName << ", block " << n;
            EXPECT_EQ(image.Alpha().data(), source.Alpha().data()) << szName << ", block " << n;
        }
    }
    const CBlockGate gate(1);
    CPixels small;
    EXPECT_TRUE(small.Create(128, 128)) << "below the gate";
    EXPECT_FALSE(CPixels().Create(148, 148));
    EXPECT_TRUE(CPixels().Create(148, 148)) << "one block only is refused";
    EXPECT_EQ(gate.Count(), 2);
}

TEST(Pixels, ABlockThatIsKeptIsHandedOutOnceAndShowsNothingOfWhatItHeld) {
    for (int nRound = 0; nRound < 3; ++nRound) {
        const CPixels first = CPixels::MakeFilled(2000, 1000, {1, 1, 1});
        const CPixels second = CPixels::MakeFilled(2000, 1000, {2, 3, 4});
        EXPECT_EQ(first.View().Get(1999, 999), (CColor{1, 1, 1}));
        EXPECT_EQ(second.View().Get(1999, 999), (CColor{2, 3, 4}));
        EXPECT_EQ(CxImage(2000, 1000).GetPixelColor(700, 500), CColor{});
    }
}

}  // namespace
