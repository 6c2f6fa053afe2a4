// The three selection tools and the region that a command makes of their marks.

#include <array>
#include <cmath>
#include <random>

#include "paint/DrawBench.h"

namespace {

class SelectionTest : public DrawBench {
  protected:
    SelectionTest() { Open(NumberedImage(60, 50, 9)); }

    CSelection& Selection() { return m_draw.Selection(); }
    bool Build() { return Selection().Build(m_tools.m_nTool, m_draw.Hand()); }
    CPixels Lifted() { return Selection().Lift(m_draw.Paper().Committed()); }
    // No mark reaches the picture, and none is a step.
    void ExpectUntouched() {
        EXPECT_EQ(Committed(), NumberedPixels(60, 50, 9));
        EXPECT_TRUE(m_arrSteps.empty());
        m_draw.Revert();
        EXPECT_EQ(Scratch(), NumberedPixels(60, 50, 9));
    }
};

}  // namespace

TEST_F(SelectionTest, AClickSelectsNothingAndTurnsNothingOn) {
    for (const ETool tool : {ETool::SelectRect, ETool::SelectFree}) {
        m_tools.m_nTool = tool;
        m_tools.m_nLineWidth = 5;
        Selection().Unmark();
        Click({20, 20});
        EXPECT_TRUE(Selection().IsMarked());
        EXPECT_EQ(Commands(), "----");
        EXPECT_FALSE(Build());
        ExpectUntouched();
    }
}

// A self-crossing outline selects all that it encloses: the five-pointed star with its middle.
TEST_F(SelectionTest, APolygonIsFilledByTheWindingRule) {
    m_tools.m_nTool = ETool::SelectPolygon;
    std::vector<CPoint> star;
    for (int n = 0; n < 5; ++n) {
        const double f = n * 4 * 3.14159265 / 5;
        star.push_back({30 + static_cast<int>(20 * std::sin(f)), 25 - static_cast<int>(20 * std::cos(f))});
    }
    Press(star[0]);
    for (std::size_t n = 1; n < star.size(); ++n) {
        Move(star[n]);
        Release(star[n]);
        if (n + 1 < star.size()) Press({3, 3});
    }
    EXPECT_FALSE(Selection().IsMarked());
    Double({44, 44});
    EXPECT_TRUE(Selection().IsMarked());
    EXPECT_EQ(Commands(), "xx-x");
    Release({44, 44});
    ASSERT_TRUE(Build());
    EXPECT_TRUE(Selection().m_region.Contains({30, 25}));
    EXPECT_TRUE(Selection().m_region.Contains({30, 10}));
    EXPECT_FALSE(Selection().m_region.Contains({15, 10}));
    EXPECT_EQ(Selection().m_rcSelect, Selection().m_region.Box());
    const CRect rc = Selection().m_rcSelect;
    EXPECT_EQ(PixelAt(Lifted(), 30 - rc.left, 25 - rc.top), (CColor{30, 25, 9}));
    EXPECT_EQ(PixelAt(Lifted(), 15 - rc.left, 10 - rc.top), kWhite);
    ExpectUntouched();
}

// A press has put a solid pen on the scratch store; the outline is dotted and hollow all the same.
TEST_F(SelectionTest, TheOutlineIsDottedWithoutAMoveToo) {
    OpenPage();
    m_tools.m_nTool = ETool::SelectPolygon;
    m_tools.m_nFillMode = EFillMode::Same;
    Press({5, 5});
    Release({45, 5});
    Click({45, 45});
    Move({46, 46});  // with no button
    Click({5, 45});
    Double({5, 45});
    EXPECT_EQ(Count(Scratch(), kFore), 0);
    EXPECT_EQ(Count(Scratch(), {0, 0, 0}, {10, 5, 40, 6}), 15);
}

TEST_F(SelectionTest, AFreeSelectionTakesEveryPosition) {
    m_tools.m_nTool = ETool::SelectFree;
    const CColor black{0, 0, 0};
    Press({10, 10});
    Move({40, 10});
    EXPECT_EQ(Count(Scratch(), black, {10, 10, 40, 11}), 15);  // dotted
    Move({40, 40});
    Release({10, 40});
    EXPECT_EQ(Count(Scratch(), black, {10, 11, 11, 40}), 14);  // closed
    // With two passes a move; the release's own point is not part of the region.
    EXPECT_EQ(Selection().m_free.Points().size(), 6U);
    EXPECT_EQ(Commands(), "xx-x");
    ASSERT_TRUE(Build());
    EXPECT_EQ(Selection().m_rcSelect, (CRect{10, 10, 40, 40}));
    EXPECT_TRUE(Selection().m_region.Contains({39, 39}));
    EXPECT_FALSE(Selection().m_region.Contains({12, 35}));
    ExpectUntouched();
}

// A drag of any length keeps its outline: thinned out, but nowhere cut off.
TEST_F(SelectionTest, AFreeOutlineHasNoEnd) {
    const auto at = [](double fTurn, int nRadius) {
        const double f = fTurn * 6.2831853;
        return CPoint{static_cast<int>(nRadius * std::cos(f)), static_cast<int>(nRadius * std::sin(f))};
    };
    CFreeOutline outline;
    outline.Begin({4000, 0});
    for (int n = 0; n < 50000; ++n) {
        outline.Add(at(n / 50000.0, 4000));
        outline.Add(at(n / 50000.0, 4000));
        ASSERT_LE(outline.Points().size(), CFreeOutline::kMostPoints);
    }
    const CRegion region = CRegion::MakePolygon(outline.Points());
    for (int n = 0; n < 120; ++n) {
        EXPECT_TRUE(region.Contains(at(n / 120.0, 3980))) << n;
        EXPECT_FALSE(region.Contains(at(n / 120.0, 4020))) << n;
    }
}

// What lies beside the picture is white.
TEST_F(SelectionTest, ARegionMayReachBesideThePicture) {
    m_tools.m_nTool = ETool::SelectPolygon;
    Press({-10, -10});
    Release({30, 0});
    Click({-10, 30});
    Double({-10, 30});
    ASSERT_TRUE(Build());
    EXPECT_EQ(Selection().m_rcSelect.TopLeft(), (CPoint{-9, -9}));
    EXPECT_EQ(PixelAt(Lifted(), 0, 5), kWhite);
    EXPECT_EQ(PixelAt(Lifted(), 3 + 9, 2 + 9), (CColor{3, 2, 9}));
}
