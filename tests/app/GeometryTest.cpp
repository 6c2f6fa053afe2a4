// Flips, turns, sizes and zoom, as a person works them.

#include "app/Workshop.h"

namespace {

const char* const kSizeRefusal = "以现画面大小显示图片\n\n大小变更，请选择当前照片大小的相框";

class GeometryTest : public Workshop {
  protected:
    CPixels Work() const { return Images().m_imgWork.Pixels(); }
    CPixels Display() const { return Images().m_imgDisplay.Pixels(); }
    CSize DisplaySize() const { return Images().DisplaySize(); }
};

}  // namespace

TEST_F(GeometryTest, UnderThePhoneSizeRuleFlipsRunAndTheRestIsRefused) {
    OpenNumbered(60, 40);
    GoTo(EMode::Stick);
    Click(kRadioPhoneSize);
    const CPixels before = Work();
    Click(kCmdFlipVertical);
    EXPECT_EQ(Work(), NaiveFlip(before, true));
    EXPECT_EQ(Display(), NaiveResample(Work(), 176, 144));
    EXPECT_EQ(DisplaySize(), (CSize{60, 40}));
    const std::pair<int, const char*> kRefused[] = {
        {kCmdSize, kSizeRefusal},
        {kCmdLarge, kSizeRefusal},
        {kCmdActual, kSizeRefusal},
        {kCmdSmall, kSizeRefusal},
        {kCmdTurnLeft, "以现画面大小显示图片\n\n照片翻转(-90°)，请选择当前照片大小的相框"},
        {kCmdTurnRight, "以现画面大小显示图片\n\n照片翻转(+90°)，请选择当前照片大小的相框"},
    };
    for (const EMode nMode : {EMode::Stick, EMode::Effect}) {
        GoTo(nMode);
        const CSnapshot snapshot = Snapshot();
        for (const auto& [nCommand, szText] : kRefused) {
            Click(nCommand);
            ExpectBoxes({{szText, "注意", EBoxIcon::Exclamation, EBoxButtons::Ok}});
            EXPECT_TRUE(Snapshot() == snapshot) << nCommand;
            EXPECT_EQ(Controls().Focus(), nCommand);
        }
    }
    // The step of the flip carries the phone's size, and so does the display behind its undo.
    Click(kCmdUndo);
    EXPECT_EQ(DisplaySize(), (CSize{176, 144}));
    EXPECT_EQ(Work(), before);
    // In DRAW a flip keeps the paper's own size.
    GoTo(EMode::Draw);
    Click(kCmdFlipHorizontal);
    EXPECT_EQ(Work(), NaiveFlip(before, false));
    EXPECT_EQ(m_dialog.Draw().Paper().Committed().Pixels(), Work());
}
