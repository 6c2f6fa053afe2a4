// The slider's hand in the real window; what it does with it, the slider's own tests tell.

#include <gtest/gtest.h>

#include <QAccessible>

#include "TestDialog.h"
#include "qt/SliderWidget.h"

namespace {

constexpr CControlTemplate kControls[] = {{41, EControlKind::Slider, CRect::FromPlace(20, 10, 24, 132)},
                                          {42, EControlKind::Button, CRect::FromPlace(60, 10, 30, 20), "B"}};
constexpr CDialogTemplate kDialog{900, "Slider", {160, 160}, EDialogFrame::Plain, kControls};

CTestBitmaps SliderSkin() {
    CTestBitmaps skin;
    skin.Add("606", {22, 134}, {10, 20, 30});
    skin.Add("610", {26, 13}, {200, 100, 0});
    return skin;
}

class Slider : public testing::Test {
  protected:
    Slider() : m_shown(kDialog, SliderSkin()) {
        Controls().SetRange(41, -100, 100);
        Controls().SetPosition(41, 100);
        QCoreApplication::processEvents();
    }
    CControlSet& Controls() { return m_shown.Controls(); }
    int Position() { return Controls().Position(41); }
    // A point of the slider, in the window.
    static QPoint At(int y) { return {32, 10 + y}; }

    CShownDialog m_shown;
};

}  // namespace

TEST_F(Slider, OnlyTheUsersMovesAreTold) {
    const QImage image = m_shown.Widget(41)->grab().toImage();
    EXPECT_EQ(image.pixel(12, 60), qRgb(10, 20, 30));
    static_cast<CSliderWidget*>(m_shown.Widget(41))->SetDensity(1);
    EXPECT_EQ(m_shown.Widget(41)->grab().toImage(), image)
        << "the pictures of another screen come up at once";
    EXPECT_TRUE(m_shown.dialog.m_arrNotices.empty());
    QTest::keyClick(m_shown.Widget(41), Qt::Key_Up);
    EXPECT_EQ(Position(), 99) << "the lower bound is at the top";
    EXPECT_EQ(m_shown.dialog.m_arrNotices, (CNotices{{41, ENotice::Scrolled}}));
    QTest::keyClick(m_shown.Widget(41), Qt::Key_Up, Qt::ControlModifier);
    QTest::keyClick(m_shown.Widget(41), Qt::Key_End);
    QTest::keyClick(m_shown.Widget(41), Qt::Key_End);
    EXPECT_EQ(m_shown.dialog.m_arrNotices.size(), 2U) << "at the end nothing moves";
}

TEST_F(Slider, ADragIsToldStepByStepAlsoOutsideOfTheSlider) {
    Press(*m_shown.view, At(118));
    m_shown.dialog.m_arrHovers.clear();
    Move(*m_shown.view, At(60));
    EXPECT_NEAR(Position(), 0, 29);
    // The focus goes elsewhere, as the effects' flow wants it: the hand keeps the thumb.
    Controls().SetFocus(42);
    Move(*m_shown.view, {150, 12});
    EXPECT_EQ(Position(), -100);
    Release(*m_shown.view, {150, 12});
    Move(*m_shown.view, At(100));
    EXPECT_EQ(Position(), -100) << "let go";
    EXPECT_EQ(m_shown.dialog.m_arrNotices, (CNotices{{41, ENotice::Scrolled}, {41, ENotice::Scrolled}}));
    EXPECT_EQ(m_shown.dialog.m_arrHovers.size(), 1U) << "held, it keeps the mouse for itself";
    EXPECT_TRUE(m_shown.dialog.m_arrMouse.empty()) << "none of it is a mouse beside the controls";
}

TEST_F(Slider, APressOnTheChannelThatIsHeldGoesOn) {
    Press(*m_shown.view, At(30));
    EXPECT_EQ(Position(), 60);
    QTest::qWait(900);
    EXPECT_EQ(Position(), -60) << "page after page, until it is under the hand";
    EXPECT_EQ(m_shown.dialog.m_arrNotices.size(), 4U);
    Release(*m_shown.view, At(30));
    Tap(*m_shown.view, At(120));
    QTest::qWait(600);
    EXPECT_EQ(Position(), -20) << "let go, it stays";
}

TEST_F(Slider, TheWheelCountsWholeNotches) {
    for (const auto& [nDelta, nPosition] : {std::pair{60, 100}, {60, 97}, {-240, 100}}) {
        Wheel(*m_shown.Widget(41), nDelta);
        EXPECT_EQ(Position(), nPosition);
    }
    EXPECT_EQ(m_shown.dialog.m_arrNotices.size(), 2U);
}

TEST_F(Slider, CanBeReadAloudAndMovedByCommand) {
    QAccessibleInterface* pInterface = QAccessible::queryAccessibleInterface(m_shown.Widget(41));
    ASSERT_NE(pInterface, nullptr);
    EXPECT_EQ(pInterface->role(), QAccessible::Slider);
    QAccessibleValueInterface* pValue = pInterface->valueInterface();
    ASSERT_NE(pValue, nullptr);
    EXPECT_EQ(pValue->currentValue().toInt(), 100);
    EXPECT_EQ(pValue->minimumValue().toInt(), -100);
    pValue->setCurrentValue(40);
    EXPECT_EQ(Position(), 40);
    EXPECT_EQ(m_shown.dialog.m_arrNotices, (CNotices{{41, ENotice::Scrolled}}));
    EXPECT_EQ(OnScreen(*m_shown.view), Repainted(*m_shown.view)) << "the thumb has followed";
}
