// The folder tree in its view: what the program does to the one shows in the other, and what the hand does is
// told once, with its cause.

#include <gtest/gtest.h>

#include <QDir>
#include <QPersistentModelIndex>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTreeView>
#include <fstream>
#include <random>

#include "TestDialog.h"
#include "qt/TreeAdaptor.h"

namespace {

constexpr CControlTemplate kControls[] = {{33, EControlKind::Tree, CRect::FromPlace(0, 0, 250, 300)}};
constexpr CDialogTemplate kDialog{901, "Tree", {260, 310}, EDialogFrame::Plain, kControls};

using COpenings = std::vector<std::pair<CTreeItem, bool>>;
using CSelections = std::vector<std::pair<CTreeItem, ETreeCause>>;

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

    COpenings m_arrOpenings;
    CSelections m_arrSelections;

  private:
    CTreeModel& m_tree;
};

class Tree : public testing::Test {
  protected:
    Tree() : sink(tree) {
        root = tree.InsertLast(kNoTreeItem, "root", ETreeIcon::Computer, true);
        lazy = tree.InsertLast(root, "lazy", ETreeIcon::Disk, true);
        empty = tree.InsertLast(root, "empty", ETreeIcon::Folder, true);
        leaf = tree.InsertLast(root, "leaf", ETreeIcon::Folder, false);
        tree.Expand(root);
        sink.m_arrOpenings.clear();
    }
    QTreeView& View() { return *qobject_cast<QTreeView*>(shown.Widget(33)); }
    CTreeAdaptor& Adaptor() { return *static_cast<CTreeAdaptor*>(View().model()); }
    QModelIndex Index(CTreeItem item) { return Adaptor().IndexOf(item); }
    QRect Row(CTreeItem item) { return View().visualRect(Index(item)); }
    CTreeItem Current() {
        const QModelIndexList arrRows = View().selectionModel()->selectedRows();
        return arrRows.isEmpty() ? kNoTreeItem : Adaptor().ItemOf(arrRows.front());
    }
    void Click(CTreeItem item, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(View().viewport(), Qt::LeftButton, modifiers, Row(item).center());
    }
    void ClickArrow(CTreeItem item) {
        const QRect rc = Row(item);
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {},
                          {rc.left() - View().indentation() / 2, rc.center().y()});
    }

    CTreeModel tree;
    CTestSink sink;
    CTreeItem root, lazy, empty, leaf;
    CShownDialog shown{kDialog, {}, {.pTree = &tree}};
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

TEST_F(Tree, TheViewKeepsUpWithWhateverComesAndGoes) {
    CTreeAdaptor& adaptor = Adaptor();
    const auto nSeed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(nSeed));
    std::mt19937 random(nSeed);
    std::vector<CTreeItem> arrItems = {root, lazy, empty, leaf};
    // Qt itself holds on to items through these.
    std::map<CTreeItem, QPersistentModelIndex> mapHeld;
    for (int i = 0; i < 1500; ++i) {
        std::erase_if(arrItems, [&](CTreeItem item) { return !tree.Exists(item); });
        const CTreeItem item = arrItems.empty() ? kNoTreeItem : arrItems[random() % arrItems.size()];
        const auto nStep = random() % 8;
        if (nStep == 0 && item != root) tree.Delete(item);
        if (nStep == 1) tree.Expand(item);
        if (nStep == 2) tree.Collapse(item);
        if (nStep == 3) tree.Select(item);
        if (nStep == 4) tree.SetHasChildrenMark(item, random() % 2 == 0);
        if (nStep > 4) {
            const std::string strText = std::to_string(random() % 100);
            arrItems.push_back(tree.InsertSorted(item, strText, ETreeIcon::Folder, random() % 2 == 0));
            mapHeld[arrItems.back()] = adaptor.IndexOf(arrItems.back());
        }
        if (i % 7 == 0) QCoreApplication::processEvents();
    }
    ExpectSame(tree, adaptor, kNoTreeItem);
    for (const auto& [item, held] : mapHeld) {
        ASSERT_EQ(held.isValid(), tree.Exists(item));
        ASSERT_EQ(QModelIndex(held), adaptor.IndexOf(item));
    }
    std::erase_if(arrItems, [&](CTreeItem item) { return !tree.Exists(item); });
    for (const CTreeItem item : arrItems)
        ASSERT_EQ(View().isExpanded(adaptor.IndexOf(item)), tree.IsExpanded(item));
    EXPECT_EQ(Current(), tree.Selected());
    tree.DeleteAll();
    EXPECT_EQ(adaptor.rowCount({}), 0);
}

TEST_F(Tree, TheHandOpensAndIsAskedForEachTime) {
    ClickArrow(lazy);
    EXPECT_TRUE(tree.IsExpanded(lazy));
    EXPECT_EQ(View().model()->rowCount(Index(lazy)), 2);
    EXPECT_TRUE(View().isExpanded(Index(lazy)));
    ClickArrow(lazy);
    EXPECT_FALSE(tree.IsExpanded(lazy));
    Click(lazy);
    QTest::keyClick(&View(), Qt::Key_Right);
    EXPECT_TRUE(tree.IsExpanded(lazy));
    // A mark that promises too much: nothing is there, so nothing opens.
    ClickArrow(empty);
    EXPECT_FALSE(tree.IsExpanded(empty));
    EXPECT_FALSE(View().isExpanded(Index(empty)));
    EXPECT_EQ(sink.m_arrOpenings, (COpenings{{lazy, true}, {lazy, false}, {lazy, true}, {empty, true}}));
}

TEST_F(Tree, OneKeyDoesNotOpenTheWholeDisk) {
    Click(root);
    sink.m_arrOpenings.clear();
    QTest::keyClick(&View(), Qt::Key_Asterisk);
    EXPECT_TRUE(sink.m_arrOpenings.empty());
}

TEST_F(Tree, EachSelectionIsToldOnceWithItsCause) {
    Click(lazy);
    Click(lazy);
    Click(lazy, Qt::ControlModifier);
    QTest::keyClick(&View(), Qt::Key_Down);
    tree.Select(leaf);
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, {100, 280});
    // Drawn along with the button held, and pressed with the other one: neither selects.
    QTest::mousePress(View().viewport(), Qt::LeftButton, {}, Row(leaf).center());
    QTest::mouseMove(View().viewport(), Row(root).center());
    QTest::mouseClick(View().viewport(), Qt::RightButton, {}, Row(root).center());
    EXPECT_EQ(
        sink.m_arrSelections,
        (CSelections{{lazy, ETreeCause::Mouse}, {empty, ETreeCause::Keyboard}, {leaf, ETreeCause::Unknown}}));
    EXPECT_EQ(Current(), leaf);
}

TEST_F(Tree, ASelectionThatGoesLeavesNone) {
    Click(empty);
    sink.m_arrSelections.clear();
    tree.Delete(empty);
    QCoreApplication::processEvents();
    EXPECT_EQ(Current(), kNoTreeItem);
    EXPECT_EQ(tree.Selected(), kNoTreeItem);
    EXPECT_TRUE(sink.m_arrSelections.empty());
    QTest::keyClick(&View(), Qt::Key_Home);
    EXPECT_EQ(Current(), tree.Selected()) << "the keys go on working";
}

TEST_F(Tree, AnArrowStandsWhereTheMarkSaysSo) {
    const auto fnArrow = [&](CTreeItem item) {
        QCoreApplication::processEvents();
        const int nWidth = View().indentation();
        const QRect rc(Row(item).left() - nWidth, Row(item).top(), nWidth, Row(item).height());
        const QImage image = View().viewport()->grab(rc).toImage();
        QImage plain(image.size(), image.format());
        plain.fill(image.pixel(0, 0));
        return image != plain;
    };
    EXPECT_TRUE(fnArrow(empty));
    EXPECT_FALSE(fnArrow(leaf));
    tree.SetHasChildrenMark(empty, false);
    tree.SetHasChildrenMark(leaf, true);
    EXPECT_FALSE(fnArrow(empty));
    EXPECT_TRUE(fnArrow(leaf));
}

TEST_F(Tree, NamesOfAnyBytesStandInOneLine) {
    EXPECT_EQ(View().font().pixelSize(), 12);
    const CTreeItem odd = tree.InsertLast(root, "a\xff\nb", ETreeIcon::Folder, false);
    EXPECT_EQ(Index(odd).data().toString(), QStringLiteral("a\uFFFD b"));
    EXPECT_EQ(Row(odd).height(), Row(leaf).height());
}

TEST_F(Tree, OutlivesItsViewAndComesUpInAnotherAsItStands) {
    shown.view.reset();
    tree.Select(leaf);
    tree.Expand(lazy);
    const CShownDialog again(kDialog, {}, {.pTree = &tree});
    const auto& view = *qobject_cast<QTreeView*>(again.Widget(33));
    EXPECT_EQ(view.selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(view.currentIndex().data().toString(), "leaf");
}

TEST_F(Tree, ADeepNameCanBeScrolledTo) {
    CTreeItem item = lazy;
    for (int i = 0; i < 12; ++i)
        item = tree.InsertLast(item, "a folder with a long name", ETreeIcon::Folder, true);
    tree.Select(item);
    QCoreApplication::processEvents();
    const QRect rc = Row(item);
    EXPECT_TRUE(View().viewport()->rect().contains(QPoint(rc.left() + 20, rc.center().y())));
    EXPECT_GT(View().horizontalScrollBar()->maximum(), 0);
    for (int i = 0; i < 30; ++i) item = tree.InsertLast(lazy, "below", ETreeIcon::Folder, false);
    tree.Select(item);
    QCoreApplication::processEvents();
    EXPECT_TRUE(View().viewport()->rect().contains(Row(item).center()));
}

// A few pixels of each: a rim, the body's fall from light to dark, what tells it from the others.
TEST_F(Tree, EveryKindHasAnIconOfItsOwn) {
    using enum ETreeIcon;
    struct CLook {
        ETreeIcon icon;
        std::vector<QPoint> arrPoints;
        const char* szColors;
    };
    const CLook arrLooks[] = {
        {Computer, {{1, 6}, {7, 4}, {7, 9}, {8, 13}}, "ff3a4448 ff305667 ff305667 ff96a49e"},
        {Home, {{8, 5}, {4, 9}, {8, 11}, {8, 8}}, "ffd26a3b fff3ebd4 ff3e7086 ff955d47"},
        {Disk, {{8, 6}, {8, 10}, {11, 10}, {1, 10}}, "ffe2e8e3 ffb0bbb5 ff70be5c ff3a4448"},
        {Removable, {{12, 7}, {12, 9}, {4, 7}, {6, 10}}, "ff3a4448 ff3a4448 ffc9dbe1 ff487b91"},
        {Network, {{8, 4}, {11, 8}, {8, 12}, {4, 14}}, "ffe2e8e3 ff70be5c b22b4e5e b22b4e5e"},
        {Folder, {{4, 5}, {8, 8}, {8, 11}, {1, 10}}, "ffe49634 ffffde9e ffffb853 ff8a5416"},
    };
    for (const CLook& look : arrLooks) {
        const QImage image = CTreeIcons::Draw(look.icon).pixmap(16).toImage();
        ASSERT_EQ(image.size(), QSize(16, 16));
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
        QStringList arrColors;
        for (const QPoint pt : look.arrPoints) arrColors += QString::number(image.pixel(pt), 16);
        EXPECT_EQ(arrColors.join(' ').toStdString(), look.szColors);
    }
}

// The desktop's icon goes before the drawn one, also where its item is selected.
TEST_F(Tree, TheThemesIconsAreTakenWhereItHasThem) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath("test/16"));
    std::ofstream((folder.path() + "/test/index.theme").toStdString())
        << "[Icon Theme]\nName=test\nDirectories=16\n[16]\nSize=16\n";
    QImage red(16, 16, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(folder.path() + "/test/16/folder.png"));
    const QStringList arrPathsBefore = QIcon::themeSearchPaths();
    const QString strBefore = QIcon::themeName();
    QIcon::setThemeSearchPaths({folder.path()});
    QIcon::setThemeName("test");
    const CTreeIcons icons;
    QIcon::setThemeSearchPaths(arrPathsBefore);
    QIcon::setThemeName(strBefore);
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected})
        EXPECT_EQ(icons.Of(ETreeIcon::Folder).pixmap(QSize(16, 16), 1.0, mode).toImage().pixel(8, 8),
                  qRgb(255, 0, 0));
    EXPECT_EQ(icons.Of(ETreeIcon::Disk).pixmap(16).toImage(),
              CTreeIcons::Draw(ETreeIcon::Disk).pixmap(16).toImage());
}
