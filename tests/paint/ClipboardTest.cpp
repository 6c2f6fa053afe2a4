// Copy, Cut, Paste, Crop and the floating selection, as the states of the selection follow each other.

#include "paint/DrawBench.h"

namespace {

class ClipboardTest : public DrawBench {
  protected:
    ClipboardTest() {
        Open(NumberedImage(60, 50));
        m_tools.m_crBackground = {9, 200, 9};
    }
    void Paste() {
        m_commands.OnPaste();
        EXPECT_TRUE(m_arrBoxes.empty());
    }
};

}  // namespace

// Copy and Cut are pressed through the window.
TEST_F(ClipboardTest, PasteAndCropNeedASelection) {
    m_commands.OnPaste();
    ExpectBox("先选择复制区域");
    m_commands.OnCrop();
    ExpectBox("请先选择修改区域");
    // The button decides as well.
    MarkAndCopy({5, 5, 20, 20});
    m_controls.Enable(kCmdPaste, false);
    m_commands.OnPaste();
    ExpectBox("先选择复制区域");
    EXPECT_EQ(Undos(), 0);
}

TEST_F(ClipboardTest, CopyGivesTheShapeOnWhiteAndChangesNothing) {
    EXPECT_EQ(Commands(), "----");
    Mark({40, 30, 10, 8});
    EXPECT_EQ(Commands(), "xx-x");
    const CPixels outline = Scratch();
    m_commands.OnCopy();
    EXPECT_EQ(Commands(), "xxxx");
    ASSERT_EQ(Clip().Width(), 30);
    EXPECT_EQ(PixelAt(Clip(), 0, 0), (CColor{10, 8, 0}));
    EXPECT_EQ(PixelAt(Clip(), 29, 21), (CColor{39, 29, 0}));
    EXPECT_EQ(Scratch(), outline);
    EXPECT_EQ(Committed(), NumberedPixels(60, 50));
    MarkTriangle({10, 10}, 20);
    m_commands.OnCopy();
    EXPECT_EQ(PixelAt(Clip(), 2, 2), (CColor{12, 12, 0}));
    EXPECT_EQ(PixelAt(Clip(), 18, 18), kWhite);
    EXPECT_EQ(Undos(), 0);
}

TEST_F(ClipboardTest, CutFillsWithTheBackgroundAndIsOneStep) {
    Mark({10, 10, 30, 25});
    m_commands.OnCut();
    EXPECT_EQ(Commands(), "--x-");
    CSurface page(NumberedPixels(60, 50));
    page.FillRect({10, 10, 30, 25}, m_tools.m_crBackground);
    EXPECT_EQ(Committed(), page.Pixels());
    EXPECT_EQ(Scratch(), page.Pixels());
    EXPECT_EQ(PixelAt(Clip(), 0, 0), (CColor{10, 10, 0}));
    // The selection is still there for the keys.
    m_tools.m_crBackground = {1, 1, 1};
    m_commands.OnCut();
    EXPECT_EQ(PixelAt(Committed(), 12, 12), (CColor{1, 1, 1}));
    EXPECT_EQ(PixelAt(Clip(), 0, 0), (CColor{9, 200, 9}));
    EXPECT_EQ(Undos(), 2);
    Undo();
    Undo();
    EXPECT_EQ(Committed(), NumberedPixels(60, 50));
}

TEST_F(ClipboardTest, AFloatIsDraggedAndMergedByAPressBesideIt) {
    MarkAndCopy({10, 10, 30, 25});
    Paste();
    EXPECT_EQ(m_tools.m_nTool, ETool::Float);
    EXPECT_EQ(Commands(), "--x-");
    EXPECT_FALSE(m_draw.Selection().IsMarked());
    EXPECT_EQ(Committed(), NumberedPixels(60, 50));
    EXPECT_EQ(PixelAt(Scratch(), 5, 5), (CColor{15, 15, 0}));
    Drag({{5, 5}, {20, 12}, {35, 24}});
    EXPECT_EQ(Committed(), NumberedPixels(60, 50));
    EXPECT_EQ(PixelAt(Scratch(), 5, 5), (CColor{5, 5, 0}));  // what was under it is back
    EXPECT_EQ(PixelAt(Scratch(), 40, 30), (CColor{20, 21, 0}));
    Click({2, 2});
    EXPECT_FALSE(m_draw.IsFloating());
    EXPECT_EQ(m_tools.m_nTool, ETool::SelectRect);
    CSurface page(NumberedPixels(60, 50));
    page.DrawPart(NumberedPixels(60, 50), {10, 10, 30, 25}, 30, 19);
    const CPixels merged = page.Pixels();
    EXPECT_EQ(Committed(), merged);
    EXPECT_EQ(Scratch(), merged);
    EXPECT_EQ(Undos(), 1);
    Undo();
    EXPECT_EQ(Committed(), NumberedPixels(60, 50));
    Redo();
    EXPECT_EQ(Committed(), merged);
}

TEST_F(ClipboardTest, ASecondPasteMergesTheFirstWhereItLies) {
    MarkTriangle({10, 10}, 20);
    m_commands.OnCopy();
    Paste();
    // The box decides: this point of it lies beside the shape.
    Drag({{18, 18}, {48, 38}});
    EXPECT_TRUE(m_draw.IsFloating());
    Paste();
    EXPECT_TRUE(m_draw.IsFloating());
    EXPECT_EQ(m_tools.m_nResumeTool, ETool::SelectPolygon);
    EXPECT_EQ(PixelAt(Committed(), 32, 22), (CColor{12, 12, 0}));
    EXPECT_EQ(PixelAt(Committed(), 48, 38), (CColor{48, 38, 0}));
    EXPECT_EQ(PixelAt(Scratch(), 2, 2), (CColor{12, 12, 0}));
    EXPECT_EQ(Undos(), 2);
    // Beyond the picture it is cut, and keeps its shape.
    Drag({{9, 9}, {3, 4}});
    EXPECT_EQ(PixelAt(Scratch(), 0, 0), (CColor{16, 15, 0}));
    EXPECT_EQ(PixelAt(Scratch(), 11, 11), (CColor{11, 11, 0}));
    // Undo merges, so that Redo has it, and then takes the second float back.
    Undo();
    EXPECT_FALSE(m_draw.IsFloating());
    EXPECT_EQ(PixelAt(Committed(), 2, 2), (CColor{2, 2, 0}));
    EXPECT_EQ(PixelAt(Committed(), 32, 22), (CColor{12, 12, 0}));
    Undo();
    EXPECT_EQ(Committed(), NumberedPixels(60, 50));
}

TEST_F(ClipboardTest, CropTakesTheBoxWithWhiteAroundTheShape) {
    MarkTriangle({10, 10}, 20);
    m_commands.OnCopy();
    const CRect rc = m_draw.Selection().m_rcSelect;
    m_commands.OnCrop();
    EXPECT_EQ(Commands(), "----");
    EXPECT_EQ(m_tools.m_nTool, ETool::SelectPolygon);
    for (const CPixels& pixels :
         {Committed(), Scratch(), m_images.m_imgWork.Pixels(), m_images.m_imgDisplay.Pixels()}) {
        ASSERT_EQ((CSize{pixels.Width(), pixels.Height()}), rc.Size());
        EXPECT_EQ(PixelAt(pixels, 2, 3), (CColor{12, 13, 0}));
        EXPECT_EQ(PixelAt(pixels, rc.Width() - 1, rc.Height() - 1), kWhite);
    }
    EXPECT_EQ(m_canvas.ScrollSizes(), rc.Size());
    Undo();
    EXPECT_EQ(Committed(), NumberedPixels(60, 50));
    Redo();
    EXPECT_EQ(m_images.DisplaySize(), rc.Size());
}

// An empty rectangle reaches the commands by the keys; there is nothing to give, to take away or to keep.
TEST_F(ClipboardTest, ASelectionOfNothingCostsNothing) {
    MarkAndCopy({5, 5, 20, 20});
    const auto clip = m_clip;
    Mark({7, 7, 7, 7});
    m_commands.OnCopy();
    ExpectBox("Unable to set clipboard data", kTextProgram);
    m_commands.OnCut();
    ExpectBox("Unable to set Clipboard data", kTextProgram);
    m_commands.OnCrop();
    ExpectBox("请先选择修改区域");
    EXPECT_EQ(m_clip, clip);
    EXPECT_EQ(Committed(), NumberedPixels(60, 50));
    // The shape of the last copy is still the mask.
    Paste();
    EXPECT_EQ(m_draw.Selection().m_region.Box(), (CRect{0, 0, 15, 15}));
}

TEST_F(ClipboardTest, AnotherProgramMayHaveTheClipboardOrTakeIt) {
    Mark({5, 5, 20, 20});
    m_bClipboardBusy = true;
    m_commands.OnCopy();
    ExpectBox("Unable to set clipboard data", kTextProgram);
    m_bClipboardBusy = false;
    m_commands.OnCopy();
    // Its own picture goes through the shape of the last copy.
    m_clip = FlatImage(8, 40, {77, 0, 0}).CopyToHandle();
    Paste();
    SelectTool(ETool::Pen);
    EXPECT_EQ(PixelAt(Committed(), 7, 14), (CColor{77, 0, 0}));
    EXPECT_EQ(PixelAt(Committed(), 8, 14), (CColor{8, 14, 0}));
    EXPECT_EQ(PixelAt(Committed(), 7, 15), (CColor{7, 15, 0}));
    // Its shape is larger than it; neither leaves a trail.
    const CPixels before = Committed();
    Paste();
    Drag({{5, 5}, {15, 25}});
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 60; ++x)
            ASSERT_TRUE(m_draw.Selection().FloatBox().Contains({x, y}) ||
                        PixelAt(Scratch(), x, y) == PixelAt(before, x, y))
                << x << "," << y;
    SelectTool(ETool::Pen);
    // No picture any more: the tool stands, with the last float's pixels.
    m_clip.reset();
    m_commands.OnPaste();
    EXPECT_TRUE(m_draw.IsFloating());
    EXPECT_EQ(m_tools.m_nTool, ETool::Float);
    Click({50, 40});
    EXPECT_FALSE(m_draw.IsFloating());
    EXPECT_EQ(m_tools.m_nTool, ETool::Pen);
}

TEST_F(ClipboardTest, SelectingAToolEndsAMark) {
    for (const ETool tool : {ETool::SelectRect, ETool::SelectFree, ETool::Pen}) {
        Mark({5, 5, 20, 20});
        SelectTool(tool);
        EXPECT_FALSE(m_draw.Selection().IsMarked());
        EXPECT_EQ(Scratch(), Committed());
        EXPECT_EQ(Commands(), "----");
    }
}

// A new press leaves the old mark in force until the new one replaces it; the outline goes.
TEST_F(ClipboardTest, ANewPressKeepsTheOldMarkUntilItsRelease) {
    Mark({5, 5, 20, 20});
    Press({30, 30});
    Move({40, 40});
    m_commands.OnCopy();
    EXPECT_EQ(PixelAt(Clip(), 0, 0), (CColor{5, 5, 0}));
    Release({40, 40});
    m_commands.OnCopy();
    EXPECT_EQ(PixelAt(Clip(), 0, 0), (CColor{30, 30, 0}));
}

// A click beside the float merges it; what the hand does behind it is the resumed tool's.
TEST_F(ClipboardTest, ADoubleClickBesideAFloatGoesOnWithTheTool) {
    MarkAndCopy({5, 5, 20, 20});
    const auto pasteWith = [&](ETool tool) {
        SelectTool(tool);
        Paste();
        m_arrSteps.clear();
    };
    // The polygon takes its step, and no vertex is left.
    pasteWith(ETool::Polygon);
    DoubleClick({50, 40});
    EXPECT_FALSE(m_draw.IsFloating() || m_draw.IsShapeOpen());
    EXPECT_EQ(m_arrSteps.size(), 1U);
    // The release of the merging click begins a selection; the free one is begun anew.
    pasteWith(ETool::SelectPolygon);
    Click({50, 40});
    EXPECT_TRUE(m_draw.IsShapeOpen());
    pasteWith(ETool::SelectFree);
    Click({50, 40});
    EXPECT_EQ(m_draw.Selection().m_free.Points().size(), 1U);
}
