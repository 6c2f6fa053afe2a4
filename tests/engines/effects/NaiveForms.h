#pragma once

#include <cstdint>
#include <vector>

#include "image/Image.h"
#include "image/RandomSequence.h"

// The effects in their plainest form: whole planes, one pixel at a time, one value after the other as the
// effect tells it. Slow, and the measure of the fast ones.

CPixels NaiveBrightness(const CPixels& src, int nLevel);
CPixels NaiveContrast(const CPixels& src, int nLevel);
CPixels NaiveChroma(const CPixels& src, int nLevel);
CPixels NaiveSharpness(const CPixels& src, int nLevel);
CPixels NaiveNegative(const CPixels& src);
CPixels NaivePureBlackWhite(const CPixels& src, int nLevel);
CPixels NaiveBlackWhite(const CPixels& src);
CPixels NaiveColourSaturation(const CPixels& src, int nLevel);
CPixels NaiveOldPhoto(const CPixels& src);
CPixels NaiveNoiseRemoval(const CPixels& src);
CPixels NaiveBacklight(const CPixels& src);
CPixels NaiveHomogenise(const CPixels& src);
CPixels NaiveLowLightRepair(const CPixels& src);
CPixels NaiveNostalgia(const CPixels& src, int nLevel);
CPixels NaiveMoonlight(const CPixels& src, int nLevel);
CPixels NaiveHaze1(const CPixels& src, int nLevel);
CPixels NaiveCool(const CPixels& src, int nLevel);
CPixels NaiveHaze2(const CPixels& src, int nLevel);
CPixels NaiveFilm(const CPixels& src);
CPixels NaiveArt(const CPixels& src);
CPixels NaiveCrystalFrame(const CPixels& src);
CPixels NaiveJigsaw(const CPixels& src);
CPixels NaiveOilPainting(const CPixels& src, int nLevel, int nRefWidth, CRandomSequence& random);
CPixels NaiveTile(const CPixels& src, int nLevel, int nRefWidth, CRandomSequence& random);
CPixels NaiveLaminate(const CPixels& src, int nLevel, int nRefWidth, CRandomSequence& random);
CPixels NaiveEngrave(const CPixels& src);
CPixels NaiveConcaveMirror(const CPixels& src);
CPixels NaiveSketch(const CPixels& src);
CPixels NaiveRefraction2(const CPixels& src, int nLevel);
CPixels NaiveRefraction1(const CPixels& src, int nLevel);
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
