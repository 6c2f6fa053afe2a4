#include "paint/SkinItem.h"

namespace {

constexpr CColor kHighlight{255, 255, 255};
constexpr CColor kLight{227, 227, 227};
constexpr CColor kShadow{128, 128, 128};
constexpr CColor kDarkShadow{64, 64, 64};

// A line around a box: two sides in the light, two in the shade.
void DrawEdgeLine(CClientArea& client, const CRect& rc, CColor crTopLeft, CColor crBottomRight) {
    client.FillRect({rc.left, rc.top, rc.right, rc.top + 1}, crTopLeft);
    client.FillRect({rc.left, rc.top, rc.left + 1, rc.bottom}, crTopLeft);
    client.FillRect({rc.left, rc.bottom - 1, rc.right, rc.bottom}, crBottomRight);
    client.FillRect({rc.right - 1, rc.top, rc.right, rc.bottom}, crBottomRight);
}

}  // namespace

void CSkinItem::DrawEdge(CClientArea& client) const {
    const CRect& rc = m_rcFrame;
    if (m_edge == ESkinEdge::SunkenLine) return DrawEdgeLine(client, rc, kShadow, kHighlight);
    DrawEdgeLine(client, rc, kLight, kDarkShadow);
    DrawEdgeLine(client, {rc.left + 1, rc.top + 1, rc.right - 1, rc.bottom - 1}, kDarkShadow, kLight);
}
