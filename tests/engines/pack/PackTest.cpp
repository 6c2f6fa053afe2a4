#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "engines/pack/PhoneJpeg.h"
#include "engines/pack/PhoneSizes.h"
#include "image/AtomicFile.h"
#include "image/FileBytes.h"
#include "image/JpegCodec.h"
#include "support/Pictures.h"
#include "support/TempFolder.h"

namespace {

using CBytes = std::vector<std::uint8_t>;

// Bytes that differ along the file and between files.
CBytes Numbered(std::size_t nSize, int nFactor) {
    CBytes bytes(nSize);
    for (std::size_t i = 0; i < nSize; ++i) bytes[i] = static_cast<std::uint8_t>(i * nFactor + i / 251);
    return bytes;
}

CBytes Packed(const CBytes& picture, const CBytes& thumb) {
    CBytes packed(7, 7);  // what was there is gone
    const bool bPacked = PackPhoneJpeg(picture, thumb, packed);
    EXPECT_NE(bPacked, packed.empty());
    return packed;
}

// The head of a file with a thumbnail of 5000 bytes, read off one by hand: hexadecimal pairs, texts in
// quotes.
constexpr char kHeadInHex[] =
    "FFD8 FFE1 1528 'Exif' 0000 'II' 2A00 08000000 0600"
    "1201 0300 01000000 01000000  1A01 0500 01000000 56000000  1B01 0500 01000000 5E000000"
    "2801 0300 01000000 02000000  1302 0300 01000000 02000000  6987 0400 01000000 66000000"
    "44010000 48000000 01000000 48000000 01000000 0B00"
    "0090 0700 04000000 '0210'    0390 0200 14000000 EC000000  0490 0200 14000000 00010000"
    "0191 0700 04000000 01020300  0291 0500 01000000 14010000  7C92 0700 0D000000 1C010000"
    "00A0 0700 04000000 '0100'    01A0 0300 01000000 01000000  02A0 0400 01000000 80020000"
    "03A0 0400 01000000 E0010000  05A0 0400 01000000 2A010000"
    "'0000:01:01 00:00:000' '0000:01:01 00:00:00' 00 02000000 02000000 07 '010001000100' 00 0200"
    "0100 0200 04000000 'R98' 00  0200 0700 04000000 '0100' 0700"
    "0301 0300 01000000 06000000  1201 0300 01000000 01000000  1A01 0500 01000000 9B010000"
    "1B01 0500 01000000 A2010000  2801 0300 01000000 02000000  0102 0400 01000000 AA010000"
    "0202 0400 01000000 76130000  48000000 01000000 48000000 01000000 FFD8";

CBytes FromHex(const std::string& strHex) {
    CBytes bytes;
    bool bText = false;
    for (std::size_t i = 0; i < strHex.size(); ++i) {
        if (strHex[i] == '\'') {
            bText = !bText;
        } else if (bText) {
            bytes.push_back(static_cast<std::uint8_t>(strHex[i]));
        } else if (strHex[i] != ' ') {
            bytes.push_back(static_cast<std::uint8_t>(std::stoi(strHex.substr(i++, 2), nullptr, 16)));
        }
    }
    return bytes;
}

TEST(PhoneJpeg, PutsBothFilesBehindTheHead) {
    const CBytes picture = Numbered(20000, 7), thumb = Numbered(5000, 11);
    CBytes expected = FromHex(kHeadInHex);
    ASSERT_EQ(expected.size(), 440U);
    expected.insert(expected.end(), thumb.begin() + 20, thumb.end());
    expected.insert(expected.end(), picture.begin() + 20, picture.end());
    EXPECT_EQ(Packed(picture, thumb), expected);

    // Nothing in the head but the two lengths depends on the files.
    for (const std::size_t nThumb : {20U, 673U, 65119U}) {
        const CBytes packed = Packed(Numbered(900, 3), Numbered(nThumb, 5));
        ASSERT_EQ(packed.size(), 900 + nThumb + 400);
        for (std::size_t i = 0; i < 440; ++i) {
            const bool bLength = i == 4 || i == 5 || i == 418 || i == 419;
            EXPECT_TRUE(bLength || packed[i] == expected[i]) << i;
        }
        EXPECT_EQ(packed[4] * 256U + packed[5], nThumb + 416);
        EXPECT_EQ(packed[418] + packed[419] * 256U, nThumb - 18);
    }
    for (const std::size_t nThumb : {0U, 19U, 65120U})
        EXPECT_TRUE(Packed(picture, Numbered(nThumb, 5)).empty());
    EXPECT_TRUE(Packed(Numbered(19, 1), thumb).empty());
}

// Of files as the program writes them, no more is cut than the phone has in the head already.
TEST(PhoneJpeg, IsThePictureThatWasPacked) {
    const CTempFolder folder;
    CAtomicFile file;
    ASSERT_TRUE(file.Open(folder.Path("plain.jpg")));
    ASSERT_TRUE(EncodeJpeg(NumberedPixels(200, 150), {}, file) && file.Commit());
    const CSharedBytes bytes = ReadFileBytes(folder.Path("plain.jpg"));
    const CBytes plain(bytes.Data(), bytes.Data() + bytes.Size()), packed = Packed(plain, plain);
    const std::span<const std::uint8_t> thumb(packed.data() + 438, plain.size() - 18);
    for (const std::optional<CJpegPicture>& picture : {DecodeJpeg(packed), DecodeJpeg(thumb)}) {
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->pixels, DecodeJpeg(plain)->pixels);
    }
}

TEST(PhoneSizes, OnlyTheFirstSizeDecides) {
    const std::vector<CSize> falling = {{640, 480}, {176, 144}}, rising = {{176, 144}, {640, 480}};
    EXPECT_TRUE(FitsPhone({640, 480}, falling));
    EXPECT_FALSE(FitsPhone({641, 10}, falling) || FitsPhone({10, 481}, falling));
    EXPECT_FALSE(FitsPhone({640, 480}, rising) || FitsPhone({1, 1}, {}));
    EXPECT_EQ(LargestPhoneSize(falling), (CSize{640, 480}));
    EXPECT_EQ(LargestPhoneSize(rising), (CSize{640, 480}));
    EXPECT_EQ(LargestPhoneSize(std::vector<CSize>{{176, 144}, {800, 600}, {176, 220}}), (CSize{176, 144}));
    EXPECT_EQ(LargestPhoneSize({}), CSize());
    EXPECT_TRUE(IsPhoneSize({176, 144}, falling));
    EXPECT_FALSE(IsPhoneSize({144, 176}, falling) || IsPhoneSize({0, 0}, {}));
    EXPECT_TRUE(IsAboveFileLimit(99, 2, 100) && IsAboveFileLimit(INT32_MAX, INT32_MAX, INT32_MAX));
    EXPECT_FALSE(IsAboveFileLimit(99, 1, 100) || IsAboveFileLimit(5000, 9000, -1));
    EXPECT_EQ(ThumbBox({400, 300}), (CSize{320, 240}));
    for (const CSize size : {CSize{400, 200}, CSize{400, 240}, CSize{320, 300}, CSize{176, 144}, CSize{0, 0}})
        EXPECT_EQ(ThumbBox(size), size);
}

TEST(PhoneSizes, ThumbnailsByHand) {
    const std::vector<CSize> sizes = {{640, 480}, {352, 288}, {176, 144}, {900, 400}};
    const struct {
        CSize picture, box;
        CThumbPlan plan;
    } arrCases[] = {
        {{640, 480}, {176, 144}, {{176, 144}, true}},
        {{900, 400}, {176, 144}, {{176, 144}, false}},
        {{640, 480}, {176, 145}, {{176, 132}, false}},
        {{300, 200}, {320, 240}, {{300, 200}, false}},
        {{200, 190}, {176, 144}, {{176, 167}, false}},
        {{150, 148}, {176, 144}, {{176, 173}, false}},
        {{60000, 20}, {176, 144}, {{176, 1}, false}},
        // What no phone tells, or one that is broken.
        {{640, 480}, {0, 0}, {{1, 1}, false}},
        {{640, 480}, {-5, INT32_MIN}, {{1, 1}, false}},
        {{60000, 50000}, {INT32_MAX, 100}, {{INT32_MAX, 1789569705}, false}},
    };
    for (const auto& one : arrCases)
        EXPECT_EQ(PlanThumb(one.picture, one.box, sizes), one.plan)
            << one.picture.cx << "x" << one.picture.cy;
}

// All sizes round about two boxes, against the rules in the order in which they are told.
TEST(PhoneSizes, ThumbnailsOfAllSizes) {
    for (const CSize box : {CSize{176, 144}, CSize{60, 90}})
        for (int w = 1; w <= 260; ++w)
            for (int h = 1; h <= 260; ++h) {
                CSize size{w, h};
                if (w > box.cx || h > box.cy) {
                    const bool bByHeight = h >= box.cy && w <= h;
                    size = bByHeight ? CSize{box.cy * w / h, box.cy} : CSize{box.cx, box.cx * h / w};
                    size = {std::max(size.cx, 1), std::max(size.cy, 1)};
                }
                ASSERT_EQ(PlanThumb({w, h}, box, {}), (CThumbPlan{size, false})) << w << "x" << h;
            }
}

}  // namespace
