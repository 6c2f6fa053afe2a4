#include "tour/Pencil.h"

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

QPoint CPencil::InWindow(QPoint pt) const {
    const QWidget* pCanvas = m_person.MainWindow()->WidgetOf(kCanvas);
    return pCanvas->mapTo(pCanvas->window(), pt + Corner(pCanvas->size(), m_sizePage));
}

void CPencil::Press(QPoint pt, Qt::MouseButton button) {
    QTest::mousePress(m_person.MainWindow()->windowHandle(), button, Qt::NoModifier, InWindow(pt));
}

void CPencil::Move(QPoint pt) {
    QTest::mouseMove(m_person.MainWindow()->windowHandle(), InWindow(pt));
}

void CPencil::Release(QPoint pt, Qt::MouseButton button) {
    QTest::mouseRelease(m_person.MainWindow()->windowHandle(), button, Qt::NoModifier, InWindow(pt));
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
    QTest::mouseDClick(m_person.MainWindow()->windowHandle(), Qt::LeftButton, Qt::NoModifier, InWindow(pt));
}

QColor CPencil::ColorAt(QPoint pt) const {
    const QImage image = m_person.LookAt(kCanvas);
    const qreal fRatio = image.devicePixelRatio();
    const QPoint ptSeen = pt + Corner(image.deviceIndependentSize().toSize(), m_sizePage);
    return image.pixelColor((QPointF(ptSeen) * fRatio).toPoint());
}
