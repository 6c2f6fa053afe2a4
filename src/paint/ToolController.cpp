#include "paint/ToolController.h"

#include "resources/Texts.h"

namespace {

constexpr CRect kBackdropAt{210, 489, 256, 535};
constexpr CRect kBackgroundAt{225, 504, 255, 534};
constexpr CRect kForegroundAt{211, 490, 241, 520};
constexpr CColor kBackdrop = CColor::FromRef(0xD2D2D2);

// Where every choice of a colour starts, whatever the colours are.
constexpr CColor kFirstChoice = CColor::FromRef(0x646464);

}  // namespace

CToolController::CToolController(const CEnvironment& env)
    : m_env(env),
      m_toolPanel(env.text),
      m_wellBackdrop(kBackdropAt, kBackdrop, ESkinEdge::SunkenLine),
      m_wellBackground(kBackgroundAt, env.tools.m_crBackground, ESkinEdge::Bump),
      m_wellForeground(kForegroundAt, env.tools.m_crForeground, ESkinEdge::Bump) {
    for (const CToolRow& row : kTools)
        if (row.HasOptions()) m_toolPanel.Layout(GridOf(row.tool), row.optNum);
}

COptionGrid& CToolController::GridOf(ETool tool) {
    return m_arrOptionGrid[SlotOf(tool == ETool::Curve ? ETool::Line : tool)];
}

// --- tools ---

void CToolController::OnToolButton(ETool tool) {
    const CToolRow& row = kTools[SlotOf(tool)];
    if (!m_env.canvas.PrepareDrop()) return;
    m_env.events.Tell(EEditEvent::SelectionGone);
    const bool bShapeOpen = m_env.canvas.IsShapeOpen();
    m_env.canvas.AbandonShape();
    if (bShapeOpen) m_env.canvas.Revert();
    if (!row.HasOptions()) ClearToolPanel();
    m_pCurGrid = row.HasOptions() ? &GridOf(tool) : nullptr;
    m_nPanel = NumberOf(tool) - 1;
    m_env.tools.m_nTool = tool;
    m_env.host.SetHelp(HelpCodeOf(tool));
    EnterTool();
    if (row.HasOptions()) DrawPanel(row);
}

// A click on an option comes here with a float up as well: the merge then goes back to the tool that was
// current before, and the option is that tool's.
void CToolController::EnterTool() {
    if (m_env.tools.m_nTool != ETool::Float) m_env.tools.m_nResumeTool = m_env.tools.m_nTool;
    if (m_env.state.m_bImageOpen) {
        m_env.canvas.Revert();
        m_env.canvas.ForgetSelection();
        m_env.canvas.DropFloat();
    }
    TakeOption();
}

void CToolController::EnterMagnifier() {
    m_env.tools.m_nTool = ETool::Magnifier;
    EnterTool();
}

void CToolController::ReenterCurrentTool() {
    const ETool tool = m_env.tools.m_nTool;
    EnterMagnifier();
    m_env.tools.m_nTool = tool;
    FocusCurrentTool();
}

// The current tool's option becomes the setting that the tool goes by. The other settings stay: two tools may
// share one.
void CToolController::TakeOption() {
    CToolState& tools = m_env.tools;
    const CToolRow* const pRow = FindToolRow(tools.m_nTool);
    if (pRow == nullptr || !pRow->HasOptions()) return;
    const int nOption = GridOf(tools.m_nTool).Selected();
    switch (pRow->optNum) {
        case EOptNum::Brush:
            tools.m_nBrushShape = nOption;
            break;
        case EOptNum::Spray:
            tools.m_nSpraySize = nOption;
            break;
        case EOptNum::Eraser:
            tools.m_nEraserSize = nOption;
            break;
        case EOptNum::Zoom:
            tools.m_nZoom = nOption == 0 ? 1 : 2 * nOption;
            if (m_env.state.m_bImageOpen) m_env.canvas.ApplyZoom();
            break;
        case EOptNum::Fill:
            tools.m_nFillMode = EFillMode{nOption};
            break;
        default:
            tools.m_nLineWidth = nOption + 1;
    }
}

void CToolController::ResetZoom() {
    m_env.tools.m_nZoom = 1;
    m_options.m_nOptZoom = 0;
    GridOf(ETool::Magnifier).Select(0);
    if (PanelTool().tool == ETool::Magnifier) DrawPanel(PanelTool());
}

void CToolController::FocusCurrentTool() {
    m_env.controls.SetFocus(FindToolButton(m_env.tools.m_nTool));
}

// --- the option panel ---

// Beside all options the selection stays, and all the rest happens as well.
bool CToolController::OnPanelPress(CPoint pt) {
    if (m_pCurGrid == nullptr || !m_toolPanel.GetRect().Contains(pt)) return false;
    if (!m_env.canvas.PrepareDrop()) return true;
    m_pCurGrid->HitTest(pt);
    Remember(PanelTool(), m_pCurGrid->Selected());
    DrawPanel(PanelTool());
    EnterTool();
    return true;
}

void CToolController::Remember(const CToolRow& row, int nOption) {
    m_options.*row.pOption = nOption;
    if (row.tool == ETool::Line || row.tool == ETool::Curve)
        m_options.m_nOptLine = m_options.m_nOptCurve = nOption;
}

void CToolController::ClearToolPanel() {
    m_toolPanel.Clear(m_env.panel.Client());
    m_toolPanel.Draw(m_env.panel.Client());
    m_env.panel.Present();
}

void CToolController::DrawPanel(const CToolRow& row) {
    COptionGrid& grid = GridOf(row.tool);
    grid.Select(m_options.*row.pOption);
    m_toolPanel.Clear(m_env.panel.Client());
    grid.Draw(m_env.panel.Client());
    m_toolPanel.Draw(m_env.panel.Client());
    m_env.panel.Present();
}

// A tool with options comes back as it was left. The magnifier is current already when a paint follows an
// entry to DRAW, and stays so where no panel is up.
void CToolController::OnWindowPainted() {
    const CToolRow& row = PanelTool();
    if (row.tool == ETool::Magnifier)
        DrawPanel(row);
    else if (row.HasOptions())
        OnToolButton(row.tool);
    else
        ClearToolPanel();
    m_wellBackdrop.Draw(m_env.panel.Client());
    DrawWells();
}

// --- colours ---

// The foreground well lies on top.
void CToolController::DrawWells() {
    m_wellBackground.Draw(m_env.panel.Client());
    m_wellForeground.Draw(m_env.panel.Client());
    m_env.panel.Present();
}

int CToolController::HelpAt(CPoint pt) const {
    if (m_wellForeground.GetRect().Contains(pt)) return kHelpForeground;
    return m_wellBackground.GetRect().Contains(pt) ? kHelpBackground : 0;
}

void CToolController::OnWellDoubleClick(const CMouseEvent& event) {
    if (!m_wellBackdrop.GetRect().Contains(event.pt)) return;
    ChooseColor(event.button == EMouseButton::Left);
}

void CToolController::ChooseColor(bool bForeground) {
    const std::optional<CColor> color = m_env.colors.Run(kFirstChoice);
    if (!color) return;
    SetColor(bForeground, *color);
    m_env.panel.Invalidate();
}

void CToolController::SetColor(bool bForeground, CColor color) {
    (bForeground ? m_wellForeground : m_wellBackground).SetColor(color);
    (bForeground ? m_env.tools.m_crForeground : m_env.tools.m_crBackground) = color;
}

void CToolController::PickColor(bool bForeground, CColor color) {
    SetColor(bForeground, color);
    DrawWells();
}
