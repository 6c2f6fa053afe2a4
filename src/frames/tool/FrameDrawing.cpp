#include "FrameDrawing.h"

#include <QPainter>
#include <QSvgRenderer>
#include <array>

#include "frames/FrameLibrary.h"

namespace {

// Points of the large picture that make a pixel, each way.
constexpr int kFine = 4;

// A pixel from the points under it: the mean of the colours by how much they cover.
QRgb MeanOf(const QImage& fine, int xPixel, int yPixel) {
    std::array<int, 4> arrSum = {};  // premultiplied
    for (int y = yPixel * kFine; y < (yPixel + 1) * kFine; ++y) {
        const auto* pRow = reinterpret_cast<const QRgb*>(fine.constScanLine(y)) + xPixel * kFine;
        for (int i = 0; i < kFine; ++i) {
            arrSum[0] += qRed(pRow[i]);
            arrSum[1] += qGreen(pRow[i]);
            arrSum[2] += qBlue(pRow[i]);
            arrSum[3] += qAlpha(pRow[i]);
        }
    }
    const int nAlpha = arrSum[3];
    if (nAlpha * 2 < 255 * kFine * kFine) return qRgba(0, 0, 0, 0);
    const auto own = [nAlpha](int nSum) { return (nSum * 255 + nAlpha / 2) / nAlpha; };
    return qRgb(own(arrSum[0]), own(arrSum[1]), own(arrSum[2]));
}

}  // namespace

QImage RenderFrame(const QString& strDrawing) {
    QSvgRenderer drawing(strDrawing);
    if (!drawing.isValid()) return {};
    QImage fine(kStickerFrameWidth * kFine, kStickerFrameHeight * kFine, QImage::Format_ARGB32_Premultiplied);
    fine.fill(Qt::transparent);
    QPainter painter(&fine);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    painter.end();

    QImage frame(kStickerFrameWidth, kStickerFrameHeight, QImage::Format_ARGB32);
    for (int y = 0; y < frame.height(); ++y) {
        auto* pRow = reinterpret_cast<QRgb*>(frame.scanLine(y));
        for (int x = 0; x < frame.width(); ++x) pRow[x] = MeanOf(fine, x, y);
    }
    return frame;
}

QByteArray RecordOf(const QImage& frame) {
    QByteArray record;
    record.reserve(kStickerFrameBytes);
    for (int y = 0; y < frame.height(); ++y) {
        const auto* pRow = reinterpret_cast<const QRgb*>(frame.constScanLine(y));
        for (int x = 0; x < frame.width(); ++x) {
            QRgb rgb = qAlpha(pRow[x]) == 0 ? qRgb(255, 0, 0) : pRow[x];
            const bool bKey = qRed(rgb) >= 254 && qGreen(rgb) <= 1 && qBlue(rgb) <= 1;
            if (bKey && qAlpha(pRow[x]) != 0) rgb = qRgb(qRed(rgb), 2, qBlue(rgb));
            record.append(static_cast<char>(qRed(rgb)));
            record.append(static_cast<char>(qGreen(rgb)));
            record.append(static_cast<char>(qBlue(rgb)));
        }
    }
    return record;
}
