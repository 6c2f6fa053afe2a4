#pragma once

#include "paint/PaintTool.h"

// A straight line that two more drags bend: one Bezier curve. A plain click counts as a drag.
class CCurveTool : public CPaintTool {
  public:
    explicit CCurveTool(const CPaintEnvironment& env) : CPaintTool(env) {}
    void Press(CPoint pt) override;
    void Move(CPoint pt) override;
    void Release(CPoint pt) override;

  private:
    void Pull(CPoint pt);
};
