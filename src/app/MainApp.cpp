#include "app/MainApp.h"

#include "app/MainDlg.h"
#include "app/SplashDlg.h"
#include "window/Folders.h"

std::string CMainApp::PathOfValue(const std::string& strValue) {
    if (strValue.empty() || strValue.front() != '"') return strValue;
    return strValue.size() < 2 ? std::string{} : strValue.substr(1, strValue.size() - 2);
}

void CMainApp::InitInstance() {
    {
        CSplashDlg splash(m_platform.timers);
        m_platform.modals.Run(splash);
    }
    m_strInstallPath = PathOfValue(m_platform.folders.InstallValue());
    CMainDlg dialog(m_platform);
    m_platform.modals.Run(dialog);
}
