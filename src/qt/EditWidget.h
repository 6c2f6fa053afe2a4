#pragma once

#include <QLineEdit>

#include "qt/ControlWidget.h"

// One line to type in, dark on light in a thin inset.
class CEditWidget : public QLineEdit, public CControlWidget {
  public:
    explicit CEditWidget(const CControlContext& context);

    QWidget& Widget() override { return *this; }
    void Mirror(EControlChange change) override;

  private:
    CControlContext m_context;
};
