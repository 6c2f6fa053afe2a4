#include "app/Workshop.h"

namespace {

class HistoryTest : public Workshop {
  protected:
    HistoryTest() { OpenNumbered(60, 40); }

    void ExpectRule(bool bPhone) {
        EXPECT_EQ(Images().m_bPhoneSize, bPhone);
        EXPECT_EQ(Images().m_bImageSize, !bPhone);
        EXPECT_EQ(Controls().IsChecked(kRadioPhoneSize), bPhone);
        EXPECT_EQ(Controls().IsChecked(kRadioImageSize), !bPhone);
    }
};

}  // namespace

TEST_F(HistoryTest, TheEleventhStepDropsTheOldest) {
    for (std::uint8_t n = 1; n <= 11; ++n) Edit(n);
    EXPECT_EQ(Undos(), 10);
    for (int n = 10; n >= 1; --n) {
        Click(kCmdUndo);
        EXPECT_EQ(WorkColor().r, n);
    }
    EXPECT_EQ(Undos(), 0);
    EXPECT_EQ(Redos(), 10);
    EXPECT_NE(m_host.Click(kCmdUndo), "");
    EXPECT_FALSE(CtrlKey('Z'));
    // The whole way forward, and both stacks stay within their depth.
    for (int n = 2; n <= 11; ++n) {
        Click(kCmdRedo);
        EXPECT_EQ(WorkColor().r, n);
        EXPECT_EQ(Undos() + Redos(), 10);
    }
    EXPECT_FALSE(CtrlKey('Y'));
}

TEST_F(HistoryTest, AChangeBehindAnUndoEmptiesTheRedoStack) {
    Edit(1);
    Edit(2);
    Click(kCmdUndo);
    EXPECT_EQ(Redos(), 1);
    Edit(3);
    EXPECT_EQ(Redos(), 0);
    EXPECT_FALSE(Controls().IsEnabled(kCmdRedo));
    EXPECT_EQ(Undos(), 2);
    Click(kCmdUndo);
    EXPECT_EQ(WorkColor().r, 1);
    GoTo(kModeEffect);
    Click(kCmdReset);
    EXPECT_EQ(Redos(), 0);
}

// Redo pushes on the undo stack without emptying its own.
TEST_F(HistoryTest, RedoKeepsTheRestOfItsStack) {
    for (std::uint8_t n = 1; n <= 3; ++n) Edit(n);
    for (int n = 0; n < 3; ++n) Click(kCmdUndo);
    Click(kCmdRedo);
    EXPECT_EQ(std::pair(Undos(), Redos()), std::pair(1, 2));
    Click(kCmdUndo);
    EXPECT_EQ(Images().m_pImgWork->Pixels(), NumberedPixels(60, 40));
}

TEST_F(HistoryTest, UndoAndRedoGoThroughEveryMode) {
    for (const int nMode : {kModeEffect, kModeFont, kModeDraw, kModeStick}) {
        SCOPED_TRACE(nMode);
        Edit(77);
        GoTo(nMode);
        for (int nRound = 0; nRound < 2; ++nRound) {
            Click(kCmdUndo);
            EXPECT_EQ(Images().m_pImgWork->Pixels(), NumberedPixels(60, 40));
            Click(kCmdRedo);
            EXPECT_EQ(WorkColor().r, 77);
            EXPECT_EQ(Images().m_pImgDisplay->Pixels(), Images().m_pImgWork->Pixels());
            if (nMode == kModeDraw) {
                EXPECT_EQ(m_dialog.Canvas().CommittedPixels(), Images().m_pImgWork->Pixels());
                EXPECT_EQ(m_dialog.Tools().CurrentTool(), kToolMagnifier);
            }
            EXPECT_EQ(State().m_nMode, nMode);
        }
        Click(kCmdUndo);
    }
    GoTo(kModeEffect);
    Edit(5);
    GoTo(kModeEffect);
    Controls().SetFocus(kCmdUndo);
    Click(kCmdUndo);
    EXPECT_EQ(Controls().Focus(), kEffectList);
}

// Changes of one of the pictures never reach into the history.
TEST_F(HistoryTest, EntriesHoldWhatTheyWerePushedWith) {
    Edit(1);
    PaintOver(*Images().m_pImgWork, {2, 2, 2});
    PaintOver(*Images().m_pImgDisplay, {3, 3, 3});
    Click(kCmdUndo);
    EXPECT_EQ(Images().m_pImgWork->Pixels(), NumberedPixels(60, 40));
    PaintOver(*Images().m_pImgWork, {4, 4, 4});
    Click(kCmdRedo);
    EXPECT_EQ(WorkColor().r, 2);
    Click(kCmdUndo);
    EXPECT_EQ(WorkColor().r, 4);
    EXPECT_EQ(Images().m_pImgOpened->Pixels(), NumberedPixels(60, 40));
}

TEST_F(HistoryTest, ResetGoesBackToThePictureAsOpenedAndCanBeUndone) {
    for (const int nMode : {kModeEffect, kModeFont, kModeStick, kModeDraw}) {
        SCOPED_TRACE(nMode);
        Edit(9);
        const int nUndos = Undos();
        GoTo(nMode);
        Click(kCmdReset);
        EXPECT_EQ(Undos(), std::min(10, nUndos + 1));
        EXPECT_EQ(Images().m_pImgWork->Pixels(), NumberedPixels(60, 40));
        EXPECT_EQ(Images().m_pImgDisplay->Pixels(), NumberedPixels(60, 40));
        EXPECT_EQ(Images().DisplaySize(), (CSize{60, 40}));
        EXPECT_TRUE(nMode != kModeDraw || m_dialog.Canvas().CommittedPixels() == NumberedPixels(60, 40));
        EXPECT_TRUE(nMode != kModeEffect || Controls().Focus() == kEffectList);
        // Painting on what Reset made does not touch the picture as opened.
        PaintOver(*Images().m_pImgWork, {1, 1, 1});
        EXPECT_EQ(Images().m_pImgOpened->Pixels(), NumberedPixels(60, 40));
        Click(kCmdUndo);
        EXPECT_EQ(WorkColor().r, 9);
    }
}

TEST_F(HistoryTest, TheSizeRadiosSwitchTheRuleInAnUndoStep) {
    GoTo(kModeStick);
    struct {
        int nId;
        bool bPhone;
    } const kClicks[] = {{kRadioPhoneSize, true},
                         {kRadioImageSize, false},
                         {kLabelPhoneSize, true},
                         {kLabelImageSize, false},
                         {kLabelImageSize, false}};
    int nSteps = 0;
    for (const auto& [nId, bPhone] : kClicks) {
        Click(nId);
        ExpectRule(bPhone);
        EXPECT_EQ(Undos(), ++nSteps);
        EXPECT_EQ(Images().m_pImgDisplay->GetSize(), bPhone ? (CSize{176, 144}) : (CSize{60, 40}));
        EXPECT_EQ(Images().DisplaySize(), (CSize{60, 40}));
        EXPECT_EQ(m_dialog.Canvas().ScrollSizes(), Images().m_pImgDisplay->GetSize());
    }
}

// An entry carries the size that was seen. Undone, it becomes the display size for good.
TEST_F(HistoryTest, UndoOfAnEntryOfThePhonesSizeSetsTheDisplaySize) {
    GoTo(kModeStick);
    Click(kRadioPhoneSize);
    Click(kRadioImageSize);
    Click(kCmdUndo);
    ExpectRule(true);
    EXPECT_EQ(Images().DisplaySize(), (CSize{176, 144}));
    Click(kCmdUndo);
    ExpectRule(false);
    EXPECT_EQ(Images().DisplaySize(), (CSize{60, 40}));
    Click(kCmdRedo);
    ExpectRule(true);
    EXPECT_EQ(Images().DisplaySize(), (CSize{176, 144}));
    Click(kRadioImageSize);
    EXPECT_EQ(Images().m_pImgDisplay->Pixels(), NaiveResample(NumberedPixels(60, 40), 176, 144));
    // Reset brings the opened picture's own size back, and its undo the odd one.
    Click(kCmdReset);
    EXPECT_EQ(Images().DisplaySize(), (CSize{60, 40}));
    Click(kCmdUndo);
    EXPECT_EQ(Images().DisplaySize(), (CSize{176, 144}));
}

TEST_F(HistoryTest, ResetUnderThePhonesSizeShowsThePhonesSize) {
    GoTo(kModeStick);
    Click(kRadioPhoneSize);
    Click(kCmdReset);
    ExpectRule(true);
    EXPECT_EQ(Images().m_pImgDisplay->GetSize(), (CSize{176, 144}));
    EXPECT_EQ(Images().DisplaySize(), (CSize{60, 40}));
}

// A side beyond 16 bits does not fit into an entry; the step back still ends in a picture that can be seen.
TEST_F(HistoryTest, StepsBackWithAVeryLongPicture) {
    Open(SavePicture("long.jpg", NumberedImage(40000, 2)));
    const CPixels pixels = Images().m_pImgOpened->Pixels();
    EXPECT_EQ(pixels.Width(), 40000);
    Edit(1);
    Click(kCmdUndo);
    EXPECT_EQ(Images().m_pImgWork->Pixels(), pixels);
    EXPECT_TRUE(Images().m_pImgDisplay->IsValid());
    for (const int nMode : kAllModes) GoTo(nMode);
    Click(kCmdNew);
    EXPECT_TRUE(Images().m_pImgDisplay->IsValid());
}

using SizeRuleTest = Workshop;

TEST_F(SizeRuleTest, TheRadiosSwitchWithoutAPictureToo) {
    GoTo(kModeStick);
    Click(kRadioPhoneSize);
    EXPECT_TRUE(Images().m_bPhoneSize && !Images().m_bImageSize);
    EXPECT_EQ(Undos(), 0);
    EXPECT_FALSE(Controls().IsEnabled(kCmdUndo) || Controls().IsEnabled(kCmdReset));
    Click(kLabelImageSize);
    EXPECT_TRUE(Images().m_bImageSize && !Images().m_bPhoneSize);
}
