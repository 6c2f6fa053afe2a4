#pragma once

#include "paint/PaintTool.h"

// Paints with the colour of the other button: 2, 4, 6 or 8 pixels wide, by m_nEraserSize.
class CEraserTool : public CPaintTool {
  public:
    explicit CEraserTool(const CPaintEnvironment& env) : CPaintTool(env) {}
    void Press(CPoint pt) override;
    void Move(CPoint pt) override;
    void Release(CPoint pt) override;

  private:
    int Half() const { return m_env.options.m_nEraserSize + 1; }
};
