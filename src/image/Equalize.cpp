#include "image/Equalize.h"

#include <array>
#include <optional>

#include "image/ColorSpace.h"

namespace {

using CLevels = std::array<std::uint8_t, 256>;

std::optional<CLevels> EqualLevels(CConstPixelView view) {
    std::array<std::uint64_t, 256> counts{};
    const std::size_t nBytes = view.Stride() * static_cast<std::size_t>(view.nHeight);
    for (std::size_t i = 0; i < nBytes; i += 3) {
        const std::uint8_t* const p = view.pBits + i;
        ++counts[static_cast<std::size_t>(117 * p[2] + 601 * p[1] + 306 * p[0]) >> 10];
    }
    for (std::size_t i = 1; i < counts.size(); ++i) counts[i] += counts[i - 1];
    const auto fLow = static_cast<double>(counts.front());
    const auto fHigh = static_cast<double>(counts.back());
    if (counts.front() == counts.back()) return std::nullopt;

    CLevels levels{};
    for (std::size_t i = 0; i < levels.size(); ++i) {
        levels[i] =
            static_cast<std::uint8_t>((static_cast<double>(counts[i]) - fLow) * 255.0 / (fHigh - fLow));
    }
    return levels;
}

}  // namespace

void EqualizeHistogram(CPixelView view) {
    const std::optional<CLevels> levels = EqualLevels(view);
    if (!levels) return;
    const std::size_t nBytes = view.Stride() * static_cast<std::size_t>(view.nHeight);
    for (std::size_t i = 0; i < nBytes; i += 3) {
        std::uint8_t* const p = view.pBits + i;
        CColor yuv = ColorRGBtoYUV({p[0], p[1], p[2]});
        yuv.r = (*levels)[yuv.r];
        const CColor rgb = ColorYUVtoRGB(yuv);
        p[0] = rgb.r;
        p[1] = rgb.g;
        p[2] = rgb.b;
    }
}
