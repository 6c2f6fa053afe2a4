#include <gtest/gtest.h>

#include <array>

#include "play/ScriptedPlatform.h"
#include "support/TempFolder.h"

namespace {

constexpr int kTree = 10, kIcons = 11;
constexpr std::array kControls = {
    CControlTemplate{kTree, EControlKind::Tree, CRect::FromPlace(0, 0, 50, 100)},
    CControlTemplate{kIcons, EControlKind::IconList, CRect::FromPlace(50, 0, 50, 100)},
};
constexpr CDialogTemplate kTemplate = {900, "", {100, 100}, EDialogFrame::Plain, kControls};

// Writes down what comes to it. Item "b" of the tree is read when it opens.
class CLogBrowser : public CDialog, private CTreeSink, private CIconListSink {
  public:
    CLogBrowser() : CDialog(kTemplate) {
        m_tree.SetSink(this);
        m_icons.SetSink(this);
        m_icons.SetItems({"p", "q", "r", "s"});
        m_itemTop = m_tree.InsertLast(kNoTreeItem, "a", ETreeIcon::Computer, true);
        m_itemUnread = m_tree.InsertLast(m_itemTop, "b", ETreeIcon::Folder, true);
        m_itemBare = m_tree.InsertLast(m_itemTop, "c", ETreeIcon::Folder, false);
    }
    CTreeModel* TreeOf(int nId) override { return nId == kTree ? &m_tree : nullptr; }
    CIconListModel* IconsOf(int nId) override { return nId == kIcons ? &m_icons : nullptr; }

    std::string TakeLog() { return std::exchange(m_strLog, {}); }
    std::string Selected() const {
        std::string strText;
        for (const int nItem : m_icons.SelectedItems()) strText += m_icons.Text(nItem);
        return strText;
    }

    CTreeModel m_tree;
    CIconListModel m_icons;
    CTreeItem m_itemTop, m_itemUnread, m_itemBare;

  private:
    void OnItemExpanding(CTreeItem item, bool bExpand) override {
        m_strLog += (bExpand ? "open " : "close ") + m_tree.Text(item) + ";";
        if (item == m_itemUnread && bExpand && m_tree.Children(item).empty())
            m_tree.InsertSorted(item, "d", ETreeIcon::Folder, false);
    }
    void OnSelectionChanged(CTreeItem item, ETreeCause cause) override {
        m_strLog += m_tree.Text(item) + (cause == ETreeCause::Mouse ? " by mouse;" : " by another;");
    }
    void Log(const char* szWhat, int nItem) {
        m_strLog += szWhat + std::to_string(nItem) + "[" + Selected() + "];";
    }
    void OnItemClick(int nItem) override { Log("click ", nItem); }
    void OnItemDoubleClick(int nItem) override { Log("double ", nItem); }
    void OnEnter() override { m_strLog += "enter;"; }
    void OnKeyDown(int nKey, bool bShift) override { Log(bShift ? "shift " : "key ", nKey); }
    void OnRightPress(int nItem) override { Log("right ", nItem); }
    void OnLeftPress() override { m_strLog += "down;"; }
    void OnLeftRelease() override { m_strLog += "up;"; }
    void OnMouseMove() override { m_strLog += "move[" + Selected() + "];"; }

    std::string m_strLog;
};

class HostBrowseTest : public testing::Test {
  protected:
    HostBrowseTest() : m_host(m_platform, m_dialog) { m_host.Init(); }

    CScriptedPlatform m_platform;
    CLogBrowser m_dialog;
    CPlayHost m_host;
};

}  // namespace

TEST_F(HostBrowseTest, TreeOnlyWhatIsInSight) {
    EXPECT_NE(m_host.SelectItem(kTree, m_dialog.m_itemUnread), "");
    EXPECT_NE(m_host.CloseItem(kTree, m_dialog.m_itemTop), "");
    EXPECT_EQ(m_host.OpenItem(kTree, m_dialog.m_itemTop), "");
    EXPECT_NE(m_host.OpenItem(kTree, m_dialog.m_itemTop), "");
    EXPECT_NE(m_host.OpenItem(kTree, m_dialog.m_itemBare), "");
    EXPECT_EQ(m_host.FindItem(kTree, m_dialog.m_itemUnread, "d"), kNoTreeItem);
    EXPECT_EQ(m_host.OpenItem(kTree, m_host.FindItem(kTree, m_dialog.m_itemTop, "b")), "");
    const CTreeItem read = m_host.FindItem(kTree, m_dialog.m_itemUnread, "d");
    EXPECT_EQ(m_host.SelectItem(kTree, read), "");
    EXPECT_EQ(m_dialog.Controls().Focus(), kTree);
    EXPECT_EQ(m_host.CloseItem(kTree, m_dialog.m_itemUnread), "");
    EXPECT_EQ(m_dialog.TakeLog(), "open a;open b;d by mouse;close b;");
    EXPECT_EQ(m_dialog.m_tree.Selected(), read);
    EXPECT_NE(m_host.SelectItem(kTree, 99), "");
    EXPECT_NE(m_host.SelectItem(kIcons, read), "");
    m_dialog.Controls().Show(kTree, false);
    EXPECT_NE(m_host.SelectItem(kTree, m_dialog.m_itemTop), "");
    EXPECT_EQ(m_dialog.TakeLog(), "");
}

TEST_F(HostBrowseTest, ClicksSelectAsInTheSystem) {
    struct CClick {
        int nItem;
        unsigned nKeys;
        const char* szSelected;
    };
    for (const CClick& click :
         {CClick{1, 0, "q"}, CClick{3, kMouseShift, "qrs"}, CClick{2, kMouseCtrl, "qs"},
          CClick{0, kMouseShift, "pqr"}, CClick{3, kMouseCtrl, "pqrs"}, CClick{2, 0, "r"}, CClick{-1, 0, ""},
          CClick{3, kMouseShift | kMouseCtrl, "rs"}}) {
        EXPECT_EQ(m_host.ClickIcon(kIcons, click.nItem, click.nKeys), "");
        EXPECT_EQ(m_dialog.Selected(), click.szSelected);
        EXPECT_EQ(m_dialog.TakeLog(), (click.nItem < 0 ? "down;up;click " : "down;click ") +
                                          std::to_string(click.nItem) + "[" + click.szSelected + "];");
    }
    // The item clicked before is gone with the old items.
    m_dialog.m_icons.SetItems({"p", "q"});
    EXPECT_EQ(m_host.ClickIcon(kIcons, 1, kMouseShift), "");
    EXPECT_EQ(m_dialog.Selected(), "pq");
    EXPECT_NE(m_host.ClickIcon(kIcons, 2), "");
    EXPECT_NE(m_host.ClickIcon(kTree, 0), "");
}

// Keys go to the list that has the focus, and only then.
TEST_F(HostBrowseTest, BandAndKeys) {
    EXPECT_EQ(m_host.Key({kKeyDelete}), "");
    EXPECT_EQ(m_dialog.TakeLog(), "");
    EXPECT_EQ(m_host.BandIcons(kIcons, {1, 2}), "");
    EXPECT_EQ(m_dialog.TakeLog(), "down;move[q];move[qr];up;");
    EXPECT_EQ(m_host.Key({kKeyDelete, false, true}), "");
    EXPECT_EQ(m_host.Key({kKeyEnter}), "");
    EXPECT_EQ(m_dialog.TakeLog(), "shift 46[qr];enter;");
    EXPECT_EQ(m_host.BandIcons(kIcons, {}), "");
    EXPECT_EQ(m_dialog.Selected(), "");
    EXPECT_NE(m_host.BandIcons(kIcons, {0, 4}), "");
    EXPECT_EQ(m_host.FindIcon(kIcons, "s"), 3);
    EXPECT_EQ(m_host.FindIcon(kIcons, "t"), -1);
}

TEST_F(HostBrowseTest, DrivesByLetterAndPaths) {
    m_platform.AddDrive('D', "/a");
    m_platform.AddDrive('C', "/a/b/");
    m_platform.AddDrive('D', "/");
    EXPECT_EQ(m_platform.OnDrive("/a/b/c/d.jpg"), "C:/c/d.jpg");
    EXPECT_EQ(m_platform.OnDrive("/a/b"), "C:");
    EXPECT_EQ(m_platform.OnDrive("/a/bc/"), "D:/a/bc/");
    const std::vector<CDrive> arrDrives = m_platform.Get().drives.List();
    ASSERT_EQ(arrDrives.size(), 2U);
    EXPECT_EQ(arrDrives[0].strRoot, "/a/b/");
    EXPECT_TRUE(arrDrives[0].strDisplay.ends_with("(C:)"));
    EXPECT_EQ(arrDrives[1].strRoot, "/");
    m_platform.RemoveDrive('D');
    EXPECT_EQ(m_platform.OnDrive("/x"), "/x");
}

TEST_F(HostBrowseTest, ShellDeletesAndRemembers) {
    const CTempFolder folder, bin;
    CShell& shell = m_platform.Get().shell;
    const std::string strOne = folder.Write("one", "1");
    // Without a bin nothing is lost.
    EXPECT_FALSE(shell.Delete({strOne}, true, false));
    EXPECT_EQ(m_platform.TakeProblems().at(0).kind, EProblem::Missing);
    m_platform.SetBin(bin.Path());
    EXPECT_TRUE(shell.Delete({strOne}, true, false));
    folder.Write("one", "2");
    EXPECT_TRUE(shell.Delete({strOne}, true, false));
    EXPECT_EQ(ReadBytes(bin.Path("one")) + ReadBytes(bin.Path("one 2")), "12");

    // What can go goes.
    folder.Write("two", "");
    EXPECT_FALSE(shell.Delete({strOne, folder.Path("two")}, false, false));
    EXPECT_TRUE(folder.Names().empty());

    // The question without an answer means no.
    const std::string strThree = folder.Write("three", "");
    EXPECT_FALSE(shell.Delete({strThree}, true, true));
    m_platform.AnswerDelete(false);
    EXPECT_FALSE(shell.Delete({strThree}, true, true));
    EXPECT_EQ(m_platform.TakeProblems().size(), 1U);
    m_platform.RefuseDeletes(true);
    m_platform.AnswerDelete(true);
    EXPECT_FALSE(shell.Delete({strThree}, true, true));
    m_platform.RefuseDeletes(false);
    m_platform.AnswerDelete(true);
    EXPECT_TRUE(shell.Delete({strThree}, true, true));
    shell.Open(strOne);
    EXPECT_TRUE(m_platform.TakeProblems().empty());

    const std::vector<CShellAct> arrActs = m_platform.TakeShellActs();
    ASSERT_EQ(arrActs.size(), 9U);
    EXPECT_TRUE(arrActs[7].bToBin && arrActs[7].bAsked && arrActs[7].bDone && !arrActs[7].bOpen);
    EXPECT_TRUE(arrActs[8].bOpen);
    EXPECT_EQ(arrActs[8].arrPaths, std::vector{strOne});
    EXPECT_TRUE(m_platform.TakeShellActs().empty());
}
