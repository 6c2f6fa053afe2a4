#pragma once

#include <cstddef>
#include <cstdint>

#include "image/CpuChoice.h"

// The soft blur of a plane: a sixth of each of the four neighbours and two sixths of the pixel, each cut to a
// whole number before they are added. It works on rows of thirds, of which the sixths are the halves; the sum
// is 253 at most and needs no limit.

// A third of a byte, cut.
FOTARIUM_INLINE std::uint8_t ThirdOf(std::uint8_t n) {
    return static_cast<std::uint8_t>(static_cast<std::uint16_t>(n * 171U) >> 9);
}

// The softened pixel from the thirds around pHere[x].
FOTARIUM_INLINE std::uint8_t Softened(const std::uint8_t* pAbove, const std::uint8_t* pHere,
                                      const std::uint8_t* pBelow, std::size_t x) {
    return static_cast<std::uint8_t>((pAbove[x] >> 1) + (pHere[x - 1] >> 1) + pHere[x] + (pHere[x + 1] >> 1) +
                                     (pBelow[x] >> 1));
}
