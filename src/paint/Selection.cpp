#include "paint/Selection.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

CRegion RegionOf(ETool tool, const CRect& rcSelect, const CHand& hand, std::span<const CPoint> free) {
    switch (tool) {
        case ETool::SelectRect:
            return CRegion::MakeRectangle(rcSelect);
        case ETool::SelectPolygon:
            return CRegion::MakePolygon(
                std::span(hand.m_ptVertex).first(static_cast<std::size_t>(hand.m_nClosedCount)));
        case ETool::SelectFree:
            // The release's own point is not part of it.
            return CRegion::MakePolygon(free.first(free.size() - std::min<std::size_t>(1, free.size())));
        default:
            return {};
    }
}

}  // namespace

bool CSelection::Build(ETool tool, const CHand& hand) {
    CRegion region = RegionOf(tool, m_rcSelect, hand, m_free.Points());
    if (region.IsEmpty()) return false;
    m_region = std::move(region);
    m_rcSelect = m_region.Box();
    return true;
}

CPixels CSelection::Lift(const CSurface& surface) const {
    CPixels pixels;
    const CRect& rcBox = m_region.Box();
    if (!pixels.CreateFilled(rcBox.Width(), rcBox.Height(), kBeside)) return pixels;
    const CPixelView view = pixels.MutableView();
    const CRect rcSeen = rcBox.Intersect(surface.Bounds());
    for (int y = rcSeen.top; y < rcSeen.bottom; ++y) {
        const std::uint8_t* const pFrom = surface.Pixels().Row(y).data();
        for (const CRun& run : m_region.RowRuns(y)) {
            const int nLeft = std::max(run.nLeft, rcSeen.left);
            const int nRight = std::min(run.nRight, rcSeen.right);
            if (nLeft >= nRight) continue;
            std::memcpy(view.Row(y - rcBox.top) + std::ptrdiff_t{3} * (nLeft - rcBox.left),
                        pFrom + std::ptrdiff_t{3} * nLeft,
                        std::size_t{3} * static_cast<std::size_t>(nRight - nLeft));
        }
    }
    return pixels;
}

void CSelection::MoveTo(CPoint pt) {
    const CRect& rcBox = m_region.Box();
    m_region.Offset(pt.x - rcBox.left, pt.y - rcBox.top);
}

void CSelection::DrawFloat(CSurface& surface) const {
    const CRect& rcBox = m_region.Box();
    const CRect rcFloat =
        CRect::FromPlace(rcBox.left, rcBox.top, m_imgFloat.GetWidth(), m_imgFloat.GetHeight());
    const CRect rcSeen = rcFloat.Intersect(rcBox).Intersect(surface.Bounds());
    for (int y = rcSeen.top; y < rcSeen.bottom; ++y)
        for (const CRun& run : m_region.RowRuns(y)) {
            const CRect rcRun = CRect{run.nLeft, y, run.nRight, y + 1}.Intersect(rcSeen);
            surface.DrawPart(m_imgFloat.Pixels(), rcRun.Offset(-rcBox.left, -rcBox.top), rcRun.left, y);
        }
}

CRect CSelection::FloatBox() const {
    const CRect& rcBox = m_region.Box();
    return rcBox.Union(
        CRect::FromPlace(rcBox.left, rcBox.top, m_imgFloat.GetWidth(), m_imgFloat.GetHeight()));
}

void CSelection::DrawFloatOutline(CSurface& surface) const {
    surface.SelectPen(SelectionPen());
    surface.SelectBrush(CBrush::Hollow());
    surface.Rectangle(m_region.Box());
}
