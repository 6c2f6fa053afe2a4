#include "paint/LineGlyphs.h"

namespace {

constexpr int kOptions = 5;
constexpr int kRow = 13;

}  // namespace

std::vector<CRect> CLineGlyphs::Layout(const CRect& rcPanel) const {
    std::vector<CRect> arrRects;
    for (int i = 0; i < kOptions; ++i) {
        const int nTop = rcPanel.top + 5 + kRow * i;
        arrRects.push_back({rcPanel.left + 3, nTop, rcPanel.right - 3, nTop + kRow});
    }
    return arrRects;
}

// Grows faster downward than upward.
void CLineGlyphs::DrawNormal(CClientArea& client, const CRect& rc, int nOption) const {
    const int nMiddle = Middle(rc).y;
    client.FillRect({rc.left + 3, nMiddle - nOption / 2 - 1, rc.right - 3, nMiddle + nOption + 1}, kBlack);
}

void CLineGlyphs::DrawSelected(CClientArea& client, const CRect& rc, int nOption) const {
    const int nMiddle = Middle(rc).y;
    const int nHalf = nOption / 2 + 1;
    client.FillRect(rc, kBarBlue);
    client.FillRect({rc.left + 3, nMiddle - nHalf, rc.right - 3, nMiddle + nHalf}, kWhite);
}
