#pragma once

#include <string>

#include "image/Pixels.h"
#include "image/SharedBytes.h"

// Pictures as binary PPM ("P6") with a byte a channel, or as binary PGM ("P5") with a byte a pixel: the
// simplest files there are for a picture.

struct CPpmPicture {
    CPixels pixels;        // empty if the file could not be read
    std::string strError;  // why, in words that go on after the file's name; empty if it could
};

// Reads the first picture of a file. Comments in its head are left out; 255 must be its highest value.
[[nodiscard]] CPpmPicture ReadPpm(const std::string& strPath);

struct CPgmPicture {
    CSharedBytes bytes;  // the top row first, no gap between rows; empty if the file could not be read
    int nWidth = 0;
    int nHeight = 0;
    std::string strError;  // as above
};

// The same for a grey picture.
[[nodiscard]] CPgmPicture ReadPgm(const std::string& strPath);

// False if the file cannot be written; there is then no new file, and an older one stays.
[[nodiscard]] bool WritePpm(const std::string& strPath, const CPixels& pixels);
