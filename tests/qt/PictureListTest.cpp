// A list whose rows are pictures, in the real window.

#include <gtest/gtest.h>

#include <QListView>
#include <QScrollBar>

#include "TestDialog.h"

namespace {

constexpr CControlTemplate kControls[] = {
    {1041, EControlKind::PictureList, CRect::FromPlace(10, 10, 206, 276)},
    {42, EControlKind::Button, CRect::FromPlace(220, 10, 30, 20), "B"}};
constexpr CDialogTemplate kDialog{900, "List", {260, 300}, EDialogFrame::Plain, kControls};
constexpr QRgb kGround = qRgb(109, 121, 126);
constexpr int kRows = 31;

std::string NormalPicture(int nRow) {
    return std::to_string(229 + nRow);
}

CColor ColorOf(int nPicture) {
    return {static_cast<std::uint8_t>(nPicture - 100), 7, 9};
}

class PictureList : public testing::Test {
  protected:
    PictureList() : m_shown(kDialog, Skin()) { Fill(); }

    static CTestBitmaps Skin() {
        CTestBitmaps skin;
        for (int i = 198; i < 198 + 2 * kRows; ++i) skin.Add(std::to_string(i), {189, 68}, ColorOf(i));
        return skin;
    }
    void Fill(int nLit = -1) {
        std::vector<CListItem> arrItems;
        arrItems.reserve(kRows);
        for (int i = 0; i < kRows; ++i) arrItems.push_back({NormalPicture(i), i, "normal"});
        if (nLit >= 0) arrItems[static_cast<std::size_t>(nLit)] = {std::to_string(198 + nLit), nLit, "lit"};
        m_shown.Controls().SetItems(1041, arrItems);
        QCoreApplication::processEvents();
    }
    QListView* View() { return qobject_cast<QListView*>(m_shown.Widget(1041)); }
    int Selected() { return m_shown.Controls().Selection(1041); }
    CNotices TakeNotices() { return std::exchange(m_shown.dialog.m_arrNotices, {}); }
    QImage Look() { return View()->grab().toImage(); }
    // The picture that a place of the list shows, by its colour.
    int PictureAt(int y) {
        const QRgb rgb = Look().pixel(90, y);
        return qGreen(rgb) == 7 && qBlue(rgb) == 9 ? qRed(rgb) + 100 : 0;
    }

    CShownDialog m_shown;
};

}  // namespace

TEST_F(PictureList, RowsAreThePicturesBesideTheBar) {
    // The row with the focus has a dotted rim inside its picture, no other has one.
    const auto fnRimmed = [this](int nRow) {
        int nLit = 0;
        for (int x = 2; x < 180; ++x) nLit += qGreen(Look().pixel(x, 68 * nRow + 2)) != 7 ? 1 : 0;
        return nLit > 50;
    };
    View()->setFocus();
    View()->setCurrentIndex(View()->model()->index(1, 0));
    EXPECT_TRUE(fnRimmed(1) && !fnRimmed(0));
    const QImage image = Look();
    EXPECT_EQ(image.pixel(0, 0), qRgb(129, 7, 9));
    EXPECT_EQ(image.pixel(188, 67), qRgb(129, 7, 9));
    EXPECT_EQ(image.pixel(0, 68), qRgb(130, 7, 9)) << "68 pixels a row, no gap";
    EXPECT_EQ(image.pixel(189, 30), kGround) << "a column is left before the bar";
    const QScrollBar* pBar = View()->verticalScrollBar();
    EXPECT_TRUE(pBar->isVisible());
    EXPECT_EQ(QRect(pBar->mapTo(View(), QPoint()), pBar->size()), QRect(190, 0, 16, 276));
}

TEST_F(PictureList, APressTellsAChangeAndNothingElseDoes) {
    Press(*m_shown.view, {60, 10 + 68 + 5});
    EXPECT_EQ(Selected(), 1);
    EXPECT_EQ(TakeNotices(), (CNotices{{1041, ENotice::SelectionChanged}})) << "at once, not at the release";
    Move(*m_shown.view, {60, 10 + 3 * 68 + 5});
    EXPECT_EQ(Selected(), 1) << "a drag over other rows is no choice";
    Release(*m_shown.view, {60, 10 + 68 + 5});
    TakeNotices();
    Tap(*m_shown.view, {60, 10 + 68 + 20});
    EXPECT_EQ(TakeNotices(), (CNotices{{1041, ENotice::Clicked}})) << "the same row again";
    m_shown.Controls().Select(1041, 2);
    m_shown.Controls().Select(1041, -1);
    EXPECT_TRUE(TakeNotices().empty()) << "what the logic selects is no news to it";
    EXPECT_TRUE(View()->selectionModel()->selectedIndexes().isEmpty());
}

TEST_F(PictureList, ADenserScreenGetsTheDenserPictures) {
    const QImage before = Look();
    dynamic_cast<CControlWidget&>(*View()).SetDensity(2);
    EXPECT_NE(OnScreen(*m_shown.view), before);
    EXPECT_NE(Look(), before);
    EXPECT_EQ(Look().pixel(189, 30), kGround) << "they are no larger";
}

TEST_F(PictureList, AnotherPictureForARowKeepsPlaceAndSelection) {
    View()->verticalScrollBar()->setValue(10);
    m_shown.Controls().Select(1041, 11);
    ASSERT_EQ(PictureAt(68 + 30), 229 + 11);
    Fill(11);
    EXPECT_EQ(PictureAt(68 + 30), 198 + 11);
    EXPECT_EQ(PictureAt(30), 229 + 10);
    EXPECT_EQ(View()->verticalScrollBar()->value(), 10);
    EXPECT_EQ(View()->currentIndex().row(), 11);
    EXPECT_EQ(View()->currentIndex().data(Qt::AccessibleTextRole).toString(), "lit");
    EXPECT_TRUE(TakeNotices().empty());
}

TEST_F(PictureList, ARowWithoutPictureIsEmptyAndFewerRowsGo) {
    m_shown.Controls().SetItems(1041, {{NormalPicture(0), 0}, {"", 1}, {NormalPicture(2), 2}});
    EXPECT_EQ(PictureAt(30), 229);
    EXPECT_EQ(Look().pixel(90, 68 + 30), kGround);
    EXPECT_EQ(PictureAt(136 + 30), 231);
    EXPECT_EQ(Look().pixel(90, 204 + 30), kGround);
    EXPECT_FALSE(View()->verticalScrollBar()->isVisible());
    // A selection fills nothing in, whether the list can be used or not.
    for (const bool bEnabled : {true, false}) {
        m_shown.Controls().Enable(1041, bEnabled);
        m_shown.Controls().Select(1041, 1);
        EXPECT_EQ(Look().pixel(90, 68 + 30), kGround) << bEnabled;
        EXPECT_EQ(PictureAt(30), 229) << "no picture is greyed";
    }
}

TEST_F(PictureList, KeysMoveFromTheRowWithTheRim) {
    m_shown.Controls().SetFocus(1041);
    // The first key takes the first row.
    for (const auto& [key, nRow] : {std::pair{Qt::Key_Down, 0},
                                    {Qt::Key_Down, 1},
                                    {Qt::Key_Right, 2},
                                    {Qt::Key_Left, 1},
                                    {Qt::Key_A, 1},
                                    {Qt::Key_End, 30}}) {
        QTest::keyClick(View(), key);
        EXPECT_EQ(Selected(), nRow);
    }
    EXPECT_EQ(PictureAt(272 - 30), 229 + 30) << "and is scrolled to";
    EXPECT_EQ(TakeNotices(), CNotices(5, {1041, ENotice::SelectionChanged}));
    // The rim is drawn on the row, and only while the list has the focus.
    const QImage focused = Look();
    m_shown.Controls().SetFocus(42);
    EXPECT_NE(focused.copy(0, 204, 189, 68), Look().copy(0, 204, 189, 68));
    EXPECT_EQ(focused.copy(0, 0, 189, 204), Look().copy(0, 0, 189, 204));
}

TEST_F(PictureList, OnlyThePlainLeftButtonAndKeysCountAndARowStaysChosen) {
    const auto click = [this](Qt::MouseButton button, Qt::KeyboardModifiers keys, int nRow) {
        QTest::mouseClick(View()->viewport(), button, keys, {60, 68 * nRow + 5});
        return TakeNotices();
    };
    EXPECT_TRUE(click(Qt::RightButton, {}, 1).empty());
    EXPECT_TRUE(click(Qt::MiddleButton, {}, 1).empty());
    EXPECT_EQ(Selected(), -1);
    click(Qt::LeftButton, {}, 1);
    // Ctrl takes no row back, so that the same row is no news afterwards.
    EXPECT_EQ(click(Qt::LeftButton, Qt::ControlModifier, 1), (CNotices{{1041, ENotice::Clicked}}));
    EXPECT_EQ(View()->selectionModel()->selectedIndexes().size(), 1);
    EXPECT_EQ(click(Qt::LeftButton, {}, 1), (CNotices{{1041, ENotice::Clicked}}));
    QTest::keyClick(View(), Qt::Key_Space, Qt::ControlModifier);
    QTest::keyClick(View(), Qt::Key_Space);
    EXPECT_TRUE(TakeNotices().empty());
    EXPECT_EQ(View()->selectionModel()->selectedIndexes().size(), 1);
    QTest::keyClick(View(), Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(Selected(), 2) << "there is no rim without a choice";
}

TEST_F(PictureList, TheWheelScrollsByRows) {
    Wheel(*View()->viewport(), -120);
    EXPECT_EQ(PictureAt(1), 230);
    for (int i = 0; i < 2; ++i) Wheel(*View()->viewport(), -60);
    EXPECT_EQ(PictureAt(1), 231);
    Wheel(*View()->viewport(), 1200);
    EXPECT_EQ(PictureAt(1), 229);
    EXPECT_TRUE(TakeNotices().empty());
}
