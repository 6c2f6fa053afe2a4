#pragma once

#include "paint/PaintTool.h"

// Marks the rectangle between press and release.
class CSelectRectTool : public CPaintTool {
  public:
    explicit CSelectRectTool(const CPaintEnvironment& env) : CPaintTool(env) {}
    void Move(CPoint pt) override;
    void Release(CPoint pt) override;
};
