#include "paint/SkinItem.h"

#include <array>

namespace {

constexpr CColor kHighlight{255, 255, 255};
constexpr CColor kLight{227, 227, 227};
constexpr CColor kShadow{128, 128, 128};
constexpr CColor kDarkShadow{64, 64, 64};

// One line around a box: two sides in the light, two in the shade.
struct CEdgeLine {
    CColor crTopLeft;
    CColor crBottomRight;
};

constexpr CEdgeLine kRaisedOuter{kLight, kDarkShadow};
constexpr CEdgeLine kRaisedInner{kHighlight, kShadow};
constexpr CEdgeLine kSunkenOuter{kShadow, kHighlight};
constexpr CEdgeLine kSunkenInner{kDarkShadow, kLight};

struct CEdge {
    int nStyle;
    int nLines;
    CEdgeLine outer;
    CEdgeLine inner;
};

constexpr std::array<CEdge, 6> kEdges = {{
    {kEdgeSunken, 2, kSunkenOuter, kSunkenInner},
    {kEdgeRaised, 2, kRaisedOuter, kRaisedInner},
    {kEdgeBump, 2, kRaisedOuter, kSunkenInner},
    {kEdgeEtched, 2, kSunkenOuter, kRaisedInner},
    {kEdgeRaisedLine, 1, kRaisedOuter, {}},
    {kEdgeSunkenLine, 1, kSunkenOuter, {}},
}};

void DrawEdgeLine(CClientArea& client, const CRect& rc, const CEdgeLine& line) {
    client.FillRect({rc.left, rc.top, rc.right, rc.top + 1}, line.crTopLeft);
    client.FillRect({rc.left, rc.top, rc.left + 1, rc.bottom}, line.crTopLeft);
    client.FillRect({rc.left, rc.bottom - 1, rc.right, rc.bottom}, line.crBottomRight);
    client.FillRect({rc.right - 1, rc.top, rc.right, rc.bottom}, line.crBottomRight);
}

}  // namespace

void CSkinItem::DrawEdge(CClientArea& client) const {
    for (const CEdge& edge : kEdges) {
        if ((m_nStyle & edge.nStyle) == 0) continue;
        const CRect& rc = m_rcInner;
        DrawEdgeLine(client, rc, edge.outer);
        if (edge.nLines == 2)
            DrawEdgeLine(client, {rc.left + 1, rc.top + 1, rc.right - 1, rc.bottom - 1}, edge.inner);
        return;
    }
}
