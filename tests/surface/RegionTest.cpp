#include "surface/Region.h"

#include "Naive.h"

namespace {

// Everything that a region says about itself agrees with its membership test.
void ExpectSound(const CRegion& region, const CRect& rcAround) {
    CRect rcMembers;
    for (int y = rcAround.top; y < rcAround.bottom; ++y) {
        int nEnd = std::numeric_limits<int>::min();
        std::vector<CRun> naive;
        for (int x = rcAround.left; x < rcAround.right; ++x) {
            if (!region.Contains({x, y})) continue;
            rcMembers = rcMembers.Union({x, y, x + 1, y + 1});
            if (x != nEnd) naive.push_back({x, x});
            naive.back().nRight = nEnd = x + 1;
        }
        ASSERT_TRUE(std::ranges::equal(region.RowRuns(y), naive)) << y;
    }
    EXPECT_EQ(region.Box(), rcMembers);
    EXPECT_EQ(region.IsEmpty(), rcMembers.IsEmpty());
    CSurface surface = White(20, 20);
    surface.FillRegion(region, kInk);
    ASSERT_TRUE(HasPixels(surface, [&](int x, int y) { return region.Contains({x, y}) ? kInk : kWhite; }));
}

}  // namespace

TEST(Region, RunsBoxAndFillAgreeWithTheMembersAlsoAfterMoves) {
    CRandom random;
    SCOPED_TRACE(random.nSeed);
    for (int nRound = 0; nRound < 600; ++nRound) {
        const CPoint pt = random.Point(-6, 26);
        const CPoint ptEnd = random.Point(-6, 26);
        const CRect rc{pt.x, pt.y, ptEnd.x, ptEnd.y};
        CRegion region = nRound % 3 == 0   ? CRegion::MakeRectangle(rc)
                         : nRound % 3 == 1 ? CRegion::MakeEllipse(rc)
                                           : CRegion::MakePolygon(random.Points(random.Pick(0, 8), false));
        ExpectSound(region, {-10, -10, 30, 30});
        const CRegion before = region;
        const CPoint ptBy = random.Point(-9, 9);
        EXPECT_TRUE(region.Offset(ptBy.x, ptBy.y));
        ExpectSound(region, {-20, -20, 40, 40});
        EXPECT_EQ(region.Type(), before.Type());
        for (int y = -10; y < 30; ++y)
            for (int x = -10; x < 30; ++x)
                ASSERT_EQ(region.Contains({x + ptBy.x, y + ptBy.y}), before.Contains({x, y}));
        if (HasFatalFailure()) return;
    }
}

TEST(Region, TypesFollowThePixels) {
    const CPoint square[] = {{2, 2}, {8, 2}, {8, 9}, {2, 9}};
    const CPoint triangle[] = {{2, 2}, {8, 2}, {8, 9}};
    const CPoint two[] = {{2, 2}, {8, 9}};
    const CPoint there[] = {{2, 2}, {8, 9}, {2, 2}};
    EXPECT_EQ(CRegion::MakePolygon(square).Type(), RegionType::kRectangle);
    EXPECT_EQ(CRegion::MakePolygon(square).Box(), (CRect{2, 2, 8, 9}));
    EXPECT_EQ(CRegion::MakePolygon(triangle).Type(), RegionType::kComplex);
    EXPECT_EQ(CRegion::MakePolygon(two).Type(), RegionType::kEmpty);
    EXPECT_EQ(CRegion::MakePolygon(there).Type(), RegionType::kEmpty);
    EXPECT_EQ(CRegion::MakeRectangle({5, 5, 5, 9}).Type(), RegionType::kEmpty);
    EXPECT_EQ(CRegion().Box(), CRect{});
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
    const CRegion ellipse = CRegion::MakeEllipse({kMin, -3, kMax, 9});
    EXPECT_EQ(ellipse.Box(), (CRect{-CRegion::kReach, -3, CRegion::kReach, 8}));
    const CPoint points[] = {{kMin, kMin}, {kMax, kMin}, {kMax, kMax}, {kMin, kMax}};
    EXPECT_EQ(CRegion::MakePolygon(points).Type(), RegionType::kRectangle);
}
