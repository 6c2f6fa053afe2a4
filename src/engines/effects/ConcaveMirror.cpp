// Concave Mirror: each row is squeezed into the chord that a circle as high as the picture cuts from it; the
// corners outside are black.

#include <algorithm>
#include <array>
#include <cstring>

#include "engines/effects/Effects.h"
#include "engines/effects/Rgb565.h"

namespace {

// The columns from which the pixels of a chord come are summed up in single precision, one after the other,
// and that takes its time; so rows are squeezed four at a time, whose sums do not wait for each other.
constexpr int kLanes = 4;
constexpr int kPart = 512;

struct CChord {
    int x = 0;                                  // first column
    int nPixels = 0;                            // up to the last one
    float fStep = 0;                            // columns of the picture for each of them
    float fFrom = 0;                            // where the next pixel comes from
    std::array<std::int32_t, kPart> offsets{};  // where pixels come from, in bytes from the row's begin
};
using CChords = std::array<CChord, kLanes>;

// The next kPart places of each chord. Those behind a chord's end mean nothing. In a very wide picture the
// roundings may carry a sum over the row's end; the last pixel stands for what is not there.
void FindOffsets(CChords& chords, int w) {
    constexpr float kFarOut = 1 << 30;
    for (std::size_t k = 0; k < kPart; ++k) {
        for (CChord& chord : chords) {
            chord.offsets[k] = 3 * std::min(static_cast<int>(std::min(chord.fFrom, kFarOut)), w - 1);
            chord.fFrom += chord.fStep;
        }
    }
}

// Writes n pixels of a chord to pDst. Four bytes are moved for a pixel of three, the fourth is overwritten by
// the next; so not at the end, where another row may stand already.
void PickPixels(const std::uint8_t* pRow, const std::int32_t* pOffsets, int n, std::uint8_t* pDst) {
    std::uint32_t nMask = 0;
    std::memcpy(&nMask, &kMask565, sizeof kMask565);
    std::uint32_t nPixel = 0;
    for (int k = 0; k < n - 1; ++k, pDst += 3) {
        std::memcpy(&nPixel, pRow + pOffsets[k], 4);
        nPixel &= nMask;
        std::memcpy(pDst, &nPixel, 4);
    }
    std::memcpy(&nPixel, pRow + pOffsets[n - 1], 4);
    nPixel &= nMask;
    std::memcpy(pDst, &nPixel, 3);
}

// Black left and right of a chord that begins at column x. With an odd width the chord ends a pixel early,
// and that pixel stays where it is.
void FinishRow(const CEffectCall& call, int y, int x) {
    const int w = call.src.nWidth;
    std::uint8_t* const pRow = call.dst.Row(y);
    const std::size_t nDark = 3 * static_cast<std::size_t>(x);
    std::memset(pRow, 0, nDark);
    std::memset(pRow + call.dst.Stride() - nDark, 0, nDark);
    if (w % 2 != 0) call.dst.Set(w - 1 - x, y, ReduceTo565(call.src.Get(w - 1 - x, y)));
}

void SqueezeRows(const CEffectCall& call, int yFirst, CChords& chords) {
    const int h = call.src.nHeight;
    const auto IsLonger = [](const CChord& a, const CChord& b) { return a.nPixels < b.nPixels; };
    const int nLongest = std::max_element(chords.begin(), chords.end(), IsLonger)->nPixels;
    for (int nDone = 0; nDone < nLongest; nDone += kPart) {
        FindOffsets(chords, call.src.nWidth);
        for (int i = 0; i < kLanes; ++i) {
            const CChord& chord = chords[static_cast<std::size_t>(i)];
            const int n = std::min(chord.nPixels - nDone, kPart);
            if (n <= 0) continue;
            const std::ptrdiff_t nTo = 3 * (static_cast<std::ptrdiff_t>(chord.x) + nDone);
            for (const int y : {yFirst + i, h - 1 - yFirst - i})
                PickPixels(call.src.Row(y), chord.offsets.data(), n, call.dst.Row(y) + nTo);
        }
    }
}

}  // namespace

// The circle's middle is at half the width, its radius half the height. Rows are made in pairs from the
// outside to the middle, the upper and the lower one alike.
void ConcaveMirror(const CEffectCall& call) {
    const int w = call.src.nWidth;
    const int h = call.src.nHeight;
    const int cx = w / 2;
    const int cy = (h + 1) / 2;
    std::int64_t nRun = 0;  // from the middle to the chord's begin; grows from row to row
    for (int yFirst = 0; yFirst < cy; yFirst += kLanes) {
        CChords chords;
        const int nRows = std::min(kLanes, cy - yFirst);
        for (int i = 0; i < nRows; ++i) {
            const std::int64_t nRise = cy - yFirst - i;
            const std::int64_t nLimit = static_cast<std::int64_t>(cy) * cy - nRise * nRise;
            while (nRun < cx && (nRun + 1) * (nRun + 1) < nLimit) ++nRun;
            CChord& chord = chords[static_cast<std::size_t>(i)];
            chord.x = cx - static_cast<int>(nRun);
            chord.nPixels = 2 * static_cast<int>(nRun);
            if (nRun > 0) chord.fStep = static_cast<float>(w) / static_cast<float>(chord.nPixels);
        }
        SqueezeRows(call, yFirst, chords);
        for (int i = 0; i < nRows; ++i)
            for (const int y : {yFirst + i, h - 1 - yFirst - i})
                FinishRow(call, y, chords[static_cast<std::size_t>(i)].x);
    }
}
