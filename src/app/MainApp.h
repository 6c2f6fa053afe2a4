#pragma once

#include <string>

#include "window/Platform.h"

// The life of the process: the start-up picture, the install folder, the main window, the end.
class CMainApp {
  public:
    // What the platform gives outlives the application.
    explicit CMainApp(const CPlatform& platform) : m_platform(platform) {}

    // Returns when the main window has been closed.
    void InitInstance();

    // Where the phone's data files lie; empty if it could not be found.
    const std::string& InstallPath() const { return m_strInstallPath; }

    // The folder in a stored value: a value that begins with a double quote loses its first and its last
    // character.
    static std::string PathOfValue(const std::string& strValue);

  private:
    CPlatform m_platform;
    std::string m_strInstallPath;
};
