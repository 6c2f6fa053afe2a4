// The small renderer behind the photographs, against sums that can be done by hand.

#include <gtest/gtest.h>

#include <map>

#include "resources/samples/tool/Bvh.h"
#include "resources/samples/tool/Denoise.h"
#include "resources/samples/tool/Noise.h"
#include "resources/samples/tool/Scene.h"

namespace {

CMaterial Matt(const CSpot& spot, float fBody) {
    CMaterial surface;
    surface.crBody = {fBody, fBody, fBody};
    surface.crMirror = {0, 0, 0};
    surface.normal = spot.normal;
    return surface;
}

// A matt floor seen straight from above, with no light but what a test adds.
CScene FloorStage(float fBody) {
    CScene stage;
    const int nFloor = stage.AddShader([fBody](const CSpot& spot) { return Matt(spot, fBody); });
    AddSheet(stage.mesh, nFloor, 1, 1, false, [](float u, float v) {
        return CVec3{-50 + 100 * u, 0, 50 - 100 * v};
    });
    stage.sky = [](CVec3, bool) { return CVec3{}; };
    // Close to the floor's middle, so that all pixels see nearly the same point.
    stage.camera = {{0, 1, 0.001F}, {0, 0, 0}, 1, 0, 1};
    return stage;
}

float MeanLight(const CScene& stage, int nPaths) {
    const CFilm film = Photograph(stage, 8, 8, nPaths);
    float fSum = 0;
    for (const CVec3 cr : film.pixels) fSum += Luminance(cr);
    return fSum / static_cast<float>(film.pixels.size());
}

TEST(Bvh, FindsWhatALookAtEveryTriangleFinds) {
    constexpr std::uint32_t kSeed = 20;
    CRandom random(kSeed, 0);
    const auto anywhere = [&] {
        return CVec3{random.Between(-1, 1), random.Between(-1, 1), random.Between(-1, 1)};
    };
    CMesh mesh;
    for (std::uint32_t i = 0; i < 700; ++i) {
        const CVec3 a = anywhere();
        for (const CVec3 p : {a, a + anywhere() * 0.2F, a + anywhere() * 0.2F})
            mesh.corners.push_back({p, {}, p});
        mesh.triangles.push_back({{3 * i, 3 * i + 1, 3 * i + 2}, 0});
    }
    const CBvh whole(mesh);
    std::vector<CBvh> single;
    for (const auto& triangle : mesh.triangles) {
        CMesh one;
        one.corners = mesh.corners;
        one.triangles = {triangle};
        single.emplace_back(one);
    }
    int nMet = 0;
    for (int i = 0; i < 1500; ++i) {
        const CRay ray{anywhere(), Normalize(anywhere())};
        CMeet naive{10, 0, 0, 0};
        bool bNaive = false;
        for (std::uint32_t n = 0; n < single.size(); ++n) {
            if (!single[n].Nearest(ray, naive)) continue;
            naive.nTriangle = n;
            bNaive = true;
        }
        CMeet meet{10, 0, 0, 0};
        ASSERT_EQ(whole.Nearest(ray, meet), bNaive) << "seed " << kSeed << ", ray " << i;
        if (!bNaive) continue;
        ++nMet;
        ASSERT_EQ(meet.t, naive.t) << "seed " << kSeed << ", ray " << i;
        ASSERT_EQ(meet.nTriangle, naive.nTriangle) << "seed " << kSeed << ", ray " << i;
    }
    EXPECT_GT(nMet, 300);
}

TEST(Mesh, AFieldBecomesAClosedSkinThatFacesOutwards) {
    CMesh mesh;
    const CVec3 centre{0.1F, -0.2F, 0.05F};
    AddField(
        mesh, 3, [=](CVec3 p) { return Length(p - centre) - 0.7F; }, {-1, -1, -1}, {1, 1, 1}, 0.09F);
    std::map<std::pair<std::uint32_t, std::uint32_t>, int> edges;
    for (const auto& triangle : mesh.triangles) {
        EXPECT_EQ(triangle.nMaterial, 3U);
        const auto& c = triangle.corners;
        for (std::size_t i = 0; i < 3; ++i) ++edges[{c[i], c[(i + 1) % 3]}];
        const CVec3 a = mesh.corners[c[0]].position;
        const CVec3 facet = Cross(mesh.corners[c[1]].position - a, mesh.corners[c[2]].position - a);
        EXPECT_GT(Dot(facet, a - centre), 0);
    }
    ASSERT_GT(edges.size(), 1000U);
    for (const auto& [edge, nTimes] : edges) {
        EXPECT_EQ(nTimes, 1);
        EXPECT_EQ(edges.count({edge.second, edge.first}), 1U);
    }
    for (const auto& corner : mesh.corners) {
        EXPECT_NEAR(Length(corner.position - centre), 0.7F, 0.002F);
        EXPECT_GT(Dot(corner.normal, Normalize(corner.position - centre)), 0.99F);
    }
}

TEST(Mesh, TurnedThingsFaceOutwardsAndKeepTheirRestWhenMoved) {
    CMesh mesh;
    AddTurned(mesh, 0, {{0.5F, 0}, {0.5F, 0.5F}, {0.5F, 1}}, 24, 8, nullptr);
    const auto corners = mesh.corners;
    mesh.Move(0, [](CVec3 p) { return TurnZ(p, kPi / 2) + CVec3{4, 0, 0}; });
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const CVec3 out = Normalize({corners[i].position.x, 0, corners[i].position.z});
        EXPECT_GT(Dot(corners[i].normal, out), 0.98F);
        EXPECT_EQ(mesh.corners[i].rest.x, corners[i].position.x);
        EXPECT_GT(Dot(mesh.corners[i].normal, TurnZ(out, kPi / 2)), 0.98F);
    }
}

TEST(Photograph, AMattFloorGivesBackItsPartOfAnEvenSky) {
    CScene stage = FloorStage(0.6F);
    stage.sky = [](CVec3, bool) { return CVec3{2, 2, 2}; };
    EXPECT_NEAR(MeanLight(stage, 256), 1.2F, 0.02F);
    stage.air = [](CVec3, CVec3, float fLength) {
        const float f = std::exp(-fLength);
        return CScene::CAir{{f, f, f}, {0.5F, 0.5F, 0.5F}};
    };
    // A metre of air before the floor and none towards the sky.
    EXPECT_NEAR(MeanLight(stage, 256), 0.5F + 1.2F * std::exp(-1.0F), 0.02F);
}

TEST(Photograph, ALampShinesByItsSizeAndDistance) {
    for (const float fSide : {0.2F, 3.0F}) {
        CScene stage = FloorStage(0.5F);
        constexpr float kHeight = 4;
        stage.lamps.push_back(LampAt({0, kHeight, 0}, {0, 0, 0}, fSide, fSide, {10, 10, 10}));
        // The cosine-weighted solid angle of the square, summed over small pieces.
        double fForm = 0;
        constexpr int kPieces = 200;
        for (int n = 0; n < kPieces * kPieces; ++n) {
            const int nRow = n / kPieces;
            const double x = ((n - nRow * kPieces + 0.5) / kPieces - 0.5) * fSide;
            const double z = ((nRow + 0.5) / kPieces - 0.5) * fSide;
            const double r2 = x * x + z * z + kHeight * kHeight;
            fForm += kHeight * kHeight / (r2 * r2) * fSide * fSide / (kPieces * kPieces);
        }
        const float fWanted = static_cast<float>(10 * 0.5 * fForm / kPi);
        EXPECT_NEAR(MeanLight(stage, 400), fWanted, 0.03F * fWanted) << "side " << fSide;
    }
}

TEST(Photograph, ThingsThrowShadowsAndGlassTintsThem) {
    CScene stage = FloorStage(0.5F);
    stage.lamps.push_back(LampAt({2, 6, 0}, {0, 0, 0}, 0.3F, 0.3F, {900, 900, 900}));
    const float fOpen = MeanLight(stage, 200);
    const auto addPane = [](CScene& to, int nMaterial) {
        AddSheet(to.mesh, nMaterial, 1, 1, false, [](float u, float v) {
            return CVec3{0.3F + u, 3, 0.5F - v};
        });
    };
    CScene covered = stage;
    addPane(covered, covered.AddShader([](const CSpot& spot) { return Matt(spot, 0.5F); }));
    EXPECT_LT(MeanLight(covered, 200), 0.05F * fOpen);
    CScene glazed = stage;
    addPane(glazed, glazed.AddShader(
                        [](const CSpot& spot) {
                            CMaterial surface;
                            surface.crThrough = {0.5F, 0.5F, 0.5F};
                            surface.normal = spot.normal;
                            return surface;
                        },
                        true));
    EXPECT_NEAR(MeanLight(glazed, 200) / fOpen, 0.48F, 0.02F);
}

TEST(Photograph, IsTheSameEveryTime) {
    CScene stage = FloorStage(0.5F);
    stage.lamps.push_back(LampAt({1, 2, 1}, {0, 0, 0}, 1, 1, {5, 4, 3}));
    const std::vector<std::uint8_t> first = Develop(Photograph(stage, 24, 16, 4), {});
    EXPECT_EQ(first.size(), 24U * 16U * 3U);
    EXPECT_EQ(first, Develop(Photograph(stage, 24, 16, 4), {}));
}

TEST(Denoise, LevelsNoiseAndKeepsTheEdgeOfAPaint) {
    constexpr int kSide = 64;
    CFilm film(kSide, kSide);
    CClues clues(kSide, kSide);
    CRandom random(7, 7);
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const float fBody = x < kSide / 2 ? 0.8F : 0.1F;
            const float fLight = 1 + random.Between(-0.3F, 0.3F);
            film.At(x, y) = CVec3{fBody, fBody, fBody} * fLight;
            clues.body.At(x, y) = {fBody, fBody, fBody};
            clues.normal.At(x, y) = {0, 0, 1};
            clues.place.At(x, y) = CVec3{static_cast<float>(x), static_cast<float>(y), 0} * 0.01F;
            clues.variance.At(x, y).x = fBody * fBody * 0.03F;
        }
    }
    const CFilm clean = Denoise(film, clues, true);
    for (int y = 0; y < kSide; ++y) {
        for (const int x : {4, kSide / 2 - 1, kSide / 2, kSide - 5}) {
            const float fBody = x < kSide / 2 ? 0.8F : 0.1F;
            EXPECT_NEAR(clean.At(x, y).x, fBody, 0.15F * fBody) << x << ", " << y;
        }
    }
}

TEST(Film, DevelopsBrighterLightToBrighterPaperAndDarkensCorners) {
    CFilm film(90, 60);
    for (int y = 0; y < 60; ++y) {
        const int nStep = y / 10;
        for (int x = 0; x < 90; ++x)
            film.At(x, y) = CVec3{1, 1, 1} * (0.02F + 0.08F * static_cast<float>(nStep));
    }
    const CLook plain{.fVignette = 0, .fGrain = 0, .fGlow = 0, .fSharpen = 0};
    const std::vector<std::uint8_t> paper = Develop(film, plain);
    const auto at = [](const std::vector<std::uint8_t>& bytes, int x, int y) {
        return static_cast<int>(bytes[static_cast<std::size_t>(y * 90 + x) * 3]);
    };
    for (int y = 10; y < 60; y += 10) EXPECT_GT(at(paper, 45, y), at(paper, 45, y - 1) + 5);
    const std::vector<std::uint8_t> framed =
        Develop(film, {.fVignette = 0.5F, .fGrain = 0, .fGlow = 0, .fSharpen = 0});
    EXPECT_LT(at(framed, 0, 59), at(paper, 0, 59) - 10);
    EXPECT_EQ(at(framed, 45, 29), at(paper, 45, 29));
}

}  // namespace
