#include "paint/PenTool.h"

// Without a step the drag is over, so nothing is drawn behind it.
void CPenTool::Press(CPoint /*pt*/) {
    if (!m_env.Snapshot()) Paper().Revert();
}

void CPenTool::Move(CPoint pt) {
    Paper().Commit();
    DrawLine(Scratch(), Hand().m_ptStart, pt);
    Hand().m_ptStart = pt;
    Paper().ShowScratch();
}

// The second run of the last move has committed everything up to here; a release elsewhere adds nothing.
void CPenTool::Release(CPoint /*pt*/) {
    Paper().Revert();
}
