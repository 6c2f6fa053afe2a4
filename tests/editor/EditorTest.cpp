#include "editor/EditorBench.h"

namespace {

using enum EEditEvent;
using CEvents = std::vector<EEditEvent>;
using EditorTest = EditorBench;

// On a picture of its own, with a step behind it: what Undo and Redo are to bring back.
const CColor kPainted{8, 8, 8};

bool Paint(CEditPictures& next) {
    PaintOver(next.m_imgWork, kPainted);
    next.ShowWork();
    return true;
}

}  // namespace

// The step keeps the base of the change, whatever the working image was, and the change begins with it.
TEST_F(EditorTest, AChangeStartsFromItsBaseAndLeavesOneStep) {
    Open(EMode::Draw);
    const CxImage base = FlatImage(30, 20, {200, 0, 0});
    const bool bChanged = m_editor.Change(base, [&](CEditPictures& next) {
        EXPECT_EQ(next.m_imgWork.Pixels(), base.Pixels());
        return Paint(next);
    });
    EXPECT_TRUE(bChanged);
    EXPECT_EQ(TakeEvents(), (CEvents{UndoPushed, RedoEmptied}));
    EXPECT_EQ(PixelAt(Work().Pixels(), 0, 0), kPainted);
    EXPECT_EQ(m_images.m_stackUndo.Top().image.Pixels(), base.Pixels());

    m_editor.PushStep(base);
    EXPECT_EQ(Work().Pixels(), base.Pixels());
    EXPECT_EQ(m_images.m_imgDisplay.Pixels(), base.Pixels());
    EXPECT_EQ(m_images.m_stackUndo.Count(), 2);
}

TEST_F(EditorTest, AChangeThatFindsNoMemoryLeavesTheEdit) {
    Open(EMode::Stick);
    ASSERT_TRUE(m_editor.Change(Work(), Paint));
    ASSERT_TRUE(m_editor.Undo(Work(), EMode::Stick));
    TakeEvents();
    const std::function<bool(CEditPictures&)> kFails[] = {
        [](CEditPictures& next) { return Paint(next) && false; },
        [](CEditPictures& next) -> bool {
            Paint(next);
            throw std::bad_alloc();
        },
    };
    for (const auto& fails : kFails) {
        EXPECT_FALSE(m_editor.Change(FlatImage(30, 20, {1, 1, 1}), fails));
        EXPECT_EQ(TakeBoxes(), (std::vector<CMessageBox>{{"Memory leak", "Orvo Fotarium V 1.0",
                                                          EBoxIcon::Exclamation, EBoxButtons::Ok}}));
        EXPECT_TRUE(TakeEvents().empty());
        EXPECT_EQ(Work().Pixels(), NumberedPixels(30, 20));
        EXPECT_EQ(m_images.m_imgDisplay.Pixels(), NumberedPixels(30, 20));
        EXPECT_TRUE(m_images.m_stackUndo.IsEmpty() && m_images.m_stackRedo.Count() == 1);
    }
}

// Only the last step that goes puts its key out; each step that comes lights its own.
TEST_F(EditorTest, StepsGoToAndFroAndTellWhatBecomesOfTheStacks) {
    Open(EMode::Stick);
    EXPECT_FALSE(m_editor.Undo(Work(), EMode::Stick) || m_editor.Redo(Work(), EMode::Stick));
    ASSERT_TRUE(m_editor.Change(Work(), Paint));
    ASSERT_TRUE(m_geometry.ZoomIn(Work()));
    TakeEvents();
    EXPECT_TRUE(m_editor.Undo(Work(), EMode::Stick));
    EXPECT_EQ(TakeEvents(), (CEvents{RedoPushed}));
    EXPECT_EQ(m_images.m_imgDisplay.GetSize(), (CSize{30, 20}));
    EXPECT_TRUE(m_editor.Undo(Work(), EMode::Stick));
    EXPECT_EQ(TakeEvents(), (CEvents{RedoPushed, UndoEmptied}));
    EXPECT_EQ(Work().Pixels(), NumberedPixels(30, 20));
    EXPECT_TRUE(m_editor.Redo(Work(), EMode::Stick));
    EXPECT_EQ(TakeEvents(), (CEvents{UndoPushed}));
    EXPECT_TRUE(m_editor.Redo(FlatImage(30, 20, {3, 3, 3}), EMode::Font));
    EXPECT_EQ(TakeEvents(), (CEvents{UndoPushed, RedoEmptied}));
    EXPECT_EQ(PixelAt(m_images.m_stackUndo.Top().image.Pixels(), 0, 0), (CColor{3, 3, 3}));
    EXPECT_EQ(m_images.DisplaySize(), (CSize{37, 25}));
    // FONT shows a picture that fits as it is.
    EXPECT_EQ(m_images.m_imgDisplay.GetSize(), (CSize{30, 20}));
    m_editor.TakePicture(Work());
    EXPECT_EQ(TakeEvents(), (CEvents{UndoEmptied, RedoEmptied}));
}

TEST_F(EditorTest, AFrameGoesWithItsStepAndStaysOnThroughReset) {
    Open(EMode::Stick);
    const bool bFramed = m_editor.Change(Work(), [](CEditPictures& next) {
        next.m_bFrameOn = true;
        next.m_imgNoFrame = next.m_imgWork;
        return Paint(next);
    });
    ASSERT_TRUE(bFramed && m_editor.Undo(Work(), EMode::Stick));
    EXPECT_FALSE(m_images.m_bFrameOn);
    ASSERT_TRUE(m_editor.Redo(Work(), EMode::Stick));
    EXPECT_TRUE(m_images.m_bFrameOn);
    EXPECT_EQ(m_images.m_imgNoFrame.Pixels(), NumberedPixels(30, 20));
    EXPECT_NE(Work().Pixels(), NumberedPixels(30, 20));
    ASSERT_TRUE(m_editor.Reset(Work(), EMode::Stick));
    EXPECT_TRUE(m_images.m_bFrameOn);
    EXPECT_EQ(m_images.m_imgNoFrame.Pixels(), NumberedPixels(30, 20));
}

TEST_F(EditorTest, TheSizeRuleIsAStepOnlyOfAnOpenPicture) {
    EXPECT_TRUE(m_editor.SetSizeRule(ESizeRule::PhoneScreen));
    EXPECT_TRUE(m_images.IsPhoneSize() && m_images.m_stackUndo.IsEmpty());
    Open(EMode::Stick);
    EXPECT_TRUE(m_editor.SetSizeRule(ESizeRule::PhoneScreen));
    EXPECT_EQ(m_images.m_imgDisplay.GetSize(), (CSize{176, 144}));
    EXPECT_EQ(m_images.m_stackUndo.Count(), 1);
}
