// The slider's hand in the real window; what it does with it, the slider's own tests tell.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QWheelEvent>

#include "PaintWatch.h"
#include "TestDialog.h"

namespace {

constexpr CControlTemplate kControls[] = {{41, EControlKind::Slider, CRect::FromPlace(20, 10, 24, 132)},
                                          {42, EControlKind::Button, CRect::FromPlace(60, 10, 30, 20), "B"}};
constexpr CDialogTemplate kDialog{900, "Slider", {160, 160}, EDialogFrame::Plain, kControls};
using CNotices = std::vector<std::pair<int, ENotice>>;

CTestBitmaps SliderSkin() {
    CTestBitmaps skin;
    skin.Add("606", {22, 134}, {10, 20, 30});
    skin.Add("610", {26, 13}, {200, 100, 0});
    return skin;
}

class Slider : public testing::Test {
  protected:
    Slider() : m_shown(kDialog, nullptr, SliderSkin()) {
        Controls().SetRange(41, -100, 100);
        Controls().SetPosition(41, 100);
        QCoreApplication::processEvents();
    }
    CControlSet& Controls() { return m_shown.dialog.Controls(); }
    int Position() { return Controls().Position(41); }
    // A point of the slider, in the window.
    static QPoint At(int y) { return {32, 10 + y}; }
    void Wheel(int nDelta) {
        QWidget* pSlider = m_shown.Widget(41);
        QWheelEvent event(QPointF(12, 60), pSlider->mapToGlobal(QPointF(12, 60)), {}, {0, nDelta},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(pSlider, &event);
    }

    CShownDialog m_shown;
};

}  // namespace

TEST_F(Slider, OnlyTheUsersMovesAreTold) {
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
    const int nMiddle = Position();
    EXPECT_GT(nMiddle, -30);
    EXPECT_LT(nMiddle, 30);
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

TEST_F(Slider, RepaintsOnlyWhatHasMoved) {
    CPaintWatch watch(*m_shown.Widget(41));
    Controls().SetPosition(41, 90);
    QCoreApplication::processEvents();
    EXPECT_EQ(watch.m_region.boundingRect(), QRect(0, 106, 24, 19));
    const QImage image = m_shown.view->grab().toImage();
    EXPECT_EQ(image.pixel(At(123)), qRgb(10, 20, 30)) << "the channel is back where the thumb was";
}

TEST_F(Slider, APressOnTheChannelThatIsHeldGoesOn) {
    Press(*m_shown.view, At(30));
    EXPECT_EQ(Position(), 60);
    QTest::qWait(900);
    EXPECT_EQ(Position(), -60) << "page after page, until it is under the hand";
    EXPECT_EQ(m_shown.dialog.m_arrNotices.size(), 4U);
    Release(*m_shown.view, At(30));
    Press(*m_shown.view, At(120));
    Release(*m_shown.view, At(120));
    QTest::qWait(600);
    EXPECT_EQ(Position(), -20) << "let go, it stays";
}

TEST_F(Slider, TheWheelCountsWholeNotches) {
    Wheel(60);
    EXPECT_EQ(Position(), 100);
    Wheel(60);
    EXPECT_EQ(Position(), 97);
    Wheel(-240);
    EXPECT_EQ(Position(), 100);
    EXPECT_EQ(m_shown.dialog.m_arrNotices.size(), 2U);
}

TEST_F(Slider, CanBeReadAloudAndMovedByCommand) {
    CPaintWatch watch(*m_shown.Widget(41));
    QAccessibleInterface* pInterface = QAccessible::queryAccessibleInterface(m_shown.Widget(41));
    ASSERT_NE(pInterface, nullptr);
    ASSERT_NE(pInterface->valueInterface(), nullptr);
    EXPECT_EQ(pInterface->role(), QAccessible::Slider);
    EXPECT_EQ(pInterface->valueInterface()->currentValue().toInt(), 100);
    EXPECT_EQ(pInterface->valueInterface()->minimumValue().toInt(), -100);
    pInterface->valueInterface()->setCurrentValue(40);
    EXPECT_EQ(Position(), 40);
    EXPECT_EQ(m_shown.dialog.m_arrNotices, (CNotices{{41, ENotice::Scrolled}}));
    QCoreApplication::processEvents();
    EXPECT_TRUE(watch.m_region.contains(QPoint(12, 86))) << "the thumb has followed";
}
