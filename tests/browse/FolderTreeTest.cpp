#include "browse/ThumBench.h"

namespace {

const std::string kStart = CFolderTree::kStartFolder;

class FolderTreeTest : public ThumBench {
  protected:
    void Start() {
        m_thum.Build();
        m_thum.ShowCurrentFolder();
        Fill();
    }
};

}  // namespace

TEST_F(FolderTreeTest, TheLastDriveThatHoldsTheStartFolderIsWhereTheTreeOpens) {
    AddDrive('A', "a");
    AddDrive('C', "c");
    const std::string strD = AddDrive('D', "d");
    const std::string strE = AddDrive('E', "e");
    for (const char* szName : {"a/sub", "c/beta", "c/Alpha/x", "d/m", "d/zz", "e"}) MakeFolder(szName);
    m_folder.Write("c/" + kStart, "a file is no folder");
    MakeFolder("a/" + kStart);
    // The first drives are not looked into; one that does not hold the folder opens without a current item.
    Start();
    EXPECT_EQ(Dump(), "computer+v\n a (A:)\n c (C:)+v\n  Alpha+\n  beta\n d (D:)+\n e (E:)\n");
    EXPECT_EQ(m_tree.CurrentPath() + m_list.Path(), "");
    EXPECT_EQ(m_icons.Count(), 0);

    MakeFolder("d/" + kStart + "/in");
    Start();
    EXPECT_EQ(Dump(),
              "computer+v\n a (A:)\n c (C:)+\n d (D:)+v\n  m\n  " + kStart + "+v*!\n   in\n  zz\n e (E:)\n");
    EXPECT_EQ(m_tree.CurrentPath(), strD + kStart + "/");
    EXPECT_EQ(m_list.Path(), m_tree.CurrentPath());
    EXPECT_EQ(Names(), std::vector<std::string>{"in"});

    MakeFolder("e/" + kStart);
    Start();
    EXPECT_EQ(m_tree.CurrentPath(), strE + kStart + "/");
    EXPECT_EQ(Dump(), "computer+v\n a (A:)\n c (C:)+\n d (D:)+\n e (E:)+v\n  " + kStart + "*!\n");

    // Without the drive on which it would open, and without any.
    m_arrDrives = {m_arrDrives[0]};
    Start();
    EXPECT_EQ(Dump(), "computer+v\n a (A:)\n");
    m_arrDrives.clear();
    Start();
    EXPECT_EQ(Dump(), "computer+\n");
}

TEST_F(FolderTreeTest, FoldersStandSortedWithoutTheirCaseAndWithoutThoseThatNeverShow) {
    AddDrive('C', "c");
    for (const char* szName : {"b", "A", "a1", "B2", "Recycled", "recycled", "System Volume Information",
                               "Zz", "\xFF\xFE", "照片"})
        MakeFolder(std::string("c/") + szName);
    MakeFolder("c/A/Recycled");
    MakeFolder("c/b/System Volume Information");
    MakeFolder("c/Zz/recycled");
    m_folder.Write("c/a1/file", "");
    Start();
    EXPECT_EQ(Dump(), "computer+v\n c (C:)+v\n  A\n  a1\n  b\n  B2\n  recycled\n  Zz+\n  照片\n  \xFF\xFE\n");
    // Bytes that are no text still lead to their folder.
    m_folder.Write("c/\xFF\xFE/x.jpg", "");
    Choose("\xFF\xFE");
    EXPECT_EQ(Names(), std::vector<std::string>{"x.jpg"});
}

TEST_F(FolderTreeTest, ANodeIsReadOnceAndItsMarkAtEachSelection) {
    const std::string strC = AddDrive('C', "c");
    MakeFolder("c/a/one");
    MakeFolder("c/bare");
    Start();
    Words();
    Unfold("a");
    EXPECT_TRUE(Words().empty());  // an opening selects nothing
    MakeFolder("c/a/two");
    m_nodes.Collapse(Node("a"), true);
    Unfold("a");
    EXPECT_EQ(Dump(Node("c (C:)")), "a+v\n one\nbare\n");

    Remove("c/a");
    MakeFolder("c/a");
    Choose("a");
    EXPECT_EQ(Words(), std::vector<std::string>{"info a 0"});
    EXPECT_EQ(Dump(Node("c (C:)")), "a*!\n one\nbare\n");

    // A node that was opened while it had nothing in it has not been read yet.
    Choose("bare");
    m_tree.ReturnToCurrent();
    MakeFolder("c/bare/late");
    m_tree.ReturnToCurrent();
    EXPECT_EQ(Dump(Node("c (C:)")), "a\n one\nbarev*!\n late\n");

    // The root is made current and nothing else; so is no item at all.
    Choose("computer");
    EXPECT_EQ(m_tree.CurrentItem(), Node("computer"));
    m_nodes.Select(kNoTreeItem);
    EXPECT_EQ(m_tree.CurrentItem(), kNoTreeItem);
    m_nodes.Select(Node("late"), ETreeCause::Other);
    EXPECT_EQ(m_tree.CurrentItem(), kNoTreeItem);
    EXPECT_EQ(Words(), std::vector<std::string>{"info bare 0"});
    EXPECT_EQ(m_tree.CurrentPath(), strC + "bare/");
    EXPECT_EQ(m_list.Path(), strC + "bare/");

    // What has gone, gives an empty list and loses its mark.
    Remove("c/bare");
    m_nodes.Select(Node("bare"), ETreeCause::Keyboard);
    EXPECT_EQ(m_icons.Count(), 0);
    EXPECT_EQ(Dump(Node("bare")), "late\n");
    EXPECT_FALSE(m_nodes.HasChildrenMark(Node("bare")));
}

TEST_F(FolderTreeTest, TheUserOpensTheRootAnewAndTheDrivesAreReadAnew) {
    AddDrive('C', "c");
    MakeFolder("c/a/deep");
    Start();
    Choose("a");
    const std::string strList = m_list.Path();
    m_nodes.Collapse(Node("computer"), true);
    AddDrive('E', "e");
    m_nodes.Expand(Node("computer"));
    EXPECT_EQ(Node("e (E:)"), kNoTreeItem);  // only the hand has it read again
    m_nodes.Collapse(Node("computer"), true);
    Unfold("computer");
    EXPECT_EQ(Dump(), "computer+v\n c (C:)+v\n  a+\n e (E:)\n");
    EXPECT_EQ(m_list.Path(), strList);
    m_tree.ReturnToCurrent();  // nothing is current
    m_tree.ShowCurrentFolder();
    EXPECT_FALSE(m_tree.StepInto(strList + "deep/"));
}

TEST_F(FolderTreeTest, LinksToFoldersAreFollowedAndCirclesHaveNoEnd) {
    AddDrive('C', "c");
    MakeFolder("c/real/in");
    MakeFolder("c/back");
    Link("real", "c/link");
    Link("self", "c/self");
    Link("nowhere", "c/broken");
    Link("..", "c/back/up");
    m_folder.Write("file", "");
    Link("../file", "c/tofile");
    Start();
    EXPECT_EQ(Dump(Node("c (C:)")), "back+\nlink+\nreal+\n");
    CTreeItem item = Node("back");
    for (int n = 0; n < 20; ++n) {
        m_nodes.Expand(item, true);
        ASSERT_EQ(m_nodes.Children(item).size(), 1U);
        item = m_nodes.Children(item).front();  // up
        m_nodes.Expand(item, true);
        ASSERT_EQ(m_nodes.Children(item).size(), 3U);
        item = m_nodes.Children(item).front();  // back
    }
    m_nodes.Select(item);
    EXPECT_EQ(Names(), std::vector<std::string>{"up"});
    EXPECT_EQ(Cells(), "f");
    Choose("link");
    EXPECT_EQ(Names(), std::vector<std::string>{"in"});
}

TEST_F(FolderTreeTest, AFolderThatCannotBeReadIsEmpty) {
    AddDrive('C', "c");
    m_arrDrives.push_back({'D', m_folder.Path("gone") + '/', "gone (x) (D:)", ETreeIcon::Removable});
    // A path that is longer than the system takes.
    std::string strLong = m_folder.Path("c");
    while (strLong.size() < 5000) strLong += "/" + std::string(200, 'x');
    Start();
    EXPECT_EQ(Dump(), "computer+v\n c (C:)\n gone (x) (D:)\n");
    Choose("gone (x) (D:)");
    EXPECT_EQ(m_list.Path(), m_folder.Path("gone") + '/');
    Unfold("gone (x) (D:)");
    for (const std::string& strPath :
         {strLong, m_folder.Write("file", ""), m_folder.Path("gone"), std::string()}) {
        EXPECT_TRUE(ReadFolder(strPath).empty());
        EXPECT_FALSE(HasSubfolders(strPath));
    }
}

TEST_F(FolderTreeTest, ItFollowsASavedFileOnDriveC) {
    // The way of a desktop: C lies inside of D, E inside of C.
    const std::string strC = AddDrive('C', "home");
    const std::string strD = MakeFolder("");
    m_arrDrives.push_back({'D', strD, "all (D:)", ETreeIcon::Disk});
    m_arrDrives.push_back({'E', MakeFolder("home/media"), "stick (E:)", ETreeIcon::Removable});
    MakeFolder("home/" + kStart + "/in/deep");
    MakeFolder("home/photos/2005");
    const std::string strStart = strC + kStart + "/";
    struct CCase {
        std::string strSaved;
        std::string strPath;  // of tree and list; empty if nothing is to follow
        std::string strCurrent;
    };
    const CCase kCases[] = {
        {strStart, "", strStart},                         // there already
        {m_folder.Path("home/" + kStart), "", strStart},  // without its closing separator
        {strD, "", strStart},
        {strC + "media/", "", strStart},
        {"/", "", strStart},
        {"", "", strStart},
        {strStart + "in", strStart + "in/", strStart + "in/"},
        {strC + "photos/2005", strC + "photos/", strStart},
        {strStart + "in/deep/", strStart, strStart},
        {m_folder.Path("home"), strC, strStart},
        {strC + "nowhere/at/all", strC + "nowhere/", strStart},
    };
    for (const CCase& test : kCases) {
        SCOPED_TRACE(test.strSaved);
        Start();
        const std::string strBefore = Dump();
        m_thum.FollowFolder(test.strSaved);
        EXPECT_EQ(m_tree.GetPath(m_tree.CurrentItem()), test.strCurrent);
        const std::string strPath = test.strPath.empty() ? strStart : test.strPath;
        EXPECT_EQ(m_tree.CurrentPath(), strPath);
        EXPECT_EQ(m_list.Path(), strPath);
        EXPECT_TRUE(!test.strPath.empty() || Dump() == strBefore);
        // Nothing is read or shown before the way back to the browser, where the current item rules.
        EXPECT_EQ(Names(), std::vector<std::string>{"in"});
        m_thum.ReturnToFolder();
        EXPECT_EQ(m_nodes.Selected(), m_tree.CurrentItem());
        const bool bIn = test.strCurrent == strStart + "in/";
        EXPECT_EQ(Names(), std::vector<std::string>{bIn ? "deep" : "in"});
    }

    // Without a current item the list alone follows.
    Remove("home/" + kStart);
    m_thum.Build();
    m_thum.FollowFolder(strC + "photos/2005");
    m_thum.ReturnToFolder();
    EXPECT_EQ(m_tree.CurrentItem(), kNoTreeItem);
    for (const CTreeItem item : {kNoTreeItem, Node("computer")}) EXPECT_EQ(m_tree.GetPath(item), "");
    EXPECT_EQ(Names(), std::vector<std::string>{"2005"});
}
