#include "Sheet.h"

#include <QFont>
#include <QFontMetrics>

namespace {

QFont SkinFont(int nPixels, int nDensity) {
    const bool bDrawnByHand = nDensity == 1 && (nPixels == 12 || nPixels == 13);
    QFont font(bDrawnByHand ? "WenQuanYi Zen Hei Sharp" : "WenQuanYi Zen Hei");
    font.setPixelSize(nPixels * nDensity);
    font.setHintingPreference(bDrawnByHand ? QFont::PreferFullHinting : QFont::PreferNoHinting);
    font.setStyleStrategy(bDrawnByHand ? QFont::NoAntialias : QFont::PreferAntialias);
    return font;
}

// A Chinese character takes its whole square: the measured advance of the hand-made shapes is uneven.
int Advance(const QFontMetrics& metrics, QChar ch, int nPixels) {
    return ch.unicode() >= 0x2E80 ? nPixels : metrics.horizontalAdvance(ch);
}

int DeviceWidth(const QFontMetrics& metrics, const QString& strText, int nPixels) {
    int nWidth = 0;
    for (const QChar ch : strText) nWidth += Advance(metrics, ch, nPixels);
    return nWidth;
}

}  // namespace

CSheet::CSheet(QSize size, int nDensity, const QColor& crGround)
    : m_image(size * nDensity, QImage::Format_ARGB32_Premultiplied), m_nDensity(nDensity) {
    m_image.fill(crGround);
}

CSheetPainter::CSheetPainter(CSheet& sheet) : QPainter(&sheet.Image()) {
    scale(sheet.Density(), sheet.Density());
    setRenderHint(QPainter::Antialiasing);
}

CSheet CSheet::Cut(const QRect& rcPlace) const {
    const QRect rcDevice(rcPlace.topLeft() * m_nDensity, rcPlace.size() * m_nDensity);
    return CSheet(m_image.copy(rcDevice), m_nDensity);
}

void CSheet::Lay(const CSheet& sheet, QPoint ptPlace) {
    QPainter painter(&m_image);
    painter.drawImage(ptPlace * m_nDensity, sheet.m_image);
}

void DrawText(CSheet& sheet, const QRect& rcPlace, const QString& strText, const QColor& crInk, int nPixels,
              ETextAlign eAlign) {
    const int nDensity = sheet.Density();
    const int nDevicePixels = nPixels * nDensity;
    const QFont font = SkinFont(nPixels, nDensity);
    const QFontMetrics metrics(font);
    int x = rcPlace.x() * nDensity;
    if (eAlign == ETextAlign::Centre) {
        x += (rcPlace.width() * nDensity - DeviceWidth(metrics, strText, nDevicePixels) + 1) / 2;
    }
    // The type's ink reaches from six sevenths of its size above the line to one seventh below.
    const int nAbove = (nDevicePixels * 6 + 3) / 7;
    const int y = rcPlace.y() * nDensity + (rcPlace.height() * nDensity - nDevicePixels) / 2 + nAbove;

    QPainter painter(&sheet.Image());
    painter.setFont(font);
    painter.setPen(crInk);
    for (const QChar ch : strText) {
        painter.drawText(QPoint(x, y), QString(ch));
        x += Advance(metrics, ch, nDevicePixels);
    }
}

int TextWidth(const QString& strText, int nPixels, int nDensity) {
    const QFontMetrics metrics(SkinFont(nPixels, nDensity));
    return (DeviceWidth(metrics, strText, nPixels * nDensity) + nDensity - 1) / nDensity;
}
