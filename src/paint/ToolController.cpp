#include "paint/ToolController.h"

#include <algorithm>

#include "resources/Texts.h"
#include "resources/ToolTable.h"

namespace {

constexpr CRect kBackdropAt{210, 489, 256, 535};
constexpr CRect kBackgroundAt{225, 504, 255, 534};
constexpr CRect kForegroundAt{211, 490, 241, 520};
constexpr CColor kBackdrop = CColor::FromRef(0xD2D2D2);

// Where every choice of a colour starts, whatever the colours are.
constexpr CColor kFirstChoice = CColor::FromRef(0x646464);

// The tools with options.
struct CPanel {
    int nTool;
    EOptNum nOptNum;
    int CToolOptions::*pOption;
};

constexpr CPanel kPanels[] = {
    {kToolBrush, kOptBrush, &CToolOptions::m_nOptBrush},
    {kToolAirbrush, kOptSpray, &CToolOptions::m_nOptSpray},
    {kToolEraser, kOptEraser, &CToolOptions::m_nOptEraser},
    {kToolMagnifier, kOptZoom, &CToolOptions::m_nOptZoom},
    {kToolLine, kOptLine, &CToolOptions::m_nOptLine},
    {kToolCurve, kOptCurve, &CToolOptions::m_nOptCurve},
    {kToolRectangle, kOptFill, &CToolOptions::m_nOptRect},
    {kToolPolygon, kOptFill, &CToolOptions::m_nOptPolygon},
    {kToolEllipse, kOptFill, &CToolOptions::m_nOptEllipse},
    {kToolRoundRect, kOptFill, &CToolOptions::m_nOptRoundRect},
};

// Null for a tool without options.
const CPanel* FindPanel(int nTool) {
    const CPanel* const pPanel = std::find_if(std::begin(kPanels), std::end(kPanels),
                                              [&](const CPanel& panel) { return panel.nTool == nTool; });
    return pPanel == std::end(kPanels) ? nullptr : pPanel;
}

// Index of a tool in the arrays of all tools; the curve has what the line has.
std::size_t SlotOf(int nTool) {
    return static_cast<std::size_t>((nTool == kToolCurve ? static_cast<int>(kToolLine) : nTool) - 1);
}

}  // namespace

CToolController::CToolController(const CEnvironment& env)
    : m_env(env),
      m_toolPanel(env.text),
      m_wellBackdrop(kBackdropAt, kBackdrop, kEdgeSunkenLine),
      m_wellBackground(kBackgroundAt, env.tools.m_crBackground, kEdgeBump),
      m_wellForeground(kForegroundAt, env.tools.m_crForeground, kEdgeBump) {
    for (std::size_t i = 0; i < m_arrToolItem.size(); ++i) {
        const CControl* const pButton = env.controls.Find(kToolButtons[i]);
        if (pButton != nullptr) m_arrToolItem[i].SetRect(pButton->rcPlace);
    }
    for (const CPanel& panel : kPanels) {
        const std::size_t nSlot = SlotOf(panel.nTool);
        m_toolPanel.Layout(m_arrOptionGrid[nSlot], panel.nOptNum);
        m_arrToolItem[nSlot].m_pGrid = &m_arrOptionGrid[nSlot];
    }
}

COptionGrid* CToolController::GridOf(int nTool) {
    return m_arrToolItem[SlotOf(nTool)].m_pGrid;
}

// --- tools ---

void CToolController::OnToolButton(int nTool) {
    if (!m_env.canvas.PrepareDrop()) return;
    m_env.events.Tell(EEditEvent::SelectionGone);
    const bool bShapeOpen = m_env.canvas.IsShapeOpen();
    m_env.canvas.AbandonShape();
    if (bShapeOpen) m_env.canvas.Revert();
    if (FindPanel(nTool) == nullptr) ClearToolPanel();
    m_pCurItem = &m_arrToolItem[SlotOf(nTool)];
    m_nPanel = nTool - 1;
    m_env.tools.m_nTool = nTool;
    m_env.host.SetHelp(kHelpTool + nTool);
    EnterTool();
    DrawPanel(nTool);
}

// A click on an option comes here with a float up as well: the merge then goes back to the tool that was
// current before, and the option is that tool's.
void CToolController::EnterTool() {
    if (m_env.tools.m_nTool != kToolFloat) m_env.tools.m_nResumeTool = m_env.tools.m_nTool;
    if (m_env.state.m_bImageOpen) {
        m_env.canvas.Revert();
        m_env.canvas.ForgetSelection();
        m_env.canvas.DropFloat();
    }
    TakeOption();
}

void CToolController::EnterMagnifier() {
    m_env.tools.m_nTool = kToolMagnifier;
    EnterTool();
}

void CToolController::ReenterCurrentTool() {
    const int nTool = m_env.tools.m_nTool;
    EnterMagnifier();
    m_env.tools.m_nTool = nTool;
    FocusCurrentTool();
}

// The current tool's option becomes the setting that the tool goes by. The other settings stay: two tools may
// share one.
void CToolController::TakeOption() {
    CToolState& tools = m_env.tools;
    const CPanel* const pPanel = FindPanel(tools.m_nTool);
    if (pPanel == nullptr) return;
    const int nOption = GridOf(tools.m_nTool)->Selected();
    switch (pPanel->nOptNum) {
        case kOptBrush:
            tools.m_nBrushShape = nOption;
            break;
        case kOptSpray:
            tools.m_nSpraySize = nOption;
            break;
        case kOptEraser:
            tools.m_nEraserSize = nOption;
            break;
        case kOptZoom:
            tools.m_nZoom = nOption == 0 ? 1 : 2 * nOption;
            if (m_env.state.m_bImageOpen) m_env.canvas.ApplyZoom();
            break;
        case kOptFill:
            tools.m_nFillMode = nOption;
            break;
        default:
            tools.m_nLineWidth = nOption + 1;
    }
}

void CToolController::ResetZoom() {
    m_env.tools.m_nZoom = 1;
    m_options.m_nOptZoom = 0;
    GridOf(kToolMagnifier)->Select(0);
    if (m_nPanel + 1 == kToolMagnifier) DrawPanel(kToolMagnifier);
}

void CToolController::FocusCurrentTool() {
    m_env.controls.SetFocus(FindToolButton(m_env.tools.m_nTool));
}

// --- the option panel ---

// Beside all options the selection stays, and all the rest happens as well.
bool CToolController::OnPanelPress(CPoint pt) {
    COptionGrid* const pGrid = m_pCurItem->m_pGrid;
    if (pGrid == nullptr || !pGrid->GetRect().Contains(pt)) return false;
    if (!m_env.canvas.PrepareDrop()) return true;
    pGrid->HitTest(pt);
    Remember(pGrid->Selected());
    DrawPanel(m_nPanel + 1);
    EnterTool();
    return true;
}

void CToolController::Remember(int nOption) {
    const CPanel* const pPanel = FindPanel(m_nPanel + 1);
    if (pPanel == nullptr) return;
    m_options.*pPanel->pOption = nOption;
    if (pPanel->nOptNum == kOptLine || pPanel->nOptNum == kOptCurve)
        m_options.m_nOptLine = m_options.m_nOptCurve = nOption;
}

void CToolController::ClearToolPanel() {
    m_toolPanel.Clear(m_env.panel.Client());
    m_toolPanel.Draw(m_env.panel.Client());
    m_env.panel.Present();
}

void CToolController::DrawPanel(int nTool) {
    const CPanel* const pPanel = FindPanel(nTool);
    if (pPanel == nullptr) return;
    COptionGrid& grid = *GridOf(nTool);
    grid.Select(m_options.*pPanel->pOption);
    m_toolPanel.Layout(grid, pPanel->nOptNum);
    m_toolPanel.Clear(m_env.panel.Client());
    grid.Draw(m_env.panel.Client());
    m_toolPanel.Draw(m_env.panel.Client());
    m_env.panel.Present();
}

// A tool with options comes back as it was left. The magnifier is current already when a paint follows an
// entry to DRAW, and stays so where no panel is up.
void CToolController::OnWindowPainted() {
    const int nTool = m_nPanel + 1;
    if (nTool == kToolMagnifier)
        DrawPanel(nTool);
    else if (FindPanel(nTool) != nullptr)
        OnToolButton(nTool);
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
