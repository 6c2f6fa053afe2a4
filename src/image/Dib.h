#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "image/Pixels.h"

// Packed device-independent bitmaps in memory, the form of a clipboard's picture: a 40-byte header (or a
// longer version of it), bit masks if any, the colour table, then the rows from below, each filled up to four
// bytes.

// Reads uncompressed pictures of 1, 4, 8, 16, 24 and 32 bits and those of 16 and 32 bits with masks. Nothing
// for another kind, for sizes that contradict each other and for a block that is too short.
[[nodiscard]] std::optional<CPixels> ReadDib(std::span<const std::uint8_t> dib);

// Writes 24 bits uncompressed. Empty if the pixels are or if memory is short.
[[nodiscard]] std::vector<std::uint8_t> WriteDib(const CPixels& pixels);
