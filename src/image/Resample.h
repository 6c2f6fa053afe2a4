#pragma once

#include <cstdint>
#include <vector>

#include "image/Geometry.h"

// Nearest-pixel scaling of a plane with 1 (alpha) or 3 bytes a pixel, rows without a gap, top row first;
// behind both blocks lie the slack bytes of CSharedBytes. Column x of dst is column trunc(x * sx) of src and
// row y is row trunc(y * sy), rows counted from the bottom in both, with sx and sy = src side / dst side in
// single precision.
void ResamplePlane(const std::uint8_t* pSrc, CSize sizeSrc, std::uint8_t* pDst, CSize sizeDst, int nChannels);

// The same for nRows rows of dst from nTop on alone: pDst is where the first of them goes.
void ResampleRows(const std::uint8_t* pSrc, CSize sizeSrc, std::uint8_t* pDst, CSize sizeDst, int nChannels,
                  int nTop, int nRows);

// Of one side: the source's pixel for every pixel of dst. For who scales row by row.
std::vector<std::uint32_t> NearestPixels(int nSrc, int nDst);
