// Tree and list in the main window.

#include <filesystem>

#include "app/Workshop.h"

namespace {

class BrowseTest : public Workshop {
  protected:
    BrowseTest() {
        std::filesystem::create_directories(Start("in"));
        for (int n = 0; n < 20; ++n)
            EXPECT_TRUE(NumberedImage(30 + n, 20)
                            .Save(Start(std::string("p") + std::to_string(n) + ".jpg"), ImageType::kJpeg));
        m_folder.Write("start/" + kFolder + "/bad.jpg", "no picture");
        m_platform.AddDrive('C', m_folder.Path("start"));
        m_dialog.Thum().Build();
        m_dialog.Thum().ShowCurrentFolder();
    }
    std::string Start(const std::string& strName) const {
        return m_folder.Path("start/" + kFolder + "/" + strName);
    }
    CPicFileList& List() { return m_dialog.Thum().List(); }
    int Item(const std::string& strName) { return m_host.FindIcon(kFileList, strName); }
    void DoubleClick(const std::string& strName) {
        EXPECT_EQ(m_host.DoubleClickIcon(kFileList, Item(strName)), "");
    }
    void ExpectNoFill() {
        EXPECT_FALSE(List().IsFilling() || Controls().IsShown(kProgress));
        EXPECT_EQ(m_platform.WaitDepth(), 0);
    }

    const std::string kFolder = CFolderTree::kStartFolder;
};

}  // namespace

TEST_F(BrowseTest, LeavingTheBrowserEndsAFillAndTheWayBackReadsTheFolderAnew) {
    EXPECT_EQ(List().Path(), Start(""));
    EXPECT_EQ(List().Model().Count(), 22);
    for (const EMode nMode : {EMode::Draw, EMode::Effect, EMode::Font, EMode::Stick}) {
        SCOPED_TRACE(nMode);
        EXPECT_TRUE(List().IsFilling());
        EXPECT_EQ(m_platform.WaitDepth(), 1);
        GoTo(nMode);
        ExpectNoFill();
        EXPECT_FALSE(Controls().IsShown(kFileList) || Controls().IsShown(kFolderTree));
        const std::string strNew = std::string("new") + testing::PrintToString(nMode) + ".jpg";
        m_folder.Write("start/" + kFolder + "/" + strNew, "");
        GoTo(EMode::Thum);
        EXPECT_NE(Item(strNew), -1);
    }
    // A picture opened out of a running fill ends it as well.
    DoubleClick("p7.jpg");
    ExpectNoFill();
    EXPECT_EQ(State().m_nMode, EMode::Effect);
    EXPECT_EQ(Images().m_imgWork.GetSize(), (CSize{37, 20}));
    EXPECT_EQ(State().m_strFilePath, Start("p7.jpg"));
    GoTo(EMode::Thum);
    EXPECT_TRUE(List().IsFilling() && Controls().IsShown(kProgress));
    List().FinishFill();
    ExpectNoFill();
    for (int n = 0; n < List().Model().Count(); ++n) {
        const bool bPicture = List().Model().Text(n)[0] == 'p' || n == 0;
        EXPECT_EQ(List().Model().Picture(n).IsEmpty(), !bPicture) << List().Model().Text(n);
    }
}

TEST_F(BrowseTest, WhatCannotBeOpenedLeavesTheBrowserAsItIs) {
    List().FinishFill();
    const CMessageBox box{"照片格式或文件错误.", "文件打开错误", EBoxIcon::Stop, EBoxButtons::Ok};
    DoubleClick("bad.jpg");
    ExpectBoxes({box});
    std::filesystem::remove(Start("p3.jpg"));
    DoubleClick("p3.jpg");
    ExpectBoxes({box});
    EXPECT_EQ(State().m_nMode, EMode::Thum);
    EXPECT_FALSE(State().m_bImageOpen);
    EXPECT_TRUE(Controls().IsShown(kFileList) && !Controls().IsShown(kCanvas));
    EXPECT_EQ(List().Model().Count(), 22);
    std::filesystem::remove_all(Start("in"));
    DoubleClick("in");
    EXPECT_EQ(Item("in"), -1);
    EXPECT_EQ(List().Model().Count(), 20);
    List().FinishFill();
}

TEST_F(BrowseTest, TheInfoLinesTellOfTheItemThatIsClicked) {
    List().FinishFill();
    const auto lines = [&] {
        return Controls().Text(kBrowseName).substr(0, 18) + "|" + Controls().Text(kBrowseSize).substr(0, 20) +
               "|" + Controls().Text(kBrowseDepth);
    };
    EXPECT_EQ(m_host.ClickIcon(kFileList, Item("p5.jpg")), "");
    EXPECT_EQ(lines(), "文件名: p5.jpg |大小 :   35X20    |色度: 24 ");
    EXPECT_EQ(m_host.ClickIcon(kFileList, Item("bad.jpg")), "");
    EXPECT_EQ(lines(), "文件名: bad.jpg|大小 :    0X0     |色度: 0  ");
    EXPECT_EQ(m_host.ClickIcon(kFileList, Item("in")), "");
    EXPECT_EQ(Controls().Text(kBrowseName).substr(0, 14), "文件名 : in");
    EXPECT_EQ(Controls().Text(kBrowseSize), std::string(60, ' '));
    EXPECT_TRUE(Controls().IsShown(kBrowseName) && !Controls().IsShown(kInfoName));
}

TEST_F(BrowseTest, EnterAndDeleteAreTheListsOwn) {
    List().FinishFill();
    // Enter is swallowed wherever else the focus is.
    Controls().SetFocus(kFolderTree);
    EXPECT_TRUE(m_dialog.OnKey({kKeyEnter, false, false}));
    EXPECT_EQ(m_host.ClickIcon(kFileList, Item("p1.jpg")), "");
    EXPECT_EQ(m_host.Key({kKeyEnter, false, false}), "");
    m_platform.Answer(EBoxAnswer::No);
    EXPECT_EQ(m_host.Key({kKeyDelete, false, false}), "");
    const auto arrActs = m_platform.TakeShellActs();
    ASSERT_EQ(arrActs.size(), 1U);
    EXPECT_EQ(arrActs[0].arrPaths, std::vector<std::string>{Start("p1.jpg")});
    EXPECT_EQ(m_platform.TakeBoxes().size(), 1U);
    EXPECT_EQ(List().Model().Count(), 22);
    EXPECT_TRUE(m_dialog.OnKey({kKeyEscape, false, false}));
    List().FinishFill();
}

TEST_F(BrowseTest, TreeAndListFollowASavedPicture) {
    DoubleClick("p7.jpg");
    SaveAs(Start("in/copy.jpg"));
    EXPECT_EQ(State().m_nMode, EMode::Effect);
    EXPECT_TRUE(Controls().IsShown(kCanvas) && !Controls().IsShown(kFileList));
    ExpectNoFill();
    GoTo(EMode::Thum);
    EXPECT_EQ(List().Path(), Start("in/"));
    EXPECT_EQ(Item("copy.jpg"), 0);
    const CTreeModel& tree = m_dialog.Thum().Tree().Model();
    EXPECT_EQ(tree.Text(tree.Selected()), "in");
    List().FinishFill();
}

// Neither a timer nor the cursor outlives the window.
TEST_F(BrowseTest, TheWindowClosesInTheMiddleOfAFill) {
    List().FinishFill();
    {
        CMainDlg dialog(m_platform.Get());
        CPlayHost host(m_platform, dialog);
        host.Init();
        EXPECT_TRUE(dialog.Thum().List().IsFilling());
        EXPECT_EQ(m_platform.WaitDepth(), 1);
    }
    EXPECT_EQ(m_platform.WaitDepth(), 0);
    m_platform.Tick(10);
}
