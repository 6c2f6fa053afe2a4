#include "engines/warp/ResampleLine.h"

#include <cstring>

#include "engines/warp/GreyView.h"

namespace {

// The low byte of a number without its fraction. From 2^63 on a double is a multiple of 256 anyway; the
// infinite and what is no number count as 0.
std::uint8_t LowByte(double f) {
    constexpr double kBeyond = 9223372036854775808.0;
    return f > -kBeyond && f < kBeyond ? static_cast<std::uint8_t>(static_cast<std::int64_t>(f))
                                       : std::uint8_t{0};
}

}  // namespace

void CLineResampler::InvertMap(std::span<const float> map, EPass pass) {
    const std::size_t n = map.size() - 1;
    const std::size_t nMost = pass == EPass::Row ? n - 1 : n;
    std::size_t u = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const auto x = static_cast<double>(i);
        while (u < nMost && x > map[u + 1]) ++u;
        if (u == n) {
            m_arrPlace[i] = map[n - 1];
            continue;
        }
        const double fFrom = map[u];
        const double d = map[u + 1] - fFrom;
        m_arrPlace[i] = static_cast<float>(static_cast<double>(u) + (d == 0 ? 0.0 : (x - fFrom) / d));
    }
}

void CLineResampler::Run(std::span<float> map, const std::uint8_t* pIn, std::uint8_t* pOut, EPass pass) {
    const std::size_t n = map.size() - 1;
    map[n] = static_cast<float>(n);
    std::memset(pOut, kNoInk, n);
    if (n < 2) return;
    InvertMap(map, pass);

    const float* const pPlace = m_arrPlace.data();
    const std::size_t nTooFar = 16 * n + 4096;
    double fInSegment = 1.0;  // what is left of the source pixel
    double fSize = pPlace[1];
    double fOutSegment = fSize;  // what the target pixel still lacks
    double fSum = 0;
    double fHere = pIn[0];
    double fNext = pIn[1];
    std::size_t u = 0;
    for (std::size_t x = 0; x < n - 1;) {
        const double fIntensity = fHere * fInSegment + fNext * (1 - fInSegment);
        if (fInSegment >= fOutSegment) {
            fSum += fIntensity * fOutSegment;
            pOut[x] = fSize == 0 ? std::uint8_t{0} : LowByte(fSum / fSize);
            fSum = 0;
            fInSegment -= fOutSegment;
            ++x;
            // Behind the last pixel but one this is of no use, yet inside the table.
            fSize = static_cast<double>(pPlace[x + (x < n - 1)]) - pPlace[x];
            fOutSegment = fSize;
        } else {
            fSum += fIntensity * fInSegment;
            fOutSegment -= fInSegment;
            fInSegment = 1.0;
            if (++u > nTooFar) return;
            fHere = fNext;
            fNext = u + 1 < n ? pIn[u + 1] : kNoInk;
        }
    }
}
