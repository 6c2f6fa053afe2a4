#include "qt/Pictures.h"

#include <utility>

QImage ViewPixels(const CPixels& pixels, int nDensity) {
    QImage image(pixels.Bytes().data(), pixels.Width(), pixels.Height(),
                 static_cast<qsizetype>(pixels.Stride()), QImage::Format_RGB888);
    image.setDevicePixelRatio(nDensity);
    return image;
}

QImage CopyImage(const CxImage& image) {
    QImage copy = ViewPixels(image.Pixels()).convertToFormat(QImage::Format_ARGB32);
    const auto alpha = image.Alpha();
    if (alpha.empty()) return copy;
    std::size_t nAt = 0;
    for (int y = 0; y < copy.height(); ++y) {
        auto* pLine = reinterpret_cast<QRgb*>(copy.scanLine(y));
        for (int x = 0; x < copy.width(); ++x, ++nAt)
            pLine[x] = (pLine[x] & 0x00ffffffU) | static_cast<QRgb>(alpha[nAt]) << 24;
    }
    return copy;
}

const QPixmap* CPictures::Find(const std::string& strName, int nDensity) {
    const auto key = std::make_pair(nDensity, strName);
    auto it = m_mapReady.find(key);
    if (it == m_mapReady.end()) {
        const CxImage* pImage = m_bitmaps.Find(strName, nDensity);
        QPixmap pixmap;
        if (pImage != nullptr) pixmap = QPixmap::fromImage(CopyImage(*pImage));
        pixmap.setDevicePixelRatio(nDensity);
        it = m_mapReady.emplace(key, std::move(pixmap)).first;
    }
    return it->second.isNull() ? nullptr : &it->second;
}
