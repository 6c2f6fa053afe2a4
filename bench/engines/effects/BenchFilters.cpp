#include "engines/effects/EffectBench.h"

// The effects that look at neighbours or at the histogram.

namespace {

// One pass of Sharpness beside ten tells what the conversions take and what a pass.
constexpr CEffectBenchRow kRows[] = {
    {"Sharpness+1", EEffect::Sharpness, 1, 13},
    {"Sharpness+3", EEffect::Sharpness, 3, 19},
    {"Sharpness+10", EEffect::Sharpness, 10, 40},
    {"Sharpness-1", EEffect::Sharpness, -1, 13},
    {"Sharpness-10", EEffect::Sharpness, -10, 40},
    {"NoiseRemoval", EEffect::NoiseRemoval, 0, 20},
    {"Backlight", EEffect::Backlight, 0, 5},
    {"Homogenise", EEffect::Homogenise, 0, 15},
    {"LowLightRepair", EEffect::LowLightRepair, 0, 5},
    {"Haze2", EEffect::Haze2, 50, 15},
    {"Engrave", EEffect::Engrave, 0, 10},
    {"Sketch", EEffect::Sketch, 0, 15},
    {"Refraction1", EEffect::Refraction1, 50, 15},
    {"Refraction2", EEffect::Refraction2, 50, 15},
    {"Woodcut", EEffect::Woodcut, 0, 10},
};

[[maybe_unused]] const bool kRegistered = RegisterEffects(kRows);

}  // namespace
