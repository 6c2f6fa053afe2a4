#pragma once

#include <algorithm>
#include <cstdint>

#include "image/Color.h"

// The colour formulas of the whole program, on bytes. A converted colour stands in the fields of a CColor: Y,
// U, V or H, S, L in r, g, b. Where single precision is used the terms are evaluated in the order written; a
// fused multiply-add or another order changes results.

constexpr std::uint8_t LimitToByte(int n) {
    return static_cast<std::uint8_t>(std::clamp(n, 0, 255));
}

// Neutral chroma is U = V = 128.
constexpr CColor ColorRGBtoYUV(CColor rgb) {
    const auto r = static_cast<float>(rgb.r);
    const auto g = static_cast<float>(rgb.g);
    const auto b = static_cast<float>(rgb.b);
    const int y = static_cast<int>(0.299F * r + 0.587F * g + 0.114F * b);
    const int u = static_cast<int>((b - static_cast<float>(y)) * 0.565F + 128.0F);
    const int v = static_cast<int>((r - static_cast<float>(y)) * 0.713F + 128.0F);
    return {LimitToByte(y), LimitToByte(u), LimitToByte(v)};
}

constexpr CColor ColorYUVtoRGB(CColor yuv) {
    const auto y = static_cast<float>(yuv.r);
    const auto u = static_cast<float>(yuv.g - 128);
    const auto v = static_cast<float>(yuv.b - 128);
    return {LimitToByte(static_cast<int>(y + 1.403F * v)),
            LimitToByte(static_cast<int>(y - 0.344F * u - 0.714F * v)),
            LimitToByte(static_cast<int>(y + 1.770F * u))};
}

// The hue runs 0..255 over the circle with red at 0, and is 170 for a grey.
constexpr CColor ColorRGBtoHSL(CColor rgb) {
    const int r = rgb.r;
    const int g = rgb.g;
    const int b = rgb.b;
    const int nMax = std::max({r, g, b});
    const int nMin = std::min({r, g, b});
    const int nSum = nMax + nMin;
    const int nSpan = nMax - nMin;
    const int l = (nSum * 255 + 255) / 510;
    if (nSpan == 0) return {170, 0, LimitToByte(l)};

    const int nReach = l <= 127 ? nSum : 510 - nSum;
    const int s = (nSpan * 255 + nReach / 2) / nReach;
    const int dR = ((nMax - r) * 42 + nSpan / 2) / nSpan;
    const int dG = ((nMax - g) * 42 + nSpan / 2) / nSpan;
    const int dB = ((nMax - b) * 42 + nSpan / 2) / nSpan;
    const int h = r == nMax ? dB - dG : g == nMax ? 85 + dR - dB : 170 + dG - dR;
    return {static_cast<std::uint8_t>(h), LimitToByte(s), LimitToByte(l)};
}

// One channel at the angle a in degrees, on the ramp between p and q.
constexpr std::uint8_t HueChannel(float p, float q, float a) {
    if (a > 360.0F) a -= 360.0F;
    if (a < 0.0F) a += 360.0F;
    float f = p;
    if (a < 60.0F) {
        f = p + (q - p) * a / 60.0F;
    } else if (a < 180.0F) {
        f = q;
    } else if (a < 240.0F) {
        f = p + (q - p) * (240.0F - a) / 60.0F;
    }
    return LimitToByte(static_cast<int>(255.0F * f));
}

constexpr CColor ColorHSLtoRGB(CColor hsl) {
    const float h = static_cast<float>(hsl.r) * 360.0F / 255.0F;
    const float s = static_cast<float>(hsl.g) / 255.0F;
    const float l = static_cast<float>(hsl.b) / 255.0F;
    if (hsl.g == 0) {
        const std::uint8_t n = LimitToByte(static_cast<int>(l * 255.0F));
        return {n, n, n};
    }
    const float q = l <= 0.5F ? l * (1.0F + s) : l + s - l * s;
    const float p = 2.0F * l - q;
    return {HueChannel(p, q, h + 120.0F), HueChannel(p, q, h), HueChannel(p, q, h - 120.0F)};
}
