#include "engines/warp/ProjectMask.h"

#include <cstring>

#include "image/CpuChoice.h"

namespace {

using CShares = CProjection::CShares;

// The shares of a row of the box, its own already in.
struct CRowShares {
    double fColumn;
    double fRow;
    double fFixed;

    FOTARIUM_INLINE double At(double fAcross) const { return fColumn * fAcross + fRow + fFixed; }
};

CRowShares InRow(const CShares& shares, double fDown) {
    return {shares.fColumn, shares.fRow * fDown, shares.fFixed};
}

struct CPlaces {
    CRowShares s;
    CRowShares t;
    CRowShares z;
    double fWidth;
    double fHeight;
};

// A z of 0 makes a place infinite or no number; both lie outside the mask.
FOTARIUM_INLINE void PlacesBody(const CPlaces& in, const double* __restrict pAcross, float* __restrict pS,
                                float* __restrict pT, std::size_t n) {
    const CPlaces places = in;
    for (std::size_t x = 0; x < n; ++x) {
        const double z = static_cast<float>(places.z.At(pAcross[x]));
        pS[x] = static_cast<float>(places.fWidth * places.s.At(pAcross[x]) / z);
        pT[x] = static_cast<float>(places.fHeight * places.t.At(pAcross[x]) / z);
    }
}

void PlacesPlain(const CPlaces& places, const double* pAcross, float* pS, float* pT, std::size_t n) {
    PlacesBody(places, pAcross, pS, pT, n);
}

FOTARIUM_AVX2 void PlacesWide(const CPlaces& places, const double* pAcross, float* pS, float* pT,
                              std::size_t n) {
    PlacesBody(places, pAcross, pS, pT, n);
}

float Between(float f, std::uint8_t nFirst, std::uint8_t nSecond) {
    return static_cast<float>((1.0 - f) * nFirst + static_cast<double>(f) * nSecond);
}

// At a place all four pixels round which are in the mask.
std::uint8_t Sample(CConstGreyView mask, float s, float t) {
    const int i = static_cast<int>(s);
    const int j = static_cast<int>(t);
    const auto fx = static_cast<float>(static_cast<double>(s) - i);
    const auto fy = static_cast<float>(static_cast<double>(t) - j);
    const std::uint8_t* const pTop = mask.Row(j) + i;
    const std::uint8_t* const pBottom = pTop + mask.nWidth;
    const float fTop = Between(fx, pTop[0], pTop[1]);
    const float fBottom = Between(fx, pBottom[0], pBottom[1]);
    return static_cast<std::uint8_t>((1.0 - fy) * fTop + static_cast<double>(fy) * fBottom);
}

void SampleRow(CConstGreyView mask, const float* pS, const float* pT, std::uint8_t* pOut, std::size_t n) {
    const double fRight = mask.nWidth - 1;
    const double fBottom = mask.nHeight - 1;
    for (std::size_t x = 0; x < n; ++x) {
        // Rounded, a place has to lie inside the outermost pixels. What is no number is not.
        const double s = pS[x] + 0.5;
        const double t = pT[x] + 0.5;
        const bool bInside = s >= 1.0 && s < fRight && t >= 1.0 && t < fBottom;
        pOut[x] = bInside ? Sample(mask, pS[x], pT[x]) : kNoInk;
    }
}

}  // namespace

CProjection::CProjection(CConstGreyView mask, const std::array<float, 8>& quad, int nFirst, int nCount)
    : m_mask(mask),
      m_arrColumn(static_cast<std::size_t>(nCount)),
      m_arrS(static_cast<std::size_t>(nCount)),
      m_arrT(static_cast<std::size_t>(nCount)) {
    for (double& f : m_arrColumn) f = static_cast<double>(nFirst++) / mask.nWidth;
    FindShares(quad);
}

void CProjection::FindShares(const std::array<float, 8>& quad) {
    std::array<double, 4> x{}, y{};
    for (std::size_t i = 0; i < 4; ++i) {
        x[i] = static_cast<float>(static_cast<double>(quad[2 * i]) / m_mask.nWidth);
        y[i] = static_cast<float>(static_cast<double>(quad[2 * i + 1]) / m_mask.nHeight);
    }
    const double sx = static_cast<float>(x[0] - x[1] + x[2] - x[3]);
    const double sy = static_cast<float>(y[0] - y[1] + y[2] - y[3]);
    // Square to quadrilateral: doubles that hold what a float holds.
    double a, b, d, e, g = 0, h = 0;
    if (sx == 0 && sy == 0) {
        a = static_cast<float>(x[1] - x[0]);
        b = static_cast<float>(x[2] - x[1]);
        d = static_cast<float>(y[1] - y[0]);
        e = static_cast<float>(y[2] - y[1]);
    } else {
        const double dx1 = static_cast<float>(x[1] - x[2]);
        const double dx2 = static_cast<float>(x[3] - x[2]);
        const double dy1 = static_cast<float>(y[1] - y[2]);
        const double dy2 = static_cast<float>(y[3] - y[2]);
        const double den = static_cast<float>(dx1 * dy2 - dy1 * dx2);
        m_bMap = den != 0;
        g = static_cast<float>((sx * dy2 - dx2 * sy) / den);
        h = static_cast<float>((dx1 * sy - dy1 * sx) / den);
        a = static_cast<float>(x[1] - x[0] + g * x[1]);
        b = static_cast<float>(x[3] - x[0] + h * x[3]);
        d = static_cast<float>(y[1] - y[0] + g * y[1]);
        e = static_cast<float>(y[3] - y[0] + h * y[3]);
    }
    const double c = x[0];
    const double f = y[0];
    m_z = {d * h - e * g, b * g - a * h, a * e - b * d};
    m_s = {e - f * h, c * h - b, b * f - c * e};
    m_t = {f * g - d, a - c * g, c * d - a * f};
}

void CProjection::Row(int y, std::uint8_t* pOut) {
    const std::size_t n = m_arrColumn.size();
    if (!m_bMap) {
        std::memset(pOut, kNoInk, n);
        return;
    }
    const double fDown = static_cast<double>(y) / m_mask.nHeight;
    const CPlaces places{InRow(m_s, fDown), InRow(m_t, fDown), InRow(m_z, fDown),
                         static_cast<double>(m_mask.nWidth), static_cast<double>(m_mask.nHeight)};
    (UseAvx2() ? PlacesWide : PlacesPlain)(places, m_arrColumn.data(), m_arrS.data(), m_arrT.data(), n);
    SampleRow(m_mask, m_arrS.data(), m_arrT.data(), pOut, n);
}
