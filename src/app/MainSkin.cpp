#include "app/MainSkin.h"

#include <array>

#include "resources/BitmapIds.h"
#include "resources/HintTable.h"
#include "resources/Ids.h"

namespace {

constexpr CPoint kTopStripAt{19, kTopHintRow};
constexpr CPoint kTabStripAt{0, kTabHintRow};
constexpr CPoint kTabRowAt{0, 79};
constexpr CPoint kPanelAt{0, 111};
// Between the place of the colour swatch and what is filled of it.
constexpr int kSwatchRim = 2;

// The pictures of a mode; a panel of 0 shows the background.
struct CModeLook {
    int nTabRow;
    int nPanel;
    int nTabStrip;
};

constexpr std::array<CModeLook, 5> kLooks = {{
    {kBmpTabsThum, 0, kBmpTabStripThum},
    {kBmpTabsDraw, kBmpPanelDraw, kBmpTabStripDraw},
    {kBmpTabsEffect, 0, kBmpTabStripEffect},
    {kBmpTabsFont, kBmpPanelFont, kBmpTabStripFont},
    {kBmpTabsStick, kBmpPanelStick, kBmpTabStripStick},
}};

const CModeLook& LookOf(EMode mode) {
    return kLooks[static_cast<std::size_t>(mode)];
}

}  // namespace

void CMainSkin::Paint(CClientArea& client) const {
    const CModeLook& look = LookOf(m_state.m_nMode);
    client.DrawBitmap(kBmpBackground, 0, 0);
    client.DrawBitmap(look.nTabRow, kTabRowAt.x, kTabRowAt.y);
    if (look.nPanel != 0) client.DrawBitmap(look.nPanel, kPanelAt.x, kPanelAt.y);
    if (m_state.IsUp(EMode::Font)) ShowTextColor(client);
}

void CMainSkin::ShowTextColor(CClientArea& client) const {
    const CRect rc = m_controls.Find(kTextSwatch)->rcPlace;
    client.FillRect(
        {rc.left + kSwatchRim, rc.top + kSwatchRim, rc.right - kSwatchRim, rc.bottom - kSwatchRim},
        m_host.TextColor());
}

void CMainSkin::WipeTabHint(CClientArea& client) const {
    client.DrawBitmap(LookOf(m_state.m_nMode).nTabStrip, kTabStripAt.x, kTabStripAt.y);
}

void CMainSkin::OnHover(CClientArea& client, int nControl, bool bLeftDown) {
    client.DrawBitmap(kBmpTopStrip, kTopStripAt.x, kTopStripAt.y);
    WipeTabHint(client);
    if (m_state.IsUp(EMode::Font)) ShowTextColor(client);

    const CHint* pHint = FindHint(nControl);
    if (pHint == nullptr || !m_controls.IsShown(nControl)) return;
    // A drag out of the file list onto these keys keeps the list's focus, which the drop needs.
    const bool bDropTarget =
        nControl == kCmdOpen || nControl == kCmdSend || nControl == kCmdNew || nControl == kCmdConnect;
    const bool bDragging = m_state.IsUp(EMode::Thum) && bLeftDown && m_host.IsListPressed();
    if (pHint->bTakesFocus && !(bDropTarget && bDragging)) m_controls.SetFocus(nControl);
    client.DrawBitmap(pHint->nBitmap, pHint->x, pHint->y);
    m_timers.SetTimer(m_target, pHint->y == kTopHintRow ? kTimerTopHint : kTimerTabHint, kHintMilliseconds);
}

// Each strip's hint goes when its own second is over, whichever hint came up last: the strip of a hint that
// has been wiped already is wiped once more.
void CMainSkin::OnTimer(CClientArea& client, int nTimer) {
    if (nTimer != kTimerTopHint && nTimer != kTimerTabHint) return;
    m_timers.KillTimer(m_target, nTimer);
    if (nTimer == kTimerTopHint) return client.DrawBitmap(kBmpTopStrip, kTopStripAt.x, kTopStripAt.y);
    WipeTabHint(client);
    if (m_state.IsUp(EMode::Font)) ShowTextColor(client);
}
