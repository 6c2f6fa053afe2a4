#include "image/Equalize.h"

#include <algorithm>
#include <array>
#include <optional>

#include "image/ColorSpace.h"
#include "image/CpuChoice.h"

namespace {

std::array<std::uint64_t, 256> CountGreys(CConstPixelView view) {
    std::array<std::uint64_t, 256> counts{};
    const std::size_t nBytes = view.Stride() * static_cast<std::size_t>(view.nHeight);
    for (std::size_t i = 0; i < nBytes; i += 3) {
        const std::uint8_t* const p = view.pBits + i;
        ++counts[EqualGrey(p[0], p[1], p[2])];
    }
    return counts;
}

// One channel of some pixels behind each other, the form that vectors work on.
constexpr std::size_t kBlock = 512;
using CChannel = std::array<std::uint8_t, kBlock>;

FOTARIUM_INLINE void EqualizeBody(std::uint8_t* pPixels, std::size_t nPixels, const CEqualLevels& levels) {
    CChannel a{};
    CChannel b{};
    CChannel c{};
    for (std::size_t i = 0; i < nPixels; ++i) {
        a[i] = pPixels[3 * i];
        b[i] = pPixels[3 * i + 1];
        c[i] = pPixels[3 * i + 2];
    }
    for (std::size_t i = 0; i < kBlock; ++i) {
        const CColor yuv = ColorRGBtoYUV({a[i], b[i], c[i]});
        a[i] = yuv.r;
        b[i] = yuv.g;
        c[i] = yuv.b;
    }
    for (std::size_t i = 0; i < kBlock; ++i) a[i] = levels[a[i]];
    for (std::size_t i = 0; i < kBlock; ++i) {
        const CColor rgb = ColorYUVtoRGB({a[i], b[i], c[i]});
        a[i] = rgb.r;
        b[i] = rgb.g;
        c[i] = rgb.b;
    }
    for (std::size_t i = 0; i < nPixels; ++i) {
        pPixels[3 * i] = a[i];
        pPixels[3 * i + 1] = b[i];
        pPixels[3 * i + 2] = c[i];
    }
}

void EqualizePlain(std::uint8_t* pPixels, std::size_t nPixels, const CEqualLevels& levels) {
    EqualizeBody(pPixels, nPixels, levels);
}

FOTARIUM_AVX2 void EqualizeWide(std::uint8_t* pPixels, std::size_t nPixels, const CEqualLevels& levels) {
    EqualizeBody(pPixels, nPixels, levels);
}

}  // namespace

std::optional<CEqualLevels> EqualLevels(const std::array<std::uint64_t, 256>& greyCounts) {
    std::array<std::uint64_t, 256> sums = greyCounts;
    for (std::size_t i = 1; i < sums.size(); ++i) sums[i] += sums[i - 1];
    const auto fLow = static_cast<double>(sums.front());
    const auto fHigh = static_cast<double>(sums.back());
    if (sums.front() == sums.back()) return std::nullopt;

    CEqualLevels levels{};
    for (std::size_t i = 0; i < levels.size(); ++i) {
        levels[i] = static_cast<std::uint8_t>((static_cast<double>(sums[i]) - fLow) * 255.0 / (fHigh - fLow));
    }
    return levels;
}

void EqualizeHistogram(CPixelView view) {
    const std::optional<CEqualLevels> levels = EqualLevels(CountGreys(view));
    if (!levels) return;
    const auto equalize = UseAvx2() ? EqualizeWide : EqualizePlain;
    const std::size_t nPixels =
        static_cast<std::size_t>(view.nWidth) * static_cast<std::size_t>(view.nHeight);
    for (std::size_t i = 0; i < nPixels; i += kBlock) {
        equalize(view.pBits + 3 * i, std::min(kBlock, nPixels - i), *levels);
    }
}
