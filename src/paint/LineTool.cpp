#include "paint/LineTool.h"

void CLineTool::Move(CPoint pt) {
    Paper().Revert();
    DrawLine(Scratch(), Hand().m_ptStart, pt);
}

void CLineTool::Release(CPoint pt) {
    if (m_env.Snapshot()) DrawLine(Committed(), Hand().m_ptStart, pt);
    Paper().Revert();
}
