#include "engines/effects/EffectBench.h"

// The effects that change a pixel by itself or by a running value.

namespace {

constexpr CEffectBenchRow kRows[] = {
    {"Negative", kNegative, 0, 1.5, true},
    // Half as much again: the memory written to is fetched first, besides the one read.
    {"NegativeOfShared", kNegative, 0, 2.25},
    {"Contrast", kContrast, 100, 3},
    {"Cool", kCool, 100, 3},
    {"Moonlight", kMoonlight, 50, 3},
    {"Brightness", kBrightness, 100, 10},
    {"BlackWhite", kBlackWhite, 0, 10},
    {"OldPhoto", kOldPhoto, 0, 10},
    {"Nostalgia", kNostalgia, 20, 10},
    {"Haze1", kHaze1, 50, 10},
    {"Chroma", kChroma, 100, 30},
    {"ColourSaturation", kColourSaturation, 100, 30},
    {"PureBlackWhite", kPureBlackWhite, 100, 40},
};

[[maybe_unused]] const bool g_bRegistered = RegisterEffects(kRows);

}  // namespace
