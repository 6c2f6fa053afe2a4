#pragma once

#include "window/Platform.h"

// The life of the process: the start-up picture, the main window, the end.
class CMainApp {
  public:
    // What the platform gives outlives the application.
    explicit CMainApp(const CPlatform& platform) : m_platform(platform) {}

    // Returns when the main window has been closed.
    void InitInstance();

  private:
    CPlatform m_platform;
};
