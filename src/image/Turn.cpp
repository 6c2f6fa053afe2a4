#include "image/Turn.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <vector>

#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
#define FOTARIUM_VECTOR_CLONES __attribute__((target_clones("avx2", "default")))
#else
#define FOTARIUM_VECTOR_CLONES
#endif

namespace {

using CVector16 = std::uint8_t __attribute__((vector_size(16)));

// Five pixels in the other order; byte 15 is of no account.
constexpr CVector16 kFiveReversed = {12, 13, 14, 9, 10, 11, 6, 7, 8, 3, 4, 5, 0, 1, 2, 15};

// The rows must not overlap. Sixteen bytes are moved for five pixels, so the loop stops where the sixteenth
// would fall behind the row.
FOTARIUM_VECTOR_CLONES
void MirrorPixelRow(const std::uint8_t* __restrict pSrc, std::uint8_t* __restrict pDst, std::size_t nWidth) {
    const std::uint8_t* pFrom = pSrc + 3 * nWidth;
    std::size_t x = 0;
    for (; x + 6 <= nWidth; x += 5) {
        pFrom -= 15;
        CVector16 five;
        std::memcpy(&five, pFrom, 16);
        five = __builtin_shuffle(five, kFiveReversed);
        std::memcpy(pDst + 3 * x, &five, 16);
    }
    for (; x < nWidth; ++x) {
        pFrom -= 3;
        std::memcpy(pDst + 3 * x, pFrom, 3);
    }
}

void MirrorRow(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t nWidth, int nChannels) {
    if (nChannels == 3) {
        MirrorPixelRow(pSrc, pDst, nWidth);
    } else {
        std::reverse_copy(pSrc, pSrc + nWidth, pDst);
    }
}

// The side of the blocks in which a quarter turn goes over the picture: what a block reads and writes stays
// in the nearest caches, though the one runs across rows.
constexpr int kBlock = 32;

// Writes nCount pixels in a row, taken from nStep bytes apart. Moves four bytes for a pixel of three where
// the next pixel covers the fourth.
inline void GatherPixels(const std::uint8_t* pSrc, std::ptrdiff_t nStep, std::uint8_t* pDst, int nCount) {
    for (int i = 0; i + 1 < nCount; ++i, pSrc += nStep, pDst += 3) {
        std::uint32_t nPixel = 0;
        std::memcpy(&nPixel, pSrc, 4);
        std::memcpy(pDst, &nPixel, 4);
    }
    std::memcpy(pDst, pSrc, 3);
}

inline void GatherBytes(const std::uint8_t* pSrc, std::ptrdiff_t nStep, std::uint8_t* pDst, int nCount) {
    for (int i = 0; i < nCount; ++i, pSrc += nStep) pDst[i] = *pSrc;
}

// Row y, column x of dst is pFirst + y * nDown + x * nRight.
void TurnPlane(const std::uint8_t* pFirst, std::ptrdiff_t nRight, std::ptrdiff_t nDown, std::uint8_t* pDst,
               int nDstWidth, int nDstHeight, int nChannels) {
    const std::ptrdiff_t nStride = static_cast<std::ptrdiff_t>(nDstWidth) * nChannels;
    for (int y0 = 0; y0 < nDstHeight; y0 += kBlock) {
        const int y1 = std::min(y0 + kBlock, nDstHeight);
        for (int x0 = 0; x0 < nDstWidth; x0 += kBlock) {
            const int nCount = std::min(kBlock, nDstWidth - x0);
            for (int y = y0; y < y1; ++y) {
                const std::uint8_t* const pSrc = pFirst + y * nDown + x0 * nRight;
                std::uint8_t* const pRow = pDst + y * nStride + static_cast<std::ptrdiff_t>(x0) * nChannels;
                if (nChannels == 3) {
                    GatherPixels(pSrc, nRight, pRow, nCount);
                } else {
                    GatherBytes(pSrc, nRight, pRow, nCount);
                }
            }
        }
    }
}

}  // namespace

void MirrorPlane(const std::uint8_t* pSrc, std::uint8_t* pDst, int nWidth, int nHeight, int nChannels) {
    const auto nColumns = static_cast<std::size_t>(nWidth);
    const std::size_t nStride = nColumns * static_cast<std::size_t>(nChannels);
    std::vector<std::uint8_t> row(nStride + 16);
    for (int y = 0; y < nHeight; ++y, pSrc += nStride, pDst += nStride) {
        const std::uint8_t* pFrom = pSrc;
        if (pSrc == pDst) {
            std::memcpy(row.data(), pSrc, nStride);
            pFrom = row.data();
        }
        MirrorRow(pFrom, pDst, nColumns, nChannels);
    }
}

void Rotate180Plane(const std::uint8_t* pSrc, std::uint8_t* pDst, int nWidth, int nHeight, int nChannels) {
    const auto nColumns = static_cast<std::size_t>(nWidth);
    const std::size_t nStride = nColumns * static_cast<std::size_t>(nChannels);
    std::vector<std::uint8_t> row(nStride + 16);
    const std::uint8_t* pSrcEnd = pSrc + nStride * static_cast<std::size_t>(nHeight);
    std::uint8_t* pDstEnd = pDst + nStride * static_cast<std::size_t>(nHeight);
    // A pair of rows at a time, the upper one kept aside, so that source and target may be the same.
    for (int y = 0; y < (nHeight + 1) / 2; ++y, pSrc += nStride, pDst += nStride) {
        pSrcEnd -= nStride;
        pDstEnd -= nStride;
        std::memcpy(row.data(), pSrc, nStride);
        if (pSrcEnd != pSrc) MirrorRow(pSrcEnd, pDst, nColumns, nChannels);
        MirrorRow(row.data(), pDstEnd, nColumns, nChannels);
    }
}

void RotateClockwisePlane(const std::uint8_t* pSrc, std::uint8_t* pDst, int nWidth, int nHeight,
                          int nChannels) {
    const std::ptrdiff_t nStride = static_cast<std::ptrdiff_t>(nWidth) * nChannels;
    TurnPlane(pSrc + (nHeight - 1) * nStride, -nStride, nChannels, pDst, nHeight, nWidth, nChannels);
}

void RotateCounterPlane(const std::uint8_t* pSrc, std::uint8_t* pDst, int nWidth, int nHeight,
                        int nChannels) {
    const std::ptrdiff_t nStride = static_cast<std::ptrdiff_t>(nWidth) * nChannels;
    TurnPlane(pSrc + (nWidth - 1) * static_cast<std::ptrdiff_t>(nChannels), nStride, -nChannels, pDst,
              nHeight, nWidth, nChannels);
}
