#pragma once

#include "Film.h"

// What the cleaning of a picture goes by, a value a pixel.
struct CClues {
    CFilm body;      // the reflectance that was met first
    CFilm normal;    // its direction
    CFilm place;     // where it was met
    CFilm variance;  // in x: of the mean of the light
    CClues(int cx, int cy) : body(cx, cy), normal(cx, cy), place(cx, cy), variance(cx, cy) {}
};

// Light averaged over neighbours that belong to the same surface and are as bright as their noise allows.
// Without `bByShape` the direction and the place of the surface do not count.
CFilm Denoise(const CFilm& film, const CClues& clues, bool bByShape);
