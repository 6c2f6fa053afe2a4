#include "engines/warp/ProjectMask.h"

#include <algorithm>
#include <cstring>

#include "engines/warp/FourBytes.h"

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

// Added to a share and taken away again, it leaves the first 12 bits of it.
constexpr float kCoarseShare = 2048;

// What a row of the box is made of.
struct CRow {
    CConstGreyView mask;
    const double* pAcross;  // each column over the mask's width
    CRowShares s;
    CRowShares t;
    CRowShares z;
    std::size_t nCount;
};

// Between two bytes, as in double precision and then rounded. A share has at most 24 bits; it falls into two
// parts of at most 13, whose products with a difference of bytes are exact, and so is the first sum. The last
// one is all that is rounded.
float Between(float fShare, std::uint8_t nFirst, std::uint8_t nSecond) {
    const auto fStep = static_cast<float>(nSecond - nFirst);
    const float fCoarse = fShare + kCoarseShare - kCoarseShare;
    return nFirst + fCoarse * fStep + (fShare - fCoarse) * fStep;
}

// At a place all four pixels round which are in the mask.
std::uint8_t Sample(CConstGreyView mask, float s, float t) {
    const int i = static_cast<int>(s);
    const int j = static_cast<int>(t);
    const float fx = s - static_cast<float>(i);
    const double fy = t - static_cast<float>(j);
    const std::uint8_t* const pTop = mask.Row(j) + i;
    const std::uint8_t* const pBottom = pTop + mask.nWidth;
    const double fTop = Between(fx, pTop[0], pTop[1]);
    const double fBottom = Between(fx, pBottom[0], pBottom[1]);
    return static_cast<std::uint8_t>(static_cast<int>((1.0 - fy) * fTop + fy * fBottom));
}

// Columns whose places are worked out at a time.
constexpr std::size_t kChunk = 128;

struct CPlaces {
    std::array<float, kChunk> s;
    std::array<float, kChunk> t;
};

// The places in the mask of n columns from nFirst on. A z of 0 makes them infinite or no numbers; both lie
// outside the mask.
FOTARIUM_INLINE void PlacesBody(const CRow& in, std::size_t nFirst, std::size_t n, CPlaces& places) {
    const CRow row = in;
    const double* const __restrict pAcross = row.pAcross + nFirst;
    float* const __restrict pS = places.s.data();
    float* const __restrict pT = places.t.data();
    const double fWidth = row.mask.nWidth;
    const double fHeight = row.mask.nHeight;
    for (std::size_t x = 0; x < n; ++x) {
        const double z = static_cast<float>(row.z.At(pAcross[x]));
        pS[x] = static_cast<float>(fWidth * row.s.At(pAcross[x]) / z);
        pT[x] = static_cast<float>(fHeight * row.t.At(pAcross[x]) / z);
    }
}

// One place after the other, n of them.
void SamplePlaces(CConstGreyView mask, const float* pS, const float* pT, std::uint8_t* pOut, std::size_t n) {
    const double fRight = mask.nWidth - 1;
    const double fBottom = mask.nHeight - 1;
    for (std::size_t i = 0; i < n; ++i) {
        // Rounded, a place has to lie inside the outermost pixels.
        const double s = pS[i] + 0.5;
        const double t = pT[i] + 0.5;
        const bool bInside = s >= 1.0 && s < fRight && t >= 1.0 && t < fBottom;
        pOut[i] = bInside ? Sample(mask, pS[i], pT[i]) : kNoInk;
    }
}

void ProjectPlain(const CRow& row, std::uint8_t* pOut) {
    CPlaces places{};
    for (std::size_t x = 0; x < row.nCount; x += kChunk) {
        const std::size_t n = std::min(kChunk, row.nCount - x);
        PlacesBody(row, x, n, places);
        SamplePlaces(row.mask, places.s.data(), places.t.data(), pOut + x, n);
    }
}

#if FOTARIUM_HAS_AVX2

// The sides up to which half a pixel from a whole one is a float.
constexpr int kWidestWide = 1 << 22;

// Where four places, rounded, lie inside the outermost pixels of a side.
FOTARIUM_AVX2_PART __m128 FourInside(__m128 places, int nSize) {
    const __m128 beyond = _mm_set1_ps(static_cast<float>(nSize) - 1.5F);
    return _mm_and_ps(_mm_cmpge_ps(places, _mm_set1_ps(0.5F)), _mm_cmplt_ps(places, beyond));
}

// Between the first two bytes of each of four places in two rows.
FOTARIUM_AVX2_PART __m256 EightAcross(__m128 fx, __m128i top, __m128i bottom) {
    const __m256i bytes = _mm256_set_m128i(bottom, top);
    const __m256i low = _mm256_set1_epi32(255);
    const __m256 first = _mm256_cvtepi32_ps(_mm256_and_si256(bytes, low));
    const __m256 second = _mm256_cvtepi32_ps(_mm256_and_si256(_mm256_srli_epi32(bytes, 8), low));
    const __m256 step = _mm256_sub_ps(second, first);
    const __m256 share = _mm256_set_m128(fx, fx);
    const __m256 cut = _mm256_set1_ps(kCoarseShare);
    const __m256 coarse = _mm256_sub_ps(_mm256_add_ps(share, cut), cut);
    const __m256 fine = _mm256_sub_ps(share, coarse);
    return _mm256_add_ps(_mm256_add_ps(first, _mm256_mul_ps(coarse, step)), _mm256_mul_ps(fine, step));
}

// Sample at four places.
FOTARIUM_AVX2_PART __m128i FourSamples(CConstGreyView mask, __m128 s, __m128 t) {
    const __m128i i = _mm_cvttps_epi32(s);
    const __m128i j = _mm_cvttps_epi32(t);
    const __m128 fx = _mm_sub_ps(s, _mm_cvtepi32_ps(i));
    const __m256d fy = _mm256_cvtps_pd(_mm_sub_ps(t, _mm_cvtepi32_ps(j)));
    const __m128i place = _mm_add_epi32(_mm_mullo_epi32(j, _mm_set1_epi32(mask.nWidth)), i);
    const __m256 rows = EightAcross(fx, FourBytesAt(mask.Row(0), place), FourBytesAt(mask.Row(1), place));
    const __m256d top = _mm256_cvtps_pd(_mm256_castps256_ps128(rows));
    const __m256d bottom = _mm256_cvtps_pd(_mm256_extractf128_ps(rows, 1));
    const __m256d rest = _mm256_sub_pd(_mm256_set1_pd(1.0), fy);
    return _mm256_cvttpd_epi32(_mm256_add_pd(_mm256_mul_pd(rest, top), _mm256_mul_pd(fy, bottom)));
}

FOTARIUM_AVX2 void ProjectWide(const CRow& row, std::uint8_t* pOut) {
    CPlaces places{};
    for (std::size_t x = 0; x < row.nCount; x += kChunk) {
        const std::size_t n = std::min(kChunk, row.nCount - x);
        PlacesBody(row, x, n, places);
        std::size_t i = 0;
        for (; i + 4 <= n; i += 4) {
            const __m128 s = _mm_loadu_ps(places.s.data() + i);
            const __m128 t = _mm_loadu_ps(places.t.data() + i);
            const __m128 inside = _mm_and_ps(FourInside(s, row.mask.nWidth), FourInside(t, row.mask.nHeight));
            int nFour = -1;
            if (_mm_movemask_ps(inside) != 0) {
                // Places outside become the mask's first, where a sample may be taken.
                const __m128i samples = FourSamples(row.mask, _mm_and_ps(s, inside), _mm_and_ps(t, inside));
                const __m128i shown =
                    _mm_blendv_epi8(_mm_set1_epi32(kNoInk), samples, _mm_castps_si128(inside));
                nFour = _mm_cvtsi128_si32(_mm_shuffle_epi8(shown, _mm_set1_epi32(0x0C080400)));
            }
            std::memcpy(pOut + x + i, &nFour, sizeof nFour);
        }
        SamplePlaces(row.mask, places.s.data() + i, places.t.data() + i, pOut + x + i, n - i);
    }
}

#else

constexpr int kWidestWide = 0;
constexpr auto ProjectWide = ProjectPlain;

#endif

}  // namespace

CProjection::CProjection(CConstGreyView mask, const std::array<float, 8>& quad, int nFirst, int nCount)
    : m_mask(mask), m_arrColumn(static_cast<std::size_t>(nCount)) {
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

void CProjection::Row(int y, std::uint8_t* pOut) const {
    const std::size_t n = m_arrColumn.size();
    if (!m_bMap) {
        std::memset(pOut, kNoInk, n);
        return;
    }
    const double fDown = static_cast<double>(y) / m_mask.nHeight;
    const CRow row{m_mask, m_arrColumn.data(), InRow(m_s, fDown), InRow(m_t, fDown), InRow(m_z, fDown), n};
    const bool bWide = UseAvx2() && std::max(m_mask.nWidth, m_mask.nHeight) <= kWidestWide;
    (bWide ? ProjectWide : ProjectPlain)(row, pOut);
}
