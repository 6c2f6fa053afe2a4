#pragma once

#include "Film.h"

// One of the sample photographs: how large it is, how it is taken and developed, how finely it is kept.
struct CPicture {
    const char* pszName = "";  // of the file, without extension
    int nWidth = 0;
    int nHeight = 0;
    int nJpegQuality = 0;
    int nFineness = 0;  // light paths (or samples) a pixel
    CFilm (*pTake)(int nWidth, int nHeight, int nFineness) = nullptr;
    CLook look;
};

CFilm TakeLake(int nWidth, int nHeight, int nFineness);
CFilm TakeStillLife(int nWidth, int nHeight, int nFineness);
CFilm TakePortrait(int nWidth, int nHeight, int nFineness);
CFilm TakeNight(int nWidth, int nHeight, int nFineness);
CFilm TakePage(int nWidth, int nHeight, int nFineness);
CFilm TakeTiles(int nWidth, int nHeight, int nFineness);
