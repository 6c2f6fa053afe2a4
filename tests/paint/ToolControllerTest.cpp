// Which steps the tool buttons, the options and the wells take, in which order, and what they remember.

#include "paint/PanelBench.h"
#include "resources/ToolTable.h"

namespace {

class ToolController : public PanelBench {
  protected:
    // Selects the last option of the panel that is up; all kinds have one at this place.
    struct CLast {
        int nTool;
        CPoint ptLast;
        int nOption;
    };
    static constexpr CLast kLast[] = {
        {kToolBrush, {60, 60}, 11},    {kToolAirbrush, {30, 60}, 2}, {kToolEraser, {30, 60}, 3},
        {kToolMagnifier, {30, 60}, 3}, {kToolLine, {30, 65}, 4},     {kToolRectangle, {30, 60}, 2},
        {kToolPolygon, {30, 60}, 2},   {kToolEllipse, {30, 60}, 2},  {kToolRoundRect, {30, 60}, 2}};

    int SettingOf(int nTool) const {
        if (nTool == kToolBrush) return m_tools.m_nBrushShape;
        if (nTool == kToolAirbrush) return m_tools.m_nSpraySize;
        if (nTool == kToolEraser) return m_tools.m_nEraserSize;
        if (nTool == kToolMagnifier) return m_tools.m_nZoom / 2;
        if (nTool == kToolLine || nTool == kToolCurve) return m_tools.m_nLineWidth - 1;
        return m_tools.m_nFillMode;
    }
};

}  // namespace

TEST_F(ToolController, AButtonTakesItsStepsInOrder) {
    m_controller.OnToolButton(kToolPen);
    EXPECT_EQ(TakeCalls(), "off abandon help105 revert forget");
    EXPECT_EQ(m_tools.m_nTool, kToolPen);
    EXPECT_EQ(m_tools.m_nResumeTool, kToolPen);
    EXPECT_EQ(m_controller.Panel(), 4);
    // An open shape is wiped before anything else, a float is merged behind the choice of the tool.
    m_bShapeOpen = true;
    m_controller.OnToolButton(kToolMagnifier);
    EXPECT_EQ(TakeCalls(), "off abandon revert help110 revert forget zoom1");
    m_bFloating = true;
    m_tools.m_nTool = kToolFloat;
    m_controller.OnToolButton(kToolCurve);
    EXPECT_EQ(TakeCalls(), "off abandon help112 revert forget drop");
    EXPECT_EQ(m_tools.m_nTool, kToolCurve);
    // Without a picture the canvas is left alone.
    m_state.m_bImageOpen = false;
    m_controller.OnToolButton(kToolBrush);
    EXPECT_EQ(TakeCalls(), "off abandon help106");
}

TEST_F(ToolController, EveryToolSelectsAndSetsItself) {
    for (int nTool = 1; nTool <= 16; ++nTool) {
        m_controller.OnToolButton(nTool);
        EXPECT_EQ(m_tools.m_nTool, nTool);
        EXPECT_EQ(m_controller.Panel(), nTool - 1);
        EXPECT_NE(TakeCalls().find("help" + std::to_string(100 + nTool)), std::string::npos);
        m_controller.FocusCurrentTool();
    }
}

TEST_F(ToolController, AnOptionSetsItsToolAndComesBackWithIt) {
    for (const CLast& last : kLast) {
        SCOPED_TRACE(last.nTool);
        m_controller.OnToolButton(last.nTool);
        EXPECT_EQ(SettingOf(last.nTool), 0);
        TakeCalls();
        EXPECT_TRUE(PressPanel(last.ptLast.x, last.ptLast.y));
        EXPECT_EQ(TakeCalls(), last.nTool == kToolMagnifier ? "revert forget zoom6" : "revert forget");
        EXPECT_EQ(SettingOf(last.nTool), last.nOption);
    }
    for (const CLast& last : kLast) {
        m_controller.OnToolButton(kToolPen);
        m_tools.m_nFillMode = m_tools.m_nBrushShape = m_tools.m_nSpraySize = m_tools.m_nEraserSize = 0;
        m_controller.OnToolButton(last.nTool);
        EXPECT_EQ(SettingOf(last.nTool), last.nOption) << last.nTool;
    }
    // A zoom stays with the other tools.
    EXPECT_EQ(m_tools.m_nZoom, 6);
}

TEST_F(ToolController, ZoomsAreOneTwoFourSix) {
    m_controller.OnToolButton(kToolMagnifier);
    constexpr int kZooms[] = {1, 2, 4, 6};
    for (const int i : {3, 1, 2, 0}) {
        PressPanel(1, 7 + 15 * i);
        EXPECT_EQ(m_tools.m_nZoom, kZooms[i]);
        EXPECT_EQ(m_controller.Options().m_nOptZoom, i);
    }
    PressPanel(1, 60);
    m_controller.ResetZoom();
    EXPECT_EQ(std::pair(m_tools.m_nZoom, m_controller.Options().m_nOptZoom), std::pair(1, 0));
    m_controller.EnterMagnifier();
    EXPECT_EQ(m_tools.m_nZoom, 1);
}

TEST_F(ToolController, LineAndCurveAreOneChoice) {
    m_controller.OnToolButton(kToolLine);
    PressPanel(30, 32);
    EXPECT_EQ(m_tools.m_nLineWidth, 3);
    m_controller.OnToolButton(kToolCurve);
    EXPECT_EQ(m_tools.m_nLineWidth, 3);
    PressPanel(30, 65);
    EXPECT_EQ(std::pair(m_controller.Options().m_nOptLine, m_controller.Options().m_nOptCurve),
              std::pair(4, 4));
    // The figures keep the width.
    m_controller.OnToolButton(kToolEllipse);
    EXPECT_EQ(m_tools.m_nLineWidth, 5);
    m_controller.OnToolButton(kToolLine);
    EXPECT_EQ(m_tools.m_nLineWidth, 5);
}

TEST_F(ToolController, TheFillingIsKeptPerTool) {
    m_controller.OnToolButton(kToolRectangle);
    PressPanel(30, 60);
    m_controller.OnToolButton(kToolEllipse);
    EXPECT_EQ(m_tools.m_nFillMode, kFillNone);
    PressPanel(30, 35);
    m_controller.OnToolButton(kToolRectangle);
    EXPECT_EQ(m_tools.m_nFillMode, kFillSame);
    m_controller.OnToolButton(kToolEllipse);
    EXPECT_EQ(m_tools.m_nFillMode, kFillOther);
}

TEST_F(ToolController, APressBesideAllOptionsKeepsTheOptionAndEntersTheTool) {
    m_controller.OnToolButton(kToolBrush);
    PressPanel(60, 60);
    const CPixels before = m_client.Surface().Pixels();
    m_client.FillRect({200, 380, 210, 390}, {1, 2, 3});
    TakeCalls();
    // An open shape stays open, only its rubber band goes.
    m_bShapeOpen = true;
    EXPECT_TRUE(PressPanel(1, 1));
    EXPECT_EQ(TakeCalls(), "revert forget");
    EXPECT_EQ(m_tools.m_nBrushShape, 11);
    EXPECT_TRUE(m_client.Surface().Pixels() == before);
    // The panel's right and lower edge are beyond it; an option reaches no further than the panel.
    EXPECT_TRUE(PressPanel(74, 76));
    for (const CPoint pt : {CPoint{75, 10}, {10, 77}, {-1, 10}, {10, -1}})
        EXPECT_FALSE(PressPanel(pt.x, pt.y));
    // A tool without options has no panel to press.
    m_controller.OnToolButton(kToolFill);
    TakeCalls();
    EXPECT_FALSE(PressPanel(30, 30));
    EXPECT_EQ(TakeCalls(), "");
}

// Where rectangles overlap or touch, the first that holds the point is taken.
TEST_F(ToolController, EveryRowOfAPanelHitsItsOption) {
    const auto rows = [&](int nTool, const std::string& strWanted) {
        m_controller.OnToolButton(nTool);
        std::string strFound;
        int nBefore = -1;
        for (int y = 0; y < kPanel.Height(); ++y) {
            PressPanel(40, y);
            const int nNow = SettingOf(nTool);
            if (nNow != nBefore) strFound += std::to_string(y) + ":" + std::to_string(nNow) + " ";
            nBefore = nNow;
        }
        EXPECT_EQ(strFound, strWanted);
    };
    rows(kToolEraser, "0:0 15:1 32:2 51:3 ");
    rows(kToolAirbrush, "0:0 25:1 50:2 ");
    rows(kToolLine, "0:0 18:1 31:2 44:3 57:4 ");
    rows(kToolMagnifier, "0:0 22:1 37:2 52:3 ");
    rows(kToolPolygon, "0:0 29:1 51:2 ");
    rows(kToolBrush, "0:0 4:1 21:4 38:7 55:10 ");
}

// A float that is up when an option is chosen is merged, and the option is the resumed tool's.
TEST_F(ToolController, AnOptionChosenOverAFloatGoesBackToTheTool) {
    m_controller.OnToolButton(kToolLine);
    m_bFloating = true;
    m_tools.m_nTool = kToolFloat;
    TakeCalls();
    EXPECT_TRUE(PressPanel(30, 65));
    EXPECT_EQ(TakeCalls(), "revert forget drop");
    EXPECT_EQ(m_tools.m_nTool, kToolLine);
    EXPECT_EQ(m_tools.m_nLineWidth, 5);
}

// A mode switch has entered the magnifier; the paint that follows settles the tool by the panel.
TEST_F(ToolController, APaintSettlesTheTool) {
    for (int nTool = 1; nTool <= 16; ++nTool) {
        SCOPED_TRACE(nTool);
        m_controller.OnToolButton(nTool);
        const CPixels panel = m_client.Surface().Pixels();
        m_controller.ResetZoom();
        m_controller.EnterMagnifier();
        m_client.FillRect(kPanel, {1, 2, 3});
        TakeCalls();
        m_controller.OnWindowPainted();
        const bool bOptions = nTool == 6 || nTool >= 8;
        EXPECT_EQ(m_tools.m_nTool, bOptions ? nTool : kToolMagnifier);
        EXPECT_EQ(m_controller.Panel(), nTool - 1);
        // The magnifier is current already, and what it has marked stays marked.
        EXPECT_EQ(TakeCalls(), bOptions && nTool != kToolMagnifier
                                   ? "off abandon help" + std::to_string(100 + nTool) + " revert forget"
                                   : "");
        // All that was there has come back.
        for (int y = kPanel.top; y < kPanel.bottom; ++y)
            for (int x = kPanel.left; x < kPanel.right; ++x)
                ASSERT_EQ(At(x, y), PixelAt(panel, x, y)) << x << "," << y;
        if (!bOptions) {
            EXPECT_FALSE(PressPanel(30, 30));
        }
    }
}

TEST_F(ToolController, TheFirstEntryFindsAnEmptyPanel) {
    EXPECT_EQ(m_tools.m_nTool, kToolSelectRect);
    m_controller.OnWindowPainted();
    EXPECT_EQ(TakeCalls(), "");
    EXPECT_EQ(At(200, 380), (CColor{0x90, 0x97, 0x97}));
    EXPECT_FALSE(PressPanel(30, 30));
}

TEST_F(ToolController, ColoursComeFromTheDialog) {
    const CPoint ptFore{215, 495};
    const CPoint ptBack{250, 530};
    const CPoint ptBeside{212, 532};  // beside both wells, inside their bed
    m_answer = CColor{1, 2, 3};
    DoubleClick(ptBack, EMouseButton::Left);
    EXPECT_EQ(m_tools.m_crForeground, (CColor{1, 2, 3}));
    EXPECT_EQ(m_tools.m_crBackground, (CColor{255, 255, 255}));
    EXPECT_EQ(TakeCalls(), "repaint");
    m_answer = CColor{4, 5, 6};
    DoubleClick(ptFore, EMouseButton::Right);
    EXPECT_EQ(m_tools.m_crBackground, (CColor{4, 5, 6}));
    m_answer = CColor{7, 8, 9};
    DoubleClick(ptBeside, EMouseButton::Right);
    EXPECT_EQ(m_tools.m_crBackground, (CColor{7, 8, 9}));
    m_answer = CColor{10, 11, 12};
    m_controller.OnPaintColor();
    EXPECT_EQ(m_tools.m_crForeground, (CColor{10, 11, 12}));
    TakeCalls();
    // Cancelled, and beside the bed: nothing changes.
    m_answer.reset();
    DoubleClick(ptFore, EMouseButton::Left);
    m_controller.OnPaintColor();
    EXPECT_EQ(m_arrAsked, std::vector<CColor>(6, {100, 100, 100}));
    m_answer = CColor{13, 14, 15};
    for (const CPoint pt : {CPoint{209, 500}, {256, 500}, {230, 488}, {230, 535}})
        DoubleClick(pt, EMouseButton::Left);
    EXPECT_EQ(m_arrAsked.size(), 6U);
    EXPECT_EQ(m_tools.m_crForeground, (CColor{10, 11, 12}));
    EXPECT_EQ(TakeCalls(), "");
    // The wells show what is chosen.
    m_controller.OnWindowPainted();
    EXPECT_EQ(At(230, 510), (CColor{10, 11, 12}));
    EXPECT_EQ(At(248, 528), (CColor{7, 8, 9}));
}

TEST_F(ToolController, ThePickerShowsItsFindAtOnce) {
    m_controller.OnWindowPainted();
    m_controller.PickColor(true, {9, 8, 7});
    EXPECT_EQ(At(230, 510), (CColor{9, 8, 7}));
    m_controller.PickColor(false, {6, 5, 4});
    EXPECT_EQ(At(248, 528), (CColor{6, 5, 4}));
    EXPECT_EQ(At(230, 510), (CColor{9, 8, 7}));
    EXPECT_EQ(m_tools.m_crForeground, (CColor{9, 8, 7}));
    EXPECT_EQ(m_tools.m_crBackground, (CColor{6, 5, 4}));
    EXPECT_EQ(TakeCalls(), "");
    EXPECT_EQ(m_controller.HelpAt({230, 510}), 118);
    EXPECT_EQ(m_controller.HelpAt({250, 530}), 119);
    EXPECT_EQ(m_controller.HelpAt({212, 532}), 0);
}
