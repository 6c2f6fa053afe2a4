#include "app/Workshop.h"

namespace {

CPixels WhitePixels(CSize size) {
    return CPixels::MakeFilled(size.cx, size.cy, {255, 255, 255});
}

using NewTest = Workshop;

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

TEST_F(NewTest, APageInFontIsFitted) {
    OpenNumbered(900, 100);
    GoTo(EMode::Font);
    Click(kCmdNew);
    EXPECT_EQ(Images().m_imgWork.Pixels(), WhitePixels({900, 100}));
    EXPECT_EQ(Images().m_imgDisplay.GetSize(), (CSize{651, 72}));  // 659/910
}
