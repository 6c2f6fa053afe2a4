#pragma once

#include "paint/OptionGlyphs.h"

// Five bars that grow in thickness, for the pen of line and curve.
class CLineGlyphs : public COptionGlyphs {
  public:
    std::vector<CRect> Layout(const CRect& rcPanel) const override;
    void DrawNormal(CClientArea& client, const CRect& rc, int nOption) const override;
    void DrawSelected(CClientArea& client, const CRect& rc, int nOption) const override;
};
