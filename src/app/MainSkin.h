#pragma once

#include "editor/EditState.h"
#include "image/Color.h"
#include "window/ClientArea.h"
#include "window/ControlSet.h"
#include "window/Timers.h"

// What the skin asks of the window that it belongs to.
class CSkinHost {
  public:
    virtual ~CSkinHost() = default;
    virtual CColor TextColor() const = 0;
    // The left button is down in the file list.
    virtual bool IsListPressed() const = 0;
};

// The looks of the main window beside its controls: background, tab row, panels, and the hint balloons.
// Positions and order of painting are those that the pictures were made for.
class CMainSkin {
  public:
    static constexpr int kHintMilliseconds = 1000;

    // All of these outlive the skin. The target gets the ticks of the two hint timers and hands them to
    // OnTimer.
    CMainSkin(const CEditState& state, CControlSet& controls, CTimers& timers, CTimerTarget& target,
              CSkinHost& host)
        : m_state(state), m_controls(controls), m_timers(timers), m_target(target), m_host(host) {}

    // The whole client area, but for what the rooms draw on their own panels.
    void Paint(CClientArea& client) const;
    // Fills the colour swatch of FONT.
    void ShowTextColor(CClientArea& client) const;

    // The mouse has moved over a control (0: over none): wipes the hint that is up and brings up the
    // control's own.
    void OnHover(CClientArea& client, int nControl, bool bLeftDown);
    // The window's timers: the hint of the top bar, or that of the tabs, has stood long enough.
    static constexpr int kTimerTopHint = 0;
    static constexpr int kTimerTabHint = 1;
    void OnTimer(CClientArea& client, int nTimer);

  private:
    void WipeTabHint(CClientArea& client) const;

    const CEditState& m_state;
    CControlSet& m_controls;
    CTimers& m_timers;
    CTimerTarget& m_target;
    CSkinHost& m_host;
};
