// The small renderer behind the photographs, against a sum that can be done by hand.

#include <gtest/gtest.h>

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

#include "resources/samples/tool/Scene.h"
}  // namespace
