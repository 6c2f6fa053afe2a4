#pragma once

#include <string>

#include "image/Pixels.h"

// Writes a picture as binary PPM with a byte a channel. False if the file cannot be written; there is then no
// new file, and an older one stays.
bool WritePpm(const std::string& strPath, const CPixels& pixels);
