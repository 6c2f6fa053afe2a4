#include "paint/EraserTool.h"

void CEraserTool::Press(CPoint pt) {
    Paper().Commit();
    if (!m_env.Snapshot()) return;
    const int n = Half();
    Scratch().FillRect({pt.x - n, pt.y - n, pt.x + n, pt.y + n}, Hand().m_crSecondary);
    Paper().ShowScratch();
}

void CEraserTool::Move(CPoint pt) {
    Paper().Commit();
    Scratch().SelectPen(CPen::Solid(2 * Half(), Hand().m_crSecondary));
    DrawLine(Scratch(), Hand().m_ptStart, pt);
    Hand().m_ptStart = pt;
    Paper().ShowScratch();
}

// The last square is a column wider than the first.
void CEraserTool::Release(CPoint pt) {
    const int n = Half();
    Scratch().FillRect({pt.x - n, pt.y - n, pt.x + n + 1, pt.y + n}, Hand().m_crSecondary);
    Paper().Commit();
}
