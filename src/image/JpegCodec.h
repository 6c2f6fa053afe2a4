#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "image/Geometry.h"
#include "image/ImageHead.h"
#include "image/Pixels.h"

class CAtomicFile;

// JPEG files to and from pixels. Grey, YCbCr, RGB, CMYK and YCCK, baseline and progressive come in; the Exif
// orientation is applied.

struct CJpegPicture {
    CPixels pixels;  // upright
    CSize sizeFull;  // the upright size of the whole picture, whatever the scale
    int nBpp = 24;   // 8 for a grey file
};

// Decodes a whole file. With sizeAtLeast (a box that the upright picture must cover) at the smallest eighth
// of its size that does; with an empty box at full size. Nothing if the bytes are no JPEG, end before the
// picture does, or claim a picture that cannot be held; sizes are looked at before memory is taken.
[[nodiscard]] std::optional<CJpegPicture> DecodeJpeg(std::span<const std::uint8_t> file,
                                                     CSize sizeAtLeast = {});

// The upright size of a file and its depth, 8 or 24. Nothing is 0 unless all is: if the bytes are no JPEG.
[[nodiscard]] CImageHead ReadJpegHead(std::span<const std::uint8_t> file);

struct CJpegSettings {
    int nQuality = 90;
    int nXDpi = 96;
    int nYDpi = 96;
};

// Writes a baseline 4:2:0 file: the start mark, sixteen bytes of JFIF with the dots per inch, the tables.
// False if the file cannot be written or a side is above 65500.
[[nodiscard]] bool EncodeJpeg(const CPixels& pixels, const CJpegSettings& settings, CAtomicFile& file);
// The same behind what the bytes hold already. False also if there is no memory for them.
[[nodiscard]] bool EncodeJpeg(const CPixels& pixels, const CJpegSettings& settings,
                              std::vector<std::uint8_t>& bytes);
