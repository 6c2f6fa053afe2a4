#include "engines/warp/MeshWarp.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

#include "engines/warp/ResampleLine.h"
#include "engines/warp/Spline.h"

namespace {

constexpr std::size_t kFewestKnots = 3;
static_assert(kMeshPoints <= static_cast<int>(kMostKnots));

using CKnots = std::array<float, kMostKnots>;

// Lines of single-precision numbers, one after the other.
class CLines {
  public:
    CLines(std::size_t nLines, std::size_t nLength) : m_nLength(nLength), m_arr(nLines * nLength) {}

    float* Line(std::size_t i) { return m_arr.data() + i * m_nLength; }
    // One number of each of the first n lines.
    void Across(std::size_t nPlace, std::size_t n, CKnots& knots) const {
        for (std::size_t i = 0; i < n; ++i) knots[i] = m_arr[i * m_nLength + nPlace];
    }

  private:
    std::size_t m_nLength;
    std::vector<float> m_arr;
};

// The lines of one direction of the mesh, as they run before the warp and after it: for each of them its
// place across at every place along.
struct CGridLines {
    CGridLines(std::size_t nLines, std::size_t nLength) : before(nLines, nLength), after(nLines, nLength) {}

    // The map of the pixels that lie across at a place, one line of pixels long. False if a spline fails.
    [[nodiscard]] bool MapAt(std::size_t nPlace, std::size_t nLines, std::vector<float>& map) const {
        CKnots from, to;
        before.Across(nPlace, nLines, from);
        after.Across(nPlace, nLines, to);
        return Spline(from.data(), to.data(), nLines, map.data(), map.size() - 1);
    }

    CLines before;
    CLines after;
};

// Every line of the mesh as a spline in the direction that it runs in: along and across are the values of its
// points, one line of points lying nStep behind the other, the points of a line nStride apart.
[[nodiscard]] bool TraceLines(CLines& lines, std::size_t nLines, std::size_t nStep, const MeshValues& along,
                              const MeshValues& across, std::size_t nPoints, std::size_t nStride,
                              std::size_t nLength) {
    for (std::size_t i = 0; i < nLines; ++i) {
        CKnots x{}, y{};
        for (std::size_t k = 0; k < nPoints; ++k) {
            x[k] = along[i * nStep + k * nStride];
            y[k] = across[i * nStep + k * nStride];
        }
        if (!Spline(x.data(), y.data(), nPoints, lines.Line(i), nLength)) return false;
    }
    return true;
}

// How many columns of the plane are laid out as lines at a time: as many as make whole lines of the cache.
constexpr std::size_t kBlockColumns = 64;
// Lines of a power of two would all fall on the same few places of the cache.
constexpr std::size_t kLinePad = 64;

class CMeshWarp {
  public:
    CMeshWarp(const TextArtParam& param, CGreyView plane)
        : m_param(param),
          m_plane(plane),
          m_nWidth(static_cast<std::size_t>(plane.nWidth)),
          m_nHeight(static_cast<std::size_t>(plane.nHeight)),
          m_nCols(static_cast<std::size_t>(param.nMeshCols)),
          m_nRows(static_cast<std::size_t>(param.nMeshRows)),
          m_resampler(std::max(m_nWidth, m_nHeight)) {}

    // The first pass. False if a spline fails.
    [[nodiscard]] bool WarpRows() {
        CGridLines columns(m_nCols, m_nHeight);
        if (!TraceLines(columns.before, m_nCols, 1, m_param.fMeshSrcY, m_param.fMeshSrcX, m_nRows, m_nCols,
                        m_nHeight) ||
            !TraceLines(columns.after, m_nCols, 1, m_param.fMeshDstY, m_param.fMeshDstX, m_nRows, m_nCols,
                        m_nHeight))
            return false;
        std::vector<float> map(m_nWidth + 1);
        for (std::size_t y = 0; y < m_nHeight; ++y) {
            if (!columns.MapAt(y, m_nCols, map)) return false;
            std::uint8_t* const pRow = m_plane.Row(static_cast<int>(y));
            std::memcpy(m_resampler.Source(), pRow, m_nWidth);
            m_resampler.Run(map, pRow);
        }
        return true;
    }

    // The second pass. How many columns it has done before a spline failed.
    std::size_t WarpColumns() {
        CGridLines rows(m_nRows, m_nWidth);
        if (!TraceLines(rows.before, m_nRows, m_nCols, m_param.fMeshSrcX, m_param.fMeshSrcY, m_nCols, 1,
                        m_nWidth) ||
            !TraceLines(rows.after, m_nRows, m_nCols, m_param.fMeshDstX, m_param.fMeshDstY, m_nCols, 1,
                        m_nWidth))
            return 0;
        std::vector<float> map(m_nHeight + 1);
        std::vector<std::uint8_t> block((m_nHeight + kLinePad) * kBlockColumns);
        for (std::size_t xBlock = 0; xBlock < m_nWidth; xBlock += kBlockColumns) {
            const std::size_t nColumns = std::min(kBlockColumns, m_nWidth - xBlock);
            LayOut(xBlock, nColumns, block);
            std::size_t i = 0;
            for (; i < nColumns && rows.MapAt(xBlock + i, m_nRows, map); ++i) {
                std::uint8_t* const pLine = block.data() + i * (m_nHeight + kLinePad);
                std::memcpy(m_resampler.Source(), pLine, m_nHeight);
                m_resampler.Run(map, pLine);
            }
            PutBack(xBlock, i, block);
            if (i < nColumns) return xBlock + i;
        }
        return m_nWidth;
    }

  private:
    void LayOut(std::size_t xBlock, std::size_t nColumns, std::vector<std::uint8_t>& block) const {
        for (std::size_t y = 0; y < m_nHeight; ++y) {
            const std::uint8_t* const pRow = m_plane.Row(static_cast<int>(y)) + xBlock;
            std::uint8_t* p = block.data() + y;
            for (std::size_t i = 0; i < nColumns; ++i, p += m_nHeight + kLinePad) *p = pRow[i];
        }
    }
    void PutBack(std::size_t xBlock, std::size_t nColumns, const std::vector<std::uint8_t>& block) const {
        for (std::size_t y = 0; y < m_nHeight; ++y) {
            std::uint8_t* const pRow = m_plane.Row(static_cast<int>(y)) + xBlock;
            const std::uint8_t* p = block.data() + y;
            for (std::size_t i = 0; i < nColumns; ++i, p += m_nHeight + kLinePad) pRow[i] = *p;
        }
    }

    const TextArtParam& m_param;
    CGreyView m_plane;
    std::size_t m_nWidth;
    std::size_t m_nHeight;
    std::size_t m_nCols;
    std::size_t m_nRows;
    CLineResampler m_resampler;
};

}  // namespace

bool HasSplines(const TextArtParam& param) {
    constexpr auto kFewest = static_cast<int>(kFewestKnots);
    return param.nMeshCols >= kFewest && param.nMeshRows >= kFewest &&
           param.nMeshCols <= kMeshPoints / param.nMeshRows;
}

void MeshWarp(const TextArtParam& param, CGreyView plane) {
    CMeshWarp warp(param, plane);
    const std::size_t nDone = warp.WarpRows() ? warp.WarpColumns() : 0;
    const std::size_t nLeft = static_cast<std::size_t>(plane.nWidth) - nDone;
    if (nLeft == 0) return;
    for (int y = 0; y < plane.nHeight; ++y) std::memset(plane.Row(y) + nDone, kNoInk, nLeft);
}

std::size_t MeshWarpMemory(int nWidth, int nHeight) {
    constexpr std::size_t kTables = 2 * kMeshPoints / kFewestKnots * sizeof(float);
    constexpr std::size_t kLines = 2 * sizeof(float) + 2 * sizeof(int) + kBlockColumns + 1;
    return static_cast<std::size_t>(std::max(nWidth, nHeight)) * (kTables + kLines);
}
