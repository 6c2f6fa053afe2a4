#include "browse/Thumbnail.h"

#include "surface/Surface.h"

namespace {

constexpr CColor kCellFill{110, 121, 127};
constexpr CColor kCellFrame{211, 214, 255};

}  // namespace

CRect PlaceThumbnail(CSize sizePicture) {
    const float fRatio = static_cast<float>(sizePicture.cy) / static_cast<float>(sizePicture.cx);
    if (fRatio <= 1.0F) {
        const int nHeight = static_cast<int>(static_cast<float>(kThumbnailSide) * fRatio);
        return CRect::FromPlace(0, (kThumbnailSide - nHeight) / 2, kThumbnailSide, nHeight);
    }
    const int nWidth = static_cast<int>(static_cast<float>(kThumbnailSide) / fRatio);
    return CRect::FromPlace((kThumbnailSide - nWidth) / 2, 0, nWidth, kThumbnailSide);
}

CPixels MakeThumbnail(const std::string& strPath) {
    const CScaledImage scaled = LoadJpegScaled(strPath, kThumbnailSide, kThumbnailSide);
    if (!scaled.image.IsValid()) return {};
    CPixels pixels;
    if (!pixels.CreateFilled(kThumbnailSide, kThumbnailSide, kCellFill)) return {};
    const CRect rcPicture = PlaceThumbnail(scaled.sizeFull);
    if (!rcPicture.IsEmpty()) scaled.image.Stretch(pixels.MutableView(), rcPicture);
    CSurface surface(std::move(pixels));
    surface.FrameRect(surface.Bounds(), kCellFrame);
    return surface.Pixels();
}

CPixels MakeFolderCell(const CxImage* pPicture) {
    CPixels pixels;
    if (!pixels.CreateFilled(kThumbnailSide, kThumbnailSide, kCellFill) || pPicture == nullptr) return pixels;
    pPicture->Stretch(pixels.MutableView(), CRect::FromPlace(0, 0, kThumbnailSide, kThumbnailSide));
    return pixels;
}
