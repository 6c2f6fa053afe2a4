// The list of photographs in its view: where cells stand and what they show, what the hand selects, and what
// the list's logic hears of the hand.

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QListView>
#include <QPaintEvent>
#include <QScrollBar>

#include "TestDialog.h"
#include "play/ScriptedPlatform.h"

namespace {

constexpr CControlTemplate kControls[] = {
    {17, EControlKind::IconList, CRect::FromPlace(10, 10, 658, 543)},
    {18, EControlKind::Button, CRect::FromPlace(10, 560, 60, 20), "Beside"},
};
constexpr CDialogTemplate kDialog{902, "Icons", {680, 590}, EDialogFrame::Plain, kControls};
constexpr CColor kRed{200, 20, 30};

// Writes down in short words what it hears.
class CTestSink : public CIconListSink {
  public:
    explicit CTestSink(CIconListModel& icons) : m_icons(icons) { icons.SetSink(this); }
    void OnItemClick(int nItem) override { Add("click", nItem); }
    void OnItemDoubleClick(int nItem) override {
        Add("double", nItem);
        if (m_fnDouble) m_fnDouble();
    }
    void OnEnter() override { m_arrHeard.emplace_back("enter"); }
    void OnKeyDown(int nKey, bool bShift) override { Add(bShift ? "shift+key" : "key", nKey); }
    void OnRightPress(int nItem) override {
        Add("right", nItem);
        if (nItem >= 0) m_icons.Select(nItem, !m_icons.IsSelected(nItem));
    }
    void OnLeftPress() override { m_arrHeard.emplace_back("press"); }
    void OnLeftRelease() override { m_arrHeard.emplace_back("release"); }
    void OnMouseMove() override { ++m_nMoves; }

    std::vector<std::string> Take() { return std::exchange(m_arrHeard, {}); }
    std::function<void()> m_fnDouble;
    int m_nMoves = 0;

  private:
    void Add(const char* szWhat, int n) {
        m_arrHeard.push_back(QString("%1 %2").arg(szWhat).arg(n).toStdString());
    }
    CIconListModel& m_icons;
    std::vector<std::string> m_arrHeard;
};

std::vector<std::string> Names(int nCount) {
    std::vector<std::string> arrNames;
    for (int i = 0; i < nCount; ++i) arrNames.push_back(QString("p%1.jpg").arg(i).toStdString());
    return arrNames;
}

CPixels Picture(CColor color) {
    CPixels pixels;
    pixels.CreateFilled(110, 110, color);
    return pixels;
}

struct CShownIcons {
    explicit CShownIcons(int nCount = 12) : sink(icons) {
        icons.SetItems(Names(nCount));
        Settle();
    }
    QListView& View() { return *qobject_cast<QListView*>(shown.Widget(17)); }
    QWidget& Port() { return *View().viewport(); }
    QRect Cell(int nItem) { return View().visualRect(View().model()->index(nItem, 0)); }
    QPoint Middle(int nItem) { return Cell(nItem).center() - QPoint(0, 20); }
    void Click(int nItem, Qt::KeyboardModifiers modifiers = {}, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(&Port(), button, modifiers, Middle(nItem));
    }
    QColor ColorAt(QPoint pt) { return Port().grab().toImage().pixelColor(pt); }
    std::vector<int> Shown() {
        std::vector<int> arrRows;
        for (const QModelIndex& index : View().selectionModel()->selectedIndexes())
            arrRows.push_back(index.row());
        std::sort(arrRows.begin(), arrRows.end());
        return arrRows;
    }

    CIconListModel icons;
    CTestSink sink;
    CShownDialog shown{kDialog, nullptr, &icons};
};

using CHeard = std::vector<std::string>;
using CItems = std::vector<int>;

}  // namespace

TEST(IconList, FiveColumnsStandWithAndWithoutTheScrollBar) {
    CShownIcons shown;
    for (const int nCount : {12, 500}) {
        shown.icons.SetItems(Names(nCount));
        Settle();
        EXPECT_EQ(shown.View().verticalScrollBar()->isVisible(), nCount == 500);
        EXPECT_EQ(shown.Cell(4).top(), shown.Cell(0).top());
        EXPECT_GT(shown.Cell(5).top(), shown.Cell(0).bottom());
        EXPECT_EQ(shown.Cell(5).left(), shown.Cell(0).left());
        EXPECT_TRUE(shown.Port().rect().contains(shown.Cell(4)));
    }
    EXPECT_EQ(shown.View().horizontalScrollBar()->maximum(), 0);
}

TEST(IconList, APictureComesUpInItsCellAndPaintsNoOther) {
    CShownIcons shown;
    EXPECT_NE(shown.ColorAt(shown.Middle(1)), QColor(200, 20, 30));
    QRegion painted;
    struct CWatch : QObject {
        explicit CWatch(QRegion& r) : region(r) {}
        bool eventFilter(QObject* /*pObject*/, QEvent* pEvent) override {
            if (pEvent->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(pEvent)->region();
            return false;
        }
        QRegion& region;
    } watch(painted);
    shown.Port().installEventFilter(&watch);
    shown.icons.SetPicture(1, Picture(kRed));
    Settle();
    shown.Port().removeEventFilter(&watch);
    EXPECT_FALSE(painted.isEmpty());
    EXPECT_TRUE(shown.Cell(1).adjusted(-8, -8, 8, 8).contains(painted.boundingRect()));
    EXPECT_EQ(shown.ColorAt(shown.Middle(1)), QColor(200, 20, 30));
    // New items: the old pictures have gone with the old names.
    shown.icons.SetItems(Names(3));
    Settle();
    EXPECT_NE(shown.ColorAt(shown.Middle(1)), QColor(200, 20, 30));
}

TEST(IconList, ALongNameKeepsItsEndsAndItsCell) {
    CShownIcons shown;
    std::string strLong;
    for (int i = 0; i < 40; ++i) strLong += "很长的名字";
    shown.icons.SetItems({"a.jpg", strLong + ".jpg", "bytes\xff\xfe\n.jpg", "d.jpg"});
    Settle();
    EXPECT_EQ(shown.Cell(1).size(), shown.Cell(0).size());
    // Nothing of the long name reaches over to its neighbours.
    const QImage image = shown.Port().grab().toImage();
    for (int y = 0; y < shown.Cell(0).bottom(); ++y)
        for (int x = shown.Cell(0).right() + 2; x < shown.Cell(1).left() - 2; ++x)
            ASSERT_EQ(image.pixelColor(x, y), QColor(109, 121, 126));
}

TEST(IconList, TheHandSelectsAsInAnyList) {
    CShownIcons shown;
    const auto fnSelected = [&] {
        EXPECT_EQ(shown.Shown(), shown.icons.SelectedItems());
        return shown.icons.SelectedItems();
    };
    shown.Click(2);
    EXPECT_EQ(fnSelected(), CItems{2});
    shown.Click(4, Qt::ControlModifier);
    shown.Click(6, Qt::ControlModifier);
    shown.Click(4, Qt::ControlModifier);
    EXPECT_EQ(fnSelected(), (CItems{2, 6}));
    // A press on one of several, the first or another, leaves them all until the button is up again.
    for (const int nPressed : {0, 2}) {
        shown.Click(0);
        shown.Click(3, Qt::ShiftModifier);
        EXPECT_EQ(fnSelected(), (CItems{0, 1, 2, 3}));
        QTest::mousePress(&shown.Port(), Qt::LeftButton, {}, shown.Middle(nPressed));
        EXPECT_EQ(fnSelected().size(), 4U);
        QTest::mouseRelease(&shown.Port(), Qt::LeftButton, {}, shown.Middle(nPressed));
        EXPECT_EQ(fnSelected(), CItems{nPressed});
        // Drawn along they are all on their way, and stay selected wherever the button comes up.
        shown.Click(0);
        shown.Click(3, Qt::ShiftModifier);
        QTest::mousePress(&shown.Port(), Qt::LeftButton, {}, shown.Middle(nPressed));
        QTest::mouseMove(&shown.Port(), shown.Middle(7));
        QTest::mouseRelease(&shown.Port(), Qt::LeftButton, {}, shown.Middle(7));
        EXPECT_EQ(fnSelected(), (CItems{0, 1, 2, 3}));
    }
    QTest::keyClick(&shown.View(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(fnSelected().size(), 12U);
    QTest::mouseClick(&shown.Port(), Qt::LeftButton, {}, {300, 520});
    EXPECT_EQ(fnSelected(), CItems{});
    shown.Click(0);
    QTest::keyClick(&shown.View(), Qt::Key_Right);
    QTest::keyClick(&shown.View(), Qt::Key_Down);
    EXPECT_EQ(fnSelected(), CItems{6});
}

TEST(IconList, ARubberBandTakesWhatItTouches) {
    CShownIcons shown(7);
    QWidget& port = shown.Port();
    const QPoint ptStart(shown.Cell(6).right() + 60, shown.Cell(6).bottom() + 20);
    QTest::mousePress(&port, Qt::LeftButton, {}, ptStart);
    QTest::mouseMove(&port, shown.Middle(6));
    QTest::mouseMove(&port, shown.Middle(1));
    EXPECT_EQ(shown.icons.SelectedItems(), (CItems{1, 2, 6}));
    EXPECT_GE(shown.sink.m_nMoves, 2);
    QTest::mouseRelease(&port, Qt::LeftButton, {}, shown.Middle(1));
    EXPECT_EQ(shown.sink.Take(), (CHeard{"press", "release"})) << "and no click";
    // One that starts on an item would be a drag of that item.
    QTest::mousePress(&port, Qt::LeftButton, {}, shown.Middle(0));
    QTest::mouseMove(&port, shown.Middle(6));
    QTest::mouseRelease(&port, Qt::LeftButton, {}, shown.Middle(6));
    EXPECT_EQ(shown.icons.SelectedItems(), CItems{0});
}

TEST(IconList, ClicksAreToldWithTheirItem) {
    CShownIcons shown;
    shown.Click(3);
    EXPECT_EQ(shown.sink.Take(), (CHeard{"press", "click 3"})) << "the list keeps the release of a click";
    QTest::mouseClick(&shown.Port(), Qt::LeftButton, {}, {300, 520});
    EXPECT_EQ(shown.sink.Take(), (CHeard{"press", "release", "click -1"}));
    // In the gap between two cells there is no item.
    QTest::mouseClick(&shown.Port(), Qt::LeftButton, {}, {shown.Cell(0).right() + 3, shown.Middle(0).y()});
    EXPECT_EQ(shown.sink.Take(), (CHeard{"press", "release", "click -1"}));
    QTest::mouseDClick(&shown.Port(), Qt::LeftButton, {}, shown.Middle(5));
    EXPECT_EQ(shown.sink.Take().back(), "double 5");
    QTest::mouseDClick(&shown.Port(), Qt::LeftButton, {}, {300, 520});
    const CHeard arrHeard = shown.sink.Take();
    EXPECT_NE(std::find(arrHeard.begin(), arrHeard.end(), "double -1"), arrHeard.end());
    // Drawn out of the list, and drawn along inside it.
    QTest::mousePress(&shown.Port(), Qt::LeftButton, {}, shown.Middle(0));
    QTest::mouseMove(&shown.Port(), {-200, 20});
    QTest::mouseRelease(&shown.Port(), Qt::LeftButton, {}, {-200, 20});
    EXPECT_EQ(shown.sink.Take(), CHeard{"press"});
    QTest::mousePress(&shown.Port(), Qt::LeftButton, {}, shown.Middle(0));
    QTest::mouseMove(&shown.Port(), {300, 520});
    QTest::mouseRelease(&shown.Port(), Qt::LeftButton, {}, {300, 520});
    EXPECT_EQ(shown.sink.Take(), (CHeard{"press", "release"}));
}

TEST(IconList, ADoubleClickMayChangeEverything) {
    CShownIcons shown;
    shown.sink.m_fnDouble = [&] { shown.icons.SetItems(Names(1)); };
    QTest::mouseDClick(&shown.Port(), Qt::LeftButton, {}, shown.Middle(9));
    Settle();
    EXPECT_EQ(shown.View().model()->rowCount(), 1);
    EXPECT_EQ(shown.icons.SelectedItems(), CItems{});
    shown.sink.m_fnDouble = [&] { shown.icons.SetItems({}); };
    QTest::mouseDClick(&shown.Port(), Qt::LeftButton, {}, shown.Middle(0));
    Settle();
    QTest::keyClick(&shown.View(), Qt::Key_Down);
    EXPECT_EQ(shown.Shown(), CItems{});
}

TEST(IconList, TheRightButtonOnlyAsks) {
    CShownIcons shown;
    shown.Click(1);
    shown.sink.Take();
    shown.Click(7, {}, Qt::RightButton);
    shown.Click(2, {}, Qt::RightButton);
    shown.Click(1, {}, Qt::RightButton);
    EXPECT_EQ(shown.sink.Take(), (CHeard{"right 7", "right 2", "right 1"}));
    EXPECT_EQ(shown.icons.SelectedItems(), (CItems{2, 7}));
    EXPECT_EQ(shown.Shown(), (CItems{2, 7}));
    EXPECT_TRUE(shown.shown.dialog.m_arrMouse.empty());
}

TEST(IconList, KeysReachTheLogic) {
    CShownIcons shown;
    shown.Click(1);
    shown.sink.Take();
    QTest::keyClick(&shown.View(), Qt::Key_Delete);
    QTest::keyClick(&shown.View(), Qt::Key_Delete, Qt::ShiftModifier);
    QTest::keyClick(&shown.View(), Qt::Key_Return);
    EXPECT_EQ(shown.sink.Take(), (CHeard{"key 46", "shift+key 46", "enter"}));
}

// The picture in the middle of its cell with the name in white below, an empty well where there is none; what
// is selected has a warm rim around the picture and warm ground below the name.
TEST(IconList, CellsLookAsTheirItemsAre) {
    CShownIcons shown;
    shown.icons.SetItems({"a", "beside", "c", "one name that needs two lines.jpg"});
    for (const int nItem : {0, 1}) shown.icons.SetPicture(nItem, Picture(kRed));
    shown.icons.Select(0, true);
    Settle();
    const QImage image = shown.Port().grab().toImage();
    const QColor ground(109, 121, 126), red(200, 20, 30), warm(232, 143, 54);
    struct CLook {
        int nItem;
        QPoint pt;  // in the cell
        QColor color;
    };
    for (const CLook& look : {CLook{1, {4, 5}, red},
                              {1, {113, 114}, red},
                              {1, {3, 5}, ground},
                              {1, {4, 4}, ground},
                              {1, {114, 60}, ground},
                              {1, {60, 115}, ground},
                              {0, {4, 5}, red},
                              {0, {3, 60}, warm},
                              {0, {1, 60}, warm},
                              {0, {0, 60}, ground},
                              {0, {60, 3}, warm},
                              {0, {114, 60}, warm},
                              {0, {60, 116}, warm},
                              {0, {52, 128}, warm},
                              {0, {30, 128}, ground},
                              {2, {4, 5}, {92, 103, 108}},
                              {2, {113, 114}, {92, 103, 108}},
                              {2, {5, 6}, {103, 115, 120}}})
        EXPECT_EQ(image.pixelColor(shown.Cell(look.nItem).topLeft() + look.pt), look.color)
            << look.nItem << " at " << look.pt.x() << "," << look.pt.y();
    // White ink in the first line of a short name, and in both lines of a long one.
    const auto fnInked = [&](int nItem, int nTop) {
        int nInked = 0;
        for (int y = nTop; y < nTop + 15; ++y)
            for (int x = 0; x < 118; ++x)
                nInked += qGray(image.pixel(shown.Cell(nItem).topLeft() + QPoint(x, y))) > 220 ? 1 : 0;
        return nInked;
    };
    EXPECT_GT(fnInked(1, 120), 5);
    EXPECT_EQ(fnInked(1, 136), 0);
    EXPECT_GT(fnInked(3, 120), 20);
    EXPECT_GT(fnInked(3, 136), 20);
}

// The driver without a window is held to the window: the logic hears the same of the same hand.
TEST(IconList, TheDriverTellsTheLogicWhatTheWindowTells) {
    CShownIcons shown;
    CIconListModel icons;
    CTestSink sink(icons);
    icons.SetItems(Names(12));
    CTestDialog dialog(kDialog);
    dialog.m_pIcons = &icons;
    CScriptedPlatform platform;
    CPlayHost host(platform, dialog);
    host.Init();
    QWindow* pWindow = shown.shown.view->windowHandle();
    const auto fnAt = [&](int nItem) {
        const QPoint pt = nItem < 0 ? QPoint(300, 520) : shown.Middle(nItem);
        return shown.Port().mapTo(shown.shown.view.get(), pt);
    };
    const auto fnClick = [&](int nItem, Qt::KeyboardModifiers keys, unsigned nKeys) {
        QTest::mouseClick(pWindow, Qt::LeftButton, keys, fnAt(nItem));
        return host.ClickIcon(17, nItem, nKeys);
    };
    const auto fnDouble = [&](int nItem) {
        QTest::mouseDClick(pWindow, Qt::LeftButton, {}, fnAt(nItem));
        return host.DoubleClickIcon(17, nItem);
    };
    const auto fnKey = [&](Qt::Key key, Qt::KeyboardModifiers keys, const CKeyEvent& event) {
        QTest::keyClick(pWindow, key, keys);
        return host.KeyInIcons(17, event);
    };
    struct CStep {
        const char* szName;
        std::function<std::string()> fnDo;
        CHeard arrHeard;
    };
    const CStep arrSteps[] = {
        {"click", [&] { return fnClick(3, {}, 0); }, {"press", "click 3"}},
        {"click with ctrl",
         [&] { return fnClick(5, Qt::ControlModifier, kMouseCtrl); },
         {"press", "click 5"}},
        {"click with shift",
         [&] { return fnClick(8, Qt::ShiftModifier, kMouseShift); },
         {"press", "click 8"}},
        {"click on one of several", [&] { return fnClick(6, {}, 0); }, {"press", "click 6"}},
        {"click beside", [&] { return fnClick(-1, {}, 0); }, {"press", "release", "click -1"}},
        {"row",
         [&] {
             QTest::mouseClick(pWindow, Qt::LeftButton, {}, fnAt(2));
             return host.SelectRow(17, 2);
         },
         {"press", "click 2"}},
        {"double click", [&] { return fnDouble(1); }, {"press", "click 1", "double 1", "release"}},
        {"double click beside",
         [&] { return fnDouble(-1); },
         {"press", "release", "click -1", "double -1", "release"}},
        {"right press",
         [&] {
             QTest::mouseClick(pWindow, Qt::RightButton, {}, fnAt(4));
             return host.RightPressIcon(17, 4);
         },
         {"right 4"}},
        {"rubber band",
         [&] {
             const QPoint ptStart = shown.Port().mapTo(
                 shown.shown.view.get(), QPoint(shown.Cell(11).right() + 30, shown.Cell(11).bottom() + 20));
             Press(*shown.shown.view, ptStart);
             Move(*shown.shown.view, fnAt(11));
             Move(*shown.shown.view, fnAt(11) + QPoint(1, 1));
             Release(*shown.shown.view, fnAt(11) + QPoint(1, 1));
             return host.BandIcons(17, {11});
         },
         {"press", "release"}},
        {"delete", [&] { return fnKey(Qt::Key_Delete, {}, {kKeyDelete}); }, {"key 46"}},
        {"shift delete",
         [&] {
             return fnKey(Qt::Key_Delete, Qt::ShiftModifier, {kKeyDelete, false, true});
         },
         {"shift+key 46"}},
        {"enter", [&] { return fnKey(Qt::Key_Return, {}, {kKeyEnter}); }, {"enter"}},
        {"a letter", [&] { return fnKey(Qt::Key_Q, {}, {'Q'}); }, {}},
        {"page", [&] { return fnKey(Qt::Key_F5, {}, {}); }, {}},
    };
    for (const CStep& step : arrSteps) {
        EXPECT_EQ(step.fnDo(), "") << step.szName;
        EXPECT_EQ(shown.sink.Take(), step.arrHeard) << step.szName << " in the window";
        EXPECT_EQ(sink.Take(), step.arrHeard) << step.szName << " by the driver";
        EXPECT_EQ(icons.SelectedItems(), shown.icons.SelectedItems()) << step.szName;
    }
    EXPECT_GT(shown.sink.m_nMoves, 0);
    EXPECT_GT(sink.m_nMoves, 0);
    EXPECT_TRUE(shown.shown.dialog.m_arrNotices.empty() && dialog.m_arrNotices.empty())
        << "only the list's own logic hears";
}

// A folder's list may outlive the window that shows it.
TEST(IconList, TheListOutlivesItsView) {
    CShownIcons shown;
    shown.shown.view.reset();
    shown.icons.SetItems(Names(3));
    shown.icons.SetPicture(1, Picture(kRed));
    shown.icons.Select(2, true);
    EXPECT_EQ(shown.icons.SelectedItems(), CItems{2});
}

TEST(IconList, TwentyThousandItemsComeUpAtOnce) {
    CShownIcons shown;
    QElapsedTimer timer;
    timer.start();
    shown.icons.SetItems(Names(20000));
    shown.Port().grab();
    const auto nShow = timer.restart();
    shown.View().verticalScrollBar()->setValue(shown.View().verticalScrollBar()->maximum());
    shown.Port().grab();
    const auto nScroll = timer.restart();
    for (int i = 0; i < 1000; ++i) shown.icons.SetPicture(19000 + i, Picture(kRed));
    Settle();
    const auto nChange = timer.restart();
    QTest::keyClick(&shown.View(), Qt::Key_A, Qt::ControlModifier);
    const auto nSelect = timer.restart();
    EXPECT_EQ(shown.icons.SelectedCount(), 20000);
    // Far above what it takes, below what anything that grows with the square would.
    for (const auto nTime : {nShow, nScroll, nChange, nSelect}) EXPECT_LT(nTime, 3000);
}
