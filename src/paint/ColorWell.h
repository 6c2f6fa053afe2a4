#pragma once

#include "paint/SkinItem.h"
#include "surface/Brush.h"

// A field of one colour with a black outline, under its edge.
class CColorWell : public CSkinItem {
  public:
    CColorWell(const CRect& rc, CColor color, ESkinEdge edge)
        : CSkinItem(rc, edge), m_brush(CBrush::Solid(color)) {}

    void Draw(CClientArea& client) const;

    CColor Color() const { return m_brush.color; }
    void SetColor(CColor color) { m_brush = CBrush::Solid(color); }

  private:
    CBrush m_brush;
};
