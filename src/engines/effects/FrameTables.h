#pragma once

#include <array>
#include <cstdint>
#include <span>

// What Crystal Frame and Jigsaw draw, as data.

// Offsets that are added to the channels of the rings of the bevel, the outermost ring first, for a picture
// of that width. Narrower pictures have fewer rings.
std::span<const std::int16_t> CrystalRings(int nWidth);

// A point of an outline: columns to the right and rows down from the corner of its piece.
struct CJigsawPoint {
    std::int8_t dx;
    std::int8_t dy;
};

// The knob on a joint that runs across, and the one on a joint that runs down.
inline constexpr std::array<CJigsawPoint, 27> kJigsawKnobAcross = {{
    {16, 1},  {16, 2},  {16, 3},  {15, 4},  {14, 5},  {14, 6},  {13, 7},  {14, 8},  {15, 9},
    {15, 10}, {16, 11}, {17, 11}, {18, 12}, {19, 13}, {20, 13}, {21, 13}, {22, 12}, {23, 11},
    {24, 10}, {25, 9},  {25, 8},  {26, 7},  {26, 6},  {25, 5},  {25, 4},  {24, 3},  {23, 2},
}};
inline constexpr std::array<CJigsawPoint, 20> kJigsawKnobDown = {{
    {3, 15},  {4, 15}, {5, 14}, {6, 14}, {7, 15}, {8, 16}, {9, 17}, {9, 18}, {10, 19}, {10, 20},
    {10, 21}, {9, 22}, {9, 23}, {8, 24}, {7, 25}, {6, 26}, {5, 26}, {4, 26}, {3, 25},  {2, 25},
}};

// How far the straight part of a joint that runs down leaves its column, point by point.
inline constexpr std::array<std::int8_t, 32> kJigsawWobble = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1,
                                                              2, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
