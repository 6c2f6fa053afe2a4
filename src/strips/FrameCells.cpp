#include "strips/FrameCells.h"

#include <QPainter>

namespace {

constexpr char kPhotograph[] = "湖光.jpg";
constexpr QSize kFrame(640, 480);
// The picture in the cell, inside a rim of a pixel.
constexpr QRect kPicture(1, 1, 89, 67);
const QColor kRim(62, 71, 75);

// The sign for none, a ring with a stroke across, in the lower right of the picture.
constexpr QPointF kSignAt(77, 55);
constexpr double kSignRadius = 6;

void DrawNone(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(kSignAt);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(24, 34, 36, 150));
    painter.drawEllipse(QPointF(0, 0), kSignRadius + 3, kSignRadius + 3);
    painter.setPen(QPen(QColor(248, 250, 247), 1.8, Qt::SolidLine, Qt::FlatCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(0, 0), kSignRadius, kSignRadius);
    const double fAcross = kSignRadius * 0.7;
    painter.drawLine(QPointF(-fAcross, fAcross), QPointF(fAcross, -fAcross));
}

}  // namespace

CFrameCells::CFrameCells(const QString& strSamples, QString strFrames)
    : m_photograph(QImage(strSamples + '/' + QString::fromUtf8(kPhotograph))
                       .scaled(kFrame, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)),
      m_strFrames(std::move(strFrames)) {}

QImage CFrameCells::Render(int nItem, int nDensity) const {
    QImage framed = m_photograph.convertToFormat(QImage::Format_RGB888);
    if (framed.isNull()) return {};
    if (nItem > 0) {
        const QImage frame(QStringLiteral("%1/%2.png").arg(m_strFrames).arg(nItem));
        if (frame.size() != kFrame) return {};
        QPainter(&framed).drawImage(0, 0, frame);
    }
    QImage cell(kCell * nDensity, QImage::Format_RGB888);
    cell.fill(kRim);
    QPainter painter(&cell);
    painter.drawImage(
        kPicture.topLeft() * nDensity,
        framed.scaled(kPicture.size() * nDensity, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    painter.scale(nDensity, nDensity);
    if (nItem == 0) DrawNone(painter);
    return cell;
}
