#include "engines/effects/EffectBench.h"

// The effects that change a pixel by itself or by a running value.

namespace {

constexpr CEffectBenchRow kRows[] = {
    {"Negative", EEffect::Negative, 0, 1.5, true},
    // Half as much again: the memory written to is fetched first, besides the one read.
    {"NegativeOfShared", EEffect::Negative, 0, 2.25},
    {"Contrast", EEffect::Contrast, 100, 3},
    {"Cool", EEffect::Cool, 100, 3},
    {"Moonlight", EEffect::Moonlight, 50, 3},
    {"Brightness", EEffect::Brightness, 100, 10},
    {"BlackWhite", EEffect::BlackWhite, 0, 10},
    {"OldPhoto", EEffect::OldPhoto, 0, 10},
    {"Nostalgia", EEffect::Nostalgia, 20, 10},
    {"Haze1", EEffect::Haze1, 50, 10},
    {"Chroma", EEffect::Chroma, 100, 30},
    {"ColourSaturation", EEffect::ColourSaturation, 100, 30},
    {"PureBlackWhite", EEffect::PureBlackWhite, 100, 40},
};

[[maybe_unused]] const bool kRegistered = RegisterEffects(kRows);

}  // namespace
