// The paint panel in the main window: tool buttons, options, colour wells, and what a mode switch leaves.

#include "app/PaintWorkshop.h"

namespace {

// An option by the middle of what is drawn of it.
struct COption {
    int nTool;
    CPoint pt;
    int nWanted;  // the setting behind it
};
constexpr COption kOptions[] = {
    {kToolBrush, {182, 356}, 0},     {kToolBrush, {206, 356}, 1},     {kToolBrush, {230, 356}, 2},
    {kToolBrush, {182, 373}, 3},     {kToolBrush, {206, 373}, 4},     {kToolBrush, {230, 373}, 5},
    {kToolBrush, {182, 390}, 6},     {kToolBrush, {206, 390}, 7},     {kToolBrush, {230, 390}, 8},
    {kToolBrush, {182, 407}, 9},     {kToolBrush, {206, 407}, 10},    {kToolBrush, {230, 407}, 11},
    {kToolAirbrush, {205, 356}, 0},  {kToolAirbrush, {205, 379}, 1},  {kToolAirbrush, {205, 404}, 2},
    {kToolEraser, {205, 354}, 0},    {kToolEraser, {205, 366}, 1},    {kToolEraser, {205, 383}, 2},
    {kToolEraser, {205, 402}, 3},    {kToolMagnifier, {205, 403}, 6}, {kToolMagnifier, {205, 373}, 2},
    {kToolMagnifier, {205, 388}, 4}, {kToolMagnifier, {205, 358}, 1}, {kToolLine, {205, 355}, 1},
    {kToolLine, {205, 368}, 2},      {kToolLine, {205, 381}, 3},      {kToolLine, {205, 394}, 4},
    {kToolLine, {205, 407}, 5},      {kToolCurve, {205, 355}, 1},     {kToolCurve, {205, 407}, 5},
    {kToolRectangle, {205, 362}, 0}, {kToolRectangle, {205, 384}, 1}, {kToolRectangle, {205, 406}, 2},
    {kToolPolygon, {205, 384}, 1},   {kToolPolygon, {205, 406}, 2},   {kToolEllipse, {205, 384}, 1},
    {kToolEllipse, {205, 406}, 2},   {kToolRoundRect, {205, 406}, 2}, {kToolRoundRect, {205, 362}, 0}};
constexpr CPoint kBesideOptions{240, 419};  // in the panel

class PaintPanelTest : public PaintWorkshop {
  protected:
    int SettingOf(int nTool) const {
        switch (nTool) {
            case kToolBrush:
                return Tools().m_nBrushShape;
            case kToolAirbrush:
                return Tools().m_nSpraySize;
            case kToolEraser:
                return Tools().m_nEraserSize;
            case kToolMagnifier:
                return Tools().m_nZoom;
            case kToolLine:
            case kToolCurve:
                return Tools().m_nLineWidth;
            default:
                return Tools().m_nFillMode;
        }
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

bool HasOptions(int nTool) {
    return nTool == kToolBrush || (nTool >= kToolAirbrush && nTool <= kToolRoundRect);
}

}  // namespace

TEST_F(PaintPanelTest, EachButtonSelectsItsTool) {
    OpenInDraw(40, 30);
    Tool(kToolPen);
    const CPixels empty = PanelPixels();
    for (int nTool = 1; nTool <= 16; ++nTool) {
        SCOPED_TRACE(nTool);
        Tool(nTool);
        EXPECT_EQ(Tools().m_nTool, nTool);
        EXPECT_EQ(Controls().Focus(), FindToolButton(nTool));
        std::string strWanted;
        ASSERT_TRUE(FindHelpText(100 + nTool, strWanted));
        EXPECT_EQ(Help(), strWanted);
        // The airbrush's clouds are pictures, which this window does not have.
        if (nTool != kToolAirbrush) {
            EXPECT_EQ(PanelPixels() == empty, !HasOptions(nTool));
        }
    }
    EXPECT_EQ(Undos(), 0);
}

// Each press also brings the working image up to the canvas, with no step to undo.
TEST_F(PaintPanelTest, EachOptionOfEachPanel) {
    OpenInDraw(40, 30);
    for (const COption& option : kOptions) {
        SCOPED_TRACE(testing::Message() << option.nTool << " at " << option.pt.x << "," << option.pt.y);
        if (Tools().m_nTool != option.nTool) Tool(option.nTool);
        PaintOver(Touch(Images().m_imgWork), {3, 3, 3});
        PressWindow(option.pt);
        EXPECT_EQ(SettingOf(option.nTool), option.nWanted);
        EXPECT_EQ(Images().m_imgWork.Pixels(), NumberedPixels(40, 30));
        const CPixels panel = PanelPixels();
        // Beside the options all stays, and the picture is fetched all the same.
        PaintOver(Touch(Images().m_imgWork), {3, 3, 3});
        PressWindow(kBesideOptions);
        EXPECT_EQ(SettingOf(option.nTool), option.nWanted);
        EXPECT_EQ(Images().m_imgWork.Pixels(), NumberedPixels(40, 30));
        EXPECT_EQ(PanelPixels(), panel);
        EXPECT_EQ(Tools().m_nTool, option.nTool);
    }
    EXPECT_EQ(Undos(), 0);
}

TEST_F(PaintPanelTest, AToolChosenAgainTakesTheSelection) {
    OpenInDraw(40, 30);
    Tool(kToolSelectRect);
    Drag({5, 5}, {20, 20});
    EXPECT_TRUE(Draw().Selection().IsMarked() && Controls().IsEnabled(kCmdCrop));
    Tool(kToolSelectRect);
    EXPECT_FALSE(Draw().Selection().IsMarked());
    for (const int nId : {kCmdCut, kCmdCopy, kCmdCrop}) EXPECT_FALSE(Controls().IsEnabled(nId));
    EXPECT_TRUE(Draw().Paper().Scratch().Pixels() == Draw().Paper().Committed().Pixels());
}

// With a float up: another tool, an option, a press beside the options, a new colour.
TEST_F(PaintPanelTest, WhateverEntersAToolMergesTheFloat) {
    OpenInDraw(40, 30);
    const auto paste = [&] {
        Tool(kToolSelectRect);
        Drag({20, 10}, {30, 20});
        Click(kCmdCopy);
        Tool(kToolBrush);
        PressWindow({182, 373});
        Click(kCmdPaste);
        EXPECT_EQ(Tools().m_nTool, kToolFloat);
        EXPECT_TRUE(Draw().IsFloating());
        EXPECT_FALSE(Draw().Paper().Committed().Pixels() == Draw().Paper().Scratch().Pixels());
    };
    const auto expectMerged = [&](int nTool) {
        EXPECT_FALSE(Draw().IsFloating());
        EXPECT_EQ(Tools().m_nTool, nTool);
        EXPECT_EQ(PixelAt(Draw().Paper().Committed().Pixels(), 3, 4), (CColor{23, 14, 0}));
        EXPECT_TRUE(Draw().Paper().Committed().Pixels() == Draw().Paper().Scratch().Pixels());
        Click(kCmdUndo);
        EXPECT_EQ(Images().m_imgWork.Pixels(), NumberedPixels(40, 30));
        EXPECT_EQ(Undos(), 0);
    };
    paste();
    Tool(kToolFill);
    expectMerged(kToolFill);
    paste();
    PressWindow({206, 407});
    EXPECT_EQ(Tools().m_nBrushShape, 10);
    expectMerged(kToolBrush);
    paste();
    PressWindow(kBesideOptions);
    EXPECT_EQ(Tools().m_nBrushShape, 3);
    expectMerged(kToolBrush);
    // The window is painted behind the dialog, which selects the panel's tool again.
    paste();
    m_platform.AnswerColor({1, 2, 3});
    Click(kPaintColor);
    expectMerged(kToolBrush);
}

TEST_F(PaintPanelTest, APressBesideThePanelEndsAnOpenShapeAndOneInsideDoesNot) {
    OpenInDraw(40, 30);
    Tool(kToolPolygon);
    Drag({5, 5}, {20, 6});
    PressWindow({205, 384});
    EXPECT_TRUE(Draw().IsShapeOpen());
    EXPECT_EQ(Tools().m_nFillMode, kFillOther);
    EXPECT_TRUE(Draw().Paper().Scratch().Pixels() == Draw().Paper().Committed().Pixels());
    PressWindow({100, 600});
    EXPECT_FALSE(Draw().IsShapeOpen());
    Drag({5, 5}, {20, 6});
    Tool(kToolCurve);
    EXPECT_FALSE(Draw().IsShapeOpen());
    EXPECT_TRUE(Draw().Paper().Scratch().Pixels() == Draw().Paper().Committed().Pixels());
    EXPECT_EQ(Draw().Paper().Committed().Pixels(), NumberedPixels(40, 30));
}

// There and back by every tab with every tool: a tool with options comes back as it was left, any other
// leaves the magnifier behind, with an empty panel.
TEST_F(PaintPanelTest, AModeSwitchThereAndBack) {
    OpenInDraw(40, 30);
    Tool(kToolPen);
    const CPixels empty = PanelPixels();
    for (int nTool = 1; nTool <= 16; ++nTool)
        for (const EMode nMode : {EMode::Thum, EMode::Effect, EMode::Font, EMode::Stick}) {
            SCOPED_TRACE(testing::Message() << "tool " << nTool << ", mode " << nMode);
            Tool(nTool);
            PressWindow({205, 405});
            const int nSetting = SettingOf(nTool);
            const CPixels panel = PanelPixels();
            GoTo(nMode);
            GoTo(EMode::Draw);
            EXPECT_EQ(Tools().m_nTool, HasOptions(nTool) ? nTool : kToolMagnifier);
            EXPECT_EQ(Tools().m_nZoom, 1);
            if (nTool == kToolMagnifier) {
                EXPECT_FALSE(PanelPixels() == panel);  // back at 1x
                continue;
            }
            EXPECT_EQ(SettingOf(nTool), nSetting);
            EXPECT_EQ(PanelPixels(), HasOptions(nTool) ? panel : empty);
            if (HasOptions(nTool)) continue;
            // No option can be hit there until a button is pressed.
            PressWindow({205, 405});
            EXPECT_EQ(Tools().m_nZoom, 1);
            EXPECT_EQ(PanelPixels(), empty);
        }
    EXPECT_EQ(Undos(), 0);
}

TEST_F(PaintPanelTest, TheFirstEntryShowsTheMagnifierWithoutOptions) {
    GoTo(EMode::Draw);
    const CPixels empty = PanelPixels();
    GoTo(EMode::Thum);
    OpenInDraw(40, 30);
    EXPECT_EQ(Tools().m_nTool, kToolMagnifier);
    EXPECT_EQ(PanelPixels(), empty);
    PressWindow({205, 388});
    EXPECT_EQ(Tools().m_nZoom, 1);
}

TEST_F(PaintPanelTest, ToolsCanBeChosenWithoutAPicture) {
    GoTo(EMode::Draw);
    for (const COption& option : kOptions) {
        Tool(option.nTool);
        PressWindow(option.pt);
        EXPECT_EQ(SettingOf(option.nTool), option.nWanted);
    }
    m_platform.AnswerColor({9, 9, 9});
    Click(kPaintColor);
    EXPECT_EQ(Tools().m_crForeground, (CColor{9, 9, 9}));
    EXPECT_FALSE(State().m_bImageOpen);
}

TEST_F(PaintPanelTest, TheZoomChangesSizesAndPlaceButNotTheScrolling) {
    OpenInDraw(250, 200);
    Tool(kToolMagnifier);
    PressWindow({205, 388});  // 4x
    EXPECT_EQ(Canvas().ScrollSizes(), (CSize{1000, 800}));
    EXPECT_EQ(Draw().Origin(), (CPoint{0, 0}));
    EXPECT_EQ(m_host.ScrollView(kCanvas, {101, 77}), "");
    PressWindow({205, 403});  // 6x
    EXPECT_EQ(Canvas().ScrollSizes(), (CSize{1500, 1200}));
    EXPECT_EQ(Canvas().ScrollPosition(), (CPoint{101, 77}));
    // Another tool draws at the zoom that is set.
    Tool(kToolFill);
    EXPECT_EQ(Tools().m_nZoom, 6);
    EXPECT_EQ(Canvas().ScrollSizes(), (CSize{1500, 1200}));
    // Undo keeps it, Reset does not.
    EXPECT_EQ(m_host.MouseOnView(kCanvas, EMouseAction::Press, EMouseButton::Left, {60, 60}), "");
    EXPECT_EQ(m_host.MouseOnView(kCanvas, EMouseAction::Release, EMouseButton::Left, {60, 60}), "");
    EXPECT_EQ(Undos(), 1);
    Click(kCmdUndo);
    EXPECT_EQ(Tools().m_nZoom, 6);
    EXPECT_EQ(Canvas().ScrollSizes(), (CSize{1500, 1200}));
    EXPECT_EQ(Tools().m_nTool, kToolFill);
    Click(kCmdReset);
    EXPECT_EQ(Tools().m_nZoom, 1);
    EXPECT_EQ(Canvas().ScrollSizes(), (CSize{250, 200}));
    EXPECT_EQ(Draw().Origin(), (CPoint{204, 171}));
    // So does a new entry.
    Tool(kToolMagnifier);
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

TEST_F(PaintPanelTest, WellsFollowThePickerAtOnce) {
    OpenInDraw(40, 30);
    Tool(kToolPicker);
    Mouse(EMouseAction::Press, {12, 5});
    EXPECT_EQ(Seen({230, 510}), (CColor{12, 5, 0}));
    Mouse(EMouseAction::Move, {13, 6});
    EXPECT_EQ(Seen({230, 510}), (CColor{13, 6, 0}));
    Mouse(EMouseAction::Release, {13, 6});
    Mouse(EMouseAction::Move, {20, 20});
    EXPECT_EQ(Seen({230, 510}), (CColor{13, 6, 0}));
    Mouse(EMouseAction::Press, {30, 20}, EMouseButton::Right);
    Mouse(EMouseAction::Move, {31, 21});
    Mouse(EMouseAction::Release, {31, 21}, EMouseButton::Right);
    EXPECT_EQ(Seen({248, 528}), (CColor{31, 21, 0}));
    EXPECT_EQ(Seen({230, 510}), (CColor{13, 6, 0}));
    EXPECT_EQ(Tools().m_crBackground, (CColor{31, 21, 0}));
    EXPECT_EQ(Undos(), 0);
}
