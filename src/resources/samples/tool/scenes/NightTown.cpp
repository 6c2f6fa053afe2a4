#include "NightTown.h"

#include <array>

namespace {

constexpr float kQuay = -64;  // z of the wall along the far bank

// A surface that only shines: by night what is not lit is not worth asking.
CMaterial Shining(const CSpot& spot, CVec3 cr) {
    CMaterial surface;
    surface.crBody = {};
    surface.crMirror = {};
    surface.crEmitted = cr;
    surface.normal = spot.normal;
    return surface;
}

CVec3 WindowLight(std::uint32_t nHash, CVec3 own) {
    static constexpr std::array<CVec3, 4> kLights{
        {{1.5F, 0.85F, 0.36F}, {1.35F, 1.0F, 0.6F}, {0.75F, 0.95F, 1.2F}, {1.6F, 0.7F, 0.25F}}};
    return kLights[nHash % 4] * own * (0.35F + static_cast<float>(nHash >> 8 & 255U) / 255);
}

// Walls with windows on a grid, some of them lit, and a crown in the tower's own colour.
CShader Tower(int nSeed, float fTop, CVec3 crCrown) {
    const float fWide = 0.62F + 0.4F * HashUnit(nSeed, 1);
    const float fTall = 0.85F + 0.35F * HashUnit(nSeed, 2);
    const float fLit = 0.22F + 0.4F * HashUnit(nSeed, 3);
    const bool bStripes = HashUnit(nSeed, 4) < 0.3F;
    return [=](const CSpot& spot) {
        const CVec3 p = spot.position;
        const float fAlong = std::fabs(spot.normal.x) > 0.7F ? p.z : p.x;
        const float a = fAlong / fWide;
        const float b = p.y / fTall;
        const int i = static_cast<int>(std::floor(a)) + (std::fabs(spot.normal.x) > 0.7F ? 500 : 0);
        const int j = static_cast<int>(std::floor(b));
        const float fx = std::fabs(a - std::floor(a) - 0.5F);
        const float fy = std::fabs(b - std::floor(b) - 0.5F);
        CVec3 cr = Mix(CVec3{0.03F, 0.022F, 0.03F}, CVec3{0.008F, 0.011F, 0.022F}, Smooth(0, 18, p.y));
        const bool bPane = bStripes ? fy < 0.16F : fx < 0.3F && fy < 0.28F;
        if (bPane && HashUnit(bStripes ? i / 5 : i, j, nSeed) < fLit)
            cr = WindowLight(HashCell(bStripes ? i / 5 : i, j, nSeed + 9), {1.1F, 1.1F, 1.1F});
        if (p.y > fTop - 1.1F) cr += crCrown * (0.35F + 0.65F * Smooth(0.5F, 0.2F, fx));
        if (std::fabs(spot.normal.y) > 0.7F) cr = {0.01F, 0.01F, 0.015F};
        return Shining(spot, cr);
    };
}

void AddTowers(CScene& stage) {
    static constexpr std::array<CVec3, 5> kCrowns{{{0.9F, 0.35F, 0.12F},
                                                   {0.15F, 0.45F, 1.1F},
                                                   {0.9F, 0.15F, 0.35F},
                                                   {0.25F, 0.85F, 0.75F},
                                                   {1, 0.8F, 0.4F}}};
    for (int i = 0; i < 58; ++i) {
        const bool bBack = i < 32;
        const float x = -66 + 132 * (static_cast<float>(bBack ? i : i - 32) + 0.7F * HashUnit(i, 51)) /
                                  (bBack ? 32.0F : 26.0F);
        const float z = bBack ? -112 - 26 * HashUnit(i, 52) : -74 - 16 * HashUnit(i, 52);
        // Low houses about the pagoda, a cluster of towers on the right.
        const float fCluster =
            std::exp(-std::pow((x - 30) / 17, 2.0F)) + 0.5F * std::exp(-std::pow((x + 52) / 14, 2.0F));
        const float fTop = bBack ? 8 + 9 * HashUnit(i, 53) + 27 * fCluster * (0.4F + 0.6F * HashUnit(i, 54))
                                 : 3.5F + 4 * HashUnit(i, 53) + 9 * fCluster * HashUnit(i, 54) -
                                       1.5F * std::exp(-std::pow((x + 4) / 8, 2.0F));
        const float fHalf = bBack ? 2.2F + 1.6F * HashUnit(i, 55) : 1.9F + 1.5F * HashUnit(i, 55);
        const CVec3 crown = HashUnit(i, 56) < 0.55F ? kCrowns[HashCell(i, 57) % kCrowns.size()] : CVec3{};
        AddBox(stage.mesh, stage.AddShader(Tower(i * 13 + 1, fTop, crown)), {x, fTop / 2, z},
               {fHalf, fTop / 2, fHalf * 0.9F}, 0);
    }
}

// Seven storeys of a pagoda on its hill, washed with warm light from below.
void AddPagoda(CScene& stage, CVec3 foot) {
    const int nHill = stage.AddShader([](const CSpot& spot) {
        const float f = Fbm(spot.position * 0.9F, 4);
        return Shining(
            spot, CVec3{0.012F, 0.03F, 0.014F} * (1 + 1.5F * f) +
                      CVec3{0.1F, 0.075F, 0.02F} * (Smooth(-0.1F, 0.5F, f) * Smooth(1, 5, spot.position.y)));
    });
    AddTurned(stage.mesh, nHill, {{22, -0.5F}, {17, 1.4F}, {11, 3.4F}, {5, 5.0F}, {0, 5.4F}}, 90, 60,
              [&](CVec3 p) {
                  return foot + p + CVec3{0, 0.9F * Fbm(CVec2{p.x, p.z} * 0.8F, 4), 0};
              });
    const int nWall = stage.AddShader([](const CSpot& spot) {
        const CVec3 p = spot.rest;
        const float a = std::atan2(p.z, p.x) / (2 * kPi) * 16;
        const float fBay = std::fabs(a - std::floor(a) - 0.5F);
        return Shining(
            spot, Mix(CVec3{1.5F, 0.72F, 0.2F}, CVec3{0.4F, 0.1F, 0.03F}, Smooth(0.18F, 0.3F, fBay)) * 0.9F);
    });
    const int nRoof = stage.AddShader([](const CSpot& spot) {
        const float fBelow = Smooth(0.1F, -0.5F, spot.normal.y);
        return Shining(spot, Mix(CVec3{0.16F, 0.09F, 0.035F}, CVec3{1.6F, 0.85F, 0.26F}, fBelow));
    });
    const int nEave = stage.AddShader([](const CSpot& spot) { return Shining(spot, {2.2F, 1.35F, 0.5F}); });
    float y = foot.y + 5.2F;
    for (int i = 0; i < 7; ++i) {
        const float s = 1 - 0.095F * static_cast<float>(i);
        const float fBase = y;
        const auto raise = [&, s, fBase](CVec3 p) {
            // Eight-sided, with corners that sweep up.
            const float a = std::atan2(p.z, p.x);
            const float fCorner = std::pow(std::fabs(std::cos(a * 4)), 6.0F);
            const float r = std::sqrt(p.x * p.x + p.z * p.z);
            const float fLift = 0.28F * fCorner * Smooth(1.6F, 2.6F, r);
            return CVec3{foot.x, fBase, foot.z} +
                   CVec3{p.x * s, (p.y + fLift) * s, p.z * s} * (1 + 0.05F * fCorner);
        };
        AddTurned(stage.mesh, nWall, {{1.55F, 0}, {1.55F, 0.7F}, {1.5F, 1.4F}}, 64, 6, raise);
        AddTurned(stage.mesh, nRoof,
                  {{1.4F, 1.2F},
                   {2.0F, 1.2F},
                   {2.65F, 1.18F},
                   {2.7F, 1.25F},
                   {2.1F, 1.45F},
                   {1.5F, 1.85F},
                   {1.3F, 1.95F}},
                  96, 30, raise);
        AddTurned(stage.mesh, nEave, {{2.66F, 1.16F}, {2.74F, 1.2F}, {2.7F, 1.26F}}, 96, 3, raise);
        y += 1.85F * s;
    }
    AddTurned(stage.mesh, nRoof,
              {{0.35F, 0}, {0.3F, 0.4F}, {0.12F, 0.8F}, {0.16F, 1.1F}, {0.05F, 1.6F}, {0, 2.4F}}, 24, 24,
              [&](CVec3 p) {
                  return CVec3{foot.x, y, foot.z} + p;
              });
}

// A stone bridge of five arches over the river's arm on the right.
void AddBridge(CScene& stage, std::vector<CTownLamp>& lamps) {
    const auto deck = [](float x) { return 2.6F + 2.2F * std::exp(-std::pow((x - 20) / 17, 2.0F)); };
    const int nStone = stage.AddShader([](const CSpot& spot) {
        const CVec3 p = spot.position;
        const float fGlow = 0.12F + 0.88F * std::exp(-std::max(0.0F, p.y) * 0.75F);
        return Shining(spot, CVec3{0.72F, 0.39F, 0.15F} * (fGlow * (0.55F + 0.5F * Fbm(p * 2, 3))));
    });
    AddField(
        stage.mesh, nStone,
        [&](CVec3 p) {
            float f = std::max({std::fabs(p.z + 52) - 1.2F, p.y - deck(p.x), -1 - p.y});
            for (int i = 0; i < 7; ++i) {
                const float x = -4 + 8.0F * static_cast<float>(i);
                const float fHigh = deck(x) - 1.0F;
                const float r = Length(CVec2{(p.x - x) / 3.1F, std::max(p.y, -1.0F) / fHigh});
                f = std::max(f, (1 - r) * std::min(3.1F, fHigh));
            }
            return f;
        },
        {-9, -0.8F, -53.6F}, {56, 5.4F, -50.4F}, 0.22F);
    for (int i = 0; i < 17; ++i) {
        const float x = -7 + 4.0F * static_cast<float>(i);
        lamps.push_back({{x, deck(x) + 1.1F, -51.2F}, {1, 0.72F, 0.34F}, 1.3F});
    }
}

}  // namespace

std::vector<CTownLamp> AddTown(CScene& stage) {
    std::vector<CTownLamp> lamps;
    AddTowers(stage);
    const int nQuay = stage.AddShader([](const CSpot& spot) {
        const CVec3 p = spot.position;
        const float fLamp = std::fabs(p.x / 5 - std::floor(p.x / 5) - 0.5F);
        const float fGlow = std::exp(-fLamp * 5) * std::exp(-std::fabs(p.y - 1.5F));
        return Shining(spot, CVec3{0.4F, 0.22F, 0.09F} * (0.15F + fGlow) * (0.7F + 0.5F * Fbm(p * 2, 3)));
    });
    AddBox(stage.mesh, nQuay, {0, 0.5F, kQuay - 40}, {200, 1.0F, 40}, 0);
    AddPagoda(stage, {-4, 0, -92});
    AddBridge(stage, lamps);
    for (int i = 0; i < 36; ++i) {
        const float x = -87.5F + 5.0F * static_cast<float>(i);
        lamps.push_back({{x, 3.1F, kQuay - 0.5F}, {1, 0.66F, 0.27F}, 1.0F});
    }
    // Signs, cars and windows that outshine the rest.
    static constexpr std::array<CVec3, 5> kSigns{
        {{1, 0.25F, 0.2F}, {0.25F, 0.6F, 1}, {0.3F, 0.95F, 0.65F}, {1, 0.35F, 0.7F}, {1, 0.9F, 0.7F}}};
    for (int i = 0; i < 46; ++i) {
        const float x = -60 + 120 * HashUnit(i, 61);
        const float fHigh = HashUnit(i, 62);
        lamps.push_back({{x, 1.8F + 9 * fHigh * fHigh, -68 - 24 * HashUnit(i, 63)},
                         kSigns[HashCell(i, 64) % kSigns.size()],
                         0.25F + 0.6F * HashUnit(i, 65)});
    }
    return lamps;
}
