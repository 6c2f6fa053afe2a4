#pragma once

#include "paint/PaintTool.h"

// Sprays dots on a disc around the cursor, 20 a tick, as long as the button is held.
class CAirbrushTool : public CPaintTool {
  public:
    explicit CAirbrushTool(const CPaintEnvironment& env) : CPaintTool(env) {}
    void Press(CPoint pt) override;
    void Move(CPoint pt) override { Aim(pt); }
    void Release(CPoint pt) override;
    void Tick() override;

  private:
    void Aim(CPoint pt);

    CRect m_rcSpray;
};
