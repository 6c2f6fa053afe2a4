// What the hand does to buttons, boxes and lines of text, and what their dialogs hear of it.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>

#include "TestDialog.h"

namespace {

using enum EControlKind;

constexpr CControlTemplate kControls[] = {
    {10, BitmapButton, CRect::FromPlace(10, 10, 30, 20), "Key"},
    {11, BitmapButton, CRect::FromPlace(50, 10, 30, 20), "Dead", true, false},
    {12, BitmapLabel, CRect::FromPlace(90, 10, 30, 20), "12"},
    {19, Group, CRect{}},
    {20, Radio, CRect::FromPlace(10, 40, 14, 14)},
    {21, BitmapLabel, CRect::FromPlace(26, 40, 30, 14), "1246"},
    {22, Radio, CRect::FromPlace(60, 40, 14, 14)},
    {29, Group, CRect{}},
    {30, Radio, CRect::FromPlace(80, 40, 14, 14)},
    {31, Check, CRect::FromPlace(100, 40, 14, 14), "&Mark"},
    {40, Edit, CRect::FromPlace(10, 60, 100, 18), "abc", true, true, 5},
    {42, Combo, CRect::FromPlace(10, 90, 100, 22)},
    {43, Button, CRect::FromPlace(120, 90, 30, 22), "OK"},
};
constexpr CDialogTemplate kDialog{900, "Buttons", {160, 130}, EDialogFrame::Plain, kControls};

QRgb PixelAt(const CShownDialog& shown, int nId) {
    return shown.view->grab().toImage().pixel(shown.Centre(nId));
}

}  // namespace

TEST(Buttons, ClickAndSpaceReachTheDialogOnce) {
    CShownDialog shown(kDialog);
    shown.Click(10);
    QTest::keyClick(shown.Widget(10), Qt::Key_Space);
    shown.Click(12);
    shown.Click(43);
    EXPECT_EQ(shown.dialog.m_arrCommands, (std::vector{10, 10, 12, 43}));
    EXPECT_TRUE(shown.Widget(43)->hasFocus() || shown.Widget(10)->hasFocus()) << "a picture takes none";
    // Released beside the button: no click. So is a press with the other button.
    Press(*shown.view, shown.Centre(10));
    Release(*shown.view, {100, 100});
    QTest::mouseClick(shown.Widget(10), Qt::RightButton);
    EXPECT_EQ(shown.dialog.m_arrCommands.size(), 4U);
}

TEST(Buttons, ADisabledOneIsDeafButIsHoveredOver) {
    CShownDialog shown(kDialog);
    Tap(*shown.view, shown.Centre(11));
    EXPECT_TRUE(shown.dialog.m_arrCommands.empty());
    EXPECT_TRUE(shown.dialog.m_arrMouse.empty()) << "a press on a disabled key is none beside the controls";
    Move(*shown.view, shown.Centre(11));
    Move(*shown.view, {5, 100});
    EXPECT_EQ(shown.dialog.m_arrHovers, (CHovers{{11, false}, {0, false}}));
}

TEST(Buttons, ThePictureFollowsTheState) {
    CTestBitmaps skin;
    std::uint8_t nRed = 0;
    for (const char* szName : {"KEYU", "KEYD", "KEYF", "DEADU", "KEYX"})
        skin.Add(szName, {30, 20}, {++nRed, 0, 0});
    CShownDialog shown(kDialog, skin);
    shown.Controls().SetFocus(31);
    EXPECT_EQ(PixelAt(shown, 10), qRgb(1, 0, 0));
    shown.Controls().SetFocus(10);
    EXPECT_EQ(PixelAt(shown, 10), qRgb(3, 0, 0));
    EXPECT_EQ(PixelAt(shown, 11), qRgb(4, 0, 0)) << "no picture for disabled: the normal one";
    Press(*shown.view, shown.Centre(10));
    EXPECT_EQ(PixelAt(shown, 10), qRgb(2, 0, 0));
    Move(*shown.view, {150, 120});
    EXPECT_EQ(PixelAt(shown, 10), qRgb(3, 0, 0)) << "the mouse has left it with the button held";
    Move(*shown.view, shown.Centre(10));
    EXPECT_EQ(PixelAt(shown, 10), qRgb(2, 0, 0));
    Release(*shown.view, shown.Centre(10));
    shown.Controls().Enable(10, false);
    EXPECT_EQ(PixelAt(shown, 10), qRgb(5, 0, 0));
}

TEST(Marks, LookAsTheyAreAndTakeKeys) {
    CShownDialog shown(kDialog);
    const auto fnAt = [&](int nId, int x, int y) {
        return shown.Widget(nId)->grab().toImage().pixelColor(x, y);
    };
    EXPECT_LT(fnAt(20, 7, 1).lightness(), 120) << "a rim";
    const QColor crEmpty = fnAt(20, 7, 7);
    QTest::keyClick(shown.view.get(), Qt::Key_Tab);
    shown.Controls().SetFocus(20);
    EXPECT_TRUE(shown.Widget(20)->hasFocus());
    QTest::keyClick(shown.Widget(20), Qt::Key_Space);
    EXPECT_TRUE(shown.Controls().IsChecked(20));
    EXPECT_NE(fnAt(20, 7, 7), crEmpty);
    EXPECT_EQ(fnAt(20, 7, 7), QColor(232, 143, 54));
    EXPECT_NE(fnAt(20, 3, 7), QColor(232, 143, 54)) << "the dot stays off its rim";
    for (const int nId : {20, 31, 40, 42})
        EXPECT_NE(shown.Widget(nId)->focusPolicy() & Qt::TabFocus, 0) << nId;
    EXPECT_EQ(static_cast<QAbstractButton*>(shown.Widget(31))->text(), "&Mark");
    EXPECT_EQ(shown.Widget(42)->grab().toImage().pixelColor(0, 5), QColor(74, 84, 88)) << "the combo's rim";
}

TEST(Marks, AreMovedBeforeTheDialogHears) {
    CShownDialog shown(kDialog);
    std::vector<std::string> arrSeen;
    shown.dialog.m_fnCommand = [&](int) {
        std::string str;
        for (const int nId : {20, 22, 30, 31}) str += shown.Controls().IsChecked(nId) ? '1' : '0';
        arrSeen.push_back(str);
    };
    shown.Controls().Check(30, true);
    for (const int nId : {20, 22, 31, 31, 22}) shown.Click(nId);
    EXPECT_EQ(arrSeen, (std::vector<std::string>{"1010", "0110", "0111", "0110", "0110"}));
}

TEST(Edit, TypingIsLimitedAndTold) {
    CShownDialog shown(kDialog);
    auto* pEdit = static_cast<QLineEdit*>(shown.Widget(40));
    EXPECT_EQ(pEdit->text(), "abc");
    pEdit->setCursorPosition(0);
    QTest::keyClicks(pEdit, "xyz");
    EXPECT_EQ(shown.dialog.Controls().Text(40), "xyabc");
    EXPECT_EQ(pEdit->cursorPosition(), 2) << "the caret stays where the user types";
    EXPECT_EQ(shown.dialog.m_arrNotices.size(), 2U);
    shown.dialog.Controls().SetText(40, "字");
    EXPECT_EQ(pEdit->text(), "字");
    EXPECT_EQ(shown.dialog.m_arrNotices.size(), 2U) << "what the logic sets is no news to it";
}

TEST(Edit, LeavingItIsToldOnceAndOnlyAfterTyping) {
    CShownDialog shown(kDialog);
    QTest::keyClicks(shown.Widget(40), "x");
    shown.dialog.m_arrNotices.clear();
    // A key of another control takes the focus on its press: the edit's word comes before the click's.
    shown.dialog.m_fnCommand = [&](int) {
        EXPECT_EQ(shown.dialog.m_arrNotices, (CNotices{{40, ENotice::TextDone}}));
    };
    shown.Widget(40)->setFocus();
    Tap(*shown.view, shown.Centre(10));
    EXPECT_EQ(shown.dialog.m_arrCommands, std::vector{10});
    // The end of the dialog takes the focus too, but there is nobody left to be told.
    shown.Widget(40)->setFocus();
    shown.dialog.m_arrNotices.clear();
    shown.dialog.EndDialog(1);
    shown.view->hide();
    EXPECT_TRUE(shown.dialog.m_arrNotices.empty());
}

TEST(Combo, ShowsItsTextsAndTellsTheUsersChoice) {
    CShownDialog shown(kDialog);
    auto* pCombo = static_cast<QComboBox*>(shown.Widget(42));
    shown.dialog.Controls().SetItems(42, {{" 176 X 144 ", -1}, {" 640 X 480 ", -1}});
    EXPECT_EQ(pCombo->currentIndex(), -1);
    shown.dialog.Controls().Select(42, 0);
    EXPECT_EQ(pCombo->currentText(), " 176 X 144 ");
    EXPECT_TRUE(shown.dialog.m_arrNotices.empty());
    QTest::keyClick(pCombo, Qt::Key_Down);
    EXPECT_EQ(shown.dialog.Controls().Selection(42), 1);
    EXPECT_EQ(shown.dialog.m_arrNotices, (CNotices{{42, ENotice::SelectionChanged}}));
}
