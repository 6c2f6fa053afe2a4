// A page of an old tale, photographed a little askew on a desk, with a ginkgo leaf and a pencil on it.

#include <array>

#include "Pictures.h"
#include "Scene.h"
#include "TextSheet.h"

namespace {

constexpr float kPageWidth = 2.0F;
constexpr float kPageDepth = 2.8F;
constexpr int kSheetWidth = 1600;
constexpr int kSheetHeight = 2240;

CTextSheet PrintPage() {
    static constexpr std::array<const char*, 15> kTale{"　　晋太元中，武陵人捕鱼为业。缘溪",
                                                       "行，忘路之远近。忽逢桃花林，夹岸数",
                                                       "百步，中无杂树，芳草鲜美，落英缤纷。",
                                                       "渔人甚异之，复前行，欲穷其林。",
                                                       "　　林尽水源，便得一山，山有小口，",
                                                       "仿佛若有光。便舍船，从口入。初极狭，",
                                                       "才通人。复行数十步，豁然开朗。土地",
                                                       "平旷，屋舍俨然，有良田、美池、桑竹",
                                                       "之属。阡陌交通，鸡犬相闻。其中往来",
                                                       "种作，男女衣着，悉如外人。黄发垂髫，",
                                                       "并怡然自乐。",
                                                       "　　见渔人，乃大惊，问所从来。具答",
                                                       "之。便要还家，设酒杀鸡作食。村中闻",
                                                       "有此人，咸来问讯。自云先世避秦时乱，",
                                                       "率妻子邑人来此绝境，不复出焉。"};
    std::vector<CTextSheet::CLine> lines{{"桃花源记", kSheetWidth / 2 + 30, 235, 112, true},
                                         {"陶渊明", kSheetWidth / 2 + 30, 400, 56, true},
                                         {"一七", kSheetWidth / 2 + 30, 2110, 46, true}};
    int nBase = 520;
    for (const char* pszLine : kTale) {
        lines.push_back({pszLine, 235, nBase, 70, false});
        nBase += 103;
    }
    return {kSheetWidth, kSheetHeight, lines};
}

// How high the open page lies above its right edge, x from the fold.
float PageHeight(float x, float z) {
    const float fFold = 0.3F * std::exp(-x * 5.5F);
    return 0.16F + 0.1F * std::sin(Clamp01(x / kPageWidth) * kPi) - fFold * 0.75F +
           0.02F * std::sin(x * 1.7F + z * 0.9F) + 0.012F * Noise(CVec2{x * 1.1F, z * 1.1F});
}

CShader Paper(const CTextSheet& sheet) {
    return [&sheet](const CSpot& spot) {
        const CVec3 p = spot.rest;
        CMaterial surface;
        const float u = p.x / kPageWidth;
        const float v = 0.5F + p.z / kPageDepth;
        const float fInk = sheet.InkAt(u, v) * (0.93F + 0.14F * Noise(CVec2{p.x * 40, p.z * 40}));
        const float fAge = Fbm(CVec2{p.x * 1.3F, p.z * 1.3F}, 4) +
                           0.9F * Smooth(0.86F, 1, std::max(u, std::fabs(v * 2 - 1)));
        const float fFibre = Noise(CVec2{p.x * 70, p.z * 25}) + Noise(CVec2{p.x * 30, p.z * 90});
        surface.crBody =
            Mix(Srgb(0xeee6d3), Srgb(0xd6c198), Clamp01(0.25F + 0.6F * fAge)) * (0.97F + 0.02F * fFibre);
        const CCellular spots = Cellular(CVec2{p.x * 2.3F + 5, p.z * 2.3F});
        surface.crBody =
            Mix(surface.crBody, Srgb(0xb08d58), 0.35F * (1 - Smooth(0.01F, 0.05F, spots.fFirst)));
        surface.crBody = Mix(surface.crBody, Srgb(0x211d1a), Clamp01(fInk));
        surface.normal = Bend(spot, p, 0.01F, 0.0016F, [](CVec3 q) {
            return Fbm(CVec2{q.x * 18, q.z * 18}, 3);
        });
        surface.fRoughness = 0.8F;
        surface.crMirror = {0.02F, 0.02F, 0.02F};
        return surface;
    };
}

CMaterial PageEdges(const CSpot& spot) {
    CMaterial surface;
    const CVec3 p = spot.position;
    const float fLeaf = Noise(CVec3{p.x * 2, p.y * 130, p.z * 2}) + 0.6F * Noise(CVec3{p.x, p.y * 310, p.z});
    surface.crBody = Srgb(0xd8c7a4) * (0.75F + 0.22F * fLeaf);
    surface.normal = spot.normal;
    surface.fRoughness = 0.9F;
    return surface;
}

CMaterial Desk(const CSpot& spot) {
    CMaterial surface;
    const CVec3 p = TurnY(spot.position, 0.2F);
    const float fWarp = Fbm(CVec2{p.x * 0.9F, p.z * 0.25F}, 4) * 1.6F;
    const float fRings = 0.5F + 0.5F * std::sin((p.x + fWarp) * 19 + 2 * Fbm(CVec2{p.x * 9, p.z * 0.7F}, 3));
    const float fPores = Smooth(0.25F, 0.6F, Noise(CVec2{p.x * 75, p.z * 4}));
    surface.crBody = Mix(Srgb(0x3d2416), Srgb(0x6d4327), fRings * 0.7F + 0.3F * fWarp) * (1 - 0.35F * fPores);
    surface.normal = Bend(spot, p, 0.008F, 0.008F, [](CVec3 q) { return Fbm(CVec2{q.x * 50, q.z * 5}, 3); });
    surface.fRoughness = 0.34F;
    return surface;
}

CMaterial Ginkgo(const CSpot& spot) {
    CMaterial surface;
    const float a = spot.rest.x;
    const float r = spot.rest.y;
    const float fVeins = std::sin(a * 260) * 0.5F + std::sin(a * 410 + 1) * 0.3F;
    surface.crBody = Mix(Srgb(0xe0a81a), Srgb(0xf3d04a), 0.5F + 0.35F * fVeins + Fbm(CVec2{a * 8, r * 6}, 3));
    surface.crBody = Mix(surface.crBody, Srgb(0xa9b03a), 0.5F * Smooth(0.5F, 0.05F, r));
    surface.crBody =
        Mix(surface.crBody, Srgb(0x9c6a1c), Smooth(0.9F, 1, r) * Smooth(0, 0.3F, Noise(CVec2{a * 20, 3})));
    surface.normal = spot.normal;
    surface.fRoughness = 0.55F;
    return surface;
}

void AddBook(CScene& stage, int nPaper) {
    AddSheet(stage.mesh, nPaper, 160, 120, false, [](float u, float v) {
        return CVec3{u * kPageWidth, 0, (0.5F - v) * kPageDepth};
    });
    const std::size_t nFirst = stage.mesh.corners.size() - 161 * 121;
    stage.mesh.Move(nFirst, [](CVec3 p) { return CVec3{p.x, PageHeight(p.x, p.z), p.z}; });
    // The page on the left of the fold, bare, and the block of leaves below.
    AddSheet(stage.mesh, nPaper, 90, 60, false, [](float u, float v) {
        const float x = (u - 1) * 1.6F;
        const float z = (0.5F - v) * kPageDepth;
        return CVec3{x, PageHeight(-x, z + 3), z};
    });
    const int nEdges = stage.AddShader(PageEdges);
    AddSheet(stage.mesh, nEdges, 60, 1, false, [](float u, float v) {
        const float z = (0.5F - u) * kPageDepth;
        return CVec3{kPageWidth + (1 - v) * 0.04F, v * (PageHeight(kPageWidth, z) - 0.004F), z};
    });
    AddSheet(stage.mesh, nEdges, 120, 1, false, [](float u, float v) {
        const float x = (u - 0.45F) / 0.55F * kPageWidth;
        return CVec3{x, v * (PageHeight(std::fabs(x), kPageDepth / 2) - 0.004F),
                     kPageDepth / 2 + (1 - v) * 0.03F};
    });
}

void AddLeaf(CScene& stage) {
    const int nLeaf = stage.AddShader(Ginkgo);
    const std::size_t nFirst = stage.mesh.corners.size();
    AddSheet(stage.mesh, nLeaf, 160, 40, false, [](float u, float v) { return CVec3{1 - 2 * u, v, 0}; });
    for (std::size_t i = nFirst; i < stage.mesh.corners.size(); ++i) {
        auto& corner = stage.mesh.corners[i];
        const float a = corner.rest.x * 1.25F;
        const float fCleft = 0.5F * std::exp(-a * a * 160);
        const float fRim = 1 - fCleft - 0.06F * std::fabs(std::sin(a * 7 + 1)) - 0.1F * a * a -
                           0.02F * Noise(CVec2{a * 15, 2});
        const float r = corner.rest.y * 0.52F * fRim;
        const CVec3 flat = TurnY({std::sin(a) * r, 0, -std::cos(a) * r}, -0.75F) + CVec3{1.56F, 0, 1.1F};
        const float fLift = 0.03F + 0.1F * r * r + 0.035F * std::sin(a * 6) * r * 2;
        corner.position = {flat.x, PageHeight(flat.x, flat.z) + fLift, flat.z};
    }
    // Normals by the neighbours along the sheet.
    CMesh& mesh = stage.mesh;
    for (std::size_t i = nFirst; i < mesh.corners.size(); ++i) mesh.corners[i].normal = {0, 1, 0};
    const int nStem = stage.AddShader([](const CSpot& spot) {
        CMaterial surface;
        surface.crBody = Srgb(0xb7a63c);
        surface.normal = spot.normal;
        return surface;
    });
    const std::size_t nStemFirst = mesh.corners.size();
    AddTurned(mesh, nStem, {{0.012F, 0}, {0.009F, 0.25F}, {0.008F, 0.45F}, {0.012F, 0.55F}, {0, 0.555F}}, 12,
              24, nullptr);
    mesh.Move(nStemFirst, [](CVec3 p) {
        const CVec3 flat = TurnY({p.x + 0.5F * p.y * p.y, 0, p.y}, -0.75F) + CVec3{1.56F, 0, 1.1F};
        return CVec3{flat.x, PageHeight(flat.x, flat.z) + 0.025F + p.z, flat.z};
    });
}

void AddPencil(CScene& stage) {
    const int nLacquer = stage.AddShader([](const CSpot& spot) {
        CMaterial surface;
        const float y = spot.rest.y;
        const bool bBand = y > 1.62F && y < 1.66F;
        surface.crBody = y < 0.055F ? Srgb(0x2a2a2c)
                         : y < 0.2F ? Srgb(0xd9b07c)
                         : bBand    ? Srgb(0xd9b64a)
                                    : Srgb(0x2f5d4f);
        surface.normal = spot.normal;
        surface.fRoughness = y < 0.2F ? 0.7F : 0.22F;
        return surface;
    });
    const std::size_t nFirst = stage.mesh.corners.size();
    AddSheet(stage.mesh, nLacquer, 36, 120, true, [](float u, float v) {
        const float y = v * 1.75F;
        const float a = 2 * kPi * u;
        const float fHex = 0.9F + 0.1F * std::cos(a * 6);
        const float r = std::min(0.06F, 0.008F + y * 0.26F) * (y < 0.2F ? 1 : fHex);
        return CVec3{-r * std::cos(a), y, r * std::sin(a)};
    });
    stage.mesh.Move(nFirst, [](CVec3 p) {
        return TurnY(TurnZ(p, -kPi / 2), 0.98F) + CVec3{1.98F, 0.09F, 1.35F};
    });
}

}  // namespace

CFilm TakePage(int nWidth, int nHeight, int nFineness) {
    CScene stage;
    const CTextSheet sheet = PrintPage();
    const int nPaper = stage.AddShader(Paper(sheet));
    AddSheet(stage.mesh, stage.AddShader(Desk), 1, 1, false, [](float u, float v) {
        return CVec3{-6 + 12 * u, 0, 6 - 12 * v};
    });
    AddBook(stage, nPaper);
    AddLeaf(stage);
    AddPencil(stage);
    stage.lamps.push_back(LampAt({-3.0F, 4.2F, -3.2F}, {1, 0, 0}, 1.9F, 1.9F, CVec3{1, 0.93F, 0.82F} * 26));
    stage.sky = [](CVec3 dir, bool) {
        return Mix(CVec3{0.1F, 0.09F, 0.08F}, CVec3{0.24F, 0.25F, 0.28F}, 0.5F + 0.5F * dir.y) *
               Mix(0.6F, 1.2F, 0.5F - 0.5F * dir.x);
    };
    stage.camera = {{1.28F, 4.6F, 1.95F}, {1.04F, 0.1F, 0.08F}, 39, 0.03F, 4.75F};
    return Photograph(stage, nWidth, nHeight, nFineness);
}
