// Fruit in a blue and white bowl, a bottle and a cloth on a table, in the light of a window on the left.

#include "Pictures.h"
#include "Scene.h"

namespace {

float Stripe(float f, float fCentre, float fHalf) {
    return 1 - Smooth(fHalf * 0.8F, fHalf * 1.2F, std::fabs(f - fCentre));
}

CMaterial Table(const CSpot& spot) {
    const CVec3 p = spot.position;
    const float fBoard = std::floor(p.z / 0.62F);
    const float fEdge = std::fabs(p.z / 0.62F - fBoard - 0.5F);
    const CVec2 grain{p.x * 0.55F + fBoard * 17.3F, p.z * 7 + Fbm(CVec2{p.x * 0.8F, p.z * 1.5F}, 3) * 2.4F};
    const float fRings = 0.5F + 0.5F * std::sin(grain.y * 5 + Fbm(grain, 4) * 7);
    const float fFibre = Fbm(CVec2{p.x * 3, p.z * 90}, 3);
    CMaterial surface;
    surface.crBody =
        Mix(Srgb(0x6b4226), Srgb(0x8e5f38), fRings * 0.6F + fFibre * 0.5F + 0.1F * std::sin(fBoard * 5));
    surface.crBody = surface.crBody * (1 - 0.75F * Smooth(0.485F, 0.5F, fEdge));
    surface.normal = Bend(spot, p, 0.01F, 0.012F, [](CVec3 q) { return Fbm(CVec2{q.x * 4, q.z * 60}, 3); });
    surface.fRoughness = 0.38F + 0.12F * fFibre;
    return surface;
}

CMaterial Wall(const CSpot& spot) {
    CMaterial surface;
    const CVec3 p = spot.position;
    const float fPatch = Fbm(p * 0.7F, 5) + 0.4F * Fbm(p * 3.1F, 4);
    surface.crBody = Mix(Srgb(0x7d8578), Srgb(0x9aa08d), 0.5F + fPatch);
    surface.normal = Bend(spot, p, 0.02F, 0.025F, [](CVec3 q) { return Fbm(q * 2.2F, 5); });
    surface.fRoughness = 0.9F;
    surface.crMirror = {0.02F, 0.02F, 0.02F};
    return surface;
}

CMaterial Linen(const CSpot& spot) {
    CMaterial surface;
    const CVec3 p = spot.rest;
    const float fWeave = std::sin(p.x * 210) * std::sin(p.z * 210) + Noise(CVec2{p.x * 60, p.z * 9}) * 0.7F +
                         Noise(CVec2{p.x * 9, p.z * 60}) * 0.7F;
    const float fEdge = std::min(1 - std::fabs(p.x), 1 - std::fabs(p.z));
    const float fBlue =
        std::max({Stripe(fEdge, 0.12F, 0.035F), Stripe(fEdge, 0.2F, 0.012F), Stripe(fEdge, 0.235F, 0.007F)});
    surface.crBody = Mix(Srgb(0xe9e1d0), Srgb(0x3d5f8f), fBlue * 0.9F) * (0.94F + 0.05F * fWeave);
    surface.fRoughness = 0.95F;
    surface.crMirror = {0.015F, 0.015F, 0.015F};
    surface.normal = spot.normal;
    return surface;
}

// Cobalt under a clear glaze: lines at rim and foot and a scroll of leaves between them.
CMaterial Porcelain(const CSpot& spot) {
    const CVec3 p = spot.rest;
    const float r = std::sqrt(p.x * p.x + p.z * p.z);
    const float fAround = std::atan2(p.z, p.x) / (2 * kPi) * 10;
    const float fUp = p.y;
    const float fWobble = 0.02F * Noise(p * 4);
    float fBlue = std::max({Stripe(fUp + fWobble, 0.83F, 0.016F), Stripe(fUp + fWobble, 0.775F, 0.006F),
                            Stripe(fUp + fWobble, 0.25F, 0.012F), Stripe(fUp + fWobble, 0.1F, 0.02F)});
    const float fVine = fUp - 0.52F - 0.1F * std::sin(fAround * 2 * kPi);
    fBlue = std::max(fBlue, Stripe(fVine, 0, 0.013F));
    // Leaves sit in the bays of the vine, turn about.
    for (int n = 0; n < 2; ++n) {
        const float fCell = fAround + 0.25F + 0.5F * static_cast<float>(n);
        const float dx = (fCell - std::floor(fCell) - 0.5F) * 0.66F;
        const float dy = fUp - 0.52F + (n == 0 ? 0.06F : -0.06F);
        const float a = std::atan2(dy, dx);
        const float fPetal = 0.075F + 0.035F * std::cos(a * 6) + 0.012F * Noise(p * 11);
        const float d = std::sqrt(dx * dx + dy * dy);
        fBlue = std::max(fBlue,
                         (1 - Smooth(fPetal * 0.85F, fPetal, d)) * (0.6F + 0.4F * Smooth(0.02F, 0.045F, d)));
    }
    fBlue *= 0.72F + 0.5F * Fbm(p * 5, 3);
    if (r < 0.2F && fUp < 0.3F) fBlue = 0;
    CMaterial surface;
    surface.crBody = Mix(Srgb(0xe6e8e4), Srgb(0x1f3f94), Clamp01(fBlue));
    surface.normal = spot.normal;
    surface.fRoughness = 0.16F;
    surface.crMirror = {0.05F, 0.05F, 0.05F};
    return surface;
}

CMaterial Apple(const CSpot& spot) {
    const CVec3 p = spot.rest;
    const float a = std::atan2(p.z, p.x);
    const float fStreak = Fbm(CVec3{std::cos(a) * 7, p.y * 1.1F, std::sin(a) * 7}, 4);
    const float fRed = Smooth(-0.45F, 0.35F, fStreak + 0.75F * (p.x * 0.9F + p.z * 0.3F) + 0.1F);
    CMaterial surface;
    surface.crBody = Mix(Srgb(0xd6b548), Srgb(0xa81c1a), fRed);
    surface.crBody = Mix(surface.crBody, Srgb(0x8f9440),
                         0.8F * (1 - Smooth(0.05F, 0.3F, std::sqrt(p.x * p.x + p.z * p.z))));
    const CCellular dots = Cellular(p * 9);
    surface.crBody = Mix(surface.crBody, Srgb(0xe8c98a), 0.55F * (1 - Smooth(0.05F, 0.12F, dots.fFirst)));
    surface.normal = Bend(spot, p, 0.02F, 0.01F, [](CVec3 q) { return Fbm(q * 6, 3); });
    surface.fRoughness = 0.3F;
    return surface;
}

CMaterial Orange(const CSpot& spot) {
    CMaterial surface;
    const auto pores = [](CVec3 q) {
        return Smooth(0, 0.45F, Cellular(q * 19).fFirst) + 0.5F * Noise(q * 8);
    };
    surface.crBody = Mix(Srgb(0xe87a12), Srgb(0xf29a25), 0.5F + Fbm(spot.rest * 3, 3)) *
                     (0.86F + 0.14F * pores(spot.rest));
    surface.normal = Bend(spot, spot.rest, 0.01F, 0.013F, pores);
    surface.fRoughness = 0.38F;
    return surface;
}

CMaterial Pear(const CSpot& spot) {
    const CVec3 p = spot.rest;
    const CCellular dots = Cellular(p * 15);
    CMaterial surface;
    surface.crBody = Mix(Srgb(0xa9a93c), Srgb(0xc9b74b), 0.5F + Fbm(p * 2.5F, 4));
    surface.crBody = Mix(surface.crBody, Srgb(0xb5612c),
                         0.75F * Smooth(0.1F, 0.6F, p.x * 0.8F + p.z * 0.4F + 0.4F * Fbm(p * 3, 3)));
    surface.crBody = Mix(surface.crBody, Srgb(0x6b5a26), 0.6F * (1 - Smooth(0.06F, 0.16F, dots.fFirst)));
    surface.normal = spot.normal;
    surface.fRoughness = 0.42F;
    return surface;
}

CMaterial Grape(const CSpot& spot) {
    CMaterial surface;
    const float fBloom = Smooth(-0.3F, 0.5F, Fbm(spot.position * 8, 4));
    surface.crBody = Mix(Srgb(0x3a1030), Srgb(0x6d5f88), 0.5F * fBloom);
    surface.normal = spot.normal;
    surface.fRoughness = Mix(0.2F, 0.45F, fBloom);
    return surface;
}

CShader Plain(unsigned nColor, float fRoughness) {
    return [cr = Srgb(nColor), fRoughness](const CSpot& spot) {
        CMaterial surface;
        surface.crBody = cr * (0.85F + 0.3F * Fbm(spot.rest * 9, 3));
        surface.normal = spot.normal;
        surface.fRoughness = fRoughness;
        return surface;
    };
}

CMaterial BottleGlass(const CSpot& spot) {
    CMaterial surface;
    surface.crThrough = {0.62F, 0.84F, 0.55F};
    surface.normal = spot.normal;
    return surface;
}

class CArrangement {
  public:
    explicit CArrangement(CScene& stage) : m_stage(stage) {
        m_nApple = stage.AddShader(Apple);
        m_nOrange = stage.AddShader(Orange);
        m_nPear = stage.AddShader(Pear);
        m_nGrape = stage.AddShader(Grape);
        m_nStem = stage.AddShader(Plain(0x4a3420, 0.7F));
    }

    void AddApple(CVec3 ptAt, float fScale, float fTurn, float fTilt) {
        const std::size_t nFirst = m_stage.mesh.corners.size();
        AddTurned(m_stage.mesh, m_nApple,
                  {{0, 0.09F},
                   {0.13F, 0.04F},
                   {0.3F, 0.05F},
                   {0.46F, 0.24F},
                   {0.53F, 0.5F},
                   {0.48F, 0.75F},
                   {0.32F, 0.89F},
                   {0.15F, 0.88F},
                   {0.05F, 0.79F},
                   {0, 0.75F}},
                  72, 60, [](CVec3 p) {
                      const float a = std::atan2(p.z, p.x);
                      const float f =
                          1 + 0.03F * std::cos(a * 5) * Smooth(0.7F, 0, p.y) + 0.02F * std::sin(a * 2 + 1);
                      return CVec3{p.x * f, p.y + 0.02F * std::sin(a + 0.5F), p.z * f};
                  });
        AddStem({0, 0.74F, 0}, 0.28F, 0.022F);
        Place(nFirst, {0, 0.45F, 0}, ptAt, fScale, fTurn, fTilt);
    }

    void AddPear(CVec3 ptAt, float fScale, float fTurn, float fTilt) {
        const std::size_t nFirst = m_stage.mesh.corners.size();
        AddTurned(
            m_stage.mesh, m_nPear,
            {{0, 0.06F},
             {0.2F, 0.01F},
             {0.41F, 0.14F},
             {0.5F, 0.4F},
             {0.43F, 0.68F},
             {0.29F, 0.95F},
             {0.2F, 1.16F},
             {0.11F, 1.27F},
             {0, 1.28F}},
            72, 60, [](CVec3 p) {
                return p * (1 + 0.02F * Noise(p * 2.2F)) + CVec3{0.09F * p.y * p.y, 0, 0.03F * p.y * p.y};
            });
        AddStem({0.14F, 1.26F, 0.05F}, 0.3F, 0.024F);
        Place(nFirst, {0, 0.4F, 0}, ptAt, fScale, fTurn, fTilt);
    }

    void AddOrange(CVec3 ptAt, float fRadius, float fTurn) {
        const std::size_t nFirst = m_stage.mesh.corners.size();
        AddSheet(m_stage.mesh, m_nOrange, 72, 48, true, [](float u, float v) {
            const float a = 2 * kPi * u;
            const float b = kPi * (v - 0.5F);
            const float fNavel = 1 - 0.07F * Smooth(0.86F, 1, v);
            const float r = std::max(std::cos(b), 1e-3F);
            return CVec3{-r * std::cos(a), 0.94F * fNavel * std::sin(b), r * std::sin(a)};
        });
        Place(nFirst, {0, 0, 0}, ptAt, fRadius, fTurn, 0.7F);
    }

    void AddGrapes(CVec3 ptAt) {
        // A heap: each berry lies on the table or in the dent of those below.
        CRandom random(4711, 1);
        for (int i = 0; i < 30; ++i) {
            const int nLayer = i < 17 ? 0 : i < 26 ? 1 : 2;
            const float fAngle = static_cast<float>(i) * 2.39996F;
            const int nInLayer = nLayer == 0 ? i : nLayer == 1 ? i - 17 : i - 26;
            const float r = 0.165F * std::sqrt(static_cast<float>(nInLayer) + 0.3F);
            const float fRadius = random.Between(0.135F, 0.16F);
            const CVec3 p =
                ptAt + CVec3{r * std::cos(fAngle) * 1.35F, 0.145F + 0.2F * static_cast<float>(nLayer),
                             r * std::sin(fAngle) * 0.85F};
            const std::size_t nFirst = m_stage.mesh.corners.size();
            AddSheet(m_stage.mesh, m_nGrape, 28, 20, true, [&](float u, float v) {
                const float a = 2 * kPi * u;
                const float b = kPi * (v - 0.5F);
                const float c = std::max(std::cos(b), 1e-3F);
                return CVec3{-c * std::cos(a), 1.12F * std::sin(b), c * std::sin(a)};
            });
            Place(nFirst, {0, 0, 0}, p, fRadius, random.Unit() * 6, 1.2F);
        }
    }

  private:
    void AddStem(CVec3 ptFoot, float fLength, float fRadius) {
        AddTurned(m_stage.mesh, m_nStem,
                  {{fRadius, 0}, {fRadius * 0.8F, fLength * 0.5F}, {fRadius * 1.3F, fLength}, {0, fLength}},
                  14, 16, [&](CVec3 p) {
                      return ptFoot + p + CVec3{p.y * p.y * 0.9F, 0, p.y * p.y * 0.5F};
                  });
    }

    void Place(std::size_t nFirst, CVec3 ptPivot, CVec3 ptAt, float fScale, float fTurn, float fTilt) {
        m_stage.mesh.Move(nFirst,
                          [&](CVec3 p) { return ptAt + TurnY(TurnZ(p - ptPivot, fTilt), fTurn) * fScale; });
    }

    CScene& m_stage;
    int m_nApple;
    int m_nOrange;
    int m_nPear;
    int m_nGrape;
    int m_nStem;
};

void AddBottle(CScene& stage) {
    const std::size_t nFirst = stage.mesh.corners.size();
    const int nGlass = stage.AddShader(BottleGlass, true);
    AddTurned(
        stage.mesh, nGlass,
        {{0, 0.05F},     {0.2F, 0.03F},   {0.36F, 0},      {0.43F, 0.06F}, {0.43F, 0.4F},  {0.43F, 0.8F},
         {0.43F, 1.2F},  {0.43F, 1.5F},   {0.36F, 1.72F},  {0.2F, 1.9F},   {0.145F, 2.1F}, {0.14F, 2.35F},
         {0.14F, 2.52F}, {0.175F, 2.53F}, {0.175F, 2.62F}, {0.15F, 2.65F}, {0.11F, 2.62F}, {0.11F, 2.4F},
         {0.11F, 2.1F},  {0.16F, 1.9F},   {0.32F, 1.7F},   {0.39F, 1.48F}, {0.395F, 1.2F}, {0.395F, 0.8F},
         {0.395F, 0.4F}, {0.38F, 0.12F},  {0.2F, 0.1F},    {0, 0.12F}},
        96, 260, nullptr);
    const int nCork = stage.AddShader(Plain(0xa9825a, 0.9F));
    AddTurned(stage.mesh, nCork,
              {{0, 2.42F}, {0.1F, 2.42F}, {0.105F, 2.5F}, {0.125F, 2.78F}, {0.12F, 2.82F}, {0, 2.82F}}, 40,
              40, nullptr);
    const int nOil = stage.AddShader(
        [](const CSpot& spot) {
            CMaterial surface;
            surface.crThrough = {0.86F, 0.72F, 0.16F};
            surface.fIndex = 1.35F;
            surface.normal = spot.normal;
            return surface;
        },
        true);
    AddTurned(stage.mesh, nOil,
              {{0, 0.14F},
               {0.2F, 0.12F},
               {0.37F, 0.16F},
               {0.385F, 0.4F},
               {0.385F, 0.8F},
               {0.385F, 1.1F},
               {0.38F, 1.13F},
               {0.2F, 1.13F},
               {0, 1.13F}},
              72, 80, nullptr);
    stage.mesh.Move(nFirst, [](CVec3 p) { return p * 0.92F + CVec3{-1.5F, 0, -0.6F}; });
}

void AddBowl(CScene& stage) {
    const std::size_t nFirst = stage.mesh.corners.size();
    AddTurned(stage.mesh, stage.AddShader(Porcelain),
              {{0, 0.05F},
               {0.3F, 0.05F},
               {0.33F, 0},
               {0.4F, 0},
               {0.41F, 0.07F},
               {0.6F, 0.17F},
               {0.86F, 0.4F},
               {1.02F, 0.66F},
               {1.1F, 0.86F},
               {1.1F, 0.89F},
               {1.06F, 0.88F},
               {0.97F, 0.66F},
               {0.8F, 0.42F},
               {0.55F, 0.24F},
               {0.3F, 0.17F},
               {0, 0.15F}},
              160, 200, nullptr);
    stage.mesh.Move(nFirst, [](CVec3 p) { return p * 1.05F + CVec3{0.35F, 0.03F, -0.35F}; });
}

void AddCloth(CScene& stage) {
    const std::size_t nFirst = stage.mesh.corners.size();
    AddSheet(stage.mesh, stage.AddShader(Linen), 420, 420, false, [](float u, float v) {
        return CVec3{2 * u - 1, 0, 1 - 2 * v};
    });
    stage.mesh.Move(nFirst, [](CVec3 p) {
        const CVec3 q = TurnY({p.x * 1.75F, 0, p.z * 1.35F}, 0.35F) + CVec3{0.55F, 0, 0.45F};
        const CVec2 s{q.x + 0.25F * Noise(CVec2{q.x * 1.1F, q.z * 1.1F}),
                      q.z + 0.25F * Noise(CVec2{q.x * 1.3F + 9, q.z})};
        // Folds run between the things; under them the cloth lies flat.
        const auto away = [&](float x, float z) { return Length(CVec2{q.x - x, q.z - z}); };
        const float fFree = Smooth(0.45F, 1.2F, away(0.35F, -0.35F)) *
                            Smooth(0.35F, 0.75F, away(-0.1F, 1.1F)) *
                            Smooth(0.5F, 0.9F, away(-1.05F, 0.42F)) * Smooth(0.4F, 0.8F, away(1.45F, 0.72F));
        const float fRidge = 1 - std::fabs(Noise(CVec2{s.x * 0.9F + s.y * 0.5F, s.y * 0.35F - s.x * 0.1F}));
        const float fFolds =
            std::pow(Clamp01(fRidge), 9.0F) * 0.2F + 0.05F * (0.5F + Noise(CVec2{s.x * 1.7F, s.y * 1.4F}));
        const float fHem = 0.012F * Noise(CVec2{q.x * 5, q.z * 5});
        return CVec3{q.x, 0.012F + std::max(0.0F, fFree * (fFolds + fHem)), q.z};
    });
}

}  // namespace

CFilm TakeStillLife(int nWidth, int nHeight, int nFineness) {
    CScene stage;
    AddBox(stage.mesh, stage.AddShader(Table), {0, -0.2F, 0}, {6, 0.2F, 2.4F}, 0);
    AddSheet(stage.mesh, stage.AddShader(Wall), 1, 1, false, [](float u, float v) {
        return CVec3{-8 + 16 * u, -2 + 9 * v, -2.5F};
    });
    AddCloth(stage);
    AddBowl(stage);
    AddBottle(stage);
    CArrangement fruit(stage);
    fruit.AddOrange({0.0F, 0.78F, -0.1F}, 0.46F, 0.4F);
    fruit.AddOrange({0.1F, 0.82F, -0.82F}, 0.44F, 2.1F);
    fruit.AddApple({0.82F, 0.83F, -0.38F}, 0.93F, 0.3F, -0.35F);
    fruit.AddOrange({0.42F, 1.28F, -0.4F}, 0.42F, 4.4F);
    fruit.AddPear({-1.08F, 0.4F, 0.42F}, 0.84F, 2.75F, -1.3F);
    fruit.AddApple({-0.1F, 0.46F, 1.1F}, 0.86F, 2.2F, 0.25F);
    fruit.AddGrapes({1.5F, 0.05F, 0.72F});
    // A window of four panes, high on the left.
    for (const float y : {1.5F, 2.95F}) {
        for (const float z : {1.9F, 0.45F}) {
            stage.lamps.push_back({{-4.6F, y, z}, {0, 0, -1.3F}, {0, 1.3F, 0}, CVec3{1, 0.93F, 0.82F} * 17});
        }
    }
    stage.sky = [](CVec3 dir, bool) {
        return Mix(CVec3{0.05F, 0.045F, 0.04F}, CVec3{0.13F, 0.14F, 0.16F}, 0.5F + 0.5F * dir.y) *
               Mix(0.5F, 1.4F, Smooth(-1, 1, dir.z));
    };
    stage.camera = {{0.1F, 2.2F, 6.6F}, {0.02F, 1.0F, 0}, 30, 0.05F, 6.2F};
    return Photograph(stage, nWidth, nHeight, nFineness);
}
