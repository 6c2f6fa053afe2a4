#pragma once

#include "image/Image.h"

// The tone and colour effects in their plainest form: one pixel at a time by the formulas of the single
// colour, sums over the whole picture first. Slow, and the measure of the fast ones.

CPixels NaiveBrightness(const CPixels& src, int nLevel);
CPixels NaiveContrast(const CPixels& src, int nLevel);
CPixels NaiveChroma(const CPixels& src, int nLevel);
CPixels NaiveNegative(const CPixels& src, int nLevel);
CPixels NaivePureBlackWhite(const CPixels& src, int nLevel);
CPixels NaiveBlackWhite(const CPixels& src, int nLevel);
CPixels NaiveColourSaturation(const CPixels& src, int nLevel);
CPixels NaiveOldPhoto(const CPixels& src, int nLevel);
CPixels NaiveNostalgia(const CPixels& src, int nLevel);
CPixels NaiveMoonlight(const CPixels& src, int nLevel);
CPixels NaiveHaze1(const CPixels& src, int nLevel);
CPixels NaiveCool(const CPixels& src, int nLevel);
