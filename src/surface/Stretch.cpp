#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

#include "surface/Exact.h"
#include "surface/Surface.h"

namespace {

// Where the columns (or rows) of a stretched block come from.
struct CMap {
    // The first column that is painted, and for each from there on its column of the source.
    int nFirst = 0;
    std::vector<int> from;
};

// nTo, nToExtent and nFrom, nFromExtent: first pixel and signed extent of both blocks. What is painted lies
// in nClipFrom .. nClipTo - 1 and comes from 0 .. nSourceSide - 1.
CMap MapAxis(std::int64_t nFrom, std::int64_t nFromExtent, std::int64_t nTo, std::int64_t nToExtent,
             int nSourceSide, int nClipFrom, int nClipTo) {
    CMap map;
    const std::int64_t nSteps = nToExtent < 0 ? -nToExtent : nToExtent;
    const std::int64_t nSource = nFromExtent < 0 ? -nFromExtent : nFromExtent;
    const std::int64_t nLow = nToExtent < 0 ? nTo - nSteps + 1 : nTo;
    const std::int64_t nBegin = std::max<std::int64_t>(nLow, nClipFrom);
    const std::int64_t nEnd = std::min<std::int64_t>(nLow + nSteps, nClipTo);
    for (std::int64_t n = nBegin; n < nEnd; ++n) {
        const std::int64_t nStep = nToExtent < 0 ? nTo - n : n - nTo;
        // The source pixel that holds the middle of the step.
        const auto nOffset =
            static_cast<std::int64_t>(CInt128{2 * nStep + 1} * nSource / (CInt128{2} * nSteps));
        const std::int64_t nColumn = nFromExtent < 0 ? nFrom - nOffset : nFrom + nOffset;
        if (nColumn < 0 || nColumn >= nSourceSide) continue;
        if (map.from.empty()) map.nFirst = static_cast<int>(n);
        map.from.push_back(static_cast<int>(nColumn));
    }
    return map;
}

void BuildRow(std::uint8_t* pTo, const std::uint8_t* pFrom, const std::vector<int>& columns) {
    for (const int nColumn : columns) {
        std::memcpy(pTo, pFrom + std::ptrdiff_t{3} * nColumn, 3);
        pTo += 3;
    }
}

// Makes a row of nPixels pixels in which the first of the source stands nFirstRun times and the others
// nFactor times. Whole words are faster than three bytes; a word's fourth byte is the next pixel's to
// overwrite.
void RepeatPixels(std::uint8_t* pTo, const std::uint8_t* pFrom, std::size_t nPixels, int nFirstRun,
                  int nFactor) {
    const std::uint8_t* const pLast = pTo + 3 * (nPixels - 1);
    for (int nRun = nFirstRun; pTo < pLast; nRun = nFactor, pFrom += 3) {
        std::uint8_t word[4];
        std::memcpy(word, pFrom, 4);
        for (; nRun > 0 && pTo < pLast; --nRun, pTo += 3) std::memcpy(pTo, word, 4);
        if (nRun > 0) break;
    }
    std::memcpy(pTo, pFrom, 3);
}

}  // namespace

void CSurface::Stretch(const CPixels& pixels, const CBlock& blockFrom, const CBlock& blockTo,
                       const CRect& rcClip) {
    const CRect rcIn = rcClip.Intersect(Bounds());
    if (rcIn.IsEmpty() || pixels.IsEmpty()) return;
    const CMap columns = MapAxis(blockFrom.x, blockFrom.nWidth, blockTo.x, blockTo.nWidth, pixels.Width(),
                                 rcIn.left, rcIn.right);
    const CMap rows = MapAxis(blockFrom.y, blockFrom.nHeight, blockTo.y, blockTo.nHeight, pixels.Height(),
                              rcIn.top, rcIn.bottom);
    const CRect rcTo = CRect::FromPlace(columns.nFirst, rows.nFirst, static_cast<int>(columns.from.size()),
                                        static_cast<int>(rows.from.size()));
    const CPixelView view = Open(rcTo);
    if (view.pBits == nullptr) return;
    const std::size_t nBytes = 3 * columns.from.size();
    for (int y = rcTo.top; y < rcTo.bottom; ++y) {
        const auto nRow = static_cast<std::size_t>(y - rcTo.top);
        std::uint8_t* const pTo = view.Row(y) + std::ptrdiff_t{3} * rcTo.left;
        if (nRow > 0 && rows.from[nRow] == rows.from[nRow - 1])
            std::memcpy(pTo, pTo - view.Stride(), nBytes);
        else
            BuildRow(pTo, pixels.Row(rows.from[nRow]).data(), columns.from);
    }
}

void CSurface::DrawEnlarged(const CPixels& pixels, const CRect& rcSource, int x, int y, int nFactor,
                            const CRect& rcClip) {
    const CRect rcPart = rcSource.Intersect(CRect::FromPlace(0, 0, pixels.Width(), pixels.Height()));
    const CRect rcIn = rcClip.Intersect(Bounds());
    // Where the source's column or row n begins, cut at the clip before it has to fit into an int.
    const auto Place = [nFactor](int n, int nFirst, int nStart, int nClipFrom, int nClipTo) {
        const std::int64_t nPlace = nStart + (std::int64_t{n} - nFirst) * nFactor;
        return static_cast<int>(std::clamp<std::int64_t>(nPlace, nClipFrom, nClipTo));
    };
    if (rcPart.IsEmpty() || rcIn.IsEmpty()) return;
    const CRect rcTo{Place(rcPart.left, rcSource.left, x, rcIn.left, rcIn.right),
                     Place(rcPart.top, rcSource.top, y, rcIn.top, rcIn.bottom),
                     Place(rcPart.right, rcSource.left, x, rcIn.left, rcIn.right),
                     Place(rcPart.bottom, rcSource.top, y, rcIn.top, rcIn.bottom)};
    const CPixelView view = Open(rcTo);
    if (view.pBits == nullptr) return;
    const std::int64_t nSkip = std::int64_t{rcTo.left} - x;
    const auto nColumn = static_cast<std::ptrdiff_t>(rcSource.left + nSkip / nFactor);
    const auto nFirstRun = static_cast<int>(nFactor - nSkip % nFactor);
    const auto nPixels = static_cast<std::size_t>(rcTo.Width());
    std::int64_t nBuilt = -1;
    for (int row = rcTo.top; row < rcTo.bottom; ++row) {
        const std::int64_t nFrom = rcSource.top + (std::int64_t{row} - y) / nFactor;
        std::uint8_t* const pTo = view.Row(row) + std::ptrdiff_t{3} * rcTo.left;
        const std::uint8_t* const pFrom = pixels.Row(static_cast<int>(nFrom)).data() + 3 * nColumn;
        if (nFactor == 1)
            std::memcpy(pTo, pFrom, 3 * nPixels);
        else if (nFrom == nBuilt)
            std::memcpy(pTo, pTo - view.Stride(), 3 * nPixels);
        else
            RepeatPixels(pTo, pFrom, nPixels, nFirstRun, nFactor);
        nBuilt = nFrom;
    }
}
