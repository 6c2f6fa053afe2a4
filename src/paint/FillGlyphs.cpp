#include "paint/FillGlyphs.h"

#include "paint/ToolState.h"

namespace {

constexpr int kOptions = 3;
constexpr int kRow = 22;
constexpr int kInset = 5;
constexpr CColor kLightGrey = CColor::FromRef(0xC0C0C0);
constexpr CColor kGrey = CColor::FromRef(0x808080);

}  // namespace

std::vector<CRect> CFillGlyphs::Layout(const CRect& rcPanel) const {
    std::vector<CRect> arrRects;
    for (int i = 0; i < kOptions; ++i) {
        const int nTop = rcPanel.top + 7 + kRow * i;
        arrRects.push_back({rcPanel.left + 3, nTop, rcPanel.right - 3, nTop + kRow});
    }
    return arrRects;
}

void CFillGlyphs::DrawNormal(CClientArea& client, const CRect& rc, int nOption) const {
    const EFillMode mode{nOption};
    client.DrawBox(Inset(rc, kInset), mode == EFillMode::Same ? kGrey : kBlack,
                   mode == EFillMode::None ? kLightGrey : kGrey);
}

void CFillGlyphs::DrawSelected(CClientArea& client, const CRect& rc, int nOption) const {
    const EFillMode mode{nOption};
    client.FillRect(rc, kFieldBlue);
    client.DrawBox(Inset(rc, kInset), mode == EFillMode::Same ? kGrey : kWhite,
                   mode == EFillMode::None ? kFieldBlue : kGrey);
}
