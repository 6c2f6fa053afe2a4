// Sending: what is checked before the line opens, and the way from the key to the phone.

#include "editor/Editor.h"
#include "engines/pack/PhoneSizes.h"
#include "link/Format.h"
#include "link/PhoneLink.h"
#include "link/PhoneSizeDlg.h"
#include "resources/PhoneTexts.h"
#include "resources/Texts.h"
#include "window/Folders.h"

void CPhoneLink::ForgetSend() {
    m_bSendReady = false;
    m_env.thum.List().ForgetPress();
}

void CPhoneLink::EndSend() {
    ForgetSend();
    m_bListPressed = false;
}

void CPhoneLink::OnSend() {
    if (!m_env.host.SettlePicture()) return EndSend();
    if (!State().m_bPhotoPhone) {
        m_session.Show(kTextNoPhotoPhone, kTitleNotice);
        return EndSend();
    }
    if (!m_session.CheckPhone()) return EndSend();
    CheckSendFiles();
    if (m_bSendReady) SendChecked();
    EndSend();
}

void CPhoneLink::SendChecked() {
    const int nEnd = RunLink(ELinkTask::PrepareSend, [&](CRunningPicture& picture) -> std::optional<int> {
        return DoSendPrepare(m_session, picture, PlanSend());
    });
    if (nEnd == CPhoneSession::kEndRestart) {
        WaitForRestart();
        m_session.Calls().DisconnectToPhone();
    }
    const bool bGoesOn = nEnd == CPhoneSession::kEndDone || nEnd == CPhoneSession::kEndResize;
    if (bGoesOn && (nEnd == CPhoneSession::kEndDone || ChooseSize())) Transfer();
}

CSendPlan CPhoneLink::PlanSend() const {
    CSendPlan plan;
    plan.bList = m_session.Env().state.IsUp(EMode::Thum);
    plan.nFiles = plan.bList ? static_cast<int>(m_arrSendFiles.size()) : 1;
    plan.sizePicture = m_env.images.DisplaySize();
    plan.sizeWanted = m_env.images.RuledSize();
    return plan;
}

// False if nothing is to be sent; the exchange is then over.
bool CPhoneLink::ChooseSize() {
    const CPhoneCalls& calls = m_session.Calls();
    const int nCode = calls.SendDummyPacket();
    CPhoneSizeDlg dialog(PhoneSizes());
    m_session.Env().modals.Run(dialog);
    if (!dialog.Chosen() || nCode == LINK_OK) calls.StopDummyPacket();
    if (dialog.Chosen() && m_env.host.ResizeForPhone(*dialog.Chosen())) return true;
    if (m_session.Restarts()) {
        m_session.Show(kTextRestart, kTitleSend);
        WaitForRestart();
    }
    calls.DisconnectToPhone();
    return false;
}

void CPhoneLink::Transfer() {
    if (m_session.Calls().CanTransfer())
        RunTransfer();
    else if (m_session.Restarts())
        m_session.Show(kTextRestart, kTitleSend);
    if (m_session.Restarts()) WaitForRestart();
    m_session.Calls().DisconnectToPhone();
}

void CPhoneLink::RunTransfer() {
    CSend send;
    if (m_session.Env().state.IsUp(EMode::Thum)) {
        send.arrFiles = m_arrSendFiles;
    } else {
        send.strName = m_session.Env().state.m_strFileName;
        if (!Prepare([&] { return MakeImage(send.image); })) {
            m_session.Show(kTextNoMemory, kTextProgram, EBoxIcon::Exclamation);
            return;
        }
    }
    CTransferDlg dialog(EDirection::Send, m_session,
                        [&](CTransferDlg& transfer) { return DoSendFiles(m_session, transfer, send); });
    m_session.Env().modals.Run(dialog);
}

// The picture in the editor as it is sent. False if memory is short.
bool CPhoneLink::MakeImage(CxImage& image) const {
    const CEditState& state = m_session.Env().state;
    const CSize size = m_env.images.RuledSize();
    const bool bFromWork =
        !m_env.images.IsPhoneSize() && (state.IsUp(EMode::Draw) || state.IsUp(EMode::Font));
    image = bFromWork ? m_env.images.m_imgWork : m_env.images.m_imgDisplay;
    return image.GetSize() == size || size.cx <= 0 || size.cy <= 0 || image.Resample(size.cx, size.cy);
}

// --- what is checked before ---

void CPhoneLink::CheckSendFiles() {
    CPicFileList& list = m_env.thum.List();
    const CEditState& state = m_session.Env().state;
    if (list.IsPressed()) m_bListPressed = true;
    m_bSendReady = state.m_bImageOpen && !state.IsUp(EMode::Thum);
    if (m_bSendReady) return;
    if (!list.IsPressed() || !m_bListPressed) {
        m_session.Show(kTextChooseFirst, kTitleNotice, EBoxIcon::Exclamation);
        if (!state.IsUp(EMode::Thum)) m_env.host.GoToThum();
        return;
    }
    CheckSelected();
    if (!m_bSendReady) return;
    BuildSendFileList();
    CheckSendSizes();
}

void CPhoneLink::Refuse(const std::string& strText) {
    m_session.Show(strText, kTitleNotice, EBoxIcon::Exclamation);
    m_env.thum.List().ForgetPress();
    m_bSendReady = false;
}

// Only JPEG files are sent from the list.
void CPhoneLink::CheckSelected() {
    CPicFileList& list = m_env.thum.List();
    // The temporary file of the send goes there; where it cannot, it has another place.
    static_cast<void>(m_session.Env().folders.SetCurrentFolder(list.Path()));
    for (const int nItem : list.Model().SelectedItems()) {
        const std::string& strName = list.Model().Text(nItem);
        const ImageType type = FindImageTypeOfName(strName);
        if (type == ImageType::kUnknown) return Refuse(kTextNoFolders);
        if (type != ImageType::kJpeg) return Refuse(Format(kTextNoSuchFormat, strName.c_str()));
        m_bSendReady = true;
    }
}

void CPhoneLink::BuildSendFileList() {
    CPicFileList& list = m_env.thum.List();
    m_arrSendFiles.clear();
    for (const int nItem : list.Model().SelectedItems())
        m_arrSendFiles.push_back({list.Model().Text(nItem), list.Path()});
}

// Every file is read, so that none is found broken when others are on the phone already.
void CPhoneLink::CheckSendSizes() {
    const CSize sizeLargest = LargestPhoneSize(PhoneSizes());
    for (const CSendFile& file : m_arrSendFiles) {
        const std::string strPath = PathOf(file, m_session.Env().folders.Separator());
        const CxImage image(strPath, FindImageTypeOfName(strPath));
        if (!image.IsValid()) {
            m_session.Show(kTextOpenFailed, kTitleOpenFailed, EBoxIcon::Stop);
            m_bSendReady = false;
            return;
        }
        m_env.images.SetDisplaySize(image.GetSize());
        if (!FitsPhone(image.GetSize(), PhoneSizes()))
            return Refuse(
                Format(kTextTooLargeForPhone, file.m_strName.c_str(), sizeLargest.cx, sizeLargest.cy));
    }
}
