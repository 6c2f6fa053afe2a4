#include "image/Turn.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <vector>

#include "image/CpuChoice.h"
#include "image/Geometry.h"

namespace {

using CVector16 = std::uint8_t __attribute__((vector_size(16)));

// The rows must not overlap. Sixteen bytes are moved for five pixels, so the loop stops where the sixteenth
// would fall behind the row.
FOTARIUM_INLINE void MirrorPixels(const std::uint8_t* __restrict pSrc, std::uint8_t* __restrict pDst,
                                  std::size_t nWidth) {
    const std::uint8_t* pFrom = pSrc + 3 * nWidth;
    std::size_t x = 0;
    for (; x + 6 <= nWidth; x += 5) {
        pFrom -= 15;
        CVector16 five;
        std::memcpy(&five, pFrom, 16);
        // The other order; byte 15 is of no account.
        five = __builtin_shufflevector(five, five, 12, 13, 14, 9, 10, 11, 6, 7, 8, 3, 4, 5, 0, 1, 2, 15);
        std::memcpy(pDst + 3 * x, &five, 16);
    }
    for (; x < nWidth; ++x) {
        pFrom -= 3;
        std::memcpy(pDst + 3 * x, pFrom, 3);
    }
}

void MirrorPlain(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t nWidth) {
    MirrorPixels(pSrc, pDst, nWidth);
}

FOTARIUM_AVX2 void MirrorWide(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t nWidth) {
    MirrorPixels(pSrc, pDst, nWidth);
}

void MirrorRow(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t nWidth, int nChannels) {
    if (nChannels == 3) {
        (UseAvx2() ? MirrorWide : MirrorPlain)(pSrc, pDst, nWidth);
    } else {
        std::reverse_copy(pSrc, pSrc + nWidth, pDst);
    }
}

// A quarter turn goes over the picture in blocks, so that what a block reads and writes stays in the nearest
// cache, though the one runs across the rows of the other. kBlock pixels a side, worked off in kBand columns
// of the result by four of its rows. kBand source rows whose lines fall into the same set of a cache still
// fit there.
constexpr int kBlock = 64;
constexpr int kBand = 8;
constexpr int kQuad = 4;

// Pixels between the rows of the result and their source: row y, column x comes from pFirst + y * nDown + x *
// nRight.
struct CWalk {
    const std::uint8_t* pFirst;
    std::ptrdiff_t nRight;
    std::ptrdiff_t nDown;

    const std::uint8_t* At(int x, int y) const { return pFirst + y * nDown + x * nRight; }
};

struct CTarget {
    std::uint8_t* pBits;
    int nWidth;
    int nHeight;
    std::ptrdiff_t nStride;

    std::uint8_t* At(int x, int y, int nChannels) const {
        return pBits + y * nStride + static_cast<std::ptrdiff_t>(x) * nChannels;
    }
};

void TurnSlowly(const CWalk& walk, const CTarget& target, int nChannels, CRect rc) {
    for (int y = rc.top; y < rc.bottom; ++y) {
        const std::uint8_t* pSrc = walk.At(rc.left, y);
        std::uint8_t* pDst = target.At(rc.left, y, nChannels);
        for (int x = rc.left; x < rc.right; ++x, pSrc += walk.nRight, pDst += nChannels) {
            for (int c = 0; c < nChannels; ++c) pDst[c] = pSrc[c];
        }
    }
}

using CVector4 = std::uint32_t __attribute__((vector_size(16)));

// Four neighbours of a source row as four numbers, in the order in which the rows of the result take them.
template <bool kDownwards>
FOTARIUM_INLINE CVector4 LoadFour(const std::uint8_t* pPixels) {
    CVector16 bytes;
    std::memcpy(&bytes, kDownwards ? pPixels : pPixels - 9, 16);
    if constexpr (kDownwards) {
        bytes = __builtin_shufflevector(bytes, bytes, 0, 1, 2, 12, 3, 4, 5, 12, 6, 7, 8, 12, 9, 10, 11, 12);
    } else {
        bytes = __builtin_shufflevector(bytes, bytes, 9, 10, 11, 12, 6, 7, 8, 12, 3, 4, 5, 12, 0, 1, 2, 12);
    }
    return reinterpret_cast<CVector4>(bytes);
}

// Twelve bytes of pixels, then four that a later store covers.
FOTARIUM_INLINE CVector16 Pack(CVector4 pixels) {
    const auto bytes = reinterpret_cast<CVector16>(pixels);
    return __builtin_shufflevector(bytes, bytes, 0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 3, 7, 11, 15);
}

// Weaves the first or the second halves of two vectors.
FOTARIUM_INLINE CVector4 WeaveLow(CVector4 a, CVector4 b) {
    return __builtin_shufflevector(a, b, 0, 4, 1, 5);
}
FOTARIUM_INLINE CVector4 WeaveHigh(CVector4 a, CVector4 b) {
    return __builtin_shufflevector(a, b, 2, 6, 3, 7);
}

// Four rows of kQuad pixels, each from a column of the source.
template <bool kDownwards>
FOTARIUM_INLINE void TransposeQuad(const std::uint8_t* pSrc, std::ptrdiff_t nRight,
                                   CVector16 (&rows)[kQuad]) {
    const CVector4 a = LoadFour<kDownwards>(pSrc);
    const CVector4 b = LoadFour<kDownwards>(pSrc + nRight);
    const CVector4 c = LoadFour<kDownwards>(pSrc + 2 * nRight);
    const CVector4 d = LoadFour<kDownwards>(pSrc + 3 * nRight);
    const CVector4 acLow = WeaveLow(a, c);
    const CVector4 acHigh = WeaveHigh(a, c);
    const CVector4 bdLow = WeaveLow(b, d);
    const CVector4 bdHigh = WeaveHigh(b, d);
    rows[0] = Pack(WeaveLow(acLow, bdLow));
    rows[1] = Pack(WeaveHigh(acLow, bdLow));
    rows[2] = Pack(WeaveLow(acHigh, bdHigh));
    rows[3] = Pack(WeaveHigh(acHigh, bdHigh));
}

template <bool kDownwards>
FOTARIUM_INLINE void TurnBand(const CWalk& walk, const CTarget& target, int x, int y) {
    const std::uint8_t* const pSrc = walk.At(x, y);
    std::uint8_t* pDst = target.At(x, y, 3);
    CVector16 left[kQuad];
    CVector16 right[kQuad];
    TransposeQuad<kDownwards>(pSrc, walk.nRight, left);
    TransposeQuad<kDownwards>(pSrc + kQuad * walk.nRight, walk.nRight, right);
    for (int i = 0; i < kQuad; ++i, pDst += target.nStride) {
        std::memcpy(pDst, &left[i], 16);
        std::memcpy(pDst + 12, &right[i], 12);
    }
}

template <bool kDownwards>
FOTARIUM_INLINE void TurnBlock(const CWalk& walk, const CTarget& target, CRect rc) {
    const int nBandsEnd = rc.left + rc.Width() / kBand * kBand;
    const int nQuadsEnd = rc.top + rc.Height() / kQuad * kQuad;
    for (int x = rc.left; x < nBandsEnd; x += kBand) {
        for (int y = rc.top; y < nQuadsEnd; y += kQuad) TurnBand<kDownwards>(walk, target, x, y);
    }
    TurnSlowly(walk, target, 3, {nBandsEnd, rc.top, rc.right, nQuadsEnd});
    TurnSlowly(walk, target, 3, {rc.left, nQuadsEnd, rc.right, rc.bottom});
}

template <bool kDownwards>
void TurnPlain(const CWalk& walk, const CTarget& target, CRect rc) {
    TurnBlock<kDownwards>(walk, target, rc);
}

template <bool kDownwards>
FOTARIUM_AVX2 void TurnWide(const CWalk& walk, const CTarget& target, CRect rc) {
    TurnBlock<kDownwards>(walk, target, rc);
}

using CTurnCall = void (*)(const CWalk&, const CTarget&, CRect);

CTurnCall ChooseTurn(bool bDownwards) {
    if (UseAvx2()) return bDownwards ? TurnWide<true> : TurnWide<false>;
    return bDownwards ? TurnPlain<true> : TurnPlain<false>;
}

void TurnPlane(const CWalk& walk, const CTarget& target, int nChannels) {
    const CTurnCall turn = ChooseTurn(walk.nDown > 0);
    for (int y = 0; y < target.nHeight; y += kBlock) {
        for (int x = 0; x < target.nWidth; x += kBlock) {
            const CRect rc{x, y, std::min(x + kBlock, target.nWidth), std::min(y + kBlock, target.nHeight)};
            if (nChannels != 3) {
                TurnSlowly(walk, target, nChannels, rc);
            } else {
                turn(walk, target, rc);
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

void FlipPlane(const std::uint8_t* pSrc, std::uint8_t* pDst, int nWidth, int nHeight, int nChannels) {
    const std::size_t nStride = static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(nChannels);
    pDst += nStride * static_cast<std::size_t>(nHeight);
    for (int y = 0; y < nHeight; ++y, pSrc += nStride) {
        pDst -= nStride;
        std::memcpy(pDst, pSrc, nStride);
    }
}

void RotateClockwisePlane(const std::uint8_t* pSrc, std::uint8_t* pDst, int nWidth, int nHeight,
                          int nChannels) {
    const std::ptrdiff_t nStride = static_cast<std::ptrdiff_t>(nWidth) * nChannels;
    const CWalk walk{pSrc + (nHeight - 1) * nStride, -nStride, nChannels};
    TurnPlane(walk, {pDst, nHeight, nWidth, static_cast<std::ptrdiff_t>(nHeight) * nChannels}, nChannels);
}

void RotateCounterPlane(const std::uint8_t* pSrc, std::uint8_t* pDst, int nWidth, int nHeight,
                        int nChannels) {
    const std::ptrdiff_t nStride = static_cast<std::ptrdiff_t>(nWidth) * nChannels;
    const CWalk walk{pSrc + nStride - nChannels, nStride, -nChannels};
    TurnPlane(walk, {pDst, nHeight, nWidth, static_cast<std::ptrdiff_t>(nHeight) * nChannels}, nChannels);
}
