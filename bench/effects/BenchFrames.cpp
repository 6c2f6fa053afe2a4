#include "effects/EffectBench.h"

// The effects that frame and rearrange a picture. Of those whose level is a size the lowest ones cost most.

namespace {

constexpr CEffectBenchRow kRows[] = {
    {"Film", Film, 0},
    {"Art", Art, 0},
    {"CrystalFrame", CrystalFrame, 0},
    {"Jigsaw", Jigsaw, 0},
    {"OilPainting+1", OilPainting, 1},
    {"OilPainting+5", OilPainting, 5},
    {"OilPainting+15", OilPainting, 15},
    {"Tile+1", Tile, 1},
    {"Tile+10", Tile, 10},
    {"Laminate+1", Laminate, 1},
    {"Laminate+20", Laminate, 20},
    {"ConcaveMirror", ConcaveMirror, 0},
};

[[maybe_unused]] const bool g_bRegistered = RegisterEffects(kRows);

}  // namespace
