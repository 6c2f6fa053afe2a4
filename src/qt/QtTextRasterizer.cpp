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

// The largest letters whose cell, from the highest ascent to the lowest descent, is not higher than asked
// for.
QFont FitFont(const CTextFont& font) {
    QFont fit = MapFont(font.strFace, font.nHeight);
    fit.setWeight(static_cast<QFont::Weight>(std::clamp(font.nWeight, 1, 1000)));
    fit.setItalic(font.bItalic);
    fit.setUnderline(font.bUnderline);
    int nPixels = font.nHeight;
    while (nPixels > 1 && QFontMetrics(fit).height() > font.nHeight) fit.setPixelSize(--nPixels);
    return fit;
}

}  // namespace

CTextMask CQtTextRasterizer::Rasterize(const CTextFont& font, const std::string& strText) {
    CTextMask mask;
    if (font.nHeight <= 0 || font.nHeight > kMostHeight) return mask;
    const QFont fit = FitFont(font);
    const QFontMetrics metrics(fit);
    const QString str = ToQt(strText).replace(QChar('\n'), QChar(' '));
    const int nWidth = std::min(metrics.horizontalAdvance(str), kMostWidth);
    if (nWidth <= 0) return mask;
    QImage image(nWidth, font.nHeight, QImage::Format_Grayscale8);
    if (image.isNull()) return mask;
    image.fill(0);
    QPainter painter(&image);
    painter.setFont(fit);
    painter.setPen(Qt::white);
    painter.drawText(QPoint(0, metrics.ascent()), str);
    painter.end();
    mask.nWidth = nWidth;
    mask.nHeight = font.nHeight;
    mask.coverage.resize(static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(font.nHeight));
    for (int y = 0; y < font.nHeight; ++y)
        std::memcpy(mask.coverage.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(nWidth),
                    image.constScanLine(y), static_cast<std::size_t>(nWidth));
    return mask;
}
