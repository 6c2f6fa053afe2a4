// A frame over a picture, against a second form made of a stretched picture and single pixels.

#include "compose/FrameRecord.h"

#include <gtest/gtest.h>

#include <random>

#include "image/CpuChoice.h"
#include "support/Pictures.h"

namespace {

using CRecord = std::vector<std::uint8_t>;

// Colours in no order, with many that are the key or nearly so.
CRecord MakeRecord(std::uint32_t nSeed) {
    std::minstd_rand random(nSeed);
    CRecord arrRecord(kFrameRecordBytes);
    for (std::size_t i = 0; i < arrRecord.size(); i += 3) {
        const bool bNear = random() % 2 == 0;
        arrRecord[i] = static_cast<std::uint8_t>(bNear ? 253 + random() % 3 : random());
        arrRecord[i + 1] = static_cast<std::uint8_t>(bNear ? random() % 3 : random());
        arrRecord[i + 2] = static_cast<std::uint8_t>(bNear ? random() % 3 : random());
    }
    return arrRecord;
}

CPixels NaiveFrame(const CRecord& arrRecord, const CPixels& pixels) {
    CxImage frame(kFrameRecord.cx, kFrameRecord.cy);
    std::copy(arrRecord.begin(), arrRecord.end(), frame.MutableBytes().begin());
    EXPECT_TRUE(frame.Resample(pixels.Width(), pixels.Height()));
    CPixels result = pixels;
    const CPixelView view = result.MutableView();
    for (int y = 0; y < pixels.Height(); ++y)
        for (int x = 0; x < pixels.Width(); ++x) {
            const CColor color = PixelAt(frame.Pixels(), x, y);
            const bool bKey =
                (color.r == 254 || color.r == 255) && (color.g == 0 || color.g == 1) && color.b < 2;
            if (!bKey) view.Set(x, y, color);
        }
    return result;
}

}  // namespace

TEST(FrameRecord, CoversThePictureAsTheStretchedFrameWould) {
    const CRecord arrRecord = MakeRecord(7);
    for (const CSize size : {CSize{640, 480}, CSize{1, 1}, CSize{3, 700}, CSize{641, 481}, CSize{177, 1201},
                             CSize{1500, 37}, CSize{1281, 960}, CSize{33, 33}, CSize{2050, 1999}})
        for (const bool bPlain : {false, true}) {
            SCOPED_TRACE(std::to_string(size.cx) + " by " + std::to_string(size.cy));
            std::optional<CPlainLoops> plain;
            if (bPlain) plain.emplace();
            CxImage image = NumberedImage(size.cx, size.cy);
            const CxImage bare = image;
            ASSERT_TRUE(LayFrame(arrRecord.data(), image));
            EXPECT_EQ(Difference(image.Pixels(), NaiveFrame(arrRecord, bare.Pixels())), "");
            EXPECT_EQ(bare.Pixels(), NumberedPixels(size.cx, size.cy)) << "the copy has changed too";
        }
}

TEST(FrameRecord, KeepsTheAlphaAndTakesNoEmptyPicture) {
    const CRecord arrRecord = MakeRecord(8);
    CxImage image = NumberedImage(20, 10);
    const std::vector<std::uint8_t> arrAlpha(200, 77);
    ASSERT_TRUE(image.SetAlpha(arrAlpha) && LayFrame(arrRecord.data(), image));
    EXPECT_TRUE(std::equal(arrAlpha.begin(), arrAlpha.end(), image.Alpha().begin(), image.Alpha().end()));
    CxImage none;
    EXPECT_FALSE(LayFrame(arrRecord.data(), none));
}

TEST(FrameRecord, TheKeyHasEightColours) {
    int nKeys = 0;
    for (int r = 250; r < 256; ++r)
        for (int g = 0; g < 5; ++g)
            for (int b = 0; b < 5; ++b)
                nKeys += IsFrameKey({static_cast<std::uint8_t>(r), static_cast<std::uint8_t>(g),
                                     static_cast<std::uint8_t>(b)})
                             ? 1
                             : 0;
    EXPECT_EQ(nKeys, 8);
    EXPECT_TRUE(IsFrameKey({254, 1, 1}));
    EXPECT_FALSE(IsFrameKey({253, 0, 0}) || IsFrameKey({255, 2, 0}) || IsFrameKey({255, 0, 2}));
}
