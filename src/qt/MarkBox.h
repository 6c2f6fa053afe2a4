#pragma once

#include <QAbstractButton>

#include "qt/ControlWidget.h"

// The square of a check box, 11 pixels wide and high, for whoever has such boxes in its rows. The painter
// smoothes edges.
void PaintCheckBox(QPainter& painter, const QRectF& rc, bool bChecked, bool bEnabled);

// A radio button or a check box in the skin's manner: a small inset round or square with a warm mark, and the
// caption behind it if there is one.
class CMarkBox : public QAbstractButton, public CControlWidget {
  public:
    explicit CMarkBox(const CControlContext& context);

    QWidget& Widget() override { return *this; }
    void Mirror(EControlChange change) override;

  protected:
    void paintEvent(QPaintEvent* pEvent) override;

  private:
    void PaintRound(QPainter& painter, const QRectF& rc) const;
    void PaintSquare(QPainter& painter, const QRectF& rc) const;

    CControlContext m_context;
};
