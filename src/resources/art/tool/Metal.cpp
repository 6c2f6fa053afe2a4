#include "Metal.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace {

constexpr int kStreakPixels = 36;    // half the length of a streak, at single density
constexpr int kStreakContrast = 44;  // largest change of a channel before the streaks are averaged

uint32_t Scramble(uint32_t n) {
    n ^= n >> 16;
    n *= 0x7feb352dU;
    n ^= n >> 15;
    n *= 0x846ca68bU;
    return n ^ (n >> 16);
}

// Noise of mean 0 in 256ths of a grey level, averaged along the row.
std::vector<int> StreaksOfRow(int y, int nWidth, int nReach) {
    std::vector<int> arrNoise(static_cast<size_t>(nWidth + 2 * nReach));
    for (size_t i = 0; i < arrNoise.size(); ++i) {
        const uint32_t nHash =
            Scramble(static_cast<uint32_t>(y) * 7919U + static_cast<uint32_t>(i) * 104729U + 17U);
        arrNoise[i] = static_cast<int>(nHash & 0xFF) - 128;
    }
    // The whole row leans a little to one side: a brush has coarse and fine hairs.
    const int nRow = (static_cast<int>(Scramble(static_cast<uint32_t>(y) + 911U) & 0xFF) - 128) * 5 / 2;
    std::vector<int> arrStreaks(static_cast<size_t>(nWidth));
    int nSum = 0;
    for (int i = 0; i < 2 * nReach; ++i) nSum += arrNoise[static_cast<size_t>(i)];
    for (int x = 0; x < nWidth; ++x) {
        arrStreaks[static_cast<size_t>(x)] = nSum * kStreakContrast / (2 * nReach) + nRow;
        const auto nLeft = static_cast<size_t>(x);
        nSum += arrNoise[nLeft + static_cast<size_t>(2 * nReach)] - arrNoise[nLeft];
    }
    return arrStreaks;
}

}  // namespace

void BrushMetal(CSheet& sheet) {
    QImage& image = sheet.Image();
    const int nReach = kStreakPixels * sheet.Density();
    for (int y = 0; y < image.height(); ++y) {
        const std::vector<int> arrStreaks = StreaksOfRow(y, image.width(), nReach);
        auto* pRow = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int nShift = arrStreaks[static_cast<size_t>(x)] / 256;
            const auto Moved = [nShift](int nChannel) { return std::clamp(nChannel + nShift, 0, 255); };
            pRow[x] = qRgb(Moved(qRed(pRow[x])), Moved(qGreen(pRow[x])), Moved(qBlue(pRow[x])));
        }
    }
}
