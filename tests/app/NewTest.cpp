#include "app/Workshop.h"

namespace {

CPixels WhitePixels(CSize size) {
    CPixels pixels;
    pixels.CreateFilled(size.cx, size.cy, {255, 255, 255});
    return pixels;
}

class NewTest : public Workshop {
  protected:
    void ExpectPage(CSize size, CSize sizeDisplay) {
        EXPECT_TRUE(State().m_bImageOpen);
        EXPECT_EQ(Images().m_imgWork.Pixels(), WhitePixels(size));
        EXPECT_EQ(Images().m_imgOpened.Pixels(), WhitePixels(size));
        EXPECT_EQ(Images().DisplaySize(), sizeDisplay);
        EXPECT_EQ(std::pair(Undos(), Redos()), std::pair(0, 0));
        for (const int nId : {kCmdUndo, kCmdRedo, kCmdCut, kCmdCopy, kCmdCrop})
            EXPECT_FALSE(Controls().IsEnabled(nId));
        EXPECT_EQ(State().m_strFileName, "No Title");
        EXPECT_FALSE(Images().m_bFrameOn);
    }
    void MakeHistory() {
        Edit(1);
        Edit(2);
        Click(kCmdUndo);
    }
};

}  // namespace

TEST_F(NewTest, AFirstPageHasItsOwnSizeAndOpensEffect) {
    for (const EMode nMode : kAllModes) {
        SCOPED_TRACE(nMode);
        CMainDlg dialog(m_platform.Get());
        CPlayHost host(m_platform, dialog);
        host.Init();
        EXPECT_TRUE(nMode == EMode::Thum || host.Click(TabOf(nMode)).empty());
        EXPECT_EQ(host.Click(kCmdNew), "");
        EXPECT_EQ(dialog.State().m_nMode, EMode::Effect);
        EXPECT_TRUE(dialog.Lines().IsEditInfo());
        EXPECT_EQ(dialog.Images().m_imgWork.Pixels(), WhitePixels({640, 480}));
        EXPECT_EQ(dialog.Images().m_imgDisplay.Pixels(), WhitePixels({640, 480}));
        EXPECT_EQ(dialog.State().m_strFileName, "No Title");
        EXPECT_EQ(dialog.State().m_strFilePath, "");
        EXPECT_TRUE(dialog.Controls().IsShown(kCanvas) && dialog.Controls().IsEnabled(kCmdSave));
    }
}

TEST_F(NewTest, APageTakesTheShapeOfThePictureAndLeavesTheMode) {
    OpenNumbered(80, 30);
    for (const EMode nMode : {EMode::Effect, EMode::Stick, EMode::Font, EMode::Draw}) {
        SCOPED_TRACE(nMode);
        MakeHistory();
        GoTo(nMode);
        Click(kCmdNew);
        ExpectPage({80, 30}, {80, 30});
        EXPECT_EQ(State().m_nMode, nMode);
        EXPECT_EQ(State().m_strFilePath, m_folder.Path("numbered.png"));
        EXPECT_EQ(Images().m_imgDisplay.Pixels(), WhitePixels({80, 30}));
        if (nMode != EMode::Draw) continue;
        EXPECT_EQ(m_dialog.Draw().Paper().Committed().Pixels(), WhitePixels({80, 30}));
    }
    MakeHistory();
    GoTo(EMode::Thum);
    Click(kCmdNew);
    ExpectPage({80, 30}, {80, 30});
    EXPECT_EQ(State().m_nMode, EMode::Effect);
    EXPECT_FALSE(Controls().IsShown(kTabEffect));
}

TEST_F(NewTest, APageInFontIsFitted) {
    OpenNumbered(900, 100);
    GoTo(EMode::Font);
    Click(kCmdNew);
    ExpectPage({900, 100}, {900, 100});
    EXPECT_EQ(Images().m_imgDisplay.GetSize(), (CSize{651, 72}));  // 659/910
}

TEST_F(NewTest, UnderThePhonesSizeThePageHasThatSize) {
    OpenNumbered(80, 30);
    GoTo(EMode::Stick);
    Click(kRadioPhoneSize);
    Click(kCmdNew);
    ExpectPage({176, 144}, {80, 30});
    GoTo(EMode::Thum);
    Click(kCmdNew);
    ExpectPage({176, 144}, {80, 30});
    EXPECT_TRUE(Images().IsPhoneSize() && Controls().IsChecked(kRadioPhoneSize));
    EXPECT_EQ(Images().m_imgDisplay.GetSize(), (CSize{176, 144}));
    GoTo(EMode::Stick);
    Click(kRadioImageSize);
    EXPECT_EQ(Images().m_imgDisplay.GetSize(), (CSize{80, 30}));
}

// Reset goes back to the white page, and painting leaves that page white.
TEST_F(NewTest, ThePageIsWhatResetGoesBackTo) {
    OpenNumbered(80, 30);
    Click(kCmdNew);
    PaintOver(Touch(Images().m_imgWork), {1, 2, 3});
    Click(kCmdReset);
    EXPECT_EQ(Images().m_imgWork.Pixels(), WhitePixels({80, 30}));
}
