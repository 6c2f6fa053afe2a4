#pragma once

#include "paint/OptionGlyphs.h"

// Four rows of three: round, square, rising and falling, each in three sizes.
class CBrushGlyphs : public COptionGlyphs {
  public:
    std::vector<CRect> Layout(const CRect& rcPanel) const override;
    void DrawNormal(CClientArea& client, const CRect& rc, int nOption) const override;
    void DrawSelected(CClientArea& client, const CRect& rc, int nOption) const override;
};
