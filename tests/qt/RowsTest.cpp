// Lists of texts and tables of rows to tick: how they look in the window, and what the dialog hears of the
// hand, in the window as by the driver.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QTableView>

#include "TestDialog.h"
#include "play/ScriptedPlatform.h"

namespace {

constexpr int kTexts = 1124, kTable = 1125;
constexpr CControlTemplate kControls[] = {
    {kTexts, EControlKind::TextList, CRect::FromPlace(10, 10, 229, 80)},
    {kTable, EControlKind::CheckTable, CRect::FromPlace(10, 100, 386, 164)}};
constexpr CTableColumn kColumns[] = {{"Num", 47}, {"File Name", 182}, {"Size", 69}, {"Memory", 93}};
constexpr CControlLookRow kLooks[] = {{kTexts, {.szSpoken = "texts"}},
                                      {kTable, {.szSpoken = "table", .arrColumns = kColumns}}};
constexpr CDialogTemplate kDialog{904, "Rows", {420, 280}, EDialogFrame::Plain, kControls, kLooks};
constexpr QRgb kPaper = qRgb(245, 247, 244);
constexpr QRgb kWarm = qRgb(232, 143, 54);

std::vector<CListItem> MakeTexts() {
    std::vector<CListItem> arrItems;
    arrItems.reserve(256);
    for (int i = 1; i <= 256; ++i) arrItems.push_back({std::string("COM").append(std::to_string(i))});
    return arrItems;
}

std::vector<CCheckTableModel::CRow> MakeRows(int nCount) {
    std::vector<CCheckTableModel::CRow> arrRows;
    arrRows.reserve(static_cast<std::size_t>(nCount));
    for (int i = 0; i < nCount; ++i)
        arrRows.push_back({{std::to_string(i + 1), std::string(i == 2 ? 200 : 5, 'n'), "12345", "内存"}, i});
    return arrRows;
}

// What a dialog has heard, what is ticked, and where selection and focus stand.
std::string StateOf(CTestDialog& dialog, int nId) {
    std::string str;
    for (const auto& [nFrom, notice] : std::exchange(dialog.m_arrNotices, {}))
        str += notice == ENotice::SelectionChanged ? "change "
               : notice == ENotice::DoubleClicked  ? "double "
               : notice == ENotice::RightClicked   ? "right "
                                                   : "other ";
    const CCheckTableModel& table = *dialog.m_models.pTable;
    for (int nRow = 0; nRow < table.Count(); ++nRow)
        if (table.Row(nRow).bTicked) str.append("+").append(std::to_string(nRow)).append(" ");
    str.append("row ").append(std::to_string(dialog.Controls().Selection(nId)));
    return dialog.Controls().Focus() == nId ? str : str + " no focus";
}

class Rows : public testing::Test {
  protected:
    Rows() : m_shown(kDialog, {}, {.pTable = &m_table}), m_driven(kDialog) {
        m_driven.m_models.pTable = &m_tableDriven;
        m_host.emplace(m_platform, m_driven);
        m_host->Init();
        for (CTestDialog* pDialog : {&m_shown.dialog, &m_driven})
            pDialog->Controls().SetItems(kTexts, MakeTexts());
        SetRows(MakeRows(20));
    }
    void SetRows(const std::vector<CCheckTableModel::CRow>& arrRows) {
        for (CCheckTableModel* pTable : {&m_table, &m_tableDriven}) pTable->SetRows(arrRows);
        Settle();
    }
    QAbstractItemView& View(int nId) { return *qobject_cast<QAbstractItemView*>(m_shown.Widget(nId)); }
    // Clicks a row in the window, x from its left; -1 for below all rows.
    void Mouse(int nId, int nRow, int x, Qt::MouseButton button, bool bDouble) {
        const QModelIndex index = View(nId).model()->index(nRow, 0);
        if (nRow >= 0) View(nId).scrollTo(index);
        QWidget& port = *View(nId).viewport();
        const int y = nRow < 0 ? port.height() - 2 : View(nId).visualRect(index).center().y();
        QTest::mouseClick(&port, button, {}, {x, y});
        if (bDouble) QTest::mouseDClick(&port, button, {}, {x, y});
    }
    // Does the same in the window and by the driver.
    void Expect(int nId, const std::string& strWhat, int nRow, const std::string& strWanted) {
        const bool bBox = strWhat == "box", bRight = strWhat == "right", bDouble = strWhat == "double";
        Mouse(nId, nRow, bBox ? CCheckTableHand::kBoxLeft + 3 : 100,
              bRight ? Qt::RightButton : Qt::LeftButton, bDouble);
        ExpectBoth(nId,
                   bBox      ? m_host->TickRow(nId, nRow)
                   : bRight  ? m_host->RightClickRow(nId, nRow)
                   : bDouble ? m_host->DoubleClickRow(nId, nRow)
                             : m_host->SelectRow(nId, nRow),
                   strWanted);
    }
    void ExpectKey(int nId, Qt::Key key, int nKey, const std::string& strWanted) {
        QTest::keyClick(m_shown.view->windowHandle(), key);
        ExpectBoth(nId, m_host->Key({nKey}), strWanted);
    }
    void ExpectBoth(int nId, const std::string& strWhy, const std::string& strWanted) {
        EXPECT_EQ(strWhy, "") << strWanted;
        EXPECT_EQ(StateOf(m_shown.dialog, nId), strWanted) << "in the window";
        EXPECT_EQ(StateOf(m_driven, nId), strWanted) << "by the driver";
    }
    QImage Look(const QRect& rc) { return OnScreen(*m_shown.view).copy(rc); }

    CCheckTableModel m_table, m_tableDriven;
    CShownDialog m_shown;
    CScriptedPlatform m_platform;
    CTestDialog m_driven;
    std::optional<CPlayHost> m_host;
};

}  // namespace

TEST_F(Rows, TheDriverTellsTheDialogOfTextsWhatTheWindowTells) {
    Expect(kTexts, "click", 2, "change row 2");
    Expect(kTexts, "click", 2, "row 2");
    Expect(kTexts, "double", 200, "change double row 200");
    ExpectKey(kTexts, Qt::Key_PageDown, kKeyPageDown, "change row 205");
    ExpectKey(kTexts, Qt::Key_End, kKeyEnd, "change row 255");
    ExpectKey(kTexts, Qt::Key_Down, kKeyDown, "row 255");
    ExpectKey(kTexts, Qt::Key_Space, kKeySpace, "row 255");
    ExpectKey(kTexts, Qt::Key_Home, kKeyHome, "change row 0");
    Mouse(kTexts, 1, 30, Qt::RightButton, false);
    EXPECT_EQ(StateOf(m_shown.dialog, kTexts), "row 0") << "the right button takes no row";
    QTest::keyClicks(&View(kTexts), "com12");
    EXPECT_EQ(m_shown.Controls().Selection(kTexts), 11) << "typing goes to what begins so";
}

TEST_F(Rows, TheDriverTellsTheDialogOfATableWhatTheWindowTells) {
    Expect(kTable, "click", 3, "row 3");
    Expect(kTable, "box", 5, "+5 row 5");
    Expect(kTable, "box", 4, "+4 +5 row 4");
    Expect(kTable, "box", 5, "+4 row 5");
    Expect(kTable, "double", 19, "+4 +19 row 19");
    Expect(kTable, "double", 19, "+4 row 19");
    Expect(kTable, "right", 4, "right +4 row 4");
    ExpectKey(kTable, Qt::Key_Space, kKeySpace, "row 4");
    ExpectKey(kTable, Qt::Key_PageDown, kKeyPageDown, "row 12");
    ExpectKey(kTable, Qt::Key_Down, kKeyDown, "row 13");
    ExpectKey(kTable, Qt::Key_Space, kKeySpace, "+13 row 13");
    // The current row goes along when the rows are turned around, and is none of new ones.
    std::vector<CCheckTableModel::CRow> arrTurned = MakeRows(20);
    std::reverse(arrTurned.begin(), arrTurned.end());
    SetRows(arrTurned);
    ExpectKey(kTable, Qt::Key_Up, kKeyUp, "row 5");
    SetRows(MakeRows(1));
    ExpectKey(kTable, Qt::Key_Space, kKeySpace, "row -1");
    Expect(kTable, "right", -1, "right row -1");
    ExpectKey(kTable, Qt::Key_Down, kKeyDown, "row 0");
    EXPECT_NE(m_host->TickRow(kTable, -1), "");
    EXPECT_NE(m_host->TickRow(kTexts, 0), "");
}

TEST_F(Rows, WhatIsNoClickInATable) {
    const auto fnAt = [&](int y) { return View(kTable).mapTo(m_shown.view.get(), QPoint(100, y)); };
    Press(*m_shown.view, fnAt(30), Qt::RightButton);
    Release(*m_shown.view, {350, 20}, Qt::RightButton);
    QTest::mouseClick(m_shown.view->windowHandle(), Qt::RightButton, {}, fnAt(5));
    EXPECT_TRUE(m_shown.dialog.m_arrNotices.empty()) << "nor are the titles rows";
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {1, 1}, QCursor::pos());
    QCoreApplication::sendEvent(View(kTable).viewport(), &menuKey);
    EXPECT_EQ(m_shown.dialog.m_arrNotices, (CNotices{{kTable, ENotice::RightClicked}}));
}

// Columns, titles and lines stand where they are told; ticks, rows and marks are seen at once.
TEST_F(Rows, TheyShowWhatTheDialogSays) {
    const QRect rcTable(10, 120, 386, 144);
    const QHeaderView& titles = *qobject_cast<QTableView*>(&View(kTable))->horizontalHeader();
    for (int i = 0; i < 4; ++i) EXPECT_EQ(titles.sectionSize(i), kColumns[i].nWidth);
    const QImage before = Look(rcTable);
    for (const int x : {46, 228, 297}) EXPECT_NE(before.pixel(x, 5), kPaper) << "a line at " << x;
    for (int y = 17; y < 144; y += 18) EXPECT_NE(before.pixel(60, y), kPaper) << "a line at " << y;
    // A long name leaves its cell's rim free on both sides.
    for (const int x : {47, 49, 225, 227}) EXPECT_EQ(before.pixel(x, 45), kPaper);
    m_table.Tick(1, true);
    const QImage ticked = Look(rcTable);
    EXPECT_NE(before.copy(4, 18, 14, 17), ticked.copy(4, 18, 14, 17));
    EXPECT_EQ(before.copy(18, 18, 350, 17), ticked.copy(18, 18, 350, 17));
    m_shown.Controls().Select(kTable, 1);
    EXPECT_EQ(Look(rcTable).pixel(60, 19), kWarm);
    m_table.SetRows({});
    EXPECT_EQ(Look(rcTable).pixel(60, 19), kPaper);

    m_shown.Controls().Select(kTexts, 0);
    EXPECT_EQ(Look({160, 10, 1, 80}).pixel(0, 15), kWarm);
    EXPECT_EQ(Look({160, 10, 1, 80}).pixel(0, 16), kPaper) << "16 pixels a row";
    m_shown.Controls().Select(kTexts, 100);
    EXPECT_EQ(View(kTexts).indexAt({20, 70}).row(), 100) << "it is brought into sight, no further";
    EXPECT_EQ(m_shown.dialog.m_arrNotices, CNotices());
}

// Whoever reads the window aloud finds titles, texts and ticks, and can tick.
TEST_F(Rows, OthersFindTheRowsAndTheirTicks) {
    m_table.Tick(3, true);
    QAccessibleInterface* pTable = QAccessible::queryAccessibleInterface(&View(kTable));
    ASSERT_TRUE(pTable != nullptr && pTable->tableInterface() != nullptr);
    QAccessibleTableInterface& cells = *pTable->tableInterface();
    EXPECT_EQ(cells.columnDescription(1), "File Name");
    EXPECT_EQ(cells.cellAt(3, 3)->text(QAccessible::Name), "内存");
    for (const int nRow : {3, 4}) {
        const QAccessible::State state = cells.cellAt(nRow, 0)->state();
        EXPECT_TRUE(state.checkable);
        EXPECT_EQ(state.checked, nRow == 3);
    }
    QAbstractItemModel& model = *View(kTable).model();
    EXPECT_TRUE(model.setData(model.index(4, 0), Qt::Checked, Qt::CheckStateRole));
    EXPECT_TRUE(m_table.Row(4).bTicked);
    View(kTable).setCurrentIndex(model.index(6, 0));
    EXPECT_EQ(m_shown.Controls().Selection(kTable), 6);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&View(kTexts))->child(1)->text(QAccessible::Name),
              "COM2");
}

TEST(RowsAtOnce, AThousandRowsComeUpAndAreTickedInATwinkling) {
    CCheckTableModel table;
    table.SetRows(MakeRows(1000));
    QElapsedTimer clock;
    clock.start();
    const CShownDialog shown(kDialog, {}, {.pTable = &table});
    Settle();
    EXPECT_LT(clock.restart(), 100);
    table.TickAll(true);
    Settle();
    EXPECT_LT(clock.elapsed(), 100);
}
