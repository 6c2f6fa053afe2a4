#include "app/MainApp.h"

#include "app/MainDlg.h"
#include "app/SplashDlg.h"

void CMainApp::InitInstance() {
    {
        CSplashDlg splash(m_platform.timers);
        m_platform.modals.Run(splash);
    }
    CMainDlg dialog(m_platform);
    m_platform.modals.Run(dialog);
}
