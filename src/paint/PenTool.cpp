#include "paint/PenTool.h"

void CPenTool::Press(CPoint /*pt*/) {
    m_env.Snapshot();
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
