// Pictures in a grid: where they stand and how they look in the window, and what the dialog hears of the
// hand, in the window as by the driver.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QListView>
#include <QScrollBar>

#include "TestDialog.h"
#include "play/ScriptedPlatform.h"
#include "resources/MainLooks.h"

namespace {

constexpr CControlTemplate kControls[] = {
    {1146, EControlKind::PictureGrid, CRect::FromPlace(10, 10, 211, 409)},
    {42, EControlKind::Button, CRect::FromPlace(230, 10, 30, 20), "B"}};
constexpr CControlLookRow kLooks[] = {
    {1146, {.szSpoken = "grid", .border = EBorder::Sunken, .grid = MainLooks::kFrameGrid}}};
constexpr CDialogTemplate kDialog{903, "Grid", {280, 430}, EDialogFrame::Plain, kControls, kLooks};
constexpr int kCount = 13;
constexpr QRgb kGround = qRgb(109, 121, 126);
constexpr QRgb kWarm = qRgb(232, 143, 54);

QRgb ColorOf(int nItem) {
    return qRgb(20 + nItem, 7, 9);
}

std::vector<CListItem> Items() {
    std::vector<CListItem> arrItems;
    arrItems.reserve(kCount);
    for (int i = 0; i < kCount; ++i)
        arrItems.push_back({std::to_string(700 + i), -1, "spoken " + std::to_string(i)});
    return arrItems;
}

class PictureGrid : public testing::Test {
  protected:
    PictureGrid() : m_shown(kDialog, Skin()) {
        m_shown.Controls().SetItems(1146, Items());
        Settle();
    }
    static CTestBitmaps Skin() {
        CTestBitmaps skin;
        for (int i = 0; i < kCount; ++i)
            skin.Add(std::to_string(700 + i), {91, 69}, {static_cast<std::uint8_t>(20 + i), 7, 9});
        return skin;
    }
    QListView& View() { return *qobject_cast<QListView*>(m_shown.Widget(1146)); }
    QWidget& Port() { return *View().viewport(); }
    QScrollBar& Bar() { return *View().verticalScrollBar(); }
    QRect Cell(int nItem) { return View().visualRect(View().model()->index(nItem, 0)); }
    // Of the port; between the columns for -1.
    QPoint At(int nItem) { return nItem < 0 ? QPoint(95, 40) : Cell(nItem).center(); }
    QRgb ColorAt(QPoint pt) { return Port().grab().toImage().pixel(pt); }
    int Mark() { return m_shown.Controls().Selection(1146); }

    CShownDialog m_shown;
};

}  // namespace

TEST_F(PictureGrid, ItemsStandWhereTheyAreToldAndScroll) {
    EXPECT_EQ(Port().size(), QSize(193, 407));
    for (int i = 0; i < kCount; ++i)
        EXPECT_EQ(Cell(i), QRect(i % 2 == 0 ? 2 : 97, 8 + i / 2 * 80, 91, 69)) << i;
    EXPECT_EQ(Bar().minimum(), 0);
    EXPECT_EQ(Bar().maximum(), 161);
    EXPECT_EQ(Bar().pageStep(), 50);
    EXPECT_TRUE(Bar().isVisible());
    const QImage image = Port().grab().toImage();
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(image.pixel(Cell(i).topLeft()), ColorOf(i));
        EXPECT_EQ(image.pixel(Cell(i).bottomRight()), ColorOf(i));
        EXPECT_EQ(image.pixel(Cell(i).bottomRight() + QPoint(1, 1)), kGround);
    }
    Bar().setValue(Bar().maximum());
    EXPECT_EQ(m_shown.Controls().Position(1146), 161);
    EXPECT_EQ(Cell(12), QRect(2, 488 - 161, 91, 69));
    EXPECT_TRUE(Port().rect().contains(Cell(12)));
    EXPECT_EQ(ColorAt(At(12)), ColorOf(12));
    m_shown.Controls().SetPosition(1146, 40);
    EXPECT_EQ(Bar().value(), 40);
    Wheel(Port(), -120);
    EXPECT_GT(Bar().value(), 40);
    EXPECT_EQ(View().horizontalScrollBar()->maximum(), 0);
}

TEST_F(PictureGrid, TheMarkIsARimAroundOnePicture) {
    m_shown.Controls().Select(1146, 3);
    Settle();
    const QImage image =
        OnScreen(*m_shown.view).copy(QRect(Port().mapTo(m_shown.view.get(), QPoint()), Port().size()));
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(image.pixel(Cell(i).center()), ColorOf(i));
        EXPECT_EQ(image.pixel(Cell(i).topLeft() - QPoint(1, 1)) == kWarm, i == 3) << i;
        EXPECT_EQ(image.pixel(Cell(i).bottomRight() + QPoint(2, 2)) == kWarm, i == 3) << i;
    }
    EXPECT_EQ(image.pixel(Cell(3).topLeft()), ColorOf(3));
    m_shown.Controls().Select(1146, -1);
    Settle();
    EXPECT_EQ(ColorAt(Cell(3).topLeft() - QPoint(1, 1)), kGround);
    EXPECT_TRUE(m_shown.dialog.m_arrNotices.empty()) << "the program's own doing is no click";
}

// Whoever reads the window aloud finds every picture by its name, and can choose it.
TEST_F(PictureGrid, OthersFindItsItemsByTheirNames) {
    QAccessibleInterface* pList = QAccessible::queryAccessibleInterface(&View());
    ASSERT_NE(pList, nullptr);
    EXPECT_EQ(pList->text(QAccessible::Name), "grid");
    ASSERT_EQ(pList->childCount(), kCount);
    EXPECT_EQ(pList->child(4)->text(QAccessible::Name), "spoken 4");
    EXPECT_EQ(pList->child(4)->rect(), QRect(Port().mapToGlobal(Cell(4).topLeft()), Cell(4).size()));
    View().selectionModel()->setCurrentIndex(View().model()->index(4, 0),
                                             QItemSelectionModel::ClearAndSelect);
    EXPECT_EQ(Mark(), 4);
    EXPECT_EQ(m_shown.dialog.m_arrNotices, (CNotices{{1146, ENotice::Clicked}}));
}

TEST_F(PictureGrid, WhatIsNoClick) {
    QWindow* pWindow = m_shown.view->windowHandle();
    const auto fnAt = [&](int nItem) { return Port().mapTo(m_shown.view.get(), At(nItem)); };
    const auto fnDrag = [&](QPoint ptFrom, QPoint ptTo) {
        Press(*m_shown.view, ptFrom);
        Move(*m_shown.view, ptTo);
        Release(*m_shown.view, ptTo);
    };
    fnDrag(fnAt(0), fnAt(1));
    fnDrag(fnAt(-1), fnAt(1));
    fnDrag(fnAt(1), fnAt(-1));
    fnDrag(fnAt(-1), {270, 300});
    QTest::mouseClick(pWindow, Qt::RightButton, {}, fnAt(2));
    EXPECT_TRUE(m_shown.dialog.m_arrNotices.empty());
    EXPECT_EQ(Mark(), -1);
    // The second of two quick clicks is none of its own.
    QTest::mouseDClick(pWindow, Qt::LeftButton, {}, fnAt(2));
    EXPECT_EQ(m_shown.dialog.m_arrNotices.size(), 1U);
    EXPECT_EQ(Mark(), 2);
}

// The driver without a window is held to the window: the dialog hears the same of the same hand, and the grid
// has scrolled as far.
TEST_F(PictureGrid, TheDriverTellsTheDialogWhatTheWindowTells) {
    CTestDialog dialog(kDialog);
    dialog.Controls().SetItems(1146, Items());
    CScriptedPlatform platform;
    CPlayHost host(platform, dialog);
    host.Init();
    QWindow* pWindow = m_shown.view->windowHandle();
    const auto fnState = [](CTestDialog& who) {
        const CNotices arrHeard = std::exchange(who.m_arrNotices, {});
        std::string str;
        for (const auto& [nId, notice] : arrHeard) str += notice == ENotice::Clicked ? "click " : "other ";
        const CControlSet& controls = who.Controls();
        return str + "mark " + std::to_string(controls.Selection(1146)) + " at " +
               std::to_string(controls.Position(1146)) + " focus " + std::to_string(controls.Focus());
    };
    const auto fnSame = [&](const std::string& strWhy, const std::string& strWanted) {
        EXPECT_EQ(strWhy, "");
        EXPECT_EQ(fnState(m_shown.dialog), strWanted) << "in the window";
        EXPECT_EQ(fnState(dialog), strWanted) << "by the driver";
    };
    const auto fnClick = [&](int nItem) {
        if (nItem >= 0) View().scrollTo(View().model()->index(nItem, 0));
        QTest::mouseClick(pWindow, Qt::LeftButton, {}, Port().mapTo(m_shown.view.get(), At(nItem)));
        return host.SelectRow(1146, nItem);
    };
    const auto fnKey = [&](Qt::Key key, int nKey) {
        QTest::keyClick(pWindow, key);
        return host.Key({nKey});
    };
    fnSame(fnClick(3), "click mark 3 at 0 focus 1146");
    fnSame(fnClick(3), "click mark 3 at 0 focus 1146");
    fnSame(fnClick(-1), "click mark -1 at 0 focus 1146");
    fnSame(fnKey(Qt::Key_Down, kKeyDown), "click mark 0 at 0 focus 1146");
    fnSame(fnKey(Qt::Key_Up, kKeyUp), "mark 0 at 0 focus 1146");
    fnSame(fnKey(Qt::Key_Right, kKeyRight), "click mark 1 at 0 focus 1146");
    fnSame(fnKey(Qt::Key_Space, kKeySpace), "click mark 1 at 0 focus 1146");
    fnSame(fnKey(Qt::Key_PageDown, kKeyPageDown), "click mark 11 at 78 focus 1146");
    fnSame(fnKey(Qt::Key_Down, kKeyDown), "click mark 12 at 158 focus 1146");
    fnSame(fnKey(Qt::Key_Down, kKeyDown), "mark 12 at 158 focus 1146");
    fnSame(fnKey(Qt::Key_Left, kKeyLeft), "click mark 11 at 158 focus 1146");
    fnSame(fnKey(Qt::Key_Home, kKeyHome), "click mark 0 at 0 focus 1146");
    fnSame(fnKey(Qt::Key_Q, 'Q'), "mark 0 at 0 focus 1146");
    fnSame(fnClick(12), "click mark 12 at 158 focus 1146");
    fnSame(fnClick(0), "click mark 0 at 0 focus 1146");
    EXPECT_NE(host.SelectRow(1146, kCount), "");
    EXPECT_NE(host.SelectRow(1146, -2), "");
    EXPECT_TRUE(m_shown.dialog.m_arrMouse.empty());
}
