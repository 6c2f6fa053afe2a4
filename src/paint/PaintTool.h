#pragma once

#include "paint/PaintEnvironment.h"

// A tool is the list of what it does at each event on the canvas. Points are picture pixels. Pens and brushes
// are those that CToolBox has prepared, and stay on the stores until somebody selects others.
class CPaintTool {
  public:
    virtual ~CPaintTool() = default;
    CPaintTool(const CPaintTool&) = delete;
    CPaintTool& operator=(const CPaintTool&) = delete;

    // The point may lie outside the picture.
    virtual void Press(CPoint /*pt*/) {}
    // With the button held. Runs twice for every mouse move: the tools that draw as they go commit first and
    // draw then, so the second run commits what the first one drew.
    virtual void Move(CPoint /*pt*/) {}
    virtual void Release(CPoint /*pt*/) {}
    // In place of the second press. The point may lie outside the picture.
    virtual void DoubleClick(CPoint /*pt*/) {}
    // The spray timer.
    virtual void Tick() {}

  protected:
    // The environment outlives the tool.
    explicit CPaintTool(const CPaintEnvironment& env) : m_env(env) {}

    CHand& Hand() const { return m_env.hand; }
    CPaper& Paper() const { return m_env.paper; }
    CSurface& Scratch() const { return m_env.paper.Scratch(); }
    CSurface& Committed() const { return m_env.paper.Committed(); }

    static void DrawLine(CSurface& surface, CPoint ptFrom, CPoint ptTo) {
        surface.MoveTo(ptFrom);
        surface.LineTo(ptTo);
    }
    // The box between two corners in any order.
    static CRect Between(CPoint pt1, CPoint pt2) {
        return {std::min(pt1.x, pt2.x), std::min(pt1.y, pt2.y), std::max(pt1.x, pt2.x),
                std::max(pt1.y, pt2.y)};
    }

    const CPaintEnvironment& m_env;
};
