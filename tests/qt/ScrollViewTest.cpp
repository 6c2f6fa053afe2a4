// The scrolling view in its widget.

#include <gtest/gtest.h>

#include <QScrollBar>

#include "TestDialog.h"
#include "qt/ScrollViewWidget.h"

namespace {

constexpr CControlTemplate kControls[] = {
    {50, EControlKind::View, CRect::FromPlace(20, 10, 200, 150)},
    {51, EControlKind::BitmapButton, CRect::FromPlace(230, 10, 20, 20), "B"},
};
constexpr CDialogTemplate kDialog{900, "View", {260, 170}, EDialogFrame::Caption, kControls};

struct CShownView {
    CTestScrollView view{CSize{200, 150}};
    CShownDialog shown{kDialog, {}, {.pView = &view}};

    CScrollViewWidget& Widget() const { return *static_cast<CScrollViewWidget*>(shown.Widget(50)); }
    int BarsUp() const {
        int nBars = 0;
        for (const QScrollBar* pBar : Widget().findChildren<QScrollBar*>())
            nBars += pBar->isVisible() ? 1 : 0;
        return nBars;
    }
    // Where a client pixel of the view stands in the window.
    static QPoint At(int x, int y) { return {x + 20, y + 10}; }
    QWidget& Window() const { return *shown.view; }
};

std::string Tell(const std::vector<CMouseEvent>& arrEvents) {
    constexpr const char* kActions[] = {"move", "press", "release", "double"};
    QString str;
    for (const CMouseEvent& event : arrEvents)
        str += QString("%1 %2,%3 held %4; ")
                   .arg(kActions[static_cast<int>(event.action)])
                   .arg(event.pt.x)
                   .arg(event.pt.y)
                   .arg(event.nFlags);
    return str.toStdString();
}

}  // namespace

TEST(ScrollView, BarsTakeTheirRoomFromTheClientArea) {
    CShownView test;
    for (const auto& [sizeContent, nBars] :
         {std::pair{CSize{200, 150}, 0}, {CSize{201, 100}, 1}, {CSize{100, 151}, 1}, {CSize{190, 151}, 2}}) {
        test.view.SetScrollSizes(sizeContent);
        QCoreApplication::processEvents();
        EXPECT_EQ(test.BarsUp(), nBars);
        const QImage image = test.Widget().grab().toImage();
        const QPoint ptLast = test.Widget().ClientArea().bottomRight();
        EXPECT_EQ(image.pixel(0, 0), qRgb(90, 80, 70)) << "the mark in its corner";
        EXPECT_EQ(image.pixel(ptLast), qRgb(10, 20, 30)) << "drawn up to the bars";
        if (nBars == 2) {
            EXPECT_EQ(image.pixel(198, 148), qRgb(95, 107, 112)) << "the ground of the bars";
        }
    }
}

TEST(ScrollView, WheelAndBarsScroll) {
    CShownView test;
    test.view.SetScrollSizes({1000, 1000});
    Wheel(test.Widget(), -120);
    EXPECT_GT(test.view.ScrollPosition().y, 0);
    EXPECT_EQ(test.view.ScrollPosition().x, 0);
    for (QScrollBar* pBar : test.Widget().findChildren<QScrollBar*>()) pBar->setValue(99999);
    EXPECT_EQ(test.view.ScrollPosition(), test.view.ScrollLimit());
    for (QScrollBar* pBar : test.Widget().findChildren<QScrollBar*>()) pBar->setValue(0);
    EXPECT_EQ(test.view.ScrollPosition(), CPoint{});
    test.view.ScrollTo({3, 4});
    for (const QScrollBar* pBar : test.Widget().findChildren<QScrollBar*>())
        EXPECT_EQ(pBar->value(), pBar->orientation() == Qt::Horizontal ? 3 : 4);
}

TEST(ScrollView, MouseComesAsOnThePlatform) {
    CShownView test;
    Move(test.Window(), test.At(0, 0));
    Press(test.Window(), test.At(5, 6));
    Move(test.Window(), test.At(-3, 6));
    Release(test.Window(), test.At(-3, 6));
    QTest::mouseDClick(test.Window().windowHandle(), Qt::RightButton, {}, test.At(199, 149));
    // Pressed beside the view and released over it: the release is the view's.
    Press(test.Window(), test.At(-5, 20));
    Release(test.Window(), test.At(7, 8));

    EXPECT_EQ(Tell(WithoutMoves(test.view.m_arrMouse)),
              "press 5,6 held 1; press 199,149 held 2; release 199,149 held 0; double 199,149 held 2; "
              "release 199,149 held 0; release 7,8 held 0; ");
    ASSERT_FALSE(test.view.m_arrMouse.empty());
    EXPECT_EQ(Tell({test.view.m_arrMouse[0]}), "move 0,0 held 0; ") << "moves come with no button too";
    // What left the view went to the window around it, like any other release there.
    EXPECT_EQ(Tell(WithoutMoves(test.shown.dialog.m_arrMouse)), "release 17,16 held 0; press 15,30 held 1; ");
}

TEST(ScrollView, APressOnABarIsNotTheViews) {
    CShownView test;
    test.view.SetScrollSizes({100, 1000});
    Tap(test.Window(), test.At(192, 75));
    EXPECT_TRUE(test.view.m_arrMouse.empty());
    EXPECT_TRUE(test.shown.dialog.m_arrMouse.empty());
    EXPECT_GT(test.view.ScrollPosition().y, 0);
    Press(test.Window(), test.At(5, 6));
    Release(test.Window(), test.At(192, 75));
    EXPECT_EQ(WithoutMoves(test.view.m_arrMouse).size(), 1U) << "nor is a release there";
}
