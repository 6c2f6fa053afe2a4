#include "paint/LineTool.h"

void CLineTool::Move(CPoint pt) {
    Paper().Revert();
    Scratch().SelectBrush(CBrush::Hollow());
    DrawLine(Scratch(), Hand().m_ptStart, pt);
    Paper().ShowScratch();
}

void CLineTool::Release(CPoint pt) {
    if (m_env.Snapshot()) DrawLine(Committed(), Hand().m_ptStart, pt);
    Paper().Revert();
}
