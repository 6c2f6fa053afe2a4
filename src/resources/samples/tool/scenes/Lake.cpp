// A mountain lake on a clear morning: a boat at a jetty, woods, snow on the far range, and all of it in the
// water.

#include "LakeShore.h"
#include "Pictures.h"
#include "Scene.h"

namespace {

const CVec3 kSun = Normalize({-0.86F, 0.4F, 0.12F});
constexpr CVec3 kSunlight{5.2F, 4.3F, 3.1F};

// Two decks of cloud: heaped ones low over the range, streaks high above.
float CloudCover(CVec2 p, int nOctaves) {
    const CVec2 bent = p + CVec2{Fbm(p * 0.7F, 3), Fbm(p * 0.7F + CVec2{5, 1}, 3)} * 0.9F;
    return Smooth(0.0F, 0.42F, Fbm(bent * 0.8F, nOctaves) + 0.04F);
}

CVec3 Sky(CVec3 dir, bool bClose) {
    const float fUp = std::max(dir.y, 0.0F);
    const float fToSun = std::max(Dot(dir, kSun), 0.0F);
    CVec3 cr =
        Mix(CVec3{0.62F, 0.72F, 0.82F}, CVec3{0.1F, 0.26F, 0.62F}, std::pow(Clamp01(fUp * 1.9F), 0.6F));
    cr = Mix(cr, CVec3{1.05F, 0.82F, 0.6F},
             0.55F * std::pow(fToSun, 3.0F) * (1 - Smooth(0, 0.5F, fUp)) + 0.35F * std::exp(-fUp * 14));
    if (!bClose || dir.y < 0.005F) return cr * 1.05F;
    const CVec2 high = CVec2{dir.x * 0.55F, dir.z * 1.5F} * (2.2F / (dir.y + 0.12F));
    const float fStreaks = Smooth(0.05F, 0.7F, Fbm(high + CVec2{Noise(high * 0.5F), 0} * 1.5F, 6) + 0.12F);
    cr = Mix(cr, CVec3{1.1F, 1.03F, 0.97F}, 0.5F * fStreaks * Smooth(0.08F, 0.3F, dir.y));
    const CVec2 low = CVec2{dir.x, dir.z} * (1.5F / (dir.y + 0.1F)) + CVec2{1.3F, 0.4F};
    const float fCover = CloudCover(low, 7) * Smooth(0.05F, 0.16F, dir.y);
    if (fCover > 0) {
        const float fBehind = CloudCover(low + CVec2{kSun.x, kSun.z} * 0.16F, 5);
        const float fLit = Clamp01(0.75F + 1.1F * (fCover - fBehind));
        const CVec3 cloud = Mix(CVec3{0.5F, 0.56F, 0.68F}, CVec3{1.5F, 1.33F, 1.12F}, fLit);
        cr = Mix(cr, cloud, 0.93F * fCover);
    }
    return cr * 1.05F;
}

CScene::CAir Haze(CVec3, CVec3 dir, float fLength) {
    // Thin morning air: blue goes first.
    const float f = fLength * 0.0034F;
    const CVec3 through{std::exp(-f * 0.62F), std::exp(-f * 0.85F), std::exp(-f * 1.15F)};
    const float fToSun = 0.5F + 0.5F * Dot(dir, kSun);
    const CVec3 glow = Mix(CVec3{0.42F, 0.55F, 0.74F}, CVec3{0.9F, 0.78F, 0.64F}, fToSun * fToSun * 0.75F);
    return {through, glow * (CVec3{1, 1, 1} - through)};
}

CMaterial Ground(const CSpot& spot) {
    const CVec3 p = spot.position;
    const CVec2 at{p.x, p.z};
    CMaterial surface;
    surface.fRoughness = 0.95F;
    surface.crMirror = {0.01F, 0.01F, 0.01F};
    const float fFar = Smooth(18, 60, -p.z);
    const float fRough = Mix(0.5F, 1.0F, fFar);
    surface.normal = Bend(spot, p, 0.02F + 0.12F * fFar, fRough, [fFar](CVec3 q) {
        return Mix(0.1F, 0.16F, fFar) * Fbm(q * Mix(5.0F, 1.3F, fFar), 5);
    });
    const float fPatch = Fbm(at * 0.35F, 5);
    CVec3 cr = Mix(Srgb(0x3f4a22), Srgb(0x6f6a35), 0.5F + fPatch);
    cr = Mix(cr, Srgb(0x26381f), Smooth(0.5F, 3, p.y) * Smooth(26, 14, p.y + 6 * fPatch));
    const CVec3 rock =
        Mix(Srgb(0x6a625a), Srgb(0x8f8577), 0.5F + Fbm(CVec2{p.x * 0.6F, p.y * 1.5F + p.z * 0.3F}, 5));
    const float fSteep = 1 - surface.normal.y;
    cr = Mix(cr, rock, std::max(Smooth(0.3F, 0.5F, fSteep), Smooth(11, 18, p.y + 5 * fPatch)));
    const float fSnow = Smooth(14, 19, p.y + 7 * fPatch) * Smooth(0.7F, 0.45F, fSteep);
    cr = Mix(cr, {0.84F, 0.87F, 0.92F}, fSnow);
    // Pebbles and wet sand along the water.
    const float fStrand = Smooth(0.35F, 0.05F, p.y + 0.15F * fPatch) * Smooth(70, 50, -p.z);
    cr = Mix(cr, Srgb(0x857a68) * (0.8F + 0.5F * Cellular(at * 5).fFirst), fStrand);
    surface.crBody = cr * (1 - 0.45F * Smooth(0.08F, 0.0F, p.y));
    return surface;
}

CMaterial Water(const CSpot& spot) {
    CMaterial surface;
    const CVec3 p = spot.position;
    surface.crBody = Mix(CVec3{0.012F, 0.045F, 0.05F}, CVec3{0.05F, 0.09F, 0.07F}, Smooth(14, 2, -p.z));
    surface.crMirror = {0.021F, 0.021F, 0.021F};
    surface.fRoughness = 0.055F;
    // A breath of wind roughens some lanes and leaves others smooth; far waves flatten out.
    const float fLane = Smooth(-0.25F, 0.45F, Fbm(CVec2{p.x * 0.05F + 3, p.z * 0.22F}, 4));
    const float fHeight = (0.002F + 0.012F * fLane) / (1 + 0.05F * std::fabs(p.z));
    surface.normal = Bend(spot, p, 0.02F, fHeight, [](CVec3 q) {
        const CVec2 at{q.x, q.z * 1.7F};
        return Noise(at * 1.7F) + 0.5F * Noise(at * 4.1F + CVec2{3, 8}) +
               0.22F * Noise(at * 10 + CVec2{1, 4});
    });
    return surface;
}

}  // namespace

CFilm TakeLake(int nWidth, int nHeight, int nFineness) {
    CScene stage;
    const int nGround = stage.AddShader(Ground);
    // Rows of the land get wider apart with the distance, as the picture needs it.
    const auto land = [&](float fNear, float fFar, int nRows) {
        AddSheet(stage.mesh, nGround, 900, nRows, false, [=](float u, float v) {
            const float fDistance = fNear * std::pow(fFar / fNear, v);
            const float x = (u * 2 - 1) * (2.2F + fDistance * 0.78F);
            return CVec3{x, LandHeight(x, fDistance), -fDistance};
        });
    };
    land(3.2F, 20, 160);
    land(34, 190, 900);
    AddSheet(stage.mesh, stage.AddShader(Water), 1, 1, false, [](float u, float v) {
        return CVec3{-220 + 440 * u, 0, 4 - 230 * v};
    });
    AddWoods(stage);
    AddReeds(stage);
    AddJetty(stage);
    AddBoat(stage);
    const CVec3 sun = kSun * 600.0F;
    CLamp lamp = LampAt(sun, {0, 0, -40}, 12, 12, kSunlight * (600.0F * 600.0F / 144.0F));
    lamp.bSeen = false;
    stage.lamps.push_back(lamp);
    stage.sky = Sky;
    stage.air = Haze;
    stage.camera = {{0, 1.75F, 0}, {0, 3.9F, -30}, 44, 0.004F, 14};
    return Photograph(stage, nWidth, nHeight, nFineness);
}
