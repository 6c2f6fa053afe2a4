#pragma once

#include <array>
#include <cstddef>

// At each hue one channel stands at the top, one at the bottom, and one on the ramp between. These are the
// hues, 0..255 over the circle, at which they change places, and the position of each hue on its ramp, 0..60
// degrees, as the formula's single precision gives it.
inline constexpr int kHueRedFalls = 43;
inline constexpr int kHueBlueRises = 85;
inline constexpr int kHueGreenFalls = 128;
inline constexpr int kHueRedRises = 170;
inline constexpr int kHueBlueFalls = 213;

constexpr std::array<float, 256> MakeHueRamp() {
    std::array<float, 256> ramp{};
    for (int n = 0; n < 256; ++n) {
        const float h = static_cast<float>(n) * 360.0F / 255.0F;
        float& t = ramp[static_cast<std::size_t>(n)];
        if (n < kHueRedFalls) {
            t = h;
        } else if (n < kHueBlueRises) {
            t = 240.0F - (h + 120.0F);
        } else if (n < kHueGreenFalls) {
            t = h - 120.0F;
        } else if (n < kHueRedRises) {
            t = 240.0F - h;
        } else if (n < kHueBlueFalls) {
            t = h + 120.0F - 360.0F;
        } else {
            t = 240.0F - (h - 120.0F);
        }
    }
    return ramp;
}
inline constexpr std::array<float, 256> kHueRamp = MakeHueRamp();
