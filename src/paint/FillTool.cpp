#include "paint/FillTool.h"

void CFillTool::Press(CPoint pt) {
    // Beside the picture there is nothing to fill, but a step all the same.
    const auto fill = [&] {
        return !Committed().Bounds().Contains(pt) ||
               Committed().FloodFill(pt, Committed().GetPixel(pt.x, pt.y));
    };
    Hand().m_ptStart = pt;
    Committed().SelectBrush(CBrush::Solid(Hand().m_crPrimary));
    if (m_env.Snapshot(fill)) Paper().Revert();
}
