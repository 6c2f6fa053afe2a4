#include "engines/effects/EffectBench.h"

// The effects that frame and rearrange a picture. Of those whose level is a size the lowest ones cost most.

namespace {

constexpr CEffectBenchRow kRows[] = {
    {"Film", kFilm, 0, 10},
    {"Art", kArt, 0, 10},
    {"CrystalFrame", kCrystalFrame, 0, 10},
    {"Jigsaw", kJigsaw, 0, 10},
    {"OilPainting+1", kOilPainting, 1, 150},
    {"OilPainting+5", kOilPainting, 5, 150},
    {"OilPainting+15", kOilPainting, 15, 150},
    {"Tile+1", kTile, 1, 10},
    {"Tile+10", kTile, 10, 10},
    {"Laminate+1", kLaminate, 1, 10},
    {"Laminate+20", kLaminate, 20, 10},
    {"ConcaveMirror", kConcaveMirror, 0, 15},
};

[[maybe_unused]] const bool g_bRegistered = RegisterEffects(kRows);

}  // namespace
