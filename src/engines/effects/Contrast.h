#pragma once

#include <cstddef>
#include <cstdint>

// Moves each byte away from 128 by 2 nLevel / 128 of its distance, the fraction cut, limited to 0..255;
// towards 128 and across it for a negative level. n bytes; pSrc and pDst must
// not overlap. Any level.
void SpreadBytes(const std::uint8_t* pSrc, std::uint8_t* pDst, int nLevel, std::size_t n);
