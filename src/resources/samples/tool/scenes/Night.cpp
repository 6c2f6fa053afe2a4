// A river town at night: red lanterns close by, behind them a pagoda, a bridge and towers, soft in the lens.

#include <array>

#include "NightTown.h"
#include "Pictures.h"
#include "Scene.h"

namespace {

const CVec3 kMoon = Normalize({0.36F, 0.3F, -1});

CVec3 NightSky(CVec3 dir, bool) {
    const float fUp = std::max(dir.y, 0.0F);
    CVec3 cr = Mix(CVec3{0.13F, 0.07F, 0.085F}, CVec3{0.006F, 0.012F, 0.035F}, Smooth(0, 0.42F, fUp));
    const float fCloud = Smooth(-0.1F, 0.5F, Fbm(CVec2{dir.x * 2, dir.z} * (1.2F / (fUp + 0.15F)), 5));
    const float fToMoon = Dot(dir, kMoon);
    cr += Mix(CVec3{0.03F, 0.02F, 0.03F}, CVec3{0.12F, 0.11F, 0.13F},
              std::pow(std::max(fToMoon, 0.0F), 24.0F)) *
          (fCloud * Smooth(0, 0.1F, fUp));
    cr += CVec3{0.2F, 0.2F, 0.19F} * std::pow(std::max(fToMoon, 0.0F), 160.0F);
    const float fDisk = Smooth(0.99975F, 0.99985F, fToMoon);
    return cr + CVec3{2.2F, 1.95F, 1.5F} * fDisk;
}

CMaterial River(const CSpot& spot) {
    CMaterial surface;
    surface.crBody = {0, 0, 0};
    surface.crEmitted = {0.002F, 0.004F, 0.009F};
    surface.crMirror = {0.035F, 0.035F, 0.035F};
    surface.fRoughness = 0.1F;
    const CVec3 p = spot.position;
    surface.normal = Bend(spot, p, 0.05F, 0.02F, [](CVec3 q) {
        const CVec2 at{q.x * 0.55F, q.z};
        return Noise(at * 0.8F) + 0.6F * Noise(at * 2.1F + CVec2{4, 1}) + 0.3F * Noise(at * 5 + CVec2{9, 2});
    });
    return surface;
}

// Silk on ribs, lit from within.
CMaterial Silk(const CSpot& spot) {
    const CVec3 p = spot.rest;
    const float a = std::atan2(p.z, p.x) / (2 * kPi) * 20;
    const float fRib = std::fabs(a - std::floor(a) - 0.5F);
    const float fGlow = std::exp(-p.y * p.y * 2.6F) * (0.45F + 0.55F * Smooth(0.5F, 0.38F, fRib));
    CMaterial surface;
    surface.crBody = Srgb(0x8a1410) * 0.5F;
    surface.crEmitted = CVec3{0.85F, 0.05F, 0.022F} * (fGlow * (0.93F + 0.16F * Fbm(p * 6, 3))) +
                        CVec3{1.0F, 0.33F, 0.07F} * (0.42F * std::pow(fGlow, 4.0F));
    // A golden band of key pattern at top and bottom.
    const float fBand = std::fabs(std::fabs(p.y) - 0.66F);
    if (fBand < 0.07F)
        surface.crEmitted =
            CVec3{0.62F, 0.33F, 0.06F} * (0.35F + 0.5F * Smooth(0.05F, 0.02F, std::fabs(fBand - 0.035F)));
    surface.normal = spot.normal;
    surface.fRoughness = 0.5F;
    return surface;
}

CMaterial Gilt(const CSpot& spot) {
    CMaterial surface;
    surface.crBody = Srgb(0x7a4a10) * 0.5F;
    surface.crMirror = Srgb(0xd09a40) * 0.5F;
    surface.crEmitted = CVec3{0.09F, 0.045F, 0.01F};
    surface.normal = spot.normal;
    surface.fRoughness = 0.35F;
    return surface;
}

CMaterial Thread(const CSpot& spot) {
    CMaterial surface;
    surface.crBody = Srgb(0x8a1612) * 0.6F;
    surface.crEmitted = CVec3{0.26F, 0.025F, 0.012F} *
                        (0.6F + 0.5F * Noise(CVec3{spot.rest.x * 70, spot.rest.y * 2, spot.rest.z * 70}));
    surface.normal = spot.normal;
    return surface;
}

void AddLantern(CScene& stage, CVec3 ptAt, float fScale, const std::array<int, 3>& materials) {
    CMesh& mesh = stage.mesh;
    const std::size_t nFirst = mesh.corners.size();
    AddTurned(mesh, materials[0],
              {{0.36F, -0.78F},
               {0.62F, -0.68F},
               {0.9F, -0.38F},
               {1.0F, 0},
               {0.9F, 0.38F},
               {0.62F, 0.68F},
               {0.36F, 0.78F}},
              160, 60, [](CVec3 p) {
                  const float a = std::atan2(p.z, p.x);
                  const float f = 1 + 0.018F * std::fabs(std::cos(a * 10));
                  return CVec3{p.x * f, p.y, p.z * f};
              });
    AddTurned(mesh, materials[1],
              {{0, 0.74F},
               {0.36F, 0.74F},
               {0.4F, 0.77F},
               {0.4F, 0.88F},
               {0.34F, 0.92F},
               {0.05F, 0.93F},
               {0.03F, 1.1F},
               {0, 1.12F}},
              48, 40, nullptr);
    AddTurned(mesh, materials[1],
              {{0, -0.98F}, {0.3F, -0.96F}, {0.4F, -0.9F}, {0.4F, -0.78F}, {0.36F, -0.74F}, {0, -0.74F}}, 48,
              40, nullptr);
    AddTurned(mesh, materials[2], {{0.015F, 1.0F}, {0.015F, 2.0F}, {0.015F, 14.0F}}, 8, 8, nullptr);
    AddTurned(mesh, materials[2],
              {{0, -2.25F},
               {0.16F, -2.22F},
               {0.14F, -1.7F},
               {0.1F, -1.3F},
               {0.12F, -1.24F},
               {0.03F, -1.18F},
               {0.02F, -0.95F}},
              40, 40, [](CVec3 p) {
                  const float f = 1 + 0.25F * Noise(CVec3{p.x * 30, 0, p.z * 30}) * Smooth(-1.2F, -1.6F, p.y);
                  return CVec3{p.x * f, p.y, p.z * f};
              });
    mesh.Move(nFirst, [&](CVec3 p) { return ptAt + p * fScale; });
}

void AddLanterns(CScene& stage) {
    const std::array<int, 3> materials{stage.AddShader(Silk), stage.AddShader(Gilt), stage.AddShader(Thread)};
    AddLantern(stage, {-1.15F, 4.98F, -4.0F}, 0.3F, materials);
    AddLantern(stage, {-1.72F, 5.62F, -5.0F}, 0.26F, materials);
    AddLantern(stage, {-0.78F, 5.75F, -5.4F}, 0.23F, materials);
}

// The image of a lamp that the lens does not hold sharp, in pixels.
struct CDisk {
    float cx = 0;
    float cy = 0;
    float fRadius = 0;
    CVec3 crLight;
    bool bInWater = false;
};

// How bright the disk is at a place given in its own radii; a lens draws the rim a little brighter.
float AirDisk(float r) {
    return (1 - Smooth(0.92F, 1.04F, r)) * (0.75F + 0.45F * Smooth(0.5F, 0.97F, r));
}

// On the water the disk is drawn out to a trail, and the waves cut it to dashes.
float WaterDisk(float r, CVec2 ptDash) {
    return std::max(0.0F, 1 - r) * Smooth(-0.25F, 0.45F, Noise(ptDash));
}

void DrawDisk(CFilm& film, const CDisk& disk, const CFilm& cover) {
    constexpr float kTrail = 8;
    const float fLong = disk.bInWater ? kTrail : 1.0F;
    const float fDashes = 110.0F / static_cast<float>(film.nHeight);
    const int nAcross = static_cast<int>(disk.fRadius) + 2;
    const int nDown = static_cast<int>(disk.fRadius * fLong) + 2;
    const int nLeft = static_cast<int>(disk.cx);
    const int nTop = static_cast<int>(disk.cy);
    for (int y = std::max(0, nTop - nDown); y <= std::min(film.nHeight - 1, nTop + nDown); ++y) {
        for (int x = std::max(0, nLeft - nAcross); x <= std::min(film.nWidth - 1, nLeft + nAcross); ++x) {
            const float dx = static_cast<float>(x) + 0.5F - disk.cx;
            const float dy = (static_cast<float>(y) + 0.5F - disk.cy) / fLong;
            const float r = std::sqrt(dx * dx + dy * dy) / disk.fRadius;
            const CVec2 ptDash{static_cast<float>(x) * fDashes * 0.35F, static_cast<float>(y) * fDashes};
            const float f = disk.bInWater ? 0.3F * WaterDisk(r, ptDash) : AirDisk(r);
            film.At(x, y) += disk.crLight * (f * (1 - cover.At(x, y).x));
        }
    }
}

// Lamps far out of focus as the soft round images that a lens makes of them, and their trails in the water.
// `cover` hides those that stand behind the lanterns.
void AddLampDisks(CFilm& film, const CCamera& camera, const std::vector<CTownLamp>& lamps,
                  const CFilm& cover) {
    const auto fHeight = static_cast<float>(film.nHeight);
    const float fScale = fHeight / 2 / std::tan(camera.fFieldOfView * kPi / 360);
    const CVec3 ahead = Normalize(camera.target - camera.eye);
    const CVec3 right = Normalize(Cross(ahead, {0, 1, 0}));
    const CVec3 up = Cross(right, ahead);
    for (const CTownLamp& lamp : lamps) {
        for (const bool bInWater : {false, true}) {
            CVec3 way = lamp.at - camera.eye;
            if (bInWater) way.y = -lamp.at.y - camera.eye.y;
            const float fDepth = Dot(way, ahead);
            DrawDisk(film,
                     {static_cast<float>(film.nWidth) / 2 + fScale * Dot(way, right) / fDepth,
                      fHeight / 2 - fScale * Dot(way, up) / fDepth,
                      fScale * camera.fAperture * std::fabs(1 / camera.fFocus - 1 / fDepth) * 1.05F,
                      lamp.crLight * lamp.fPower, bInWater},
                     cover);
        }
    }
}

// Where the lanterns cover what lies behind them, 0..1 in x.
CFilm LanternCover(const CCamera& camera, int nWidth, int nHeight) {
    CScene stage;
    AddLanterns(stage);
    for (CShader& shader : stage.shaders) {
        shader = [](const CSpot& spot) {
            CMaterial surface;
            surface.crBody = {};
            surface.crMirror = {};
            surface.crEmitted = {1, 1, 1};
            surface.normal = spot.normal;
            return surface;
        };
    }
    stage.sky = [](CVec3, bool) { return CVec3{}; };
    stage.camera = camera;
    return Photograph(stage, nWidth, nHeight, 8);
}

}  // namespace

CFilm TakeNight(int nWidth, int nHeight, int nFineness) {
    CScene stage;
    AddSheet(stage.mesh, stage.AddShader(River), 1, 1, false, [](float u, float v) {
        return CVec3{-200 + 400 * u, 0, 10 - 74 * v};
    });
    const std::vector<CTownLamp> lamps = AddTown(stage);
    AddLanterns(stage);
    stage.sky = NightSky;
    stage.bFarIsSoft = true;
    stage.camera = {{0, 4.6F, 0}, {0, 5.35F, -10}, 37, 0.02F, 4.1F};
    CFilm film = Photograph(stage, nWidth, nHeight, nFineness);
    AddLampDisks(film, stage.camera, lamps, LanternCover(stage.camera, nWidth, nHeight));
    return film;
}
