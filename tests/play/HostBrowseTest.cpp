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
