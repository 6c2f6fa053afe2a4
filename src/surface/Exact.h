#pragma once

#include <cstdint>

// Whole-number arithmetic that is exact for every pair of coordinates that an int can hold.

__extension__ typedef __int128 CInt128;

// A point whose coordinates may lie beyond those of an int by a pen's width.
struct CFarPoint {
    std::int64_t x = 0;
    std::int64_t y = 0;
    bool operator==(const CFarPoint&) const = default;
};

// The quotients rounded down and up; b above 0.
template <typename T>
constexpr T FloorDiv(T a, T b) {
    return a / b - (a % b < 0 ? 1 : 0);
}
template <typename T>
constexpr T CeilDiv(T a, T b) {
    return a / b + (a % b > 0 ? 1 : 0);
}
