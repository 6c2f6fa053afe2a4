#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "image/Color.h"

// Paints nPixels pixels one behind the other in one colour.
inline void PaintRun(std::uint8_t* pTo, std::size_t nPixels, CColor color) {
    constexpr std::size_t kBlock = 8;
    const std::uint8_t pixel[3] = {color.r, color.g, color.b};
    if (nPixels >= kBlock) {
        std::uint8_t block[3 * kBlock];
        for (std::size_t i = 0; i < kBlock; ++i) std::memcpy(block + 3 * i, pixel, 3);
        for (; nPixels >= kBlock; nPixels -= kBlock, pTo += sizeof block)
            std::memcpy(pTo, block, sizeof block);
    }
    for (; nPixels > 0; --nPixels, pTo += 3) std::memcpy(pTo, pixel, 3);
}
