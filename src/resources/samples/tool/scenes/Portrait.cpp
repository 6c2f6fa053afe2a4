// A painted clay figure of a girl, three quarters turned, in soft light before a garden out of focus.

#include "Pictures.h"
#include "Scene.h"

namespace {

// The head's own space: the face looks along +z, the eyes stand at y = 0, a head is about two units high.
CVec3 Mirrored(CVec3 p) {
    return {std::fabs(p.x), p.y, p.z};
}

float FaceDistance(CVec3 p) {
    const CVec3 m = Mirrored(p);
    float f = EllipsoidDistance(p - CVec3{0, 0.22F, -0.1F}, {0.87F, 0.92F, 0.95F});
    f = SmoothMin(f, EllipsoidDistance(p - CVec3{0, -0.3F, 0.16F}, {0.66F, 0.72F, 0.66F}), 0.35F);
    f = SmoothMin(f, EllipsoidDistance(m - CVec3{0.36F, -0.33F, 0.45F}, {0.3F, 0.28F, 0.28F}), 0.25F);
    f = SmoothMin(f, EllipsoidDistance(p - CVec3{0, -0.86F, 0.48F}, {0.24F, 0.17F, 0.2F}), 0.28F);
    // Sockets, and in them the lids of closed eyes.
    f = SmoothMax(f, -EllipsoidDistance(m - CVec3{0.33F, 0.03F, 0.98F}, {0.26F, 0.15F, 0.2F}), 0.24F);
    f = SmoothMin(f, EllipsoidDistance(m - CVec3{0.32F, -0.02F, 0.67F}, {0.2F, 0.145F, 0.13F}), 0.06F);
    // The bridge, the tip and the wings of the nose.
    f = SmoothMin(f, CapsuleDistance(p, {0, 0.12F, 0.8F}, {0, -0.24F, 0.96F}, 0.055F), 0.17F);
    f = SmoothMin(f, EllipsoidDistance(p - CVec3{0, -0.285F, 0.965F}, {0.095F, 0.08F, 0.095F}), 0.09F);
    f = SmoothMin(f, EllipsoidDistance(m - CVec3{0.085F, -0.305F, 0.89F}, {0.062F, 0.05F, 0.075F}), 0.05F);
    // The groove below it, the lips and the line between them.
    f = SmoothMin(f, EllipsoidDistance(p - CVec3{0, -0.59F, 0.66F}, {0.26F, 0.2F, 0.2F}), 0.15F);
    f = SmoothMax(f, -CapsuleDistance(p, {0, -0.4F, 0.93F}, {0, -0.49F, 0.92F}, 0.025F), 0.07F);
    f = SmoothMin(f, EllipsoidDistance(m - CVec3{0.062F, -0.552F, 0.835F}, {0.12F, 0.043F, 0.07F}), 0.035F);
    f = SmoothMin(f, EllipsoidDistance(p - CVec3{0, -0.632F, 0.835F}, {0.125F, 0.055F, 0.075F}), 0.035F);
    f = SmoothMax(f, -CapsuleDistance(m, {0, -0.592F, 0.925F}, {0.17F, -0.575F, 0.83F}, 0.012F), 0.03F);
    // Ears and neck.
    f = SmoothMin(f, EllipsoidDistance(TurnY(m - CVec3{0.85F, -0.08F, -0.02F}, 0.45F), {0.07F, 0.2F, 0.14F}),
                  0.05F);
    return SmoothMin(f, CapsuleDistance(p, {0, -0.8F, -0.12F}, {0, -1.8F, -0.2F}, 0.35F), 0.14F);
}

// Where the hair begins, 0 on the line: a parting in the middle and a sweep to both temples.
float HairLine(CVec3 p) {
    const CVec3 m = Mirrored(p);
    const float fBrow = 0.62F - 0.3F * m.x * m.x - 0.16F * std::exp(-std::pow((m.x - 0.5F) * 4, 2.0F));
    const float fSweep = p.y - fBrow + 0.55F * (0.62F - p.z);
    return fSweep;
}

float HairDistance(CVec3 p) {
    const CVec3 m = Mirrored(p);
    float f = EllipsoidDistance(p - CVec3{0, 0.24F, -0.13F}, {0.95F, 0.99F, 1.0F});
    f = SmoothMax(f, -HairLine(p) * 0.8F, 0.07F);
    f = SmoothMax(f, -(p.y + 0.55F - 0.25F * p.z), 0.1F);
    // The parting.
    f = SmoothMax(f, -CapsuleDistance(p, {0, 1.26F, 0.5F}, {0, 1.27F, -0.5F}, 0.02F), 0.07F);
    // A lock before each ear and two buns.
    f = SmoothMin(f,
                  CapsuleDistance(m, {0.83F, 0.2F, 0.3F}, {0.86F, -0.48F, 0.27F},
                                  0.06F + 0.05F * Smooth(-0.5F, 0.2F, p.y)),
                  0.08F);
    const CVec3 bun = m - CVec3{0.66F, 1.08F, -0.2F};
    f = SmoothMin(f, EllipsoidDistance(TurnZ(bun, 0.6F), {0.36F, 0.31F, 0.36F}), 0.05F);
    return f;
}

CVec3 BlendPaint(CVec3 cr, unsigned nHex, float fAmount) {
    return Mix(cr, Srgb(nHex), Clamp01(fAmount));
}

CMaterial Skin(const CSpot& spot) {
    const CVec3 p = spot.rest;
    const CVec3 m = Mirrored(p);
    CVec3 cr = Srgb(0xf6cdb6);
    cr = BlendPaint(cr, 0xe27566,
                    0.75F *
                        std::exp(-std::pow(Length(CVec2{(m.x - 0.43F) * 2.5F, (p.y + 0.31F) * 3.2F}), 2.0F)) *
                        Smooth(0.1F, 0.5F, p.z));
    cr = BlendPaint(cr, 0xe39a86, 0.35F * std::exp(-std::pow(Length(p - CVec3{0, -0.3F, 1.05F}) * 7, 2.0F)));
    cr = BlendPaint(cr, 0xd98c7c, 0.4F * (1 - Smooth(0.06F, 0.2F, Length(m - CVec3{0.88F, -0.08F, -0.02F}))));
    if (p.z > 0.5F) {
        // A rosy shade on the lid; the lashes where it ends; the brow.
        const float fLid = Length(CVec2{(m.x - 0.33F) / 0.25F, (p.y - 0.04F) / 0.13F});
        cr = BlendPaint(cr, 0xc98273, 0.4F * (1 - Smooth(0.3F, 1.15F, fLid)));
        const float t = (m.x - 0.32F) / 0.2F;
        const float fLash = p.y + 0.1F - 0.045F * t * t - 0.018F * t;
        const float fThick = 0.011F + 0.012F * Smooth(-1, 0.8F, t);
        cr = BlendPaint(cr, 0x1d1512,
                        (1 - Smooth(fThick * 0.6F, fThick * 1.3F, std::fabs(fLash))) *
                            Smooth(1.2F, 1.05F, std::fabs(t - 0.03F)));
        // Single lashes beyond it.
        const float fBeat = std::fabs(std::fmod(t * 6.5F + fLash * 6 + 20, 1.0F) - 0.5F);
        const float fSingle = (1 - Smooth(0.06F, 0.2F, fBeat)) * Smooth(-0.065F, -0.045F, fLash) *
                              Smooth(0.005F, -0.01F, fLash);
        cr = BlendPaint(cr, 0x1d1512, 0.9F * fSingle * Smooth(1.1F, 0.9F, std::fabs(t - 0.1F)));
        const float s = (m.x - 0.36F) / 0.23F;
        const float fBrow = p.y - 0.285F + 0.05F * s * s - 0.02F * s + 0.006F * Noise(p * 40);
        const float fBrowThick = 0.028F * Smooth(1.15F, -0.2F, s) * Smooth(-1.2F, -0.8F, s);
        cr = BlendPaint(cr, 0x2b1d18,
                        0.85F * (1 - Smooth(fBrowThick * 0.5F, fBrowThick + 0.008F, std::fabs(fBrow))) *
                            Smooth(1.2F, 1, std::fabs(s)));
        // Lips: red within a bow above and a curve below.
        const float w = m.x / 0.17F;
        const float fTop = -0.517F - 0.055F * w * w + 0.016F * std::sin(Clamp01(w * 2) * kPi) -
                           0.012F * std::exp(-w * w * 30);
        const float fLow = -0.688F + 0.1F * w * w;
        const float fLip = std::min(fTop - p.y, p.y - fLow);
        cr = BlendPaint(cr, 0xb3262c, 0.92F * Smooth(-0.004F, 0.01F, fLip) * (p.z > 0.7F ? 1.0F : 0.0F));
    }
    // A painted flower on the forehead.
    const CVec2 q{p.x, p.y - 0.42F};
    const float a = std::atan2(q.x, q.y);
    const float fPetal = 0.05F + 0.022F * std::cos(a * 5);
    if (p.z > 0.5F) {
        cr = BlendPaint(cr, 0x9c0f14, 0.95F * (1 - Smooth(fPetal - 0.006F, fPetal + 0.004F, Length(q))));
        cr = BlendPaint(cr, 0xe2b13c, 1 - Smooth(0.014F, 0.02F, Length(q)));
    }
    CMaterial surface;
    surface.crBody = cr * (0.98F + 0.05F * Fbm(p * 9, 4));
    surface.normal = Bend(spot, p, 0.012F, 0.004F, [](CVec3 at) { return Fbm(at * 9, 3); });
    surface.fRoughness = 0.4F;
    surface.crMirror = {0.035F, 0.035F, 0.035F};
    return surface;
}

CMaterial Hair(const CSpot& spot) {
    const CVec3 p = spot.rest;
    const CVec3 m = Mirrored(p);
    const CVec3 bun = m - CVec3{0.66F, 1.08F, -0.2F};
    const bool bBun = Length(bun) < 0.42F;
    // Strands run from the parting to the buns; on a bun they wind round it.
    const auto strands = [bBun](CVec3 at) {
        const CVec3 n = Mirrored(at);
        const CVec3 b = n - CVec3{0.66F, 1.08F, -0.2F};
        const float fAround =
            bBun ? std::atan2(b.z, b.x) * 0.6F + b.y * 9 : std::atan2(n.z + 0.2F, 1.2F - n.y) * 3;
        const bool bLock = n.x > 0.74F && n.y < 0.16F && n.z > 0.12F;
        if (bLock)
            return Noise(CVec3{n.x * 26, n.y * 1.2F, n.z * 26}) +
                   0.5F * Noise(CVec3{n.x * 60, n.y * 2, n.z * 60});
        const float fCross = bBun ? b.y * 22 + std::atan2(b.z, b.x) * 2.5F : fAround * 6;
        return Noise(CVec3{fCross * 2.2F, n.x * 1.4F, 3}) + 0.7F * Noise(CVec3{fCross * 6, n.x * 2.2F, 9}) +
               0.3F * Noise(CVec3{fCross * 15, n.x * 3, 1});
    };
    CMaterial surface;
    surface.crBody = Mix(Srgb(0x14100f), Srgb(0x3a2a22), 0.4F + 0.35F * strands(p));
    surface.normal = Bend(spot, p, 0.005F, 0.011F, strands);
    surface.fRoughness = 0.34F;
    surface.crMirror = {0.05F, 0.047F, 0.044F};
    return surface;
}

CMaterial Robe(const CSpot& spot) {
    const CVec3 p = spot.rest;
    CMaterial surface;
    const float fWeave = std::sin(p.x * 150) * std::sin(p.y * 150);
    // Blossoms in staggered rows about the body.
    const float fRow = std::floor(p.y * 1.9F);
    const float fTurn = std::atan2(p.x, p.z + 0.6F) * 2.1F + (static_cast<int>(fRow) % 2 == 0 ? 0.5F : 0.0F);
    const CVec2 at{(fTurn - std::floor(fTurn) - 0.5F) * 0.62F, (p.y * 1.9F - fRow - 0.5F) * 0.55F};
    const float fAngle = std::atan2(at.x, at.y) + fRow;
    const float fPetal = 0.085F + 0.028F * std::cos(fAngle * 5);
    const float fBlossom =
        (1 - Smooth(fPetal - 0.012F, fPetal, Length(at))) * Smooth(0.018F, 0.03F, Length(at));
    surface.crBody = Mix(Srgb(0x9c1a22), Srgb(0xe0ac4a), 0.9F * fBlossom) * (0.95F + 0.07F * fWeave);
    surface.normal = Bend(spot, p, 0.01F, 0.02F, [](CVec3 q) { return Fbm(q * 4, 4); });
    surface.fRoughness = 0.6F;
    return surface;
}

CShader Paint(unsigned nHex, float fRoughness, float fMetal) {
    return [cr = Srgb(nHex), fRoughness, fMetal](const CSpot& spot) {
        CMaterial surface;
        surface.crBody = cr * (1 - fMetal);
        surface.crMirror = Mix(CVec3{0.04F, 0.04F, 0.04F}, cr, fMetal);
        surface.normal = spot.normal;
        surface.fRoughness = fRoughness;
        return surface;
    };
}

float RobeDistance(CVec3 p) {
    const CVec3 m = Mirrored(p);
    float f = EllipsoidDistance(p - CVec3{0, -2.75F, -0.2F}, {1.25F, 1.15F, 0.75F});
    f = SmoothMin(f, CapsuleDistance(m, {0.3F, -1.78F, -0.2F}, {1.12F, -2.2F, -0.25F}, 0.36F), 0.4F);
    f += 0.02F * std::sin(p.y * 7 + 3 * Noise(p * 1.3F)) * Smooth(-1.7F, -2.4F, p.y);
    // The high collar, its lower end inside the robe.
    const float r = std::sqrt(p.x * p.x + (p.z + 0.17F) * (p.z + 0.17F));
    const float fUp = std::fabs(p.y + 1.62F + 0.1F * p.z) - 0.42F;
    const float fCollar = SmoothMax(std::fabs(r - 0.46F + 0.05F * (p.y + 1.4F)) - 0.035F, fUp, 0.03F);
    return SmoothMin(f, fCollar, 0.1F);
}

// Beads and trims, added in the head's space.
void AddJewels(CScene& stage) {
    const int nGold = stage.AddShader(Paint(0xe2b050, 0.25F, 0.9F));
    const int nRed = stage.AddShader(Paint(0xb5202a, 0.25F, 0));
    const int nPearl = stage.AddShader(Paint(0xf0e8dc, 0.18F, 0));
    for (int nSide = -1; nSide <= 1; nSide += 2) {
        const auto s = static_cast<float>(nSide);
        const CVec3 bun{0.66F * s, 1.08F, -0.2F};
        // A ribbon about the foot of each bun, and a tassel of pearls.
        AddField(
            stage.mesh, nRed,
            [=](CVec3 p) {
                const CVec3 q = TurnZ(p - bun + CVec3{0.15F * s, 0.19F, 0}, 0.62F * s);
                const float r = std::sqrt(q.x * q.x + q.z * q.z);
                return Length(CVec2{r - 0.31F, q.y * 0.75F}) - 0.062F;
            },
            bun - CVec3{0.62F, 0.62F, 0.62F}, bun + CVec3{0.62F, 0.62F, 0.62F}, 0.02F);
        for (int i = 0; i < 7; ++i) {
            const float t = static_cast<float>(i);
            const CVec3 at{(0.9F + 0.012F * t) * s, -0.27F - 0.085F * t, 0.03F};
            AddField(
                stage.mesh,
                i % 3 == 2 ? nRed
                : i == 0   ? nGold
                           : nPearl,
                [=](CVec3 p) { return Length(p - at) - 0.042F; }, at - CVec3{0.06F, 0.06F, 0.06F},
                at + CVec3{0.06F, 0.06F, 0.06F}, 0.008F);
        }
    }
}

// The garden far behind: leaves, blossoms and spots of sky, each a soft disk.
CVec3 Garden(CVec3 dir, bool bClose) {
    const float fUp = Smooth(-0.5F, 0.6F, dir.y);
    CVec3 cr = Mix(CVec3{0.022F, 0.035F, 0.025F}, CVec3{0.07F, 0.11F, 0.07F}, fUp);
    // Behind the camera a pale room fills the shadows.
    if (!bClose || dir.z > 0) return Mix(cr * 1.5F, CVec3{0.19F, 0.17F, 0.16F}, Smooth(-0.2F, 0.8F, dir.z));
    const CVec2 at{std::atan2(dir.x, -dir.z), dir.y};
    cr = cr * (0.75F + 0.9F * Smooth(-0.4F, 0.5F, Noise(at * 3.1F) + 0.5F * Noise(at * 6)));
    for (int nLayer = 0; nLayer < 3; ++nLayer) {
        const float fScale = 8 + 4 * static_cast<float>(nLayer);
        const CVec2 q = at * fScale + CVec2{static_cast<float>(nLayer) * 7.7F, 3};
        for (int n = 0; n < 9; ++n) {
            const int i = static_cast<int>(std::floor(q.x)) + n % 3 - 1;
            const int j = static_cast<int>(std::floor(q.y)) + n / 3 - 1;
            const float fPick = HashUnit(i, j, 20 + nLayer);
            if (fPick > 0.5F) continue;
            const CVec2 c{static_cast<float>(i) + HashUnit(i, j, 1),
                          static_cast<float>(j) + HashUnit(i, j, 2)};
            const float r = Length(q - c);
            const float fSize = 0.32F + 0.32F * HashUnit(i, j, 3);
            const float fDisk =
                (1 - Smooth(fSize - 0.09F, fSize, r)) * (0.72F + 0.4F * Smooth(0.5F, 1, r / fSize));
            const CVec3 light = fPick < 0.12F  ? CVec3{1.0F, 0.3F, 0.34F}
                                : fPick < 0.3F ? CVec3{1.0F, 0.72F, 0.3F}
                                               : CVec3{0.3F, 0.5F, 0.16F};
            cr += light * (fDisk * 0.3F * (0.25F + fUp));
        }
    }
    return cr;
}

}  // namespace

CFilm TakePortrait(int nWidth, int nHeight, int nFineness) {
    CScene stage;
    AddField(stage.mesh, stage.AddShader(Skin), FaceDistance, {-1.05F, -1.9F, -1.1F}, {1.05F, 1.2F, 1.15F},
             0.016F);
    AddField(stage.mesh, stage.AddShader(Hair), HairDistance, {-1.2F, -0.75F, -1.25F}, {1.2F, 1.55F, 1.05F},
             0.018F);
    AddJewels(stage);
    stage.mesh.Move(0, [](CVec3 p) { return TurnZ(TurnX(TurnY(p, -0.42F), 0.07F), 0.05F); });
    const std::size_t nFirst = stage.mesh.corners.size();
    AddField(
        stage.mesh, stage.AddShader(Paint(0xe2b050, 0.25F, 0.9F)),
        [](CVec3 p) {
            const float r = std::sqrt(p.x * p.x + (p.z + 0.17F) * (p.z + 0.17F));
            return Length(CVec2{r - 0.45F, p.y + 1.19F + 0.1F * p.z}) - 0.032F;
        },
        {-0.6F, -1.4F, -0.8F}, {0.6F, -1.0F, 0.5F}, 0.012F);
    AddField(stage.mesh, stage.AddShader(Robe), RobeDistance, {-1.7F, -3.2F, -1.2F}, {1.7F, -1.15F, 0.8F},
             0.025F);
    stage.mesh.Move(nFirst, [](CVec3 p) { return TurnY(p, -0.2F); });
    stage.lamps.push_back(LampAt({-4.2F, 2.7F, 3.4F}, {0, 0, 0}, 2.4F, 2.4F, CVec3{1, 0.92F, 0.82F} * 15));
    stage.lamps.push_back(LampAt({4.6F, 1.8F, -3.2F}, {0, 0.3F, 0}, 1.5F, 2.5F, CVec3{1, 0.82F, 0.6F} * 13));
    stage.sky = Garden;
    stage.camera = {{0.1F, -0.1F, 9.2F}, {0.02F, -0.3F, 0}, 24.5F, 0.1F, 8.4F};
    return Photograph(stage, nWidth, nHeight, nFineness);
}
