#include "controls/SkinSlider.h"

#include <gtest/gtest.h>

#include <map>

#include "support/Pictures.h"

namespace {

constexpr CColor kChannel{10, 20, 30};
constexpr CColor kKey{255, 0, 255};
constexpr CColor kThumb{200, 100, 0};

// Channel and thumb in one colour each; the thumb leaves its outermost columns and rows open.
class CSliderBitmaps : public CBitmaps {
  public:
    CSliderBitmaps() {
        for (const int nDensity : {1, 2}) {
            m_map[{"606", nDensity}] = FlatImage(22 * nDensity, 134 * nDensity, kChannel);
            CxImage thumb = FlatImage(26 * nDensity, 13 * nDensity, kThumb);
            const CPixelView view = thumb.MutableView();
            for (int y = 0; y < view.nHeight; ++y)
                for (int x = 0; x < view.nWidth; ++x)
                    if (x == 0 || y == 0 || y == view.nHeight - 1) view.Set(x, y, kKey);
            m_map[{"610", nDensity}] = thumb;
        }
    }
    const CxImage* Find(const std::string& strName, int nDensity) override {
        const auto it = m_map.find({strName, nDensity});
        return it == m_map.end() ? nullptr : &it->second;
    }

  private:
    std::map<std::pair<std::string, int>, CxImage> m_map;
};

constexpr CControlTemplate kControls[] = {{1, EControlKind::Slider, CRect::FromPlace(239, 488, 24, 132)},
                                          {2, EControlKind::Slider, CRect::FromPlace(0, 0, 200, 24)}};

class SkinSlider : public testing::Test {
  protected:
    SkinSlider() : m_controls(kControls), m_slider(m_controls, 1) {
        m_slider.SetUp(&m_bitmaps, 1);
        SetRange(-100, 100, 100);
    }
    void SetRange(int nMin, int nMax, int nPos) {
        m_controls.SetRange(1, nMin, nMax);
        m_controls.SetPosition(1, nPos);
    }
    int Position() const { return m_controls.Position(1); }
    bool Press(int y, EMouseButton button = EMouseButton::Left) {
        return m_slider.OnMouse({EMouseAction::Press, button, {12, y}, kMouseLeftDown});
    }
    bool Move(int y, int x = 12, unsigned nFlags = kMouseLeftDown) {
        return m_slider.OnMouse({EMouseAction::Move, EMouseButton::None, {x, y}, nFlags});
    }
    void Release(int y) { m_slider.OnMouse({EMouseAction::Release, EMouseButton::Left, {12, y}, 0}); }

    CSliderBitmaps m_bitmaps;
    CControlSet m_controls;
    CSkinSlider m_slider;
};

}  // namespace

TEST_F(SkinSlider, TheThumbStandsWhereThePositionIs) {
    SetRange(-100, 100, -100);
    EXPECT_EQ(m_slider.ThumbRect(), (CRect{0, 7, 26, 20})) << "its middle is 13 pixels from the top";
    m_controls.SetPosition(1, 100);
    EXPECT_EQ(m_slider.ThumbRect(), (CRect{0, 112, 26, 125})) << "and 14 from the bottom";
    m_controls.SetPosition(1, 51);
    EXPECT_EQ(m_slider.ThumbRect().top, 7 + 79) << "79.275, cut";
    SetRange(0, 15, 8);
    EXPECT_EQ(m_slider.ThumbRect().top, 7 + 56);
    SetRange(5, 5, 5);
    EXPECT_EQ(m_slider.ThumbRect().top, 7) << "a range of one position";
    CSkinSlider lying(m_controls, 2);
    m_controls.SetPosition(2, 100);
    EXPECT_EQ(lying.ThumbRect(), (CRect{173, 0, 199, 13}));
}

TEST_F(SkinSlider, PaintsChannelAndThumbAtBothDensities) {
    for (const int nDensity : {1, 2}) {
        m_slider.SetUp(&m_bitmaps, nDensity);
        m_slider.Paint();
        const CSurface& surface = m_slider.Client().Surface();
        ASSERT_EQ(surface.Width(), 24 * nDensity);
        const auto at = [&](int x, int y) { return surface.GetPixel(x * nDensity, y * nDensity); };
        // The channel is a pixel higher than the slider at both ends and leaves a column on each side.
        EXPECT_EQ(at(1, 0), kChannel);
        EXPECT_EQ(at(22, 131), kChannel);
        for (const int x : {0, 23}) EXPECT_EQ(at(x, 60), (CColor{142, 154, 143}));
        EXPECT_EQ(at(12, 118), kThumb);
        EXPECT_EQ(at(23, 118), kThumb) << "wider than the slider: cut at its edge";
        EXPECT_NE(at(0, 118), kThumb);
        EXPECT_NE(at(0, 118), kKey) << "what has the key's colour is left out";
        EXPECT_EQ(surface.GetPixel(12 * nDensity, 112 * nDensity), kChannel);
    }
}

TEST_F(SkinSlider, AMoveRepaintsOldAndNewThumbAndNothingElse) {
    m_slider.Paint();
    m_slider.Client().TakeDamage();
    m_controls.SetPosition(1, 90);
    m_slider.PaintMove();
    EXPECT_EQ(m_slider.Client().TakeDamage(), (CRect{0, 106, 24, 125}));
    const CPixels moved = m_slider.Client().Surface().Pixels();
    m_slider.Paint();
    EXPECT_EQ(m_slider.Client().Surface().Pixels(), moved) << "the same as painted anew";
}

TEST_F(SkinSlider, TheThumbIsDraggedByWhereItIsHeld) {
    EXPECT_FALSE(Press(115));
    EXPECT_TRUE(m_slider.IsThumbHeld());
    EXPECT_FALSE(Move(115, 3)) << "sideways is no way";
    EXPECT_EQ(Position(), 100);
    EXPECT_TRUE(Move(10));
    EXPECT_EQ(Position(), -100);
    EXPECT_FALSE(Move(-500)) << "the end is the end, also with the mouse outside";
    EXPECT_TRUE(Move(500));
    EXPECT_EQ(Position(), 100);
    Release(500);
    EXPECT_FALSE(m_slider.IsThumbHeld());
    EXPECT_FALSE(Move(60));
    EXPECT_EQ(Position(), 100);
}

// Two positions share a pixel here: taking the thumb up must not choose the other one.
TEST_F(SkinSlider, AHandThatTremblesKeepsTheLevel) {
    for (int nPos = -100; nPos <= 100; ++nPos) {
        m_controls.SetPosition(1, nPos);
        const int y = m_slider.ThumbRect().top + 4;
        Press(y);
        EXPECT_FALSE(Move(y, 20));
        Release(y);
        ASSERT_EQ(Position(), nPos);
    }
}

TEST_F(SkinSlider, ADragReachesEveryPositionOfASmallRange) {
    SetRange(0, 15, 15);
    Press(118);
    std::vector<bool> arrSeen(16);
    for (int y = 118; y >= 0; --y) {
        Move(y);
        arrSeen[static_cast<std::size_t>(Position())] = true;
        EXPECT_LE(std::abs(m_slider.ThumbRect().top + 6 - std::max(y, 13)), 4)
            << "the thumb follows the hand";
    }
    EXPECT_EQ(arrSeen, std::vector<bool>(16, true));
}

TEST_F(SkinSlider, TheChannelPagesTowardsTheHand) {
    EXPECT_TRUE(Press(30));
    EXPECT_EQ(Position(), 60) << "a fifth of the range";
    EXPECT_FALSE(m_slider.IsThumbHeld());
    EXPECT_TRUE(m_slider.IsPaging());
    for (int i = 0; i < 10; ++i) m_slider.OnHeld();
    EXPECT_LE(m_slider.ThumbRect().top, 30) << "until it is under the hand";
    const int nThere = Position();
    EXPECT_FALSE(m_slider.OnHeld());
    EXPECT_FALSE(Move(31)) << "a press on the channel does not hold the thumb";
    EXPECT_EQ(Position(), nThere);
    Release(31);
    EXPECT_FALSE(m_slider.IsPaging());
    SetRange(-10, 10, -10);
    EXPECT_TRUE(Press(100));
    EXPECT_EQ(Position(), -6);
    SetRange(0, 3, 0);
    EXPECT_EQ(m_slider.PageStep(), 1) << "never none";
}

TEST_F(SkinSlider, ALostReleaseAndTheOtherButtonMoveNothing) {
    Press(118);
    EXPECT_FALSE(Move(40, 12, 0)) << "no button is down: the release went elsewhere";
    EXPECT_FALSE(m_slider.IsThumbHeld());
    EXPECT_FALSE(Move(40));
    EXPECT_FALSE(Press(30, EMouseButton::Right));
    EXPECT_EQ(Position(), 100);
}

TEST_F(SkinSlider, KeysAndWheel) {
    struct CStep {
        int nKey;
        int nWanted;
    };
    constexpr CStep kSteps[] = {{kKeyUp, 99},     {kKeyLeft, 98},      {kKeyDown, 99},     {kKeyRight, 100},
                                {kKeyHome, -100}, {kKeyPageDown, -60}, {kKeyPageUp, -100}, {kKeyEnd, 100}};
    for (const CStep& step : kSteps) {
        EXPECT_TRUE(m_slider.OnKey(step.nKey));
        EXPECT_EQ(Position(), step.nWanted);
    }
    EXPECT_FALSE(m_slider.OnKey(kKeyDown)) << "at the end";
    EXPECT_FALSE(m_slider.OnKey('A'));
    EXPECT_TRUE(m_slider.OnWheel(2));
    EXPECT_EQ(Position(), 94) << "away from the user is up, where the level is higher";
    EXPECT_TRUE(m_slider.OnWheel(-5));
    EXPECT_EQ(Position(), 100);
}
