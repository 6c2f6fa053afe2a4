#include <functional>

#include "Pages.h"

namespace {

// Differs from white in one channel only.
constexpr CColor kNearlyWhite{255, 255, 254};

struct CGround {
    const char* szName;
    // True for a pixel that stands in the way.
    std::function<bool(CRandom& random, int x, int y)> wall;
};

std::function<bool(CRandom&, int, int)> Dots(int nPercent) {
    return [=](CRandom& random, int, int) { return random.Pick(0, 99) < nPercent; };
}

const CGround kGrounds[] = {
    {"plain", Dots(0)},
    {"as many dots as let a fill through", Dots(40)},
    {"ways down and up", [](CRandom&, int x, int y) { return x % 2 != 0 && y % 20 != x / 2 % 2; }},
    {"ways to and fro", [](CRandom&, int x, int y) { return y % 2 != 0 && x % 150 != y / 2 % 2; }},
    {"maze",
     [](CRandom& random, int x, int y) {
         return x % 2 != 0 && y % 2 != 0 ? true : (x % 2 != 0 || y % 2 != 0) && random.Pick(0, 1) != 0;
     }},
};

CSurface MakeGround(CRandom& random, const CGround& ground, int nWidth, int nHeight) {
    CSurface surface = White(nWidth, nHeight);
    for (int y = 0; y < nHeight; ++y)
        for (int x = 0; x < nWidth; ++x)
            if (ground.wall(random, x, y)) surface.SetPixel(x, y, random.Pick(0, 1) ? kInk : kNearlyWhite);
    surface.TakeDirty();
    return surface;
}

// Fills white pixel by pixel and returns the box of what changed.
CRect NaiveFill(CSurface& surface, CPoint pt, CColor color) {
    CRect rc;
    std::vector<CPoint> waiting = {pt};
    while (!waiting.empty()) {
        const CPoint ptNext = waiting.back();
        waiting.pop_back();
        if (!surface.Bounds().Contains(ptNext) || surface.GetPixel(ptNext.x, ptNext.y) != kWhite) continue;
        surface.SetPixel(ptNext.x, ptNext.y, color);
        rc = rc.Union(CRect::FromPlace(ptNext.x, ptNext.y, 1, 1));
        for (const CPoint& ptStep : {CPoint{1, 0}, {-1, 0}, {0, 1}, {0, -1}})
            waiting.push_back({ptNext.x + ptStep.x, ptNext.y + ptStep.y});
    }
    return rc;
}

}  // namespace

// Pictures up to a few words wide, those that just fill a word or just do not, and now and then one with more
// words in a row than are looked at together, or one of single pixels. Pixels are shared until there is one
// to paint.
TEST(FloodFill, ReachesWhatANaiveOneReaches) {
    constexpr CSize kLong[] = {{4301, 5}, {1, 700}, {5000, 1}, {3, 900}};
    CRandom random;
    SCOPED_TRACE(random.nSeed);
    for (const CGround& ground : kGrounds) {
        for (int nRound = 0; nRound < 300; ++nRound) {
            CSize size{nRound % 3 == 0 ? 64 * random.Pick(1, 3) + random.Pick(-1, 1) : random.Pick(1, 200),
                       random.Pick(1, 40)};
            if (nRound < 4) size = kLong[nRound];
            const CSurface page = MakeGround(random, ground, size.cx, size.cy);
            const CPoint pt{random.Pick(-1, size.cx), random.Pick(-1, size.cy)};
            const CColor color = nRound % 2 == 0 ? kPaint : kNearlyWhite;
            const bool bHit = page.Bounds().Contains(pt) && page.GetPixel(pt.x, pt.y) == kWhite;
            CSurface expected = page;
            const CRect rc = bHit ? NaiveFill(expected, pt, color) : CRect{};
            CSurface filled = page;
            filled.SelectBrush(CBrush::Solid(color));
            EXPECT_EQ(filled.FloodFill(pt, kWhite), bHit);
            ASSERT_EQ(filled.Pixels(), expected.Pixels())
                << ground.szName << ": " << testing::PrintToString(pt);
            EXPECT_EQ(filled.TakeDirty(), rc);
            EXPECT_EQ(filled.Pixels().SharesWith(page.Pixels()), !bHit);
        }
    }
}

TEST(FloodFill, WithTheColourThatIsThereOrWithoutABrushPaintsNothing) {
    const CSurface before = White(70, 9);
    for (const CBrush& brush : {CBrush::Solid(kWhite), CBrush::Hollow()}) {
        CSurface surface = before;
        surface.SelectBrush(brush);
        EXPECT_TRUE(surface.FloodFill({3, 3}, kWhite));
        EXPECT_TRUE(surface.Pixels().SharesWith(before.Pixels()));
        EXPECT_EQ(surface.TakeDirty(), CRect{});
    }
}
