#include "paint/FloatTool.h"

void CFloatTool::Press(CPoint pt) {
    if (!m_env.selection.m_region.Box().Contains(pt)) return m_fnDrop();
    Hand().m_ptStart = pt;
}

void CFloatTool::Move(CPoint pt) {
    CSelection& selection = m_env.selection;
    const CRect rcOld = selection.FloatBox();
    Scratch().DrawPart(Committed().Pixels(), rcOld, rcOld.left, rcOld.top);
    selection.m_region.Offset(pt.x - Hand().m_ptStart.x, pt.y - Hand().m_ptStart.y);
    selection.DrawFloat(Scratch());
    selection.DrawFloatOutline(Scratch());
    Paper().ShowScratch();
    Hand().m_ptStart = pt;
}
