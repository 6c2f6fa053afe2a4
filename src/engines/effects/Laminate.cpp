// Laminate: each block of the picture becomes half itself and half its own mean, a coarse mosaic seen through
// the picture.
//
// Blocks are made in place, row of blocks by row of blocks. One that reaches past the right edge runs on at
// the start of the next row, over pixels that were made already, and one row deeper than its neighbours. So
// the first pixels of the next row of blocks have been through one block before their own.

#include <algorithm>
#include <array>
#include <span>

#include "engines/effects/Effects.h"
#include "image/CpuChoice.h"

namespace {

using CSums = std::array<std::uint64_t, 3>;  // of halved red, green and blue bytes

// Bytes that are worked on at a time: a whole number of pixels, whose sums lie well inside the nearest cache.
constexpr std::size_t kPart = 3072;
// The halves of so many rows fit into a sum of 16 bits.
constexpr int kMaxRows = 512;

struct CRows {
    const std::uint8_t* p;
    std::size_t nStride;
    int nCount;
};

// pSums[i] is the sum of the halves of byte i of each row.
FOTARIUM_INLINE void SumHalves(const CRows& rows, std::size_t n, std::uint16_t* pSums) {
    std::fill_n(pSums, n, std::uint16_t{0});
    int y = 0;
    for (; y + 4 <= rows.nCount; y += 4) {
        const std::uint8_t* const p = rows.p + rows.nStride * static_cast<std::size_t>(y);
        const std::uint8_t* const q = p + rows.nStride;
        const std::uint8_t* const r = q + rows.nStride;
        const std::uint8_t* const s = r + rows.nStride;
        for (std::size_t i = 0; i < n; ++i)
            pSums[i] =
                static_cast<std::uint16_t>(pSums[i] + (p[i] >> 1) + (q[i] >> 1) + (r[i] >> 1) + (s[i] >> 1));
    }
    for (; y < rows.nCount; ++y) {
        const std::uint8_t* const p = rows.p + rows.nStride * static_cast<std::size_t>(y);
        for (std::size_t i = 0; i < n; ++i) pSums[i] = static_cast<std::uint16_t>(pSums[i] + (p[i] >> 1));
    }
}

// Each byte becomes its half and the byte of pMeans in its column.
FOTARIUM_INLINE void MixRows(const CRows& rows, std::uint8_t* pDst, std::size_t n,
                             const std::uint8_t* pMeans) {
    const std::uint8_t* pSrc = rows.p;
    for (int y = 0; y < rows.nCount; ++y, pSrc += rows.nStride, pDst += rows.nStride)
        for (std::size_t i = 0; i < n; ++i) pDst[i] = static_cast<std::uint8_t>((pSrc[i] >> 1) + pMeans[i]);
}

#if FOTARIUM_HAS_AVX2
FOTARIUM_AVX2 void SumHalvesWide(const CRows& rows, std::size_t n, std::uint16_t* pSums) {
    SumHalves(rows, n, pSums);
}

FOTARIUM_AVX2 void MixRowsWide(const CRows& rows, std::uint8_t* pDst, std::size_t n,
                               const std::uint8_t* pMeans) {
    MixRows(rows, pDst, n, pMeans);
}
#endif

// Calls what(block, first byte of the part, bytes) for the blocks of nSide columns that have bytes
// nFrom .. nFrom + n - 1 of a row.
template <class TWhat>
void ForBlocks(std::size_t nFrom, std::size_t n, std::size_t nSide, TWhat what) {
    std::size_t nBlock = nFrom / (3 * nSide);
    for (std::size_t i = 0; i < n; ++nBlock) {
        const std::size_t nEnd = std::min(3 * nSide * (nBlock + 1) - nFrom, n);
        what(nBlock, i, nEnd - i);
        i = nEnd;
    }
}

// Adds the halves of neighbouring blocks, nSide columns each, to blocks.
void AddBlocks(const CRows& rows, int nSide, std::span<CSums> blocks) {
    const auto nColumns = static_cast<std::size_t>(nSide);
    const std::size_t nBytes = 3 * nColumns * blocks.size();
    alignas(64) std::array<std::uint16_t, kPart> sums;
    for (std::size_t nFrom = 0; nFrom < nBytes; nFrom += kPart) {
        const std::size_t n = std::min(kPart, nBytes - nFrom);
        for (int y = 0; y < rows.nCount; y += kMaxRows) {
            const CRows part{rows.p + nFrom + rows.nStride * static_cast<std::size_t>(y), rows.nStride,
                             std::min(kMaxRows, rows.nCount - y)};
#if FOTARIUM_HAS_AVX2
            if (UseAvx2()) {
                SumHalvesWide(part, n, sums.data());
            } else
#endif
                SumHalves(part, n, sums.data());
            ForBlocks(nFrom, n, nColumns, [&](std::size_t nBlock, std::size_t nFirst, std::size_t nCount) {
                std::uint32_t r = 0;
                std::uint32_t g = 0;
                std::uint32_t b = 0;
                for (std::size_t i = nFirst; i < nFirst + nCount; i += 3) {
                    r += sums[i];
                    g += sums[i + 1];
                    b += sums[i + 2];
                }
                blocks[nBlock][0] += r;
                blocks[nBlock][1] += g;
                blocks[nBlock][2] += b;
            });
        }
    }
}

// Writes the rows of neighbouring blocks, mixed with the blocks' means, to pDst, which has the same stride
// and may be the same memory.
void MixBlocks(const CRows& rows, std::uint8_t* pDst, int nSide, std::span<const CSums> means) {
    const auto nColumns = static_cast<std::size_t>(nSide);
    const std::size_t nBytes = 3 * nColumns * means.size();
    alignas(64) std::array<std::uint8_t, kPart> pattern;
    for (std::size_t nFrom = 0; nFrom < nBytes; nFrom += kPart) {
        const std::size_t n = std::min(kPart, nBytes - nFrom);
        ForBlocks(nFrom, n, nColumns, [&](std::size_t nBlock, std::size_t nFirst, std::size_t nCount) {
            for (std::size_t i = nFirst; i < nFirst + nCount; ++i)
                pattern[i] = static_cast<std::uint8_t>(means[nBlock][i % 3]);
        });
        const CRows part{rows.p + nFrom, rows.nStride, rows.nCount};
#if FOTARIUM_HAS_AVX2
        if (UseAvx2()) {
            MixRowsWide(part, pDst + nFrom, n, pattern.data());
            continue;
        }
#endif
        MixRows(part, pDst + nFrom, n, pattern.data());
    }
}

void DivideBy(std::span<CSums> blocks, int nSide, int nRows) {
    const std::uint64_t nCells = static_cast<std::uint64_t>(nSide) * static_cast<std::uint64_t>(nRows);
    for (CSums& sums : blocks)
        for (std::uint64_t& nSum : sums) nSum /= nCells;
}

class CLaminate {
  public:
    CLaminate(const CEffectCall& call, int nSide)
        : m_src(call.src),
          m_dst(call.dst),
          m_nSide(nSide),
          m_nOver(call.src.nWidth % nSide == 0 ? 0 : nSide - call.src.nWidth % nSide) {}

    void Run() const {
        const int w = m_src.nWidth;
        const int h = m_src.nHeight;
        int y = 0;
        for (; y < h - m_nSide; y += m_nSide) {
            WholeBlocks(y, m_nSide, w / m_nSide);
            if (m_nOver > 0) LastBlock(y);
        }
        // The last row of blocks has what is left of the height, and stops short of the right edge.
        const int nBlocks = (w - m_nSide - 1) / m_nSide + 1;
        WholeBlocks(y, h - y, nBlocks);
        const std::size_t nMade = 3 * static_cast<std::size_t>(nBlocks) * static_cast<std::size_t>(m_nSide);
        for (; y < h; ++y)
            std::copy(m_src.Row(y) + nMade, m_src.Row(y) + m_src.Stride(), m_dst.Row(y) + nMade);
    }

  private:
    CRows Source(int x, int y, int nRows) const {
        return {m_src.Row(y) + 3 * static_cast<std::ptrdiff_t>(x), m_src.Stride(), nRows};
    }
    CRows Made(int x, int y, int nRows) const { return {Target(x, y), m_src.Stride(), nRows}; }
    std::uint8_t* Target(int x, int y) const { return m_dst.Row(y) + 3 * static_cast<std::ptrdiff_t>(x); }

    // The first nBlocks blocks from row y, nRows high, all inside the picture.
    void WholeBlocks(int y, int nRows, int nBlocks) const {
        const int nGroup = std::max(1, static_cast<int>(kPart / 3) / m_nSide);
        const int nMadeBefore = y > 0 ? m_nOver : 0;
        std::array<CSums, kPart / 3> groups;
        for (int i = 0; i < nBlocks; i += nGroup) {
            const int x = i * m_nSide;
            const int n = std::min(nGroup, nBlocks - i);
            const std::span<CSums> blocks(groups.data(), static_cast<std::size_t>(n));
            std::fill(blocks.begin(), blocks.end(), CSums{});
            if (x > 0 || nMadeBefore == 0) {
                AddBlocks(Source(x, y, nRows), m_nSide, blocks);
                DivideBy(blocks, m_nSide, nRows);
                MixBlocks(Source(x, y, nRows), Target(x, y), m_nSide, blocks);
                continue;
            }
            // The pixels that were made before lie in the first row of the first block.
            AddBlocks(Made(0, y, 1), nMadeBefore, blocks.first(1));
            AddBlocks(Source(nMadeBefore, y, 1), m_nSide - nMadeBefore, blocks.first(1));
            AddBlocks(Source(0, y + 1, nRows - 1), m_nSide, blocks.first(1));
            AddBlocks(Source(m_nSide, y, nRows), m_nSide, blocks.subspan(1));
            DivideBy(blocks, m_nSide, nRows);
            MixBlocks(Made(0, y, 1), Target(0, y), nMadeBefore, blocks.first(1));
            MixBlocks(Source(nMadeBefore, y, 1), Target(nMadeBefore, y), m_nSide - nMadeBefore,
                      blocks.first(1));
            MixBlocks(Source(0, y + 1, nRows - 1), Target(0, y + 1), m_nSide, blocks.first(1));
            MixBlocks(Source(m_nSide, y, nRows), Target(m_nSide, y), m_nSide, blocks.subspan(1));
        }
    }

    // The block at the right edge whose cells run on at the start of the next rows: those were made by the
    // first block already but for the lowest one.
    void LastBlock(int y) const {
        const int nInside = m_nSide - m_nOver;
        const int x = m_src.nWidth - nInside;
        CSums sums{};
        const std::span<CSums> block(&sums, 1);
        AddBlocks(Source(x, y, m_nSide), nInside, block);
        AddBlocks(Made(0, y + 1, m_nSide - 1), m_nOver, block);
        AddBlocks(Source(0, y + m_nSide, 1), m_nOver, block);
        DivideBy(block, m_nSide, m_nSide);
        MixBlocks(Source(x, y, m_nSide), Target(x, y), nInside, block);
        MixBlocks(Made(0, y + 1, m_nSide - 1), Target(0, y + 1), m_nOver, block);
        MixBlocks(Source(0, y + m_nSide, 1), Target(0, y + m_nSide), m_nOver, block);
    }

    CConstPixelView m_src;
    CPixelView m_dst;
    int m_nSide;
    int m_nOver;  // columns that the last block of a row has beyond the right edge
};

}  // namespace

// The side of a block is ten full-picture pixels a level, always below the picture's smaller side.
void Laminate(const CEffectCall& call) {
    const int w = call.src.nWidth;
    const int h = call.src.nHeight;
    if (call.nLevel <= 0) return CopyPicture(call);
    // A level as high as the reference width makes blocks that are wider than any picture; none above it can
    // do more.
    const auto nRefWidth = static_cast<std::uint64_t>(call.nRefWidth);
    const std::uint64_t nLevel = std::min(static_cast<std::uint64_t>(call.nLevel), nRefWidth);
    const std::uint64_t nWanted = nLevel * static_cast<std::uint64_t>(w) * 10 / nRefWidth;
    const auto nLargest = static_cast<std::uint64_t>(std::min(w, h) - 1);
    const auto nSide = static_cast<int>(std::min(nWanted, nLargest));
    if (nSide == 0) return CopyPicture(call);
    CLaminate(call, nSide).Run();
}
