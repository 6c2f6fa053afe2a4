#pragma once

#include "paint/PaintTool.h"

// A line one pixel wide along the way of the cursor, whatever the line width.
class CPenTool : public CPaintTool {
  public:
    explicit CPenTool(const CPaintEnvironment& env) : CPaintTool(env) {}
    void Press(CPoint pt) override;
    void Move(CPoint pt) override;
    void Release(CPoint pt) override;
};
