#include <functional>

#include "Naive.h"

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
    {"few dots", Dots(2)},
    {"dots", Dots(20)},
    {"as many dots as let a fill through", Dots(40)},
    {"dots nearly everywhere", Dots(70)},
    {"checker", [](CRandom&, int x, int y) { return (x + y) % 2 != 0; }},
    {"ways down and up", [](CRandom&, int x, int y) { return x % 2 != 0 && y % 20 != x / 2 % 2; }},
    {"ways to and fro", [](CRandom&, int x, int y) { return y % 2 != 0 && x % 150 != y / 2 % 2; }},
    {"slopes", [](CRandom&, int x, int y) { return (x + 2 * y) % 7 == 0 && x % 31 != 0; }},
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

// The fill of one point: pixels, box, answer, and that the pixels are shared until there is one to paint.
void ExpectFill(const CSurface& ground, CPoint pt, CColor color) {
    CSurface expected = ground;
    const bool bHit = ground.Bounds().Contains(pt) && ground.GetPixel(pt.x, pt.y) == kWhite;
    const CRect rc = bHit ? NaiveFill(expected, pt, color) : CRect{};
    CSurface surface = ground;
    surface.SelectBrush(CBrush::Solid(color));
    EXPECT_EQ(surface.FloodFill(pt, kWhite), bHit);
    ASSERT_EQ(surface.Pixels(), expected.Pixels()) << testing::PrintToString(pt);
    EXPECT_EQ(surface.TakeDirty(), rc);
    EXPECT_EQ(surface.Pixels().SharesWith(ground.Pixels()), !bHit);
}

}  // namespace

TEST(FloodFill, ReachesWhatANaiveOneReaches) {
    CRandom random;
    SCOPED_TRACE(random.nSeed);
    for (const CGround& ground : kGrounds) {
        SCOPED_TRACE(ground.szName);
        for (int nRound = 0; nRound < 120; ++nRound) {
            // Up to a few words wide, and those that just fill a word or just do not.
            const int nWidth =
                nRound % 3 == 0 ? 64 * random.Pick(1, 3) + random.Pick(-1, 1) : random.Pick(1, 200);
            const int nHeight = random.Pick(1, 40);
            const CSurface surface = MakeGround(random, ground, nWidth, nHeight);
            for (int nPoint = 0; nPoint < 4; ++nPoint) {
                const CPoint pt{random.Pick(-1, nWidth), random.Pick(-1, nHeight)};
                ASSERT_NO_FATAL_FAILURE(ExpectFill(surface, pt, nPoint < 2 ? kPaint : kNearlyWhite));
            }
        }
    }
}

// More words in a row than are looked at together, by far, and rows of one pixel.
TEST(FloodFill, GoesThroughWideAndHighPictures) {
    CRandom random;
    SCOPED_TRACE(random.nSeed);
    for (const CGround& ground : kGrounds)
        for (const CSize size : {CSize{4301, 5}, CSize{1, 700}, CSize{5000, 1}, CSize{3, 900}}) {
            SCOPED_TRACE(ground.szName);
            const CSurface surface = MakeGround(random, ground, size.cx, size.cy);
            for (const CPoint pt : {CPoint{0, 0}, {size.cx / 2, size.cy / 2}, {size.cx - 1, size.cy - 1}})
                ASSERT_NO_FATAL_FAILURE(ExpectFill(surface, pt, kPaint));
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
