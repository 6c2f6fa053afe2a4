#include <gtest/gtest.h>

#include "engines/page/PagePicture.h"
#include "support/Pictures.h"

namespace {

struct CPlaced {
    int x, y, nWidth, nHeight;
    operator CRect() const { return CRect::FromPlace(x, y, nWidth, nHeight); }
};

// Letters that fill their cells, as wide as they are high.
class CBlockRasterizer : public CTextRasterizer {
  public:
    CTextMask Rasterize(const CTextFont& font, const std::string& strText) override {
        m_font = font;
        const int nWidth = font.nHeight * static_cast<int>(strText.size());
        const auto nPixels = static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(font.nHeight);
        return {nWidth, font.nHeight, std::vector<std::uint8_t>(nPixels, 255)};
    }
    CTextFont m_font;
};

}  // namespace

constexpr EOrientation kUp = EOrientation::Portrait;
constexpr EOrientation kLying = EOrientation::Landscape;

TEST(Page, PreviewShowsThePictureOnThePrintersPaper) {
    struct {
        CSize sizePicture;
        CDeviceMode mode;
        CPlaced picture;
        CPlaced sheet;
        CStampPlace stamp;
        bool bTiny;
    } const kCases[] = {
        {{176, 144}, {9, {}, kUp}, {138, 144, 59, 48}, {49, 0, 237, 336}, {6, 28, {31, 47}}, false},
        {{176, 144}, {9, {}, kLying}, {137, 143, 61, 49}, {0, 49, 336, 237}, {6, 28, {33, 48}}, false},
        // Small pictures: where the digits of the date are tiny, and where they just are not.
        {{100, 60}, {9, {}, kUp}, {151, 158, 33, 20}, {49, 0, 237, 336}, {1, 4, {29, 19}}, true},
        {{101, 76}, {9, {}, kUp}, {151, 155, 33, 25}, {49, 0, 237, 336}, {5, 23, {10, 24}}, false},
        {{101, 75}, {9, {}, kUp}, {151, 155, 33, 25}, {49, 0, 237, 336}, {1, 4, {29, 24}}, true},
        // Paper that is wider than high, of the user's own in tenths of a millimetre, unknown, and impossible
        {{3000, 2000}, {4, {}, kUp}, {94, 119, 148, 98}, {0, 59, 336, 217}, {7, 33, {115, 96}}, false},
        {{3000, 2000}, {4, {}, kLying}, {70, 103, 195, 130}, {59, 0, 217, 336}, {8, 38, {157, 128}}, false},
        {{1600, 1200},
         {256, {1000, 1500}, kUp},
         {147, 152, 42, 31},
         {56, 0, 224, 336},
         {5, 23, {19, 30}},
         false},
        {{640, 480}, {42, {1, 2}, kUp}, {60, 87, 215, 161}, {49, 0, 237, 336}, {9, 43, {172, 158}}, false},
        {{640, 480}, {256, {0, 100}, kUp}, {60, 87, 215, 161}, {49, 0, 237, 336}, {9, 43, {172, 158}}, false},
    };
    for (const auto& row : kCases) {
        SCOPED_TRACE(testing::Message()
                     << row.sizePicture.cx << " x " << row.sizePicture.cy << " on " << row.mode.nPaper);
        const CPreviewLayout layout = LayOutPreview(row.sizePicture, {336, 336}, row.mode);
        EXPECT_EQ(layout.page, (CPage{237, 336, 22}));
        EXPECT_EQ(layout.rcPicture, CRect(row.picture));
        EXPECT_EQ(layout.rcSheet, CRect(row.sheet));
        EXPECT_EQ(layout.stamp, row.stamp);
        EXPECT_EQ(layout.bTiny, row.bTiny);
    }
}

// However the preview's window and the user's paper are shaped.
TEST(Page, OddWindowsAndPapersAreReckonedAsWell) {
    struct {
        CSize sizePicture, sizeClient;
        CDeviceMode mode;
        CPlaced picture, sheet;
    } const kCases[] = {
        {{300, 200}, {200, 400}, {9, {}, kUp}, {40, 160, 120, 80}, {-41, 0, 282, 400}},
        {{300, 200}, {200, 400}, {9, {}, kLying}, {38, 159, 123, 82}, {-100, 59, 400, 282}},
        {{640, 480}, {400, 200}, {9, {}, kLying}, {134, 50, 132, 99}, {100, 29, 200, 141}},
        {{300, 200}, {336, 336}, {256, {65535, 1}, kUp}, {168, 168, 0, 0}, {0, 168, 336, 0}},
        {{300, 200}, {336, 336}, {256, {1, 65535}, kUp}, {168, 168, 0, 0}, {168, 0, 0, 336}},
        {{300, 200}, {336, 336}, {256, {65535, 65535}, kUp}, {168, 168, 0, 0}, {0, 0, 336, 336}},
        {{300, 200}, {336, 336}, {256, {0, 0}, kUp}, {118, 134, 100, 67}, {49, 0, 237, 336}},
        // Paper that is square, and paper on which the height is what limits the picture
        {{300, 200}, {400, 200}, {256, {100, 100}, kUp}, {111, 41, 178, 118}, {0, -100, 400, 400}},
        {{300, 900}, {336, 336}, {4, {}, kUp}, {136, 70, 63, 195}, {0, 59, 336, 217}},
        {{600, 900}, {336, 336}, {19, {}, kLying}, {127, 106, 82, 124}, {0, 95, 336, 146}},
        // The margin is wider than the paper.
        {{300, 200}, {336, 336}, {256, {10, 297}, kUp}, {173, 171, -11, -7}, {162, 0, 11, 336}},
    };
    for (const auto& row : kCases) {
        SCOPED_TRACE(testing::Message() << row.mode.sizeOwn.cx << " x " << row.mode.sizeOwn.cy);
        const CPreviewLayout layout = LayOutPreview(row.sizePicture, row.sizeClient, row.mode);
        EXPECT_EQ(layout.rcPicture, CRect(row.picture));
        EXPECT_EQ(layout.rcSheet, CRect(row.sheet));
    }
}

TEST(Page, PrintIsReckonedAsA4WithinWhatThePrinterReaches) {
    struct {
        CSize sizePicture, sizeDpi, sizePrintable;
        EOrientation orientation;
        CPage page;
        CPlaced picture;
        CStampPlace stamp;
    } const kCases[] = {
        {{176, 144},
         {600, 600},
         {4960, 7016},
         kUp,
         {4960, 7016, 472},
         {1863, 3003, 1234, 1009},
         {111, 532, {702, 993}}},
        {{176, 144},
         {600, 600},
         {4960, 7016},
         kLying,
         {4960, 7016, 472},
         {1844, 2987, 1272, 1041},
         {112, 532, {740, 1025}}},
        {{4000, 3000},
         {600, 600},
         {4700, 6800},
         kUp,
         {4960, 7016, 472},
         {106, 1717, 4488, 3366},
         {173, 859, {3629, 3315}}},
        {{4000, 3000},
         {600, 600},
         {4700, 6800},
         kLying,
         {4960, 7016, 472},
         {0, 1637, 4700, 3525},
         {178, 885, {3815, 3472}}},
        // Higher than wide, and dots that are no squares
        {{90, 60},
         {300, 600},
         {2480, 7016},
         kUp,
         {2480, 7016, 236},
         {1082, 3403, 315, 210},
         {19, 85, {230, 206}}},
        {{1, 20000},
         {300, 300},
         {2480, 3508},
         kUp,
         {2480, 3508, 236},
         {1240, 118, 0, 3272},
         {3, 11, {-11, 3222}}},
        // No printer at all has these
        {{10, 10}, {0, 0}, {0, 0}, kUp, {0, 0, 0}, {0, 0, 0, 0}, {3, 11, {-11, 0}}},
    };
    for (const auto& row : kCases) {
        SCOPED_TRACE(testing::Message() << row.sizePicture.cx << " x " << row.sizePicture.cy << " at "
                                        << row.sizeDpi.cx << (row.orientation == kUp ? "" : " lying"));
        const CPageLayout layout =
            LayOutPrint(row.sizePicture, row.sizeDpi, row.sizePrintable, row.orientation);
        EXPECT_EQ(layout.page, row.page);
        EXPECT_EQ(layout.rcPicture, CRect(row.picture));
        EXPECT_EQ(layout.stamp, row.stamp);
    }
    // A stamp is large from a hundredth and a half of the page's room on, in both directions.
    EXPECT_EQ(LayOutPrint({101, 77}, {600, 600}, {4960, 7016}, kUp).stamp.nSize, 3 + 50 * 22 / 25);
}

TEST(Page, PaperIsKnownFrom1To41AndOfOnesOwn) {
    for (const int nPaper : {1, 9, 41, 256}) EXPECT_TRUE(IsPaperKnown(nPaper)) << nPaper;
    for (const int nPaper : {-1, 0, 42, 255, 257, 65535}) EXPECT_FALSE(IsPaperKnown(nPaper)) << nPaper;
    EXPECT_EQ(PaperSize({.nPaper = 1}), (CSize{215, 279}));
    EXPECT_EQ(PaperSize({.nPaper = 41}), (CSize{215, 330}));
    EXPECT_EQ(PaperSize({.nPaper = 28}), (CSize{162, 229}));
    EXPECT_EQ(PaperSize({.nPaper = 256, .sizeOwn = {1016, 1524}}), (CSize{1016, 1524}));
}

// Wherever it is cut, the strips are those of the whole, the date at their edges included.
TEST(Page, StripsAreCutOutOfTheWholePicture) {
    CBlockRasterizer text;
    const CxImage image = NumberedImage(37, 29);
    for (const CSize size : {CSize{37, 29}, CSize{101, 83}, CSize{20, 31}}) {
        const CDateStamp stamp{"2006", {9, 25, {size.cx - 25, size.cy - 6}}};
        const CPagePicture picture(image, size, text, stamp);
        const CPixels whole = picture.Whole();
        CxImage resampled = image;
        ASSERT_TRUE(resampled.Resample(size.cx, size.cy));
        for (int nTop = 0; nTop < size.cy; ++nTop)
            for (const int nRows : {1, 2, 7}) {
                if (nTop + nRows > size.cy) continue;
                const CPixels strip = picture.Rows(nTop, nRows);
                for (int y = 0; y < nRows; ++y) {
                    ASSERT_TRUE(std::ranges::equal(strip.Row(y), whole.Row(nTop + y))) << nTop << ' ' << y;
                    const bool bStamped = nTop + y >= size.cy - 15 && nTop + y < size.cy - 6;
                    ASSERT_EQ(std::ranges::equal(strip.Row(y), resampled.Pixels().Row(nTop + y)), !bStamped);
                }
            }
        // No wider than its room, whatever the face would like.
        const CColor crBeside = whole.View().Get(std::max(0, size.cx - 26), size.cy - 10);
        EXPECT_EQ(whole.View().Get(size.cx - 1, size.cy - 10), (CColor{255, 79, 64}));
        EXPECT_EQ(crBeside == (CColor{255, 79, 64}), size.cx <= 25);
    }
    EXPECT_EQ(text.m_font, (CTextFont{"Tahoma", 9, 400, false, false}));
    EXPECT_TRUE(CPagePicture(image, {0, 5}, text).Whole().IsEmpty());
    EXPECT_TRUE(CPagePicture(image, {5, -1}, text).Whole().IsEmpty());
}
