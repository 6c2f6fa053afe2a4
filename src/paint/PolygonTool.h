#pragma once

#include "paint/PaintTool.h"

// A polygon from drag to drag; a double click closes it.
class CPolygonTool : public CPaintTool {
  public:
    explicit CPolygonTool(const CPaintEnvironment& env) : CPaintTool(env) {}
    void Press(CPoint pt) override;
    void Move(CPoint pt) override;
    void Release(CPoint pt) override;
    void DoubleClick(CPoint pt) override;

  protected:
    std::span<const CPoint> Vertices(int nCount) const {
        return std::span(Hand().m_ptVertex).first(static_cast<std::size_t>(nCount));
    }
};
