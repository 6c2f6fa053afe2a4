#include "surface/Surface.h"

#include "Pages.h"
#include "support/Pictures.h"

namespace {

constexpr CColor kBlack{};
constexpr CColor kRed{200, 10, 20};

}  // namespace

TEST(Surface, FillsAndFramesAreCutAtTheEdges) {
    const CRect kBoxes[] = {{2, 3, 7, 6},    {-4, -4, 3, 3},  {6, 4, 40, 40}, {-9, -9, 40, 40},
                            {5, 5, 5, 9},    {7, 2, 3, 6},    {3, 3, 4, 4},   {2, 4, 9, 5},
                            {12, 0, 14, 10}, {0, -5, 12, -1}, {0, 0, 12, 10}};
    for (const CRect& rc : kBoxes) {
        CSurface filled(12, 10);
        filled.FillRect(rc, kRed);
        ASSERT_TRUE(HasPixels(filled, [&](int x, int y) { return rc.Contains({x, y}) ? kRed : kBlack; }));
        if (rc.IsEmpty()) continue;
        CSurface framed(12, 10);
        framed.FrameRect(rc, kRed);
        const CRect rcInner{rc.left + 1, rc.top + 1, rc.right - 1, rc.bottom - 1};
        ASSERT_TRUE(HasPixels(framed, [&](int x, int y) {
            return rc.Contains({x, y}) && !rcInner.Contains({x, y}) ? kRed : kBlack;
        }));
    }
}

TEST(Surface, PixelsOutsideReadBlackAndTakeNothing) {
    CSurface surface(3, 2);
    surface.FillRect(surface.Bounds(), kRed);
    for (const CPoint pt : {CPoint{-1, 0}, {0, -1}, {3, 0}, {0, 2}}) {
        surface.SetPixel(pt.x, pt.y, {1, 2, 3});
        EXPECT_EQ(surface.GetPixel(pt.x, pt.y), kBlack);
    }
    ASSERT_TRUE(HasPixels(surface, [](int, int) { return kRed; }));
}

TEST(Surface, DrawingIsSeenByNoPictureThatSharesThePixels) {
    const CPixels pixels = NumberedPixels(5, 4);
    CSurface surface(pixels);
    CSurface other = surface;
    surface.FillRect({0, 0, 2, 2}, kRed);
    EXPECT_EQ(pixels, NumberedPixels(5, 4));
    EXPECT_EQ(other.Pixels(), pixels);
    // A copy of its own pixels stays whole while it is drawn over them.
    const CPixels own = other.Pixels();
    other.DrawPixels(own, 1, 1);
    ASSERT_TRUE(HasPixels(other, [&](int x, int y) {
        return x > 0 && y > 0 ? PixelAt(pixels, x - 1, y - 1) : PixelAt(pixels, x, y);
    }));
}

TEST(Surface, ASizeThatCannotBeIsAnEmptySurface) {
    for (CSurface surface : {CSurface(0, 5), CSurface(5, -1), CSurface(100000, 100000)}) {
        EXPECT_EQ(surface.Bounds(), CRect{});
        surface.FillRect({0, 0, 9, 9}, kRed);
        surface.DrawPixels(NumberedPixels(3, 3), 0, 0);
        EXPECT_EQ(surface.GetPixel(0, 0), kBlack);
    }
}
