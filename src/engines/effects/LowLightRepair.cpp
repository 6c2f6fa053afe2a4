#include <algorithm>

#include "engines/effects/Effects.h"
#include "engines/effects/GreyCounts.h"
#include "image/CpuChoice.h"

namespace {

constexpr std::uint32_t kDarkMean = 70;
constexpr int kNarrowRange = 40;

// What the middle of the picture tells: its darkest and lightest level, a few outliers left out, and its
// mean.
struct CLevelsFound {
    int nLow = 0;
    int nHigh = 255;
    std::uint32_t nMean = 0;
};

struct CLevelsWanted {
    int nBottom;
    int nTop;
};

// Every second pixel of every second row of the middle. The first byte of a row's first sample need not be a
// pixel's first.
CGreyCounts CountMiddle(CConstPixelView src) {
    CGreyCounter counter;
    const int xFirst = static_cast<int>(std::int64_t{3} * src.nWidth / 8);
    const int yFirst = src.nHeight / 8;
    // Samples stand 6 bytes apart from xFirst to below 7 xFirst.
    const auto nSamples = static_cast<std::size_t>(xFirst);
    for (int y = yFirst; y < 7 * yFirst; y += 2) counter.Add(src.Row(y) + xFirst, nSamples);
    return counter.Counts();
}

// nNominal is the number of samples as the picture's size tells it, not the one that was counted.
CLevelsFound FindLevels(const CGreyCounts& counts, std::uint32_t nNominal) {
    CLevelsFound found;
    std::uint32_t nSum = 0;
    for (std::uint32_t k = 0; k < counts.size(); ++k) nSum += k * counts[k];
    found.nMean = std::max(nSum / nNominal, 1U);
    const std::uint32_t nScale = found.nMean / 16 + 1;
    const double fScaled = static_cast<double>(nNominal) * static_cast<double>(nScale);
    const auto nLowCount = static_cast<std::uint32_t>(fScaled * 0.0015);
    const auto nHighCount = static_cast<std::uint32_t>(fScaled * 0.0025);

    std::uint32_t nTotal = counts[0];
    while (nTotal < nLowCount && found.nLow < 255) nTotal += counts[static_cast<std::size_t>(++found.nLow)];
    if (nTotal < nLowCount) found.nLow = 0;
    nTotal = counts[255];
    while (nTotal < nHighCount && found.nHigh > 0) nTotal += counts[static_cast<std::size_t>(--found.nHigh)];
    if (nTotal < nHighCount) found.nHigh = 255;
    if (found.nHigh <= found.nLow) return {0, 255, 128};
    return found;
}

CLevelsWanted WantedLevels(const CLevelsFound& found) {
    const int nRange = found.nHigh - found.nLow;
    if (found.nMean <= kDarkMean) {
        const int nLift = nRange <= kNarrowRange ? 28 : 20;
        return {found.nLow / 2 + nLift, std::min((found.nHigh + 600) / 4 + nLift, 255)};
    }
    if (nRange > kNarrowRange) return {found.nLow / 8, 255};
    const int nBottom = std::max(found.nLow - nRange / 2, 0);
    return {nBottom, std::min(nBottom + 2 * nRange, 255)};
}

// The straight line from bottom to top, flat beyond both ends. All of it fits into 16 bits without a sign:
// the rise is not above 255 and never negative.
struct CLine {
    CLine(const CLevelsFound& found, CLevelsWanted wanted)
        : nLow(static_cast<std::uint8_t>(found.nLow)),
          nRange(static_cast<std::uint8_t>(found.nHigh - found.nLow)),
          nBottom(static_cast<std::uint8_t>(wanted.nBottom)),
          nSlope(static_cast<std::uint16_t>((wanted.nTop - wanted.nBottom) * 128 / nRange)),
          nLastStep(static_cast<std::uint8_t>(wanted.nTop - wanted.nBottom - nSlope * nRange / 128)) {}

    std::uint8_t nLow;
    std::uint8_t nRange;
    std::uint8_t nBottom;
    std::uint16_t nSlope;    // for 128 levels
    std::uint8_t nLastStep;  // what the cut slope lacks at the upper end
};

FOTARIUM_INLINE void StretchBody(const std::uint8_t* __restrict pSrc, std::uint8_t* __restrict pDst,
                                 std::size_t n, CLine line) {
    for (std::size_t i = 0; i < n; ++i) {
        const std::uint8_t nFrom = pSrc[i] > line.nLow ? pSrc[i] : line.nLow;
        const auto nOver = static_cast<std::uint8_t>(nFrom - line.nLow);
        const std::uint8_t nStep = nOver < line.nRange ? nOver : line.nRange;
        const auto nRise = static_cast<std::uint8_t>(static_cast<std::uint16_t>(nStep * line.nSlope) >> 7);
        const std::uint8_t nEnd = nStep == line.nRange ? line.nLastStep : 0;
        pDst[i] = static_cast<std::uint8_t>(line.nBottom + nRise + nEnd);
    }
}

void StretchPlain(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t n, const CLine& line) {
    StretchBody(pSrc, pDst, n, line);
}

FOTARIUM_AVX2 void StretchWide(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t n,
                               const CLine& line) {
    StretchBody(pSrc, pDst, n, line);
}

}  // namespace

// Stretches the levels by what the histogram of the picture's middle tells: a dark picture is lifted, a pale
// one widened. All channels go through one map. A picture of less than 8 pixels stays.
void LowLightRepair(const CEffectCall& call) {
    const auto nWidth = static_cast<std::uint32_t>(call.src.nWidth);
    const auto nHeight = static_cast<std::uint32_t>(call.src.nHeight);
    const std::uint32_t nNominal = 9 * nWidth * nHeight / 64;
    if (nNominal == 0) return CopyPicture(call);
    const CLevelsFound found = FindLevels(CountMiddle(call.src), nNominal);
    const auto stretch = UseAvx2() ? StretchWide : StretchPlain;
    stretch(call.src.pBits, call.dst.pBits, call.src.Stride() * nHeight, CLine(found, WantedLevels(found)));
}
