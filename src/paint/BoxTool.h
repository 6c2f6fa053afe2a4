#pragma once

#include "paint/PaintTool.h"

// The three figures in the box between press and release.
enum class EBoxFigure { Rectangle, Ellipse, RoundRect };

class CBoxTool : public CPaintTool {
  public:
    CBoxTool(const CPaintEnvironment& env, EBoxFigure figure) : CPaintTool(env), m_figure(figure) {}
    void Press(CPoint pt) override;
    void Move(CPoint pt) override;
    void Release(CPoint pt) override;

  private:
    void DrawFigure(CSurface& surface, CPoint pt) const;

    EBoxFigure m_figure;
};
