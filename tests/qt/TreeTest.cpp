// The folder tree in its view: what the program does to the one shows in the other, and what the hand does is
// told once, with its cause.

#include <gtest/gtest.h>

#include <QPersistentModelIndex>
#include <QScrollBar>
#include <QTreeView>
#include <random>

#include "TestDialog.h"
#include "qt/TreeAdaptor.h"

namespace {

constexpr CControlTemplate kControls[] = {{33, EControlKind::Tree, CRect::FromPlace(0, 0, 250, 300)}};
constexpr CDialogTemplate kDialog{901, "Tree", {260, 310}, EDialogFrame::Plain, kControls};

// Reads "lazy" items when they open, as the folders of a disk are read.
class CTestSink : public CTreeSink {
  public:
    explicit CTestSink(CTreeModel& tree) : m_tree(tree) { tree.SetSink(this); }
    void OnItemExpanding(CTreeItem item, bool bExpand) override {
        m_arrOpenings.emplace_back(item, bExpand);
        if (bExpand && m_tree.Text(item) == "lazy" && m_tree.Children(item).empty())
            for (const char* szText : {"b", "a"}) m_tree.InsertSorted(item, szText, ETreeIcon::Folder, false);
    }
    void OnSelectionChanged(CTreeItem item, ETreeCause cause) override {
        m_arrSelections.emplace_back(item, cause);
    }

    std::vector<std::pair<CTreeItem, bool>> m_arrOpenings;
    std::vector<std::pair<CTreeItem, ETreeCause>> m_arrSelections;

  private:
    CTreeModel& m_tree;
};

struct CShownTree {
    CShownTree() : sink(tree) {
        root = tree.InsertLast(kNoTreeItem, "root", ETreeIcon::Computer, true);
        lazy = tree.InsertLast(root, "lazy", ETreeIcon::Disk, true);
        empty = tree.InsertLast(root, "empty", ETreeIcon::Folder, true);
        leaf = tree.InsertLast(root, "leaf", ETreeIcon::Folder, false);
        tree.Expand(root);
        sink.m_arrOpenings.clear();
    }
    QTreeView& View() { return *qobject_cast<QTreeView*>(shown.Widget(33)); }
    QModelIndex Index(CTreeItem item) { return static_cast<CTreeAdaptor*>(View().model())->IndexOf(item); }
    CTreeItem Current() {
        const QModelIndexList arrRows = View().selectionModel()->selectedRows();
        return arrRows.isEmpty() ? kNoTreeItem
                                 : static_cast<CTreeAdaptor*>(View().model())->ItemOf(arrRows.front());
    }
    void Click(CTreeItem item, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(View().viewport(), Qt::LeftButton, modifiers,
                          View().visualRect(Index(item)).center());
    }
    void ClickArrow(CTreeItem item) {
        const QRect rc = View().visualRect(Index(item));
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {},
                          {rc.left() - View().indentation() / 2, rc.center().y()});
    }

    CTreeModel tree;
    CTestSink sink;
    CTreeItem root, lazy, empty, leaf;
    CShownDialog shown{kDialog, &tree, nullptr};
};

// Every item of the tree stands in the view's model at its place, and the other way round.
void ExpectSame(const CTreeModel& tree, const CTreeAdaptor& adaptor, CTreeItem parent) {
    const auto& arrChildren = tree.Children(parent);
    const QModelIndex parentIndex = adaptor.IndexOf(parent);
    ASSERT_EQ(adaptor.rowCount(parentIndex), static_cast<int>(arrChildren.size()));
    for (std::size_t i = 0; i < arrChildren.size(); ++i) {
        const QModelIndex index = adaptor.index(static_cast<int>(i), 0, parentIndex);
        ASSERT_EQ(adaptor.ItemOf(index), arrChildren[i]);
        ASSERT_EQ(adaptor.parent(index), parentIndex);
        ASSERT_EQ(index.data().toString().toStdString(), tree.Text(arrChildren[i]));
        ExpectSame(tree, adaptor, arrChildren[i]);
    }
}

}  // namespace

TEST(Tree, TheViewKeepsUpWithWhateverComesAndGoes) {
    CShownTree shown;
    auto& adaptor = *static_cast<CTreeAdaptor*>(shown.View().model());
    const auto nSeed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(nSeed));
    std::mt19937 random(nSeed);
    std::vector<CTreeItem> arrItems = {shown.root, shown.lazy, shown.empty, shown.leaf};
    // Qt itself holds on to items through these.
    std::map<CTreeItem, QPersistentModelIndex> mapHeld;
    for (int i = 0; i < 1500; ++i) {
        std::erase_if(arrItems, [&](CTreeItem item) { return !shown.tree.Exists(item); });
        const CTreeItem item = arrItems.empty() ? kNoTreeItem : arrItems[random() % arrItems.size()];
        switch (random() % 8) {
            case 0:
                if (item != shown.root) shown.tree.Delete(item);
                break;
            case 1:
                shown.tree.Expand(item);
                break;
            case 2:
                shown.tree.Collapse(item);
                break;
            case 3:
                shown.tree.Select(item);
                break;
            case 4:
                shown.tree.SetHasChildrenMark(item, random() % 2 == 0);
                break;
            default:
                arrItems.push_back(shown.tree.InsertSorted(item, std::to_string(random() % 100),
                                                           ETreeIcon::Folder, random() % 2 == 0));
                mapHeld[arrItems.back()] = adaptor.IndexOf(arrItems.back());
        }
        if (i % 7 == 0) QCoreApplication::processEvents();
    }
    ExpectSame(shown.tree, adaptor, kNoTreeItem);
    for (const auto& [item, held] : mapHeld) {
        ASSERT_EQ(held.isValid(), shown.tree.Exists(item));
        ASSERT_EQ(QModelIndex(held), adaptor.IndexOf(item));
    }
    std::erase_if(arrItems, [&](CTreeItem item) { return !shown.tree.Exists(item); });
    for (const CTreeItem item : arrItems)
        ASSERT_EQ(shown.View().isExpanded(adaptor.IndexOf(item)), shown.tree.IsExpanded(item));
    EXPECT_EQ(shown.Current(), shown.tree.Selected());
    shown.tree.DeleteAll();
    EXPECT_EQ(adaptor.rowCount({}), 0);
}

TEST(Tree, TheHandOpensAndIsAskedForEachTime) {
    CShownTree shown;
    shown.ClickArrow(shown.lazy);
    EXPECT_TRUE(shown.tree.IsExpanded(shown.lazy));
    EXPECT_EQ(shown.View().model()->rowCount(shown.Index(shown.lazy)), 2);
    EXPECT_TRUE(shown.View().isExpanded(shown.Index(shown.lazy)));
    shown.ClickArrow(shown.lazy);
    EXPECT_FALSE(shown.tree.IsExpanded(shown.lazy));
    shown.Click(shown.lazy);
    QTest::keyClick(&shown.View(), Qt::Key_Right);
    EXPECT_TRUE(shown.tree.IsExpanded(shown.lazy));
    // A mark that promises too much: nothing is there, so nothing opens.
    shown.ClickArrow(shown.empty);
    EXPECT_FALSE(shown.tree.IsExpanded(shown.empty));
    EXPECT_FALSE(shown.View().isExpanded(shown.Index(shown.empty)));
    EXPECT_EQ(shown.sink.m_arrOpenings,
              (std::vector<std::pair<CTreeItem, bool>>{
                  {shown.lazy, true}, {shown.lazy, false}, {shown.lazy, true}, {shown.empty, true}}));
}

TEST(Tree, OneKeyDoesNotOpenTheWholeDisk) {
    CShownTree shown;
    shown.Click(shown.root);
    shown.sink.m_arrOpenings.clear();
    QTest::keyClick(&shown.View(), Qt::Key_Asterisk);
    EXPECT_TRUE(shown.sink.m_arrOpenings.empty());
}

TEST(Tree, EachSelectionIsToldOnceWithItsCause) {
    CShownTree shown;
    shown.Click(shown.lazy);
    shown.Click(shown.lazy);
    shown.Click(shown.lazy, Qt::ControlModifier);
    QTest::keyClick(&shown.View(), Qt::Key_Down);
    shown.tree.Select(shown.leaf);
    QTest::mouseClick(shown.View().viewport(), Qt::LeftButton, {}, {100, 280});
    // Drawn along with the button held, and pressed with the other one: neither selects.
    QTest::mousePress(shown.View().viewport(), Qt::LeftButton, {},
                      shown.View().visualRect(shown.Index(shown.leaf)).center());
    QTest::mouseMove(shown.View().viewport(), shown.View().visualRect(shown.Index(shown.root)).center());
    QTest::mouseClick(shown.View().viewport(), Qt::RightButton, {},
                      shown.View().visualRect(shown.Index(shown.root)).center());
    EXPECT_EQ(shown.sink.m_arrSelections,
              (std::vector<std::pair<CTreeItem, ETreeCause>>{{shown.lazy, ETreeCause::Mouse},
                                                             {shown.empty, ETreeCause::Keyboard},
                                                             {shown.leaf, ETreeCause::Unknown}}));
    EXPECT_EQ(shown.Current(), shown.leaf);
}

TEST(Tree, ASelectionThatGoesLeavesNone) {
    CShownTree shown;
    shown.Click(shown.empty);
    shown.sink.m_arrSelections.clear();
    shown.tree.Delete(shown.empty);
    QCoreApplication::processEvents();
    EXPECT_EQ(shown.Current(), kNoTreeItem);
    EXPECT_EQ(shown.tree.Selected(), kNoTreeItem);
    EXPECT_TRUE(shown.sink.m_arrSelections.empty());
    QTest::keyClick(&shown.View(), Qt::Key_Home);
    EXPECT_EQ(shown.Current(), shown.tree.Selected()) << "the keys go on working";
}

TEST(Tree, AnArrowStandsWhereTheMarkSaysSo) {
    CShownTree shown;
    const auto fnArrow = [&](CTreeItem item) {
        QCoreApplication::processEvents();
        const QRect rc = shown.View().visualRect(shown.Index(item));
        const QImage image = shown.View().viewport()->grab().toImage().copy(
            rc.left() - shown.View().indentation(), rc.top(), shown.View().indentation(), rc.height());
        QImage plain(image.size(), image.format());
        plain.fill(image.pixel(0, 0));
        return image != plain;
    };
    EXPECT_TRUE(fnArrow(shown.empty));
    EXPECT_FALSE(fnArrow(shown.leaf));
    shown.tree.SetHasChildrenMark(shown.empty, false);
    shown.tree.SetHasChildrenMark(shown.leaf, true);
    EXPECT_FALSE(fnArrow(shown.empty));
    EXPECT_TRUE(fnArrow(shown.leaf));
}

TEST(Tree, NamesOfAnyBytesStandInOneLine) {
    CShownTree shown;
    const CTreeItem odd = shown.tree.InsertLast(shown.root, "a\xff\nb", ETreeIcon::Folder, false);
    EXPECT_EQ(shown.Index(odd).data().toString(), QStringLiteral("a\uFFFD b"));
    EXPECT_EQ(shown.View().visualRect(shown.Index(odd)).height(),
              shown.View().visualRect(shown.Index(shown.leaf)).height());
}

TEST(Tree, ADeepNameCanBeScrolledTo) {
    CShownTree shown;
    CTreeItem item = shown.lazy;
    for (int i = 0; i < 12; ++i)
        item = shown.tree.InsertLast(item, "a folder with a long name", ETreeIcon::Folder, true);
    shown.tree.Select(item);
    QCoreApplication::processEvents();
    const QRect rc = shown.View().visualRect(shown.Index(item));
    EXPECT_TRUE(shown.View().viewport()->rect().contains(QPoint(rc.left() + 20, rc.center().y())));
    EXPECT_GT(shown.View().horizontalScrollBar()->maximum(), 0);
}

TEST(Tree, EveryKindHasAnIconOfItsOwn) {
    std::vector<QImage> arrIcons;
    for (const ETreeIcon icon : {ETreeIcon::Computer, ETreeIcon::Home, ETreeIcon::Disk, ETreeIcon::Removable,
                                 ETreeIcon::Network, ETreeIcon::Folder}) {
        const QImage image = CTreeIcons::Draw(icon).pixmap(16).toImage();
        EXPECT_EQ(image.size(), QSize(16, 16));
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
        for (const QImage& other : arrIcons) EXPECT_NE(image, other);
        arrIcons.push_back(image);
    }
}
