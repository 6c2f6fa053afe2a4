#include <gtest/gtest.h>

#include "paint/MySCrollView.h"
#include "support/Pictures.h"

namespace {

constexpr CColor kGround = CMySCrollView::kGround;
constexpr CColor kFrame{0, 0, 0};

class Canvas : public testing::Test, public CCanvasHost, public CPaintHost, CTimers {
  protected:
    Canvas() : m_canvas({m_state, m_images, m_tools, *this, *this, *this, m_random}) {}

    bool BeginChange() override { return true; }
    void EnableSelectionCommands(bool) override {}
    void PickColor(bool, CColor) override {}
    void SetTimer(CTimerTarget&, int, int) override {}
    void KillTimer(CTimerTarget&, int) override {}

    void OnCanvasPainted() override { ++m_nPainted; }
    void OnPictureMenu() override { ++m_nMenus; }

    void Open(CSize size, bool bDraw) {
        // No colour of the picture is that of the ground or of the frame.
        m_images.TakePicture(NumberedImage(size.cx, size.cy, 200));
        m_images.SetDisplaySize(size);
        m_state.m_bImageOpen = true;
        m_state.m_bDrawMode = bDraw;
        if (bDraw) {
            // What shows in DRAW are the canvas's own pixels.
            m_canvas.LoadPicture(*m_images.m_pImgWork);
            PaintOver(*m_images.m_pImgDisplay, {5, 5, 5});
        } else {
            m_canvas.OnInitialUpdate();
            PaintOver(*m_images.m_pImgWork, {5, 5, 5});
        }
    }

    // Ground, frame just outside the picture, and the picture with its corner at pt.
    void ExpectSeen(CPoint pt, CSize size) {
        m_canvas.Paint();
        const CSurface& surface = m_canvas.Surface();
        ASSERT_EQ(surface.Bounds().Size(), m_canvas.ClientSize());
        const CPixels pixels = NumberedPixels(size.cx, size.cy, 200);
        const CRect rcPicture = CRect::FromPlace(pt.x, pt.y, size.cx, size.cy);
        const CRect rcFrame = CRect::FromPlace(pt.x - 1, pt.y - 1, size.cx + 2, size.cy + 2);
        for (int y = 0; y < surface.Height(); ++y)
            for (int x = 0; x < surface.Width(); ++x) {
                CColor color = rcFrame.Contains({x, y}) ? kFrame : kGround;
                if (rcPicture.Contains({x, y})) color = PixelAt(pixels, x - pt.x, y - pt.y);
                ASSERT_EQ(surface.GetPixel(x, y).ToRef(), color.ToRef()) << x << "," << y;
            }
    }

    CEditState m_state;
    CWorkingImages m_images;
    CToolState m_tools;
    CRandomSequence m_random;
    CMySCrollView m_canvas;
    int m_nPainted = 0;
    int m_nMenus = 0;
};

}  // namespace

TEST_F(Canvas, ShowsThePictureCentredOrScrolled) {
    struct {
        CSize size;
        CPoint ptScroll;
        CPoint pt;  // where its corner stands in 659 by 543
    } const kCases[] = {
        {{176, 144}, {0, 0}, {241, 199}},  // 241.5, 199.5: the fraction is cut
        {{1, 1}, {0, 0}, {329, 271}},      {{659, 543}, {0, 0}, {0, 0}},
        {{658, 542}, {0, 0}, {0, 0}},      {{657, 541}, {0, 0}, {1, 1}},
        {{800, 100}, {0, 0}, {0, 213}},  // a bar at the bottom leaves 527 rows
        {{800, 100}, {57, 0}, {-57, 213}}, {{800, 100}, {141, 0}, {-141, 213}},
        {{100, 700}, {0, 33}, {271, -33}},  // a bar at the right leaves 643 columns
        {{1000, 900}, {0, 0}, {0, 0}},     {{1000, 900}, {357, 373}, {-357, -373}},
    };
    for (const bool bDraw : {false, true})
        for (const auto& row : kCases) {
            SCOPED_TRACE(std::to_string(row.size.cx) + (bDraw ? " in DRAW" : ""));
            Open(row.size, bDraw);
            EXPECT_EQ(m_canvas.ScrollSizes(), row.size);
            m_canvas.ScrollTo(row.ptScroll);
            EXPECT_EQ(m_canvas.ScrollPosition(), row.ptScroll);
            ExpectSeen(row.pt, row.size);
            if (HasFatalFailure()) return;
        }
}

// The info lines follow every paint; without a picture there is only the ground.
TEST_F(Canvas, TellsItsHostOfEachPaint) {
    m_canvas.Paint();
    EXPECT_EQ(m_nPainted, 0);
    EXPECT_EQ(m_canvas.Surface().GetPixel(300, 300), kGround);
    Open({40, 30}, false);
    m_canvas.Paint();
    EXPECT_EQ(m_nPainted, 1);
    m_canvas.Paint();
    EXPECT_EQ(m_nPainted, 1);
    m_canvas.Repaint();
    m_canvas.Paint();
    EXPECT_EQ(m_nPainted, 2);
}

TEST_F(Canvas, AsksForTheMenuOnARightPressOnly) {
    const CMouseEvent press{EMouseAction::Press, EMouseButton::Right, {5, 5}, kMouseRightDown};
    m_canvas.OnMouse(press);
    EXPECT_EQ(m_nMenus, 0);
    Open({40, 30}, false);
    m_canvas.OnMouse(press);
    EXPECT_EQ(m_nMenus, 1);
    m_canvas.OnMouse({EMouseAction::Release, EMouseButton::Right, {5, 5}, 0});
    m_canvas.OnMouse({EMouseAction::Press, EMouseButton::Left, {5, 5}, kMouseLeftDown});
    m_canvas.OnMouse({EMouseAction::DoubleClick, EMouseButton::Right, {5, 5}, kMouseRightDown});
    m_state.m_bFontMode = true;
    m_canvas.OnMouse(press);
    m_state.m_bFontMode = false;
    m_state.m_bDrawMode = true;
    m_canvas.OnMouse(press);
    EXPECT_EQ(m_nMenus, 1);
}

// The paper is a picture of its own: writing on the image that it came from is not seen on it.
TEST_F(Canvas, KeepsItsOwnPicture) {
    Open({50, 40}, true);
    PaintOver(*m_images.m_pImgWork, {9, 9, 9});
    EXPECT_EQ(m_canvas.CommittedPixels(), NumberedPixels(50, 40, 200));
    EXPECT_EQ(m_canvas.Paper().Scratch().Pixels(), NumberedPixels(50, 40, 200));
    EXPECT_EQ(m_canvas.Origin(), (CPoint{304, 251}));
}
