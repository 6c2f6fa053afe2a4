#pragma once

#include <QPaintEvent>
#include <QWidget>

// What a widget was asked to paint.
class CPaintWatch : public QObject {
  public:
    explicit CPaintWatch(QWidget& widget) { widget.installEventFilter(this); }
    QRegion m_region;

  protected:
    bool eventFilter(QObject*, QEvent* pEvent) override {
        if (pEvent->type() == QEvent::Paint) m_region += static_cast<QPaintEvent*>(pEvent)->region();
        return false;
    }
};
