#include "effects/EffectBench.h"

// The effects that look at neighbours or at the histogram.

namespace {

// One pass of Sharpness beside ten tells what the conversions take and what a pass.
constexpr CEffectBenchRow kRows[] = {
    {"Sharpness+1", Sharpness, 1},
    {"Sharpness+10", Sharpness, 10},
    {"Sharpness-1", Sharpness, -1},
    {"Sharpness-10", Sharpness, -10},
    {"NoiseRemoval", NoiseRemoval, 0},
    {"Backlight", Backlight, 0},
    {"LowLightRepair", LowLightRepair, 0},
    {"Haze2", Haze2, 50},
    {"Engrave", Engrave, 0},
    {"Sketch", Sketch, 0},
    {"Refraction1", Refraction1, 50},
    {"Refraction2", Refraction2, 50},
    {"Woodcut", Woodcut, 0},
};

[[maybe_unused]] const bool g_bRegistered = RegisterEffects(kRows);

}  // namespace
