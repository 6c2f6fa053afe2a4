#include "engines/effects/EffectBench.h"

// The effects that look at neighbours or at the histogram.

namespace {

// One pass of Sharpness beside ten tells what the conversions take and what a pass.
constexpr CEffectBenchRow kRows[] = {
    {"Sharpness+1", kSharpness, 1, 13},
    {"Sharpness+3", kSharpness, 3, 19},
    {"Sharpness+10", kSharpness, 10, 40},
    {"Sharpness-1", kSharpness, -1, 13},
    {"Sharpness-10", kSharpness, -10, 40},
    {"NoiseRemoval", kNoiseRemoval, 0, 20},
    {"Backlight", kBacklight, 0, 5},
    {"Homogenise", kHomogenise, 0, 15},
    {"LowLightRepair", kLowLightRepair, 0, 5},
    {"Haze2", kHaze2, 50, 15},
    {"Engrave", kEngrave, 0, 10},
    {"Sketch", kSketch, 0, 15},
    {"Refraction1", kRefraction1, 50, 15},
    {"Refraction2", kRefraction2, 50, 15},
    {"Woodcut", kWoodcut, 0, 10},
};

[[maybe_unused]] const bool g_bRegistered = RegisterEffects(kRows);

}  // namespace
