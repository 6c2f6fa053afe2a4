#include "Noise.h"

#include <array>

std::uint32_t HashBits(std::uint32_t n) {
    n ^= n >> 16;
    n *= 0x7feb352dU;
    n ^= n >> 15;
    n *= 0x846ca68bU;
    n ^= n >> 16;
    return n;
}

std::uint32_t HashCell(int x, int y, int z) {
    return HashBits(static_cast<std::uint32_t>(x) * 0x9e3779b1U ^
                    HashBits(static_cast<std::uint32_t>(y) * 0x85ebca77U ^
                             HashBits(static_cast<std::uint32_t>(z) + 0x165667b1U)));
}

namespace {

int Floor(float f) {
    const int n = static_cast<int>(f);
    return f < static_cast<float>(n) ? n - 1 : n;
}

float Fade(float t) {
    return t * t * t * (t * (t * 6 - 15) + 10);
}

float GradientAt(int x, int y, int z, CVec3 d) {
    // The twelve edges of a cube, four of them twice, as Perlin's improved noise has it.
    const std::uint32_t n = HashCell(x, y, z) & 15U;
    const float u = n < 8 ? d.x : d.y;
    const float v = n < 4 ? d.y : (n == 12 || n == 14) ? d.x : d.z;
    return ((n & 1U) != 0 ? -u : u) + ((n & 2U) != 0 ? -v : v);
}

float GradientAt(int x, int y, CVec2 d) {
    static constexpr std::array<CVec2, 8> kWays{{{1, 0},
                                                 {-1, 0},
                                                 {0, 1},
                                                 {0, -1},
                                                 {0.7071F, 0.7071F},
                                                 {-0.7071F, 0.7071F},
                                                 {0.7071F, -0.7071F},
                                                 {-0.7071F, -0.7071F}}};
    return Dot(kWays[HashCell(x, y) & 7U], d);
}

}  // namespace

float Noise(CVec3 p) {
    const int x = Floor(p.x);
    const int y = Floor(p.y);
    const int z = Floor(p.z);
    const CVec3 d{p.x - static_cast<float>(x), p.y - static_cast<float>(y), p.z - static_cast<float>(z)};
    const float u = Fade(d.x);
    const float v = Fade(d.y);
    const float w = Fade(d.z);
    const auto plane = [&](int nUp) {
        const float dz = d.z - static_cast<float>(nUp);
        const float fNear = Mix(GradientAt(x, y, z + nUp, {d.x, d.y, dz}),
                                GradientAt(x + 1, y, z + nUp, {d.x - 1, d.y, dz}), u);
        const float fFar = Mix(GradientAt(x, y + 1, z + nUp, {d.x, d.y - 1, dz}),
                               GradientAt(x + 1, y + 1, z + nUp, {d.x - 1, d.y - 1, dz}), u);
        return Mix(fNear, fFar, v);
    };
    return Mix(plane(0), plane(1), w);
}

float Noise(CVec2 p) {
    const int x = Floor(p.x);
    const int y = Floor(p.y);
    const CVec2 d{p.x - static_cast<float>(x), p.y - static_cast<float>(y)};
    const float u = Fade(d.x);
    const float fTop = Mix(GradientAt(x, y, d), GradientAt(x + 1, y, {d.x - 1, d.y}), u);
    const float fBottom =
        Mix(GradientAt(x, y + 1, {d.x, d.y - 1}), GradientAt(x + 1, y + 1, {d.x - 1, d.y - 1}), u);
    return 1.4F * Mix(fTop, fBottom, Fade(d.y));
}

float Fbm(CVec3 p, int nOctaves) {
    float fSum = 0;
    float fHeight = 0.5F;
    for (int i = 0; i < nOctaves; ++i) {
        fSum += fHeight * Noise(p);
        fHeight *= 0.5F;
        p = CVec3{p.y * 1.6F + p.x * 1.2F, p.y * 1.2F - p.x * 1.6F, p.z * 2.01F} + CVec3{7.3F, 2.9F, 5.1F};
    }
    return fSum;
}

float Fbm(CVec2 p, int nOctaves) {
    float fSum = 0;
    float fHeight = 0.5F;
    for (int i = 0; i < nOctaves; ++i) {
        fSum += fHeight * Noise(p);
        fHeight *= 0.5F;
        // Turned by each octave, so that the lattice does not show.
        p = CVec2{p.x * 1.6F + p.y * 1.2F, p.y * 1.6F - p.x * 1.2F} + CVec2{13.7F, 5.3F};
    }
    return fSum;
}

float Ridged(CVec2 p, int nOctaves) {
    float fSum = 0;
    float fHeight = 0.5F;
    float fWeight = 1;
    for (int i = 0; i < nOctaves; ++i) {
        const float fCrest = 1 - std::fabs(Noise(p));
        const float f = fCrest * fCrest * fWeight;
        fSum += fHeight * f;
        fWeight = Clamp01(f * 1.6F);
        fHeight *= 0.5F;
        p = CVec2{p.x * 1.6F + p.y * 1.2F, p.y * 1.6F - p.x * 1.2F} + CVec2{3.1F, 17.9F};
    }
    return fSum;
}

CCellular Cellular(CVec2 p) {
    const int x = Floor(p.x);
    const int y = Floor(p.y);
    CCellular found{9, 9, 0};
    for (int j = y - 1; j <= y + 1; ++j) {
        for (int i = x - 1; i <= x + 1; ++i) {
            const CVec2 ptCell{static_cast<float>(i) + HashUnit(i, j, 1),
                               static_cast<float>(j) + HashUnit(i, j, 2)};
            const float f = Length(ptCell - p);
            if (f < found.fFirst) {
                found = {f, found.fFirst, HashCell(i, j, 3)};
            } else {
                found.fSecond = std::min(found.fSecond, f);
            }
        }
    }
    return found;
}

CCellular Cellular(CVec3 p) {
    const int x = Floor(p.x);
    const int y = Floor(p.y);
    const int z = Floor(p.z);
    CCellular found{9, 9, 0};
    for (int n = 0; n < 27; ++n) {
        const int i = x - 1 + n % 3;
        const int j = y - 1 + n / 3 % 3;
        const int k = z - 1 + n / 9;
        const std::uint32_t nHash = HashCell(i, j, k);
        const CVec3 ptCell{static_cast<float>(i) + static_cast<float>(nHash & 1023U) / 1024.0F,
                           static_cast<float>(j) + static_cast<float>(nHash >> 10 & 1023U) / 1024.0F,
                           static_cast<float>(k) + static_cast<float>(nHash >> 20 & 1023U) / 1024.0F};
        const float f = Length(ptCell - p);
        if (f < found.fFirst) {
            found = {f, found.fFirst, nHash};
        } else {
            found.fSecond = std::min(found.fSecond, f);
        }
    }
    return found;
}

CVec2 ToDisk(float u, float v) {
    const float r = std::sqrt(u);
    return {r * std::cos(2 * kPi * v), r * std::sin(2 * kPi * v)};
}

CVec3 ToCosineHemisphere(float u, float v) {
    const CVec2 pt = ToDisk(u, v);
    return {pt.x, pt.y, std::sqrt(std::max(0.0F, 1 - u))};
}
