#include <gtest/gtest.h>

#include "image/JpegCodec.h"
#include "image/JpegFiles.h"
#include "image/TestPictures.h"

namespace {

class Jpeg : public CFolderTest {
  protected:
    CxImage Load(const Bytes& file) const {
        WriteBytes(Path("a.jpg"), file);
        return LoadPicture(Path("a.jpg"), ImageType::kJpeg);
    }
};

// The picture as a camera stores it that marks it so.
CxImage StoredAs(const CxImage& upright, int nOrientation) {
    CxImage image = upright;
    if (nOrientation >= 5) {
        EXPECT_TRUE(image.Rotate(nOrientation == 5 || nOrientation == 8 ? 90.0 : -90.0));
    } else if (nOrientation >= 3) {
        EXPECT_TRUE(image.Rotate180());
    }
    if (nOrientation == 2 || nOrientation == 4 || nOrientation == 5 || nOrientation == 7) {
        EXPECT_TRUE(image.Mirror());
    }
    return image;
}

TEST_F(Jpeg, EveryOrientationStandsUpright) {
    const CxImage upright = SmoothPicture(48, 32);
    for (int nOrientation = 1; nOrientation <= 8; ++nOrientation) {
        for (const bool bBigEndian : {false, true}) {
            const Bytes exif = ExifSegment(static_cast<std::uint8_t>(nOrientation), bBigEndian);
            const CxImage image = Load(WithSegment(MakeJpeg(StoredAs(upright, nOrientation)), exif));
            ASSERT_EQ(image.GetSize(), upright.GetSize()) << nOrientation;
            EXPECT_LE(LargestDifference(image, upright), 6) << nOrientation;

            const CScaledImage scaled = LoadJpegScaled(Path("a.jpg"), 12, 8);
            EXPECT_EQ(scaled.sizeFull, upright.GetSize());
            ASSERT_EQ(scaled.image.GetSize(), (CSize{12, 8})) << nOrientation;
            CxImage small = upright;
            ASSERT_TRUE(small.Resample(12, 8));
            EXPECT_LE(LargestDifference(scaled.image, small), 40) << nOrientation;
        }
    }
}

TEST_F(Jpeg, MalformedExifIsPassedOver) {
    const CxImage picture = SmoothPicture(16, 24);
    const Bytes file = MakeJpeg(picture);
    const Bytes sound = ExifSegment(6, true);
    for (std::size_t nCut = 0; nCut < 36; ++nCut) {
        EXPECT_EQ(
            Load(WithSegment(file, Bytes(sound.begin(), sound.begin() + static_cast<long>(nCut)))).GetSize(),
            picture.GetSize());
    }
    for (const auto nValue : std::initializer_list<std::uint8_t>{0, 9, 255}) {
        EXPECT_EQ(Load(WithSegment(file, ExifSegment(nValue, false))).GetSize(), picture.GetSize());
    }
    Bytes farAway = sound;
    farAway[10] = 0xFF;  // the directory lies far behind the end
    EXPECT_EQ(Load(WithSegment(file, farAway)).GetSize(), picture.GetSize());
    Bytes manyEntries = sound;
    manyEntries[14] = 0xFF;
    EXPECT_TRUE(Load(WithSegment(file, manyEntries)).IsValid());
}

TEST_F(Jpeg, GreyInkAndProgressiveFilesComeOutRight) {
    const CxImage picture = SmoothPicture(40, 24);
    CJpegKind kind;
    kind.bProgressive = true;
    EXPECT_LE(LargestDifference(Load(MakeJpeg(picture, kind)), picture), 6);
    kind = {JCS_RGB, JCS_RGB, false, false, 100};
    EXPECT_LE(LargestDifference(Load(MakeJpeg(picture, kind)), picture), 3);

    Bytes grey(40 * 24);
    for (std::size_t i = 0; i < grey.size(); ++i) grey[i] = static_cast<std::uint8_t>(i / 4);
    const CxImage greyImage = Load(MakeJpeg(grey, 40, 24, {JCS_GRAYSCALE, JCS_GRAYSCALE, false, false, 100}));
    ASSERT_TRUE(greyImage.IsValid());
    EXPECT_EQ(greyImage.GetBpp(), 8);
    for (std::size_t i = 0; i < grey.size(); ++i) {
        for (std::size_t c = 0; c < 3; ++c) ASSERT_NEAR(greyImage.Pixels().Bytes()[3 * i + c], grey[i], 2);
    }

    // Ink: cyan, magenta, yellow without black. With the mark of the maker a full sample means no ink.
    const auto rgb = picture.Pixels().Bytes();
    for (const bool bAdobeMark : {true, false}) {
        Bytes ink;
        for (std::size_t i = 0; i < rgb.size(); i += 3) {
            for (std::size_t c = 0; c < 3; ++c)
                ink.push_back(static_cast<std::uint8_t>(bAdobeMark ? rgb[i + c] : 255 - rgb[i + c]));
            ink.push_back(bAdobeMark ? 255 : 0);
        }
        const CxImage image = Load(MakeJpeg(ink, 40, 24, {JCS_CMYK, JCS_CMYK, false, bAdobeMark, 100}));
        EXPECT_LE(LargestDifference(image, picture), 5) << bAdobeMark;
        if (!bAdobeMark) continue;
        EXPECT_LE(
            LargestDifference(Load(MakeJpeg(ink, 40, 24, {JCS_CMYK, JCS_YCCK, true, true, 100})), picture),
            6);
    }
}

TEST_F(Jpeg, AFileCutAnywhereIsNotValid) {
    CJpegKind kind;
    for (const bool bProgressive : {false, true}) {
        kind.bProgressive = bProgressive;
        const Bytes file = MakeJpeg(SmoothPicture(70, 50), kind);
        for (std::size_t n = 0; n < file.size(); ++n) {
            ASSERT_FALSE(DecodeJpeg(std::span(file).first(n))) << n << " of " << file.size();
        }
        EXPECT_TRUE(Load(file).IsValid());
        // More behind the end is nobody's harm: telephones hide films there.
        Bytes longer = file;
        longer.resize(longer.size() + 1000, 0x55);
        EXPECT_TRUE(Load(longer).IsValid());
        EXPECT_FALSE(LoadJpegScaled(Path("missing.jpg"), 10, 10).image.IsValid());
        WriteBytes(Path("a.jpg"), Bytes(file.begin(), file.end() - 30));
        EXPECT_FALSE(LoadJpegScaled(Path("a.jpg"), 10, 10).image.IsValid());
    }
}

TEST_F(Jpeg, HugeClaimsAreRefusedBeforeMemoryIsTaken) {
    const Bytes file = MakeJpeg(SmoothPicture(16, 16));
    EXPECT_FALSE(Load(WithClaimedSize(file, 65500, 65500)).IsValid());
    EXPECT_FALSE(Load(WithClaimedSize(file, 30000, 30000)).IsValid());
    EXPECT_FALSE(Load(WithClaimedSize(file, 0, 16)).IsValid());
    WriteBytes(Path("huge.jpg"), WithClaimedSize(file, 65500, 65500));
    EXPECT_FALSE(LoadJpegScaled(Path("huge.jpg"), 10, 10).image.IsValid());

    // One scan over and over: little to store, much to decode.
    CJpegKind kind;
    kind.bProgressive = true;
    Bytes bomb = MakeJpeg(SmoothPicture(16, 16), kind);
    std::size_t nScan = bomb.size() - 2;
    while (bomb[nScan] != 0xFF || bomb[nScan + 1] != 0xDA) --nScan;
    const Bytes scan(bomb.begin() + static_cast<long>(nScan), bomb.end() - 2);
    bomb.erase(bomb.end() - 2, bomb.end());
    for (int i = 0; i < 600; ++i) bomb.insert(bomb.end(), scan.begin(), scan.end());
    bomb.insert(bomb.end(), {0xFF, 0xD9});
    EXPECT_FALSE(Load(bomb).IsValid());
}

TEST_F(Jpeg, ScaledSizesAreTheSmallestThatCover) {
    WriteBytes(Path("a.jpg"), MakeJpeg(SmoothPicture(203, 99)));
    for (int nWidth = 0; nWidth <= 220; nWidth += 3) {
        for (const int nHeight : {1, 13, 50, 99, 120}) {
            const CScaledImage scaled = LoadJpegScaled(Path("a.jpg"), nWidth, nHeight);
            int nScale = 1;
            while (nScale < 8 && ((203 * nScale + 7) / 8 < nWidth || (99 * nScale + 7) / 8 < nHeight))
                ++nScale;
            ASSERT_EQ(scaled.image.GetSize(), (CSize{(203 * nScale + 7) / 8, (99 * nScale + 7) / 8}))
                << nWidth << ' ' << nHeight;
            ASSERT_EQ(scaled.sizeFull, (CSize{203, 99}));
        }
    }
}

TEST_F(Jpeg, WrittenFilesHaveTheAgreedForm) {
    CxImage image = SmoothPicture(33, 17);
    ASSERT_TRUE(image.Save(Path("a.jpg"), ImageType::kJpeg));
    const Bytes file = BytesOf(Path("a.jpg"));
    // Start mark, sixteen bytes of JFIF 1.01 with 96 dots per inch and no thumbnail, then the tables at
    // byte 20.
    const Bytes head = {0xFF, 0xD8, 0xFF, 0xE0, 0,  16, 'J', 'F', 'I', 'F',  0,
                        1,    1,    1,    0,    96, 0,  96,  0,   0,   0xFF, 0xDB};
    ASSERT_GT(file.size(), head.size());
    EXPECT_TRUE(std::equal(head.begin(), head.end(), file.begin()));
    // The first luminance step of the usual table, 16, at quality 90 is 3; the frame is baseline, 4:2:0.
    EXPECT_EQ(file[25], 3);
    const Bytes frame = {0xFF, 0xC0, 0, 17, 8, 0, 17, 0, 33, 3, 1, 0x22, 0, 2, 0x11, 1, 3, 0x11, 1};
    EXPECT_NE(std::search(file.begin(), file.end(), frame.begin(), frame.end()), file.end());
    EXPECT_LE(LargestDifference(CxImage(Path("a.jpg"), ImageType::kJpeg), image), 12);

    image.SetXDPI(300);
    image.SetYDPI(72);
    image.SetJpegQuality(50);
    ASSERT_TRUE(CxImage(image).Save(Path("b.jpg"), ImageType::kJpeg)) << "the settings go with a copy";
    const Bytes other = BytesOf(Path("b.jpg"));
    EXPECT_EQ(Bytes(other.begin() + 13, other.begin() + 18), (Bytes{1, 1, 44, 0, 72}));
    EXPECT_EQ(other[25], 16);
    image.SetJpegQuality(1000);
    EXPECT_EQ(image.GetJpegQuality(), 100);
}

}  // namespace
