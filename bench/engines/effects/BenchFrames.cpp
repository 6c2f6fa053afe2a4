#include "engines/effects/EffectBench.h"

// The effects that frame and rearrange a picture. Of those whose level is a size the lowest ones cost most.

namespace {

constexpr CEffectBenchRow kRows[] = {
    {"Film", EEffect::Film, 0, 10},
    {"Art", EEffect::Art, 0, 10},
    {"CrystalFrame", EEffect::CrystalFrame, 0, 10},
    {"Jigsaw", EEffect::Jigsaw, 0, 10},
    {"OilPainting+1", EEffect::OilPainting, 1, 150},
    {"OilPainting+5", EEffect::OilPainting, 5, 150},
    {"OilPainting+15", EEffect::OilPainting, 15, 150},
    {"Tile+1", EEffect::Tile, 1, 10},
    {"Tile+10", EEffect::Tile, 10, 10},
    {"Laminate+1", EEffect::Laminate, 1, 10},
    {"Laminate+20", EEffect::Laminate, 20, 10},
    {"ConcaveMirror", EEffect::ConcaveMirror, 0, 15},
};

[[maybe_unused]] const bool kRegistered = RegisterEffects(kRows);

}  // namespace
