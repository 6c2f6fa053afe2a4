#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <set>
#include <span>
#include <utility>
#include <vector>

#include "surface/Surface.h"

// What figures are by their definitions, asked pixel by pixel in arithmetic that is exact for every int.

__extension__ typedef __int128 CExact;

inline constexpr CColor kWhite{255, 255, 255};
inline constexpr CColor kInk{10, 20, 200};
inline constexpr CColor kPaint{0, 160, 40};

inline CSurface White(int nWidth, int nHeight) {
    CSurface surface(nWidth, nHeight);
    surface.FillRect(surface.Bounds(), kWhite);
    surface.TakeDirty();
    return surface;
}

// Numbers from a seed that a failing test names (SCOPED_TRACE(random.nSeed)).
struct CRandom {
    unsigned nSeed = std::random_device{}();
    std::mt19937 engine{nSeed};

    int Pick(int nFrom, int nTo) { return std::uniform_int_distribution<int>(nFrom, nTo)(engine); }
    CPoint Point(int nFrom, int nTo) {
        const int x = Pick(nFrom, nTo);
        return {x, Pick(nFrom, nTo)};
    }
    // Mostly near the picture, now and then anywhere up to the limits.
    int Far() {
        static constexpr int kMin = std::numeric_limits<int>::min();
        static constexpr int kMax = std::numeric_limits<int>::max();
        switch (Pick(0, 7)) {
            case 0:
                return Pick(kMin, kMax);
            case 1:
                return Pick(0, 1) == 0 ? kMin + Pick(0, 1) : kMax - Pick(0, 1);
            case 2:
                return Pick(-5000, 5000);
            default:
                return Pick(-6, 26);
        }
    }
    std::vector<CPoint> Points(int nCount, bool bFar) {
        std::vector<CPoint> points(static_cast<std::size_t>(nCount));
        for (CPoint& pt : points) pt = bFar ? CPoint{Far(), 0} : Point(-6, 26);
        if (bFar)
            for (CPoint& pt : points) pt.y = Far();
        return points;
    }
};

// The pixel nearest to the exact line for its step along the longer axis, the smaller coordinate of two
// equally near ones; the end left out.
inline bool IsOnThinLine(CPoint ptFrom, CPoint ptTo, int x, int y) {
    CExact dx = CExact{ptTo.x} - ptFrom.x, dy = CExact{ptTo.y} - ptFrom.y;
    CExact nAlong = CExact{x} - ptFrom.x, nAcross = CExact{y} - ptFrom.y;
    if ((dx < 0 ? -dx : dx) < (dy < 0 ? -dy : dy)) {
        std::swap(dx, dy);
        std::swap(nAlong, nAcross);
    }
    const CExact nSteps = dx < 0 ? -dx : dx;
    const CExact nStep = dx < 0 ? -nAlong : nAlong;
    if (nStep < 0 || nStep >= nSteps) return false;
    const CExact nOff = 2 * (nAcross * nSteps - nStep * dy);
    return nOff >= -nSteps && nOff < nSteps;
}

// Edges at or left of the pixel in its row, left and top edges in, right and bottom edges out.
inline bool IsInPolygon(std::span<const CPoint> points, FillRule rule, int x, int y) {
    int nWinding = 0;
    int nCrossed = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        CPoint pt = points[i];
        CPoint ptEnd = points[(i + 1) % points.size()];
        const int nTurn = pt.y < ptEnd.y ? 1 : -1;
        if (nTurn < 0) std::swap(pt, ptEnd);
        if (y < pt.y || y >= ptEnd.y) continue;
        if ((CExact{y} - pt.y) * (CExact{ptEnd.x} - pt.x) > (CExact{x} - pt.x) * (CExact{ptEnd.y} - pt.y))
            continue;
        nWinding += nTurn;
        ++nCrossed;
    }
    return rule == FillRule::kWinding ? nWinding != 0 : nCrossed % 2 != 0;
}

// Row lengths of the discs of pens 2 to 8 wide; a disc starts half its width (cut) above and left of its
// point.
inline bool IsInDisc(int nWidth, int dx, int dy) {
    static const std::vector<std::vector<int>> kRows = {{2, 2},
                                                        {1, 3, 1},
                                                        {2, 4, 4, 2},
                                                        {3, 5, 5, 5, 3},
                                                        {2, 4, 6, 6, 4, 2},
                                                        {3, 5, 7, 7, 7, 5, 3},
                                                        {4, 6, 8, 8, 8, 8, 6, 4}};
    const std::vector<int>& rows = kRows[static_cast<std::size_t>(nWidth - 2)];
    const int nRow = dy + nWidth / 2;
    if (nRow < 0 || nRow >= nWidth) return false;
    const int nInset = (nWidth - rows[static_cast<std::size_t>(nRow)]) / 2;
    return dx + nWidth / 2 >= nInset && dx + nWidth / 2 < nWidth - nInset;
}

// Both discs and, between them, the polygon whose sides stand off by the halves of nWidth * leg / length,
// taken to the next whole number above.
inline bool IsOnWideLine(CPoint ptFrom, CPoint ptTo, int nWidth, int x, int y) {
    if (IsInDisc(nWidth, x - ptFrom.x, y - ptFrom.y) || IsInDisc(nWidth, x - ptTo.x, y - ptTo.y)) return true;
    const int dx = ptTo.x - ptFrom.x;
    const int dy = ptTo.y - ptFrom.y;
    const auto Above = [&](int nLeg) {
        int n = 0;
        while (n * n * (dx * dx + dy * dy) <= nWidth * nWidth * nLeg * nLeg) ++n;
        return n;
    };
    if (dx == 0 || dy == 0) {
        const int nOff = (dx == 0 ? x - ptFrom.x : y - ptFrom.y) + nWidth / 2;
        const int n = dx == 0 ? y : x;
        const auto [nLow, nHigh] = dx == 0 ? std::minmax(ptFrom.y, ptTo.y) : std::minmax(ptFrom.x, ptTo.x);
        return nOff >= 0 && nOff < nWidth && n >= nLow && n <= nHigh;
    }
    const int vx = Above(dy);
    const int vy = Above(dx) * (dx * dy > 0 ? -1 : 1);
    const int nBigY = vy / 2 + vy % 2;
    const CPoint corners[] = {{ptFrom.x + (vx + 1) / 2, ptFrom.y + nBigY},
                              {ptTo.x + (vx + 1) / 2, ptTo.y + nBigY},
                              {ptTo.x - vx / 2, ptTo.y - vy / 2},
                              {ptFrom.x - vx / 2, ptFrom.y - vy / 2}};
    return IsInPolygon(corners, FillRule::kAlternate, x, y);
}

// The outline of an ellipse in the upper left quarter of its box, walked pixel by pixel; and its polynomial.
inline CExact EllipseValue(int nWidth, int nHeight, CExact x, CExact y) {
    const CExact a = nWidth - 1, b = nHeight - 1;
    return b * b * (2 * x - a) * (2 * x - a) + a * a * (2 * y - b) * (2 * y - b) - a * a * b * b;
}

inline std::vector<CPoint> WalkQuarter(int nWidth, int nHeight) {
    std::vector<CPoint> walk;
    CPoint pt{0, (nHeight - 1) / 2};
    const auto Value = [&](int x, int y) { return EllipseValue(nWidth, nHeight, x, y); };
    while (pt.x <= (nWidth - 1) / 2) {
        walk.push_back(pt);
        const CExact nBeyond = Value(pt.x + 1, pt.y - 1);
        const bool bRight = Value(pt.x, pt.y - 1) + nBeyond >= 0;
        const bool bUp = Value(pt.x + 1, pt.y) + nBeyond <= 0;
        pt = {pt.x + bRight, pt.y - bUp};
    }
    return walk;
}

// The closed outline of a box with such quarters as corners, from the right end of the middle row over the
// top.
inline std::vector<CPoint> WalkAround(const CRect& rcBox, int nEllipseWidth, int nEllipseHeight) {
    std::vector<CPoint> walk = WalkQuarter(nEllipseWidth, nEllipseHeight);
    std::vector<CPoint> around;
    for (int nQuarter = 0; nQuarter < 4; ++nQuarter, std::ranges::reverse(walk))
        for (const CPoint& pt : walk)
            around.push_back({nQuarter == 0 || nQuarter == 3 ? rcBox.right - 1 - pt.x : rcBox.left + pt.x,
                              nQuarter < 2 ? rcBox.top + pt.y : rcBox.bottom - 1 - pt.y});
    return around;
}

// Compares every pixel with what a function of column and row says.
template <typename T>
testing::AssertionResult HasPixels(const CSurface& surface, T expected) {
    for (int y = 0; y < surface.Height(); ++y)
        for (int x = 0; x < surface.Width(); ++x)
            if (surface.GetPixel(x, y) != expected(x, y))
                return testing::AssertionFailure() << "differs first at " << x << "," << y;
    return testing::AssertionSuccess();
}
