// What the options and the wells set and remember; the tool buttons are pressed through the window.

#include "paint/PanelBench.h"
#include "resources/Texts.h"

namespace {

class ToolController : public PanelBench {
  protected:
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

// Line and Curve are one choice, the filling is kept per tool.
TEST_F(ToolController, AnOptionSetsItsToolAndComesBackWithIt) {
    std::map<ETool, int> mapWanted;
    int yPress = 35;
    for (const CToolRow& row : kTools) {
        if (!row.HasOptions()) continue;
        SCOPED_TRACE(row.nButton);
        m_controller.OnToolButton(row.tool);
        EXPECT_EQ(SettingOf(row.tool), row.tool == ETool::Curve ? mapWanted[ETool::Line] : 0);
        TakeCalls();
        yPress = 95 - yPress;
        EXPECT_TRUE(PressPanel(40, yPress));
        EXPECT_EQ(TakeCalls(), row.tool == ETool::Magnifier ? "revert forget zoom2" : "revert forget");
        mapWanted[row.tool] = SettingOf(row.tool);
        EXPECT_NE(mapWanted[row.tool], 0);
    }
    EXPECT_NE(mapWanted[ETool::Line], mapWanted[ETool::Curve]);
    EXPECT_NE(mapWanted[ETool::Rectangle], mapWanted[ETool::Polygon]);
    mapWanted[ETool::Line] = mapWanted[ETool::Curve];
    m_tools = {};
    for (const auto& [tool, nWanted] : mapWanted) {
        m_controller.OnToolButton(tool);
        EXPECT_EQ(SettingOf(tool), nWanted) << NumberOf(tool);
    }
    // A zoom stays with the other tools, the figures have the width of the lines.
    EXPECT_EQ(m_tools.m_nZoom, 2);
    EXPECT_EQ(m_tools.m_nLineWidth - 1, mapWanted[ETool::Line]);
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

// Where a double click counts, and for which colour; the rest is pressed through the window.
TEST_F(ToolController, OnlyTheBedOfTheWellsAsksForAColour) {
    const CPoint ptBeside{212, 532};  // beside both wells, inside their bed
    m_answer = CColor{7, 8, 9};
    DoubleClick(ptBeside, EMouseButton::Right);
    EXPECT_EQ(m_tools.m_crBackground, (CColor{7, 8, 9}));
    EXPECT_EQ(TakeCalls(), "repaint");
    for (const CPoint pt : {CPoint{209, 500}, {256, 500}, {230, 488}, {230, 535}})
        DoubleClick(pt, EMouseButton::Left);
    EXPECT_EQ(m_arrAsked.size(), 1U);
    EXPECT_EQ(TakeCalls(), "");
    EXPECT_EQ(m_controller.HelpAt({230, 510}), kHelpForeground);
    EXPECT_EQ(m_controller.HelpAt({250, 530}), kHelpBackground);
    EXPECT_EQ(m_controller.HelpAt(ptBeside), 0);
}

TEST_F(ToolController, ThePickerShowsItsFindAtOnce) {
    m_controller.OnWindowPainted();
    m_controller.PickColor(true, {9, 8, 7});
    EXPECT_EQ(At(230, 510), (CColor{9, 8, 7}));
    m_controller.PickColor(false, {6, 5, 4});
    EXPECT_EQ(At(248, 528), (CColor{6, 5, 4}));
    EXPECT_EQ(At(230, 510), (CColor{9, 8, 7}));
}
