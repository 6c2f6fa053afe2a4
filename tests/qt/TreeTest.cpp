// The folder tree in its view: what the program does to the one shows in the other, and what the hand does is
// told once, with its cause.

#include <gtest/gtest.h>

#include <QDir>
#include <QPersistentModelIndex>
#include <QScrollBar>
#include <QTemporaryDir>
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

// A few pixels of each: a rim, the body's fall from light to dark, what tells it from the others.
TEST(Tree, EveryKindHasAnIconOfItsOwn) {
    struct CLook {
        ETreeIcon icon;
        QPoint pt;
        QRgb rgb;
    };
    using enum ETreeIcon;
    for (const CLook& look : {CLook{Computer, {1, 6}, 0xff3a4448}, {Computer, {7, 4}, 0xff305667},
                              {Computer, {7, 9}, 0xff305667},      {Computer, {8, 13}, 0xff96a49e},
                              {Home, {8, 5}, 0xffd26a3b},          {Home, {4, 9}, 0xfff3ebd4},
                              {Home, {8, 11}, 0xff3e7086},         {Home, {8, 8}, 0xff955d47},
                              {Disk, {8, 6}, 0xffe2e8e3},          {Disk, {8, 10}, 0xffb0bbb5},
                              {Disk, {11, 10}, 0xff70be5c},        {Disk, {1, 10}, 0xff3a4448},
                              {Removable, {12, 7}, 0xff3a4448},    {Removable, {12, 9}, 0xff3a4448},
                              {Removable, {4, 7}, 0xffc9dbe1},     {Removable, {6, 10}, 0xff487b91},
                              {Network, {8, 4}, 0xffe2e8e3},       {Network, {11, 8}, 0xff70be5c},
                              {Network, {8, 12}, 0xb22b4e5e},      {Network, {4, 14}, 0xb22b4e5e},
                              {Folder, {4, 5}, 0xffe49634},        {Folder, {8, 8}, 0xffffde9e},
                              {Folder, {8, 11}, 0xffffb853},       {Folder, {1, 10}, 0xff8a5416}}) {
        const QImage image = CTreeIcons::Draw(look.icon).pixmap(16).toImage();
        ASSERT_EQ(image.size(), QSize(16, 16));
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
        EXPECT_EQ(image.pixel(look.pt), look.rgb)
            << static_cast<int>(look.icon) << " at " << look.pt.x() << "," << look.pt.y();
    }
}

// The desktop's icon goes before the drawn one, also where its item is selected.
TEST(Tree, TheThemesIconsAreTakenWhereItHasThem) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath("test/16"));
    QFile index(folder.path() + "/test/index.theme");
    ASSERT_TRUE(index.open(QFile::WriteOnly));
    index.write("[Icon Theme]\nName=test\nDirectories=16\n[16]\nSize=16\n");
    index.close();
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
