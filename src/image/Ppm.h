#pragma once

#include <string>

#include "image/Pixels.h"

// Pictures as binary PPM ("P6") with a byte a channel: the simplest file there is for a picture.

struct CPpmPicture {
    CPixels pixels;        // empty if the file could not be read
    std::string strError;  // why, in words that go on after the file's name; empty if it could
};

// Reads the first picture of a file. Comments in its head are left out; 255 must be its highest value.
[[nodiscard]] CPpmPicture ReadPpm(const std::string& strPath);

// False if the file cannot be written; there is then no new file, and an older one stays.
[[nodiscard]] bool WritePpm(const std::string& strPath, const CPixels& pixels);
