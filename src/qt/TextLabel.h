#pragma once

#include <QWidget>

#include "qt/ControlWidget.h"

// One line of text. What is too long ends in dots; nothing is wrapped. Presses of the mouse go through it.
class CTextLabel : public QWidget, public CControlWidget {
  public:
    explicit CTextLabel(const CControlContext& context);

    QWidget& Widget() override { return *this; }
    void Mirror(EControlChange change) override;

  protected:
    void paintEvent(QPaintEvent* pEvent) override;

  private:
    const CControl& m_control;
    QColor m_colorText;
    QColor m_colorGround;  // not valid: none
};
