#include "paint/Paper.h"

#include <gtest/gtest.h>

#include <random>

#include "support/Pictures.h"

namespace {

// The stores and the screen in their plainest form: everything is copied whole.
struct CPlain {
    CSurface commit{NumberedPixels(40, 30)};
    CSurface scratch{NumberedPixels(40, 30)};
    CPixels screen = NumberedPixels(40, 30);
};

}  // namespace

// Whatever is drawn on either store and in whichever order, only the boxes are copied and yet stores and
// screen are what whole copies would have made of them.
TEST(Paper, CopiesWhatDiffersAndNoMore) {
    const unsigned nSeed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(nSeed));
    std::mt19937 random(nSeed);
    const auto pick = [&](int nBelow) { return std::uniform_int_distribution<int>(0, nBelow - 1)(random); };
    CPaper paper;
    paper.Load(NumberedPixels(40, 30));
    CPlain plain;
    CSurface screen(40, 30);
    const auto flush = [&] {
        const CRect rc = paper.TakeUnseen();
        screen.DrawPart(paper.Shown().Pixels(), rc, rc.left, rc.top);
    };
    flush();
    for (int n = 0; n < 5000; ++n) {
        const CRect rc = CRect::FromPlace(pick(50) - 10, pick(40) - 10, 1 + pick(9), 1 + pick(9));
        const CColor color = CColor::FromRef(static_cast<std::uint32_t>(pick(1 << 24)));
        const bool bShow = pick(2) == 0;
        switch (pick(7)) {
            case 0:
                paper.Committed().FillRect(rc, color);
                plain.commit.FillRect(rc, color);
                continue;
            case 1:
                paper.Scratch().FillRect(rc, color);
                plain.scratch.FillRect(rc, color);
                continue;
            case 2:
                paper.Commit();
                plain.screen = plain.scratch.Pixels();
                plain.commit = plain.scratch;
                break;
            case 3:
                paper.Revert();
                plain.screen = plain.commit.Pixels();
                plain.scratch = plain.commit;
                break;
            case 4:
                paper.ShowScratch();
                plain.screen = plain.scratch.Pixels();
                break;
            case 5:
                paper.ShowCommitted();
                plain.screen = plain.commit.Pixels();
                break;
            default:
                ASSERT_TRUE(paper.Separate());
                ASSERT_FALSE(paper.Scratch().Pixels().SharesWith(paper.Committed().Pixels()));
                continue;
        }
        ASSERT_TRUE(paper.Committed().Pixels() == plain.commit.Pixels()) << n;
        ASSERT_TRUE(paper.Scratch().Pixels() == plain.scratch.Pixels()) << n;
        // Of shows that follow each other without a stroke between only the last is seen.
        if (!bShow) continue;
        flush();
        ASSERT_TRUE(screen.Pixels() == plain.screen) << n;
    }
}
