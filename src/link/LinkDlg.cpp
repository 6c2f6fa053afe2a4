#include "link/LinkDlg.h"

#include "resources/BitmapIds.h"
#include "resources/Templates.h"

namespace {

constexpr int kTimerConnect = 0;
constexpr int kTimerConnectPicture = 1;
constexpr int kTimerPicture = 2;
constexpr int kTimerBack = 3;  // behind the answer of a phone that has restarted
constexpr int kTimerPoll = 4;
constexpr int kTimerTake = 5;
constexpr int kTimerSend = 6;

constexpr int kStepPeriod = 180;  // milliseconds, as all of these
constexpr int kWorkDelay = 40;
constexpr int kBackDelay = 1300;

constexpr int kKnownPhoneSteps = 40;
constexpr int kStripFrom = 16;  // the step of a connect with which its strip comes
constexpr int kMostPolls = 90;  // of a phase

int WorkTimer(ELinkTask task) {
    if (task == ELinkTask::Connect) return kTimerConnect;
    return task == ELinkTask::PrepareTake ? kTimerTake : kTimerSend;
}

int FirstStrip(ELinkTask task) {
    if (task == ELinkTask::Connect) return 0;
    return task == ELinkTask::WaitForRestart ? kBmpStripRestart : kBmpStripConnect;
}

}  // namespace

CLinkDlg::CLinkDlg(ELinkTask task, CPhoneSession& session, CWork work)
    : CDialog(kLinkDialog),
      m_nLinkTask(task),
      m_session(session),
      m_work(std::move(work)),
      m_step{kBmpConnectFrame, FirstStrip(task)} {}

CLinkDlg::~CLinkDlg() {
    for (int nTimer = kTimerConnect; nTimer <= kTimerSend; ++nTimer) KillTimer(nTimer);
}

void CLinkDlg::SetTimer(int nTimer, int nMilliseconds) {
    m_session.Env().timers.SetTimer(*this, nTimer, nMilliseconds);
}

void CLinkDlg::KillTimer(int nTimer) {
    m_session.Env().timers.KillTimer(*this, nTimer);
}

void CLinkDlg::OnInitDialog() {
    if (m_nLinkTask == ELinkTask::WaitForRestart) {
        m_wait.emplace(m_session.Env().wait);
        m_session.Calls().DisconnectToPhone();
        return SetTimer(kTimerPoll, 0);
    }
    SetTimer(m_nLinkTask == ELinkTask::Connect ? kTimerConnectPicture : kTimerPicture, 0);
    SetTimer(WorkTimer(m_nLinkTask), kWorkDelay);
}

bool CLinkDlg::OnKey(const CKeyEvent& event) {
    if (event.nKey == kKeyEscape && m_nLinkTask == ELinkTask::WaitForRestart)
        EndDialog(CPhoneSession::kEndDone);
    return true;
}

// Each timer is of one shot.
void CLinkDlg::OnTimer(int nTimer) {
    KillTimer(nTimer);
    if (HasEnded()) return;
    switch (nTimer) {
        case kTimerConnectPicture:
        case kTimerPicture:
            return RunPicture();
        case kTimerPoll:
            return PollRestart();
        case kTimerBack:
            return EndRestart();
        default:
            return RunWork();
    }
}

// --- the picture ---

void CLinkDlg::OnPaint(CClientArea& client) {
    client.DrawBitmap(kBmpLink, 0, 0);
    m_step.Draw(client);
}

void CLinkDlg::DrawStep(int nFrame, int nStrip) {
    m_step = {kBmpConnectFrame + nFrame % kConnectFrames, nStrip};
    m_step.Draw(Client());
    Present();
}

void CLinkDlg::StopPicture() {
    KillTimer(kTimerConnectPicture);
    KillTimer(kTimerPicture);
}

void CLinkDlg::RunPicture() {
    const bool bConnect = m_nLinkTask == ELinkTask::Connect;
    DrawStep(m_nFrame, !bConnect || m_nFrame >= kStripFrom ? kBmpStripConnect : 0);
    ++m_nFrame;
    if (!bConnect) return SetTimer(kTimerPicture, kStepPeriod);
    if (m_nFrame < m_nFrameEnd) return SetTimer(kTimerConnectPicture, kStepPeriod);
    if (m_session.State().m_bConnected) m_session.Env().events.Tell(EEditEvent::PhoneReady);
    EndDialog(CPhoneSession::kEndDone);
}

void CLinkDlg::RunWork() {
    ShowNow();
    const std::optional<int> nEnd = m_work(*this);
    if (!nEnd) {
        m_nFrameEnd = kKnownPhoneSteps;
        return;
    }
    StopPicture();
    EndDialog(*nEnd);
}

// --- the wait for a restart ---

void CLinkDlg::PollRestart() {
    DrawStep(m_bGone ? 1 : 0, kBmpStripRestart);
    // A phone that is silent keeps the thread for seconds.
    ShowNow();
    // Whose answer it is does not matter.
    std::uint32_t nIdentity = 0;
    const bool bAnswers = m_session.Calls().GetPhoneInfo(m_session.State(), nIdentity) == LINK_OK;
    // A phone on a serial port is not waited for.
    if (m_session.State().m_bUsbPort == 0) return EndDialog(CPhoneSession::kEndDone);
    if (m_bGone && bAnswers) return SetTimer(kTimerBack, kBackDelay);
    if (!bAnswers) m_bGone = true;
    if (++(m_bGone ? m_nWaitDown : m_nWaitUp) > kMostPolls) return EndDialog(CPhoneSession::kEndDone);
    SetTimer(kTimerPoll, kStepPeriod);
}

void CLinkDlg::EndRestart() {
    if (m_session.State().m_bConnected) m_session.Env().events.Tell(EEditEvent::PhoneReady);
    EndDialog(CPhoneSession::kEndDone);
}
