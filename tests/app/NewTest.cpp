#include "app/Workshop.h"

namespace {

CPixels WhitePixels(CSize size) {
    return CPixels::MakeFilled(size.cx, size.cy, {255, 255, 255});
}

class NewTest : public Workshop {
  protected:
    void ExpectPage(CSize size, CSize sizeDisplay) {
        EXPECT_TRUE(State().m_bImageOpen);
        EXPECT_EQ(Images().m_pImgWork->Pixels(), WhitePixels(size));
        EXPECT_EQ(Images().m_pImgOpened->Pixels(), WhitePixels(size));
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
    for (const int nMode : kAllModes) {
        SCOPED_TRACE(nMode);
        CMainDlg dialog(m_platform.Get());
        CPlayHost host(m_platform, dialog);
        host.Init();
        EXPECT_TRUE(nMode == kModeThum || host.Click(TabOf(nMode)).empty());
        EXPECT_EQ(host.Click(kCmdNew), "");
        EXPECT_EQ(dialog.State().m_nMode, kModeEffect);
        EXPECT_TRUE(dialog.State().m_bEditSource && dialog.State().m_bEditInfo);
        EXPECT_EQ(dialog.Images().m_pImgWork->Pixels(), WhitePixels({640, 480}));
        EXPECT_EQ(dialog.Images().m_pImgDisplay->Pixels(), WhitePixels({640, 480}));
        EXPECT_EQ(dialog.State().m_strFileName, "No Title");
        EXPECT_EQ(dialog.State().m_strFilePath, "");
        EXPECT_TRUE(dialog.Controls().IsShown(kCanvas) && dialog.Controls().IsEnabled(kCmdSave));
    }
}

TEST_F(NewTest, APageTakesTheShapeOfThePictureAndLeavesTheMode) {
    OpenNumbered(80, 30);
    for (const int nMode : {kModeEffect, kModeStick, kModeFont, kModeDraw}) {
        SCOPED_TRACE(nMode);
        MakeHistory();
        GoTo(nMode);
        Click(kCmdNew);
        ExpectPage({80, 30}, {80, 30});
        EXPECT_EQ(State().m_nMode, nMode);
        EXPECT_EQ(State().m_strFilePath, m_folder.Path("numbered.png"));
        EXPECT_EQ(Images().m_pImgDisplay->Pixels(), WhitePixels({80, 30}));
        if (nMode != kModeDraw) continue;
        EXPECT_EQ(m_dialog.Canvas().CommittedPixels(), WhitePixels({80, 30}));
    }
    MakeHistory();
    GoTo(kModeThum);
    Click(kCmdNew);
    ExpectPage({80, 30}, {80, 30});
    EXPECT_EQ(State().m_nMode, kModeEffect);
    EXPECT_FALSE(Controls().IsShown(kTabEffect));
}

TEST_F(NewTest, APageInFontIsFitted) {
    OpenNumbered(900, 100);
    GoTo(kModeFont);
    Click(kCmdNew);
    ExpectPage({900, 100}, {900, 100});
    EXPECT_EQ(Images().m_pImgDisplay->GetSize(), (CSize{651, 72}));  // 659/910
}

TEST_F(NewTest, UnderThePhonesSizeThePageHasThatSize) {
    OpenNumbered(80, 30);
    GoTo(kModeStick);
    Click(kRadioPhoneSize);
    Click(kCmdNew);
    ExpectPage({176, 144}, {80, 30});
    GoTo(kModeThum);
    Click(kCmdNew);
    ExpectPage({176, 144}, {80, 30});
    EXPECT_TRUE(Images().m_bPhoneSize && Controls().IsChecked(kRadioPhoneSize));
    EXPECT_EQ(Images().m_pImgDisplay->GetSize(), (CSize{176, 144}));
    GoTo(kModeStick);
    Click(kRadioImageSize);
    EXPECT_EQ(Images().m_pImgDisplay->GetSize(), (CSize{80, 30}));
}

// Reset goes back to the white page, and painting leaves that page white.
TEST_F(NewTest, ThePageIsWhatResetGoesBackTo) {
    OpenNumbered(80, 30);
    Click(kCmdNew);
    PaintOver(*Images().m_pImgWork, {1, 2, 3});
    Click(kCmdReset);
    EXPECT_EQ(Images().m_pImgWork->Pixels(), WhitePixels({80, 30}));
}
