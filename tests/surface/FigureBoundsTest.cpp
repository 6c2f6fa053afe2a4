// What holds for every drawing call: where a figure is cut, which box it reports, when it separates shared
// pixels, and what it costs far away.

#include <array>
#include <functional>

#include "Pages.h"
#include "support/Pictures.h"

namespace {

using CCall = std::function<void(CSurface&)>;

// The kinds of call; those that a test treats apart have a name.
constexpr std::size_t kCalls = 13;
constexpr std::size_t kBezier = 6;
constexpr std::size_t kDrawPart = 9;
constexpr std::size_t kDrawEnlarged = 10;

// One call with random places.
CCall RandomCall(CRandom& random, const std::function<int()>& place, std::size_t nKind) {
    std::array<int, 8> n{};
    for (int& nPlace : n) nPlace = place();
    const CPen pen =
        random.Pick(0, 5) == 0 ? CPen::Dotted(PenStyle::kDot, kInk) : CPen::Solid(random.Pick(1, 5), kInk);
    const CBrush brush = random.Pick(0, 1) == 0 ? CBrush::Hollow() : CBrush::Solid(kPaint);
    const CRect rc{n[0], n[1], n[2], n[3]};
    const std::array<CPoint, 4> points = {{{n[0], n[1]}, {n[2], n[3]}, {n[4], n[5]}, {n[6], n[7]}}};
    const std::array<CCall, kCalls> calls = {{
        [=](CSurface& surface) {
            surface.MoveTo(points[0]);
            surface.LineTo(points[1]);
        },
        [=](CSurface& surface) { surface.Polyline(points); },
        [=](CSurface& surface) { surface.Rectangle(rc); },
        [=](CSurface& surface) { surface.Ellipse(rc); },
        [=](CSurface& surface) {
            surface.RoundRect(rc, {20, 20});
        },
        [=](CSurface& surface) { surface.Polygon(points); },
        [=](CSurface& surface) { surface.Bezier(points); },
        [=](CSurface& surface) { surface.FillRect(rc, kInk); },
        [=](CSurface& surface) { surface.FrameRect(rc, kInk); },
        [=](CSurface& surface) { surface.DrawPart(NumberedPixels(12, 9, 7), rc, n[4], n[5]); },
        [=](CSurface& surface) {
            surface.DrawEnlarged(NumberedPixels(12, 9, 7), rc, n[4], n[5], 3, surface.Bounds());
        },
        [=](CSurface& surface) { surface.FillRegion(CRegion::MakeRectangle(rc), kInk); },
        [=](CSurface& surface) { surface.SetPixel(n[0], n[1], kInk); },
    }};
    return [=, call = calls[nKind]](CSurface& surface) {
        surface.SelectPen(pen);
        surface.SelectBrush(brush);
        surface.SetTransparentGaps(true);
        call(surface);
    };
}

CRect ChangedBox(const CSurface& before, const CSurface& after) {
    CRect rc;
    for (int y = 0; y < after.Height(); ++y)
        for (int x = 0; x < after.Width(); ++x)
            if (after.GetPixel(x, y) != before.GetPixel(x, y)) rc = rc.Union({x, y, x + 1, y + 1});
    return rc;
}

}  // namespace

TEST(FigureBounds, ACutFigureIsAPartOfTheWhole) {
    CRandom random;
    SCOPED_TRACE(random.nSeed);
    for (std::size_t nRound = 0; nRound < 2600; ++nRound) {
        const std::size_t nKind = nRound % kCalls;
        // The source of a copy would not move along.
        if (nKind == kDrawPart || nKind == kDrawEnlarged) continue;
        // How a curve is flattened hangs on where it lies, so it stays.
        const int nOffset = nKind == kBezier ? 0 : 60;
        CRandom same = random;
        CSurface large = White(140, 140);
        CSurface small = White(20, 20);
        RandomCall(
            random, [&] { return random.Pick(0, 139); }, nKind)(large);
        RandomCall(
            same, [&] { return same.Pick(0, 139) - nOffset; }, nKind)(small);
        ASSERT_TRUE(HasPixels(small, [&](int x, int y) { return large.GetPixel(x + nOffset, y + nOffset); }))
            << nKind;
    }
}

TEST(FigureBounds, TheReportedBoxIsWhatChanged) {
    CRandom random;
    SCOPED_TRACE(random.nSeed);
    for (std::size_t nRound = 0; nRound < 2600; ++nRound) {
        const std::size_t nKind = nRound % kCalls;
        CSurface surface = White(20, 20);
        const CSurface before = surface;
        RandomCall(
            random, [&] { return random.Pick(-9, 29); }, nKind)(surface);
        const CRect rcChanged = ChangedBox(before, surface);
        ASSERT_EQ(surface.TakeDirty(), rcChanged) << nKind;
        ASSERT_EQ(surface.TakeDirty(), CRect{});
        // What is not seen separates nothing, and what is seen leaves the other holder of the pixels alone.
        ASSERT_EQ(surface.Pixels().SharesWith(before.Pixels()), rcChanged.IsEmpty()) << nKind;
        ASSERT_EQ(before.Pixels(), White(20, 20).Pixels());
    }
    CSurface flooded = White(20, 20);
    flooded.SelectPen(CPen::Solid(1, kInk));
    flooded.SelectBrush(CBrush::Hollow());
    flooded.Rectangle({3, 4, 12, 15});
    flooded.TakeDirty();
    flooded.SelectBrush(CBrush::Solid(kPaint));
    EXPECT_TRUE(flooded.FloodFill({7, 7}, kWhite));
    EXPECT_EQ(flooded.TakeDirty(), (CRect{4, 5, 11, 14}));
}

// Whatever the coordinates, a call ends soon and stays within its numbers; the sanitizers watch. Every figure
// of the largest size, some of which cover the picture, and random ones.
TEST(FigureBounds, FarFiguresCostNothing) {
    CRandom random;
    SCOPED_TRACE(random.nSeed);
    for (std::size_t nRound = 0; nRound < 6500; ++nRound) {
        CSurface surface = White(20, 20);
        RandomCall(
            random, [&] { return random.Far(); }, nRound % kCalls)(surface);
        surface.TakeDirty();
    }
    constexpr int kFar = CSurface::kFarthest;
    for (const CPen& pen :
         {CPen::Solid(1, kInk), CPen::Solid(5, kInk), CPen::Dotted(PenStyle::kDash, kInk), CPen::Null()}) {
        CSurface surface = White(20, 20);
        surface.SelectPen(pen);
        surface.SelectBrush(CBrush::Solid(kPaint));
        surface.Ellipse({-kFar, -kFar, kFar, kFar});
        ASSERT_TRUE(HasPixels(surface, [](int, int) { return kPaint; }));
        // Its left end, where it is upright for as far as one sees.
        surface.FillRect(surface.Bounds(), kWhite);
        surface.Ellipse({10, -kFar, kFar, kFar});
        EXPECT_EQ(surface.GetPixel(14, 9), kPaint);
        EXPECT_EQ(surface.GetPixel(7, 9), kWhite);
        if (!pen.IsNull() && !pen.IsDotted()) {
            EXPECT_EQ(surface.GetPixel(10, 9), kInk);
        }
    }
}

TEST(FigureBounds, PenBrushAndPositionStayUntilOthersAreGiven) {
    CSurface surface = White(20, 20);
    EXPECT_EQ(surface.SelectPen(CPen::Solid(1, kInk)), CPen::Solid(1, {}));
    EXPECT_EQ(surface.SelectBrush(CBrush::Solid(kPaint)), CBrush::Solid(kWhite));
    surface.Rectangle({1, 1, 4, 4});
    surface.MoveTo({10, 3});
    surface.LineTo({14, 3});
    surface.LineTo({14, 6});
    const CPoint points[] = {{3, 10}, {6, 10}};
    surface.Polyline(points);
    surface.LineTo({10, 6});
    ASSERT_TRUE(HasPixels(surface, [](int x, int y) {
        const bool bLines = (y == 3 && x >= 10 && x <= 14) || (x == 14 && y >= 3 && y <= 6) ||
                            (y == 6 && x >= 11 && x <= 14) || (y == 10 && x >= 3 && x <= 5);
        if (bLines) return kInk;
        if (!CRect{1, 1, 4, 4}.Contains({x, y})) return kWhite;
        return x == 2 && y == 2 ? kPaint : kInk;
    }));
    EXPECT_EQ(surface.SelectPen(CPen::Solid(0, kInk)).nWidth, 1);
    EXPECT_EQ(surface.SelectPen(CPen::Null()).nWidth, 1);
}
