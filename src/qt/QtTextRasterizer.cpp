#include "qt/QtTextRasterizer.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <cstring>

#include "qt/FontMapping.h"
#include "qt/Text.h"

namespace {

// Both keep a text from asking for more memory than a picture can be.
constexpr int kMostHeight = 4096;
constexpr int kMostWidth = 1 << 17;

constexpr int kBoldFrom = 600;

// How far a face's cell reaches above and below the line on which its letters stand, in the size of their
// square.
struct CReach {
    double fAscent = 0;
    double fDescent = 0;
};

// What the face itself says of that. Qt goes by other numbers where a face wants its lines set closer than
// its cell is high. Nothing for faces that do not say it.
CReach ReachOf(const QFont& font) {
    constexpr int kWinAscent = 74;  // places in the face's table of metrics
    constexpr int kWinDescent = 76;
    const QRawFont face = QRawFont::fromFont(font);
    const QByteArray table = face.fontTable("OS/2");
    if (table.size() < kWinDescent + 2 || face.unitsPerEm() <= 0) return {};
    const auto part = [&](int nPlace) {
        return qFromBigEndian<quint16>(table.constData() + nPlace) / face.unitsPerEm();
    };
    return {part(kWinAscent), part(kWinDescent)};
}

int AscentOf(const QFont& font, const CReach& reach) {
    const int nOwn = static_cast<int>(std::lround(reach.fAscent * font.pixelSize()));
    return std::max(nOwn, QFontMetrics(font).ascent());
}

int DescentOf(const QFont& font, const CReach& reach) {
    const int nOwn = static_cast<int>(std::lround(reach.fDescent * font.pixelSize()));
    return std::max(nOwn, QFontMetrics(font).descent());
}

// Whether the cell, from the highest ascent to the lowest descent, and the letters themselves, which need not
// keep to it, are both no higher than that.
bool Fits(const QFont& font, const CReach& reach, const QString& str, int nHeight) {
    return AscentOf(font, reach) + DescentOf(font, reach) <= nHeight &&
           QFontMetrics(font).boundingRect(str).height() <= nHeight;
}

// The largest letters that fit. Fonts here are regular or bold, whatever hairline or poster weights a face
// has besides.
QFont FitFont(const CTextFont& font, const QString& str) {
    QFont fit = MapFont(font.strFace, font.nHeight);
    fit.setWeight(font.nWeight < kBoldFrom ? QFont::Normal : QFont::Bold);
    fit.setItalic(font.bItalic);
    fit.setUnderline(font.bUnderline);
    const CReach reach = ReachOf(fit);
    int nPixels = font.nHeight;
    while (nPixels > 1 && !Fits(fit, reach, str, font.nHeight)) fit.setPixelSize(--nPixels);
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
    const int nBaseline = std::min(std::max(AscentOf(fit, ReachOf(fit)), -rcInk.top()),
                                   font.nHeight - 1 - std::max(0, rcInk.bottom()));
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
