#pragma once

#include <functional>
#include <optional>

#include "link/PhoneSession.h"
#include "link/RunningPicture.h"
#include "window/Dialog.h"

// What the small window with the running picture does.
enum class ELinkTask { Connect, PrepareTake, PrepareSend, WaitForRestart };

// The window with the running picture. It carries all blocking work of connecting and of preparing a take or
// a send, which comes a moment behind the picture's first step so that it can be seen; and it waits for a
// phone that restarts. It has no button: the close box does nothing, and Esc ends only the wait.
class CLinkDlg : public CDialog, private CRunningPicture {
  public:
    // Does the work of a task. The code with which the dialog ends, or nothing where the picture runs on to
    // its end.
    using CWork = std::function<std::optional<int>(CRunningPicture& picture)>;

    // The session outlives the dialog. WaitForRestart needs no work.
    CLinkDlg(ELinkTask task, CPhoneSession& session, CWork work = {});
    ~CLinkDlg() override;

    void OnInitDialog() override;
    bool OnKey(const CKeyEvent& event) override;
    void OnClose() override {}
    void OnTimer(int nTimer) override;

  protected:
    void OnPaint(CClientArea& client) override;

  private:
    void StopPicture() override;
    void SetTimer(int nTimer, int nMilliseconds);
    void KillTimer(int nTimer);
    void DrawStep(int nFrame, int nStrip);
    void RunPicture();
    void RunWork();
    void PollRestart();
    void EndRestart();

    ELinkTask m_nLinkTask;
    CPhoneSession& m_session;
    CWork m_work;
    CPictureStep m_step;
    std::optional<CWaitScope> m_wait;
    int m_nFrame = 0;
    // The picture's last step when a phone has been recognised.
    int m_nFrameEnd = 999'999;
    // The wait for a restart: the phone has fallen silent, and how many polls found it there and silent.
    bool m_bGone = false;
    int m_nWaitUp = 0;
    int m_nWaitDown = 0;
};
