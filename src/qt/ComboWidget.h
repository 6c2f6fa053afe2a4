#pragma once

#include <QComboBox>

#include "qt/ControlWidget.h"

// A drop-down list of texts, dark on light as the lines to type in.
class CComboWidget : public QComboBox, public CControlWidget {
  public:
    explicit CComboWidget(const CControlContext& context);

    QWidget& Widget() override { return *this; }
    void Mirror(EControlChange change) override;

  protected:
    void paintEvent(QPaintEvent* pEvent) override;

  private:
    CControlContext m_context;
};
