#pragma once

#include "editor/CanvasPort.h"
#include "paint/ToolCanvas.h"
#include "paint/ToolState.h"
#include "window/ControlSet.h"
#include "window/Events.h"

// Which paint tool is current and with which option.
class CToolController : public CToolPort {
  public:
    // All of these outlive the controller.
    CToolController(CToolState& state, CControlSet& controls, CToolCanvas& canvas)
        : m_state(state), m_controls(controls), m_canvas(canvas) {}

    const CToolState& State() const { return m_state; }

    int CurrentTool() const override { return m_state.m_nTool; }
    void SetCurrentTool(int nTool) override { m_state.m_nTool = nTool; }
    void EnterTool() override;
    void ResetZoom() override;
    void FocusCurrentTool() override;

    // A click of a tool's button, or of the colour button.
    void OnToolButton(int /*nTool*/) {}
    void OnPaintColor() {}
    // A left press in the main window beside its controls; true if it fell into the current tool's options.
    bool OnPanelPress(CPoint /*pt*/) { return false; }
    // A double click there, which may fall on the colour wells.
    void OnWellDoubleClick(const CMouseEvent& /*event*/) {}

  private:
    CToolState& m_state;
    CControlSet& m_controls;
    CToolCanvas& m_canvas;
    int m_nOptZoom = 0;  // the magnifier's option, 0 to 3
};
