#include "compose/TextHandles.h"

#include <algorithm>
#include <cstdlib>

namespace {

// A canvas less its frame, in which the picture is centred.
constexpr CSize kCentred{654, 538};
constexpr CPoint kMiddle{329, 271};
constexpr int kEdge = 5;
constexpr int kReach = 5;
constexpr int kLast = static_cast<int>(CTextHandles::kMeshPoints) - 1;

// The whole shape shifted, if all of it then lies on the picture.
template <class TPoints>
bool Shift(TPoints& points, const TPoints& base, CPoint ptOffset, const CTextView& view) {
    TPoints moved = base;
    for (CPoint& pt : moved) pt = {pt.x + ptOffset.x, pt.y + ptOffset.y};
    if (!std::ranges::all_of(moved, [&](CPoint pt) { return view.IsInsideImage(pt); })) return false;
    points = moved;
    return true;
}

}  // namespace

CPoint CTextView::PictureAt() const {
    return {(kCentred.cx - sizeDisplay.cx) / 2, (kCentred.cy - sizeDisplay.cy) / 2};
}

CPoint CTextView::ScreenToImage(CPoint pt) const {
    const auto scale = [this](int n) { return static_cast<int>(static_cast<float>(n) / fTextScale); };
    return {scale(pt.x - PictureAt().x), scale(pt.y - PictureAt().y)};
}

bool CTextView::IsInsideImage(CPoint pt) const {
    const int nLeft = (sizeClient.cx - sizeDisplay.cx) / 2;
    const int nTop = (sizeClient.cy - sizeDisplay.cy) / 2;
    return pt.x > nLeft + kEdge && pt.x < nLeft + sizeDisplay.cx - kEdge && pt.y > nTop + kEdge &&
           pt.y < nTop + sizeDisplay.cy - kEdge;
}

void CTextHandles::InitTextHandles(const CTextView& view, TextArtParam& param) {
    const CPoint pt{kMiddle.x - view.sizeDisplay.cx / 4, kMiddle.y - view.sizeDisplay.cy / 8};
    const CSize size{view.sizeDisplay.cx / 2, view.sizeDisplay.cy / 4};
    m_ptQuad = {{pt, {pt.x + size.cx, pt.y}, {pt.x + size.cx, pt.y + size.cy}, {pt.x, pt.y + size.cy}}};
    SetMesh(pt, size);
    TellQuad(view, param);
    TellMesh(view, param);
    Settle();
}

void CTextHandles::Settle() {
    m_ptQuadBase = m_ptQuad;
    m_ptMeshBase = m_ptMesh;
}

std::span<const CPoint> CTextHandles::Points(const TextArtParam& param) const {
    return param.nWarpKind == kWarpMesh ? std::span<const CPoint>(m_ptMesh)
                                        : std::span<const CPoint>(m_ptQuad);
}

int CTextHandles::HitTest(const TextArtParam& param, CPoint pt) const {
    const std::span<const CPoint> points = Points(param);
    const auto it = std::ranges::find_if(points, [pt](CPoint ptHandle) {
        return std::abs(ptHandle.x - pt.x) < kReach && std::abs(ptHandle.y - pt.y) < kReach;
    });
    return it == points.end() ? -1 : static_cast<int>(it - points.begin());
}

// --- changes ---

void CTextHandles::SetMesh(CPoint pt, CSize size) {
    constexpr int kSteps = static_cast<int>(kSide) - 1;
    for (std::size_t i = 0; i < kMeshPoints; ++i) {
        const auto nColumn = static_cast<int>(i % kSide);
        const auto nRow = static_cast<int>(i / kSide);
        m_ptMesh[i] = {pt.x + nColumn * size.cx / kSteps, pt.y + nRow * size.cy / kSteps};
    }
}

bool CTextHandles::DrawAnew(const CTextView& view, TextArtParam& param, CPoint ptFrom, CPoint ptTo) {
    if (param.nWarpKind != kWarpMesh) {
        m_ptQuad = {{ptFrom, {ptTo.x, ptFrom.y}, ptTo, {ptFrom.x, ptTo.y}}};
        TellQuad(view, param);
        return true;
    }
    const CSize size{ptTo.x - ptFrom.x, ptTo.y - ptFrom.y};
    if (size.cx < 0 || size.cy < 0) return false;
    SetMesh(ptFrom, size);
    TellMesh(view, param);
    return true;
}

bool CTextHandles::DragPoint(const CTextView& view, TextArtParam& param, int nPoint, CPoint pt) {
    if (param.nWarpKind == kWarpMesh) return DragMeshPoint(view, param, static_cast<std::size_t>(nPoint), pt);
    m_ptQuad[static_cast<std::size_t>(nPoint)] = pt;
    TellQuad(view, param);
    return true;
}

// Only where it goes changes in the record: the grid that it comes from stays regular, and that difference is
// what bends the words.
bool CTextHandles::DragMeshPoint(const CTextView& view, TextArtParam& param, std::size_t nPoint, CPoint pt) {
    const CPoint ptFirst = m_ptMeshBase.front();
    const CPoint ptLast = m_ptMeshBase.back();
    if (pt.x <= ptFirst.x || pt.x >= ptLast.x || pt.y <= ptFirst.y || pt.y >= ptLast.y) return false;
    const CPoint ptBase = m_ptMeshBase[nPoint];
    const bool bUprightEdge = ptBase.x == ptFirst.x || ptBase.x == ptLast.x;
    const bool bLevelEdge = ptBase.y == ptFirst.y || ptBase.y == ptLast.y;
    if (bUprightEdge && bLevelEdge) return false;
    CPoint& ptHandle = m_ptMesh[nPoint];
    if (!bUprightEdge) ptHandle.x = pt.x;
    if (!bLevelEdge) ptHandle.y = pt.y;
    const CPoint ptImage = view.ScreenToImage(ptHandle);
    param.fMeshDstX[nPoint] = static_cast<float>(ptImage.x - param.nMeshX);
    param.fMeshDstY[nPoint] = static_cast<float>(ptImage.y - param.nMeshY);
    return true;
}

bool CTextHandles::MoveAll(const CTextView& view, TextArtParam& param, CPoint ptOffset) {
    if (param.nWarpKind != kWarpMesh) {
        if (!Shift(m_ptQuad, m_ptQuadBase, ptOffset, view)) return false;
        TellQuad(view, param);
        return true;
    }
    if (!Shift(m_ptMesh, m_ptMeshBase, ptOffset, view)) return false;
    // Both grids count from the box, so they go along.
    const CPoint pt = view.ScreenToImage(m_ptMesh.front());
    param.nMeshX = pt.x;
    param.nMeshY = pt.y;
    return true;
}

// --- the record ---

void CTextHandles::TellQuad(const CTextView& view, TextArtParam& param) const {
    CQuad quad;
    std::ranges::transform(m_ptQuad, quad.begin(), [&](CPoint pt) { return view.ScreenToImage(pt); });
    const auto [xLeast, xMost] = std::minmax({quad[0].x, quad[1].x, quad[2].x, quad[3].x});
    const auto [yLeast, yMost] = std::minmax({quad[0].y, quad[1].y, quad[2].y, quad[3].y});
    param.nBoxX = xLeast;
    param.nBoxY = yLeast;
    param.nBoxWidth = xMost - xLeast;
    param.nBoxHeight = yMost - yLeast;
    for (std::size_t i = 0; i < kCorners; ++i) {
        param.fQuad[2 * i] = static_cast<float>(quad[i].x - xLeast);
        param.fQuad[2 * i + 1] = static_cast<float>(quad[i].y - yLeast);
    }
}

void CTextHandles::TellMesh(const CTextView& view, TextArtParam& param) const {
    const CPoint ptFirst = view.ScreenToImage(m_ptMesh.front());
    const CPoint ptEnd = view.ScreenToImage(m_ptMesh[static_cast<std::size_t>(kLast)]);
    param.nMeshX = ptFirst.x;
    param.nMeshY = ptFirst.y;
    param.nMeshWidth = ptEnd.x - ptFirst.x;
    param.nMeshHeight = ptEnd.y - ptFirst.y;
    for (std::size_t i = 0; i < kMeshPoints; ++i) {
        const CPoint pt = view.ScreenToImage(m_ptMesh[i]);
        param.fMeshSrcX[i] = param.fMeshDstX[i] = static_cast<float>(pt.x - ptFirst.x);
        param.fMeshSrcY[i] = param.fMeshDstY[i] = static_cast<float>(pt.y - ptFirst.y);
    }
}
