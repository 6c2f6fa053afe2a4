#pragma once

#include <cstddef>

// Cubic splines through the few knots of a mesh. Every operation is in single precision, products from the
// left to the right, squares first: the last bit is part of the result.

// A spline has from 3 to that many knots.
inline constexpr std::size_t kMostKnots = 20;

// The slopes pSlope[0..nKnots - 1] of the spline through the knots (pX[i], pY[i]), by the not-a-knot rule at
// both ends: the first two pieces are one cubic, and the last two. A spacing of 0 counts as 1. A system of
// equations that comes to a 0 on its diagonal leaves the slopes as they stand there.
void SplineDerivs(const float* pX, const float* pY, std::size_t nKnots, float* pSlope);

// The spline through the knots (pX[i], pY[i]), pX ascending, at the places 0, 1, .. nCount - 1, into pOut.
// False, and nothing is written, if the first place lies before the first knot or the last one behind the
// last. Knots that do not ascend, or are no numbers, give some values, which may be no numbers.
[[nodiscard]] bool Spline(const float* pX, const float* pY, std::size_t nKnots, float* pOut,
                          std::size_t nCount);
