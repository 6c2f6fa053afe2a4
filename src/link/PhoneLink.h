#pragma once

#include <optional>
#include <string>
#include <vector>

#include "browse/ThumPanel.h"
#include "editor/WorkingImages.h"
#include "link/LinkDlg.h"
#include "link/LinkSteps.h"
#include "link/PhoneSession.h"
#include "link/SendFiles.h"
#include "link/TakeFiles.h"

// What the phone's commands ask of the window that they are given in.
class CPhoneHost {
  public:
    virtual ~CPhoneHost() = default;
    // A floating selection is merged and what DRAW has on the canvas becomes the working image. False behind
    // a message that there is no memory.
    [[nodiscard]] virtual bool SettlePicture() = 0;
    // The picture gets the size for the phone, as one step. False behind a message that there is no memory.
    [[nodiscard]] virtual bool ResizeForPhone(CSize size) = 0;
    virtual void GoToThum() = 0;
    virtual void FocusEffectList() = 0;
};

// The phone: connecting, sending and taking. Every exchange opens the line, works in modal dialogs, and
// closes the line again.
class CPhoneLink {
  public:
    // All of these outlive the link.
    struct CEnvironment {
        CPhoneSession::CEnvironment session;
        CWorkingImages& images;
        CThumPanel& thum;
        CPhoneHost& host;
    };
    explicit CPhoneLink(const CEnvironment& env) : m_env(env), m_session(env.session) {}

    const CPhoneState& State() const { return m_session.State(); }
    bool IsConnected() const { return State().m_bConnected; }
    // The sizes that the phone can show; none until a phone has been connected.
    const std::vector<CSize>& PhoneSizes() const { return State().m_arrPhoneSizes; }
    // The mode has changed: a press in the list, and a send that waits for one, count no more.
    void ForgetSend();

    void OnConnect();
    void OnTake();
    void OnSend();

  private:
    int RunLink(ELinkTask task, CLinkDlg::CWork work = {});
    void WaitForRestart() { RunLink(ELinkTask::WaitForRestart); }

    // Behind an exchange: a phone that restarts is waited for.
    void CloseLine();

    // Taking. Each is true if the whole take begins anew, since the card has changed; the line is up then.
    bool Take(bool bLineUp);
    bool TakeList(bool bLineUp);
    bool TakePicked(const std::vector<int>& arrPicked);
    void LeaveTake();
    void FollowTake();

    // Sending
    void SendChecked();
    CSendPlan PlanSend() const;
    void CheckSendFiles();
    void CheckSelected();
    void BuildSendFileList();
    void CheckSendSizes();
    void Refuse(const std::string& strText);
    bool ChooseSize();
    void Transfer();
    void RunTransfer();
    bool MakeImage(CxImage& image) const;
    void EndSend();

    CEnvironment m_env;
    CPhoneSession m_session;
    std::vector<CSendFile> m_arrSendFiles;
    bool m_bSendReady = false;    // the checks have been passed
    bool m_bListPressed = false;  // there has been a press in the list since the last send
};
