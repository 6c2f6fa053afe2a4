#pragma once

#include <QScrollBar>

#include "qt/ControlWidget.h"
#include "qt/MouseEvents.h"
#include "window/ScrollView.h"

// Shows a scrolling view: its surface, and the scroll bars when it has them.
class CScrollViewWidget : public QWidget, public CControlWidget, private CViewHost {
  public:
    // The view must outlive the widget. Mouse events go to the router, which may hand them back to
    // HandleMouse.
    CScrollViewWidget(CScrollView& view, CMouseRouter& router, QWidget* pParent);
    ~CScrollViewWidget() override;

    QWidget& Widget() override { return *this; }
    // What is drawn on: all but the scroll bars.
    QRect ClientArea() const;
    void HandleMouse(const QMouseEvent& event);

  protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void wheelEvent(QWheelEvent* pEvent) override;

  private:
    void OnPaintWanted() override;
    void OnDrawn() override;
    void OnScrollChanged() override;
    void OnCursorChanged() override;
    void SetUpBar(QScrollBar& bar, bool bShown, int nLimit, int nPage, int nPos);

    CScrollView& m_view;
    CMouseRouter& m_router;
    QScrollBar m_barHorizontal;
    QScrollBar m_barVertical;
};
