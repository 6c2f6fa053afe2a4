#include <gtest/gtest.h>

#include <functional>

#include "image/TestPictures.h"

namespace {

constexpr CColor kPaper{1, 2, 3};

// What a call leaves on a sheet of 12 by 10.
void ExpectSheet(const std::function<void(CPixelView)>& draw, const std::function<CColor(int, int)>& wanted) {
    CPixels target = CPixels::MakeFilled(12, 10, kPaper);
    draw(target.MutableView());
    for (int j = 0; j < 10; ++j)
        for (int i = 0; i < 12; ++i)
            ASSERT_EQ(target.View().Get(i, j), wanted(i, j)) << " at " << i << ' ' << j;
}

TEST(Draw, NaturalSizeIsCutAtEveryEdge) {
    const CxImage image = SmoothPicture(7, 5);
    for (int y = -6; y <= 12; ++y) {
        for (int x = -8; x <= 14; ++x) {
            SCOPED_TRACE(testing::Message() << x << ' ' << y);
            ExpectSheet([&](CPixelView view) { image.Draw(view, x, y); },
                        [&](int i, int j) {
                            const bool bInside = i >= x && i < x + 7 && j >= y && j < y + 5;
                            return bInside ? image.Pixels().View().Get(i - x, j - y) : kPaper;
                        });
        }
    }
}

TEST(Draw, StretchTakesTheNearestPixelFromTheTopLeft) {
    const CxImage image = SmoothPicture(7, 5);
    for (const CRect& rc : {CRect{2, 1, 11, 9}, {-5, -4, 30, 3}, {3, 3, 5, 5}, {4, 4, 4, 9}, {9, 4, 2, 9}}) {
        SCOPED_TRACE(testing::Message() << rc.left << ' ' << rc.top);
        ExpectSheet([&](CPixelView view) { image.Stretch(view, rc); },
                    [&](int i, int j) {
                        if (!rc.Contains({i, j})) return kPaper;
                        return image.Pixels().View().Get((i - rc.left) * 7 / rc.Width(),
                                                         (j - rc.top) * 5 / rc.Height());
                    });
    }
}

// A rasterizer whose every glyph is a box with a pale rim.
class CBoxRasterizer : public CTextRasterizer {
  public:
    CTextMask Rasterize(const CTextFont& font, const std::string& strText) override {
        m_font = font;
        CTextMask mask{4 * static_cast<int>(strText.size()), font.nHeight, {}};
        const auto nStride = static_cast<std::size_t>(mask.nWidth);
        mask.coverage.assign(nStride * static_cast<std::size_t>(mask.nHeight), 127);
        for (std::size_t i = nStride; i + nStride < mask.coverage.size(); ++i)
            if (i % nStride % 4 != 3) mask.coverage[i] = 128;
        return mask;
    }
    CTextFont m_font;
};

TEST(Draw, TextStandsOnItsRowInOneColour) {
    CBoxRasterizer rasterizer;
    for (const int x : {-3, 2, 9}) {
        for (const int y : {-1, 2, 7, 12, 30}) {
            SCOPED_TRACE(testing::Message() << x << ' ' << y);
            ExpectSheet(
                [&](CPixelView view) {
                    CxImage::DrawTextA(view, rasterizer, x, y, "ab", {250, 80, 60}, "Tahoma", 6, 700, true,
                                       false);
                },
                [&](int i, int j) {
                    // The box is 6 rows high and ends above row y.
                    const bool bGlyph = i >= x && i < x + 8 && (i - x) % 4 != 3 && j > y - 6 && j < y - 1;
                    return bGlyph ? CColor{250, 80, 60} : kPaper;
                });
        }
    }
    EXPECT_EQ(rasterizer.m_font, (CTextFont{"Tahoma", 6, 700, true, false}));
}

}  // namespace
