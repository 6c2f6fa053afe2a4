#include "qt/SliderWidget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QTimerEvent>

#include "qt/KeyCodes.h"
#include "qt/MouseEvents.h"
#include "qt/Pictures.h"
#include "qt/QtGeometry.h"
#include "window/Dialog.h"

namespace {

// A press on the channel pages once, and after a pause again and again.
constexpr int kFirstPageMilliseconds = 400;
constexpr int kNextPageMilliseconds = 80;
constexpr int kWheelNotch = 120;  // what a wheel reports for one click

}  // namespace

CSliderWidget::CSliderWidget(const CControlContext& context)
    : QAbstractSlider(context.pParent),
      m_context(context),
      m_slider(context.dialog.Controls(), context.control.nId) {
    const bool bUpright = context.control.rcPlace.Height() > context.control.rcPlace.Width();
    setOrientation(bUpright ? Qt::Vertical : Qt::Horizontal);
    setFocusPolicy(Qt::WheelFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    SetDensity(context.nDensity);
    Mirror(EControlChange::Range);
    // Somebody else than the hand has moved it: a screen reader's command.
    connect(this, &QAbstractSlider::valueChanged, this, [this](int nPos) {
        m_context.dialog.Controls().SetPosition(m_context.control.nId, nPos);
        Tell(true);
    });
}

void CSliderWidget::SetDensity(int nDensity) {
    m_slider.SetUp(&m_context.pictures.Bitmaps(), nDensity);
    m_slider.Paint();
    Present();
}

void CSliderWidget::Mirror(EControlChange change) {
    if (change != EControlChange::Range && change != EControlChange::Position) return;
    // What the logic sets is no move of the user's.
    const QSignalBlocker blocker(this);
    setRange(m_context.control.nMin, m_context.control.nMax);
    setPageStep(m_slider.PageStep());
    setValue(m_context.control.nPos);
    m_slider.PaintMove();
    Present();
}

// The base would repaint all of it.
void CSliderWidget::sliderChange(SliderChange /*change*/) {}

void CSliderWidget::Present() {
    const CRect rcDamage = m_slider.Client().TakeDamage();
    if (!rcDamage.IsEmpty()) update(ToQt(rcDamage));
}

void CSliderWidget::Tell(bool bMoved) {
    if (bMoved) m_context.dialog.OnNotify(m_context.control.nId, ENotice::Scrolled);
}

void CSliderWidget::paintEvent(QPaintEvent* pEvent) {
    const int nDensity = m_slider.Client().Density();
    const QRect rc = pEvent->rect();
    QPainter painter(this);
    painter.drawImage(rc, ViewPixels(m_slider.Client().Surface().Pixels(), nDensity),
                      QRect(rc.topLeft() * nDensity, rc.size() * nDensity));
}

void CSliderWidget::HandleMouse(const QMouseEvent& event) {
    const bool bMoved = m_slider.OnMouse(MakeMouseEvent(event, event.position().toPoint()));
    if (!m_slider.IsPaging())
        m_timerPage.stop();
    else if (!m_timerPage.isActive())
        m_timerPage.start(kFirstPageMilliseconds, this);
    Tell(bMoved);
}

void CSliderWidget::mousePressEvent(QMouseEvent* pEvent) {
    HandleMouse(*pEvent);
}
void CSliderWidget::mouseMoveEvent(QMouseEvent* pEvent) {
    HandleMouse(*pEvent);
}
void CSliderWidget::mouseReleaseEvent(QMouseEvent* pEvent) {
    HandleMouse(*pEvent);
}
void CSliderWidget::mouseDoubleClickEvent(QMouseEvent* pEvent) {
    HandleMouse(*pEvent);
}

void CSliderWidget::timerEvent(QTimerEvent* pEvent) {
    if (pEvent->timerId() != m_timerPage.timerId()) return QAbstractSlider::timerEvent(pEvent);
    m_timerPage.start(kNextPageMilliseconds, this);
    Tell(m_slider.OnHeld());
}

void CSliderWidget::keyPressEvent(QKeyEvent* pEvent) {
    const bool bPlain = (pEvent->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (bPlain && m_slider.OnKey(KeyCodeOf(pEvent->key()))) return Tell(true);
    pEvent->ignore();
}

void CSliderWidget::wheelEvent(QWheelEvent* pEvent) {
    m_nWheel += pEvent->angleDelta().y();
    const int nNotches = m_nWheel / kWheelNotch;
    m_nWheel -= nNotches * kWheelNotch;
    if (nNotches != 0) Tell(m_slider.OnWheel(nNotches));
    pEvent->accept();
}
