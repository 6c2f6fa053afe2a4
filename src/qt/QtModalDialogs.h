#pragma once

#include "window/Dialog.h"

class CPictures;
class CQtTimers;

// Shows a dialog in a window of its own above the one that is up. The timers of a dialog and of its views end
// with it.
class CQtModalDialogs : public CModalDialogs {
  public:
    CQtModalDialogs(CPictures& pictures, CQtTimers& timers) : m_pictures(pictures), m_timers(timers) {}

    // kDialogCancel if the whole program is told to quit meanwhile.
    int Run(CDialog& dialog) override;

  private:
    CPictures& m_pictures;
    CQtTimers& m_timers;
};

// Tells a dialog that its window goes, and ends its timers.
void CloseDialog(CDialog& dialog, CQtTimers& timers);
