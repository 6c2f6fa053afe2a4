#pragma once

#include <cstdint>

#include "Vec.h"

// Whole-number hashes and the noises made of them: the same on every machine, no seed but the arguments.

std::uint32_t HashBits(std::uint32_t n);
std::uint32_t HashCell(int x, int y, int z = 0);

// 0 <= value < 1.
inline float HashUnit(int x, int y, int z = 0) {
    return static_cast<float>(HashCell(x, y, z) >> 8) * (1.0F / 16777216.0F);
}

// Gradient noise about 0, within about -1..1, one wave a unit.
float Noise(CVec3 p);
float Noise(CVec2 p);

// nOctaves waves, each half as high and about twice as fine as the one before; within about -1..1.
float Fbm(CVec3 p, int nOctaves);
float Fbm(CVec2 p, int nOctaves);

// Sharp crests, 0..1, as of mountains.
float Ridged(CVec2 p, int nOctaves);

// Distances from p to the nearest and to the second nearest of points strewn one to each unit cell.
struct CCellular {
    float fFirst;
    float fSecond;
    std::uint32_t nId;
};
CCellular Cellular(CVec2 p);
CCellular Cellular(CVec3 p);

// A small fast generator (PCG); a pixel seeds one with its own number.
class CRandom {
  public:
    CRandom(std::uint32_t nPixel, std::uint32_t nPass)
        : m_nState((std::uint64_t{HashBits(nPixel)} << 32) ^ nPass) {
        Next();
    }
    float Unit() { return static_cast<float>(Next() >> 8) * (1.0F / 16777216.0F); }
    float Between(float fLow, float fHigh) { return fLow + (fHigh - fLow) * Unit(); }
    std::uint32_t Next() {
        m_nState = m_nState * 6364136223846793005ULL + 1442695040888963407ULL;
        const auto nMixed = static_cast<std::uint32_t>(((m_nState >> 18U) ^ m_nState) >> 27U);
        const auto nTurn = static_cast<std::uint32_t>(m_nState >> 59U);
        return (nMixed >> nTurn) | (nMixed << ((32U - nTurn) & 31U));
    }

  private:
    std::uint64_t m_nState;
};

// Two numbers in 0..1 as a point of the unit disk, or as a direction about +z with cosine weight.
CVec2 ToDisk(float u, float v);
CVec3 ToCosineHemisphere(float u, float v);
