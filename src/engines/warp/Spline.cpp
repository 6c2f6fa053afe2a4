#include "engines/warp/Spline.h"

#include <algorithm>
#include <array>

#include "image/CpuChoice.h"

namespace {

// The two spacings round a knot, and the slopes of the straight lines over them.
struct CAround {
    float h0;
    float h1;
    float r0;
    float r1;
};

float Spacing(float fFrom, float fTo) {
    const float f = fTo - fFrom;
    return f == 0.0F ? 1.0F : f;
}

CAround AroundKnot(const float* pX, const float* pY, std::size_t i) {
    const float h0 = Spacing(pX[i - 1], pX[i]);
    const float h1 = Spacing(pX[i], pX[i + 1]);
    return {h0, h1, (pY[i] - pY[i - 1]) / h0, (pY[i + 1] - pY[i]) / h1};
}

using CBand = std::array<float, kMostKnots>;

// Gauss elimination without pivoting of the system with the bands a, b, c and the right-hand side pD.
void SolveTridiagonal(const CBand& a, const CBand& b, const CBand& c, float* pD, std::size_t n) {
    CBand gam{};
    float bet = b[0];
    pD[0] = pD[0] / bet;
    for (std::size_t i = 1; i < n; ++i) {
        gam[i] = c[i - 1] / bet;
        bet = b[i] - a[i] * gam[i];
        if (bet == 0.0F) return;
        pD[i] = (pD[i] - a[i] * pD[i - 1]) / bet;
    }
    for (std::size_t i = n - 1; i-- > 0;) pD[i] = pD[i] - gam[i + 1] * pD[i + 1];
}

// One piece of the spline, a cubic in the distance from its first knot.
struct CPiece {
    float fStart;
    float a0;
    float a1;
    float a2;
    float a3;
};

CPiece PieceFrom(const float* pX, const float* pY, const float* pSlope, std::size_t j) {
    const float dx = 1.0F / (pX[j + 1] - pX[j]);
    const float dy = (pY[j + 1] - pY[j]) * dx;
    return {pX[j], pY[j], pSlope[j], dx * (3.0F * dy - 2.0F * pSlope[j] - pSlope[j + 1]),
            dx * dx * (-2.0F * dy + pSlope[j] + pSlope[j + 1])};
}

FOTARIUM_INLINE void EvaluateBody(const CPiece& in, float* __restrict pOut, int nFirst, int nEnd) {
    const CPiece piece = in;
    for (int i = nFirst; i < nEnd; ++i) {
        const float x = static_cast<float>(i) - piece.fStart;
        pOut[i] = ((piece.a3 * x + piece.a2) * x + piece.a1) * x + piece.a0;
    }
}

void EvaluatePlain(const CPiece& piece, float* pOut, int nFirst, int nEnd) {
    EvaluateBody(piece, pOut, nFirst, nEnd);
}

FOTARIUM_AVX2 void EvaluateWide(const CPiece& piece, float* pOut, int nFirst, int nEnd) {
    EvaluateBody(piece, pOut, nFirst, nEnd);
}

// The first place from nFirst on that is above the end of a piece.
int FirstAbove(float fEnd, int nFirst, int nCount) {
    int nBelow = nFirst;  // nothing before it is above
    int nAbove = nCount;
    while (nBelow < nAbove) {
        const int nMiddle = nBelow + (nAbove - nBelow) / 2;
        if (static_cast<float>(nMiddle) > fEnd) {
            nAbove = nMiddle;
        } else {
            nBelow = nMiddle + 1;
        }
    }
    return nAbove;
}

}  // namespace

void SplineDerivs(const float* pX, const float* pY, std::size_t nKnots, float* pSlope) {
    CBand a{}, b{}, c{};
    CAround s = AroundKnot(pX, pY, 1);
    float fBoth = s.h0 + s.h1;
    b[0] = s.h1 * fBoth;
    c[0] = fBoth * fBoth;
    pSlope[0] = s.r0 * (3.0F * s.h0 * s.h1 + 2.0F * (s.h1 * s.h1)) + s.r1 * (s.h0 * s.h0);
    for (std::size_t i = 1; i + 1 < nKnots; ++i) {
        s = AroundKnot(pX, pY, i);
        a[i] = s.h1;
        b[i] = 2.0F * (s.h0 + s.h1);
        c[i] = s.h0;
        pSlope[i] = 3.0F * (s.r0 * s.h1 + s.r1 * s.h0);
    }
    fBoth = s.h0 + s.h1;
    a[nKnots - 1] = fBoth * fBoth;
    b[nKnots - 1] = s.h0 * fBoth;
    pSlope[nKnots - 1] = s.r0 * (s.h1 * s.h1) + s.r1 * (3.0F * s.h0 * s.h1 + 2.0F * (s.h0 * s.h0));
    SolveTridiagonal(a, b, c, pSlope, nKnots);
}

bool Spline(const float* pX, const float* pY, std::size_t nKnots, float* pOut, std::size_t nCount) {
    CBand slope{};
    SplineDerivs(pX, pY, nKnots, slope.data());
    if (0.0F < pX[0] || static_cast<float>(nCount - 1) > pX[nKnots - 1]) return false;
    const auto evaluate = UseAvx2() ? EvaluateWide : EvaluatePlain;
    const int nEnd = static_cast<int>(nCount);
    std::size_t j = 0;
    for (int i = 0; i < nEnd;) {
        const auto p = static_cast<float>(i);
        while (j < nKnots && p > pX[j]) ++j;
        if (j == nKnots || (j > 0 && p < pX[j])) --j;
        // A place on the last knot belongs to the last piece.
        j = std::min(j, nKnots - 2);
        // Knots that do not ascend end a piece before its place: then it holds that place alone.
        const int nNext = std::max(FirstAbove(pX[j + 1], i, nEnd), i + 1);
        evaluate(PieceFrom(pX, pY, slope.data(), j), pOut, i, nNext);
        i = nNext;
    }
    return true;
}
