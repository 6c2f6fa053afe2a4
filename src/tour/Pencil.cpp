#include "tour/Pencil.h"

#include <QMouseEvent>
#include <QTest>
#include <algorithm>

#include "qt/DialogView.h"
#include "resources/Ids.h"

namespace {

constexpr int kStep = 12;  // pixels that the mouse moves at a time

QPoint Corner(QSize sizeCanvas, QSize sizePage) {
    return {(sizeCanvas.width() - sizePage.width()) / 2, (sizeCanvas.height() - sizePage.height()) / 2};
}

}  // namespace

QWidget* CPencil::Canvas() const {
    return m_person.MainWindow()->WidgetOf(kCanvas);
}

QPoint CPencil::OnCanvas(QPoint pt) const {
    return pt + Corner(Canvas()->size(), m_sizePage);
}

void CPencil::Press(QPoint pt, Qt::MouseButton button) {
    m_buttons = button;
    QTest::mousePress(Canvas(), button, m_keys, OnCanvas(pt));
}

void CPencil::Move(QPoint pt) {
    if (m_keys == Qt::NoModifier) return QTest::mouseMove(Canvas(), OnCanvas(pt));
    const QPoint ptCanvas = OnCanvas(pt);
    QMouseEvent event(QEvent::MouseMove, ptCanvas, Canvas()->mapToGlobal(ptCanvas), Qt::NoButton, m_buttons,
                      m_keys);
    QCoreApplication::sendEvent(Canvas(), &event);
}

void CPencil::Release(QPoint pt, Qt::MouseButton button) {
    m_buttons = Qt::NoButton;
    QTest::mouseRelease(Canvas(), button, m_keys, OnCanvas(pt));
}

void CPencil::Stroke(std::initializer_list<QPoint> points, Qt::MouseButton button) {
    QPoint ptFrom = *points.begin();
    Move(ptFrom);
    Press(ptFrom, button);
    for (const QPoint ptTo : points) {
        const int nMoves = (ptTo - ptFrom).manhattanLength() / kStep + 1;
        for (int i = 1; i <= nMoves && ptTo != ptFrom; ++i) Move(ptFrom + (ptTo - ptFrom) * i / nMoves);
        ptFrom = ptTo;
    }
    Release(ptFrom, button);
}

void CPencil::DoubleClick(QPoint pt) {
    QTest::mouseDClick(Canvas(), Qt::LeftButton, Qt::NoModifier, OnCanvas(pt));
}

QColor CPencil::ColorAt(QPoint pt) const {
    const QImage image = m_person.LookAt(kCanvas);
    const qreal fRatio = image.devicePixelRatio();
    const QPoint ptSeen = pt + Corner(image.deviceIndependentSize().toSize(), m_sizePage);
    return image.pixelColor((QPointF(ptSeen) * fRatio).toPoint());
}
