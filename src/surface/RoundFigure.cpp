#include "surface/RoundFigure.h"

#include <algorithm>
#include <vector>

CRoundFigure::CRoundFigure(const CFarPoint& ptCorner, std::int64_t nBoxWidth, std::int64_t nBoxHeight,
                           std::int64_t nEllipseWidth, std::int64_t nEllipseHeight)
    : m_ptCorner(ptCorner),
      m_nWidth(nBoxWidth),
      m_nHeight(nBoxHeight),
      m_outline(nEllipseWidth, nEllipseHeight) {}

// Rows below the upper corners and above the lower ones look like the ellipse's middle row.
std::int64_t CRoundFigure::QuarterRow(std::int64_t y) const {
    const std::int64_t nRow = y - m_ptCorner.y;
    return std::min({nRow, m_nHeight - 1 - nRow, m_outline.MiddleRow()});
}

CPolygonScan::CSpan CRoundFigure::Area(std::int64_t y) {
    const std::int64_t nInset = m_outline.FirstInside(QuarterRow(y));
    if (nInset > m_outline.MiddleColumn()) return {0, 0};
    return {m_ptCorner.x + nInset, m_ptCorner.x + m_nWidth - nInset};
}

CPolygonScan::CSpan CRoundFigure::Inside(std::int64_t y) {
    const std::int64_t nRow = y - m_ptCorner.y;
    const std::int64_t nMiddle = m_outline.MiddleRow();
    if (nRow > nMiddle && nRow < m_nHeight - 1 - nMiddle)
        return {m_ptCorner.x + 1, m_ptCorner.x + m_nWidth - 1};
    const CEllipseOutline::CRow row = m_outline.Row(QuarterRow(y));
    if (!row.bReached) return Area(y);
    if (row.bTop) return {0, 0};
    return {m_ptCorner.x + row.nLast + 1, m_ptCorner.x + m_nWidth - row.nLast - 1};
}

void CRoundFigure::DrawOutline(CStroke& stroke, int nRows) {
    // Rows of the quarter that are seen in the upper or in the lower half; from the middle upward.
    const std::int64_t nMiddle = m_outline.MiddleRow();
    const std::int64_t nSeenFrom = -stroke.Reach() - m_ptCorner.y;
    const std::int64_t nSeenTo = nRows + stroke.Reach() - m_ptCorner.y;
    const std::int64_t nLast = m_nHeight - 1;
    const auto Draw = [&](std::int64_t nFrom, std::int64_t nTo) {
        for (std::int64_t n = std::min(nTo, nMiddle); n >= std::max<std::int64_t>(nFrom, 0); --n)
            DrawCorners(stroke, n);
    };
    const bool bUpper = nSeenFrom <= nMiddle && nSeenTo >= 0;
    const bool bLower = nLast - nSeenTo <= nMiddle && nLast - nSeenFrom >= 0;
    if (bUpper && bLower)
        Draw(std::min(nSeenFrom, nLast - nSeenTo), nMiddle);
    else if (bUpper)
        Draw(nSeenFrom, nSeenTo);
    else if (bLower)
        Draw(nLast - nSeenTo, nLast - nSeenFrom);
    for (const std::int64_t x : {m_ptCorner.x, m_ptCorner.x + m_nWidth - 1})
        stroke.Column(x, m_ptCorner.y + nMiddle, m_ptCorner.y + nLast - nMiddle);
}

// One row of each corner, and the steps from it to the row above it (below it in the lower half).
void CRoundFigure::DrawCorners(CStroke& stroke, std::int64_t nRow) {
    const CEllipseOutline::CRow row = m_outline.Row(nRow);
    if (!row.bReached) return;
    const std::int64_t xLeft = m_ptCorner.x;
    const std::int64_t xRight = m_ptCorner.x + m_nWidth - 1;
    const bool bSlantAbove = !row.bTop && m_outline.Row(nRow - 1).nFirst > row.nLast;
    for (const bool bUpper : {true, false}) {
        const std::int64_t y = bUpper ? m_ptCorner.y + nRow : m_ptCorner.y + m_nHeight - 1 - nRow;
        if (row.bTop) {
            stroke.DiscRow(y, xLeft + row.nFirst, xRight - row.nFirst);
            continue;
        }
        stroke.DiscRow(y, xLeft + row.nFirst, xLeft + row.nLast);
        stroke.DiscRow(y, xRight - row.nLast, xRight - row.nFirst);
        if (!bSlantAbove) continue;
        const std::int64_t yNext = bUpper ? y - 1 : y + 1;
        stroke.Body({xLeft + row.nLast, y}, {xLeft + row.nLast + 1, yNext});
        stroke.Body({xRight - row.nLast, y}, {xRight - row.nLast - 1, yNext});
    }
}

// From the right end of the middle row (the upper of two) over the top to the left and around.
void CRoundFigure::DrawDotted(CStroke& stroke) {
    std::vector<CFarPoint> quarter;
    for (std::int64_t n = m_outline.MiddleRow(); n >= 0; --n) {
        const CEllipseOutline::CRow row = m_outline.Row(n);
        quarter.push_back({row.nFirst, n});
        quarter.push_back({row.nLast, n});
        if (row.bTop) break;
    }
    std::vector<CFarPoint> points;
    const auto Add = [&](const CFarPoint& pt, bool bLeft, bool bUpper) {
        points.push_back({m_ptCorner.x + (bLeft ? pt.x : m_nWidth - 1 - pt.x),
                          m_ptCorner.y + (bUpper ? pt.y : m_nHeight - 1 - pt.y)});
    };
    for (auto it = quarter.begin(); it != quarter.end(); ++it) Add(*it, false, true);
    for (auto it = quarter.rbegin(); it != quarter.rend(); ++it) Add(*it, true, true);
    for (auto it = quarter.begin(); it != quarter.end(); ++it) Add(*it, true, false);
    for (auto it = quarter.rbegin(); it != quarter.rend(); ++it) Add(*it, false, false);
    stroke.Polyline(points, true);
}
