#include "paint/PickerTool.h"

// Beside the picture there is no colour to take.
void CPickerTool::Pick(CPoint pt) {
    if (!Committed().Bounds().Contains(pt)) return;
    m_env.host.PickColor(m_env.options.m_bPickForeground, Committed().GetPixel(pt.x, pt.y));
}
