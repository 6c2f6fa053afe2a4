#pragma once

#include "paint/PaintTool.h"

// Takes the colour under the cursor for the colour well of the button; the wells follow the cursor.
class CPickerTool : public CPaintTool {
  public:
    explicit CPickerTool(const CPaintEnvironment& env) : CPaintTool(env) {}
    void Press(CPoint pt) override { Pick(pt); }
    void Move(CPoint pt) override { Pick(pt); }

  private:
    void Pick(CPoint pt);
};
