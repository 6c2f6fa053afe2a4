// Hand-painted wall tiles in blue, ochre and green, with the shadow of leaves on them.

#include <array>

#include "Pictures.h"
#include "Scene.h"

namespace {

constexpr float kTile = 1.0F;
constexpr CVec3 kLamp{-8.2F, 5.6F, 6.6F};

float Line(float f, float fHalf) {
    return 1 - Smooth(fHalf * 0.75F, fHalf * 1.25F, std::fabs(f));
}
float Inside(float f) {
    return 1 - Smooth(-0.006F, 0.006F, f);
}

// A petal of length 1 along +x in its own units, as a distance-like value.
float Petal(CVec2 p, float fLength, float fWidth) {
    const float t = p.x / fLength;
    if (t < 0 || t > 1) return 1;
    const float fHalf = fWidth * std::sin(kPi * std::pow(t, 0.75F));
    return std::fabs(p.y) - fHalf;
}

CVec2 Turned(CVec2 p, float fRadians) {
    return {p.x * std::cos(fRadians) + p.y * std::sin(fRadians),
            p.y * std::cos(fRadians) - p.x * std::sin(fRadians)};
}

struct CPaint {
    float fBlue = 0;
    float fLight = 0;  // thin blue wash
    float fOchre = 0;
    float fGreen = 0;
};

// One quarter of the pattern; q in 0..1 from the rosette's centre (0, 0) to the corner star (1, 1).
void PaintRosette(CVec2 q, CPaint& paint) {
    const float r = Length(q);
    const float a = std::atan2(q.y, q.x);
    paint.fOchre = std::max(paint.fOchre, Inside(r - 0.085F));
    paint.fBlue = std::max(paint.fBlue, Line(r - 0.1F, 0.012F));
    for (int i = 0; i <= 2; ++i) {
        const CVec2 p = Turned(q, kPi / 4 * static_cast<float>(i));
        const float f = Petal({p.x - 0.12F, p.y}, 0.36F, 0.105F);
        const float g = Petal({p.x - 0.15F, p.y}, 0.27F, 0.05F);
        paint.fBlue = std::max({paint.fBlue, Line(f, 0.013F), Inside(g)});
        paint.fLight = std::max(paint.fLight, Inside(f));
    }
    for (int i = 0; i <= 1; ++i) {
        const CVec2 p = Turned(q, kPi / 4 * (static_cast<float>(i) + 0.5F));
        const float f = Petal({p.x - 0.24F, p.y}, 0.25F, 0.045F);
        paint.fOchre = std::max(paint.fOchre, Inside(f));
        paint.fBlue = std::max(paint.fBlue, Line(f, 0.008F));
    }
    const float fScallop = r - 0.56F - 0.022F * std::cos(a * 16);
    paint.fBlue = std::max(paint.fBlue, Line(fScallop, 0.014F));
    paint.fBlue = std::max(paint.fBlue, Inside(std::fabs(r - 0.63F) - 0.022F));
    paint.fLight = std::max(paint.fLight, Inside(fScallop) * 0.35F * Smooth(0.3F, 0.56F, r));
}

void PaintCorner(CVec2 q, CPaint& paint) {
    const CVec2 c{1 - q.x, 1 - q.y};
    const float r = Length(c);
    for (int i = 0; i <= 2; ++i) {
        const CVec2 p = Turned(c, kPi / 4 * static_cast<float>(i));
        const float fLength = i == 1 ? 0.52F : 0.36F;
        const float f = Petal({p.x - 0.1F, p.y}, fLength, i == 1 ? 0.07F : 0.06F);
        if (i == 1) {
            paint.fGreen = std::max(paint.fGreen, Inside(f));
            paint.fBlue = std::max({paint.fBlue, Line(f, 0.01F), Line(p.y, 0.006F) * Inside(f)});
        } else {
            paint.fBlue = std::max(paint.fBlue, Inside(f));
        }
    }
    paint.fOchre = std::max(paint.fOchre, Inside(r - 0.075F));
    paint.fBlue = std::max(paint.fBlue, Line(r - 0.085F, 0.012F));
    // Tendrils that leave the long leaf to both sides.
    for (int i = 0; i < 2; ++i) {
        const CVec2 p = i == 0 ? c : CVec2{c.y, c.x};
        const CVec2 d = p - CVec2{0.52F, 0.2F};
        const float fRing = Length(d) - 0.11F;
        const float fOpen = Smooth(-0.5F, 0.2F, d.x + d.y * 0.4F + 0.1F);
        paint.fBlue = std::max({paint.fBlue, Line(fRing, 0.012F) * fOpen, Inside(Length(d) - 0.038F)});
        paint.fOchre = std::max(paint.fOchre, Inside(Length(d - CVec2{0.0F, 0.0F}) - 0.02F));
    }
}

CMaterial Glaze(const CSpot& spot) {
    const CVec3 p = spot.rest;
    const int nColumn = static_cast<int>(std::floor(p.x / kTile));
    const int nRow = static_cast<int>(std::floor(p.y / kTile));
    const float fOwn = HashUnit(nColumn, nRow, 7);
    // Four tiles make a rosette: the pattern is mirrored from tile to tile. Brushes never follow a line
    // quite.
    const CVec2 hand{0.007F * Noise(CVec3{p.x * 5, p.y * 5, fOwn * 40}),
                     0.007F * Noise(CVec3{p.x * 5, p.y * 5, 50 + fOwn * 40})};
    float fx = p.x / kTile - static_cast<float>(nColumn);
    float fy = p.y / kTile - static_cast<float>(nRow);
    if ((nColumn & 1) == 0) fx = 1 - fx;
    if ((nRow & 1) == 0) fy = 1 - fy;
    const CVec2 q = CVec2{fx, fy} + hand;
    CPaint paint;
    PaintRosette(q, paint);
    PaintCorner(q, paint);
    const float fPool = 0.8F + 0.5F * Fbm(CVec3{p.x * 6, p.y * 6, fOwn * 20}, 4);
    CMaterial surface;
    surface.crBody =
        Mix(Srgb(0xe9e4d6), Srgb(0xdcd6c2), fOwn) * (0.97F + 0.08F * Fbm(CVec2{p.x * 3, p.y * 3}, 3));
    surface.crBody = Mix(surface.crBody, Srgb(0x8fb0d0), Clamp01(0.55F * paint.fLight * fPool));
    surface.crBody = Mix(surface.crBody, Srgb(0xcf7d14), Clamp01(1.1F * paint.fOchre * fPool));
    surface.crBody = Mix(surface.crBody, Srgb(0x4f8a62), Clamp01(0.85F * paint.fGreen * fPool));
    surface.crBody = Mix(surface.crBody, Mix(Srgb(0x16337f), Srgb(0x2c57a8), fOwn * 0.6F),
                         Clamp01(paint.fBlue * (0.35F + 0.75F * fPool)));
    const CCellular cracks = Cellular(CVec2{p.x * 11 + fOwn * 9, p.y * 11});
    surface.crBody =
        surface.crBody * (1 - 0.16F * (1 - Smooth(0.005F, 0.03F, cracks.fSecond - cracks.fFirst)));
    surface.normal = Bend(spot, p, 0.006F, 0.016F, [](CVec3 at) {
        return Fbm(CVec2{at.x * 3.5F, at.y * 3.5F}, 3);
    });
    surface.fRoughness = 0.13F;
    surface.crMirror = {0.05F, 0.05F, 0.05F};
    return surface;
}

CMaterial Grout(const CSpot& spot) {
    CMaterial surface;
    const CVec3 p = spot.position;
    surface.crBody = Mix(Srgb(0x9a9184), Srgb(0x6e665b), 0.5F + Fbm(p * 9, 4));
    surface.normal = Bend(spot, p, 0.004F, 0.01F, [](CVec3 q) { return Fbm(q * 40, 3); });
    surface.fRoughness = 0.95F;
    return surface;
}

void AddTiles(CScene& stage) {
    const int nGlaze = stage.AddShader(Glaze);
    for (int j = -3; j < 3; ++j) {
        for (int i = -4; i < 4; ++i) {
            const auto own = [&](int n) { return HashUnit(i, j, n) - 0.5F; };
            const std::size_t nFirst = stage.mesh.corners.size();
            const float x = static_cast<float>(i) * kTile;
            const float y = static_cast<float>(j) * kTile;
            AddSheet(stage.mesh, nGlaze, 40, 40, false, [&](float u, float v) {
                return CVec3{x + u * kTile, y + v * kTile, 0};
            });
            for (std::size_t n = nFirst; n < stage.mesh.corners.size(); ++n) {
                auto& corner = stage.mesh.corners[n];
                const float u = (corner.rest.x - x) * 2 - 1;
                const float v = (corner.rest.y - y) * 2 - 1;
                // A pillow with soft rounded rims, set a little crooked by hand.
                const float fRim = 1 - std::pow(std::max(std::fabs(u), std::fabs(v)), 24.0F);
                const CVec3 p{u * (0.486F - 0.006F * (1 - fRim)), v * (0.486F - 0.006F * (1 - fRim)),
                              0.03F * fRim + 0.004F * (1 - u * u) * (1 - v * v) + u * 0.008F * own(1) +
                                  v * 0.008F * own(2)};
                corner.position =
                    TurnZ(p, 0.012F * own(3)) +
                    CVec3{x + 0.5F + 0.008F * own(4), y + 0.5F + 0.008F * own(5), 0.006F * own(6)};
                const float fSlopeU =
                    std::pow(std::fabs(u), 20.0F) * (std::fabs(u) >= std::fabs(v) ? 1.6F : 0.0F);
                const float fSlopeV =
                    std::pow(std::fabs(v), 20.0F) * (std::fabs(v) >= std::fabs(u) ? 1.6F : 0.0F);
                corner.normal = Normalize({std::copysign(fSlopeU, u) + 0.016F * u - 0.016F * own(1),
                                           std::copysign(fSlopeV, v) + 0.016F * v - 0.016F * own(2), 1});
            }
        }
    }
    AddSheet(stage.mesh, stage.AddShader(Grout), 1, 1, false, [](float u, float v) {
        return CVec3{-8 + 16 * u, -8 + 16 * v, 0.002F};
    });
}

// A branch between the lamp and the wall, out of the picture: only its shadow is seen.
void AddBranch(CScene& stage) {
    const int nLeaf = stage.AddShader([](const CSpot& spot) {
        CMaterial surface;
        surface.crBody = Srgb(0x3f6a35);
        surface.normal = spot.normal;
        return surface;
    });
    CRandom random(99, 3);
    // Where the shadows of three boughs end on the wall; all begin beyond its upper left corner.
    static constexpr std::array<CVec2, 3> kEnds{{{2.3F, 1.3F}, {0.9F, -0.2F}, {-1.5F, -1.3F}}};
    for (int i = 0; i < 60; ++i) {
        const float t = std::pow(static_cast<float>(i) / 60, 0.8F);
        const CVec2 end = kEnds[static_cast<std::size_t>(i % 3)];
        const CVec3 shadow{Mix(-3.0F, end.x, t) + random.Between(-0.3F, 0.3F),
                           Mix(2.1F, end.y, t) + random.Between(-0.3F, 0.3F), 0};
        const CVec3 foot = Mix(shadow, kLamp, 0.34F);
        const float fLength = random.Between(0.3F, 0.52F);
        const float fTurn = std::atan2(end.x + 3, 2.1F - end.y) + kPi +
                            random.Between(0.4F, 1.2F) * (i / 3 % 2 == 0 ? 1.0F : -1.0F);
        const float fTilt = random.Between(-0.5F, 0.5F) - 0.8F;
        AddSheet(stage.mesh, nLeaf, 8, 10, false, [&](float u, float v) {
            const float w = 0.3F * std::sin(kPi * std::pow(v, 0.8F)) * (u - 0.5F);
            return foot + TurnZ(TurnY({w * fLength * 2.4F, v * fLength, 0.2F * w}, fTilt), fTurn);
        });
    }
}

}  // namespace

CFilm TakeTiles(int nWidth, int nHeight, int nFineness) {
    CScene stage;
    AddTiles(stage);
    AddBranch(stage);
    stage.lamps.push_back(LampAt(kLamp, {0, 0, 0}, 0.2F, 0.2F, CVec3{1, 0.88F, 0.7F} * 9600));
    stage.sky = [](CVec3 dir, bool) {
        const float fPane = Smooth(0.55F, 0.75F, dir.y) * Smooth(0.3F, 0.0F, std::fabs(dir.x - 0.1F));
        return Mix(CVec3{0.16F, 0.15F, 0.14F}, CVec3{0.34F, 0.42F, 0.52F}, 0.5F + 0.5F * dir.y) +
               CVec3{1.6F, 1.7F, 1.8F} * fPane;
    };
    stage.camera = {{0.95F, -1.15F, 4.9F}, {0.08F, 0.02F, 0}, 36, 0.05F, 5.0F};
    return Photograph(stage, nWidth, nHeight, nFineness);
}
