#pragma once

#include <cstddef>
#include <cstdint>

#include "image/Color.h"

// The colours of a picture with 16 bits a pixel: red and blue keep their high five bits, green its high six,
// and the bits below are 0. Nothing is filled in for them, so white is less than 255. Packing a pixel into a
// word and unpacking it again comes to these masks, so no packed buffer is needed.
inline constexpr CColor kMask565 = {0xF8, 0xFC, 0xF8};
inline constexpr CColor kBlack565 = {0, 0, 0};
inline constexpr CColor kWhite565 = kMask565;

constexpr CColor ReduceTo565(CColor cr) {
    return {static_cast<std::uint8_t>(cr.r & kMask565.r), static_cast<std::uint8_t>(cr.g & kMask565.g),
            static_cast<std::uint8_t>(cr.b & kMask565.b)};
}

// The same for n pixels (three bytes each). pDst may be pSrc; exactly n pixels are read and written.
void ReduceTo565(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t n);
