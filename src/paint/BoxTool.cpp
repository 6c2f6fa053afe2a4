#include "paint/BoxTool.h"

namespace {

constexpr CSize kCorner{20, 20};

}  // namespace

void CBoxTool::Press(CPoint /*pt*/) {
    Hand().BeginBox();
}

void CBoxTool::Move(CPoint pt) {
    Paper().Revert();
    DrawFigure(Scratch(), pt);
}

void CBoxTool::Release(CPoint pt) {
    if (m_env.Snapshot()) DrawFigure(Committed(), pt);
    Paper().Revert();
}

void CBoxTool::DrawFigure(CSurface& surface, CPoint pt) const {
    const CRect rc = Between(Hand().m_ptStart, pt);
    switch (m_figure) {
        case EBoxFigure::Rectangle:
            surface.Rectangle(rc);
            break;
        case EBoxFigure::Ellipse:
            surface.Ellipse(rc);
            break;
        case EBoxFigure::RoundRect:
            surface.RoundRect(rc, kCorner);
            break;
    }
}
