#include "link/PhoneLink.h"

#include "link/PhoneFileDlg.h"
#include "resources/PhoneTexts.h"
#include "window/Folders.h"

int CPhoneLink::RunLink(ELinkTask task, CLinkDlg::CWork work) {
    CLinkDlg dialog(task, m_session, std::move(work));
    return m_session.Env().modals.Run(dialog);
}

// --- connecting ---

void CPhoneLink::OnConnect() {
    const int nEnd = RunLink(ELinkTask::Connect,
                             [this](CRunningPicture& picture) { return DoConnect(m_session, picture); });
    if (nEnd == CPhoneSession::kEndRestart) {
        WaitForRestart();
        m_session.Env().events.Tell(IsConnected() ? EEditEvent::PhoneFound : EEditEvent::PhoneLost);
    }
    if (nEnd == CPhoneSession::kEndDone) m_session.Env().events.Tell(EEditEvent::PhoneFound);
}

// --- taking ---

void CPhoneLink::OnTake() {
    bool bLineUp = false;
    while (Take(bLineUp)) bLineUp = true;
}

void CPhoneLink::CloseLine() {
    if (m_session.Restarts())
        WaitForRestart();
    else
        m_session.Calls().DisconnectToPhone();
}

bool CPhoneLink::Take(bool bLineUp) {
    if (!m_session.CheckPhone()) {
        if (bLineUp) CloseLine();
        return false;
    }
    const bool bAgain = TakeList(bLineUp);
    if (!bAgain) m_env.host.FocusEffectList();
    return bAgain;
}

bool CPhoneLink::TakeList(bool bLineUp) {
    std::int32_t nFiles = 0;
    const int nEnd = RunLink(ELinkTask::PrepareTake, [&](CRunningPicture& picture) -> std::optional<int> {
        return DoTakePrepare(m_session, picture, nFiles);
    });
    if (nEnd == CPhoneSession::kEndRestart) WaitForRestart();
    if (nEnd == CPhoneSession::kEndNothing && bLineUp) CloseLine();
    if (nEnd != CPhoneSession::kEndDone) return false;

    // A phone without a card is kept in the exchange meanwhile; one with a card is asked about it.
    const CPhoneCalls& calls = m_session.Calls();
    const bool bHasCard = State().m_bHasCard != 0;
    int nCode = LINK_OK;
    if (bHasCard)
        m_session.Calls().FindForCard();
    else
        nCode = calls.SendDummyPacket();
    CPhoneFileDlg dialog(m_session);
    const bool bPicked = m_session.Env().modals.Run(dialog) == CDialog::kDialogOk;
    if (!bHasCard && (nCode == LINK_OK || !bPicked)) calls.StopDummyPacket();
    if (bPicked) return TakePicked(dialog.Picked());
    LeaveTake();
    return false;
}

void CPhoneLink::LeaveTake() {
    if (m_session.Restarts()) m_session.Show(kTextRestart, kTitleTake);
    m_session.Calls().DisconnectToPhone();
    if (m_session.Restarts()) WaitForRestart();
}

bool CPhoneLink::TakePicked(const std::vector<int>& arrPicked) {
    CTake take;
    take.arrPicked = arrPicked;
    take.strSaveFolder = m_env.thum.Tree().CurrentPath();
    // Before a folder has been chosen the list shows none.
    take.bFolderMoved = take.strSaveFolder.empty();
    if (take.bFolderMoved)
        take.strSaveFolder = m_session.Env().folders.CurrentFolder() + m_session.Env().folders.Separator();
    CTransferDlg dialog(EDirection::Take, m_session,
                        [&](CTransferDlg& transfer) { return DoTakeFiles(m_session, transfer, take); });
    m_session.Env().modals.Run(dialog);
    if (take.bCardChanged) return true;
    CloseLine();
    if (take.bFolderMoved) FollowTake();
    m_env.thum.List().FillThumbnails();
    return false;
}

void CPhoneLink::FollowTake() {
    const bool bShow = m_session.Env().state.IsUp(EMode::Thum);
    m_env.thum.FollowTake(m_session.Env().folders.CurrentFolder(), bShow);
}
