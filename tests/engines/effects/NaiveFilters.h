#pragma once

#include "image/Image.h"

// The filter and histogram effects in their plainest form: whole planes, one pixel at a time, one value after
// the other as the effect tells it. Slow, and the measure of the fast ones.

CPixels NaiveSharpness(const CPixels& src, int nLevel);
CPixels NaiveNoiseRemoval(const CPixels& src);
CPixels NaiveBacklight(const CPixels& src);
CPixels NaiveLowLightRepair(const CPixels& src);
CPixels NaiveHaze2(const CPixels& src, int nLevel);
CPixels NaiveEngrave(const CPixels& src);
CPixels NaiveSketch(const CPixels& src);
CPixels NaiveRefraction1(const CPixels& src, int nLevel);
CPixels NaiveRefraction2(const CPixels& src, int nLevel);
CPixels NaiveWoodcut(const CPixels& src);

// The three planes of a picture, a byte a pixel each, rows from the top.
struct CNaivePlanes {
    explicit CNaivePlanes(const CPixels& src);
    CPixels ToPixels() const;
    std::size_t At(int x, int nRow) const {
        return static_cast<std::size_t>(nRow) * static_cast<std::size_t>(nWidth) +
               static_cast<std::size_t>(x);
    }
    void MakeGrey();

    int nWidth;
    int nHeight;
    std::vector<std::uint8_t> y, u, v;
};
