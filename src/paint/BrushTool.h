#pragma once

#include "paint/PaintTool.h"

// Twelve dabs, m_nBrushShape: round, square, rising and falling, each in three sizes from large to small.
// Round and square ones draw a continuous stroke; the slanted ones leave one mark at each sample, as a
// calligraphy pen does.
class CBrushTool : public CPaintTool {
  public:
    explicit CBrushTool(const CPaintEnvironment& env) : CPaintTool(env) {}
    void Press(CPoint pt) override;
    void Move(CPoint pt) override;
    void Release(CPoint pt) override;

  private:
    void Slash(CPoint pt);
};
