#pragma once

#include "paint/OptionGlyphs.h"

// The four zooms, each with a dot that grows.
class CZoomGlyphs : public COptionGlyphs {
  public:
    // The platform's text outlives the glyphs.
    explicit CZoomGlyphs(CTextRasterizer& text) : m_text(text) {}

    std::vector<CRect> Layout(const CRect& rcPanel) const override;
    void DrawNormal(CClientArea& client, const CRect& rc, int nOption) const override;
    void DrawSelected(CClientArea& client, const CRect& rc, int nOption) const override;

  private:
    void DrawTimes(CClientArea& client, const CRect& rc, int nOption, CColor crText, CColor crGround) const;

    CTextRasterizer& m_text;
};
