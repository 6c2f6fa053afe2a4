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

}  // namespace
