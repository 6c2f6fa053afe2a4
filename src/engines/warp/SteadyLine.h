#pragma once

#include <cstddef>
#include <cstdint>

// Area resampling of a line whose inverse table is steady, as that of every map without folds is: the common
// case of CLineResampler. Its sums and differences of places are then exact, so that a target pixel needs
// nothing of the one before it, and the result is the same to the last bit.

// The longest line for that. Places are multiples of 2^-40 up to this, 53 bits as a double.
inline constexpr std::size_t kLongestSteady = std::size_t{1} << 13;

// The bytes behind a source line that may be read; the first of them has no ink.
inline constexpr std::size_t kSourcePad = 16;

// True if the table pPlace[0..n - 1] is steady: it starts with 0, does not descend, ends in the line, and has
// no place but 0 before 2^-16. n is at least 2.
bool IsSteady(const float* pPlace, std::size_t n);

// Writes the n - 1 first pixels of the target. pFirst is room for n + 8 numbers.
void ResampleSteady(const float* pPlace, int* pFirst, const std::uint8_t* pIn, std::uint8_t* pOut,
                    std::size_t n);
