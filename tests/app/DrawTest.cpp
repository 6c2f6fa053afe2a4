// Painting in the main window: what becomes of it on every way out of DRAW and under every command.

#include <functional>

#include "app/PaintWorkshop.h"

namespace {

constexpr CColor kInk{0, 0, 0};
constexpr CSize kPicture{40, 30};

class DrawTest : public PaintWorkshop {
  protected:
    void Stroke() {
        Tool(ETool::Pen);
        Drag({5, 8}, {15, 8});
    }
    // A copy of (20, 10) to (30, 20) floats in the corner; the tool is one without options.
    void FloatUp() {
        Tool(ETool::SelectRect);
        Drag({20, 10}, {30, 20});
        Click(kCmdCopy);
        Click(kCmdPaste);
        ASSERT_TRUE(Draw().IsFloating());
    }
    void OpenPolygon() {
        Tool(ETool::Polygon);
        Drag({5, 20}, {25, 20});
        ASSERT_TRUE(Draw().IsShapeOpen());
    }
    static CPixels WithStroke() {
        CPixels pixels = NumberedPixels(kPicture.cx, kPicture.cy);
        for (int x = 5; x < 15; ++x) pixels.MutableView().Set(x, 8, kInk);
        return pixels;
    }
    static CPixels WithFloat() {
        CPixels pixels = NumberedPixels(kPicture.cx, kPicture.cy);
        for (int y = 0; y < 10; ++y)
            for (int x = 0; x < 10; ++x)
                pixels.MutableView().Set(x, y, PixelAt(NumberedPixels(40, 30), x + 20, y + 10));
        return pixels;
    }
    // As a fresh start; the clipboard stays.
    void OpenAgain() {
        OpenNumbered(kPicture.cx, kPicture.cy);
        GoTo(EMode::Draw);
    }
    const CPixels& Work() const { return Images().m_imgWork.Pixels(); }
    void ExpectNothingOpen() {
        EXPECT_FALSE(Draw().IsFloating() || Draw().IsShapeOpen());
        EXPECT_NE(Tools().m_nTool, ETool::Float);
    }
};

}  // namespace

// Paint goes along to EFFECT, FONT and STICK, a float is merged on the way, and an open shape leaves nothing.
TEST_F(DrawTest, WhatIsPaintedGoesAlongToThePictureModes) {
    for (const EMode nMode : {EMode::Effect, EMode::Font, EMode::Stick}) {
        SCOPED_TRACE(nMode);
        OpenAgain();
        Stroke();
        GoTo(nMode);
        EXPECT_EQ(Work(), WithStroke());
        EXPECT_EQ(Undos(), 1);
        Click(kCmdUndo);
        EXPECT_EQ(Work(), NumberedPixels(kPicture.cx, kPicture.cy));

        OpenAgain();
        FloatUp();
        GoTo(nMode);
        EXPECT_EQ(Work(), WithFloat());
        ExpectNothingOpen();

        OpenAgain();
        OpenPolygon();
        GoTo(nMode);
        EXPECT_EQ(Work(), NumberedPixels(kPicture.cx, kPicture.cy));
        EXPECT_EQ(Undos(), 0);
        GoTo(EMode::Draw);
        EXPECT_TRUE(Draw().Paper().Scratch().Pixels() == Work());
    }
}

// On the way to THUM nothing is fetched: the working image is what it was before the last stroke.
TEST_F(DrawTest, TheLastStrokeIsLostOnTheWayToTheList) {
    OpenAgain();
    Stroke();
    Tool(ETool::Pen);
    Drag({5, 20}, {15, 20});
    GoTo(EMode::Thum);
    EXPECT_EQ(Work(), WithStroke());
    GoTo(EMode::Draw);
    EXPECT_EQ(Draw().Paper().Committed().Pixels(), WithStroke());
    EXPECT_EQ(Undos(), 2);
    // So is a float, which its tool does not outlive.
    FloatUp();
    GoTo(EMode::Thum);
    ExpectNothingOpen();
    GoTo(EMode::Draw);
    ExpectNothingOpen();
    EXPECT_EQ(Draw().Paper().Committed().Pixels(), WithStroke());
}

// Every command takes the last stroke along and the float with it, and gives an open shape up.
TEST_F(DrawTest, EveryCommandBeginsWithThePictureAsItIsPainted) {
    const auto flipped = [](const CPixels& pixels) { return NaiveFlip(pixels, true); };
    const auto turned = [](const CPixels& pixels) { return NaiveTurn(pixels, true); };
    const auto same = [](const CPixels& pixels) { return pixels; };
    const struct {
        int nCommand;
        std::function<CPixels(const CPixels&)> fnChange;
    } commands[] = {{kCmdFlipVertical, flipped}, {kCmdTurnRight, turned}, {kCmdSave, same}};
    for (const auto& command : commands) {
        SCOPED_TRACE(command.nCommand);
        const auto run = [&] {
            if (command.nCommand == kCmdSave) m_platform.AnswerSave(m_folder.Path("painted.png"));
            Click(command.nCommand);
            if (command.nCommand == kCmdSave) {
                EXPECT_EQ(CxImage(m_folder.Path("painted.png"), ImageType::kPng).Pixels(), Work());
            }
            ExpectNothingOpen();
            EXPECT_EQ(Draw().Paper().Committed().Pixels(), Work());
        };
        OpenAgain();
        Stroke();
        run();
        EXPECT_EQ(Work(), command.fnChange(WithStroke()));
        OpenAgain();
        FloatUp();
        run();
        EXPECT_EQ(Work(), command.fnChange(WithFloat()));
        OpenAgain();
        OpenPolygon();
        run();
        EXPECT_EQ(Work(), command.fnChange(NumberedPixels(kPicture.cx, kPicture.cy)));
    }
}

TEST_F(DrawTest, UndoTakesAFloatBackAndRedoBringsItMerged) {
    OpenAgain();
    Stroke();
    FloatUp();
    Click(kCmdUndo);
    ExpectNothingOpen();
    EXPECT_EQ(Work(), WithStroke());
    EXPECT_EQ(Draw().Paper().Committed().Pixels(), WithStroke());
    Click(kCmdUndo);
    EXPECT_EQ(Work(), NumberedPixels(kPicture.cx, kPicture.cy));
    Click(kCmdRedo);
    EXPECT_EQ(Work(), WithStroke());
    OpenPolygon();
    Click(kCmdReset);
    ExpectNothingOpen();
    EXPECT_EQ(Draw().Paper().Committed().Pixels(), NumberedPixels(kPicture.cx, kPicture.cy));
    Click(kCmdUndo);
    EXPECT_EQ(Draw().Paper().Committed().Pixels(), WithStroke());
}

TEST_F(DrawTest, ANewPictureLeavesNothingOfTheOldOneOpen) {
    for (const bool bNew : {true, false}) {
        for (const bool bFloat : {true, false}) {
            OpenAgain();
            if (bFloat)
                FloatUp();
            else
                OpenPolygon();
            if (bNew)
                Click(kCmdNew);
            else
                OpenNumbered(20, 25, 9);
            ExpectNothingOpen();
            const CPixels before = Work();
            GoTo(EMode::Draw);
            Tool(ETool::Polygon);
            GoTo(EMode::Effect);
            EXPECT_EQ(Work(), before);
        }
    }
}

// At a zoom and scrolled: the float comes up where the eye is, and Crop leaves tool and zoom alone.
TEST_F(DrawTest, PasteAndCropAtAZoom) {
    OpenNumbered(600, 500);
    GoTo(EMode::Draw);
    Tool(ETool::SelectRect);
    Drag({20, 10}, {30, 20});
    Click(kCmdCopy);
    Tool(ETool::Magnifier);
    PressWindow({205, 373});
    ASSERT_EQ(Tools().m_nZoom, 2);
    Canvas().ScrollTo({301, 205});
    Tool(ETool::Pen);
    Click(kCmdPaste);
    EXPECT_EQ(Draw().Selection().m_region.Box(), (CRect{150, 102, 160, 112}));
    Tool(ETool::Pen);
    EXPECT_EQ(PixelAt(Draw().Paper().Committed().Pixels(), 150, 102),
              PixelAt(NumberedPixels(600, 500), 20, 10));
    Click(kCmdUndo);

    Tool(ETool::Magnifier);
    PressWindow({205, 373});
    Tool(ETool::SelectRect);
    Canvas().ScrollTo({0, 0});
    const CPoint ptOrigin = Draw().Origin();
    const auto at = [&](int x, int y) { return CPoint{2 * x - ptOrigin.x, 2 * y - ptOrigin.y}; };
    Drag(at(40, 50), at(100, 80));
    Click(kCmdCrop);
    EXPECT_EQ(Work().Width(), 60);
    EXPECT_EQ(Work().Height(), 30);
    EXPECT_EQ(PixelAt(Work(), 0, 0), PixelAt(NumberedPixels(600, 500), 40, 50));
    EXPECT_EQ(Tools().m_nZoom, 2);
    EXPECT_EQ(Tools().m_nTool, ETool::SelectRect);
    for (const int nId : {kCmdCut, kCmdCopy, kCmdCrop, kCmdPaste}) EXPECT_FALSE(Controls().IsEnabled(nId));
    Click(kCmdUndo);
    EXPECT_EQ(Work(), NumberedPixels(600, 500));
    EXPECT_EQ(Images().DisplaySize(), (CSize{600, 500}));
}

// Ctrl with X, C and V do in DRAW what their keys do, and only there.
TEST_F(DrawTest, TheClipboardByKeys) {
    OpenAgain();
    Tool(ETool::SelectRect);
    Drag({20, 10}, {30, 20});
    EXPECT_TRUE(CtrlKey('C'));
    EXPECT_TRUE(CtrlKey('X'));
    EXPECT_EQ(PixelAt(Draw().Paper().Committed().Pixels(), 25, 15), (CColor{255, 255, 255}));
    EXPECT_TRUE(CtrlKey('V'));
    EXPECT_TRUE(Draw().IsFloating());
    // What was cut last is white; it was cut behind the copy.
    EXPECT_EQ(PixelAt(Draw().Paper().Scratch().Pixels(), 5, 5), PixelAt(NumberedPixels(40, 30), 25, 15));
    GoTo(EMode::Stick);
    EXPECT_FALSE(CtrlKey('V'));
    EXPECT_FALSE(CtrlKey('C'));
    EXPECT_EQ(Undos(), 2);
    // What was copied stays for the whole run; what was marked goes with its picture.
    GoTo(EMode::Draw);
    EXPECT_TRUE(Controls().IsEnabled(kCmdPaste));
    Tool(ETool::SelectRect);
    Drag({20, 10}, {30, 20});
    Click(kCmdNew);
    for (const int nId : {kCmdCut, kCmdCopy, kCmdCrop}) EXPECT_FALSE(Controls().IsEnabled(nId));
    const int nUndos = Undos();
    EXPECT_TRUE(CtrlKey('X'));
    ExpectBoxes({{"请先选择剪切区域", kTitleNotice, EBoxIcon::Exclamation, EBoxButtons::Ok}});
    EXPECT_TRUE(CtrlKey('C'));
    ExpectBoxes({{"先选择复制区域", kTitleNotice, EBoxIcon::Exclamation, EBoxButtons::Ok}});
    EXPECT_EQ(Undos(), nUndos);
}

// As Undo does.
TEST_F(DrawTest, RedoGivesUpAnOpenShape) {
    for (const ETool tool : {ETool::Polygon, ETool::Curve}) {
        OpenAgain();
        Stroke();
        Click(kCmdUndo);
        Tool(tool);
        Drag({5, 20}, {25, 20});
        Click(kCmdRedo);
        ExpectNothingOpen();
        EXPECT_EQ(Work(), WithStroke());
        EXPECT_EQ(Tools().m_nTool, tool);
    }
}
