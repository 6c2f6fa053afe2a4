#include "compose/TextGuest.h"

#include <algorithm>

namespace {

constexpr CColor kInk{0, 0, 0};
constexpr int kHalfSquare = 3;

}  // namespace

CTextView CTextGuest::View() const {
    return {PictureSize(), m_env.canvas.ClientSize(),
            CEditPictures::FitScale(m_env.images.m_imgWork.GetSize())};
}

void CTextGuest::Begin() {
    m_bTextHandles = true;
    m_bTextButton = m_bRubber = m_bMove = false;
    m_nHit = -1;
    m_handles.InitTextHandles(View(), m_env.param);
}

void CTextGuest::End() {
    m_bTextHandles = false;
    m_env.canvas.SetCursor(ECursor::Arrow);
}

void CTextGuest::SetShowLines(bool bShow) {
    m_byShowLines = bShow;
    if (!bShow) m_env.canvas.SetCursor(ECursor::Arrow);
}

// --- painting ---

CRect CTextGuest::LinesBox() const {
    CRect rc;
    for (const CPoint pt : m_handles.Points(m_env.param))
        rc = rc.Union({pt.x - kHalfSquare, pt.y - kHalfSquare, pt.x + kHalfSquare, pt.y + kHalfSquare});
    return rc;
}

void CTextGuest::DrawLines(CSurface& surface) const {
    const std::span<const CPoint> points = m_handles.Points(m_env.param);
    if (m_env.param.nWarpKind == kWarpMesh) {
        surface.SelectPen(CPen::Dotted(PenStyle::kDash, kInk));
        constexpr std::size_t n = CTextHandles::kSide;
        for (std::size_t i = 0; i < n; ++i) {
            std::array<CPoint, n> column;
            for (std::size_t k = 0; k < n; ++k) column[k] = points[k * n + i];
            surface.Polyline(points.subspan(i * n, n));
            surface.Polyline(column);
        }
    } else {
        surface.SelectPen(CPen::Dotted(PenStyle::kDashDot, kInk));
        surface.SelectBrush(CBrush::Hollow());
        surface.Polygon(points);
    }
    for (const CPoint pt : points)
        surface.FillRect({pt.x - kHalfSquare, pt.y - kHalfSquare, pt.x + kHalfSquare, pt.y + kHalfSquare},
                         kInk);
}

void CTextGuest::OnDraw(CSurface& surface, CPoint ptPicture) {
    surface.DrawPixels(m_env.images.m_imgDisplay.Pixels(), ptPicture.x, ptPicture.y);
    m_rcLines = {};
    if (!m_byShowLines) return;
    DrawLines(surface);
    m_rcLines = LinesBox();
}

// All of both shapes lies on the picture, so a part of it takes the old lines away.
void CTextGuest::ShowLines() {
    m_env.canvas.DrawNow([this](CSurface& surface) {
        const CPoint pt = PictureAt(m_env.canvas.ClientSize());
        const CRect rcOld = m_rcLines;
        surface.DrawPart(m_env.images.m_imgDisplay.Pixels(), rcOld.Offset(-pt.x, -pt.y), rcOld.left,
                         rcOld.top);
        DrawLines(surface);
        m_rcLines = LinesBox();
        return rcOld.Union(m_rcLines);
    });
}

// --- the hand ---

void CTextGuest::OnMouse(const CMouseEvent& event) {
    if (!m_byShowLines) return;
    if (event.action == EMouseAction::Move) return Move(event.pt, event.nFlags);
    if (event.button != EMouseButton::Left) return;
    if (event.action == EMouseAction::Release) return Release();
    Press(event.pt, (event.nFlags & kMouseShift) != 0);
}

// A press beside the picture takes hold of nothing.
void CTextGuest::Press(CPoint pt, bool bShift) {
    m_bTextButton = true;
    if (!m_bTextHandles || !View().IsInsideImage(pt)) return;
    m_bRubber = bShift;
    m_bMove = !bShift;
    (bShift ? m_ptRubberStart : m_ptMoveStart) = pt;
    m_nHit = m_handles.HitTest(m_env.param, pt);
    if (m_nHit >= 0)
        m_env.canvas.SetCursor(ECursor::Handle);
    else if (m_bMove)
        m_env.canvas.SetCursor(ECursor::Move);
}

void CTextGuest::Move(CPoint pt, unsigned nFlags) {
    const CTextView view = View();
    const bool bInside = view.IsInsideImage(pt);
    if (!m_bTextHandles) return;
    const bool bChanged = bInside && Drag(view, pt, nFlags);
    // A button that was let go beside the canvas is not heard of.
    const bool bHeld = m_nHit >= 0 && (nFlags & kMouseLeftDown) != 0;
    const bool bOver = bHeld || (bInside && m_handles.HitTest(m_env.param, pt) >= 0);
    const bool bMoves = bChanged && m_bMove && !bHeld;
    m_env.canvas.SetCursor(bMoves ? ECursor::Move : bOver ? ECursor::Handle : ECursor::Arrow);
    if (bChanged) ShowLines();
}

bool CTextGuest::Drag(const CTextView& view, CPoint pt, unsigned nFlags) {
    const bool bLeft = (nFlags & kMouseLeftDown) != 0;
    const bool bShift = (nFlags & kMouseShift) != 0;
    if (bLeft && bShift && m_bRubber) return m_handles.DrawAnew(view, m_env.param, m_ptRubberStart, pt);
    if (bLeft && !bShift && m_nHit >= 0) return m_handles.DragPoint(view, m_env.param, m_nHit, pt);
    const bool bAny = (nFlags & (kMouseLeftDown | kMouseRightDown)) != 0;
    if (!bAny || !m_bTextButton || !m_bMove) return false;
    const CPoint ptOffset{pt.x - m_ptMoveStart.x, pt.y - m_ptMoveStart.y};
    return m_handles.MoveAll(view, m_env.param, ptOffset);
}

void CTextGuest::Release() {
    m_bTextButton = false;
    m_handles.Settle();
    m_bRubber = m_bMove = false;
    m_nHit = -1;
    m_env.fnReleased();
}
