#pragma once

#include <cstdint>
#include <span>

// The orientation mark of an Exif segment (the bytes behind its length, from "Exif" on): 1 upright, 2
// mirrored, 3 turned by 180 degrees, 4 mirrored upside down, 5 its rows and columns exchanged, 6 to be turned
// clockwise by 90 degrees, 7 exchanged over the other diagonal, 8 to be turned counter-clockwise. 1 too if
// there is no mark or the segment is malformed.
int ReadExifOrientation(std::span<const std::uint8_t> segment);
