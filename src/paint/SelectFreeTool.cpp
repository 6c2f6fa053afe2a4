#include "paint/SelectFreeTool.h"

void CSelectFreeTool::Press(CPoint pt) {
    m_env.selection.m_free.Begin(pt);
}

void CSelectFreeTool::Move(CPoint pt) {
    m_env.selection.m_free.Add(pt);
    Paper().Revert();
    Scratch().Polyline(m_env.selection.m_free.Points());
}

// A click without a move comes here with the press's solid pen on the scratch store.
void CSelectFreeTool::Release(CPoint pt) {
    m_env.selection.m_free.Add(pt);
    Scratch().SelectPen(SelectionPen());
    Scratch().SelectBrush(CBrush::Hollow());
    Scratch().Polygon(m_env.selection.m_free.Points());
    m_env.selection.Mark();
    Paper().ShowScratch();
    if (pt != Hand().m_ptStart) m_env.events.Tell(EEditEvent::SelectionMade);
}
