#pragma once

#include <functional>

#include "paint/PaintTool.h"

// Drags a pasted selection over the picture. Its box decides, not its shape; a press beside the box merges
// it.
class CFloatTool : public CPaintTool {
  public:
    CFloatTool(const CPaintEnvironment& env, std::function<bool()> fnDrop)
        : CPaintTool(env), m_fnDrop(std::move(fnDrop)) {}
    void Press(CPoint pt) override;
    void Move(CPoint pt) override;

  private:
    std::function<bool()> m_fnDrop;
};
