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
    : CDialog(kTransferDialog), m_direction(direction), m_session(session), m_work(std::move(work)) {}

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
    const int nEnd = m_work(*this);
    StopPicture();
    EndDialog(nEnd);
}

// --- what is seen ---

void CTransferDlg::OnPaint(CClientArea& client) {
    client.DrawBitmap(kBmpTransfer, 0, 0);
}

void CTransferDlg::RunPicture() {
    ++m_nFrame;
    Client().DrawBitmap(Look().nFirstFrame + m_nFrame % kTransferFrames, kLinkFrameAt.x, kLinkFrameAt.y);
    Client().DrawBitmap(Look().nStrip, kLinkStripAt.x, kLinkStripAt.y);
    Present();
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
    Client().DrawBitmap(Look().nStripDone, kLinkStripAt.x, kLinkStripAt.y);
    StopPicture();
    ShowNow();
}
