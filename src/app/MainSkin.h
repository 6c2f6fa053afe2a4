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
    // The preview of an effect, if one is up, over the background.
    virtual void PaintEffectPreview(CClientArea& client) = 0;
    // The left button is down in the file list.
    virtual bool IsListPressed() const = 0;
    // The paint panel's option glyphs and colour wells, over the panel's picture.
    virtual void PaintToolPanel(CClientArea& client) = 0;
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

    // The whole client area.
    void Paint(CClientArea& client) const;
    // The preview box of EFFECT alone.
    void PaintPreviewBox(CClientArea& client, const CRect& rcBox) const;
    // Fills the colour swatch of FONT.
    void ShowTextColor(CClientArea& client) const;

    // The mouse has moved over a control (0: over none): wipes the hint that is up and brings up the
    // control's own.
    void OnHover(CClientArea& client, int nControl, bool bLeftDown);
    // Timer 0 or 1: the hint of the top bar or of the tabs has stood long enough.
    void OnTimer(CClientArea& client, int nTimer);

    int HintControl() const { return m_nHintCtrl; }

  private:
    void WipeTabHint(CClientArea& client) const;
    void EndHint(CClientArea& client);

    const CEditState& m_state;
    CControlSet& m_controls;
    CTimers& m_timers;
    CTimerTarget& m_target;
    CSkinHost& m_host;
    // 0: the hint of the top bar is to be wiped, 1: that of the tabs, 2: none.
    int m_nHintState = 2;
    int m_nHintCtrl = 0;  // whose hint is up, 0 for none
};
