#include "paint/AirbrushTool.h"

namespace {

constexpr int kDotsPerTick = 20;

}  // namespace

void CAirbrushTool::Press(CPoint pt) {
    Aim(pt);
    if (m_env.Snapshot()) m_env.timers.SetTimer(m_env.canvas, CPaintEnvironment::kSprayTimer, 0);
}

void CAirbrushTool::Aim(CPoint pt) {
    const int n = (m_env.options.m_nSpraySize + 1) * 5;
    Hand().m_ptStart = pt;
    m_rcSpray = {pt.x - n, pt.y - n, pt.x + n, pt.y + n};
}

// Dots that miss the disc do not count; of each dot the column is drawn from the sequence before the row.
// They fall around the disc's own middle: another tool's press may have put m_ptStart elsewhere while the
// timer went on, and around there none might ever hit.
void CAirbrushTool::Tick() {
    const int nSide = m_rcSpray.Width();
    if (nSide == 0) return;
    const CRegion region = CRegion::MakeEllipse(m_rcSpray);
    Paper().Commit();
    for (int nDots = 0; nDots < kDotsPerTick;) {
        const int x = m_rcSpray.left + m_env.random.Next() % nSide;
        const int y = m_rcSpray.top + m_env.random.Next() % nSide;
        if (!region.Contains({x, y})) continue;
        Scratch().SetPixel(x, y, Hand().m_crPrimary);
        ++nDots;
    }
    Paper().ShowScratch();
}

// The dots of the last tick stay on the scratch store until something commits them.
void CAirbrushTool::Release(CPoint /*pt*/) {
    m_env.timers.KillTimer(m_env.canvas, CPaintEnvironment::kSprayTimer);
    Paper().ShowScratch();
}
