#pragma once

#include "window/Dialog.h"

// The start-up picture, which stands for a little over three seconds.
class CSplashDlg : public CDialog {
  public:
    explicit CSplashDlg(CTimers& timers);
    void OnInitDialog() override;
    void OnTimer(int nTimer) override;

  private:
    CTimers& m_timers;
};
