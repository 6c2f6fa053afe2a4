#include "paint/FillTool.h"

void CFillTool::Press(CPoint pt) {
    if (!m_env.Snapshot()) return;
    Hand().m_ptStart = pt;
    const CBrush brushBefore = Committed().SelectBrush(CBrush::Solid(Hand().m_crPrimary));
    const bool bFilled = Committed().FloodFill(pt, Committed().GetPixel(pt.x, pt.y));
    Committed().SelectBrush(brushBefore);
    if (bFilled) Paper().Revert();
}
