#pragma once

#include <QPaintEvent>
#include <QWidget>

// What a widget was asked to paint.
class CPaintWatch : public QObject {
  public:
    explicit CPaintWatch(QWidget& widget) { widget.installEventFilter(this); }
    QRegion m_region;
    int m_nPaints = 0;

  protected:
    bool eventFilter(QObject*, QEvent* pEvent) override {
        if (pEvent->type() != QEvent::Paint) return false;
        m_region += static_cast<QPaintEvent*>(pEvent)->region();
        ++m_nPaints;
        return false;
    }
};
