#include "paint/SprayGlyphs.h"

#include <array>

#include "resources/BitmapIds.h"

namespace {

constexpr std::array kClouds = {kBmpSpraySmall, kBmpSprayMiddle, kBmpSprayLarge};
constexpr std::array kSelectedClouds = {kBmpSpraySmallLit, kBmpSprayMiddleLit, kBmpSprayLargeLit};

}  // namespace

std::vector<CRect> CSprayGlyphs::Layout(const CRect& rcPanel) const {
    const int nLeft = rcPanel.left + 3;
    return {{nLeft, rcPanel.top + 5, rcPanel.right, rcPanel.top + 20},
            {nLeft, rcPanel.top + 25, rcPanel.right + 3, rcPanel.top + 45},
            {nLeft, rcPanel.top + 50, rcPanel.right + 3, rcPanel.top + 70}};
}

void CSprayGlyphs::DrawNormal(CClientArea& client, const CRect& rc, int nOption) const {
    client.DrawBitmap(kClouds[static_cast<std::size_t>(nOption)], rc.left, rc.top);
}

void CSprayGlyphs::DrawSelected(CClientArea& client, const CRect& rc, int nOption) const {
    client.DrawBitmap(kSelectedClouds[static_cast<std::size_t>(nOption)], rc.left, rc.top);
}
