// Flips, turns, sizes and zoom, as a person works them.

#include <functional>

#include "app/Workshop.h"

namespace {

const char* const kSizeRefusal = "以现画面大小显示图片\n\n大小变更，请选择当前照片大小的相框";

class GeometryTest : public Workshop {
  protected:
    CPixels Work() const { return Images().m_imgWork.Pixels(); }
    CPixels Display() const { return Images().m_imgDisplay.Pixels(); }
    CSize DisplaySize() const { return Images().DisplaySize(); }
    void SetSize(CSize size) {
        m_platform.AnswerSize(size);
        Click(kCmdSize);
    }
    // The display is the working image at the display size.
    void ExpectDisplay(CSize size) {
        EXPECT_EQ(DisplaySize(), size);
        EXPECT_EQ(Display(), NaiveResample(Work(), size.cx, size.cy));
    }
};

}  // namespace

TEST_F(GeometryTest, EveryPixelOfAFlipAndATurnIsWhereItBelongsAndComesBack) {
    const std::pair<int, std::function<CPixels(const CPixels&)>> kCommands[] = {
        {kCmdFlipVertical, [](const CPixels& pixels) { return NaiveFlip(pixels, true); }},
        {kCmdFlipHorizontal, [](const CPixels& pixels) { return NaiveFlip(pixels, false); }},
        {kCmdTurnLeft, [](const CPixels& pixels) { return NaiveTurn(pixels, false); }},
        {kCmdTurnRight, [](const CPixels& pixels) { return NaiveTurn(pixels, true); }},
    };
    for (const CSize size : {CSize{60, 40}, CSize{23, 71}, CSize{1, 1}}) {
        for (const auto& [nCommand, fnNaive] : kCommands) {
            for (const EMode nMode : {EMode::Effect, EMode::Stick, EMode::Draw}) {
                SCOPED_TRACE(testing::Message() << size.cx << " command " << nCommand << " mode " << nMode);
                OpenNumbered(size.cx, size.cy);
                // The display size goes its own way.
                if (size.cx > 1) SetSize({300, 200});
                const CSize sizeBefore = DisplaySize();
                const int nUndos = Undos();
                GoTo(nMode);
                const CPixels before = Work();
                Click(nCommand);
                const CPixels after = fnNaive(before);
                EXPECT_EQ(Work(), after);
                const bool bTurn = nCommand == kCmdTurnLeft || nCommand == kCmdTurnRight;
                const CSize sizeAfter = bTurn ? CSize{sizeBefore.cy, sizeBefore.cx} : sizeBefore;
                ExpectDisplay(sizeAfter);
                if (nMode == EMode::Draw) {
                    EXPECT_EQ(m_dialog.Draw().Paper().Committed().Pixels(), after);
                }
                EXPECT_EQ(Undos(), nUndos + 1);
                Click(kCmdUndo);
                EXPECT_EQ(Work(), before);
                EXPECT_EQ(DisplaySize(), sizeBefore);
                Click(kCmdRedo);
                EXPECT_EQ(Work(), after);
                EXPECT_EQ(DisplaySize(), sizeAfter);
                EXPECT_EQ(Images().m_imgOpened.Pixels(), NumberedPixels(size.cx, size.cy));
            }
        }
    }
}

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

TEST_F(GeometryTest, AnItemOfThePictureMenuDoesWhatItsButtonDoes) {
    const std::pair<int, int> kItems[] = {
        {kMenuSize, kCmdSize},
        {kMenuFlipVertical, kCmdFlipVertical},
        {kMenuFlipHorizontal, kCmdFlipHorizontal},
        {kMenuTurnLeft, kCmdTurnLeft},
        {kMenuTurnRight, kCmdTurnRight},
        {kMenuLarge, kCmdLarge},
        {kMenuActual, kCmdActual},
        {kMenuSmall, kCmdSmall},
    };
    for (const auto& [nItem, nCommand] : kItems) {
        for (const EMode nMode : {EMode::Effect, EMode::Stick}) {
            CSnapshot snapshots[2];
            for (const bool bMenu : {false, true}) {
                OpenNumbered(60, 40);
                SetSize({90, 80});
                GoTo(nMode);
                if (nCommand == kCmdSize) m_platform.AnswerSize({30, 31});
                if (bMenu) m_platform.AnswerMenu(nItem);
                if (bMenu)
                    EXPECT_EQ(m_host.MouseOnView(kCanvas, EMouseAction::Press, EMouseButton::Right, {5, 5}),
                              "");
                else
                    Click(nCommand);
                snapshots[bMenu ? 1 : 0] = Snapshot();
            }
            EXPECT_EQ(snapshots[0].nUndo, 2);
            EXPECT_TRUE(snapshots[0] == snapshots[1]) << nItem << " in mode " << nMode;
        }
    }
}
