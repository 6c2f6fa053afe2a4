#include "surface/EllipseOutline.h"

#include <algorithm>

namespace {

// The first of 0 .. nEnd - 1 for which a test holds that then holds for all behind it too; nEnd if there is
// none. Looks near nHint first, in steps that double.
template <typename T>
std::int64_t FirstWhere(std::int64_t nHint, std::int64_t nEnd, T test) {
    std::int64_t nLow = 0;
    std::int64_t nHigh = nEnd;
    if (nHint < nEnd && !test(nHint)) {
        nLow = nHint + 1;
        for (std::int64_t nStep = 1; nLow + nStep <= nEnd; nStep *= 2) {
            if (test(nLow + nStep - 1)) {
                nHigh = nLow + nStep - 1;
                break;
            }
            nLow += nStep;
        }
    } else {
        nHigh = std::min(nHint, nEnd);
        for (std::int64_t nStep = 1; nHigh > 0; nStep *= 2) {
            const std::int64_t nProbe = std::max<std::int64_t>(nHigh - nStep, 0);
            if (!test(nProbe)) {
                nLow = nProbe + 1;
                break;
            }
            nHigh = nProbe;
        }
    }
    while (nLow < nHigh) {
        const std::int64_t nMiddle = nLow + (nHigh - nLow) / 2;
        if (test(nMiddle))
            nHigh = nMiddle;
        else
            nLow = nMiddle + 1;
    }
    return nLow;
}

}  // namespace

CEllipseOutline::CEllipseOutline(std::int64_t nWidth, std::int64_t nHeight)
    : m_nWidth(nWidth),
      m_nHeight(nHeight),
      m_nMiddleRow((nHeight - 1) / 2),
      m_nMiddleColumn((nWidth - 1) / 2),
      m_nSquareX(CInt128{nWidth - 1} * (nWidth - 1)),
      m_nSquareY(CInt128{nHeight - 1} * (nHeight - 1)) {}

// The ellipse's polynomial, measured from the box's centre in half pixels.
CInt128 CEllipseOutline::Value(std::int64_t x, std::int64_t y) const {
    const CInt128 nX = 2 * x - (m_nWidth - 1);
    const CInt128 nY = 2 * y - (m_nHeight - 1);
    return m_nSquareY * (nX * nX - m_nSquareX) + m_nSquareX * (nY * nY);
}

bool CEllipseOutline::GoesRight(std::int64_t x, std::int64_t y) const {
    return Value(x, y - 1) + Value(x + 1, y - 1) >= 0;
}

bool CEllipseOutline::GoesUp(std::int64_t x, std::int64_t y) const {
    return Value(x + 1, y) + Value(x + 1, y - 1) <= 0;
}

// Where the walk leaves row y; beyond the middle column if it ends there or did not come so far.
std::int64_t CEllipseOutline::Exit(std::int64_t y) {
    if (y == m_nExitRow) return m_nExit;
    const std::int64_t nEnd = m_nMiddleColumn;
    // In the middle column itself "up" never begins to hold.
    m_nUp = FirstWhere(m_nUp, nEnd, [&](std::int64_t x) { return GoesUp(x, y); });
    m_nExit = m_nUp < nEnd ? m_nUp : nEnd + 1;
    if (y < m_nMiddleRow) {
        m_nRight = FirstWhere(m_nRight, nEnd + 1, [&](std::int64_t x) { return !GoesRight(x, y + 1); });
        m_nExit = std::max(m_nExit, m_nRight);
    }
    m_nExitRow = y;
    return m_nExit;
}

CEllipseOutline::CRow CEllipseOutline::Row(std::int64_t y) {
    CRow row;
    if (y < m_nMiddleRow) {
        const std::int64_t nBelow = Exit(y + 1);
        row.nFirst = nBelow + (GoesRight(nBelow, y + 1) ? 1 : 0);
        row.bReached = row.nFirst <= m_nMiddleColumn;
    }
    const std::int64_t nExit = Exit(y);
    row.nLast = std::min(nExit, m_nMiddleColumn);
    row.bTop = nExit >= m_nMiddleColumn && (nExit > m_nMiddleColumn || GoesRight(nExit, y));
    return row;
}

std::int64_t CEllipseOutline::FirstInside(std::int64_t y) {
    const CRow row = Row(y);
    if (row.bReached) return row.nFirst;
    m_nInside = FirstWhere(m_nInside, m_nMiddleColumn + 1, [&](std::int64_t x) { return Value(x, y) <= 0; });
    return m_nInside;
}
