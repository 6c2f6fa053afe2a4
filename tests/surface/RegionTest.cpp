#include "surface/Region.h"

#include <algorithm>
#include <limits>

#include "Pages.h"

// The figures of the platform hold Contains, Box and Type to account; here are the runs, the fill and moves.
TEST(Region, RunsAndFillAgreeWithTheMembersAlsoAfterMoves) {
    CRandom random;
    SCOPED_TRACE(random.nSeed);
    for (int nRound = 0; nRound < 600; ++nRound) {
        std::vector<CPoint> points(static_cast<std::size_t>(random.Pick(0, 8)));
        for (CPoint& pt : points) pt = random.Point(-6, 26);
        const CPoint pt = random.Point(-6, 26);
        const CPoint ptEnd = random.Point(-6, 26);
        CRegion region = nRound % 2 == 0 ? CRegion::MakeEllipse({pt.x, pt.y, ptEnd.x, ptEnd.y})
                                         : CRegion::MakePolygon(points);
        const CRegion before = region;
        const CPoint ptBy = random.Point(-9, 9);
        ASSERT_TRUE(region.Offset(ptBy.x, ptBy.y));
        EXPECT_EQ(region.Box(),
                  before.Box().Offset(before.IsEmpty() ? 0 : ptBy.x, before.IsEmpty() ? 0 : ptBy.y));
        CSurface filled = White(20, 20);
        filled.FillRegion(region, kInk);
        for (int y = 0; y < 20; ++y) {
            std::vector<CRun> naive;
            for (int x = -20; x < 40; ++x) {
                const bool bMember = before.Contains({x - ptBy.x, y - ptBy.y});
                ASSERT_EQ(region.Contains({x, y}), bMember);
                ASSERT_EQ(filled.GetPixel(x, y) == kInk, bMember && x >= 0 && x < 20);
                if (bMember && (naive.empty() || naive.back().nRight != x)) naive.push_back({x, x});
                if (bMember) naive.back().nRight = x + 1;
            }
            ASSERT_TRUE(std::ranges::equal(region.RowRuns(y), naive)) << y;
        }
    }
}

TEST(Region, FarRegionsStayWithinTheirReach) {
    constexpr int kMin = std::numeric_limits<int>::min();
    constexpr int kMax = std::numeric_limits<int>::max();
    CRegion all = CRegion::MakeRectangle({kMin, kMax, kMax, kMin});
    EXPECT_EQ(all.Box(), (CRect{kMin, kMin, kMax, kMax}));
    EXPECT_EQ(all.RowRuns(-7).size(), 1u);
    EXPECT_FALSE(all.Offset(1, 0));
    EXPECT_FALSE(all.Offset(0, -1));
    EXPECT_TRUE(all.Contains({0, 0}));
    EXPECT_EQ(CRegion::MakeEllipse({kMin, -3, kMax, 9}).Box(),
              (CRect{-CRegion::kReach, -3, CRegion::kReach, 8}));
    const CPoint points[] = {{kMin, kMin}, {kMax, kMin}, {kMax, kMax}, {kMin, kMax}};
    EXPECT_EQ(CRegion::MakePolygon(points).Type(), RegionType::kRectangle);
    EXPECT_EQ(CRegion::MakeRectangle({5, 5, 5, 9}).Type(), RegionType::kEmpty);
}
