#include "qt/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <cstring>

#include "image/Image.h"
#include "qt/Pictures.h"

namespace {

// Another program's picture may let its ground through; ours is white.
QImage OnWhite(const QImage& image) {
    QImage flat(image.size(), QImage::Format_RGB888);
    if (flat.isNull()) return flat;
    flat.fill(Qt::white);
    QPainter painter(&flat);
    painter.drawImage(QRect(QPoint(0, 0), flat.size()), image);
    return flat;
}

CxImage FromQtImage(const QImage& image) {
    CPixels pixels;
    if (!pixels.CreateRaw(image.width(), image.height())) return {};
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(pixels.MutableRow(y).data(), image.constScanLine(y), pixels.Stride());
    return CxImage(std::move(pixels));
}

}  // namespace

bool CQtClipboard::SetBitmap(std::span<const std::uint8_t> arrDib) {
    CxImage image;
    if (!image.CreateFromHANDLE(arrDib)) return false;
    QGuiApplication::clipboard()->setImage(CopyImage(image));
    return true;
}

std::optional<std::vector<std::uint8_t>> CQtClipboard::GetBitmap() {
    const QImage image = QGuiApplication::clipboard()->image();
    if (image.isNull()) return std::nullopt;
    const QImage flat =
        image.hasAlphaChannel() ? OnWhite(image) : image.convertToFormat(QImage::Format_RGB888);
    std::vector<std::uint8_t> arrDib = FromQtImage(flat).CopyToHandle();
    if (arrDib.empty()) return std::nullopt;
    return arrDib;
}
