#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "image/ImageHead.h"
#include "image/ImageType.h"
#include "image/Pixels.h"
#include "image/SharedBytes.h"

class CAtomicFile;

// Every format but JPEG. The type alone chooses the decoder: neither a file's content nor its name can bring
// in another one, and no external program, script or network address is ever involved.

struct CMagickPicture {
    CPixels pixels;
    CSharedBytes alpha;  // a byte a pixel, 255 opaque; empty if the file has none
    int nBpp = 24;       // 1, 4, 8 or 24
};

// Decodes the first picture of a file. Nothing if it is not of that type, is broken or too large, or if the
// type cannot be read here.
[[nodiscard]] std::optional<CMagickPicture> DecodeWithMagick(std::span<const std::uint8_t> file,
                                                             ImageType type);

// The size and depth of the first picture of a file, without decoding it where the format allows. All 0 where
// DecodeWithMagick gives nothing by what stands in the head.
[[nodiscard]] CImageHead ReadHeadWithMagick(std::span<const std::uint8_t> file, ImageType type);

struct CMagickSource {
    const CPixels& pixels;
    const CSharedBytes& alpha;  // written only where the format has it
    int nXDpi;
    int nYDpi;
};

// False if the type cannot be written here, the picture does not go into it, or the file cannot be written.
[[nodiscard]] bool EncodeWithMagick(const CMagickSource& source, ImageType type, CAtomicFile& file);
