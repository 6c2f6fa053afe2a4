#pragma once

#include <QAbstractButton>

#include "qt/ControlWidget.h"

// A picture that can be clicked; the control's caption is the picture's name. Takes no focus.
class CBitmapLabel : public QAbstractButton, public CControlWidget {
  public:
    explicit CBitmapLabel(const CControlContext& context);

    QWidget& Widget() override { return *this; }
    void SetDensity(int nDensity) override;

  protected:
    void paintEvent(QPaintEvent* pEvent) override;

  private:
    CControlContext m_context;
};
