#pragma once

#include <QWidget>

#include "qt/ControlWidget.h"

// A slim bar that fills from the left.
class CProgressWidget : public QWidget, public CControlWidget {
  public:
    explicit CProgressWidget(const CControlContext& context);

    QWidget& Widget() override { return *this; }
    void Mirror(EControlChange change) override;

  protected:
    void paintEvent(QPaintEvent* pEvent) override;

  private:
    const CControl& m_control;
};
