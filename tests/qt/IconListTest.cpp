// The list of photographs in its view: where cells stand and what they show, what the hand selects, and what
// the list's logic hears of the hand.

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QListView>
#include <QScrollBar>

#include "PaintWatch.h"
#include "TestDialog.h"
#include "play/ScriptedPlatform.h"

namespace {

constexpr CControlTemplate kControls[] = {
    {17, EControlKind::IconList, CRect::FromPlace(10, 10, 658, 543)},
    {18, EControlKind::Button, CRect::FromPlace(10, 560, 60, 20), "Beside"},
};
constexpr CDialogTemplate kDialog{902, "Icons", {680, 590}, EDialogFrame::Plain, kControls};

// Writes down in short words what it hears.
class CTestSink : public CIconListSink {
  public:
    explicit CTestSink(CIconListModel& icons) : m_icons(icons) { icons.SetSink(this); }
    void OnItemClick(int nItem) override { Add("click " + std::to_string(nItem)); }
    void OnItemDoubleClick(int nItem) override {
        Add("double " + std::to_string(nItem));
        if (m_fnDouble) m_fnDouble();
    }
    void OnEnter() override { Add("enter"); }
    void OnKeyDown(int nKey, bool bShift) override {
        Add((bShift ? "shift " : "key ") + std::to_string(nKey));
    }
    void OnRightPress(int nItem) override {
        Add("right " + std::to_string(nItem));
        if (nItem >= 0) m_icons.Select(nItem, !m_icons.IsSelected(nItem));
    }
    void OnLeftPress() override { Add("press"); }
    void OnLeftRelease() override { Add("release"); }
    void OnMouseMove() override { ++m_nMoves; }

    std::string Take() { return std::exchange(m_strHeard, {}); }
    std::function<void()> m_fnDouble;
    int m_nMoves = 0;

  private:
    void Add(const std::string& strWhat) { m_strHeard += (m_strHeard.empty() ? "" : ", ") + strWhat; }
    CIconListModel& m_icons;
    std::string m_strHeard;
};

std::vector<std::string> Names(int nCount) {
    std::vector<std::string> arrNames(static_cast<std::size_t>(nCount));
    for (int i = 0; std::string & strName : arrNames) strName = QString("p%1.jpg").arg(i++).toStdString();
    return arrNames;
}

CPixels RedPicture() {
    return CPixels::MakeFilled(110, 110, {200, 20, 30});
}

class IconList : public testing::Test {
  protected:
    IconList() { Fill(Names(12)); }
    void Fill(const std::vector<std::string>& arrNames) {
        m_icons.SetItems(arrNames);
        Settle();
    }
    QListView& View() { return *qobject_cast<QListView*>(m_shown.Widget(17)); }
    QWidget& Port() { return *View().viewport(); }
    QRect Cell(int nItem) { return View().visualRect(View().model()->index(nItem, 0)); }
    // Of the port; -1 for a point beside all items.
    QPoint At(int nItem) { return nItem < 0 ? QPoint(300, 520) : Cell(nItem).center() - QPoint(0, 20); }
    void Click(int nItem, Qt::KeyboardModifiers keys = {}, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(&Port(), button, keys, At(nItem));
    }
    void Draw(std::initializer_list<QPoint> arrPoints) {
        QTest::mousePress(&Port(), Qt::LeftButton, {}, *arrPoints.begin());
        for (const QPoint pt : arrPoints) QTest::mouseMove(&Port(), pt);
        QTest::mouseRelease(&Port(), Qt::LeftButton, {}, *std::prev(arrPoints.end()));
    }
    QColor ColorAt(QPoint pt) { return Port().grab().toImage().pixelColor(pt); }
    // What is selected, which the view and the list agree on.
    std::vector<int> Selected() {
        std::vector<int> arrRows;
        for (const QModelIndex& index : View().selectionModel()->selectedIndexes())
            arrRows.push_back(index.row());
        std::sort(arrRows.begin(), arrRows.end());
        EXPECT_EQ(arrRows, m_icons.SelectedItems());
        return arrRows;
    }

    CIconListModel m_icons;
    CTestSink m_sink{m_icons};
    CShownDialog m_shown{kDialog, {}, {.pIcons = &m_icons}};
};

using CItems = std::vector<int>;

// The colours along a line of pixels: a letter and how many of it.
std::string RunsAlong(const QImage& image, QPoint pt, QPoint ptStep, int nCount) {
    const std::map<QRgb, QChar> mapLetters = {{qRgb(109, 121, 126), 'g'},
                                              {qRgb(200, 20, 30), 'r'},
                                              {qRgb(232, 143, 54), 'w'},
                                              {qRgb(92, 103, 108), 'e'},
                                              {qRgb(103, 115, 120), 'f'}};
    QString strRuns;
    for (int i = 0, nRun = 1; i < nCount; ++i, pt += ptStep, ++nRun) {
        const QRgb rgb = image.pixel(pt);
        if (i + 1 < nCount && image.pixel(pt + ptStep) == rgb) continue;
        strRuns += QString("%1%2 ").arg(mapLetters.contains(rgb) ? mapLetters.at(rgb) : '?').arg(nRun);
        nRun = 0;
    }
    return strRuns.toStdString();
}

}  // namespace

TEST_F(IconList, FiveColumnsStandWithAndWithoutTheScrollBar) {
    for (const int nCount : {12, 500}) {
        Fill(Names(nCount));
        EXPECT_EQ(View().verticalScrollBar()->isVisible(), nCount == 500);
        EXPECT_EQ(Cell(4).top(), Cell(0).top());
        EXPECT_GT(Cell(5).top(), Cell(0).bottom());
        EXPECT_EQ(Cell(5).left(), Cell(0).left());
        EXPECT_TRUE(Port().rect().contains(Cell(4)));
    }
    EXPECT_EQ(View().horizontalScrollBar()->maximum(), 0);
}

TEST_F(IconList, APictureComesUpInItsCellAndPaintsNoOther) {
    EXPECT_NE(ColorAt(At(1)), QColor(200, 20, 30));
    CPaintWatch watch(Port());
    m_icons.SetPicture(1, RedPicture());
    Settle();
    EXPECT_FALSE(watch.m_region.isEmpty());
    EXPECT_TRUE(Cell(1).adjusted(-8, -8, 8, 8).contains(watch.m_region.boundingRect()));
    EXPECT_EQ(ColorAt(At(1)), QColor(200, 20, 30));
    Fill(Names(3));
    EXPECT_NE(ColorAt(At(1)), QColor(200, 20, 30)) << "the old pictures go with the old names";
}

// The picture in the middle of its cell with the name in white below, an empty well where there is none; what
// is selected has a warm rim around the picture and warm ground below the name. A long name keeps to its
// cell.
TEST_F(IconList, CellsLookAsTheirItemsAre) {
    Fill({"bytes\xff\xfe\n.jpg", std::string(60, 'n') + ".jpg", "a", "beside"});
    EXPECT_EQ(Cell(1).size(), Cell(0).size());
    for (const int nItem : {2, 3}) m_icons.SetPicture(nItem, RedPicture());
    m_icons.Select(2, true);
    Settle();
    const QImage image = Port().grab().toImage();
    const auto fnAcross = [&](int nItem) {
        return RunsAlong(image, Cell(nItem).topLeft() + QPoint(0, 60), {1, 0}, 118);
    };
    const auto fnDown = [&](int nItem) {
        return RunsAlong(image, Cell(nItem).topLeft() + QPoint(60, 0), {0, 1}, 119);
    };
    EXPECT_EQ(fnAcross(0) + "| " + fnDown(0), "g4 e1 f108 e1 g4 | g5 e1 f108 e1 g4 ");
    EXPECT_EQ(fnAcross(3) + "| " + fnDown(3), "g4 r110 g4 | g5 r110 g4 ");
    EXPECT_EQ(fnAcross(2) + "| " + fnDown(2), "g1 w3 r110 w3 g1 | g2 w3 r110 w3 g1 ");
    EXPECT_EQ(ColorAt(Cell(2).topLeft() + QPoint(53, 128)), QColor(232, 143, 54));
    const auto fnInked = [&](int nItem, int nTop) {
        int nInked = 0;
        for (int y = nTop; y < nTop + 15; ++y)
            for (int x = 0; x < 118; ++x)
                nInked += qGray(image.pixel(Cell(nItem).topLeft() + QPoint(x, y))) > 220 ? 1 : 0;
        return nInked;
    };
    EXPECT_GT(fnInked(3, 120), 5);
    EXPECT_EQ(fnInked(3, 136), 0);
    EXPECT_GT(fnInked(1, 120), 20);
    EXPECT_GT(fnInked(1, 136), 20) << "a second line";
    for (const int x : {Cell(0).right() + 2, Cell(1).right() + 2})
        EXPECT_EQ(RunsAlong(image, {x, 0}, {0, 1}, 150), "g150 ") << "nothing reaches over to the neighbours";
}

TEST_F(IconList, TheHandSelectsAsInAnyList) {
    Click(2);
    EXPECT_EQ(Selected(), CItems{2});
    for (const int nItem : {4, 6, 4}) Click(nItem, Qt::ControlModifier);
    EXPECT_EQ(Selected(), (CItems{2, 6}));
    // A press on one of several, the first or another, leaves them all until the button is up again; drawn
    // along they stay selected wherever it comes up.
    for (const int nPressed : {0, 2}) {
        Click(0);
        Click(3, Qt::ShiftModifier);
        Draw({At(nPressed), At(7)});
        EXPECT_EQ(Selected(), (CItems{0, 1, 2, 3}));
        QTest::mousePress(&Port(), Qt::LeftButton, {}, At(nPressed));
        EXPECT_EQ(Selected(), (CItems{0, 1, 2, 3}));
        QTest::mouseRelease(&Port(), Qt::LeftButton, {}, At(nPressed));
        EXPECT_EQ(Selected(), CItems{nPressed});
    }
    QTest::keyClick(&View(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Selected().size(), 12U);
    Click(-1);
    EXPECT_EQ(Selected(), CItems{});
    Click(0);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down}) QTest::keyClick(&View(), key);
    EXPECT_EQ(Selected(), CItems{6});
}

TEST_F(IconList, ARubberBandTakesWhatItTouchesAndADragTakesNothing) {
    Fill(Names(7));
    const QPoint ptStart(Cell(6).right() + 60, Cell(6).bottom() + 20);
    Draw({ptStart, At(6), At(1)});
    EXPECT_EQ(Selected(), (CItems{1, 2, 6}));
    EXPECT_GE(m_sink.m_nMoves, 2);
    EXPECT_EQ(m_sink.Take(), "press, release") << "and no click";
    // Drawn out of the list, and drawn along inside it.
    Draw({At(0), {-200, 20}});
    EXPECT_EQ(m_sink.Take(), "press");
    Draw({At(0), At(6)});
    EXPECT_EQ(m_sink.Take(), "press, release");
    EXPECT_EQ(Selected(), CItems{0});
    // In the gap between two cells there is no item.
    QTest::mouseClick(&Port(), Qt::LeftButton, {}, {Cell(0).right() + 3, At(0).y()});
    EXPECT_EQ(m_sink.Take(), "press, release, click -1");
}

TEST_F(IconList, ADoubleClickMayChangeEverything) {
    for (const int nLeft : {1, 0}) {
        m_sink.m_fnDouble = [=, this] { m_icons.SetItems(Names(nLeft)); };
        QTest::mouseDClick(&Port(), Qt::LeftButton, {}, At(0));
        Settle();
        EXPECT_EQ(View().model()->rowCount(), nLeft);
        EXPECT_EQ(Selected(), CItems{});
    }
    QTest::keyClick(&View(), Qt::Key_Down);
    EXPECT_EQ(Selected(), CItems{});
}

// The driver without a window is held to the window: the logic hears the same of the same hand.
TEST_F(IconList, TheDriverTellsTheLogicWhatTheWindowTells) {
    CIconListModel icons;
    CTestSink sink(icons);
    icons.SetItems(Names(12));
    CTestDialog dialog(kDialog);
    dialog.m_models.pIcons = &icons;
    CScriptedPlatform platform;
    CPlayHost host(platform, dialog);
    host.Init();
    QWindow* pWindow = m_shown.view->windowHandle();
    const auto fnAt = [&](int nItem) { return Port().mapTo(m_shown.view.get(), At(nItem)); };
    const auto fnSame = [&](const std::string& strWhy, const std::string& strHeard) {
        EXPECT_EQ(strWhy, "") << strHeard;
        EXPECT_EQ(m_sink.Take(), strHeard) << "in the window";
        EXPECT_EQ(sink.Take(), strHeard) << "by the driver";
        EXPECT_EQ(icons.SelectedItems(), Selected()) << strHeard;
    };
    const auto fnClick = [&](int nItem, Qt::KeyboardModifiers keys, unsigned nKeys) {
        QTest::mouseClick(pWindow, Qt::LeftButton, keys, fnAt(nItem));
        return host.ClickIcon(17, nItem, nKeys);
    };
    const auto fnDouble = [&](int nItem) {
        QTest::mouseDClick(pWindow, Qt::LeftButton, {}, fnAt(nItem));
        return host.DoubleClickIcon(17, nItem);
    };
    const auto fnKey = [&](Qt::Key key, bool bShift, int nKey) {
        QTest::keyClick(pWindow, key, bShift ? Qt::ShiftModifier : Qt::NoModifier);
        return host.KeyInIcons(17, {nKey, false, bShift});
    };
    fnSame(fnClick(2, Qt::ShiftModifier, kMouseShift), "press, click 2");
    fnSame(fnClick(3, {}, 0), "press, click 3");
    fnSame(fnClick(5, Qt::ControlModifier, kMouseCtrl), "press, click 5");
    fnSame(fnClick(8, Qt::ShiftModifier, kMouseShift), "press, click 8");
    fnSame(fnClick(6, {}, 0), "press, click 6");
    fnSame(fnClick(4, Qt::ShiftModifier, kMouseShift), "press, click 4");
    fnSame(fnClick(-1, {}, 0), "press, release, click -1");
    QTest::mouseClick(pWindow, Qt::LeftButton, {}, fnAt(2));
    fnSame(host.SelectRow(17, 2), "press, click 2");
    fnSame(fnDouble(1), "press, click 1, double 1, release");
    fnSame(fnDouble(-1), "press, release, click -1, double -1, release");
    QTest::mouseClick(pWindow, Qt::RightButton, {}, fnAt(4));
    fnSame(host.RightPressIcon(17, 4), "right 4");
    const QPoint ptStart = Port().mapTo(m_shown.view.get(), Cell(11).bottomRight() + QPoint(30, 20));
    Press(*m_shown.view, ptStart);
    for (const int n : {0, 1}) Move(*m_shown.view, fnAt(11) + QPoint(n, n));
    Release(*m_shown.view, fnAt(11));
    fnSame(host.BandIcons(17, {11}), "press, release");
    EXPECT_NE(host.BandIcons(17, {12}), "") << "there is none";
    EXPECT_GT(std::min(m_sink.m_nMoves, sink.m_nMoves), 0);
    fnSame(fnKey(Qt::Key_Delete, false, kKeyDelete), "key 46");
    fnSame(fnKey(Qt::Key_Delete, true, kKeyDelete), "shift 46");
    fnSame(fnKey(Qt::Key_Return, false, kKeyEnter), "enter");
    fnSame(fnKey(Qt::Key_Q, false, 'Q'), "");
    // New items have no place from which Shift selects.
    for (CIconListModel* pIcons : {&m_icons, &icons}) pIcons->SetItems(Names(5));
    fnSame(fnClick(1, Qt::ShiftModifier, kMouseShift), "press, click 1");
    EXPECT_TRUE(m_shown.dialog.m_arrNotices.empty() && dialog.m_arrNotices.empty() &&
                m_shown.dialog.m_arrMouse.empty());
}

// A folder's list may outlive the window that shows it.
TEST_F(IconList, TheListOutlivesItsView) {
    m_shown.view.reset();
    m_icons.SetItems(Names(3));
    m_icons.SetPicture(1, RedPicture());
    m_icons.Select(2, true);
    EXPECT_EQ(m_icons.SelectedItems(), CItems{2});
}

TEST_F(IconList, TwentyThousandItemsComeUpAtOnce) {
    QElapsedTimer timer;
    timer.start();
    m_icons.SetItems(Names(20000));
    Port().grab();
    View().verticalScrollBar()->setValue(View().verticalScrollBar()->maximum());
    Port().grab();
    for (int i = 0; i < 1000; ++i) m_icons.SetPicture(19000 + i, RedPicture());
    Settle();
    QTest::keyClick(&View(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(m_icons.SelectedCount(), 20000);
    // Far above what it takes, below what anything that grows with the square would.
    EXPECT_LT(timer.elapsed(), 6000);
}
