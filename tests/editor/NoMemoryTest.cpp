// What happens when there is no memory for a step.

#include "editor/EditorBench.h"
#include "support/ShortMemory.h"

namespace {

using NoMemoryTest = EditorBench;

}  // namespace

TEST_F(NoMemoryTest, ACommandWithoutItsStepStopsBehindTheMessage) {
    Open(kModeStick);
    m_editor.PushUndo();
    m_images.SetSizeRule(true);
    m_editor.PushRedo();
    m_controls.Check(kRadioPhoneSize, true);
    const auto expectRefused = [&](auto command, const char* szCommand) {
        // The entry's picture, then the place for it in the stack: each is missing once.
        for (int n = 0; n < 2; ++n) {
            const CPixels work = Work();
            {
                const CShortMemory memory(n);
                command();
            }
            SCOPED_TRACE(szCommand);
            ASSERT_EQ(m_arrBoxes.size(), 1U);
            EXPECT_EQ(m_arrBoxes[0], (CMessageBox{"Memory leak", "Orvo Fotarium V 1.0", EBoxIcon::Exclamation,
                                                  EBoxButtons::Ok}));
            m_arrBoxes.clear();
            EXPECT_EQ(m_images.m_stackUndo.Count(), 1);
            EXPECT_EQ(m_images.m_stackRedo.Count(), 1);
            EXPECT_TRUE(m_images.m_bPhoneSize);
            EXPECT_TRUE(m_controls.IsChecked(kRadioPhoneSize) && !m_controls.IsChecked(kRadioImageSize));
            EXPECT_TRUE(Work().SharesWith(work));
            EXPECT_EQ(m_nWaits, 0);
        }
    };
    expectRefused([&] { m_editor.OnUndo(); }, "undo");
    expectRefused([&] { m_editor.OnRedo(); }, "redo");
    expectRefused([&] { m_editor.OnReset(); }, "reset");
    expectRefused(
        [&] {
            // The click has moved the mark before the command runs.
            m_controls.Check(kRadioPhoneSize, false);
            m_controls.Check(kRadioImageSize, true);
            m_editor.OnImageSize();
        },
        "size rule");
}
