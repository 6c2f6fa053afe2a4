#include "app/SplashDlg.h"

#include "resources/Templates.h"

namespace {

// The first timer lets the picture come up, the second lets it stand.
constexpr int kTimerShow = 0;
constexpr int kTimerStand = 1;
constexpr int kShowMilliseconds = 50;
constexpr int kStandMilliseconds = 3000;

}  // namespace

CSplashDlg::CSplashDlg(CTimers& timers) : CDialog(kSplashDialog), m_timers(timers) {}

void CSplashDlg::OnInitDialog() {
    m_timers.SetTimer(*this, kTimerShow, kShowMilliseconds);
}

void CSplashDlg::OnTimer(int nTimer) {
    m_timers.KillTimer(*this, nTimer);
    if (nTimer == kTimerShow)
        m_timers.SetTimer(*this, kTimerStand, kStandMilliseconds);
    else
        EndDialog(kDialogOk);
}
