#include "surface/Region.h"

#include <gtest/gtest.h>

#include <limits>

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
