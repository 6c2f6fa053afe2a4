#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>

#include "window/Events.h"

class QKeyEvent;
class QMouseEvent;

// What a dialog's window learns before the widgets in it do.
class CInputSink {
  public:
    virtual ~CInputSink() = default;
    // The mouse has moved over the window or anything in it, also over what is disabled.
    virtual void OnHover(QPoint ptGlobal, bool bLeftDown) = 0;
    // True keeps the key from the widgets.
    virtual bool OnKey(const CKeyEvent& event) = 0;
    virtual void OnFocusIn(QWidget& widget) = 0;
};

// Watches all events of the program for those that belong to one window, or to one part of a window.
class CInputFilter : public QObject {
  public:
    // root: the window or the part of one; both must outlive the filter.
    CInputFilter(QWidget& root, CInputSink& sink);
    ~CInputFilter() override;

  protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

  private:
    bool IsMine(const QWidget& widget) const;
    void OnMouseMove(const QWidget& widget, const QMouseEvent& event);
    bool OnKeyPress(QWidget& widget, const QKeyEvent& event);

    QWidget& m_root;
    CInputSink& m_sink;
    // The key event seen last and where: one that nobody wants climbs from widget to parent and is the same
    // key still.
    const QEvent* m_pKeyEvent = nullptr;
    QPointer<QWidget> m_pKeyWidget;
    unsigned long long m_nMoveTime = 0;
    QPoint m_ptMove;
};
