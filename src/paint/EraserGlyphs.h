#pragma once

#include "paint/OptionGlyphs.h"

// Four squares, as large as the eraser grows.
class CEraserGlyphs : public COptionGlyphs {
  public:
    std::vector<CRect> Layout(const CRect& rcPanel) const override;
    void DrawNormal(CClientArea& client, const CRect& rc, int nOption) const override;
    void DrawSelected(CClientArea& client, const CRect& rc, int nOption) const override;
};
