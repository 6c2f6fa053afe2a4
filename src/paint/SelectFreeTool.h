#pragma once

#include "paint/PaintTool.h"

// Marks what the cursor's way goes around.
class CSelectFreeTool : public CPaintTool {
  public:
    explicit CSelectFreeTool(const CPaintEnvironment& env) : CPaintTool(env) {}
    void Press(CPoint pt) override;
    void Move(CPoint pt) override;
    void Release(CPoint pt) override;
};
