#pragma once

#include <cstddef>
#include <cstdint>

#include "image/Image.h"

// A sticker frame as a library of frames gives it: 640 by 480 pixels of three bytes, red, green, blue, the
// top row first, nothing between rows.
inline constexpr CSize kFrameRecord{640, 480};
inline constexpr std::size_t kFrameRecordBytes = std::size_t{3} * kFrameRecord.cx * kFrameRecord.cy;

// The key: the picture shows where the frame has such a pixel.
constexpr bool IsFrameKey(CColor color) {
    return color.r >= 254 && color.g <= 1 && color.b <= 1;
}

// Lays a frame over a picture: it is stretched to the picture's size as Resample would, by its nearest
// pixels, without regard to its proportions, and covers the picture but for the key. The picture's alpha
// stays. False, and nothing changes, if there is no memory.
[[nodiscard]] bool LayFrame(const std::uint8_t* pRecord, CxImage& image);
