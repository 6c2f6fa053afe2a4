#pragma once

#include <QSlider>

#include "qt/ControlWidget.h"

// A slider whose lower bound is at the top or at the left. It stands upright where its place is higher than
// wide.
class CSliderWidget : public QSlider, public CControlWidget {
  public:
    explicit CSliderWidget(const CControlContext& context);

    QWidget& Widget() override { return *this; }
    void Mirror(EControlChange change) override;

  private:
    CControlContext m_context;
};
