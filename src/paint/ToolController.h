#pragma once

#include "editor/CanvasPort.h"
#include "window/ControlSet.h"
#include "window/Events.h"

// What the magnifier asks of the canvas.
class CZoomTarget {
  public:
    virtual ~CZoomTarget() = default;
    // Sets sizes and place of the picture for a new zoom and repaints.
    virtual void ApplyZoom() = 0;
};

// Which paint tool is current and with which option.
class CToolController : public CToolPort {
  public:
    CToolController(CControlSet& controls, CZoomTarget& canvas) : m_controls(controls), m_canvas(canvas) {}

    // Picture points are m_nZoom screen pixels wide: 1, 2, 4 or 6.
    int Zoom() const { return m_nZoom; }

    int CurrentTool() const override { return m_nTool; }
    void SetCurrentTool(int nTool) override { m_nTool = nTool; }
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
    CControlSet& m_controls;
    CZoomTarget& m_canvas;
    int m_nTool = 1;
    int m_nZoom = 1;
    int m_nOptZoom = 0;  // the magnifier's option, 0 to 3
};
