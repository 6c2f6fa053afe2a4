#include "editor/WorkingImages.h"

#include <gtest/gtest.h>

#include "support/Pictures.h"

namespace {

// An edit of a numbered picture, as it stands behind an open.
CWorkingImages OpenPicture(int nWidth, int nHeight) {
    CWorkingImages images;
    images.TakePicture(NumberedImage(nWidth, nHeight));
    images.SetDisplaySize({nWidth, nHeight});
    return images;
}

}  // namespace

TEST(WorkingImages, TheDisplayImageIsTheWorkingImageAtTheRuledSize) {
    CWorkingImages images = OpenPicture(50, 40);
    PaintOver(images.m_imgDisplay, {9, 9, 9});
    for (const CSize size : {CSize{50, 40}, {20, 21}, {131, 7}, {25, 80}}) {
        images.SetDisplaySize(size);
        for (const bool bPhone : {false, true}) {
            images.m_sizeRule = bPhone ? ESizeRule::PhoneScreen : ESizeRule::Picture;
            const CSize sizeWanted = bPhone ? CSize{176, 144} : size;
            EXPECT_EQ(images.RuledSize(), sizeWanted);
            EXPECT_TRUE(images.RebuildDisplay(images.RuledSize()));
            EXPECT_EQ(images.m_imgDisplay.Pixels(),
                      NaiveResample(images.m_imgWork.Pixels(), sizeWanted.cx, sizeWanted.cy));
            EXPECT_EQ(images.DisplaySize(), size);
        }
    }
    EXPECT_EQ(images.m_imgWork.Pixels(), NumberedPixels(50, 40));
}

// Three pictures, an entry and what was taken back from it: a write into one is seen in none of the others.
TEST(WorkingImages, AWriteReachesOneImageOnly) {
    const CPixels pixels = NumberedPixels(30, 20);
    CWorkingImages images = OpenPicture(30, 20);
    const CUndoEntry entry = images.MakeEntry(images.m_imgWork);
    EXPECT_TRUE(entry.image.Pixels().SharesWith(images.m_imgOpened.Pixels()));

    PaintOver(images.m_imgWork, {1, 1, 1});
    EXPECT_EQ(images.m_imgOpened.Pixels(), pixels);
    EXPECT_EQ(images.m_imgDisplay.Pixels(), pixels);
    EXPECT_EQ(entry.image.Pixels(), pixels);
    const CUndoEntry entryPainted = images.MakeEntry(images.m_imgWork);

    images.TakeEntry(entry);
    EXPECT_EQ(images.m_imgWork.Pixels(), pixels);
    PaintOver(images.m_imgWork, {2, 2, 2});
    PaintOver(images.m_imgDisplay, {3, 3, 3});
    EXPECT_EQ(entry.image.Pixels(), pixels);
    EXPECT_EQ(images.m_imgOpened.Pixels(), pixels);
    EXPECT_EQ(PixelAt(images.m_imgWork.Pixels(), 0, 0), (CColor{2, 2, 2}));
    EXPECT_EQ(PixelAt(entryPainted.image.Pixels(), 29, 19), (CColor{1, 1, 1}));
}

TEST(WorkingImages, AnEntryBringsBackSizeRuleAndFrame) {
    for (const bool bPhone : {false, true})
        for (const bool bFrame : {false, true}) {
            CWorkingImages images = OpenPicture(60, 40);
            images.SetDisplaySize({90, 61});
            images.m_sizeRule = bPhone ? ESizeRule::PhoneScreen : ESizeRule::Picture;
            images.m_bFrameOn = bFrame;
            images.m_imgNoFrame = NumberedImage(30, 20);
            const CUndoEntry entry = images.MakeEntry(images.m_imgWork);
            // The entry holds what was seen, so under the phone's size that size.
            const CSize sizeEntry = bPhone ? CSize{176, 144} : CSize{90, 61};
            EXPECT_EQ((CSize{entry.nWidth, entry.nHeight}), sizeEntry);

            images.SetDisplaySize({20, 21});
            images.m_sizeRule = bPhone ? ESizeRule::Picture : ESizeRule::PhoneScreen;
            images.m_bFrameOn = !bFrame;
            PaintOver(images.m_imgWork, {5, 5, 5});
            images.m_imgNoFrame = FlatImage(2, 2, {7, 7, 7});
            images.TakeEntry(entry);

            EXPECT_EQ(images.DisplaySize(), sizeEntry);
            EXPECT_EQ(images.IsPhoneSize(), bPhone);
            EXPECT_EQ(images.m_bFrameOn, bFrame);
            // What was kept without a frame follows only where a frame is on.
            EXPECT_EQ(images.m_imgNoFrame.Pixels() == NumberedPixels(30, 20), bFrame);
        }
}

TEST(WorkingImages, FitsIntoTheAreaOfFont) {
    struct {
        CSize size;
        double fScale;
        CSize sizeFitted;
    } const kCases[] = {
        {{3200, 2400}, 0.20529595, {656, 492}},  // 659/3210
        {{649, 533}, 1, {649, 533}},             // the largest that is left alone
        {{650, 533}, 0.99848485, {649, 532}},    // 659/660
        {{649, 534}, 0.99816176, {647, 533}},    // 543/544
        {{20, 20}, 1, {20, 20}},
        {{480, 640}, 0.83538462, {400, 534}},  // 543/650
        {{9000, 3}, 0.07314095, {658, 1}},     // never less than a line
    };
    for (const auto& row : kCases) {
        SCOPED_TRACE(row.size.cx);
        CWorkingImages images = OpenPicture(row.size.cx, row.size.cy);
        images.SetDisplaySize({33, 33});
        EXPECT_NEAR(CEditPictures::FitScale(row.size), row.fScale, 1e-6);
        ASSERT_TRUE(images.RebuildDisplay(EMode::Font, {33, 33}));
        EXPECT_EQ(images.m_imgDisplay.GetSize(), row.sizeFitted);
        EXPECT_EQ(images.m_imgWork.GetSize(), row.size);
        EXPECT_EQ(images.DisplaySize(), (CSize{33, 33}));
        if (row.fScale != 1) continue;
        EXPECT_EQ(images.m_imgDisplay.Pixels(), images.m_imgWork.Pixels());
    }
}
