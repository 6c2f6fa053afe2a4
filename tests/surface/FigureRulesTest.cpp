// Figures against their definitions, on random input.

#include <array>
#include <cmath>
#include <cstdlib>

#include "Naive.h"

namespace {

constexpr int kSide = 20;

CColor InkIf(bool bInk) {
    return bInk ? kInk : kWhite;
}

}  // namespace

TEST(FigureRules, AThinLineTakesTheNearestPixels) {
    CRandom random;
    SCOPED_TRACE(random.nSeed);
    for (int nRound = 0; nRound < 6000; ++nRound) {
        const std::vector<CPoint> points = random.Points(2, nRound % 2 == 0);
        CSurface surface = White(kSide, kSide);
        surface.SelectPen(CPen::Solid(1, kInk));
        surface.MoveTo(points[0]);
        EXPECT_TRUE(surface.LineTo(points[1]));
        ASSERT_TRUE(HasPixels(surface, [&](int x, int y) {
            return InkIf(IsOnThinLine(points[0], points[1], x, y));
        })) << testing::PrintToString(points);
    }
}

TEST(FigureRules, AWideLineIsTwoDiscsAndABodyBothWays) {
    CRandom random;
    SCOPED_TRACE(random.nSeed);
    for (int nRound = 0; nRound < 6000; ++nRound) {
        const int nWidth = random.Pick(2, 8);
        const CPoint ptFrom = random.Point(-6, 26);
        const CPoint ptTo = random.Point(-6, 26);
        for (const auto& [ptA, ptB] : {std::pair(ptFrom, ptTo), std::pair(ptTo, ptFrom)}) {
            CSurface surface = White(kSide, kSide);
            surface.SelectPen(CPen::Solid(nWidth, kInk));
            surface.MoveTo(ptA);
            surface.LineTo(ptB);
            ASSERT_TRUE(HasPixels(
                surface, [&](int x, int y) { return InkIf(IsOnWideLine(ptFrom, ptTo, nWidth, x, y)); }))
                << nWidth << " " << testing::PrintToString(std::pair(ptA, ptB));
        }
    }
}

TEST(FigureRules, PolygonsFillByTheAlternateRuleAndRegionsByTheWindingRule) {
    CRandom random;
    SCOPED_TRACE(random.nSeed);
    for (int nRound = 0; nRound < 4000; ++nRound) {
        const std::vector<CPoint> points = random.Points(random.Pick(2, 9), nRound % 2 == 0);
        CSurface surface = White(kSide, kSide);
        surface.SelectPen(CPen::Null());
        surface.SelectBrush(CBrush::Solid(kInk));
        EXPECT_TRUE(surface.Polygon(points));
        ASSERT_TRUE(HasPixels(surface, [&](int x, int y) {
            return InkIf(IsInPolygon(points, FillRule::kAlternate, x, y));
        })) << testing::PrintToString(points);
        // Regions of outlines that reach far are as large as they are told to be; a few are enough.
        if (nRound % 2 == 0 && nRound >= 20) continue;
        const CRegion region = CRegion::MakePolygon(points);
        for (int y = -8; y < 28; ++y)
            for (int x = -8; x < 28; ++x)
                ASSERT_EQ(region.Contains({x, y}), IsInPolygon(points, FillRule::kWinding, x, y))
                    << testing::PrintToString(points) << x << "," << y;
    }
}

TEST(FigureRules, RoundFiguresAreTheirWalkedOutlines) {
    CRandom random;
    SCOPED_TRACE(random.nSeed);
    for (int nRound = 0; nRound < 3000; ++nRound) {
        const CRect rcBox =
            CRect::FromPlace(random.Pick(-9, 9), random.Pick(-9, 9), random.Pick(3, 50), random.Pick(3, 50));
        const bool bEllipse = nRound % 2 == 0;
        const int nCornerX = bEllipse ? rcBox.Width() : std::min(random.Pick(3, 30), rcBox.Width());
        const int nCornerY = bEllipse ? rcBox.Height() : std::min(random.Pick(3, 30), rcBox.Height());
        const std::vector<CPoint> around = WalkAround(rcBox, nCornerX, nCornerY);
        const CPen pen =
            nRound % 5 == 0 ? CPen::Dotted(PenStyle::kDashDot, kInk) : CPen::Solid(random.Pick(1, 6), kInk);
        CSurface walked = White(40, 40);
        CSurface drawn = White(40, 40);
        for (CSurface* const pSurface : {&walked, &drawn}) {
            pSurface->SelectPen(pen);
            pSurface->SelectBrush(CBrush::Hollow());
            pSurface->SetTransparentGaps(true);
        }
        walked.Polygon(around);
        // Any two opposite corners do.
        const CRect rcGiven =
            random.Pick(0, 1) == 0 ? rcBox : CRect{rcBox.right, rcBox.top, rcBox.left, rcBox.bottom};
        EXPECT_TRUE(bEllipse ? drawn.Ellipse(rcGiven) : drawn.RoundRect(rcGiven, {nCornerX, -nCornerY}));
        ASSERT_EQ(drawn.Pixels(), walked.Pixels())
            << testing::PrintToString(rcBox) << nCornerX << " " << nCornerY;
    }
}

// The inside with a thin pen, and all of it with no pen, from the outermost pixels of the walk in each row;
// in rows that the walk does not reach, the exact ellipse.
TEST(FigureRules, EllipsesFillBetweenTheirOutermostPixels) {
    CRandom random;
    SCOPED_TRACE(random.nSeed);
    for (int nRound = 0; nRound < 1500; ++nRound) {
        const CRect rcBox = CRect::FromPlace(0, 0, random.Pick(3, 40), random.Pick(3, 40));
        std::set<std::pair<int, int>> outline;
        std::vector<int> first(40, 100);
        for (const CPoint& pt : WalkAround(rcBox, rcBox.Width(), rcBox.Height())) {
            outline.insert({pt.x, pt.y});
            int& nFirst = first[static_cast<std::size_t>(pt.y)];
            nFirst = std::min(nFirst, pt.x);
        }
        const auto IsInside = [&](int x, int y) {
            if (!rcBox.Contains({x, y})) return false;
            const int nFirst = first[static_cast<std::size_t>(y)];
            if (nFirst == 100) return EllipseValue(rcBox.right, rcBox.bottom, x, y) <= 0;
            return x >= nFirst && x < rcBox.right - nFirst;
        };
        CSurface surface = White(40, 40);
        surface.SelectBrush(CBrush::Solid(kPaint));
        surface.SelectPen(CPen::Null());
        surface.Ellipse(rcBox);
        ASSERT_TRUE(HasPixels(surface, [&](int x, int y) { return IsInside(x, y) ? kPaint : kWhite; }))
            << testing::PrintToString(rcBox);
        // The region of a box one larger has the same pixels.
        const CRegion region = CRegion::MakeEllipse({0, 0, rcBox.right + 1, rcBox.bottom + 1});
        CSurface filled = White(40, 40);
        filled.FillRegion(region, kPaint);
        ASSERT_EQ(filled.Pixels(), surface.Pixels()) << testing::PrintToString(rcBox);
        surface.FillRect(surface.Bounds(), kWhite);
        surface.SelectPen(CPen::Solid(1, kInk));
        surface.Ellipse(rcBox);
        ASSERT_TRUE(HasPixels(surface, [&](int x, int y) {
            if (outline.contains({x, y})) return kInk;
            return IsInside(x, y) ? kPaint : kWhite;
        })) << testing::PrintToString(rcBox);
    }
}

TEST(FigureRules, ACurveStaysBesideItsExactPointsAndHasNoGaps) {
    CRandom random;
    SCOPED_TRACE(random.nSeed);
    for (int nRound = 0; nRound < 300; ++nRound) {
        std::array<CPoint, 4> points;
        for (CPoint& pt : points) pt = random.Point(5, 94);
        CSurface surface = White(100, 100);
        surface.SelectPen(CPen::Solid(1, kInk));
        EXPECT_TRUE(surface.Bezier(points));
        std::vector<std::pair<double, double>> exact;
        for (int i = 0; i <= 2000; ++i) {
            const double t = i / 2000.0, u = 1 - t;
            const double f[] = {u * u * u, 3 * u * u * t, 3 * u * t * t, t * t * t};
            exact.emplace_back(
                f[0] * points[0].x + f[1] * points[1].x + f[2] * points[2].x + f[3] * points[3].x,
                f[0] * points[0].y + f[1] * points[1].y + f[2] * points[2].y + f[3] * points[3].y);
        }
        // The curve's pixels lie near it, and it near them. Nearly always two pixels do; a few curves in a
        // hundred thousand need three, since a piece counts as straight by a slope that is cut to sixteenths.
        constexpr int kNear = 4;
        CSurface halo = White(100, 100);
        halo.SelectPen(CPen::Solid(1, kInk));
        for (const auto& [fX, fY] : exact) {
            bool bNear = false;
            const int x = static_cast<int>(std::lround(fX)), y = static_cast<int>(std::lround(fY));
            for (int nY = -kNear; nY <= kNear; ++nY)
                for (int nX = -kNear; nX <= kNear; ++nX) {
                    bNear = bNear || surface.GetPixel(x + nX, y + nY) == kInk;
                    halo.SetPixel(x + nX, y + nY, kInk);
                }
            ASSERT_TRUE(bNear || points[0] == points[3]) << testing::PrintToString(points);
        }
        for (int y = 0; y < 100; ++y)
            for (int x = 0; x < 100; ++x)
                ASSERT_TRUE(surface.GetPixel(x, y) != kInk || halo.GetPixel(x, y) == kInk)
                    << testing::PrintToString(points);
    }
}
