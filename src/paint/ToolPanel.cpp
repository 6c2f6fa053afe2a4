#include "paint/ToolPanel.h"

namespace {

constexpr CRect kPlace{168, 344, 243, 421};
constexpr CColor kGround = CColor::FromRef(0x979790);

}  // namespace

CToolPanel::CToolPanel(CTextRasterizer& text) : CSkinItem(kPlace, ESkinEdge::SunkenLine), m_zoom(text) {}

void CToolPanel::Clear(CClientArea& client) const {
    client.FillRect(GetRect(), kGround);
}

void CToolPanel::Layout(COptionGrid& grid, EOptNum optNum) const {
    grid.Layout(GetRect(), GlyphsOf(optNum));
}

const COptionGlyphs& CToolPanel::GlyphsOf(EOptNum optNum) const {
    switch (optNum) {
        case EOptNum::Eraser:
            return m_eraser;
        case EOptNum::Spray:
            return m_spray;
        case EOptNum::Zoom:
            return m_zoom;
        case EOptNum::Brush:
            return m_brush;
        case EOptNum::Fill:
            return m_fill;
        default:
            return m_line;
    }
}
