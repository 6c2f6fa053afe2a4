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
    const std::vector<CPoint> points = {{5, 5}, {20, 9}, {20, 30}, {3, 31}};
    Drag(points);
    CSurface page = Page(CPen::Solid(1, kFore));
    Line(page, points);
    ExpectStroke(page.Pixels());
    ExpectScreen(page);
}

// The rest of the way to a release elsewhere was never committed.
TEST_F(StrokeTools, ThePenLosesAReleaseElsewhereAndAClickLeavesNothing) {
    m_tools.m_nTool = ETool::Pen;
    Click({10, 10});
    ExpectStroke(Page().Pixels());
    Press({5, 5}, kRight);
    Move({5, 15});
    Release({30, 15}, kRight);
    CSurface page = Page(CPen::Solid(1, kBack));
    Line(page, {{5, 5}, {5, 15}});
    ExpectStroke(page.Pixels());
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
    // The dab's box around the cursor and how many pixels of it are painted, shape by shape.
    const std::pair<CRect, int> kDabs[] = {
        {{-3, -3, 4, 4}, 37}, {{-2, -2, 3, 3}, 21}, {{-1, -1, 2, 2}, 5}, {{-4, -4, 4, 4}, 64},
        {{-2, -2, 3, 3}, 25}, {{-1, -1, 1, 1}, 4},  {{-4, -3, 4, 5}, 8}, {{-2, -1, 2, 3}, 4},
        {{-1, 0, 1, 2}, 2},   {{-4, -4, 4, 4}, 8},  {{-2, -2, 2, 2}, 4}, {{-1, -1, 1, 1}, 2},
    };
    m_tools.m_nBrushShape = 0;
    for (const auto& [rc, nPixels] : kDabs) {
        SCOPED_TRACE(m_tools.m_nBrushShape);
        OpenPage();
        Click({30, 25});
        EXPECT_EQ(Count(Committed(), kFore), nPixels);
        EXPECT_EQ(Count(Committed(), kFore, rc.Offset(30, 25)), nPixels);
        // The first dab goes with the stroke.
        ExpectStroke(Committed());
        ++m_tools.m_nBrushShape;
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
        Line(page, {{20, 20}, {40, 27}, {41, 40}});
        EXPECT_TRUE(Scratch() == page.Pixels());
        if (nShape == 3) page.FillRect({37, 36, 45, 44}, kFore);
        if (nShape == 4) page.FillRect({40, 38, 44, 43}, kFore);
        if (nShape == 5) page.FillRect({40, 39, 42, 41}, kFore);
        Release({41, 40});
        ExpectStroke(page.Pixels());
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
    CSurface page = Page(CPen::Solid(3, kFore));
    Line(page, {{28, 22}, {32, 18}});
    Line(page, {{48, 42}, {52, 38}});
    ExpectStroke(page.Pixels());
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
            ExpectStroke(Committed());
        }
    }
}

TEST_F(StrokeTools, FillTakesTheRightButtonAndItsStep) {
    CSurface page = Page();
    page.FillRect({0, 20, 60, 21}, {255, 255, 254});
    CxImage image = FlatImage(60, 50, kWhite);
    ASSERT_TRUE(image.ReplacePixels(page.Pixels()));
    Open(image);
    m_tools.m_nTool = ETool::Fill;
    Press({2, 2}, kRight);
    page.FillRect({0, 0, 60, 20}, kBack);
    ExpectStroke(page.Pixels(), image.Pixels());
    // On its own colour and beside the picture nothing changes; both take their step.
    for (const CPoint pt : {CPoint{2, 2}, {-3, 10}, {10, 55}}) {
        Click(pt, kRight);
        ExpectStroke(page.Pixels(), page.Pixels());
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
        CSurface page = Page();
        CRandomSequence random = m_random;
        Press({30, 25});
        EXPECT_TRUE(m_bTimer);
        CPixels before;
        const auto tick = [&](CPoint pt) {
            before = page.Pixels();
            SprayDots(page, random, pt);
            Tick();
            EXPECT_TRUE(Scratch() == page.Pixels());
            EXPECT_TRUE(Committed() == before);
        };
        tick({30, 25});
        // Dots may fall beside the picture.
        for (const CPoint pt : {CPoint{30, 40}, {58, 49}, {60, 50}}) {
            Move(pt);
            tick(pt);
        }
        EXPECT_EQ(random.Words(), m_random.Words());
        // The dots of the last tick are not committed by the release.
        Release({60, 50});
        EXPECT_FALSE(m_bTimer);
        EXPECT_TRUE(Scratch() == page.Pixels());
        m_draw.Revert();
        ExpectStroke(before);
    }
}

// Another tool, and another mode, end a timer whose release got lost. Until its next tick the disc stays
// where it was, wherever that tool has gone.
TEST_F(StrokeTools, TheAirbrushGoesOnUntilTheCanvasSeesItsRelease) {
    m_tools.m_nTool = ETool::Airbrush;
    m_tools.m_nSpraySize = 2;
    Press({30, 25});
    m_tools.m_nTool = ETool::Pen;
    Click({2, 3});
    m_tools.m_nTool = ETool::Airbrush;
    CSurface page(Committed());
    CRandomSequence random = m_random;
    SprayDots(page, random, {30, 25});
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
