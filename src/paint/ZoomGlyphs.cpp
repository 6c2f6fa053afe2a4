#include "paint/ZoomGlyphs.h"

#include <array>

namespace {

constexpr int kRow = 15;
constexpr std::array kTimes = {"1x", "2x", "4x", "6x"};
constexpr int kTextHeight = 15;
constexpr int kTextWeight = 100;
// The ground of the text is that of the info lines, a shade off the panel's.
constexpr CColor kTextGround = CColor::FromRef(0x8F9A8E);

CRect Dot(CPoint ptMiddle, int nOption) {
    return {ptMiddle.x - 1 - nOption, ptMiddle.y + 1 - nOption, ptMiddle.x + 1 + nOption,
            ptMiddle.y + 3 + nOption};
}

}  // namespace

std::vector<CRect> CZoomGlyphs::Layout(const CRect& rcPanel) const {
    std::vector<CRect> arrRects;
    for (std::size_t i = 0; i < kTimes.size(); ++i) {
        const int nTop = rcPanel.top + 7 + kRow * static_cast<int>(i);
        arrRects.push_back({rcPanel.left, nTop, rcPanel.right, nTop + kRow});
    }
    return arrRects;
}

void CZoomGlyphs::DrawTimes(CClientArea& client, const CRect& rc, int nOption, CColor crText,
                            CColor crGround) const {
    const CTextFont font{"", kTextHeight, kTextWeight};
    client.DrawTextLine(m_text, font, kTimes[static_cast<std::size_t>(nOption)], {rc.left + 10, rc.top},
                        crText, crGround);
}

void CZoomGlyphs::DrawNormal(CClientArea& client, const CRect& rc, int nOption) const {
    DrawTimes(client, rc, nOption, kBlack, kTextGround);
    client.FillRect(Dot({Middle(rc).x + 5, Middle(rc).y - 1}, nOption), kBlack);
}

// The dot stands a pixel lower than the normal one.
void CZoomGlyphs::DrawSelected(CClientArea& client, const CRect& rc, int nOption) const {
    client.FillRect(rc, kFieldBlue);
    DrawTimes(client, rc, nOption, kWhite, kFieldBlue);
    client.FillRect(Dot({Middle(rc).x + 5, Middle(rc).y}, nOption), kWhite);
}
