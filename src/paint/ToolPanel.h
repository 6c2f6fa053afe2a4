#pragma once

#include "paint/BrushGlyphs.h"
#include "paint/EraserGlyphs.h"
#include "paint/FillGlyphs.h"
#include "paint/LineGlyphs.h"
#include "paint/OptionGrid.h"
#include "paint/SkinItem.h"
#include "paint/SprayGlyphs.h"
#include "paint/ZoomGlyphs.h"
#include "resources/ToolTable.h"

// The field below the tool buttons that shows the options of the tool selected last.
class CToolPanel : public CSkinItem {
  public:
    // The platform's text outlives the panel.
    explicit CToolPanel(CTextRasterizer& text);

    // The empty ground.
    void Clear(CClientArea& client) const;
    // The edge around it, which what is drawn on the ground may have covered.
    void Draw(CClientArea& client) const { DrawEdge(client); }

    // Lays a grid of that kind out over the panel.
    void Layout(COptionGrid& grid, EOptNum optNum) const;

  private:
    const COptionGlyphs& GlyphsOf(EOptNum optNum) const;

    CEraserGlyphs m_eraser;
    CSprayGlyphs m_spray;
    CLineGlyphs m_line;
    CZoomGlyphs m_zoom;
    CBrushGlyphs m_brush;
    CFillGlyphs m_fill;
};
