#include "paint/ToolPanel.h"

namespace {

constexpr CRect kPlace{168, 344, 243, 421};
constexpr CColor kGround = CColor::FromRef(0x979790);

}  // namespace

CToolPanel::CToolPanel(CTextRasterizer& text) : CSkinItem(kPlace, kEdgeSunkenLine), m_zoom(text) {}

void CToolPanel::Clear(CClientArea& client) const {
    client.FillRect(GetRect(), kGround);
}

void CToolPanel::Layout(COptionGrid& grid, EOptNum nOptNum) const {
    grid.Layout(GetRect(), nOptNum, GlyphsOf(nOptNum));
}

const COptionGlyphs& CToolPanel::GlyphsOf(EOptNum nOptNum) const {
    switch (nOptNum) {
        case kOptEraser:
            return m_eraser;
        case kOptSpray:
            return m_spray;
        case kOptZoom:
            return m_zoom;
        case kOptBrush:
            return m_brush;
        case kOptFill:
            return m_fill;
        default:
            return m_line;
    }
}
