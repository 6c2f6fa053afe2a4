#pragma once

#include <QPushButton>

#include "qt/ControlWidget.h"

// A push button with its caption.
class CPlainButton : public QPushButton, public CControlWidget {
  public:
    explicit CPlainButton(const CControlContext& context);

    QWidget& Widget() override { return *this; }
    void Mirror(EControlChange change) override;

  private:
    CControlContext m_context;
};
