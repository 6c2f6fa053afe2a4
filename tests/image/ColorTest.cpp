#include <gtest/gtest.h>

#include "image/CpuChoice.h"
#include "image/TestPictures.h"

namespace {

// One number for what a formula makes of all colours there are.
std::uint64_t SumOf(CColor (*formula)(CColor)) {
    std::uint64_t nSum = 0;
    for (std::uint32_t n = 0; n < 1U << 24; ++n) nSum = nSum * 31 + formula(CColor::FromRef(n)).ToRef();
    return nSum;
}

// A second form of the formulas, made from their text by another hand, came to the same numbers.
TEST(Color, EveryColourConvertsAsItDid) {
    EXPECT_EQ(SumOf(CxImage::RGBtoYUV), 16228946541559797041U);
    EXPECT_EQ(SumOf(CxImage::YUVtoRGB), 13804398442739216640U);
    EXPECT_EQ(SumOf(CxImage::RGBtoHSL), 9134129385949357184U);
    EXPECT_EQ(SumOf(CxImage::HSLtoRGB), 14245918036059119471U);
}

TEST(Color, EqualisationSpreadsTheLuminances) {
    const unsigned nSeed = TestSeed();
    SCOPED_TRACE(nSeed);
    std::mt19937 random(nSeed);
    CxImage before = RandomPicture(random, 53, 37);
    for (std::uint8_t& n : before.MutableBytes()) n = static_cast<std::uint8_t>(n / 3 + 20);
    const std::span<const std::uint8_t> bytes = before.Pixels().Bytes();
    double count[256] = {};
    for (std::size_t n = 0; n < bytes.size(); n += 3)
        for (int i = (117 * bytes[n + 2] + 601 * bytes[n + 1] + 306 * bytes[n]) / 1024; i < 256; ++i)
            count[i] += 1;
    CxImage wanted = before;
    for (int y = 0; y < 37; ++y) {
        for (int x = 0; x < 53; ++x) {
            CColor yuv = CxImage::RGBtoYUV(before.GetPixelColor(x, y));
            yuv.r = static_cast<std::uint8_t>((count[yuv.r] - count[0]) * 255 / (count[255] - count[0]));
            wanted.SetPixelColor(x, y, CxImage::YUVtoRGB(yuv));
        }
    }
    CxImage wide = before, plain = before, black(3, 3);
    ASSERT_TRUE(wide.HistogramEqualize() && black.HistogramEqualize());
    EXPECT_EQ(black.Pixels(), CxImage(3, 3).Pixels()) << "with all greys 0 nothing happens";
    const CPlainLoops loops;
    ASSERT_TRUE(plain.HistogramEqualize());
    EXPECT_EQ(wide.Pixels(), wanted.Pixels());
    EXPECT_EQ(plain.Pixels(), wanted.Pixels());
}

}  // namespace
