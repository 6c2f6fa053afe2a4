#include "paint/SelectRectTool.h"

void CSelectRectTool::Move(CPoint pt) {
    Scratch().SelectBrush(CBrush::Hollow());
    Paper().Revert();
    Scratch().Rectangle(Between(Hand().m_ptStart, pt));
}

// A plain click leaves an empty selection and the commands as they are.
void CSelectRectTool::Release(CPoint pt) {
    const CPoint ptStart = Hand().m_ptStart;
    m_env.selection.m_rcSelect = {ptStart.x, ptStart.y, pt.x, pt.y};
    m_env.selection.Mark();
    if (pt != ptStart) m_env.events.Tell(EEditEvent::SelectionMade);
}
