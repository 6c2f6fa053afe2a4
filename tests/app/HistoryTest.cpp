#include "app/Workshop.h"

namespace {

class HistoryTest : public Workshop {
  protected:
    HistoryTest() { OpenNumbered(60, 40); }
};

}  // namespace

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
                EXPECT_EQ(m_dialog.Tools().CurrentTool(), ETool::Magnifier);
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
