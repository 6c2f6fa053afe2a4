#include "link/TransferDlg.h"

#include "link/Format.h"
#include "resources/BitmapIds.h"
#include "resources/Ids.h"
#include "resources/PhoneTexts.h"
#include "resources/Templates.h"

namespace {

constexpr int kStepPeriod = 150;  // milliseconds
constexpr int kWorkDelay = 50;

}  // namespace

struct CTransferDlg::CLook {
    int nTimerPicture;
    int nTimerWork;
    int nFirstFrame;
    int nStrip;
    int nStripDone;
};

const CTransferDlg::CLook& CTransferDlg::Look() const {
    static constexpr CLook kTake{0, 2, kBmpTakeFrame, kBmpStripTake, kBmpStripTaken};
    static constexpr CLook kSend{3, 5, kBmpSendFrame, kBmpStripSend, kBmpStripSent};
    return m_direction == EDirection::Take ? kTake : kSend;
}

CTransferDlg::CTransferDlg(EDirection direction, CPhoneSession& session, CWork work)
    : CDialog(kTransferDialog),
      m_direction(direction),
      m_session(session),
      m_work(std::move(work)),
      m_step{Look().nFirstFrame + 1, Look().nStrip} {}

CTransferDlg::~CTransferDlg() {
    StopPicture();
    m_session.Env().timers.KillTimer(*this, Look().nTimerWork);
}

void CTransferDlg::OnInitDialog() {
    m_session.Env().timers.SetTimer(*this, Look().nTimerPicture, 0);
    m_session.Env().timers.SetTimer(*this, Look().nTimerWork, kWorkDelay);
}

// Each timer is of one shot.
void CTransferDlg::OnTimer(int nTimer) {
    m_session.Env().timers.KillTimer(*this, nTimer);
    if (HasEnded()) return;
    if (nTimer == Look().nTimerPicture) return RunPicture();
    ShowNow();
    const int nEnd = m_work(*this);
    StopPicture();
    EndDialog(nEnd);
}

// --- what is seen ---

void CTransferDlg::OnPaint(CClientArea& client) {
    client.DrawBitmap(kBmpTransfer, 0, 0);
    m_step.Draw(client);
}

void CTransferDlg::DrawStep() {
    m_step.Draw(Client());
    Present();
}

void CTransferDlg::RunPicture() {
    ++m_nFrame;
    m_step.nFrame = Look().nFirstFrame + m_nFrame % kTransferFrames;
    DrawStep();
    m_session.Env().timers.SetTimer(*this, Look().nTimerPicture, kStepPeriod);
}

void CTransferDlg::StopPicture() {
    m_session.Env().timers.KillTimer(*this, Look().nTimerPicture);
}

void CTransferDlg::TellProgress(int nFile, int nFiles) {
    Controls().SetText(kTransferText, Format(kTextProgress, nFile, nFiles));
    ShowNow();
}

void CTransferDlg::ShowDone() {
    m_step.nStrip = Look().nStripDone;
    DrawStep();
    StopPicture();
    ShowNow();
}
