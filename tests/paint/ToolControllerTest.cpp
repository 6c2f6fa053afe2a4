// Which steps the tool buttons, the options and the wells take, in which order, and what they remember.

#include "paint/PanelBench.h"

namespace {

class ToolController : public PanelBench {
  protected:
    // Selects the last option of the panel that is up; all kinds have one at this place.
    struct CLast {
        ETool tool;
        CPoint ptLast;
        int nOption;
    };
    static constexpr CLast kLast[] = {
        {ETool::Brush, {60, 60}, 11},    {ETool::Airbrush, {30, 60}, 2}, {ETool::Eraser, {30, 60}, 3},
        {ETool::Magnifier, {30, 60}, 3}, {ETool::Line, {30, 65}, 4},     {ETool::Rectangle, {30, 60}, 2},
        {ETool::Polygon, {30, 60}, 2},   {ETool::Ellipse, {30, 60}, 2},  {ETool::RoundRect, {30, 60}, 2}};

    int SettingOf(ETool tool) const {
        if (tool == ETool::Brush) return m_tools.m_nBrushShape;
        if (tool == ETool::Airbrush) return m_tools.m_nSpraySize;
        if (tool == ETool::Eraser) return m_tools.m_nEraserSize;
        if (tool == ETool::Magnifier) return m_tools.m_nZoom / 2;
        if (tool == ETool::Line || tool == ETool::Curve) return m_tools.m_nLineWidth - 1;
        return static_cast<int>(m_tools.m_nFillMode);
    }
};

}  // namespace

TEST_F(ToolController, AButtonTakesItsStepsInOrder) {
    m_controller.OnToolButton(ETool::Pen);
    EXPECT_EQ(TakeCalls(), "off abandon help105 revert forget");
    EXPECT_EQ(m_tools.m_nTool, ETool::Pen);
    EXPECT_EQ(m_tools.m_nResumeTool, ETool::Pen);
    EXPECT_EQ(m_controller.Panel(), 4);
    // An open shape is wiped before anything else, a float is merged behind the choice of the tool.
    m_bShapeOpen = true;
    m_controller.OnToolButton(ETool::Magnifier);
    EXPECT_EQ(TakeCalls(), "off abandon revert help110 revert forget zoom1");
    m_bFloating = true;
    m_tools.m_nTool = ETool::Float;
    m_controller.OnToolButton(ETool::Curve);
    EXPECT_EQ(TakeCalls(), "off abandon help112 revert forget drop");
    EXPECT_EQ(m_tools.m_nTool, ETool::Curve);
    // Without a picture the canvas is left alone.
    m_state.m_bImageOpen = false;
    m_controller.OnToolButton(ETool::Brush);
    EXPECT_EQ(TakeCalls(), "off abandon help106");
}

TEST_F(ToolController, AnOptionSetsItsToolAndComesBackWithIt) {
    for (const CLast& last : kLast) {
        SCOPED_TRACE(NumberOf(last.tool));
        m_controller.OnToolButton(last.tool);
        EXPECT_EQ(SettingOf(last.tool), 0);
        TakeCalls();
        EXPECT_TRUE(PressPanel(last.ptLast.x, last.ptLast.y));
        EXPECT_EQ(TakeCalls(), last.tool == ETool::Magnifier ? "revert forget zoom6" : "revert forget");
        EXPECT_EQ(SettingOf(last.tool), last.nOption);
    }
    for (const CLast& last : kLast) {
        m_controller.OnToolButton(ETool::Pen);
        m_tools.m_nFillMode = EFillMode::None;
        m_tools.m_nBrushShape = m_tools.m_nSpraySize = m_tools.m_nEraserSize = 0;
        m_controller.OnToolButton(last.tool);
        EXPECT_EQ(SettingOf(last.tool), last.nOption) << NumberOf(last.tool);
    }
    // A zoom stays with the other tools.
    EXPECT_EQ(m_tools.m_nZoom, 6);
}

TEST_F(ToolController, LineAndCurveAreOneChoice) {
    m_controller.OnToolButton(ETool::Line);
    PressPanel(30, 32);
    EXPECT_EQ(m_tools.m_nLineWidth, 3);
    m_controller.OnToolButton(ETool::Curve);
    EXPECT_EQ(m_tools.m_nLineWidth, 3);
    PressPanel(30, 65);
    EXPECT_EQ(std::pair(m_controller.Options().m_nOptLine, m_controller.Options().m_nOptCurve),
              std::pair(4, 4));
    // The figures keep the width.
    m_controller.OnToolButton(ETool::Ellipse);
    EXPECT_EQ(m_tools.m_nLineWidth, 5);
    m_controller.OnToolButton(ETool::Line);
    EXPECT_EQ(m_tools.m_nLineWidth, 5);
}

TEST_F(ToolController, TheFillingIsKeptPerTool) {
    m_controller.OnToolButton(ETool::Rectangle);
    PressPanel(30, 60);
    m_controller.OnToolButton(ETool::Ellipse);
    EXPECT_EQ(m_tools.m_nFillMode, EFillMode::None);
    PressPanel(30, 35);
    m_controller.OnToolButton(ETool::Rectangle);
    EXPECT_EQ(m_tools.m_nFillMode, EFillMode::Same);
    m_controller.OnToolButton(ETool::Ellipse);
    EXPECT_EQ(m_tools.m_nFillMode, EFillMode::Other);
}

TEST_F(ToolController, APressBesideAllOptionsKeepsTheOptionAndEntersTheTool) {
    m_controller.OnToolButton(ETool::Brush);
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
    m_controller.OnToolButton(ETool::Fill);
    TakeCalls();
    EXPECT_FALSE(PressPanel(30, 30));
    EXPECT_EQ(TakeCalls(), "");
}

// Where rectangles overlap or touch, the first that holds the point is taken.
TEST_F(ToolController, EveryRowOfAPanelHitsItsOption) {
    const auto rows = [&](ETool tool, const std::string& strWanted) {
        m_controller.OnToolButton(tool);
        std::string strFound;
        int nBefore = -1;
        for (int y = 0; y < kPanel.Height(); ++y) {
            PressPanel(40, y);
            const int nNow = SettingOf(tool);
            if (nNow != nBefore) strFound += std::to_string(y) + ":" + std::to_string(nNow) + " ";
            nBefore = nNow;
        }
        EXPECT_EQ(strFound, strWanted);
    };
    rows(ETool::Eraser, "0:0 15:1 32:2 51:3 ");
    rows(ETool::Airbrush, "0:0 25:1 50:2 ");
    rows(ETool::Line, "0:0 18:1 31:2 44:3 57:4 ");
    rows(ETool::Magnifier, "0:0 22:1 37:2 52:3 ");
    rows(ETool::Polygon, "0:0 29:1 51:2 ");
    rows(ETool::Brush, "0:0 4:1 21:4 38:7 55:10 ");
}

// A mode switch has entered the magnifier; the paint that follows settles the tool by the panel.
TEST_F(ToolController, APaintSettlesTheTool) {
    for (int nTool = 1; nTool <= 16; ++nTool) {
        SCOPED_TRACE(nTool);
        m_controller.OnToolButton(ETool{nTool});
        const CPixels panel = m_client.Surface().Pixels();
        m_controller.ResetZoom();
        m_controller.EnterMagnifier();
        m_client.FillRect(kPanel, {1, 2, 3});
        TakeCalls();
        m_controller.OnWindowPainted();
        const bool bOptions = nTool == 6 || nTool >= 8;
        EXPECT_EQ(m_tools.m_nTool, bOptions ? ETool{nTool} : ETool::Magnifier);
        EXPECT_EQ(m_controller.Panel(), nTool - 1);
        // The magnifier is current already, and what it has marked stays marked.
        EXPECT_EQ(TakeCalls(), bOptions && nTool != 10
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
