#include "strips/EffectSamples.h"

#include <array>
#include <cstring>

namespace {

// Parts of photographs that show much at the size of a stamp, by the middle and the width of the part in
// thousandths of the photograph's width and height.
struct CPart {
    const char* szName;
    int nMiddleX;
    int nMiddleY;
    int nWidth;
};
constexpr CPart kFruit{"静物.jpg", 620, 620, 760};
constexpr CPart kNight{"夜色.jpg", 400, 480, 800};
constexpr CPart kFace{"肖像.jpg", 480, 440, 900};
constexpr CPart kLake{"湖光.jpg", 560, 620, 860};

// How wide the picture is on which the engine works.
constexpr int kPreviewWidth = 196;

struct CLook {
    const CPart* pPart = &kFruit;
    int nLevel = 0;
    int nWidth = kPreviewWidth;
    // The width that sizes in pixels refer to: the wider, the smaller the tiles.
    int nRefWidth = kPreviewWidth;
};

// In the order of the effects' numbers.
constexpr std::array<CLook, kEffectCount> kLooks = {{
    {&kFruit, 40},           // Brightness
    {&kFruit, 50},           // Contrast
    {&kFruit, 70},           // Chroma
    {&kFruit, 6},            // Sharpness
    {&kFruit},               // Negative
    {&kFruit, 35},           // Pure Black and White
    {&kFruit},               // Black and White
    {&kFruit, 40},           // Colour Saturation
    {&kFace},                // Old Photo
    {&kFace},                // Noise Removal
    {&kNight},               // Backlight
    {&kFruit},               // Homogenise
    {&kNight},               // Low-Light Repair
    {&kLake, 14},            // Nostalgia
    {&kLake, 35},            // Moonlight
    {&kLake, 20},            // Haze 1
    {&kLake, 30},            // Cool
    {&kLake, 60},            // Haze 2
    {&kFruit},               // Film
    {&kFace},                // Art
    {&kFruit, 0, 160, 160},  // Crystal Frame
    {&kFruit},               // Jigsaw
    {&kFruit, 7},            // Oil Painting
    {&kFruit, 2},            // Tile
    {&kFruit, 1},            // Laminate
    {&kFruit},               // Engrave
    {&kFruit},               // Concave Mirror
    {&kFruit},               // Sketch
    {&kFruit, 40},           // Refraction 2
    {&kFruit, 40},           // Refraction 1
    {&kFruit},               // Woodcut
}};

const CLook& LookOf(int nEffect) {
    return kLooks[static_cast<std::size_t>(nEffect)];
}

// The part in pixels of the photograph, moved back where it would stand over the edge.
QRect PlaceOf(const CPart& part, QSize sizePhotograph, QSize sizeShape) {
    int nWidth = sizePhotograph.width() * part.nWidth / 1000;
    int nHeight = nWidth * sizeShape.height() / sizeShape.width();
    if (nHeight > sizePhotograph.height()) {
        nHeight = sizePhotograph.height();
        nWidth = nHeight * sizeShape.width() / sizeShape.height();
    }
    const int x = sizePhotograph.width() * part.nMiddleX / 1000 - nWidth / 2;
    const int y = sizePhotograph.height() * part.nMiddleY / 1000 - nHeight / 2;
    return {std::clamp(x, 0, sizePhotograph.width() - nWidth),
            std::clamp(y, 0, sizePhotograph.height() - nHeight), nWidth, nHeight};
}

}  // namespace

CxImage ToEngine(const QImage& image) {
    const QImage rgb = image.convertToFormat(QImage::Format_RGB888);
    CxImage result(rgb.width(), rgb.height());
    const CPixelView view = result.MutableView();
    for (int y = 0; y < view.nHeight; ++y) std::memcpy(view.Row(y), rgb.constScanLine(y), view.Stride());
    return result;
}

QImage FromEngine(const CxImage& image) {
    const CPixels& pixels = image.Pixels();
    return QImage(pixels.Bytes().data(), pixels.Width(), pixels.Height(),
                  static_cast<qsizetype>(pixels.Stride()), QImage::Format_RGB888)
        .copy();
}

int CEffectSamples::LevelOf(int nEffect) {
    return LookOf(nEffect).nLevel;
}

const QImage* CEffectSamples::Photograph(const QString& strName) {
    const auto [it, bNew] = m_mapPhotographs.try_emplace(strName);
    if (bNew) {
        const CxImage image((m_strFolder + '/' + strName).toStdString(), ImageType::kJpeg);
        if (image.IsValid()) it->second = FromEngine(image);
    }
    return it->second.isNull() ? nullptr : &it->second;
}

std::optional<QImage> CEffectSamples::Render(int nEffect, QSize size) {
    const CLook& look = LookOf(nEffect);
    const QImage* pPhotograph = Photograph(look.pPart->szName);
    if (pPhotograph == nullptr) return std::nullopt;
    const QSize sizeWork(look.nWidth, look.nWidth * size.height() / size.width());
    const QImage part = pPhotograph->copy(PlaceOf(*look.pPart, pPhotograph->size(), size))
                            .scaled(sizeWork, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    CxImage image = ToEngine(part);
    // Random numbers of its own: random effects come out the same whatever was rendered before.
    CRandomSequence random;
    if (!ApplyEffect(image, EffectOf(nEffect), look.nLevel, look.nRefWidth, random)) return std::nullopt;
    return FromEngine(image).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
