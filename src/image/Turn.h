#pragma once

#include <cstdint>

// Turns and flips of rows of pixels with 1 (alpha) or 3 bytes a pixel, rows without a gap, top row first. dst
// has the size that the result needs; behind both blocks lie the slack bytes of CSharedBytes. No result
// depends on the machine's vector width.

// dst may be src itself. nWidth, nHeight: the size of both.
void MirrorPlane(const std::uint8_t* pSrc, std::uint8_t* pDst, int nWidth, int nHeight, int nChannels);
void Rotate180Plane(const std::uint8_t* pSrc, std::uint8_t* pDst, int nWidth, int nHeight, int nChannels);

// Swaps top and bottom. dst is another block.
void FlipPlane(const std::uint8_t* pSrc, std::uint8_t* pDst, int nWidth, int nHeight, int nChannels);

// dst is another block of nHeight columns and nWidth rows. nWidth, nHeight: the size of src.
// Clockwise: the left column of src, read from below, becomes the top row.
void RotateClockwisePlane(const std::uint8_t* pSrc, std::uint8_t* pDst, int nWidth, int nHeight,
                          int nChannels);
void RotateCounterPlane(const std::uint8_t* pSrc, std::uint8_t* pDst, int nWidth, int nHeight, int nChannels);
