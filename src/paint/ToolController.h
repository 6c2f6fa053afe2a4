#pragma once

#include <array>

#include "editor/EditEvents.h"
#include "editor/EditState.h"
#include "paint/ColorWell.h"
#include "paint/ToolCanvas.h"
#include "paint/ToolHost.h"
#include "paint/ToolPanel.h"
#include "paint/ToolState.h"
#include "window/Choosers.h"
#include "window/ControlSet.h"
#include "window/Events.h"
#include "window/PanelHost.h"

// Which paint tool is current and with which options and colours: the tool buttons, the option panel below
// them and the colour wells.
class CToolController {
  public:
    // All of these outlive the controller.
    struct CEnvironment {
        const CEditState& state;
        CToolState& tools;
        CControlSet& controls;
        CToolCanvas& canvas;
        CColorDialogs& colors;
        CTextRasterizer& text;
        CPanelHost& panel;
        CEditEvents& events;
        CToolHost& host;
    };
    explicit CToolController(const CEnvironment& env);
    CToolController(const CToolController&) = delete;
    CToolController& operator=(const CToolController&) = delete;

    const CToolState& State() const { return m_env.tools; }
    // The panel that was brought up last: the number, less one, of the tool that was selected last by its
    // button. A switch of the mode does not touch it.
    int Panel() const { return m_nPanel; }

    ETool CurrentTool() const { return m_env.tools.m_nTool; }
    // A picture has come onto the canvas: the magnifier is entered, which applies the zoom.
    void EnterMagnifier();
    // The same, and the current tool stays.
    void ReenterCurrentTool();
    // Zoom and the magnifier's option back to 1x.
    void ResetZoom();
    // Gives the keyboard focus to the current tool's button.
    void FocusCurrentTool();

    // A click of a tool's button. Also for the tool that is current already: selections and floats end.
    void OnToolButton(ETool tool);
    // A click of the colour button.
    void OnPaintColor() { ChooseColor(true); }
    // A left press in the main window beside its controls; true if it fell into the current tool's options.
    bool OnPanelPress(CPoint pt);
    // A double click there: in the box around the colour wells the left button chooses the foreground colour,
    // the right one the background colour.
    void OnWellDoubleClick(const CMouseEvent& event);
    // The help of the colour well at a point of the main window; 0 beside them.
    int HelpAt(CPoint pt) const;

    // The colour picker's find: the well shows it at once.
    void PickColor(bool bForeground, CColor color);

    // Behind every paint of the main window in DRAW, which has covered the panel: brings it and the wells
    // back. This settles the tool as well: the panel's tool is selected again.
    void OnWindowPainted();

  private:
    COptionGrid& GridOf(ETool tool);
    // The tool whose panel was brought up last.
    const CToolRow& PanelTool() const { return kTools[static_cast<std::size_t>(m_nPanel)]; }
    void EnterTool();
    void ClearToolPanel();
    void DrawPanel(const CToolRow& row);
    void DrawWells();
    void Remember(const CToolRow& row, int nOption);
    void TakeOption();
    void ChooseColor(bool bForeground);
    void SetColor(bool bForeground, CColor color);

    CEnvironment m_env;
    CToolPanel m_toolPanel;
    CToolOptions m_options;
    int m_nPanel = 0;
    // In the order of the tools; those without options leave theirs empty. The grid of the line is the
    // curve's as well.
    std::array<COptionGrid, kTools.size()> m_arrOptionGrid;
    // The options that a press in the panel chooses from: those of the tool selected last by its button.
    // Null: it has none.
    COptionGrid* m_pCurGrid = nullptr;
    // In the order in which they are drawn.
    CColorWell m_wellBackdrop;
    CColorWell m_wellBackground;
    CColorWell m_wellForeground;
};
