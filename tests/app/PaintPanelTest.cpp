// The paint panel in the main window: tool buttons, options, colour wells, and what a mode switch leaves.

#include "app/PaintWorkshop.h"

namespace {

constexpr CPoint kBesideOptions{240, 419};  // in the panel

class PaintPanelTest : public PaintWorkshop {
  protected:
    // All that the options of all tools set.
    std::array<int, 6> Settings() const {
        const CToolState& tools = Tools();
        return {tools.m_nBrushShape, tools.m_nSpraySize, tools.m_nEraserSize,
                tools.m_nZoom,       tools.m_nLineWidth, static_cast<int>(tools.m_nFillMode)};
    }
    std::string Help() {
        std::string strText = Controls().Text(kHelpLine);
        strText.erase(strText.find_last_not_of(' ') + 1);
        return strText;
    }
    CColor Seen(CPoint pt) { return m_dialog.Client().Surface().GetPixel(pt.x, pt.y); }
    // The panel as it is drawn now.
    CPixels PanelPixels() {
        CSurface panel(75, 77);
        panel.DrawPart(m_dialog.Client().Surface().Pixels(), {168, 344, 243, 421}, 0, 0);
        return panel.Pixels();
    }
};

}  // namespace

TEST_F(PaintPanelTest, EachButtonSelectsItsTool) {
    OpenInDraw(40, 30);
    EXPECT_EQ(Help(), kTools.front().szHelp);
    Tool(ETool::Pen);
    const CPixels empty = PanelPixels();
    for (const CToolRow& row : kTools) {
        SCOPED_TRACE(row.nButton);
        Tool(row.tool);
        EXPECT_EQ(Tools().m_nTool, row.tool);
        EXPECT_EQ(Controls().Focus(), row.nButton);
        EXPECT_EQ(Help(), row.szHelp);
        // The airbrush's clouds are pictures, which this window does not have.
        if (row.tool != ETool::Airbrush) {
            EXPECT_EQ(PanelPixels() == empty, !row.HasOptions());
        }
    }
    EXPECT_EQ(Undos(), 0);
}

// With a float up: another tool, an option, a press beside the options, a new colour.
TEST_F(PaintPanelTest, WhateverEntersAToolMergesTheFloat) {
    OpenInDraw(40, 30);
    const auto paste = [&] {
        Tool(ETool::SelectRect);
        Drag({20, 10}, {30, 20});
        Click(kCmdCopy);
        Tool(ETool::Brush);
        PressWindow({182, 373});
        Click(kCmdPaste);
        EXPECT_EQ(Tools().m_nTool, ETool::Float);
        EXPECT_TRUE(Draw().IsFloating());
        EXPECT_FALSE(Draw().Paper().Committed().Pixels() == Draw().Paper().Scratch().Pixels());
    };
    const auto expectMerged = [&](ETool tool) {
        EXPECT_FALSE(Draw().IsFloating());
        EXPECT_EQ(Tools().m_nTool, tool);
        EXPECT_EQ(PixelAt(Draw().Paper().Committed().Pixels(), 3, 4), (CColor{23, 14, 0}));
        EXPECT_TRUE(Draw().Paper().Committed().Pixels() == Draw().Paper().Scratch().Pixels());
        Click(kCmdUndo);
        EXPECT_EQ(Images().m_imgWork.Pixels(), NumberedPixels(40, 30));
        EXPECT_EQ(Undos(), 0);
    };
    paste();
    Tool(ETool::Fill);
    expectMerged(ETool::Fill);
    paste();
    PressWindow({206, 407});
    EXPECT_EQ(Tools().m_nBrushShape, 10);
    expectMerged(ETool::Brush);
    paste();
    PressWindow(kBesideOptions);
    EXPECT_EQ(Tools().m_nBrushShape, 3);
    expectMerged(ETool::Brush);
    // The window is painted behind the dialog, which selects the panel's tool again.
    paste();
    m_platform.AnswerColor({1, 2, 3});
    Click(kPaintColor);
    expectMerged(ETool::Brush);
}

TEST_F(PaintPanelTest, APressBesideThePanelEndsAnOpenShapeAndOneInsideDoesNot) {
    OpenInDraw(40, 30);
    Tool(ETool::Polygon);
    Drag({5, 5}, {20, 6});
    PressWindow({205, 384});
    EXPECT_TRUE(Draw().IsShapeOpen());
    EXPECT_EQ(Tools().m_nFillMode, EFillMode::Other);
    EXPECT_TRUE(Draw().Paper().Scratch().Pixels() == Draw().Paper().Committed().Pixels());
    PressWindow({100, 600});
    EXPECT_FALSE(Draw().IsShapeOpen());
    Drag({5, 5}, {20, 6});
    Window(EMouseAction::Release, {100, 600}, EMouseButton::Right);
    EXPECT_FALSE(Draw().IsShapeOpen());
    Drag({5, 5}, {20, 6});
    Tool(ETool::Curve);
    EXPECT_FALSE(Draw().IsShapeOpen());
    EXPECT_TRUE(Draw().Paper().Scratch().Pixels() == Draw().Paper().Committed().Pixels());
    EXPECT_EQ(Draw().Paper().Committed().Pixels(), NumberedPixels(40, 30));
}

// There and back by every tab with every tool: a tool with options comes back as it was left, any other
// leaves the magnifier behind, with an empty panel.
TEST_F(PaintPanelTest, AModeSwitchThereAndBack) {
    OpenInDraw(40, 30);
    Tool(ETool::Pen);
    const CPixels empty = PanelPixels();
    for (const CToolRow& row : kTools)
        for (const EMode nMode : {EMode::Thum, EMode::Effect, EMode::Font, EMode::Stick}) {
            SCOPED_TRACE(testing::Message() << "button " << row.nButton << ", mode " << nMode);
            Tool(row.tool);
            PressWindow({205, 405});
            const auto settings = Settings();
            const CPixels panel = PanelPixels();
            GoTo(nMode);
            GoTo(EMode::Draw);
            EXPECT_EQ(Tools().m_nTool, row.HasOptions() ? row.tool : ETool::Magnifier);
            EXPECT_EQ(Tools().m_nZoom, 1);
            if (row.tool == ETool::Magnifier) {
                EXPECT_FALSE(PanelPixels() == panel);  // back at 1x
                continue;
            }
            EXPECT_EQ(Settings(), settings);
            EXPECT_EQ(PanelPixels(), row.HasOptions() ? panel : empty);
            if (row.HasOptions()) continue;
            // No option can be hit there until a button is pressed.
            PressWindow({205, 405});
            EXPECT_EQ(Tools().m_nZoom, 1);
            EXPECT_EQ(PanelPixels(), empty);
        }
    EXPECT_EQ(Undos(), 0);
}

TEST_F(PaintPanelTest, TheZoomChangesSizesAndPlaceButNotTheScrolling) {
    OpenInDraw(250, 200);
    Tool(ETool::Magnifier);
    PressWindow({205, 388});  // 4x
    EXPECT_EQ(Canvas().ScrollSizes(), (CSize{1000, 800}));
    EXPECT_EQ(Draw().Origin(), (CPoint{0, 0}));
    EXPECT_EQ(m_host.ScrollView(kCanvas, {101, 77}), "");
    PressWindow({205, 403});  // 6x
    EXPECT_EQ(Canvas().ScrollSizes(), (CSize{1500, 1200}));
    EXPECT_EQ(Canvas().ScrollPosition(), (CPoint{101, 77}));
    // Another tool draws at the zoom that is set.
    Tool(ETool::Fill);
    EXPECT_EQ(Tools().m_nZoom, 6);
    EXPECT_EQ(Canvas().ScrollSizes(), (CSize{1500, 1200}));
    // Undo keeps it, Reset does not.
    EXPECT_EQ(m_host.MouseOnView(kCanvas, EMouseAction::Press, EMouseButton::Left, {60, 60}), "");
    EXPECT_EQ(m_host.MouseOnView(kCanvas, EMouseAction::Release, EMouseButton::Left, {60, 60}), "");
    EXPECT_EQ(Undos(), 1);
    Click(kCmdUndo);
    EXPECT_EQ(Tools().m_nZoom, 6);
    EXPECT_EQ(Canvas().ScrollSizes(), (CSize{1500, 1200}));
    EXPECT_EQ(Tools().m_nTool, ETool::Fill);
    EXPECT_EQ(Controls().Focus(), FindToolButton(ETool::Fill));
    Click(kCmdReset);
    EXPECT_EQ(Tools().m_nZoom, 1);
    EXPECT_EQ(Canvas().ScrollSizes(), (CSize{250, 200}));
    EXPECT_EQ(Draw().Origin(), (CPoint{204, 171}));
    // In its panel too.
    Tool(ETool::Magnifier);
    const CPixels panel = PanelPixels();
    PressWindow({205, 388});
    Click(kCmdReset);
    EXPECT_EQ(PanelPixels(), panel);
    // So does a new entry.
    PressWindow({205, 373});
    EXPECT_EQ(Canvas().ScrollSizes(), (CSize{500, 400}));
    EXPECT_EQ(Draw().Origin(), (CPoint{79, 71}));
    GoTo(EMode::Stick);
    GoTo(EMode::Draw);
    EXPECT_EQ(Canvas().ScrollSizes(), (CSize{250, 200}));
}

TEST_F(PaintPanelTest, WellsTakeTheirColourFromTheDialogAndShowIt) {
    OpenInDraw(40, 30);
    const auto choose = [&](CColor color, auto fnAct) {
        m_platform.TakeAsked();
        m_platform.AnswerColor(color);
        fnAct();
        const std::vector<CAsked> arrAsked = m_platform.TakeAsked();
        ASSERT_EQ(arrAsked.size(), 1U);
        EXPECT_EQ(arrAsked[0].colorStart, (CColor{100, 100, 100}));
    };
    choose({200, 1, 1}, [&] { DoubleClickWindow({250, 530}, EMouseButton::Left); });
    choose({1, 200, 1}, [&] { DoubleClickWindow({215, 495}, EMouseButton::Right); });
    EXPECT_EQ(Tools().m_crForeground, (CColor{200, 1, 1}));
    EXPECT_EQ(Tools().m_crBackground, (CColor{1, 200, 1}));
    EXPECT_EQ(Seen({230, 510}), (CColor{200, 1, 1}));
    EXPECT_EQ(Seen({248, 528}), (CColor{1, 200, 1}));
    choose({1, 1, 200}, [&] { Click(kPaintColor); });
    EXPECT_EQ(Seen({230, 510}), (CColor{1, 1, 200}));
    EXPECT_EQ(Tools().m_crBackground, (CColor{1, 200, 1}));
    m_platform.AnswerCancel();
    Click(kPaintColor);
    EXPECT_EQ(Tools().m_crForeground, (CColor{1, 1, 200}));
    // Colours last through modes and new pictures, and nobody is asked in another mode.
    GoTo(EMode::Effect);
    DoubleClickWindow({30, 500}, EMouseButton::Left);
    OpenNumbered(20, 20);
    GoTo(EMode::Draw);
    EXPECT_EQ(Seen({230, 510}), (CColor{1, 1, 200}));
    EXPECT_EQ(Undos(), 0);
}
