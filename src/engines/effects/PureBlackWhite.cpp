#include <algorithm>
#include <vector>

#include "engines/effects/ColourRows.h"
#include "engines/effects/Effects.h"
#include "image/CpuChoice.h"

namespace {

// The picture is worked off in blocks of at most so many columns: their rows are read and written in whole
// cache lines, while the running sum goes down column after column.
constexpr std::size_t kColumns = 256;

FOTARIUM_INLINE void MeansBody(const std::uint8_t* __restrict pR, const std::uint8_t* __restrict pG,
                               std::uint8_t* __restrict pMean, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) pMean[i] = static_cast<std::uint8_t>((pR[i] + pG[i]) / 2);
}

// The running sum of 16 bits, and what a pixel is held against.
class CAdaptiveThreshold {
  public:
    // nSpan pixels, above 0, are what the sum settles over.
    CAdaptiveThreshold(std::uint16_t nSpan, int nLevel)
        : m_nReciprocal((kOne + nSpan - 1) / nSpan),
          m_nSum(static_cast<std::uint16_t>(nSpan * 128)),
          m_nPixelFactor(nSpan * 100LL),
          m_nSumFactor(nLevel + 50LL) {}

    // Turns one column of nRows means, nStride bytes apart, into 255 for white and 0 for black.
    void GoDown(std::uint8_t* p, std::size_t nRows, std::size_t nStride) {
        std::uint64_t nSum = m_nSum;
        for (std::size_t y = 0; y < nRows; ++y, p += nStride) {
            const std::uint64_t nMean = *p;
            // (sum + mean - sum / span) modulo 2^16. The sum stands in the upper 16 bits, where it wraps by
            // itself; the fraction of the quotient is below one of its steps, and kOne - 1 keeps that from
            // borrowing one.
            nSum = (((nSum + nMean) << 48) + (kOne - 1) - nSum * m_nReciprocal) >> 48;
            const bool bWhite = m_nPixelFactor * static_cast<std::int64_t>(nMean) >=
                                m_nSumFactor * static_cast<std::int64_t>(nSum);
            *p = static_cast<std::uint8_t>(-static_cast<int>(bWhite));
        }
        m_nSum = static_cast<std::uint16_t>(nSum);
    }

  private:
    static constexpr std::uint64_t kOne = std::uint64_t{1} << 48;

    std::uint64_t m_nReciprocal;  // 2^48 / span, rounded up: exact for every sum
    std::uint16_t m_nSum;
    std::int64_t m_nPixelFactor;
    std::int64_t m_nSumFactor;
};

// The means of red and green in nColumns columns, row behind row.
void LoadMeans(const CEffectCall& call, std::size_t nColumn, std::size_t nColumns, std::uint8_t* pMeans) {
    CChunk rgb;
    for (int y = 0; y < call.src.nHeight; ++y, pMeans += nColumns) {
        SplitRgb(call.src.Row(y) + 3 * nColumn, rgb.a, rgb.b, rgb.c, nColumns);
        MeansBody(rgb.a, rgb.b, pMeans, nColumns);
    }
}

}  // namespace

// Black and white by a threshold that follows the picture: a pixel is white if the mean of its red and green
// reaches (level + 50) percent of what the last eighth of the width has had, going down the columns one after
// the other. Below 8 pixels of width there is no such eighth, and nothing changes.
void PureBlackWhite(const CEffectCall& call) {
    const auto nSpan = static_cast<std::uint16_t>(call.src.nWidth / 8);
    if (call.nLevel == 0 || nSpan == 0) return CopyPicture(call);
    const auto nWidth = static_cast<std::size_t>(call.src.nWidth);
    const auto nHeight = static_cast<std::size_t>(call.src.nHeight);
    CAdaptiveThreshold threshold(nSpan, call.nLevel);
    std::vector<std::uint8_t> arrBlock(std::min(kColumns, nWidth) * nHeight);
    for (std::size_t x = 0; x < nWidth; x += kColumns) {
        const std::size_t nColumns = std::min(kColumns, nWidth - x);
        LoadMeans(call, x, nColumns, arrBlock.data());
        for (std::size_t i = 0; i < nColumns; ++i) threshold.GoDown(arrBlock.data() + i, nHeight, nColumns);
        const std::uint8_t* pWhite = arrBlock.data();
        for (int y = 0; y < call.dst.nHeight; ++y, pWhite += nColumns)
            JoinRgb(pWhite, pWhite, pWhite, call.dst.Row(y) + 3 * x, nColumns);
    }
}
