#include "image/ImageHead.h"

#include "image/FileBytes.h"
#include "image/JpegCodec.h"
#include "image/MagickCodec.h"
#include "image/Pixels.h"

CImageHead ReadImageHead(const std::string& strPath, ImageType type) {
    if (type == ImageType::kUnknown) return {};
    const CSharedBytes file = ReadFileBytes(strPath);
    if (file.IsEmpty()) return {};
    const std::span<const std::uint8_t> bytes(file.Data(), file.Size());
    const CImageHead head = type == ImageType::kJpeg ? ReadJpegHead(bytes) : ReadHeadWithMagick(bytes, type);
    return CPixels::Fits(head.size.cx, head.size.cy) ? head : CImageHead();
}
