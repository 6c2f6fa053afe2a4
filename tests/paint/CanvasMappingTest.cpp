// Where a client point lies on the picture and what of the stores is on the screen, at every zoom.

#include <random>

#include "paint/DrawBench.h"

namespace {

class CanvasMapping : public DrawBench {
  protected:
    // The vertex that a press at that client point leaves: it is not kept inside.
    CPoint PictureOf(CPoint ptClient) {
        m_tools.m_nTool = ETool::Polygon;
        m_draw.AbandonShape();
        m_canvas.OnMouse({EMouseAction::Press, kLeft, ptClient, 0});
        m_canvas.OnMouse({EMouseAction::Release, kLeft, ptClient, 0});
        return m_draw.Hand().m_ptVertex[0];
    }
};

}  // namespace

TEST_F(CanvasMapping, ACentredPictureIsMappedWithTheFractionCutTowardZero) {
    EXPECT_EQ(m_draw.Origin(), (CPoint{299, 246}));
    EXPECT_EQ(PictureOf({299, 246}), (CPoint{0, 0}));
    EXPECT_EQ(PictureOf({298, 300}), (CPoint{-1, 54}));
    Zoom(4);
    EXPECT_EQ(m_draw.Origin(), (CPoint{209, 171}));
    EXPECT_EQ(PictureOf({209, 171}), (CPoint{0, 0}));
    EXPECT_EQ(PictureOf({212, 175}), (CPoint{0, 1}));
    EXPECT_EQ(PictureOf({206, 166}), (CPoint{0, -1}));
    EXPECT_EQ(PictureOf({204, 400}), (CPoint{-1, 57}));
}

// The picture's part on the screen and the point under the cursor are cut one by one, so they may differ by
// one.
TEST_F(CanvasMapping, ScrollingAndZoomAreCutOneByOne) {
    Open(NumberedImage(400, 300));
    Zoom(4);
    EXPECT_EQ(m_draw.Origin(), (CPoint{0, 0}));
    EXPECT_EQ(m_canvas.ScrollSizes(), (CSize{1600, 1200}));
    m_canvas.ScrollTo({6, 9});
    EXPECT_EQ(m_draw.VisibleCorner(), (CPoint{1, 2}));
    EXPECT_EQ(PictureOf({0, 0}), (CPoint{1, 2}));
    EXPECT_EQ(PictureOf({1, 3}), (CPoint{1, 3}));
    EXPECT_EQ(PictureOf({2, 3}), (CPoint{2, 3}));
}

// A new picture at a higher zoom keeps the zoom but has the scroll sizes of the picture as it is.
TEST_F(CanvasMapping, APictureThatIsLoadedAtAZoomScrollsByItsOwnSize) {
    Zoom(6);
    m_editor.TakePicture(NumberedImage(700, 90));
    m_draw.LoadCanvas();
    EXPECT_EQ(m_canvas.ScrollSizes(), (CSize{700, 90}));
    EXPECT_EQ(m_draw.Origin(), (CPoint{0, 0}));
    m_canvas.ScrollTo({41, 0});
    m_canvas.Paint();
    ExpectScreen(m_draw.Paper().Committed());
}

// The screen is brought up to date by the box of the stroke alone and is yet always what a whole paint would
// give.
TEST_F(CanvasMapping, TheScreenFollowsEveryEventByItsBox) {
    const unsigned nSeed = std::random_device{}();
    std::mt19937 random(nSeed);
    const auto pick = [&](int nBelow) { return std::uniform_int_distribution<int>(0, nBelow - 1)(random); };
    for (const int nZoom : {1, 2, 4, 6}) {
        SCOPED_TRACE("seed " + std::to_string(nSeed) + " zoom " + std::to_string(nZoom));
        Open(NumberedImage(nZoom == 1 ? 800 : 230, nZoom == 1 ? 600 : 190));
        Zoom(nZoom);
        m_canvas.ScrollTo({pick(200), pick(200)});
        m_canvas.Paint();
        m_canvas.TakeDamage();
        for (int n = 0; n < 60; ++n) {
            m_tools.m_nTool = ETool{1 + pick(16)};
            m_draw.AbandonShape();
            const CPoint pt{pick(30) + 60, pick(30) + 50};
            Press(pt);
            Tick();
            for (int i = 0; i < 3; ++i) Move({pt.x + pick(9), pt.y + pick(9)});
            const CRect rcDamage = m_canvas.TakeDamage();
            EXPECT_LE(rcDamage.Width(), 80 * nZoom);
            EXPECT_LE(rcDamage.Height(), 80 * nZoom);
            ExpectScreen(m_draw.Paper().Scratch());
            Release(pt);
            ExpectScreen(m_draw.Paper().Scratch());
            m_canvas.TakeDamage();
            if (HasFailure()) return;
        }
    }
}
