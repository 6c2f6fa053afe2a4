#pragma once

#include "paint/OptionGlyphs.h"

// A box without a filling, one filled with the other colour, one all in the same.
class CFillGlyphs : public COptionGlyphs {
  public:
    std::vector<CRect> Layout(const CRect& rcPanel) const override;
    void DrawNormal(CClientArea& client, const CRect& rc, int nOption) const override;
    void DrawSelected(CClientArea& client, const CRect& rc, int nOption) const override;
};
