#pragma once

#include <array>
#include <functional>
#include <memory>

#include "paint/PaintTool.h"
#include "window/Events.h"

// All tools of the canvas. Before each step of the current one it keeps the point inside the picture where
// that is meant, and selects the pens and brushes that the step starts with.
class CToolBox {
  public:
    // fnDrop merges the floating selection; false if memory is too short for that.
    CToolBox(const CPaintEnvironment& env, CToolState& options, const std::function<bool()>& fnDrop);

    // Points are picture pixels and may lie outside the picture. Left and right button swap both colours.
    void OnPress(CPoint pt, EMouseButton button);
    void OnDoubleClick(CPoint pt, EMouseButton button);
    // One pass of two.
    void OnMove(CPoint pt);
    void OnRelease(CPoint pt);
    void OnTick();

  private:
    void TakeColors(EMouseButton button);
    // False if memory is too short for the drag.
    [[nodiscard]] bool Press(CPoint pt);
    // The right and the lower edge are one pixel beyond the last one: a shape may end there.
    CPoint KeepInside(CPoint pt) const;
    CPaintTool& Current();
    CPen ToolPen() const;
    CBrush FigureBrush() const;

    const CPaintEnvironment m_env;
    CToolState& m_options;
    // There was no memory for the last press; its release does nothing.
    bool m_bPressRefused = false;
    // In the order of their numbers, the float's at the end.
    std::array<std::unique_ptr<CPaintTool>, kTools.size() + 1> m_arrTools;
};
