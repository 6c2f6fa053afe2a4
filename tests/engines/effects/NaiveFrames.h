#pragma once

#include "image/Image.h"
#include "image/RandomSequence.h"

// The picture and frame effects in their plainest form: whole planes, one pixel at a time, one value after
// the other as the effect tells it. Slow, and the measure of the fast ones.

CPixels NaiveFilm(const CPixels& src);
// Takes the mask as a picture, 160 by 120.
CPixels NaiveArt(const CPixels& src, const CPixels& mask);
CPixels NaiveCrystalFrame(const CPixels& src);
CPixels NaiveJigsaw(const CPixels& src);
CPixels NaiveOilPainting(const CPixels& src, int nLevel, CRandomSequence& random);
CPixels NaiveTile(const CPixels& src, int nLevel, int nRefWidth, CRandomSequence& random);
CPixels NaiveLaminate(const CPixels& src, int nLevel, int nRefWidth);
CPixels NaiveConcaveMirror(const CPixels& src);
