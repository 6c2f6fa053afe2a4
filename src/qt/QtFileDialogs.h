#pragma once

#include "window/FileDialogs.h"

class CPictures;
class CQtTimers;

class CQtFileDialogs : public CFileDialogs {
  public:
    CQtFileDialogs(CPictures& pictures, CQtTimers& timers) : m_pictures(pictures), m_timers(timers) {}

    std::optional<CFileChoice> RunOpen(const CFileDialogRequest& request, CFileDialogPanel* pPanel) override;
    std::optional<CFileChoice> RunSave(const CFileDialogRequest& request) override;

  private:
    CPictures& m_pictures;
    CQtTimers& m_timers;
};
