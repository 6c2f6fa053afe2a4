#include "window/ClientArea.h"

#include <gtest/gtest.h>

#include <map>

#include "support/Pictures.h"

namespace {

// Two pictures, at density 2 in another colour.
class CTwoBitmaps : public CBitmaps {
  public:
    const CxImage* Find(const std::string& strName, int nDensity) override {
        const auto it = m_map.find({strName, nDensity});
        return it == m_map.end() ? nullptr : &it->second;
    }

  private:
    std::map<std::pair<std::string, int>, CxImage> m_map = {
        {{"7", 1}, FlatImage(4, 3, {10, 0, 0})},
        {{"7", 2}, FlatImage(8, 6, {20, 0, 0})},
        {{"OPENU", 1}, FlatImage(2, 2, {30, 0, 0})},
        {{"OPENU", 2}, FlatImage(4, 4, {40, 0, 0})},
    };
};

}  // namespace

// The same drawing at both densities: every client pixel is one pixel or a block of two by two.
TEST(ClientArea, DrawsAlikeAtBothDensities) {
    CTwoBitmaps bitmaps;
    CSurface stamp(2, 2);
    stamp.SetPixel(0, 0, {50, 0, 0});
    stamp.SetPixel(1, 1, {60, 0, 0});
    for (const int nDensity : {1, 2}) {
        CClientArea client({20, 16});
        client.SetUp(&bitmaps, nDensity);
        client.DrawBitmap(7, 3, 2);
        client.DrawBitmap("OPENU", 18, 14);
        client.DrawBitmap("NONE", 0, 0);
        client.FillRect({10, 1, 12, 4}, {70, 0, 0});
        client.DrawSurface(stamp, 5, 10);
        ASSERT_EQ(client.Surface().Width(), 20 * nDensity);
        ASSERT_EQ(client.Surface().Height(), 16 * nDensity);
        for (int y = 0; y < 16 * nDensity; ++y)
            for (int x = 0; x < 20 * nDensity; ++x) {
                const CPoint pt{x / nDensity, y / nDensity};
                int nRed = 0;
                if (CRect::FromPlace(3, 2, 4, 3).Contains(pt)) nRed = nDensity == 1 ? 10 : 20;
                if (CRect::FromPlace(18, 14, 2, 2).Contains(pt)) nRed = nDensity == 1 ? 30 : 40;
                if (CRect{10, 1, 12, 4}.Contains(pt)) nRed = 70;
                if (pt == CPoint{5, 10}) nRed = 50;
                if (pt == CPoint{6, 11}) nRed = 60;
                ASSERT_EQ(client.Surface().GetPixel(x, y).r, nRed) << x << "," << y << " at " << nDensity;
            }
    }
}

TEST(ClientArea, ReportsWhatWasDrawnInClientPixels) {
    CTwoBitmaps bitmaps;
    for (const int nDensity : {1, 2}) {
        CClientArea client({20, 16});
        client.SetUp(&bitmaps, nDensity);
        EXPECT_EQ(client.TakeDamage(), CRect::FromPlace(0, 0, 20, 16));
        EXPECT_TRUE(client.TakeDamage().IsEmpty());
        client.DrawBitmap(7, 3, 2);
        EXPECT_EQ(client.TakeDamage(), CRect::FromPlace(3, 2, 4, 3));
        client.DrawBitmap("NONE", 0, 0);
        EXPECT_TRUE(client.TakeDamage().IsEmpty());
        client.FillRect({1, 1, 3, 3}, {});
        client.DrawSurface(CSurface(4, 4), 18, 10);
        EXPECT_EQ(client.TakeDamage(), (CRect{1, 1, 20, 14}));
    }
}
