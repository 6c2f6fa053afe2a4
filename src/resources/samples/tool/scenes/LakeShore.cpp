#include "LakeShore.h"

namespace {

float Hill(float x, float d, CVec2 at, CVec2 size, float fHeight) {
    const float dx = (x - at.x) / size.x;
    const float dd = (d - at.y) / size.y;
    return fHeight * std::exp(-dx * dx - dd * dd);
}

struct CPeak {
    CVec2 at;
    float fHeight = 0;
    float fFoot = 0;
};
constexpr CPeak kPeaks[] = {{{-27, 116}, 39, 44}, {{3, 122}, 30, 36},  {{33, 126}, 34, 42},
                            {{-66, 128}, 31, 44}, {{70, 124}, 27, 40}, {{-45, 100}, 16, 26},
                            {{16, 102}, 15, 24}};

CShader Bark(unsigned nHex) {
    return [cr = Srgb(nHex)](const CSpot& spot) {
        CMaterial surface;
        const CVec3 p = spot.rest;
        surface.crBody = cr * (0.8F + 0.5F * Fbm(CVec3{p.x * 22, p.y * 4, p.z * 22}, 3));
        surface.normal = spot.normal;
        surface.fRoughness = 0.85F;
        surface.crMirror = {0.02F, 0.02F, 0.02F};
        return surface;
    };
}

CShader Needles(unsigned nDark, unsigned nLight) {
    return [dark = Srgb(nDark), light = Srgb(nLight)](const CSpot& spot) {
        CMaterial surface;
        const CVec3 p = spot.position;
        surface.crBody =
            Mix(dark, light, Clamp01(0.5F + Fbm(p * 1.3F, 3) + 0.5F * Noise(CVec2{p.x * 0.3F, p.z * 0.3F})));
        surface.normal = Bend(spot, p, 0.03F, 0.6F, [](CVec3 q) { return 0.25F * Fbm(q * 9, 2); });
        surface.fRoughness = 0.9F;
        surface.crMirror = {0.01F, 0.01F, 0.01F};
        return surface;
    };
}

// A spruce as seen from afar: a spire whose skirt is ragged.
void AddFarTree(CScene& stage, int nMaterial, CVec3 foot, float fHeight, int nAround, int nTiers,
                std::uint32_t nSeed) {
    const float fWide = fHeight * (0.15F + 0.07F * static_cast<float>(nSeed & 255U) / 255);
    const float fLean = 0.05F * (static_cast<float>(nSeed >> 8 & 255U) / 255 - 0.5F);
    AddSheet(stage.mesh, nMaterial, nAround, nTiers * 2, true, [&](float u, float v) {
        const int nStep = static_cast<int>(std::lround(v * static_cast<float>(nTiers) * 2));
        const int nSpoke = static_cast<int>(std::lround(u * static_cast<float>(nAround))) % nAround;
        const float fJag = HashUnit(nSpoke, nStep, static_cast<int>(nSeed & 0xffffU));
        const float r =
            fWide * (1 - v) * (nStep % 2 == 0 ? 0.95F + 0.5F * fJag : 0.5F + 0.25F * fJag) + 0.004F * fHeight;
        const float a = 2 * kPi * u;
        const float y = fHeight * (0.06F + 0.94F * v - (nStep % 2 == 0 ? 0.035F * fJag : 0));
        return foot + CVec3{-r * std::cos(a) + fLean * y, y, r * std::sin(a)};
    });
}

// A spruce close by: whorls of boughs that droop, each with twigs to both sides.
void AddNearTree(CScene& stage, int nBark, int nNeedles, CVec3 foot, float fHeight, std::uint32_t nSeed) {
    CRandom random(nSeed, 5);
    const std::size_t nFirst = stage.mesh.corners.size();
    AddTurned(stage.mesh, nBark, {{0.026F, 0}, {0.02F, 0.1F}, {0.015F, 0.4F}, {0.007F, 0.8F}, {0.001F, 1}},
              16, 40, nullptr);
    stage.mesh.Move(nFirst, [&](CVec3 p) { return foot + p * fHeight; });
    const int nWhorls = 30;
    for (int i = 0; i < nWhorls; ++i) {
        const float t = 0.12F + 0.86F * static_cast<float>(i) / nWhorls;
        const int nBoughs = 9;
        for (int j = 0; j < nBoughs; ++j) {
            const float a = 2 * kPi * (static_cast<float>(j) + random.Unit()) / nBoughs;
            const float fReach = fHeight * 0.2F * std::pow(1 - t, 0.8F) * random.Between(0.65F, 1.15F);
            const CVec3 out{std::cos(a), 0, std::sin(a)};
            const CVec3 side{-out.z, 0, out.x};
            const float fDroop = random.Between(0.3F, 0.65F) * (1 - 0.6F * t);
            const auto along = [&](float s) {
                return foot + CVec3{0, fHeight * t, 0} + out * (fReach * s) +
                       CVec3{0, -fDroop * fReach * s * s + 0.12F * fReach * s * s * s, 0};
            };
            for (int k = 0; k < 26; ++k) {
                const float s = (static_cast<float>(k) + random.Unit()) / 26;
                const CVec3 root = along(s);
                const float fSide = k % 2 == 0 ? 1.0F : -1.0F;
                const float fTwig = fReach * 0.34F * (1.1F - s) + 0.05F;
                const CVec3 tip = root + (side * (fSide * 0.75F) + out * 0.75F) * fTwig +
                                  CVec3{0, random.Between(-0.5F, 0.05F) * fTwig, 0};
                const CVec3 thick =
                    CVec3{random.Between(-1, 1), random.Between(-0.5F, 1), random.Between(-1, 1)} * 0.022F;
                AddSheet(stage.mesh, nNeedles, 2, 2, false, [&](float u, float v) {
                    return Mix(root, tip, u) + thick * ((v - 0.5F) * 2 * (1.2F - u)) +
                           CVec3{0, 0.02F * (1 - std::fabs(2 * v - 1)), 0};
                });
            }
        }
    }
}

// A point of the boat's shell; u runs from stern to bow, v from gunwale under the keel to gunwale.
CVec3 SkinPoint(float u, float v, float fShrink) {
    const float s = u * 2 - 1;
    const float fBeam =
        0.5F * fShrink * std::pow(std::max(0.0F, 1 - std::pow(std::max(s, -0.75F * s), 2.6F)), 0.6F);
    const float fTop = 0.4F + 0.16F * s * s;
    const float a = kPi * v;
    const float fDepth = std::pow(std::fabs(std::sin(a)), 0.7F);
    const float fKeel = -0.12F + 0.22F * std::pow(std::max(s, 0.0F), 3.0F) + (1 - fShrink) * 0.7F;
    return {-fBeam * std::cos(a) * (0.75F + 0.25F * (1 - fDepth)), Mix(fTop, fKeel, fDepth), -s * 1.3F};
}

CMaterial Plank(const CSpot& spot) {
    CMaterial surface;
    const CVec3 p = spot.position;
    const float fOwn = std::floor(p.z / 0.19F);
    const float fGrain = Fbm(CVec2{p.x * 2.2F + fOwn * 3.7F, p.z * 34}, 4);
    surface.crBody = Mix(Srgb(0x6d5a48), Srgb(0xa18a6c),
                         0.5F + 0.7F * fGrain + 0.25F * (HashUnit(static_cast<int>(fOwn), 5) - 0.5F));
    surface.normal = Bend(spot, p, 0.01F, 0.02F, [](CVec3 q) { return Fbm(CVec2{q.x * 3, q.z * 50}, 3); });
    surface.fRoughness = 0.75F;
    return surface;
}

}  // namespace

float LandHeight(float x, float d) {
    const CVec2 at{x, d};
    const float fRough = Fbm(at * 0.09F, 6);
    // The lake's bed, the far shore with its bays, and the range behind it.
    const float fShore = 47 + 7 * Fbm(CVec2{x * 0.035F, 2}, 3) + 0.004F * x * x;
    float f = -1.5F + 1.7F * Smooth(fShore - 4, fShore, d) + 0.05F * std::max(0.0F, d - fShore);
    f +=
        Hill(x, d, {-44, 54}, {24, 15}, 11.5F + 6 * fRough) + Hill(x, d, {52, 66}, {26, 16}, 15 + 7 * fRough);
    f += Hill(x, d, {10, 72}, {26, 12}, 5 + 5 * fRough);
    // Pyramids whose flanks gullies have cut; the cuts are deepest halfway up.
    const CVec2 bent = at + CVec2{Fbm(at * 0.05F, 4), Fbm(at * 0.05F + CVec2{7, 3}, 4)} * 13.0F;
    float fRange = 0;
    for (const CPeak& peak : kPeaks) {
        const float r = Length(bent - peak.at) / peak.fFoot;
        if (r >= 1) continue;
        const float fPyramid = peak.fHeight * (1 - r) * (1.25F - 0.25F * r);
        fRange = SmoothMax(fRange, fPyramid, std::min(3.0F, fPyramid + 0.01F));
    }
    const float fCut = Ridged(bent * 0.055F + CVec2{2.3F, 0.6F}, 8) - 0.55F;
    f += fRange * (1 + 0.4F * fCut) + 4.5F * fCut * Smooth(2, 14, fRange);
    // The bank at the photographer's feet, higher on the left.
    const float fBank = Smooth(8.5F, 3.5F, d + 1.1F * x + 2.0F * Noise(at * 0.45F) + 2.2F);
    return std::max(f, -1.5F + 2.1F * fBank + 0.07F * Fbm(at * 2.2F, 4) * fBank);
}

void AddWoods(CScene& stage) {
    const int nFar = stage.AddShader(Needles(0x18301f, 0x3f5a2a));
    const int nGold = stage.AddShader(Needles(0x7a5a18, 0xb8862a));
    for (int i = 0; i < 15000; ++i) {
        const float x = -95 + 190 * HashUnit(i, 1);
        const float d = 38 + 58 * HashUnit(i, 2);
        const float y = LandHeight(x, d);
        if (y < 0.25F || y > 13.5F || std::fabs(x) > d * 0.85F + 3) continue;
        if (Fbm(CVec2{x * 0.09F, d * 0.09F}, 3) < -0.12F - 0.2F * HashUnit(i, 3)) continue;
        const std::uint32_t nSeed = HashCell(i, 4);
        const float fHeight = 1.3F + 1.6F * HashUnit(i, 5);
        AddFarTree(stage, HashUnit(i, 6) < 0.1F && y < 3 ? nGold : nFar, {x, y - 0.1F, -d}, fHeight, 7, 5,
                   nSeed);
    }
    const int nBark = stage.AddShader(Bark(0x4a3828));
    const int nNear = stage.AddShader(Needles(0x24461f, 0x5d7a34));
    AddNearTree(stage, nBark, nNear, {-5.4F, LandHeight(-5.4F, 9.0F) - 0.1F, -9.0F}, 8.3F, 11);
    AddNearTree(stage, nBark, nNear, {-7.6F, LandHeight(-7.6F, 11.5F) - 0.1F, -11.5F}, 7.2F, 12);
    AddNearTree(stage, nBark, nNear, {-4.4F, LandHeight(-4.4F, 10.6F) - 0.1F, -10.6F}, 4.6F, 13);
}

void AddReeds(CScene& stage) {
    const int nReed = stage.AddShader([](const CSpot& spot) {
        CMaterial surface;
        surface.crBody = Mix(Srgb(0x4f6a2a), Srgb(0xb09a50),
                             Clamp01(0.4F + 0.5F * Noise(spot.position * 3) + 0.25F * spot.position.y));
        surface.normal = spot.normal;
        surface.fRoughness = 0.7F;
        return surface;
    });
    for (int i = 0; i < 9000; ++i) {
        const float x = -6.5F + 8.0F * HashUnit(i, 21);
        const float d = 3.3F + 6.5F * HashUnit(i, 22);
        const float y = LandHeight(x, d);
        if (y < -0.28F || y > 0.62F) continue;
        const float fTuft = Noise(CVec2{x * 1.2F, d * 1.2F}) + 0.25F;
        if (fTuft < 0) continue;
        const float fTall =
            (0.2F + 0.4F * HashUnit(i, 23)) * (0.5F + 0.8F * Smooth(0.2F, -0.1F, y)) * (0.6F + fTuft);
        const float a = 6.28F * HashUnit(i, 24);
        const CVec3 lean{std::cos(a) * 0.3F + 0.12F, 0, std::sin(a) * 0.3F};
        const float fHalf = 0.007F + 0.005F * HashUnit(i, 25);
        AddSheet(stage.mesh, nReed, 1, 5, false, [&](float u, float v) {
            return CVec3{x + (u - 0.5F) * 2 * fHalf * (1 - v), y + fTall * (v - 0.15F * v * v), -d} +
                   lean * (fTall * v * v);
        });
    }
}

void AddJetty(CScene& stage) {
    const int nPlank = stage.AddShader(Plank);
    const int nPost = stage.AddShader(Bark(0x5d4c3c));
    const std::size_t nFirst = stage.mesh.corners.size();
    for (int i = 0; i < 36; ++i) {
        const float z = -0.19F * static_cast<float>(i);
        const float fOver = 0.05F * (HashUnit(i, 31) - 0.5F);
        AddBox(stage.mesh, nPlank, {fOver, 0.36F + 0.012F * HashUnit(i, 32), z}, {0.55F, 0.018F, 0.086F},
               0.02F * (HashUnit(i, 33) - 0.5F));
    }
    for (int i = 0; i < 5; ++i) {
        for (int nSide = -1; nSide <= 1; nSide += 2) {
            const CVec3 foot{0.52F * static_cast<float>(nSide), -1,
                             -0.2F - 1.58F * static_cast<float>(i) - (nSide > 0 ? 0.7F : 0.0F)};
            const float fTop = 1.55F + 0.35F * HashUnit(i, nSide + 40);
            AddTurned(stage.mesh, nPost,
                      {{0.06F, 0}, {0.06F, 0.8F}, {0.058F, fTop - 0.03F}, {0.045F, fTop}, {0, fTop}}, 18, 24,
                      [&](CVec3 p) { return foot + p; });
        }
    }
    for (int nSide = -1; nSide <= 1; nSide += 2) {
        AddBox(stage.mesh, nPost, {0.45F * static_cast<float>(nSide), 0.3F, -3.3F}, {0.04F, 0.05F, 3.5F}, 0);
    }
    stage.mesh.Move(nFirst, [](CVec3 p) { return TurnY(p, 0.2F) + CVec3{3.1F, 0, -4.0F}; });
}

void AddBoat(CScene& stage) {
    const int nHull = stage.AddShader([](const CSpot& spot) {
        CMaterial surface;
        const CVec3 p = spot.rest;
        const float fStrake = std::fabs(std::fmod(p.y * 9 + 9, 1.0F) - 0.5F);
        surface.crBody = Mix(Srgb(0xb03a2a), Srgb(0x8a2a20), Fbm(p * 6, 4) + 0.4F);
        if (p.y > 0.36F) surface.crBody = Srgb(0xe6ddc8);
        surface.crBody = surface.crBody * (0.75F + 0.25F * Smooth(0.04F, 0.12F, fStrake));
        surface.normal = spot.normal;
        surface.fRoughness = 0.45F;
        return surface;
    });
    const int nWood = stage.AddShader(Bark(0x9a7248));
    const std::size_t nFirst = stage.mesh.corners.size();
    // Outside and inside of the shell.
    for (int nSkin = 0; nSkin < 2; ++nSkin) {
        AddSheet(stage.mesh, nSkin == 0 ? nHull : nWood, 80, 40, false, [&](float u, float v) {
            return nSkin == 0 ? SkinPoint(u, v, 1) : SkinPoint(0.03F + 0.94F * u, 1 - v, 0.93F);
        });
    }
    // The flat stern.
    AddSheet(stage.mesh, nHull, 20, 12, false, [&](float u, float v) {
        const CVec3 low = SkinPoint(0, u, 1);
        return CVec3{low.x, Mix(low.y, 0.56F, v), low.z + 0.003F};
    });
    AddBox(stage.mesh, nWood, {0, 0.3F, 0.45F}, {0.45F, 0.02F, 0.13F}, 0);
    AddBox(stage.mesh, nWood, {0, 0.3F, -0.35F}, {0.44F, 0.02F, 0.13F}, 0);
    stage.mesh.Move(nFirst, [](CVec3 p) { return TurnY(p, 0.75F) + CVec3{0.55F, -0.03F, -9.0F}; });
}
