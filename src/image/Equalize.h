#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "image/PixelView.h"

// Histogram equalisation in place. The grey g = (117 B + 601 G + 306 R) >> 10 of every pixel is counted; with
// c the running sum of the counts, a luminance n becomes trunc((c[n] - c[0]) * 255 / (c[255] - c[0])) in
// double. Each pixel goes to YUV, Y is replaced, and back. A picture whose greys are all 0 stays as it is.
void EqualizeHistogram(CPixelView view);

// The two halves of it, for who has a way of his own through the pixels: the grey of a pixel, and the new
// luminance of each from the counts of the greys; nothing if all greys are 0.
constexpr std::uint8_t EqualGrey(std::uint8_t r, std::uint8_t g, std::uint8_t b) {
    return static_cast<std::uint8_t>((117 * b + 601 * g + 306 * r) >> 10);
}
using CEqualLevels = std::array<std::uint8_t, 256>;
std::optional<CEqualLevels> EqualLevels(const std::array<std::uint64_t, 256>& greyCounts);
