// The window of a dialog: what it mirrors, and how keys, focus, mouse and painting go through it.

#include <gtest/gtest.h>

#include "TestDialog.h"

namespace {

using enum EControlKind;

constexpr CControlTemplate kControls[] = {
    {10, BitmapButton, CRect::FromPlace(10, 10, 30, 20), "A"},
    {11, BitmapButton, CRect::FromPlace(50, 10, 30, 20), "B"},
    {12, BitmapButton, CRect::FromPlace(90, 10, 30, 20), "C", false},
    {13, Static, CRect::FromPlace(10, 40, 60, 15), "text"},
    {14, Edit, CRect::FromPlace(10, 60, 60, 18)},
    {2, Button, CRect::FromPlace(80, 60, 60, 20), "Cancel"},
};
constexpr CControlLookRow kLooks[] = {
    {13, {.colorText = CColor{250, 1, 2}, .colorGround = CColor{3, 4, 5}}},
};
constexpr CDialogTemplate kDialog{900, "Title", {160, 100}, EDialogFrame::Plain, kControls, kLooks};
constexpr CDialogTemplate kMain{901, "Main", {160, 100}, EDialogFrame::Caption, kControls};

}  // namespace

TEST(DialogView, MirrorsTheControls) {
    CShownDialog shown(kDialog);
    EXPECT_EQ(shown.view->windowTitle(), "Title");
    EXPECT_EQ(shown.view->size(), QSize(160, 100));
    EXPECT_EQ(shown.view->minimumSize(), shown.view->maximumSize());
    EXPECT_FALSE(shown.Widget(12)->isVisible());
    CControlSet& controls = shown.Controls();
    controls.Show(12, true);
    controls.Move(13, CRect::FromPlace(20, 41, 70, 16));
    EXPECT_TRUE(shown.Widget(12)->isVisible());
    EXPECT_EQ(shown.Widget(13)->geometry(), QRect(20, 41, 70, 16));
    const QImage imageBefore = shown.Widget(13)->grab().toImage();
    EXPECT_EQ(shown.Widget(13)->accessibleName(), "text");
    EXPECT_EQ(imageBefore.pixel(0, 0), qRgb(3, 4, 5));
    EXPECT_NE(imageBefore.pixel(66, 0), qRgb(3, 4, 5)) << "the ground goes as far as the text";
    EXPECT_EQ(shown.Widget(13)->font().pixelSize(), 12) << "by its height";
    controls.SetText(13, "other  ");
    EXPECT_EQ(shown.Widget(13)->accessibleName(), "other");
}

TEST(DialogView, FocusGoesBothWays) {
    CShownDialog shown(kMain);
    CControlSet& controls = shown.dialog.Controls();
    EXPECT_EQ(controls.Focus(), 0) << "the main window starts with no control in focus";
    controls.SetFocus(11);
    EXPECT_TRUE(shown.Widget(11)->hasFocus());
    QTest::keyClick(shown.view.get(), Qt::Key_Tab);
    EXPECT_EQ(controls.Focus(), 14) << "the hidden button takes no focus";
    shown.Click(10);
    EXPECT_EQ(controls.Focus(), 10);
    controls.Enable(10, false);
    EXPECT_EQ(controls.Focus(), 0) << "the focus is not handed on to the next control";
    EXPECT_FALSE(shown.Widget(11)->hasFocus());
}

TEST(DialogView, EveryKeyComesToTheDialogFirst) {
    CShownDialog shown(kDialog);
    shown.dialog.Controls().SetFocus(14);
    shown.dialog.m_bSwallowKeys = true;
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Z})
        QTest::keyClick(shown.Widget(14), key, Qt::ControlModifier | Qt::ShiftModifier);
    std::vector<int> arrKeys;
    for (const CKeyEvent& event : shown.dialog.m_arrKeys) arrKeys.push_back(event.nKey);
    EXPECT_EQ(arrKeys, (std::vector<int>{kKeyEscape, kKeyEnter, kKeyEnter, 'Z'}));
    EXPECT_TRUE(shown.dialog.m_arrKeys.back().bCtrl && shown.dialog.m_arrKeys.back().bShift);
    EXPECT_TRUE(shown.dialog.m_arrCommands.empty());
    EXPECT_FALSE(shown.dialog.HasEnded());

    // Not swallowed, it is seen once though it climbs to the window; there Esc is the button Cancel.
    shown.dialog.m_bSwallowKeys = false;
    QTest::keyClick(shown.Widget(14), Qt::Key_A);
    QTest::keyClick(shown.Widget(10), Qt::Key_Escape);
    EXPECT_EQ(shown.dialog.m_arrKeys.size(), 6U);
    EXPECT_EQ(shown.dialog.Controls().Text(14), "a");
    EXPECT_EQ(shown.dialog.m_arrCommands, std::vector{2});
}

TEST(DialogView, TheCloseBoxAsksTheDialog) {
    CShownDialog shown(kMain);
    shown.view->close();
    EXPECT_TRUE(shown.dialog.HasEnded());
    EXPECT_EQ(shown.dialog.EndCode(), CDialog::kDialogCancel);
    EXPECT_TRUE(shown.view->isVisible()) << "whoever runs the dialog takes it away";
}

TEST(DialogView, MouseBesideControlsIsTheDialogs) {
    CShownDialog shown(kDialog);
    Press(*shown.view, {150, 95}, Qt::RightButton, Qt::ShiftModifier);
    Release(*shown.view, {170, 95}, Qt::RightButton);
    Press(*shown.view, shown.Centre(13));
    Release(*shown.view, shown.Centre(10));
    const auto arrClicks = WithoutMoves(shown.dialog.m_arrMouse);
    ASSERT_EQ(arrClicks.size(), 2U) << "outside and over a control nothing is beside the controls";
    const CMouseEvent& first = arrClicks[0];
    EXPECT_EQ(first.action, EMouseAction::Press);
    EXPECT_EQ(first.button, EMouseButton::Right);
    EXPECT_EQ(first.pt, (CPoint{150, 95}));
    EXPECT_EQ(first.nFlags, kMouseRightDown | kMouseShift);
    EXPECT_EQ(arrClicks[1].button, EMouseButton::Left) << "a line of text lets the mouse through";
}

TEST(DialogView, HoverIsToldOncePerMoveAndNotWhileAButtonIsHeld) {
    CShownDialog shown(kDialog);
    EXPECT_TRUE(shown.view->hasMouseTracking()) << "no button need be held";
    for (const int nId : {13, 10}) Move(*shown.view, shown.Centre(nId));
    Press(*shown.view, shown.Centre(10));
    Move(*shown.view, shown.Centre(11));
    Release(*shown.view, shown.Centre(11));
    Press(*shown.view, {150, 95});
    Move(*shown.view, shown.Centre(11));
    Release(*shown.view, shown.Centre(11));
    EXPECT_EQ(shown.dialog.m_arrHovers, (CHovers{{13, false}, {10, false}, {0, false}, {11, true}}));
}

// Runs in a process of its own (see CMakeLists.txt) on a screen of two by two pixels to a client pixel.
TEST(DenseScreen, ShowsTheDenserPictures) {
    CTestBitmaps skin;
    skin.Add("AU", {30, 20}, {9, 9, 9});
    skin.Add("GROUND", {20, 20}, {7, 7, 7});
    CShownDialog shown(kDialog, skin);
    ASSERT_EQ(shown.view->Density(), 2);
    shown.dialog.Client().DrawBitmap("GROUND", 130, 10);
    shown.dialog.Present();
    const QImage image = shown.view->grab().toImage();
    ASSERT_EQ(image.size(), QSize(320, 200));
    for (const QPoint pt : {QPoint(30, 30), QPoint(270, 30)}) {
        EXPECT_EQ(image.pixel(pt), qRgb(255, 255, 255)) << pt.x();
        EXPECT_NE(image.pixel(pt + QPoint(1, 0)), qRgb(255, 255, 255)) << pt.x();
    }
    // The mouse still counts in client pixels.
    Press(*shown.view, {150, 95});
    const auto arrClicks = WithoutMoves(shown.dialog.m_arrMouse);
    ASSERT_EQ(arrClicks.size(), 1U);
    EXPECT_EQ(arrClicks[0].pt, (CPoint{150, 95}));
}
