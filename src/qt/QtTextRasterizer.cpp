#include "qt/QtTextRasterizer.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cstring>

#include "qt/FontMapping.h"
#include "qt/Text.h"

namespace {

// Both keep a text from asking for more memory than a picture can be.
constexpr int kMostHeight = 4096;
constexpr int kMostWidth = 1 << 17;

constexpr int kBoldFrom = 600;

// Whether the cell, from the highest ascent to the lowest descent, and the letters themselves, which need not
// keep to it, are both no higher than that.
bool Fits(const QFont& font, const QString& str, int nHeight) {
    const QFontMetrics metrics(font);
    return metrics.height() <= nHeight && metrics.boundingRect(str).height() <= nHeight;
}

// The largest letters that fit. Fonts here are regular or bold, whatever hairline or poster weights a face
// has besides.
QFont FitFont(const CTextFont& font, const QString& str) {
    QFont fit = MapFont(font.strFace, font.nHeight);
    fit.setWeight(font.nWeight < kBoldFrom ? QFont::Normal : QFont::Bold);
    fit.setItalic(font.bItalic);
    fit.setUnderline(font.bUnderline);
    int nPixels = font.nHeight;
    while (nPixels > 1 && !Fits(fit, str, font.nHeight)) fit.setPixelSize(--nPixels);
    return fit;
}

// What breaks or steers a line of text is a blank in it.
QString OneLine(const std::string& strText) {
    QString str = ToQt(strText);
    for (QChar& ch : str)
        if (!ch.isPrint() && !ch.isSurrogate()) ch = ' ';
    return str;
}

}  // namespace

CTextMask CQtTextRasterizer::Rasterize(const CTextFont& font, const std::string& strText) {
    CTextMask mask;
    if (font.nHeight <= 0 || font.nHeight > kMostHeight) return mask;
    const QString str = OneLine(strText);
    const QFont fit = FitFont(font, str);
    const QFontMetrics metrics(fit);
    // Letters may lean out of the line at either end, and out of the cell above and below.
    const QRect rcInk = metrics.boundingRect(str);
    const int nBaseline =
        std::min(std::max(metrics.ascent(), -rcInk.top()), font.nHeight - 1 - std::max(0, rcInk.bottom()));
    const int nBefore = std::max(0, -rcInk.left());
    const int nAdvance = std::max(metrics.horizontalAdvance(str), rcInk.right() + 1);
    const int nWidth = std::min(nBefore + nAdvance, kMostWidth);
    if (str.isEmpty() || nWidth <= 0) return mask;
    QImage image(nWidth, font.nHeight, QImage::Format_Grayscale8);
    if (image.isNull()) return mask;
    image.fill(0);
    QPainter painter(&image);
    painter.setFont(fit);
    painter.setPen(Qt::white);
    painter.drawText(QPoint(nBefore, nBaseline), str);
    painter.end();
    mask.nWidth = nWidth;
    mask.nHeight = font.nHeight;
    mask.coverage.resize(static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(font.nHeight));
    for (int y = 0; y < font.nHeight; ++y)
        std::memcpy(mask.coverage.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(nWidth),
                    image.constScanLine(y), static_cast<std::size_t>(nWidth));
    return mask;
}
