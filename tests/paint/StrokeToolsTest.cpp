// The tools that act where the cursor is, each by its steps and with what Undo takes back.

#include "paint/DrawBench.h"

namespace {

class StrokeTools : public DrawBench {
  protected:
    // What a tick of the airbrush leaves, its size as chosen.
    void SprayDots(CSurface& surface, CRandomSequence& random, CPoint pt) const {
        const int n = 5 * (m_tools.m_nSpraySize + 1);
        const CRegion disc = CRegion::MakeEllipse({pt.x - n, pt.y - n, pt.x + n, pt.y + n});
        for (int nDots = 0; nDots < 20;) {
            const int x = pt.x - n + random.Next() % (2 * n);
            const int y = pt.y - n + random.Next() % (2 * n);
            if (!disc.Contains({x, y})) continue;
            surface.SetPixel(x, y, kFore);
            ++nDots;
        }
    }
};

}  // namespace

TEST_F(StrokeTools, ThePenFollowsTheCursorOnePixelWide) {
    m_tools.m_nTool = ETool::Pen;
    m_tools.m_nLineWidth = 5;
    Drag({{5, 5}, {20, 9}, {20, 30}, {3, 31}});
    CSurface page = Page();
    page.SelectPen(CPen::Solid(1, kFore));
    Line(page, {5, 5}, {20, 9});
    Line(page, {20, 9}, {20, 30});
    Line(page, {20, 30}, {3, 31});
    ExpectStroke(page.Pixels(), Page().Pixels());
    ExpectScreen(page);
}

// The rest of the way to a release elsewhere was never committed.
TEST_F(StrokeTools, ThePenLosesAReleaseElsewhereAndAClickLeavesNothing) {
    m_tools.m_nTool = ETool::Pen;
    Click({10, 10});
    ExpectStroke(Page().Pixels(), Page().Pixels());
    Press({5, 5}, kRight);
    Move({5, 15});
    Release({30, 15}, kRight);
    CSurface page = Page();
    page.SelectPen(CPen::Solid(1, kBack));
    Line(page, {5, 5}, {5, 15});
    ExpectStroke(page.Pixels(), Page().Pixels());
}

TEST_F(StrokeTools, TheButtonReleasedOutsideKeepsDrawing) {
    m_tools.m_nTool = ETool::Pen;
    Press({5, 5});
    Move({5, 8});
    Move({5, 20});  // comes back with no button held
    EXPECT_EQ(Count(Scratch(), kFore), 15);
    Release({5, 20});
    Move({40, 40});
    EXPECT_EQ(Count(Committed(), kFore), 15);
    EXPECT_EQ(m_arrSteps.size(), 1U);
}

TEST_F(StrokeTools, AClickOfABrushLeavesItsDab) {
    m_tools.m_nTool = ETool::Brush;
    const struct {
        int nShape;
        CRect rc;  // the dab's box around the cursor
        int nPixels;
    } kDabs[] = {
        {0, {-3, -3, 4, 4}, 37}, {1, {-2, -2, 3, 3}, 21}, {2, {-1, -1, 2, 2}, 5},  {3, {-4, -4, 4, 4}, 64},
        {4, {-2, -2, 3, 3}, 25}, {5, {-1, -1, 1, 1}, 4},  {6, {-4, -3, 4, 5}, 8},  {7, {-2, -1, 2, 3}, 4},
        {8, {-1, 0, 1, 2}, 2},   {9, {-4, -4, 4, 4}, 8},  {10, {-2, -2, 2, 2}, 4}, {11, {-1, -1, 1, 1}, 2},
    };
    for (const auto& dab : kDabs) {
        SCOPED_TRACE(dab.nShape);
        OpenPage();
        m_tools.m_nBrushShape = dab.nShape;
        Click({30, 25});
        EXPECT_EQ(Count(Committed(), kFore), dab.nPixels);
        EXPECT_EQ(Count(Committed(), kFore, dab.rc.Offset(30, 25)), dab.nPixels);
        // The first dab goes with the stroke.
        ExpectStroke(Committed(), Page().Pixels());
    }
}

TEST_F(StrokeTools, RoundAndSquareBrushesJoinTheirSamples) {
    m_tools.m_nTool = ETool::Brush;
    for (const auto& [nShape, nWidth] : {std::pair{0, 7}, {1, 5}, {2, 3}, {3, 8}, {4, 5}, {5, 2}}) {
        SCOPED_TRACE(nShape);
        OpenPage();
        m_tools.m_nBrushShape = nShape;
        CSurface page = Page();
        Press({20, 20});
        const CPixels pressed = Scratch();
        Move({40, 27});
        Move({41, 40});
        // The dab is there from the press on.
        page.DrawPixels(pressed, 0, 0);
        page.SelectPen(CPen::Solid(nWidth, kFore));
        Line(page, {20, 20}, {40, 27});
        Line(page, {40, 27}, {41, 40});
        EXPECT_TRUE(Scratch() == page.Pixels());
        if (nShape == 4) page.FillRect({40, 38, 44, 43}, kFore);
        if (nShape == 3) page.FillRect({37, 36, 45, 44}, kFore);
        if (nShape == 5) page.FillRect({40, 39, 42, 41}, kFore);
        Release({41, 40});
        ExpectStroke(page.Pixels(), Page().Pixels());
    }
}

// From where the hand went down, not from the edge of the picture.
TEST_F(StrokeTools, ABrushComesInFromTheMargin) {
    m_tools.m_nTool = ETool::Brush;
    m_tools.m_nBrushShape = 2;
    Drag({{-20, 0}, {10, 30}});
    EXPECT_EQ(PixelAt(Committed(), 5, 25), kFore);
    EXPECT_EQ(Count(Committed(), kFore, {0, 0, 60, 15}), 0);
}

TEST_F(StrokeTools, SlantedBrushesLeaveOneMarkASample) {
    m_tools.m_nTool = ETool::Brush;
    m_tools.m_nBrushShape = 7;
    m_tools.m_nLineWidth = 3;
    Press({10, 10});
    EXPECT_EQ(Count(Scratch(), kFore), 0);
    Move({30, 20});
    Release({50, 40});
    CSurface page = Page();
    page.SelectPen(CPen::Solid(3, kFore));
    for (const CPoint pt : {CPoint{30, 20}, {50, 40}}) Line(page, {pt.x - 2, pt.y + 2}, {pt.x + 2, pt.y - 2});
    ExpectStroke(page.Pixels(), Page().Pixels());
}

TEST_F(StrokeTools, TheEraserLeavesTheOtherButtonsColour) {
    m_tools.m_nTool = ETool::Eraser;
    for (int nSize = 0; nSize < 4; ++nSize) {
        for (const EMouseButton button : {kLeft, kRight}) {
            OpenPage();
            m_tools.m_nEraserSize = nSize;
            const CColor color = button == kLeft ? kBack : kFore;
            const int n = nSize + 1;
            Press({15, 20}, button);
            EXPECT_EQ(Count(Scratch(), color), 4 * n * n);
            EXPECT_EQ(Count(Scratch(), color, {15 - n, 20 - n, 15 + n, 20 + n}), 4 * n * n);
            Move({40, 20});
            EXPECT_EQ(Count(Scratch(), color, {25, 0, 26, 50}), 2 * n);
            Release({40, 20}, button);
            EXPECT_EQ(Count(Committed(), color, {40 + n, 0, 41 + n, 50}), 2 * n);
            ExpectStroke(Committed(), Page().Pixels());
        }
    }
}

TEST_F(StrokeTools, FillGoesByExactColourAndFourNeighbours) {
    CxImage image = FlatImage(60, 50, kWhite);
    CSurface walls(image.Pixels());
    walls.SelectPen(CPen::Solid(1, {1, 2, 3}));
    Line(walls, {0, 20}, {21, -1});  // a diagonal holds
    walls.SetPixel(5, 5, {255, 255, 254});
    ASSERT_TRUE(image.ReplacePixels(walls.Pixels()));
    Open(image);
    m_tools.m_nTool = ETool::Fill;
    Press({2, 2}, kRight);
    walls.SelectBrush(CBrush::Solid(kBack));
    ASSERT_TRUE(walls.FloodFill({2, 2}, kWhite));
    EXPECT_EQ(walls.GetPixel(0, 19), kBack);
    EXPECT_EQ(walls.GetPixel(1, 20), kWhite);
    EXPECT_EQ(walls.GetPixel(5, 5), (CColor{255, 255, 254}));
    ExpectStroke(walls.Pixels(), image.Pixels());
    // On its own colour and beside the picture nothing changes; both take their step.
    for (const CPoint pt : {CPoint{2, 2}, {-3, 10}, {10, 55}}) {
        Click(pt, kRight);
        ExpectStroke(walls.Pixels(), walls.Pixels());
    }
}

TEST_F(StrokeTools, ThePickerFollowsTheCursorWithTheButtonsWell) {
    Open(NumberedImage(60, 50, 7));
    m_tools.m_nTool = ETool::Picker;
    Press({12, 30});
    EXPECT_EQ(m_tools.m_crForeground, (CColor{12, 30, 7}));
    Move({13, 31});
    Move({100, 31});  // the edge beyond the last column has no colour
    Release({13, 31});
    Move({20, 20});
    EXPECT_EQ(m_tools.m_crForeground, (CColor{13, 31, 7}));
    EXPECT_EQ(m_tools.m_crBackground, kBack);
    Press({-5, 3}, kRight);
    EXPECT_EQ(m_tools.m_crBackground, kBack);
    Move({-5, 3});  // kept inside
    EXPECT_EQ(m_tools.m_crBackground, (CColor{0, 3, 7}));
    EXPECT_EQ(m_tools.m_crForeground, (CColor{13, 31, 7}));
    EXPECT_TRUE(m_arrSteps.empty());
    EXPECT_EQ(Committed(), NumberedPixels(60, 50, 7));
}

// The sequence gives the column first; dots beside the disc are drawn again and do not count.
TEST_F(StrokeTools, TheAirbrushSpraysTwentyDotsATick) {
    m_tools.m_nTool = ETool::Airbrush;
    for (m_tools.m_nSpraySize = 0; m_tools.m_nSpraySize < 3; ++m_tools.m_nSpraySize) {
        OpenPage();
        Press({30, 25});
        EXPECT_TRUE(m_bTimer);
        CSurface page = Page();
        CRandomSequence random = m_random;
        SprayDots(page, random, {30, 25});
        Tick();
        EXPECT_EQ(random.Words(), m_random.Words());
        EXPECT_TRUE(Scratch() == page.Pixels());
        EXPECT_TRUE(Committed() == Page().Pixels());
        // The dots of the last tick are not committed by the release.
        Release({30, 25});
        EXPECT_FALSE(m_bTimer);
        EXPECT_TRUE(Scratch() == page.Pixels());
        m_draw.Revert();
        EXPECT_TRUE(Scratch() == Page().Pixels());
        ASSERT_EQ(m_arrSteps.size(), 1U);
        EXPECT_TRUE(m_arrSteps[0] == Page().Pixels());
        m_arrSteps.clear();
    }
}

TEST_F(StrokeTools, TheAirbrushGoesOnUntilTheCanvasSeesItsRelease) {
    m_tools.m_nTool = ETool::Airbrush;
    m_tools.m_nSpraySize = 2;
    CRandomSequence random = m_random;
    CSurface page = Page();
    Press({30, 25});
    SprayDots(page, random, {30, 25});
    Tick();
    EXPECT_TRUE(Scratch() == page.Pixels());
    // Dots may fall beside the picture.
    for (const CPoint pt : {CPoint{30, 40}, {58, 49}, {60, 50}}) {
        const CPixels before = page.Pixels();
        Move(pt);
        SprayDots(page, random, pt);
        Tick();
        EXPECT_TRUE(Scratch() == page.Pixels());
        EXPECT_TRUE(Committed() == before);
    }
    // Another tool, and another mode, end a timer whose release got lost. Until its next tick the disc stays
    // where it was, wherever that tool has gone.
    m_tools.m_nTool = ETool::Pen;
    Press({2, 3});
    Release({2, 3});
    m_tools.m_nTool = ETool::Airbrush;
    page = CSurface(Committed());
    SprayDots(page, random, {60, 50});
    Tick();
    EXPECT_TRUE(Scratch() == page.Pixels());
    m_tools.m_nTool = ETool::Pen;
    Tick();
    EXPECT_FALSE(m_bTimer);
    m_tools.m_nTool = ETool::Airbrush;
    Press({30, 25});
    m_draw.Leave();
    EXPECT_FALSE(m_bTimer);
}
