#include "strips/Label.h"

#include <QFont>
#include <QFontMetrics>

namespace {

QFont LabelFont(int nPixels, int nDensity) {
    const bool bByHand = nDensity == 1 && (nPixels == 12 || nPixels == 13);
    QFont font(bByHand ? "WenQuanYi Zen Hei Sharp" : "WenQuanYi Zen Hei");
    font.setPixelSize(nPixels * nDensity);
    font.setHintingPreference(bByHand ? QFont::PreferFullHinting : QFont::PreferNoHinting);
    font.setStyleStrategy(bByHand ? QFont::NoAntialias : QFont::PreferAntialias);
    return font;
}

}  // namespace

void DrawLabel(QPainter& painter, int x, int y, const QString& strText, const QColor& crInk, int nPixels,
               int nDensity) {
    const QFont font = LabelFont(nPixels, nDensity);
    const QFontMetrics metrics(font);
    const int nSquare = nPixels * nDensity;
    // The type's ink reaches from six sevenths of its size above the line to one seventh below.
    QPoint pt(x * nDensity, y * nDensity + (nSquare * 6 + 3) / 7);
    painter.save();
    painter.resetTransform();
    painter.setFont(font);
    painter.setPen(crInk);
    for (const QChar ch : strText) {
        painter.drawText(pt, QString(ch));
        // A Chinese character takes its whole square: the measured advance of the shapes is uneven.
        pt.rx() += ch.unicode() >= 0x2E80 ? nSquare : metrics.horizontalAdvance(ch);
    }
    painter.restore();
}
