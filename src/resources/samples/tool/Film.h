#pragma once

#include <cstdint>
#include <vector>

#include "Vec.h"

// A picture in linear light, row 0 on top.
struct CFilm {
    int nWidth;
    int nHeight;
    std::vector<CVec3> pixels;

    CFilm(int cx, int cy)
        : nWidth(cx), nHeight(cy), pixels(static_cast<std::size_t>(cx) * static_cast<std::size_t>(cy)) {}
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(nWidth) + static_cast<std::size_t>(x);
    }
    CVec3& At(int x, int y) { return pixels[Index(x, y)]; }
    CVec3 At(int x, int y) const { return pixels[Index(x, y)]; }
};

// How the film is developed.
struct CLook {
    float fExposure = 1;
    float fContrast = 1;  // about middle grey
    float fSaturation = 1;
    CVec3 crShadows{1, 1, 1};   // tint of the dark parts
    CVec3 crLights{1, 1, 1};    // tint of the bright parts
    float fVignette = 0.25F;    // light lost in the corners, 0..1
    float fGrain = 0.008F;      // standard deviation in the developed picture, 0..1
    float fGlow = 0.04F;        // part of the light that the lens scatters
    float fGlowRadius = 0.02F;  // of the picture's height
    float fSharpen = 0.12F;
};

// The film as 3 bytes a pixel R, G, B without row padding.
std::vector<std::uint8_t> Develop(CFilm film, const CLook& look);

// The film averaged over nTimes x nTimes blocks.
CFilm Shrink(const CFilm& film, int nTimes);

// The film blurred by a wide soft disk (three box passes), radius in pixels.
CFilm Blur(const CFilm& film, int nRadius);
