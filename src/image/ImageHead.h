#pragma once

#include <string>

#include "image/Geometry.h"
#include "image/ImageType.h"

// What the head of a picture file says, without a look at its pixels.
struct CImageHead {
    CSize size;    // upright, as CxImage::GetSize gives it; 0 by 0 if the file cannot be read
    int nBpp = 0;  // as CxImage::GetBpp gives it; 0 if the file cannot be read
    bool operator==(const CImageHead&) const = default;
};

// Reads the head of a file as the format `type`, whatever its name or content says. A picture too large to be
// held has none, nor a JPEG whose end is missing; a file of another format that is cut behind its head may
// have one all the same.
[[nodiscard]] CImageHead ReadImageHead(const std::string& strPath, ImageType type);
