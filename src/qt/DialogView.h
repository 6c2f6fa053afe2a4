#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <unordered_map>

#include "qt/ControlWidget.h"
#include "qt/InputFilter.h"
#include "qt/MouseEvents.h"
#include "window/Dialog.h"

// The window of any dialog. Its client area shows what the dialog has drawn of itself, with a widget for each
// control on top; every change of a control is mirrored, and what the user does is told to the dialog's
// handlers.
//
// The dialog paints itself behind the event in progress, never inside a paint event of Qt's; those only copy.
class CDialogView : public QWidget,
                    private CDialogHost,
                    private CControlObserver,
                    private CMouseRouter,
                    private CInputSink {
  public:
    // The dialog must outlive its view. Nothing of it is called yet but Attach. A parent makes a window above
    // its own, or a part of it for a dialog without frame of its own (Child).
    CDialogView(CDialog& dialog, CPictures& pictures, QWidget* pParent);
    ~CDialogView() override;

    // Called when the dialog has ended, inside the handler that ended it.
    void SetEndHandler(std::function<void()> fnEnded) { m_fnEnded = std::move(fnEnded); }
    // Puts the window at its place on the screen and gives it the first focus.
    void Prepare();

    CDialog& Dialog() { return m_dialog; }
    int Density() const { return m_nDensity; }
    // The widget of a control; null if it has none.
    QWidget* WidgetOf(int nId) const;

  protected:
    bool event(QEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;
    void closeEvent(QCloseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;

  private:
    void OnPaintWanted() override;
    void OnDrawn() override;
    void OnShowNow() override;
    void OnEnded() override;
    void OnControlChanged(const CControl& control, EControlChange change) override;
    void Route(const QMouseEvent& event) override;
    void OnHover(QPoint ptGlobal, bool bLeftDown) override;
    bool OnKey(const CKeyEvent& event) override;
    void OnFocusIn(QWidget& widget) override;

    void BuildControls();
    void ClearGround();
    void UpdateDensity();
    void MirrorFocus(const CControl& control);
    // The control whose widget is, or holds, the given one; null for the ground.
    const CControl* ControlOf(const QWidget* pWidget) const;
    const CControl* ControlAt(QPoint ptGlobal) const;

    CDialog& m_dialog;
    CPictures& m_pictures;
    int m_nDensity = 1;
    int m_nFocusShown = 0;
    std::function<void()> m_fnEnded;
    std::unordered_map<int, std::unique_ptr<CControlWidget>> m_mapWidgets;
    std::unordered_map<const QWidget*, int> m_mapIds;
    CInputFilter m_filter;
};
