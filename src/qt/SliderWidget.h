#pragma once

#include <QAbstractSlider>
#include <QBasicTimer>

#include "controls/SkinSlider.h"
#include "qt/ControlWidget.h"

// The window of a slider that paints itself. What the toolkit knows of range and value is kept for those who
// read the screen aloud; everything else is the skin slider's.
class CSliderWidget : public QAbstractSlider, public CControlWidget {
  public:
    explicit CSliderWidget(const CControlContext& context);

    QWidget& Widget() override { return *this; }
    void Mirror(EControlChange change) override;
    void SetDensity(int nDensity) override;

  protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void wheelEvent(QWheelEvent* pEvent) override;
    void timerEvent(QTimerEvent* pEvent) override;
    void sliderChange(SliderChange change) override;

  private:
    void HandleMouse(const QMouseEvent& event);
    // Tells the dialog if the hand has moved the slider.
    void Tell(bool bMoved);
    void Present();

    CControlContext m_context;
    CSkinSlider m_slider;
    QBasicTimer m_timerPage;
    int m_nWheel = 0;  // turned by less than a notch so far
};
