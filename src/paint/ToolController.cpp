#include "paint/ToolController.h"

#include "resources/ToolTable.h"

void CToolController::EnterTool() {
    if (m_state.m_nTool != kToolMagnifier) return;
    m_state.m_nZoom = m_nOptZoom == 0 ? 1 : 2 * m_nOptZoom;
    m_canvas.ApplyZoom();
}

void CToolController::ResetZoom() {
    m_state.m_nZoom = 1;
    m_nOptZoom = 0;
}

void CToolController::FocusCurrentTool() {
    m_controls.SetFocus(FindToolButton(m_state.m_nTool));
}
