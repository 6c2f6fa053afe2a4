#include "paint/EraserGlyphs.h"

namespace {

constexpr int kOptions = 4;
constexpr int kBarHalf = 7;

}  // namespace

// Each option starts below the last, and the gaps grow.
std::vector<CRect> CEraserGlyphs::Layout(const CRect& rcPanel) const {
    const int nLeft = rcPanel.left + 3;
    const int nRight = rcPanel.right - 3;
    std::vector<CRect> arrRects = {{nLeft, rcPanel.top + 5, nRight, rcPanel.top + 15}};
    for (int i = 1; i < kOptions; ++i) {
        const int nTop = arrRects.back().bottom + 2 * (i - 1);
        arrRects.push_back({nLeft, nTop, nRight, nTop + 15});
    }
    return arrRects;
}

// All but the first stand a little low in their rectangle.
void CEraserGlyphs::DrawNormal(CClientArea& client, const CRect& rc, int nOption) const {
    const CPoint pt = Middle(rc);
    if (nOption == 0)
        client.FillRect(Around(pt, 2), kBlack);
    else
        client.FillRect(Around({pt.x, pt.y + 3}, 3 + nOption), kBlack);
}

void CEraserGlyphs::DrawSelected(CClientArea& client, const CRect& rc, int nOption) const {
    const CPoint pt = Middle(rc);
    client.FillRect({pt.x - kBarHalf, rc.top, pt.x + kBarHalf, rc.bottom}, kBarBlue);
    client.FillRect(Around(pt, 2 + nOption), kWhite);
}
