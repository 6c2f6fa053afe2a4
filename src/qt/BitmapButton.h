#pragma once

#include <QAbstractButton>

#include "qt/ControlWidget.h"

// A push button made of pictures: the caption in upper case with U for the normal state, D pressed, F with
// the focus, X disabled. A state without a picture shows the normal one.
class CBitmapButton : public QAbstractButton, public CControlWidget {
  public:
    explicit CBitmapButton(const CControlContext& context);

    QWidget& Widget() override { return *this; }
    void Mirror(EControlChange change) override;
    void SetDensity(int nDensity) override;

  protected:
    void paintEvent(QPaintEvent* pEvent) override;

  private:
    char State() const;

    CControlContext m_context;
    std::string m_strRoot;
};
