#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

// The paint tools by number, in the order of their buttons. The last one has no button: it is current while a
// pasted selection floats over the picture.
enum class ETool {
    SelectRect = 1,
    SelectPolygon,
    SelectFree,
    Picker,
    Pen,
    Brush,
    Fill,
    Airbrush,
    Eraser,
    Magnifier,  // the tool that is current on every entry to DRAW
    Line,
    Curve,
    Rectangle,
    Polygon,
    Ellipse,
    RoundRect,
    Float,
};

// The kinds of option panels. Line and curve differ in the number only.
enum class EOptNum {
    None = -1,
    Eraser = 1,
    Spray = 4,
    Line = 5,
    Zoom = 10,
    Brush = 11,
    Curve = 13,
    Fill = 14,
};

// The option last chosen, per tool. Line and curve are one choice: both always hold the same.
struct CToolOptions {
    int m_nOptLine = 0;
    int m_nOptCurve = 0;
    int m_nOptPolygon = 0;
    int m_nOptRect = 0;
    int m_nOptRoundRect = 0;
    int m_nOptEllipse = 0;
    int m_nOptZoom = 0;
    int m_nOptSpray = 0;
    int m_nOptBrush = 0;
    int m_nOptEraser = 0;
};

struct CToolRow {
    ETool tool;
    int nButton;
    const char* szHelp;  // what the help line says of it
    EOptNum optNum = EOptNum::None;
    int CToolOptions::*pOption = nullptr;

    bool HasOptions() const { return optNum != EOptNum::None; }
};

inline constexpr auto kTools = std::to_array<CToolRow>({
    {ETool::SelectRect, 1168, "单击-拖拉可 选择四边形区域"},
    {ETool::SelectPolygon, 1169, "单击-反复拖拉 可选择多边形区域，双击结束"},
    {ETool::SelectFree, 1170, "单击-拖拉 可选择任意区域"},
    {ETool::Picker, 1182, "单击后显示像素的颜色信息"},
    {ETool::Pen, 1178, "单击-拖拉 可 画任意线条"},
    {ETool::Brush, 1181, "单击-拖拉 涂色", EOptNum::Brush, &CToolOptions::m_nOptBrush},
    {ETool::Fill, 1177, "单击 填充所选颜色"},
    {ETool::Airbrush, 1180, "单击-拖拉 变为所选的颜色", EOptNum::Spray, &CToolOptions::m_nOptSpray},
    {ETool::Eraser, 1183, "单击-拖拉 删除所选区域", EOptNum::Eraser, &CToolOptions::m_nOptEraser},
    {ETool::Magnifier, 1179, "在选项里选择1x, 2x, 4x, 6x 可放大浏览", EOptNum::Zoom,
     &CToolOptions::m_nOptZoom},
    {ETool::Line, 1171, "单击-拖拉 画直线", EOptNum::Line, &CToolOptions::m_nOptLine},
    {ETool::Curve, 1174, "单击-拖拉，画直线，单击或双击变为曲线", EOptNum::Curve, &CToolOptions::m_nOptCurve},
    {ETool::Rectangle, 1173, "单击-拖拉  画四边形", EOptNum::Fill, &CToolOptions::m_nOptRect},
    {ETool::Polygon, 1172, "单击-反复拖拉 画多边形，双击结束。", EOptNum::Fill, &CToolOptions::m_nOptPolygon},
    {ETool::Ellipse, 1176, "单击-拖拉 画圆形", EOptNum::Fill, &CToolOptions::m_nOptEllipse},
    {ETool::RoundRect, 1175, "单击-拖拉 画椭圆形", EOptNum::Fill, &CToolOptions::m_nOptRoundRect},
});

constexpr int NumberOf(ETool tool) {
    return static_cast<int>(tool);
}

// The place of a tool with a button in the tables of all of them.
constexpr std::size_t SlotOf(ETool tool) {
    return static_cast<std::size_t>(NumberOf(tool) - 1);
}
static_assert(std::ranges::all_of(kTools,
                                  [](const CToolRow& row) { return &row == &kTools[SlotOf(row.tool)]; }),
              "the rows stand in the order of the tools");

// Null for the float.
constexpr const CToolRow* FindToolRow(ETool tool) {
    return tool == ETool::Float ? nullptr : &kTools[SlotOf(tool)];
}

inline constexpr auto kToolButtons = [] {
    std::array<int, kTools.size()> arrButtons{};
    std::ranges::transform(kTools, arrButtons.begin(), &CToolRow::nButton);
    return arrButtons;
}();

// The button of a tool; 0 for the float.
constexpr int FindToolButton(ETool tool) {
    return tool == ETool::Float ? 0 : kTools[SlotOf(tool)].nButton;
}

// The tool of a button; none for a control that is no tool's button.
constexpr std::optional<ETool> FindTool(int nButton) {
    for (const CToolRow& row : kTools)
        if (row.nButton == nButton) return row.tool;
    return std::nullopt;
}

// The code of a tool's help.
constexpr int HelpCodeOf(ETool tool) {
    return 100 + NumberOf(tool);
}
