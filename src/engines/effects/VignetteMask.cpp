// The mask is a function of the distance from the oval's middle, measured in the oval's own half axes, and a
// small correction that carries it through a net of measured values. Both are monotone cubic interpolations,
// so nothing swings over between the values that are known.

#include "engines/effects/VignetteMask.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace {

struct CKnot {
    double x;
    double y;
};

// The grey at a distance from the middle; 1 is the oval's rim.
constexpr std::array<CKnot, 17> kProfile = {{
    {0.00, 16},
    {0.68, 16},
    {0.80, 16.6},
    {0.90, 17},
    {1.00, 17.3},
    {1.06, 18},
    {1.15, 23.5},
    {1.20, 35},
    {1.26, 53},
    {1.37, 85},
    {1.44, 118},
    {1.52, 157},
    {1.63, 188},
    {1.72, 212},
    {1.88, 229.5},
    {2.05, 235},
    {4.00, 235},
}};

constexpr double kMiddleX = 79;
constexpr double kMiddleY = 62;
constexpr double kHalfWidth = 34;
constexpr double kHalfHeight = 37;

// What the mask is at every tenth column of five rows.
constexpr std::size_t kNetColumns = 16;
constexpr int kNetStep = 10;
struct CNetRow {
    int nRow;
    std::array<int, kNetColumns> values;
};
constexpr std::array<CNetRow, 5> kNet = {{
    {0, {235, 235, 235, 235, 234, 230, 219, 210, 205, 212, 224, 230, 235, 235, 235, 235}},
    {30, {235, 235, 235, 203, 123, 39, 18, 17, 17, 17, 18, 53, 145, 217, 235, 235}},
    {60, {235, 235, 208, 115, 23, 17, 16, 16, 16, 16, 16, 17, 37, 151, 231, 235}},
    {90, {235, 235, 234, 180, 84, 21, 17, 16, 16, 17, 17, 32, 119, 204, 235, 235}},
    {119, {235, 235, 235, 235, 234, 222, 198, 176, 173, 180, 204, 228, 234, 235, 235, 235}},
}};

double Slope(const CKnot& a, const CKnot& b) {
    return (b.y - a.y) / (b.x - a.x);
}

// The tangent at knot i: none at an end or where the direction turns, otherwise a mean of the slopes at both
// sides in which the flatter one weighs more.
double Tangent(std::span<const CKnot> knots, std::size_t i) {
    if (i == 0 || i + 1 == knots.size()) return 0;
    const double fLeft = Slope(knots[i - 1], knots[i]);
    const double fRight = Slope(knots[i], knots[i + 1]);
    if (fLeft * fRight <= 0) return 0;
    const double fWidthLeft = knots[i].x - knots[i - 1].x;
    const double fWidthRight = knots[i + 1].x - knots[i].x;
    const double fWeightLeft = fWidthLeft + 2 * fWidthRight;
    const double fWeightRight = 2 * fWidthLeft + fWidthRight;
    return (fWeightLeft + fWeightRight) / (fWeightLeft / fLeft + fWeightRight / fRight);
}

// The monotone cubic curve through the knots; beyond them it stays level.
double Interpolate(std::span<const CKnot> knots, double x) {
    if (x <= knots.front().x) return knots.front().y;
    if (x >= knots.back().x) return knots.back().y;
    std::size_t i = 0;
    while (knots[i + 1].x <= x) ++i;
    const double fWidth = knots[i + 1].x - knots[i].x;
    const double t = (x - knots[i].x) / fWidth;
    const double s = 1 - t;
    return s * s * (1 + 2 * t) * knots[i].y + t * t * (3 - 2 * t) * knots[i + 1].y +
           fWidth * t * s * (s * Tangent(knots, i) - t * Tangent(knots, i + 1));
}

double Profile(int x, int y) {
    const double fX = (x - kMiddleX) / kHalfWidth;
    const double fY = (y - kMiddleY) / kHalfHeight;
    return Interpolate(kProfile, std::sqrt(fX * fX + fY * fY));
}

// How far the profile is off in row y of the net, at column x.
double CorrectionInNetRow(const CNetRow& row, int x) {
    std::array<CKnot, kNetColumns> knots;
    for (std::size_t i = 0; i < kNetColumns; ++i) {
        const int nColumn = kNetStep * static_cast<int>(i);
        knots[i] = {static_cast<double>(nColumn), row.values[i] - Profile(nColumn, row.nRow)};
    }
    return Interpolate(knots, x);
}

}  // namespace

CVignetteMask::CVignetteMask() {
    for (int x = 0; x < kWidth; ++x) {
        std::array<CKnot, kNet.size()> knots;
        for (std::size_t i = 0; i < kNet.size(); ++i)
            knots[i] = {static_cast<double>(kNet[i].nRow), CorrectionInNetRow(kNet[i], x)};
        for (int y = 0; y < kHeight; ++y) {
            const double fGrey = std::clamp(Profile(x, y) + Interpolate(knots, y), 16.0, 235.0);
            m_rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] =
                static_cast<std::uint8_t>(std::lround(fGrey));
        }
    }
}

const CVignetteMask& VignetteMask() {
    static const CVignetteMask mask;
    return mask;
}
