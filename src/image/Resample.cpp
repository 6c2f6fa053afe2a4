#include "image/Resample.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

// Four bytes are moved for a pixel of three: the fourth is overwritten by the next pixel, by the next row, or
// falls into the slack. Rows must therefore be made from the top.
void PickPixels(const std::uint8_t* pSrc, std::uint8_t* pDst, const std::vector<std::uint32_t>& offsets) {
    for (const std::uint32_t nOffset : offsets) {
        std::uint32_t nPixel = 0;
        std::memcpy(&nPixel, pSrc + nOffset, 4);
        std::memcpy(pDst, &nPixel, 4);
        pDst += 3;
    }
}

void PickBytes(const std::uint8_t* pSrc, std::uint8_t* pDst, const std::vector<std::uint32_t>& offsets) {
    for (std::size_t i = 0; i < offsets.size(); ++i) pDst[i] = pSrc[offsets[i]];
}

}  // namespace

// Rounding may carry the product of a long side to the source's end, where there is no pixel; the last one
// stands for it.
std::vector<std::uint32_t> NearestPixels(int nSrc, int nDst) {
    const float fStep = static_cast<float>(nSrc) / static_cast<float>(nDst);
    std::vector<std::uint32_t> indices(static_cast<std::size_t>(nDst));
    for (int i = 0; i < nDst; ++i) {
        const int n = static_cast<int>(static_cast<float>(i) * fStep);
        indices[static_cast<std::size_t>(i)] = static_cast<std::uint32_t>(std::min(n, nSrc - 1));
    }
    return indices;
}

void ResamplePlane(const std::uint8_t* pSrc, CSize sizeSrc, std::uint8_t* pDst, CSize sizeDst,
                   int nChannels) {
    ResampleRows(pSrc, sizeSrc, pDst, sizeDst, nChannels, 0, sizeDst.cy);
}

void ResampleRows(const std::uint8_t* pSrc, CSize sizeSrc, std::uint8_t* pDst, CSize sizeDst, int nChannels,
                  int nTop, int nRows) {
    std::vector<std::uint32_t> columns = NearestPixels(sizeSrc.cx, sizeDst.cx);
    const std::vector<std::uint32_t> rows = NearestPixels(sizeSrc.cy, sizeDst.cy);
    for (std::uint32_t& n : columns) n *= static_cast<std::uint32_t>(nChannels);

    const std::size_t nSrcStride = static_cast<std::size_t>(sizeSrc.cx) * static_cast<std::size_t>(nChannels);
    const std::size_t nDstStride = static_cast<std::size_t>(sizeDst.cx) * static_cast<std::size_t>(nChannels);
    std::size_t nLastRow = SIZE_MAX;
    const std::size_t nEnd = static_cast<std::size_t>(nTop) + static_cast<std::size_t>(nRows);
    for (std::size_t y = static_cast<std::size_t>(nTop); y < nEnd; ++y, pDst += nDstStride) {
        const std::size_t nFromBottom = rows[rows.size() - 1 - y];
        const std::size_t nRow = static_cast<std::size_t>(sizeSrc.cy) - 1 - nFromBottom;
        if (nRow == nLastRow) {
            std::memcpy(pDst, pDst - nDstStride, nDstStride);
        } else if (nChannels == 3) {
            PickPixels(pSrc + nRow * nSrcStride, pDst, columns);
        } else {
            PickBytes(pSrc + nRow * nSrcStride, pDst, columns);
        }
        nLastRow = nRow;
    }
}
