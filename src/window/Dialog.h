#pragma once

#include "window/ClientArea.h"
#include "window/ControlSet.h"
#include "window/Events.h"
#include "window/PanelHost.h"
#include "window/Template.h"
#include "window/Timers.h"

class CCheckTableModel;
class CIconListModel;
class CScrollView;
class CTreeModel;

// The window that shows a dialog. It learns here that something waits to be painted or copied to the screen,
// and does so when the handler in progress has ended.
class CDialogHost {
  public:
    virtual ~CDialogHost() = default;
    // The dialog wants its Paint called before the next event.
    virtual void OnPaintWanted() = 0;
    // Pixels of the client area have changed; Client().TakeDamage() tells which.
    virtual void OnDrawn() = 0;
    // All that has been drawn and told to controls is to be on the screen when this returns, in the middle of
    // a handler.
    virtual void OnShowNow() = 0;
    // EndDialog has been called.
    virtual void OnEnded() = 0;
};

// A window with controls: the state that the user sees, and the handlers of what the user does. Runs with no
// window system; a host shows it. All handlers run on the one thread, each to its end.
class CDialog : public CTimerTarget, public CPanelHost {
  public:
    explicit CDialog(const CDialogTemplate& dialogTemplate);
    ~CDialog() override = default;
    CDialog(const CDialog&) = delete;
    CDialog& operator=(const CDialog&) = delete;

    const CDialogTemplate& Template() const { return m_template; }
    CControlSet& Controls() { return m_controls; }
    const CControlSet& Controls() const { return m_controls; }
    CClientArea& Client() override { return m_client; }

    // --- called by the host ---

    // Once, before the dialog is seen.
    virtual void OnInitDialog() {}
    // Once, when the window goes.
    virtual void OnDestroy() {}
    // A click of a button, or the choice of a menu item. The host has already toggled a check box and moved
    // the mark of a group of radio buttons where the control is of that kind.
    virtual void OnCommand(int /*nId*/) {}
    virtual void OnNotify(int /*nId*/, ENotice /*notice*/) {}
    // A mouse event beside all controls.
    virtual void OnMouse(const CMouseEvent& /*event*/) {}
    // The mouse has moved over a control, or beside all of them (0). bLeftDown: the left button is held.
    virtual void OnHover(int /*nIdControl*/, bool /*bLeftDown*/) {}
    // A key before any control sees it; true swallows it.
    virtual bool OnKey(const CKeyEvent& /*event*/) { return false; }
    // The close box or the system menu.
    virtual void OnClose() { EndDialog(kDialogCancel); }
    void OnTimer(int /*nTimer*/) override {}
    // What a control of kind Tree, of kind IconList or of kind CheckTable, shows; null if the dialog has
    // nothing for it.
    virtual CTreeModel* TreeOf(int /*nId*/) { return nullptr; }
    virtual CIconListModel* IconsOf(int /*nId*/) { return nullptr; }
    virtual CCheckTableModel* TableOf(int /*nId*/) { return nullptr; }
    // The view that stands in a control of kind View; null if the dialog has none there.
    virtual CScrollView* ViewOf(int /*nId*/) { return nullptr; }

    // Draws the whole client area if that is wanted.
    void Paint();
    bool WantsPaint() const { return m_bWantsPaint; }
    bool HasEnded() const { return m_bEnded; }
    int EndCode() const { return m_nEndCode; }
    // Null to detach.
    void Attach(CDialogHost* pHost) { m_pHost = pHost; }

    // --- called by the logic ---

    static constexpr int kDialogOk = ::kDialogOk;
    static constexpr int kDialogCancel = ::kDialogCancel;

    void Invalidate() override;
    void EndDialog(int nCode);
    void Present() override;
    // Brings everything to the screen without waiting for the handler's end; no event is handled meanwhile.
    void ShowNow();

  protected:
    virtual void OnPaint(CClientArea& /*client*/) {}

  private:
    const CDialogTemplate& m_template;
    CControlSet m_controls;
    CClientArea m_client;
    CDialogHost* m_pHost = nullptr;
    bool m_bWantsPaint = true;
    bool m_bEnded = false;
    int m_nEndCode = 0;
};

// Part of a file dialog: stands beside the list of files and follows the selection in it.
class CFileDialogPanel : public CDialog {
  public:
    using CDialog::CDialog;
    // The user has moved to another file; the path is whole.
    virtual void OnFileNameChange(const std::string& strPath) = 0;
};

// Runs a dialog as modal: shows it, waits for its end, gives its end code.
class CModalDialogs {
  public:
    virtual ~CModalDialogs() = default;
    virtual int Run(CDialog& dialog) = 0;
};
