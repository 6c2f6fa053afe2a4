#pragma once

#include "paint/PaintTool.h"

// Paints over all that has the colour of the pixel under the press and hangs together with it.
class CFillTool : public CPaintTool {
  public:
    explicit CFillTool(const CPaintEnvironment& env) : CPaintTool(env) {}
    void Press(CPoint pt) override;
};
