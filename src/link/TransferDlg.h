#pragma once

#include <functional>
#include <string>

#include "link/PhoneSession.h"
#include "link/RunningPicture.h"
#include "window/Dialog.h"

// The window while files move: a running picture, a strip, and a line that counts. The work is one long step
// that begins a moment behind the picture's first step. There is no way out of it for the user: neither the
// close box nor Esc does anything.
class CTransferDlg : public CDialog, public CRunningPicture {
  public:
    // Moves the files. The code with which the dialog ends.
    using CWork = std::function<int(CTransferDlg& dialog)>;

    // The session outlives the dialog.
    CTransferDlg(EDirection direction, CPhoneSession& session, CWork work);
    ~CTransferDlg() override;

    // --- for the work ---
    // "File n of so many", from 1; on the screen when it returns.
    void TellProgress(int nFile, int nFiles);
    // All files have moved: the strip says so.
    void ShowDone();
    void StopPicture() override;

    void OnInitDialog() override;
    bool OnKey(const CKeyEvent& /*event*/) override { return true; }
    void OnClose() override {}
    void OnTimer(int nTimer) override;

  protected:
    void OnPaint(CClientArea& client) override;

  private:
    struct CLook;
    const CLook& Look() const;
    void DrawStep();
    void RunPicture();

    EDirection m_direction;
    CPhoneSession& m_session;
    CWork m_work;
    CPictureStep m_step;
    int m_nFrame = 0;
};
