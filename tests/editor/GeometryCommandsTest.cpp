#include "editor/EditorBench.h"
#include "support/ShortMemory.h"

namespace {

using CCommand = void (CGeometryCommands::*)();
using CWords = std::vector<std::string>;

class GeometryCommandsTest : public EditorBench {
  protected:
    GeometryCommandsTest() {
        m_controls.Show(kEffectList, true);
        m_fnRun = [this](CDialog& dialog) {
            dialog.Controls().Check(kSizeKeepRatio, false);
            dialog.Controls().SetText(kSizeWidth, std::to_string(m_sizeAnswer.cx));
            dialog.Controls().SetText(kSizeHeight, std::to_string(m_sizeAnswer.cy));
            dialog.OnCommand(m_bCancel ? kSizeCancel : kSizeOk);
        };
    }
    void Do(CCommand command) { (m_geometry.*command)(); }

    CSize m_sizeAnswer{300, 200};
    bool m_bCancel = false;
};

}  // namespace

TEST_F(GeometryCommandsTest, EachCommandGoesThroughItsStepsInOrder) {
    const CWords kChange = {"abandon", "fit", "repaint"};
    const CWords kZoom = {"fit", "repaint"};
    const CWords kFlipDraw = {"drop", "abandon", "load", "focus 7"};
    const CWords kTurnDraw = {"drop", "abandon", "load"};
    struct CCase {
        const char* szName;
        CCommand command;
        CWords arrWords;
        CWords arrWordsDraw;  // none for a command that is off there
        CSize sizeDisplay;
        CSize sizeWork;
    };
    const CCase kCases[] = {
        {"flip", &CGeometryCommands::OnFlipVertical, kChange, kFlipDraw, {50, 40}, {30, 20}},
        {"mirror", &CGeometryCommands::OnFlipHorizontal, kChange, kFlipDraw, {50, 40}, {30, 20}},
        {"left", &CGeometryCommands::OnTurnLeft, kChange, kTurnDraw, {40, 50}, {20, 30}},
        {"right", &CGeometryCommands::OnTurnRight, kChange, kTurnDraw, {40, 50}, {20, 30}},
        {"size", &CGeometryCommands::OnSize, kZoom, {}, {300, 200}, {30, 20}},
        {"large", &CGeometryCommands::OnLarge, kZoom, {}, {62, 50}, {30, 20}},
        {"small", &CGeometryCommands::OnSmall, kZoom, {}, {37, 30}, {30, 20}},
        {"actual", &CGeometryCommands::OnActual, kChange, {}, {30, 20}, {30, 20}},
    };
    for (const CCase& test : kCases) {
        for (const int nMode : {kModeEffect, kModeStick, kModeDraw}) {
            SCOPED_TRACE(testing::Message() << test.szName << " in mode " << nMode);
            const bool bDraw = nMode == kModeDraw;
            if (bDraw && test.arrWordsDraw.empty()) continue;
            m_images.m_stackUndo.Clear();
            Open(nMode);
            m_images.SetDisplaySize({50, 40});
            m_editor.PushRedo();
            m_bFloating = bDraw;
            m_nResumeTool = 7;
            m_controls.SetFocus(kCmdOpen);
            Do(test.command);
            EXPECT_EQ(Words(), bDraw ? test.arrWordsDraw : test.arrWords);
            EXPECT_EQ(m_images.m_stackUndo.Count(), 1);
            EXPECT_TRUE(m_images.m_stackRedo.IsEmpty() && m_controls.IsEnabled(kCmdUndo));
            // The step holds the state before, with the float merged into the paper of DRAW.
            const CUndoEntry& entry = m_images.m_stackUndo.Top();
            EXPECT_EQ((CSize{entry.nWidth, entry.nHeight}), (CSize{50, 40}));
            EXPECT_EQ(PixelAt(entry.pImage->Pixels(), 0, 0), (bDraw ? CColor{0, 200, 0} : CColor{0, 0, 0}));
            EXPECT_EQ(m_images.DisplaySize(), test.sizeDisplay);
            EXPECT_EQ(m_images.m_pImgDisplay->GetSize(), test.sizeDisplay);
            EXPECT_EQ(m_images.m_pImgWork->GetSize(), test.sizeWork);
            EXPECT_EQ(m_pixelsCanvas == Work(), bDraw);
            EXPECT_EQ(m_controls.Focus() == kEffectList, nMode == kModeEffect);
            EXPECT_EQ(m_nWaits, 0);
            EXPECT_TRUE(m_arrBoxes.empty());
        }
    }
}

// The picture without its frame goes along as long as the frame can be swapped.
TEST_F(GeometryCommandsTest, FlipsAndTurnsMoveThePictureWithoutItsFrameToo) {
    const CPixels bare = NumberedPixels(30, 20, 99);
    const std::pair<CCommand, CPixels> kCases[] = {
        {&CGeometryCommands::OnFlipVertical, NaiveFlip(bare, true)},
        {&CGeometryCommands::OnFlipHorizontal, NaiveFlip(bare, false)},
        {&CGeometryCommands::OnTurnLeft, NaiveTurn(bare, false)},
        {&CGeometryCommands::OnTurnRight, NaiveTurn(bare, true)},
        {&CGeometryCommands::OnLarge, bare},
    };
    for (const auto& [command, turned] : kCases) {
        for (const bool bFrameOn : {true, false}) {
            Open(kModeStick);
            m_images.m_pImgNoFrame = std::make_unique<CxImage>(NumberedImage(30, 20, 99));
            m_images.m_bFrameOn = bFrameOn;
            Do(command);
            EXPECT_EQ(m_images.m_pImgNoFrame->Pixels(), bFrameOn ? turned : bare);
            EXPECT_EQ(m_images.m_bFrameOn, bFrameOn);
        }
    }
    // A frame that is on without a picture below it.
    m_images.m_bFrameOn = true;
    m_images.m_pImgNoFrame.reset();
    m_geometry.OnFlipVertical();
    m_geometry.OnTurnLeft();
}

TEST_F(GeometryCommandsTest, NothingHappensWithoutAPictureOrBehindACancel) {
    for (const CCommand command :
         {&CGeometryCommands::OnFlipVertical, &CGeometryCommands::OnFlipHorizontal,
          &CGeometryCommands::OnTurnLeft, &CGeometryCommands::OnTurnRight, &CGeometryCommands::OnSize,
          &CGeometryCommands::OnLarge, &CGeometryCommands::OnSmall, &CGeometryCommands::OnActual})
        Do(command);
    EXPECT_TRUE(Words().empty() && m_arrBoxes.empty() && m_images.m_stackUndo.IsEmpty());
    Open(kModeEffect);
    m_bCancel = true;
    m_geometry.OnSize();
    EXPECT_TRUE(Words().empty() && m_images.m_stackUndo.IsEmpty());
    EXPECT_EQ(m_controls.Focus(), kEffectList);
    EXPECT_EQ(m_images.DisplaySize(), (CSize{30, 20}));
}

TEST_F(GeometryCommandsTest, WithoutMemoryForItsStepACommandLeavesAllAsItWas) {
    Open(kModeStick);
    m_editor.PushUndo();
    m_editor.PushRedo();
    const CPixels work = Work();
    for (const CCommand command :
         {&CGeometryCommands::OnFlipVertical, &CGeometryCommands::OnTurnRight, &CGeometryCommands::OnLarge,
          &CGeometryCommands::OnSmall, &CGeometryCommands::OnActual}) {
        {
            const CShortMemory memory(0);
            Do(command);
        }
        EXPECT_EQ(std::exchange(m_arrBoxes, {}).size(), 1U);
        EXPECT_EQ(m_images.m_stackUndo.Count() + m_images.m_stackRedo.Count(), 2);
        EXPECT_TRUE(Work().SharesWith(work));
        EXPECT_EQ(m_images.DisplaySize(), (CSize{30, 20}));
        EXPECT_EQ(m_nWaits, 0);
    }
}
