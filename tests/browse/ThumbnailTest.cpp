#include "browse/Thumbnail.h"

#include "image/JpegFiles.h"

namespace {

constexpr CColor kFill{110, 121, 127};
constexpr CColor kFrame{211, 214, 255};

class ThumbnailTest : public CFolderTest {
  protected:
    std::string Write(const Bytes& file) const {
        WriteBytes(Path("x.jpg"), file);
        return Path("x.jpg");
    }
};

bool IsNear(CColor a, CColor b) {
    return std::abs(a.r - b.r) <= 3 && std::abs(a.g - b.g) <= 3 && std::abs(a.b - b.b) <= 3;
}

// A pixel of the cell: the frame over the picture in its place over the fill.
CColor NaivePixel(const CConstPixelView& picture, const CRect& rc, CPoint pt) {
    if (pt.x % 109 == 0 || pt.y % 109 == 0) return kFrame;
    if (!rc.Contains(pt)) return kFill;
    return picture.Get((pt.x - rc.left) * picture.nWidth / rc.Width(),
                       (pt.y - rc.top) * picture.nHeight / rc.Height());
}

}  // namespace

TEST_F(ThumbnailTest, ThePictureStandsWholeAndCentredAtItsProportions) {
    struct CCase {
        CSize size;
        CRect rc;
    };
    const CCase kCases[] = {
        {{200, 100}, {0, 27, 110, 82}},  {{100, 200}, {27, 0, 82, 110}}, {{300, 300}, {0, 0, 110, 110}},
        {{1, 1}, {0, 0, 110, 110}},      {{640, 480}, {0, 14, 110, 96}}, {{480, 640}, {14, 0, 96, 110}},
        {{300, 100}, {0, 37, 110, 73}},  {{100, 101}, {1, 0, 109, 110}}, {{200, 4}, {0, 54, 110, 56}},
        {{120, 1}, {0, 55, 110, 55}},    {{1, 20000}, {55, 0, 55, 110}}, {{20000, 1}, {0, 55, 110, 55}},
        {{176, 144}, {0, 10, 110, 100}}, {{7, 150}, {52, 0, 57, 110}},
    };
    for (const CCase& test : kCases) {
        SCOPED_TRACE(testing::Message() << test.size.cx << " by " << test.size.cy);
        EXPECT_EQ(PlaceThumbnail(test.size), test.rc);
        const std::string strPath =
            Write(MakeJpeg(SmoothPicture(test.size.cx, test.size.cy), {.fileSpace = JCS_RGB}));
        const CPixels cell = MakeThumbnail(strPath);
        const CScaledImage scaled = LoadJpegScaled(strPath, 110, 110);
        ASSERT_EQ(scaled.sizeFull, test.size);
        ASSERT_EQ(cell.Width() * cell.Height(), 110 * 110);
        for (int n = 0; n < 110 * 110; ++n)
            ASSERT_EQ(cell.View().Get(n % 110, n / 110),
                      NaivePixel(scaled.image.Pixels().View(), test.rc, {n % 110, n / 110}));
    }
}

TEST_F(ThumbnailTest, EveryKindOfFileHasItsCell) {
    const Bytes flat = MakeJpeg(SmoothPicture(300, 200));
    const auto make = [](const Bytes& sample, const CJpegKind& kind) {
        Bytes samples(300 * 200 * sample.size());
        for (std::size_t n = 0; n < samples.size(); ++n) samples[n] = sample[n % sample.size()];
        return MakeJpeg(samples, 300, 200, kind);
    };
    const Bytes exif = ExifSegment(6, true);
    const Bytes onSide = WithSegment(MakeJpeg(SmoothPicture(200, 300)), exif);
    struct CCase {
        const char* szName;
        Bytes file;
        CColor center;
    };
    const CCase kCases[] = {
        {"grey", make({90}, {.inputSpace = JCS_GRAYSCALE, .fileSpace = JCS_GRAYSCALE}), {90, 90, 90}},
        {"ink", make({255, 0, 128, 255}, {.inputSpace = JCS_CMYK, .fileSpace = JCS_CMYK}), {255, 0, 128}},
        {"progressive", make({10, 200, 60}, {.bProgressive = true}), {10, 200, 60}},
        {"on its side", onSide, {}},
    };
    for (const CCase& test : kCases) {
        SCOPED_TRACE(test.szName);
        const CPixels cell = MakeThumbnail(Write(test.file));
        ASSERT_FALSE(cell.IsEmpty());
        EXPECT_EQ(cell.View().Get(0, 55), kFrame);
        EXPECT_EQ(cell.View().Get(55, 10), kFill);
        EXPECT_TRUE(test.center == CColor{} || IsNear(cell.View().Get(55, 55), test.center));
        EXPECT_NE(cell.View().Get(55, 19), kFill);
        EXPECT_EQ(cell.View().Get(55, 17), kFill);
    }
    for (const Bytes& file : {Bytes{}, Bytes(100, 'x'), Bytes(flat.begin(), flat.begin() + 600),
                              Bytes(flat.begin(), flat.end() - 2), WithClaimedSize(flat, 65500, 65500)})
        EXPECT_TRUE(MakeThumbnail(Write(file)).IsEmpty());
    EXPECT_TRUE(MakeThumbnail(Path("gone.jpg")).IsEmpty());
    std::filesystem::create_directory(Path("folder.jpg"));
    EXPECT_TRUE(MakeThumbnail(Path("folder.jpg")).IsEmpty());
}

TEST_F(ThumbnailTest, AFolderShowsItsPictureOverTheWholeCell) {
    const CxImage picture = SmoothPicture(122, 125);
    const CPixels cell = MakeFolderCell(&picture);
    ASSERT_EQ(cell.Width() + cell.Height(), 220);
    for (int y = 0; y < 110; ++y)
        for (int x = 0; x < 110; ++x)
            ASSERT_EQ(cell.View().Get(x, y), picture.Pixels().View().Get(x * 122 / 110, y * 125 / 110));
    const CPixels bare = MakeFolderCell(nullptr);
    EXPECT_EQ(bare.View().Get(0, 0), kFill);
    EXPECT_EQ(bare.View().Get(109, 109), kFill);
}
