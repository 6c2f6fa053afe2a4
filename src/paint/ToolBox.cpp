#include "paint/ToolBox.h"

#include <algorithm>
#include <utility>

#include "paint/AirbrushTool.h"
#include "paint/BoxTool.h"
#include "paint/BrushTool.h"
#include "paint/CurveTool.h"
#include "paint/EraserTool.h"
#include "paint/FillTool.h"
#include "paint/FloatTool.h"
#include "paint/LineTool.h"
#include "paint/PenTool.h"
#include "paint/PickerTool.h"
#include "paint/PolygonTool.h"
#include "paint/SelectFreeTool.h"
#include "paint/SelectPolygonTool.h"
#include "paint/SelectRectTool.h"

namespace {

// The zoom is chosen in its panel; on the canvas the magnifier does nothing.
class CMagnifierTool : public CPaintTool {
  public:
    explicit CMagnifierTool(const CPaintEnvironment& env) : CPaintTool(env) {}
};

bool IsSelectionTool(ETool tool) {
    return tool == ETool::SelectRect || tool == ETool::SelectPolygon || tool == ETool::SelectFree;
}

}  // namespace

CToolBox::CToolBox(const CPaintEnvironment& env, CToolState& options, const std::function<bool()>& fnDrop)
    : m_env(env), m_options(options) {
    const auto add = [this](ETool tool, std::unique_ptr<CPaintTool> pTool) {
        m_arrTools[SlotOf(tool)] = std::move(pTool);
    };
    add(ETool::SelectRect, std::make_unique<CSelectRectTool>(m_env));
    add(ETool::SelectPolygon, std::make_unique<CSelectPolygonTool>(m_env));
    add(ETool::SelectFree, std::make_unique<CSelectFreeTool>(m_env));
    add(ETool::Picker, std::make_unique<CPickerTool>(m_env));
    add(ETool::Pen, std::make_unique<CPenTool>(m_env));
    add(ETool::Brush, std::make_unique<CBrushTool>(m_env));
    add(ETool::Fill, std::make_unique<CFillTool>(m_env));
    add(ETool::Airbrush, std::make_unique<CAirbrushTool>(m_env));
    add(ETool::Eraser, std::make_unique<CEraserTool>(m_env));
    add(ETool::Magnifier, std::make_unique<CMagnifierTool>(m_env));
    add(ETool::Line, std::make_unique<CLineTool>(m_env));
    add(ETool::Curve, std::make_unique<CCurveTool>(m_env));
    add(ETool::Rectangle, std::make_unique<CBoxTool>(m_env, EBoxFigure::Rectangle));
    add(ETool::Polygon, std::make_unique<CPolygonTool>(m_env));
    add(ETool::Ellipse, std::make_unique<CBoxTool>(m_env, EBoxFigure::Ellipse));
    add(ETool::RoundRect, std::make_unique<CBoxTool>(m_env, EBoxFigure::RoundRect));
    add(ETool::Float, std::make_unique<CFloatTool>(m_env, fnDrop));
}

CPaintTool& CToolBox::Current() {
    return *m_arrTools[SlotOf(m_options.m_nTool)];
}

CPoint CToolBox::KeepInside(CPoint pt) const {
    return {std::clamp(pt.x, 0, m_env.paper.Width()), std::clamp(pt.y, 0, m_env.paper.Height())};
}

void CToolBox::TakeColors(EMouseButton button) {
    const bool bRight = button == EMouseButton::Right;
    m_env.hand.m_crPrimary = bRight ? m_options.m_crBackground : m_options.m_crForeground;
    m_env.hand.m_crSecondary = bRight ? m_options.m_crForeground : m_options.m_crBackground;
}

CPen CToolBox::ToolPen() const {
    if (IsSelectionTool(m_options.m_nTool)) return SelectionPen();
    return CPen::Solid(m_options.m_nTool == ETool::Pen ? 1 : m_options.m_nLineWidth, m_env.hand.m_crPrimary);
}

CBrush CToolBox::FigureBrush() const {
    if (m_options.m_nFillMode == EFillMode::None) return CBrush::Hollow();
    return CBrush::Solid(m_options.m_nFillMode == EFillMode::Other ? m_env.hand.m_crSecondary
                                                                   : m_env.hand.m_crPrimary);
}

void CToolBox::OnPress(CPoint pt, EMouseButton button) {
    m_env.hand.m_bButtonDown = true;
    TakeColors(button);
    if (m_options.m_nTool == ETool::Picker) m_options.m_bPickForeground = button == EMouseButton::Left;
    m_env.hand.m_ptStart = KeepInside(pt);
    m_env.paper.Scratch().SelectPen(CPen::Solid(m_options.m_nLineWidth, m_env.hand.m_crPrimary));
    m_bPressRefused = !Press(pt);
}

bool CToolBox::Press(CPoint pt) {
    const bool bDraws = m_options.m_nTool != ETool::Picker && m_options.m_nTool != ETool::Magnifier;
    if (bDraws && !m_env.PrepareScratch()) return false;
    Current().Press(pt);
    return m_env.hand.m_bButtonDown;
}

void CToolBox::OnMove(CPoint pt) {
    m_env.paper.Scratch().SelectPen(ToolPen());
    m_env.paper.Scratch().SelectBrush(FigureBrush());
    if (m_env.hand.m_bButtonDown) Current().Move(KeepInside(pt));
}

void CToolBox::OnRelease(CPoint pt) {
    m_env.hand.m_bButtonDown = false;
    if (std::exchange(m_bPressRefused, false))
        return m_env.timers.KillTimer(m_env.canvas, CPaintEnvironment::kSprayTimer);
    m_env.paper.Committed().SelectPen(ToolPen());
    m_env.paper.Committed().SelectBrush(FigureBrush());
    Current().Release(KeepInside(pt));
}

void CToolBox::OnDoubleClick(CPoint pt, EMouseButton button) {
    TakeColors(button);
    m_env.hand.m_bButtonDown = false;
    m_bPressRefused = false;
    m_env.paper.Committed().SelectPen(ToolPen());
    m_env.paper.Committed().SelectBrush(FigureBrush());
    Current().DoubleClick(pt);
}

// A release that has never reached the canvas leaves the timer on; another tool ends it.
void CToolBox::OnTick() {
    if (m_options.m_nTool == ETool::Airbrush)
        Current().Tick();
    else
        m_env.timers.KillTimer(m_env.canvas, CPaintEnvironment::kSprayTimer);
}
