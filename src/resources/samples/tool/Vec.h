#pragma once

#include <algorithm>
#include <cmath>

// Vectors and the few scalar helpers that every scene uses. Colours are vectors too: linear light, 1 = white.

constexpr float kPi = 3.14159265358979F;

struct CVec2 {
    float x = 0;
    float y = 0;
};

struct CVec3 {
    float x = 0;
    float y = 0;
    float z = 0;

    constexpr CVec3 operator+(CVec3 v) const { return {x + v.x, y + v.y, z + v.z}; }
    constexpr CVec3 operator-(CVec3 v) const { return {x - v.x, y - v.y, z - v.z}; }
    constexpr CVec3 operator*(CVec3 v) const { return {x * v.x, y * v.y, z * v.z}; }
    constexpr CVec3 operator*(float f) const { return {x * f, y * f, z * f}; }
    constexpr CVec3 operator/(float f) const { return {x / f, y / f, z / f}; }
    constexpr CVec3 operator-() const { return {-x, -y, -z}; }
    CVec3& operator+=(CVec3 v) { return *this = *this + v; }
    CVec3& operator*=(CVec3 v) { return *this = *this * v; }
    constexpr float operator[](int nAxis) const { return nAxis == 0 ? x : nAxis == 1 ? y : z; }
};

constexpr CVec2 operator+(CVec2 a, CVec2 b) {
    return {a.x + b.x, a.y + b.y};
}
constexpr CVec2 operator-(CVec2 a, CVec2 b) {
    return {a.x - b.x, a.y - b.y};
}
constexpr CVec2 operator*(CVec2 a, float f) {
    return {a.x * f, a.y * f};
}
constexpr float Dot(CVec2 a, CVec2 b) {
    return a.x * b.x + a.y * b.y;
}
inline float Length(CVec2 v) {
    return std::sqrt(Dot(v, v));
}

constexpr CVec3 operator*(float f, CVec3 v) {
    return v * f;
}
constexpr float Dot(CVec3 a, CVec3 b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
constexpr CVec3 Cross(CVec3 a, CVec3 b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline float Length(CVec3 v) {
    return std::sqrt(Dot(v, v));
}
inline CVec3 Normalize(CVec3 v) {
    return v / std::max(Length(v), 1e-20F);
}
inline CVec3 Min(CVec3 a, CVec3 b) {
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::min(a.z, b.z)};
}
inline CVec3 Max(CVec3 a, CVec3 b) {
    return {std::max(a.x, b.x), std::max(a.y, b.y), std::max(a.z, b.z)};
}
constexpr CVec3 Reflect(CVec3 dir, CVec3 normal) {
    return dir - normal * (2 * Dot(dir, normal));
}
constexpr float Luminance(CVec3 cr) {
    return 0.2126F * cr.x + 0.7152F * cr.y + 0.0722F * cr.z;
}

constexpr float Clamp01(float f) {
    return f < 0 ? 0.0F : f > 1 ? 1.0F : f;
}
constexpr float Mix(float a, float b, float t) {
    return a + (b - a) * t;
}
constexpr CVec3 Mix(CVec3 a, CVec3 b, float t) {
    return a + (b - a) * t;
}

// 0 below fFrom, 1 above fTo, a soft S between them.
constexpr float Smooth(float fFrom, float fTo, float f) {
    const float t = Clamp01((f - fFrom) / (fTo - fFrom));
    return t * t * (3 - 2 * t);
}

// A colour given as people write it, 0xRRGGBB in sRGB, as linear light.
inline CVec3 Srgb(unsigned nHex) {
    const auto toLinear = [](unsigned nByte) {
        const float f = static_cast<float>(nByte & 255U) / 255.0F;
        return f <= 0.04045F ? f / 12.92F : std::pow((f + 0.055F) / 1.055F, 2.4F);
    };
    return {toLinear(nHex >> 16), toLinear(nHex >> 8), toLinear(nHex)};
}

// Two directions that stand square on the unit vector `normal` and on each other.
struct CFrame {
    CVec3 tangent;
    CVec3 bitangent;
    CVec3 normal;

    explicit CFrame(CVec3 n) : normal(n) {
        const CVec3 side = std::fabs(n.y) < 0.9F ? CVec3{0, 1, 0} : CVec3{1, 0, 0};
        tangent = Normalize(Cross(side, n));
        bitangent = Cross(n, tangent);
    }
    CVec3 ToWorld(CVec3 v) const { return tangent * v.x + bitangent * v.y + normal * v.z; }
};

// p turned about the y axis; positive radians turn +z towards +x.
inline CVec3 TurnY(CVec3 p, float fRadians) {
    const float c = std::cos(fRadians);
    const float s = std::sin(fRadians);
    return {p.x * c + p.z * s, p.y, p.z * c - p.x * s};
}
inline CVec3 TurnX(CVec3 p, float fRadians) {
    const float c = std::cos(fRadians);
    const float s = std::sin(fRadians);
    return {p.x, p.y * c - p.z * s, p.y * s + p.z * c};
}
inline CVec3 TurnZ(CVec3 p, float fRadians) {
    const float c = std::cos(fRadians);
    const float s = std::sin(fRadians);
    return {p.x * c - p.y * s, p.x * s + p.y * c, p.z};
}
