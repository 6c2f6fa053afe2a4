#pragma once

#include <cstddef>
#include <cstdint>

#include "image/Color.h"

// Colours n pixels of a picture, three bytes each, by their bytes of a mask: each channel becomes
// ((255 - mask) * colour + mask * channel) / 255 without its fraction. 0 gives the colour, 255 leaves the
// pixel as it is.
void BlendRow(const std::uint8_t* pMask, CColor cr, std::uint8_t* pPixels, std::size_t n);
