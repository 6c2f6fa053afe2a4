#include "app/Workshop.h"

namespace {

class HistoryTest : public Workshop {
  protected:
    HistoryTest() { OpenNumbered(60, 40); }

    void ExpectRule(bool bPhone) {
        EXPECT_EQ(Images().IsPhoneSize(), bPhone);
        EXPECT_EQ(!Images().IsPhoneSize(), !bPhone);
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
    GoTo(EMode::Effect);
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
    EXPECT_EQ(Images().m_imgWork.Pixels(), NumberedPixels(60, 40));
}

TEST_F(HistoryTest, UndoAndRedoGoThroughEveryMode) {
    for (const EMode nMode : {EMode::Effect, EMode::Font, EMode::Draw, EMode::Stick}) {
        SCOPED_TRACE(nMode);
        Edit(77);
        GoTo(nMode);
        for (int nRound = 0; nRound < 2; ++nRound) {
            Click(kCmdUndo);
            EXPECT_EQ(Images().m_imgWork.Pixels(), NumberedPixels(60, 40));
            Click(kCmdRedo);
            EXPECT_EQ(WorkColor().r, 77);
            EXPECT_EQ(Images().m_imgDisplay.Pixels(), Images().m_imgWork.Pixels());
            if (nMode == EMode::Draw) {
                EXPECT_EQ(m_dialog.Draw().Paper().Committed().Pixels(), Images().m_imgWork.Pixels());
                EXPECT_EQ(m_dialog.Tools().CurrentTool(), kToolMagnifier);
            }
            EXPECT_EQ(State().m_nMode, nMode);
        }
        Click(kCmdUndo);
    }
    GoTo(EMode::Effect);
    Edit(5);
    GoTo(EMode::Effect);
    Controls().SetFocus(kCmdUndo);
    Click(kCmdUndo);
    EXPECT_EQ(Controls().Focus(), kEffectList);
}

// Changes of one of the pictures never reach into the history.
TEST_F(HistoryTest, EntriesHoldWhatTheyWerePushedWith) {
    Edit(1);
    PaintOver(Touch(Images().m_imgWork), {2, 2, 2});
    PaintOver(Touch(Images().m_imgDisplay), {3, 3, 3});
    Click(kCmdUndo);
    EXPECT_EQ(Images().m_imgWork.Pixels(), NumberedPixels(60, 40));
    PaintOver(Touch(Images().m_imgWork), {4, 4, 4});
    Click(kCmdRedo);
    EXPECT_EQ(WorkColor().r, 2);
    Click(kCmdUndo);
    EXPECT_EQ(WorkColor().r, 4);
    EXPECT_EQ(Images().m_imgOpened.Pixels(), NumberedPixels(60, 40));
}

TEST_F(HistoryTest, ResetGoesBackToThePictureAsOpenedAndCanBeUndone) {
    for (const EMode nMode : {EMode::Effect, EMode::Font, EMode::Stick, EMode::Draw}) {
        SCOPED_TRACE(nMode);
        Edit(9);
        const int nUndos = Undos();
        GoTo(nMode);
        Click(kCmdReset);
        EXPECT_EQ(Undos(), std::min(10, nUndos + 1));
        EXPECT_EQ(Images().m_imgWork.Pixels(), NumberedPixels(60, 40));
        EXPECT_EQ(Images().m_imgDisplay.Pixels(), NumberedPixels(60, 40));
        EXPECT_EQ(Images().DisplaySize(), (CSize{60, 40}));
        EXPECT_TRUE(nMode != EMode::Draw ||
                    m_dialog.Draw().Paper().Committed().Pixels() == NumberedPixels(60, 40));
        EXPECT_TRUE(nMode != EMode::Effect || Controls().Focus() == kEffectList);
        // Painting on what Reset made does not touch the picture as opened.
        PaintOver(Touch(Images().m_imgWork), {1, 1, 1});
        EXPECT_EQ(Images().m_imgOpened.Pixels(), NumberedPixels(60, 40));
        Click(kCmdUndo);
        EXPECT_EQ(WorkColor().r, 9);
    }
}

TEST_F(HistoryTest, TheSizeRadiosSwitchTheRuleInAnUndoStep) {
    GoTo(EMode::Stick);
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
        EXPECT_EQ(Images().m_imgDisplay.GetSize(), bPhone ? (CSize{176, 144}) : (CSize{60, 40}));
        EXPECT_EQ(Images().DisplaySize(), (CSize{60, 40}));
        EXPECT_EQ(m_dialog.Canvas().ScrollSizes(), Images().m_imgDisplay.GetSize());
    }
}

// An entry carries the size that was seen. Undone, it becomes the display size for good.
TEST_F(HistoryTest, UndoOfAnEntryOfThePhonesSizeSetsTheDisplaySize) {
    GoTo(EMode::Stick);
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
    EXPECT_EQ(Images().m_imgDisplay.Pixels(), NaiveResample(NumberedPixels(60, 40), 176, 144));
    // Reset brings the opened picture's own size back, and its undo the odd one.
    Click(kCmdReset);
    EXPECT_EQ(Images().DisplaySize(), (CSize{60, 40}));
    Click(kCmdUndo);
    EXPECT_EQ(Images().DisplaySize(), (CSize{176, 144}));
}

TEST_F(HistoryTest, ResetUnderThePhonesSizeShowsThePhonesSize) {
    GoTo(EMode::Stick);
    Click(kRadioPhoneSize);
    Click(kCmdReset);
    ExpectRule(true);
    EXPECT_EQ(Images().m_imgDisplay.GetSize(), (CSize{176, 144}));
    EXPECT_EQ(Images().DisplaySize(), (CSize{60, 40}));
}

// A side beyond 16 bits does not fit into an entry; the step back still ends in a picture that can be seen.
TEST_F(HistoryTest, StepsBackWithAVeryLongPicture) {
    Open(SavePicture("long.jpg", NumberedImage(40000, 2)));
    const CPixels pixels = Images().m_imgOpened.Pixels();
    EXPECT_EQ(pixels.Width(), 40000);
    Edit(1);
    Click(kCmdUndo);
    EXPECT_EQ(Images().m_imgWork.Pixels(), pixels);
    EXPECT_TRUE(Images().m_imgDisplay.IsValid());
    for (const EMode nMode : kAllModes) GoTo(nMode);
    Click(kCmdNew);
    EXPECT_TRUE(Images().m_imgDisplay.IsValid());
}

using SizeRuleTest = Workshop;

TEST_F(SizeRuleTest, TheRadiosSwitchWithoutAPictureToo) {
    GoTo(EMode::Stick);
    Click(kRadioPhoneSize);
    EXPECT_TRUE(Images().IsPhoneSize() && !!Images().IsPhoneSize());
    EXPECT_EQ(Undos(), 0);
    EXPECT_FALSE(Controls().IsEnabled(kCmdUndo) || Controls().IsEnabled(kCmdReset));
    Click(kLabelImageSize);
    EXPECT_TRUE(!Images().IsPhoneSize() && !Images().IsPhoneSize());
}
