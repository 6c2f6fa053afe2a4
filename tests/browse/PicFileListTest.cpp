#include <chrono>

#include "browse/ThumBench.h"

namespace {

using CNames = std::vector<std::string>;

class PicFileListTest : public ThumBench {
  protected:
    // Two folders and two pictures: items 0 to 3.
    void MakeFour() {
        MakeFolder("A");
        MakeFolder("B.jpg");
        SaveJpeg("c.jpg", 20, 10);
        SaveJpeg("d.JPEG", 10, 20);
        m_folder.Write("note.txt", "");
    }
    // The same below a drive, shown through the tree.
    void ShowFourInTree() {
        AddDrive('C', "top");
        for (const char* szName : {"top/sub/A/in", "top/sub/B", "top/sub/C.jpg"}) MakeFolder(szName);
        for (const char* szName : {"top/sub/d.jpg", "top/sub/e.jpg"}) SaveJpeg(szName, 20, 20);
        m_thum.Build();
        Choose("sub");
        Unfold("sub");
        Fill();
        Words();
    }
};

}  // namespace

TEST_F(PicFileListTest, FoldersStandBeforeJpegFilesEachByTheBytesOfTheirNames) {
    for (const char* szName : {"dir", "Zdir", "x.jpg", "Recycled", "System Volume Information", "\xFE"})
        MakeFolder(szName);
    for (const char* szName :
         {"b.jpg", "a.JPG", "C.jpeg", "e.Jpeg", ".jpg", "\xFF.jpg", "照.jpg", "v.tar.jpg", "x.png", "y.gif",
          "jpg", "z.jpg.txt", "point.", "j.jp2", "bak.jpg~"})
        m_folder.Write(szName, "");
    Link("nowhere", "link.jpg");
    Show(m_folder.Path());
    const CNames kAll = {"Zdir",  "dir",    "x.jpg",    "\xFE",      ".jpg",   "C.jpeg",  "a.JPG",
                         "b.jpg", "e.Jpeg", "link.jpg", "v.tar.jpg", "照.jpg", "\xFF.jpg"};
    EXPECT_EQ(Names(), kAll);
    EXPECT_EQ(m_list.FolderCount(), 4);
    // Names and folders at once, pictures later; here none can be opened.
    EXPECT_EQ(Cells(), "ffffeeeeeeeee");
    EXPECT_EQ(m_nWaits, 1);
    Fill();
    EXPECT_EQ(Cells(), "ffffeeeeeeeee");
    EXPECT_EQ(Names(), kAll);
}

TEST_F(PicFileListTest, TheBarMovesWithTheFilesAndIsGoneAtTheEnd) {
    m_list.FillThumbnails();  // no folder yet
    EXPECT_TRUE(m_setTimers.empty());
    MakeFour();
    SaveJpeg("e.jpg", 1, 1);
    SaveJpeg("f.jpg", 1, 1);
    Show(m_folder.Path());
    EXPECT_EQ(Told(), "fill folder ") << "before the first tick";
    Fill();
    EXPECT_EQ(Told(), "25 37 50 end ");
    EXPECT_EQ(Cells(), "ffpppp");
    m_list.FillThumbnails();
    EXPECT_EQ(Told(), "0 fill ");
    m_list.FinishFill();
    // Only folders, nothing at all, and no folder.
    for (const char* szName : {"A", "B.jpg"}) MakeFolder(std::string("only/") + szName);
    MakeFolder("empty");
    for (const char* szName : {"only", "empty", "gone"}) {
        SCOPED_TRACE(szName);
        Told();
        Show(m_folder.Path(szName));
        Fill();
        EXPECT_EQ(Told(), "0 fill folder 50 end ");
        EXPECT_FALSE(m_list.IsFilling());
        EXPECT_EQ(Cells(), szName == std::string("only") ? "ff" : "");
        EXPECT_EQ(m_nWaits, 0);
    }
}

TEST_F(PicFileListTest, AFillRunsInShortSlices) {
    const std::string strFirst = SaveJpeg("0.jpg", 800, 600);
    for (int n = 1; n < 200; ++n)
        std::filesystem::create_hard_link(strFirst, m_folder.Path(std::to_string(n) + ".jpg"));
    Show(m_folder.Path());
    using CClock = std::chrono::steady_clock;
    const auto tBegin = CClock::now();
    int nTicks = 0;
    for (; Tick(); ++nTicks) ASSERT_EQ(m_nWaits, m_list.IsFilling() ? 1 : 0);
    const std::chrono::duration<double, std::milli> tAll = CClock::now() - tBegin;
    EXPECT_LE(tAll.count() / nTicks, 2.0 * CPicFileList::kSliceMilliseconds);
    EXPECT_EQ(Cells(), std::string(200, 'p'));
}

TEST_F(PicFileListTest, ANewFillEndsTheFormerAndAStopLeavesWhatIsThere) {
    MakeFour();
    MakeFolder("other/deep");
    Show(m_folder.Path());
    Show(m_folder.Path("other"));
    EXPECT_EQ(m_setTimers.size(), 1U);
    EXPECT_EQ(m_nWaits, 1);
    Fill();
    EXPECT_EQ(Names(), CNames{"deep"});

    Show(m_folder.Path());
    Remove("c.jpg");  // meanwhile
    m_folder.Write("d.JPEG", "broken");
    SaveJpeg("late.jpg", 5, 5);
    Fill();
    EXPECT_EQ(Names(), (CNames{"A", "B.jpg", "other", "c.jpg", "d.JPEG"}));
    EXPECT_EQ(Cells(), "fffee");
    m_list.FillThumbnails();
    m_list.StopFill();
    m_list.StopFill();
    EXPECT_EQ(Names(), (CNames{"A", "B.jpg", "other", "d.JPEG", "late.jpg"}));
    EXPECT_FALSE(Tick() || m_nWaits != 0);
    m_list.FillThumbnails();
    m_list.FinishFill();
    EXPECT_EQ(Cells(), "fffep");
}

TEST_F(PicFileListTest, AClickTellsOfTheItemAndLightsAFolder) {
    MakeFour();
    MakeFolder("A2");
    Show(m_folder.Path());
    Fill();
    const CNames kNames = {"A", "A2", "B.jpg", "c.jpg", "d.JPEG"};
    struct CStep {
        int nItem;
        const char* szCells;
    };
    const CStep kSteps[] = {{0, "lffpp"}, {0, "lffpp"}, {1, "flfpp"}, {3, "fffpp"}, {0, "lffpp"},
                            {2, "fffpp"}, {1, "flfpp"}, {4, "fffpp"}, {1, "flfpp"}};
    for (const CStep& step : kSteps) {
        const std::string& strName = kNames[static_cast<std::size_t>(step.nItem)];
        SCOPED_TRACE(strName);
        const bool bPicture = step.nItem > 1;
        Told();
        m_hand.OnItemClick(step.nItem);
        EXPECT_EQ(Words(),
                  (CNames{"browse", "info " + (bPicture ? m_folder.Path(strName) + " 1" : strName + " 0")}));
        EXPECT_EQ(Told(), bPicture ? "file " : "");
        EXPECT_EQ(Cells(), step.szCells);
    }
    m_hand.OnItemClick(-1);
    m_hand.OnItemClick(5);
    EXPECT_TRUE(Words().empty());
    // A new fill has no lit folder, and the old one is not put back into it.
    Remove("A");
    m_list.FillThumbnails();
    Fill();
    m_hand.OnItemClick(2);
    EXPECT_EQ(Cells(), "ffpp");
}

TEST_F(PicFileListTest, ADoubleClickOpensAPictureOrStepsIntoAFolder) {
    ShowFourInTree();
    const std::string strSub = m_folder.Path("top/sub/");
    EXPECT_EQ(Names(), (CNames{"A", "B", "C.jpg", "d.jpg", "e.jpg"}));
    m_hand.OnItemDoubleClick(3);
    m_hand.OnItemDoubleClick(2);  // a folder by its kind, a picture by its name
    m_hand.OnItemDoubleClick(-1);
    m_hand.OnItemDoubleClick(9);
    EXPECT_EQ(Words(), (CNames{"open " + strSub + " d.jpg", "open " + strSub + " C.jpg"}));
    EXPECT_EQ(CurrentFolder() + '/', strSub);

    m_hand.OnItemDoubleClick(0);
    EXPECT_EQ(Words(), CNames{"info A 0"});
    EXPECT_EQ(m_list.Path(), strSub + "A/");
    EXPECT_EQ(m_tree.CurrentPath(), m_list.Path());
    EXPECT_EQ(Names(), CNames{"in"});
    EXPECT_EQ(Dump(Node("sub")), "A+v*!\n in\nB\nC.jpg\n");
    EXPECT_EQ(CurrentFolder() + '/', m_list.Path());

    // A folder that has gone: the one above, read anew.
    Remove("top/sub/A/in");
    m_hand.OnItemDoubleClick(0);
    EXPECT_EQ(m_list.Path(), strSub + "A/");
    EXPECT_EQ(m_icons.Count(), 0);
    // One that the tree does not know yet: the list goes alone.
    Choose("B");
    m_nodes.Select(Node("sub"), ETreeCause::Mouse);
    MakeFolder("top/sub/A0/inner");
    m_list.FillThumbnails();
    m_hand.OnItemDoubleClick(1);
    EXPECT_EQ(m_list.Path(), strSub + "A0");
    EXPECT_EQ(m_nodes.Selected(), Node("sub"));
    m_hand.OnItemDoubleClick(0);
    EXPECT_EQ(m_list.Path(), strSub + "A0/inner");
    // The shown folder itself has gone.
    Remove("top");
    m_list.FillThumbnails();
    EXPECT_EQ(m_icons.Count(), 0);
    Fill();
}

TEST_F(PicFileListTest, AStepIntoAFolderThatAppearedBelowABareOneIsFollowed) {
    AddDrive('C', "top");
    MakeFolder(std::string("top/") + CFolderTree::kStartFolder);
    m_thum.Build();
    m_thum.ShowCurrentFolder();
    MakeFolder(std::string("top/") + CFolderTree::kStartFolder + "/new");
    m_thum.ReturnToFolder();
    m_hand.OnItemDoubleClick(0);
    EXPECT_EQ(m_nodes.Selected(), Node("new"));
    EXPECT_EQ(m_tree.CurrentPath(), m_list.Path());
}

TEST_F(PicFileListTest, EnterGivesTheOneSelectedItemToTheSystem) {
    MakeFour();
    Show(m_folder.Path());
    const CNames kRun[] = {{}, {"run " + m_folder.Path("A")}, {"run " + m_folder.Path("d.JPEG")}, {}};
    const std::vector<int> kSelected[] = {{}, {0}, {3}, {0, 3}};
    for (std::size_t n = 0; n < 4; ++n) {
        std::filesystem::current_path("/");
        Select(kSelected[n]);
        m_hand.OnEnter();
        CNames arrWanted = kRun[n];
        for (std::string& strWord : arrWanted) strWord += " in " + m_folder.Path();
        EXPECT_EQ(Words(), arrWanted);
    }
    m_hand.OnRightPress(1);
    m_hand.OnRightPress(3);
    m_hand.OnRightPress(-1);
    m_hand.OnRightPress(4);
    EXPECT_EQ(m_icons.SelectedItems(), (std::vector<int>{0, 1}));
    // The number of selected items counts only while the button is down.
    m_hand.OnMouseMove();
    EXPECT_EQ(m_list.SelectedWhilePressed(), 0);
    m_hand.OnLeftPress();
    m_hand.OnMouseMove();
    Select({});
    EXPECT_TRUE(m_list.IsPressed());
    m_hand.OnLeftRelease();
    m_hand.OnMouseMove();
    EXPECT_EQ(m_list.SelectedWhilePressed(), 2);
    m_hand.OnLeftPress();
    m_list.ForgetPress();
    EXPECT_FALSE(m_list.IsPressed());
}

TEST_F(PicFileListTest, ADeleteAsksOnceDeletesAndReadsTheListAnew) {
    const std::string strSub = m_folder.Path("top/sub/");
    const auto path = [&](const char* szName) { return " " + strSub + szName; };
    const std::string strA = path("A");
    const std::string strB = path("B");
    const std::string strD = path("d.jpg");
    enum EHow { kPlain, kShift, kRefused };
    struct CCase {
        std::vector<int> arrItems;  // of A, B, C.jpg, d.jpg, e.jpg
        int nHow;
        std::string strDelete;  // what the system is asked; empty if it is not
        const char* szAsked;    // by the program; null for nothing
        CNames arrLeft;
        const char* szNodes = "A+\nB\nC.jpg\n";
    };
    const CNames kAll = {"A", "B", "C.jpg", "d.jpg", "e.jpg"};
    // With a file behind it, or a folder with a picture's name, the tree is not looked after.
    const CCase kCases[] = {
        {{3}, kPlain, "to bin" + strD, "d.jpg", {"A", "B", "C.jpg", "e.jpg"}},
        {{3}, kPlain, "", "d.jpg", kAll},
        {{3}, kShift, "ask" + strD, nullptr, {"A", "B", "C.jpg", "e.jpg"}},
        {{3}, kShift | kRefused, "ask" + strD, nullptr, kAll},
        {{0}, kPlain, "to bin" + strA, "A", {"B", "C.jpg", "d.jpg", "e.jpg"}, "B\nC.jpg\n"},
        {{0}, kPlain, "", "A", kAll},
        {{0}, kRefused, "to bin" + strA, "A", kAll},
        {{0, 1}, kPlain, "to bin ask" + strA + strB, nullptr, {"C.jpg", "d.jpg", "e.jpg"}, "C.jpg\n"},
        {{1, 4}, kShift, "ask" + strB + path("e.jpg"), nullptr, {"A", "C.jpg", "d.jpg"}},
        {{0, 2}, kPlain, "to bin ask" + strA + path("C.jpg"), nullptr, {"B", "d.jpg", "e.jpg"}},
    };
    for (const CCase& test : kCases) {
        SCOPED_TRACE(test.strDelete + " " + std::to_string(test.nHow));
        m_arrDrives.clear();
        Remove("top");
        ShowFourInTree();
        m_answer = test.strDelete.empty() ? EBoxAnswer::No : EBoxAnswer::Yes;
        m_bShellRefuses = (test.nHow & kRefused) != 0;
        Select(test.arrItems);
        m_hand.OnKeyDown(kKeyDelete, (test.nHow & kShift) != 0);
        CNames arrWords = {"info  -1"};
        if (!test.strDelete.empty()) arrWords.insert(arrWords.begin(), "delete " + test.strDelete);
        EXPECT_EQ(Words(), arrWords);
        std::vector<CMessageBox> arrBoxes;
        if (test.szAsked != nullptr)
            arrBoxes.push_back({std::string("\n要把 '") + test.szAsked + "' 移动到垃圾箱吗?\n\n",
                                "文件删除确认", EBoxIcon::Exclamation, EBoxButtons::YesNo});
        EXPECT_EQ(std::exchange(m_arrBoxes, {}), arrBoxes);
        EXPECT_TRUE(m_list.IsFilling());
        EXPECT_EQ(Names(), test.arrLeft);
        EXPECT_EQ(m_icons.SelectedCount(), 0);
        EXPECT_EQ(Dump(Node("sub")), test.szNodes);
        EXPECT_TRUE(m_nodes.IsExpanded(Node("sub")));
        Fill();
    }
}

TEST_F(PicFileListTest, ADeleteNeedsItsKeyAndASelection) {
    MakeFour();
    Show(m_folder.Path());
    Fill();
    m_hand.OnKeyDown(kKeyDelete, false);
    m_list.DeleteSelected(true);
    Select({2});
    m_hand.OnKeyDown(kKeyEscape, false);
    EXPECT_TRUE(Words().empty() && m_arrBoxes.empty() && !m_list.IsFilling());
    // While a fill runs, the item that was meant goes, and the tree has no node to drop.
    m_list.FillThumbnails();
    Select({0, 1, 2});
    m_list.DeleteSelected(false);
    Fill();
    EXPECT_EQ(Cells(), "p");
}
