#include "paint/BrushGlyphs.h"

namespace {

constexpr int kRows = 4;
constexpr int kColumns = 3;
enum class ERow { Round, Square, Rising, Falling };

void DrawDab(CClientArea& client, const CRect& rc, ERow row, CColor color) {
    switch (row) {
        case ERow::Round:
            return client.DrawEllipse(rc, color);
        case ERow::Square:
            return client.FillRect(rc, color);
        case ERow::Rising:
            return client.DrawLine({rc.right, rc.top}, {rc.left, rc.bottom}, color);
        default:
            return client.DrawLine({rc.left, rc.top}, {rc.right, rc.bottom}, color);
    }
}

}  // namespace

std::vector<CRect> CBrushGlyphs::Layout(const CRect& rcPanel) const {
    std::vector<CRect> arrRects;
    for (int nRow = 0; nRow < kRows; ++nRow)
        for (int nColumn = 0; nColumn < kColumns; ++nColumn)
            arrRects.push_back(
                CRect::FromPlace(rcPanel.left + 4 + 24 * nColumn, rcPanel.top + 4 + 17 * nRow, 20, 17));
    return arrRects;
}

void CBrushGlyphs::DrawNormal(CClientArea& client, const CRect& rc, int nOption) const {
    DrawDab(client, Inset(rc, 2 * (nOption % kColumns) + 2), ERow{nOption / kColumns}, kBlack);
}

void CBrushGlyphs::DrawSelected(CClientArea& client, const CRect& rc, int nOption) const {
    client.FillRect(rc, kFieldBlue);
    DrawDab(client, Inset(rc, 2 * (nOption % kColumns) + 2), ERow{nOption / kColumns}, kWhite);
}
