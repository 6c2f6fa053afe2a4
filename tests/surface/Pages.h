#pragma once

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

#include "surface/Surface.h"

// White pages to draw on, random places, and a look at every pixel.

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
};

// Compares every pixel with what a function of column and row says.
template <typename T>
testing::AssertionResult HasPixels(const CSurface& surface, T expected) {
    for (int y = 0; y < surface.Height(); ++y)
        for (int x = 0; x < surface.Width(); ++x)
            if (surface.GetPixel(x, y) != CColor(expected(x, y)))
                return testing::AssertionFailure() << "differs first at " << x << "," << y;
    return testing::AssertionSuccess();
}
