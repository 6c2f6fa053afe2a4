#include "window/ScrollView.h"

#include <gtest/gtest.h>

namespace {

class CTestView : public CScrollView, public CViewHost {
  public:
    CTestView() : CScrollView({659, 543}) { Attach(this); }
    void OnPaintWanted() override { ++m_nWanted; }
    void OnDrawn() override { ++m_nDrawn; }
    void OnCursorChanged() override {}
    void OnScrollChanged() override {}
    void Touch(const CRect& rc) { Drawn(rc); }

    int m_nWanted = 0;
    int m_nDrawn = 0;
    int m_nPainted = 0;

  protected:
    void OnDraw(CSurface& surface) override {
        ++m_nPainted;
        surface.FillRect(surface.Bounds(), {1, 2, 3});
    }
};

}  // namespace

// A bar takes 16 pixels, which can make the other bar necessary.
TEST(ScrollView, BarsComeWhenTheContentDoesNotFit) {
    struct {
        CSize sizeContent;
        bool bHorizontal;
        bool bVertical;
        CPoint ptLimit;
    } const kCases[] = {
        {{0, 0}, false, false, {0, 0}},         {{659, 543}, false, false, {0, 0}},
        {{660, 528}, true, true, {17, 1}},      {{660, 527}, true, false, {1, 0}},
        {{644, 544}, true, true, {1, 17}},      {{643, 544}, false, true, {0, 1}},
        {{1000, 1000}, true, true, {357, 473}},
    };
    for (const auto& row : kCases) {
        CTestView view;
        view.SetScrollSizes(row.sizeContent);
        SCOPED_TRACE(std::to_string(row.sizeContent.cx) + " by " + std::to_string(row.sizeContent.cy));
        EXPECT_EQ(view.HasHorizontalBar(), row.bHorizontal);
        EXPECT_EQ(view.HasVerticalBar(), row.bVertical);
        EXPECT_EQ(view.ScrollLimit(), row.ptLimit);
        view.ScrollTo({99999, 99999});
        EXPECT_EQ(view.ScrollPosition(), row.ptLimit);
        view.ScrollTo({-5, -5});
        EXPECT_EQ(view.ScrollPosition(), (CPoint{0, 0}));
        view.Paint();
        EXPECT_EQ(view.Surface().Bounds().Size(), view.ClientSize());
    }
}

TEST(ScrollView, PaintsOnceForEachWishAndTellsWhatChanged) {
    CTestView view;
    view.Paint();
    EXPECT_EQ(view.m_nPainted, 1);
    EXPECT_EQ(view.TakeDamage(), CRect::FromPlace(0, 0, 659, 543));
    view.Paint();
    EXPECT_EQ(view.m_nPainted, 1);
    view.Invalidate();
    view.Invalidate();
    EXPECT_EQ(view.m_nWanted, 1);
    view.Paint();
    EXPECT_EQ(view.m_nPainted, 2);
    view.TakeDamage();
    view.Touch({5, 5, 10, 10});
    view.Touch({650, 2, 700, 6});
    EXPECT_EQ(view.TakeDamage(), (CRect{5, 2, 659, 10}));
    EXPECT_TRUE(view.TakeDamage().IsEmpty());
    // A position comes back into a smaller range.
    view.SetScrollSizes({2000, 2000});
    view.ScrollTo({900, 300});
    view.SetScrollSizes({1000, 2000});
    EXPECT_EQ(view.ScrollPosition(), (CPoint{357, 300}));
    // Scrolling repaints, scrolling to where it stands already does not.
    view.SetScrollSizes({900, 100});
    view.Paint();
    view.ScrollTo({40, 0});
    EXPECT_TRUE(view.WantsPaint());
    view.Paint();
    view.ScrollTo({40, 0});
    EXPECT_FALSE(view.WantsPaint());
}
