#include "qt/ScrollViewWidget.h"

#include <QPaintEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <algorithm>

#include "qt/Pictures.h"
#include "qt/QtGeometry.h"
#include "qt/SkinColors.h"

namespace {

constexpr int kWheelNotch = 120;  // what a wheel reports for one click
constexpr int kWheelNotchPixels = 48;
constexpr QColor kCorner(95, 107, 112);  // between two scroll bars

}  // namespace

CScrollViewWidget::CScrollViewWidget(CScrollView& view, CMouseRouter& router, QWidget* pParent)
    : QWidget(pParent),
      m_view(view),
      m_router(router),
      m_barHorizontal(Qt::Horizontal, this),
      m_barVertical(Qt::Vertical, this) {
    setMouseTracking(true);
    // In DRAW the focus marks the current tool's button; the hand on the picture leaves it there.
    setFocusPolicy(Qt::NoFocus);
    setStyleSheet(kScrollBarStyle);
    for (QScrollBar* pBar : {&m_barHorizontal, &m_barVertical}) {
        pBar->setAttribute(Qt::WA_NoMousePropagation);
        pBar->setCursor(Qt::ArrowCursor);
        connect(pBar, &QScrollBar::valueChanged, this, [this] {
            m_view.ScrollTo({m_barHorizontal.value(), m_barVertical.value()});
        });
    }
    OnScrollChanged();
    m_view.Attach(this);
}

CScrollViewWidget::~CScrollViewWidget() {
    m_view.Attach(nullptr);
}

QRect CScrollViewWidget::ClientArea() const {
    return {QPoint(0, 0), ToQt(m_view.ClientSize())};
}

void CScrollViewWidget::OnPaintWanted() {
    QMetaObject::invokeMethod(
        this,
        [this] {
            // A hidden view is not painted: it asks again when it is shown.
            if (isVisible()) m_view.Paint();
        },
        Qt::QueuedConnection);
}

void CScrollViewWidget::OnDrawn() {
    update(ToQt(m_view.TakeDamage()));
}

void CScrollViewWidget::SetUpBar(QScrollBar& bar, bool bShown, int nLimit, int nPage, int nPos) {
    const QSignalBlocker blocker(bar);
    bar.setRange(0, nLimit);
    bar.setPageStep(nPage);
    bar.setSingleStep(std::max(1, nPage / 10));
    bar.setValue(nPos);
    bar.setVisible(bShown);
}

void CScrollViewWidget::OnCursorChanged() {
    constexpr Qt::CursorShape kShapes[] = {Qt::ArrowCursor, Qt::SizeAllCursor, Qt::PointingHandCursor};
    setCursor(kShapes[static_cast<std::size_t>(m_view.Cursor())]);
}

void CScrollViewWidget::OnScrollChanged() {
    const CSize sizeClient = m_view.ClientSize();
    const CSize sizeOuter = m_view.OuterSize();
    const CPoint ptLimit = m_view.ScrollLimit();
    const CPoint ptScroll = m_view.ScrollPosition();
    m_barHorizontal.setGeometry(0, sizeClient.cy, sizeClient.cx, sizeOuter.cy - sizeClient.cy);
    m_barVertical.setGeometry(sizeClient.cx, 0, sizeOuter.cx - sizeClient.cx, sizeClient.cy);
    SetUpBar(m_barHorizontal, m_view.HasHorizontalBar(), ptLimit.x, sizeClient.cx, ptScroll.x);
    SetUpBar(m_barVertical, m_view.HasVerticalBar(), ptLimit.y, sizeClient.cy, ptScroll.y);
    update();
}

void CScrollViewWidget::paintEvent(QPaintEvent* pEvent) {
    QPainter painter(this);
    const QRect rcClient = ClientArea();
    if (pEvent->rect().right() >= rcClient.width() || pEvent->rect().bottom() >= rcClient.height())
        painter.fillRect(rect(), kCorner);
    const CPixels& pixels = m_view.Surface().Pixels();
    const QRect rc =
        pEvent->rect().intersected(rcClient).intersected({0, 0, pixels.Width(), pixels.Height()});
    if (!rc.isEmpty()) painter.drawImage(rc, ViewPixels(pixels), rc);
}

void CScrollViewWidget::showEvent(QShowEvent* pEvent) {
    QWidget::showEvent(pEvent);
    if (m_view.WantsPaint()) OnPaintWanted();
}

void CScrollViewWidget::HandleMouse(const QMouseEvent& event) {
    const QPoint pt = mapFromGlobal(event.globalPosition().toPoint());
    // A release that belongs to a press elsewhere may come over a scroll bar.
    if (ClientArea().contains(pt)) m_view.OnMouse(MakeMouseEvent(event, pt));
}

void CScrollViewWidget::mousePressEvent(QMouseEvent* pEvent) {
    m_router.Route(*pEvent);
}
void CScrollViewWidget::mouseReleaseEvent(QMouseEvent* pEvent) {
    m_router.Route(*pEvent);
}
void CScrollViewWidget::mouseDoubleClickEvent(QMouseEvent* pEvent) {
    m_router.Route(*pEvent);
}
void CScrollViewWidget::mouseMoveEvent(QMouseEvent* pEvent) {
    m_router.Route(*pEvent);
}

void CScrollViewWidget::wheelEvent(QWheelEvent* pEvent) {
    QPoint ptDelta = pEvent->angleDelta();
    if (pEvent->modifiers().testFlag(Qt::ShiftModifier)) ptDelta = ptDelta.transposed();
    const CPoint ptScroll = m_view.ScrollPosition();
    m_view.ScrollTo({ptScroll.x - ptDelta.x() * kWheelNotchPixels / kWheelNotch,
                     ptScroll.y - ptDelta.y() * kWheelNotchPixels / kWheelNotch});
}
