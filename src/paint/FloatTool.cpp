#include "paint/FloatTool.h"

void CFloatTool::Press(CPoint pt) {
    Hand().m_ptStart = pt;
    // Without the memory to merge it, the drag is over.
    if (!m_env.selection.m_region.Box().Contains(pt)) Hand().m_bButtonDown = m_fnDrop();
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
