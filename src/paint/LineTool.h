#pragma once

#include "paint/PaintTool.h"

// A straight line from the press to the release.
class CLineTool : public CPaintTool {
  public:
    explicit CLineTool(const CPaintEnvironment& env) : CPaintTool(env) {}
    void Move(CPoint pt) override;
    void Release(CPoint pt) override;
};
