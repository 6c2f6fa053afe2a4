#include "editor/EditorBench.h"
#include "support/TempFolder.h"

namespace {

using CWords = std::vector<std::string>;
using EditorTest = EditorBench;
using FileCommandsTest = EditorBench;

}  // namespace

// The entry of a step in DRAW holds what stood on the canvas.
TEST_F(EditorTest, AChangeInDrawBeginsWithTheCanvas) {
    Open(kModeDraw);
    EXPECT_TRUE(m_editor.BeginChange());
    EXPECT_EQ(Work(), m_pixelsCanvas);
    EXPECT_EQ(m_images.m_pImgDisplay->Pixels(), m_pixelsCanvas);
    EXPECT_EQ(m_images.m_stackUndo.Top().pImage->Pixels(), m_pixelsCanvas);
    Open(kModeStick);
    EXPECT_TRUE(m_editor.BeginChange());
    EXPECT_EQ(m_images.m_stackUndo.Top().pImage->Pixels(), NumberedPixels(30, 20));
}

TEST_F(EditorTest, UndoInDrawMergesAFloatAndKeepsTheToolBehindIt) {
    Open(kModeDraw);
    m_editor.PushUndo();
    m_bFloating = true;
    m_nTool = 17;
    m_nResumeTool = 3;
    m_editor.OnUndo();
    EXPECT_EQ(Words(), (CWords{"abandon", "drop", "forget", "fit", "load", "enter 10", "focus 3"}));
    EXPECT_EQ(m_nTool, 3);
    EXPECT_EQ(Work(), NumberedPixels(30, 20));
    EXPECT_EQ(m_pixelsCanvas, NumberedPixels(30, 20));
    // The redo entry holds the picture with the float merged.
    EXPECT_EQ(PixelAt(m_images.m_stackRedo.Top().pImage->Pixels(), 0, 0), (CColor{0, 200, 0}));

    m_bFloating = true;
    m_nTool = 6;
    m_editor.OnRedo();
    EXPECT_EQ(Words(), (CWords{"forget", "fit", "load", "enter 10", "focus 6"}));
    EXPECT_FALSE(m_bFloating);
    EXPECT_EQ(PixelAt(Work(), 0, 0), (CColor{0, 200, 0}));
}

TEST_F(EditorTest, StepsBackOutsideDrawLeaveTheToolsAlone) {
    for (const int nMode : {kModeThum, kModeEffect, kModeStick, kModeFont}) {
        Open(nMode);
        m_editor.PushUndo();
        m_editor.OnUndo();
        m_editor.OnRedo();
        m_editor.OnUndo();
        const CWords once =
            nMode == kModeFont ? CWords{"fit", "repaint", "font panel", "fit"} : CWords{"fit", "repaint"};
        CWords wanted;
        for (const bool bUndo : {true, false, true}) {
            if (bUndo) wanted.emplace_back("abandon");
            wanted.insert(wanted.end(), once.begin(), once.end());
        }
        EXPECT_EQ(Words(), wanted);
        m_editor.ClearUndo();
        m_editor.ClearRedo();
    }
    EXPECT_EQ(m_nWaits, 0);
}

TEST_F(EditorTest, ResetInDrawLoadsThePaperAndEntersTheMagnifier) {
    Open(kModeDraw);
    m_editor.OnReset();
    EXPECT_EQ(Words(), (CWords{"abandon", "load", "zoom 1", "enter 10", "focus 10"}));
    EXPECT_EQ(m_pixelsCanvas, NumberedPixels(30, 20));
    EXPECT_EQ(PixelAt(m_images.m_stackUndo.Top().pImage->Pixels(), 0, 0), (CColor{200, 0, 0}));
    Open(kModeFont);
    m_editor.OnReset();
    EXPECT_EQ(Words(), (CWords{"abandon", "font panel", "fit", "repaint"}));
}

TEST_F(EditorTest, AFrameGoesWithItsStepAndStaysOnThroughReset) {
    Open(kModeStick);
    m_editor.PushUndo();  // before the frame
    PaintOver(*m_images.m_pImgWork, {8, 8, 8});
    m_images.m_bFrameOn = true;
    m_images.m_pImgNoFrame = std::make_unique<CxImage>(NumberedImage(30, 20));
    m_editor.OnUndo();
    EXPECT_FALSE(m_images.m_bFrameOn);
    m_editor.OnRedo();
    EXPECT_TRUE(m_images.m_bFrameOn);
    // What a step brings back with its frame counts as the picture without one from then on.
    EXPECT_EQ(m_images.m_pImgNoFrame->Pixels(), Work());

    m_editor.OnReset();
    EXPECT_TRUE(m_images.m_bFrameOn);
    EXPECT_EQ(m_images.m_pImgNoFrame->Pixels(), NumberedPixels(30, 20));
}

TEST_F(EditorTest, SavesWhatStandsOnThePaper) {
    const CTempFolder folder;
    Open(kModeDraw);
    m_bFloating = true;
    m_choice = CFileChoice{folder.Path("out.png"), "out.png"};
    m_files.OnSave();
    EXPECT_EQ(Words(), (CWords{"abandon", "drop", "abandon", "load", "follow here"}));
    EXPECT_EQ(PixelAt(CxImage(folder.Path("out.png"), ImageType::kPng).Pixels(), 0, 0), (CColor{0, 200, 0}));

    m_choice = CFileChoice{folder.Path("none/out.png"), "out.png"};
    m_files.OnSave();
    EXPECT_EQ(Words(), (CWords{"abandon", "abandon"}));
    EXPECT_EQ(m_arrBoxes.size(), 1U);
    EXPECT_EQ(m_nWaits, 0);
}

// From DRAW the paper gets the new picture before the mode changes, which fetches from it.
TEST_F(FileCommandsTest, OpenFromDrawDropsThePaint) {
    const CTempFolder folder;
    ASSERT_TRUE(NumberedImage(9, 8, 50).Save(folder.Path("in.png"), ImageType::kPng));
    Open(kModeDraw);
    m_bFloating = true;
    m_bConnected = true;
    m_choice = CFileChoice{folder.Path("in.png"), "in.png"};
    m_files.OnOpen();
    EXPECT_EQ(Words(), (CWords{"abandon", "drop", "load", "text defaults", "hide effect", "mode 2 from 1"}));
    EXPECT_EQ(m_pixelsCanvas, NumberedPixels(9, 8, 50));
    EXPECT_TRUE(m_controls.IsEnabled(kCmdSend) && m_controls.IsEnabled(kCmdTake));
}

// A page from THUM has never been on the paper, whatever lies there from before.
TEST_F(FileCommandsTest, NewFetchesNoOldPaint) {
    Open(kModeThum);
    m_state.m_nLastMode = kModeDraw;
    m_files.OnNew();
    EXPECT_EQ(Words(),
              (CWords{"abandon", "text defaults", "hide effect", "mode 2 from 0", "fit", "repaint"}));

    Open(kModeDraw);
    m_bFloating = true;
    m_images.m_bFrameOn = true;
    m_files.OnNew();
    EXPECT_EQ(Words(), (CWords{"drop", "abandon", "load"}));
    EXPECT_EQ(PixelAt(m_pixelsCanvas, 29, 19), (CColor{255, 255, 255}));
    EXPECT_FALSE(m_images.m_bFrameOn);

    Open(kModeFont);
    m_files.OnNew();
    EXPECT_EQ(Words(), (CWords{"abandon", "text defaults", "font panel", "fit", "repaint"}));
}

TEST_F(FileCommandsTest, JoinsFolderAndNameByThePlatformsSeparator) {
    for (const char* const szFolder : {"c:\\photos", "c:\\photos\\"}) {
        m_files.OpenFileByName(szFolder, "none.jpg");
        EXPECT_EQ(m_state.m_strFilePath, "c:\\photos\\none.jpg");
    }
    m_files.OpenFileByName("c:\\", "none.jpg");
    EXPECT_EQ(m_state.m_strFilePath, "c:\\none.jpg");
}
