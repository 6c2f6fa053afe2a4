// The tools that stretch a figure: the rubber band on the scratch store, one figure and one step at the end.

#include <cmath>
#include <functional>
#include <span>
#include <tuple>

#include "paint/DrawBench.h"

namespace {

class ShapeTools : public DrawBench {
  protected:
    // The figure of a tool of one drag as it has to look.
    static void Figure(CSurface& surface, ETool tool, CPoint ptFrom, CPoint ptTo) {
        const CRect rc{ptFrom.x, ptFrom.y, ptTo.x, ptTo.y};
        if (tool == ETool::Line) Line(surface, {ptFrom, ptTo});
        if (tool == ETool::Rectangle) surface.Rectangle(rc);
        if (tool == ETool::Ellipse) surface.Ellipse(rc);
        if (tool == ETool::RoundRect) surface.RoundRect(rc, {20, 20});
    }
    static CPixels Polygon(std::span<const CPoint> points, const CBrush& brush) {
        CSurface page = Page(CPen::Solid(1, kFore), brush);
        page.Polygon(points);
        return page.Pixels();
    }
    static CPixels Curve(const std::array<CPoint, 4>& points) {
        CSurface page = Page(CPen::Solid(2, kFore));
        page.Bezier(points);
        return page.Pixels();
    }
};

}  // namespace

TEST_F(ShapeTools, AFigureOfOneDragIsDrawnOnceForAll) {
    for (const ETool tool : {ETool::Line, ETool::Rectangle, ETool::Ellipse, ETool::RoundRect})
        for (int nFill = 0; nFill < 3; ++nFill)
            for (const EMouseButton button : {kLeft, kRight}) {
                SCOPED_TRACE(std::to_string(NumberOf(tool)) + " fill " + std::to_string(nFill));
                OpenPage();
                m_tools.m_nTool = tool;
                m_tools.m_nFillMode = EFillMode{nFill};
                m_tools.m_nLineWidth = 1 + nFill * 2;
                const CColor pen = button == kLeft ? kFore : kBack;
                const CColor other = button == kLeft ? kBack : kFore;
                CSurface page = Page(CPen::Solid(m_tools.m_nLineWidth, pen),
                                     nFill == 0 ? CBrush::Hollow() : CBrush::Solid(nFill == 1 ? other : pen));
                CSurface band = page;
                Press({45, 40}, button);
                Move({20, 45});
                // From the lower right to the upper left: the same figure.
                Move({8, 7});
                Figure(band, tool, {45, 40}, {8, 7});
                EXPECT_TRUE(Scratch() == band.Pixels());
                EXPECT_TRUE(Committed() == Page().Pixels());
                ExpectScreen(band);
                EXPECT_TRUE(m_arrSteps.empty());
                Release({12, 9}, button);
                Figure(page, tool, {45, 40}, {12, 9});
                ExpectStroke(page.Pixels());
            }
}

TEST_F(ShapeTools, ADragMayEndBeyondTheLastColumnAndStartsInside) {
    m_tools.m_nTool = ETool::Rectangle;
    Drag({{-8, -9}, {90, 70}});
    // The right and lower edge stand one pixel short of the release, which is where the picture ends.
    EXPECT_EQ(Count(Committed(), kFore), 2 * 60 + 2 * 48);
    EXPECT_EQ(PixelAt(Committed(), 59, 49), kFore);
    // What counts as a step though it leaves nothing.
    OpenPage();
    m_arrSteps.clear();
    m_tools.m_nTool = ETool::Line;
    Click({10, 10});
    ExpectStroke(Page().Pixels());
}

// The release of a button that went down elsewhere ends a figure that starts at the last press.
TEST_F(ShapeTools, ALoneReleaseUsesTheLastStart) {
    m_tools.m_nTool = ETool::Line;
    Drag({{5, 5}, {15, 5}});
    m_arrSteps.clear();
    const CPixels before = Committed();
    Release({5, 30});
    EXPECT_EQ(Count(Committed(), kFore, {5, 0, 6, 50}), 25);
    ExpectStroke(Committed(), before);
}

TEST_F(ShapeTools, APolygonRunsFromDragToDrag) {
    m_tools.m_nTool = ETool::Polygon;
    m_tools.m_nFillMode = EFillMode::Other;
    Press({10, 10});
    Move({40, 12});
    Release({40, 12});
    Press({41, 13});
    Move({30, 40});
    // An open line without filling, to the cursor.
    CSurface band = Page(CPen::Solid(1, kFore));
    Line(band, {{10, 10}, {40, 12}, {30, 40}});
    EXPECT_TRUE(Scratch() == band.Pixels());
    EXPECT_EQ(m_draw.Hand().m_nVertexCount, 2);
    Release({30, 40});
    EXPECT_TRUE(Committed() == Page().Pixels());
    EXPECT_TRUE(m_arrSteps.empty());
    // The first click's release puts the last vertex; the place of the double click adds none.
    Click({12, 30});
    Double({13, 45});
    Release({13, 45});
    const CPoint kPoints[] = {{10, 10}, {40, 12}, {30, 40}, {12, 30}};
    ExpectStroke(Polygon(kPoints, CBrush::Solid(kBack)));
    EXPECT_EQ(m_draw.Hand().m_nVertexCount, 0);
}

TEST_F(ShapeTools, APolygonClosedAtOnceLeavesADotOrNothing) {
    m_tools.m_nTool = ETool::Polygon;
    DoubleClick({20, 20});
    ExpectStroke(Page().Pixels());
    m_tools.m_nLineWidth = 3;
    DoubleClick({20, 20});
    EXPECT_EQ(Count(Committed(), kFore), 5);
    EXPECT_EQ(m_draw.Hand().m_nVertexCount, 0);
}

// A vertex in the margin keeps its place; a start point would be kept inside.
TEST_F(ShapeTools, AVertexMayLieBesideThePicture) {
    m_tools.m_nTool = ETool::Polygon;
    m_tools.m_nFillMode = EFillMode::Same;
    Drag({{-10, -10}, {10, -10}});  // a release is kept inside
    DoubleClick({30, 40});
    const CPoint kPoints[] = {{-10, -10}, {10, 0}, {30, 40}};
    ExpectStroke(Polygon(kPoints, CBrush::Solid(kFore)));
}

TEST_F(ShapeTools, TheHundredthVertexIsTheLast) {
    m_tools.m_nTool = ETool::Polygon;
    std::vector<CPoint> points;
    for (int n = 0; n < 130; ++n) {
        const double f = n * 6.28 / 100;
        points.push_back({30 + static_cast<int>(25 * std::cos(f)), 25 + static_cast<int>(20 * std::sin(f))});
    }
    Press(points[0]);
    for (std::size_t n = 1; n < points.size(); ++n) Release(points[n]);
    EXPECT_EQ(m_draw.Hand().m_nVertexCount, 100);
    Move({59, 49});
    DoubleClick({59, 49});
    ExpectStroke(Polygon(std::span(points).first(100), CBrush::Hollow()));
}

TEST_F(ShapeTools, ACurveIsALineAndTwoPulls) {
    m_tools.m_nTool = ETool::Curve;
    m_tools.m_nLineWidth = 2;
    Press({5, 25});
    Move({50, 25});
    EXPECT_TRUE(Scratch() == Curve({CPoint{5, 25}, {5, 25}, {50, 25}, {50, 25}}));
    Release({52, 25});
    Press({1, 1});  // where the pulls begin does not matter
    Move({20, 5});
    EXPECT_TRUE(Scratch() == Curve({CPoint{5, 25}, {20, 5}, {20, 5}, {52, 25}}));
    Release({20, 5});
    EXPECT_TRUE(m_arrSteps.empty());
    EXPECT_TRUE(Committed() == Page().Pixels());
    Press({1, 1});
    Move({40, 45});
    Release({40, 45});
    ExpectStroke(Curve({CPoint{5, 25}, {20, 5}, {40, 45}, {52, 25}}));
    EXPECT_FALSE(m_draw.IsShapeOpen());
    // A click is a pull at its point, a double click two. A press of its own would have begun the next one.
    OpenPage();
    Drag({{5, 25}, {50, 25}});
    DoubleClick({20, 5});
    ExpectStroke(Curve({CPoint{5, 25}, {20, 5}, {20, 5}, {50, 25}}));
    EXPECT_FALSE(m_draw.IsShapeOpen());
}

// Closed, finished or given up in mid-drag: the release that is still to come adds nothing, the one behind it
// counts, as does one whose press was elsewhere.
TEST_F(ShapeTools, ADragThatOutlivesItsShapeAddsNothing) {
    const auto givenUp = [&] { m_draw.AbandonShape(); };
    const auto closed = [&] { DoubleClick({30, 30}); };
    const auto bent = [&] { Drag({{1, 1}, {9, 9}}), Click({20, 5}), Click({20, 5}); };
    const std::tuple<ETool, std::function<void()>, bool> kEnds[] = {
        {ETool::Polygon, givenUp, true},       {ETool::Polygon, closed, false},
        {ETool::SelectPolygon, givenUp, true}, {ETool::SelectPolygon, closed, false},
        {ETool::Curve, givenUp, true},         {ETool::Curve, bent, true},
    };
    for (const auto& [tool, end, bSpent] : kEnds) {
        SCOPED_TRACE(NumberOf(tool));
        m_tools.m_nTool = tool;
        Press({10, 10});
        end();
        const CPixels before = Committed();
        const std::size_t nSteps = m_arrSteps.size();
        Move({35, 35});
        if (bSpent) Release({20, 20});
        EXPECT_FALSE(m_draw.IsShapeOpen());
        EXPECT_TRUE(Committed() == before);
        EXPECT_EQ(m_arrSteps.size(), nSteps);
        Release({20, 20});
        EXPECT_TRUE(m_draw.IsShapeOpen());
        m_draw.AbandonShape();
    }
}
