// Modal dialogs, message boxes, menus, font and colour windows, and what runs beside them.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QActionGroup>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>

#include "TestDialog.h"
#include "qt/QtPlatform.h"
#include "window/Choosers.h"
#include "window/PopupMenus.h"

namespace {

constexpr CControlTemplate kControls[] = {
    {1, EControlKind::Button, CRect::FromPlace(10, 10, 60, 24), "确定"},
};
constexpr CDialogTemplate kDialog{900, "One", {160, 100}, EDialogFrame::Plain, kControls};
constexpr CControlTemplate kView[] = {{50, EControlKind::View, CRect::FromPlace(10, 10, 20, 20)}};
constexpr CDialogTemplate kWithView{901, "View", {160, 100}, EDialogFrame::Plain, kView};

struct CTestPlatform {
    CTestBitmaps bitmaps;
    CQtPlatform owner{bitmaps};
    const CPlatform& platform = owner.Platform();
};

template <typename T>
T* ActiveWindow() {
    return qobject_cast<T*>(QApplication::activeModalWidget());
}

}  // namespace

TEST(ModalDialogs, NestAndGiveTheirCodes) {
    CTestPlatform test;
    CTestDialog outer(kDialog);
    CTestDialog inner(kDialog);
    int nInnerCode = 0;
    bool bAbove = false;
    outer.m_fnCommand = [&](int) {
        QWidget* pOuter = QApplication::activeModalWidget();
        Later([&inner, &bAbove, pOuter] {
            bAbove = QApplication::activeModalWidget()->parentWidget() == pOuter;
            inner.EndDialog(7);
        });
        nInnerCode = test.platform.modals.Run(inner);
        EXPECT_FALSE(outer.HasEnded());
        outer.EndDialog(9);
    };
    Later([&] {
        QWidget* pOuter = QApplication::activeModalWidget();
        const QPoint ptOff = pOuter->geometry().center() - pOuter->screen()->availableGeometry().center();
        EXPECT_LE(ptOff.manhattanLength(), 8) << "in the middle of the screen";
        QTest::keyClick(pOuter, Qt::Key_Return);
    });
    EXPECT_EQ(test.platform.modals.Run(outer), 9);
    EXPECT_EQ(nInnerCode, 7);
    EXPECT_TRUE(bAbove);
    EXPECT_EQ(outer.m_nDestroys, 1);
    EXPECT_EQ(inner.m_nDestroys, 1);
}

TEST(ModalDialogs, OneThatEndsAtItsStartIsNeverShown) {
    CTestPlatform test;
    CTestDialog dialog(kDialog);
    dialog.m_fnInit = [&] { dialog.EndDialog(5); };
    EXPECT_EQ(test.platform.modals.Run(dialog), 5);
    EXPECT_EQ(dialog.m_nDestroys, 1);
    EXPECT_EQ(dialog.m_nPaints, 0);
}

TEST(Timers, RunUntilKilledAndStartAnew) {
    CTestPlatform test;
    CTestDialog dialog(kDialog);
    std::vector<int> arrTicks;
    dialog.m_fnTimer = [&](int nTimer) {
        arrTicks.push_back(nTimer);
        test.platform.timers.KillTimer(dialog, nTimer);
        if (arrTicks.size() == 1) test.platform.timers.SetTimer(dialog, 4, 0);
        if (arrTicks.size() == 2) test.platform.timers.SetTimer(dialog, 3, 1);
    };
    test.platform.timers.SetTimer(dialog, 3, 100000);
    test.platform.timers.SetTimer(dialog, 3, 1);  // the new period counts
    test.platform.timers.KillTimer(dialog, 99);
    EXPECT_TRUE(QTest::qWaitFor([&] { return arrTicks.size() == 3; }, 2000));
    QTest::qWait(30);
    EXPECT_EQ(arrTicks, (std::vector{3, 4, 3}));
}

TEST(Timers, KeepToTheShortestPeriodAndEndWithTheirDialog) {
    CTestPlatform test;
    int nTicks = 0;
    CTestDialog dialog(kWithView);
    CTestScrollView view{{20, 20}};
    dialog.m_models.pView = &view;
    dialog.m_fnInit = [&] {
        test.platform.timers.SetTimer(dialog, 1, 0);
        test.platform.timers.SetTimer(view, 1, 0);
    };
    QElapsedTimer clock;
    dialog.m_fnTimer = [&](int) {
        if (++nTicks == 1) clock.start();
        if (nTicks == 15) dialog.EndDialog(1);
    };
    test.platform.modals.Run(dialog);
    EXPECT_GE(clock.elapsed(), 13 * CTimers::kLeastPeriod) << "an idle program runs no timer faster";
    const int nViewTicks = view.m_nTicks;
    EXPECT_GT(nViewTicks, 0);
    QTest::qWait(50);
    EXPECT_EQ(nTicks, 15);
    EXPECT_EQ(view.m_nTicks, nViewTicks);
}

TEST(MessageBoxes, ShowTextToTheLetterAndAnswer) {
    CTestPlatform test;
    using enum EBoxButtons;
    struct CCase {
        EBoxButtons buttons;
        QStringList arrCaptions;
        EBoxIcon icon;
        QMessageBox::Icon iconShown;
        const char* szPress;  // caption, or empty to close the box by Esc
        EBoxAnswer answer;
    };
    const CCase arrCases[] = {
        {Ok, {"确定"}, EBoxIcon::None, QMessageBox::NoIcon, "确定", EBoxAnswer::Ok},
        {Ok, {"确定"}, EBoxIcon::Stop, QMessageBox::Critical, "", EBoxAnswer::Ok},
        {OkCancel, {"取消", "确定"}, EBoxIcon::Information, QMessageBox::Information, "确定", EBoxAnswer::Ok},
        {OkCancel, {"取消", "确定"}, EBoxIcon::Exclamation, QMessageBox::Warning, "", EBoxAnswer::Cancel},
        {YesNo, {"否", "是"}, EBoxIcon::Exclamation, QMessageBox::Warning, "是", EBoxAnswer::Yes},
        {YesNo, {"否", "是"}, EBoxIcon::Exclamation, QMessageBox::Warning, "", EBoxAnswer::No},
    };
    const std::string strText = "\n<b>'照片' & 100%</b>\n\n";
    for (const CCase& one : arrCases) {
        Later([&] {
            auto* pBox = ActiveWindow<QMessageBox>();
            ASSERT_NE(pBox, nullptr);
            EXPECT_EQ(pBox->text().toStdString(), strText);
            EXPECT_EQ(pBox->textFormat(), Qt::PlainText);
            EXPECT_EQ(pBox->windowTitle(), "标题");
            EXPECT_EQ(pBox->icon(), one.iconShown);
            QStringList arrCaptions;
            QAbstractButton* pPress = nullptr;
            for (QAbstractButton* pButton : pBox->buttons()) {
                arrCaptions += pButton->text();
                if (pButton->text() == one.szPress) pPress = pButton;
            }
            arrCaptions.sort();
            EXPECT_EQ(arrCaptions, one.arrCaptions);
            if (pPress != nullptr)
                pPress->click();
            else
                QTest::keyClick(pBox, Qt::Key_Escape);
        });
        EXPECT_EQ(test.platform.boxes.Show({strText, "标题", one.icon, one.buttons}), one.answer);
    }
}

TEST(WaitCursor, NestsAndGivesWayToABox) {
    CTestPlatform test;
    test.platform.wait.Begin();
    test.platform.wait.Begin();
    test.platform.wait.End();
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    Later([] {
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        ActiveWindow<QMessageBox>()->buttons().constFirst()->click();
    });
    test.platform.boxes.Show({"text", "title"});
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    test.platform.wait.End();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(PopupMenus, GiveTheChosenItem) {
    CTestPlatform test;
    const std::vector<CMenuItem> arrItems = {{101, "上下"}, {102, "Undo", false}, {103, "Redo", true, true}};
    Later([] {
        auto* pMenu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(pMenu, nullptr);
        EXPECT_FALSE(pMenu->actions()[1]->isEnabled());
        // One of a group has a round mark, and choosing it once more is a choice.
        for (const int i : {0, 1, 2}) EXPECT_EQ(pMenu->actions()[i]->isCheckable(), i == 2);
        const QAction& marked = *pMenu->actions()[2];
        EXPECT_TRUE(marked.isChecked() && marked.actionGroup() != nullptr &&
                    marked.actionGroup()->isExclusive());
        QTest::mouseClick(pMenu, Qt::LeftButton, {}, pMenu->actionGeometry(pMenu->actions()[2]).center());
    });
    EXPECT_EQ(test.platform.menus.Track(arrItems), 103);
    Later([] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape); });
    EXPECT_EQ(test.platform.menus.Track(arrItems), 0);
}

TEST(Choosers, ColourStartsWhereItWas) {
    CTestPlatform test;
    Later([] { ActiveWindow<QColorDialog>()->accept(); });
    EXPECT_EQ(test.platform.colors.Run({1, 2, 3}), (CColor{1, 2, 3}));
    Later([] { ActiveWindow<QColorDialog>()->reject(); });
    EXPECT_FALSE(test.platform.colors.Run({1, 2, 3}).has_value());
}

TEST(Choosers, FontKeepsAFaceThatTheMachineLacks) {
    CTestPlatform test;
    const auto fnSample = [] {
        for (const QLabel* pLabel : ActiveWindow<QDialog>()->findChildren<QLabel*>())
            if (pLabel->text().contains("AaBb")) return pLabel->font();
        return QFont();
    };
    Later([&] {
        EXPECT_TRUE(fnSample().bold());
        ActiveWindow<QDialog>()->accept();
    });
    EXPECT_EQ(test.platform.fonts.Run({"黑体", true}), (CFontChoice{"黑体", true}));
    Later([&] {
        auto* pWindow = ActiveWindow<QDialog>();
        auto arrLists = pWindow->findChildren<QListWidget*>();
        for (QListWidget* pList : arrLists)
            pList->setCurrentRow(pList->count() == 2 ? 0 : pList->count() - 1);
        EXPECT_FALSE(fnSample().bold());
        const QString strFace = fnSample().family();
        for (QListWidget* pList : arrLists)
            if (pList->count() > 2) pList->setCurrentRow(pList->currentRow() == 0 ? 1 : 0);
        EXPECT_NE(fnSample().family(), strFace) << "the sample follows the face";
        for (QListWidget* pList : arrLists)
            if (pList->count() > 2) pList->setCurrentRow(pList->count() - 1);
        for (auto* pButton : pWindow->findChildren<QPushButton*>())
            if (pButton->text() == "确定") pButton->click();
        if (pWindow->isVisible()) pWindow->reject();
    });
    const auto choice = test.platform.fonts.Run({"黑体", true});
    ASSERT_TRUE(choice.has_value());
    EXPECT_FALSE(choice->bBold);
    EXPECT_NE(choice->strFace, "黑体");
    EXPECT_FALSE(choice->strFace.empty());
    Later([&] {
        for (QListWidget* pList : ActiveWindow<QDialog>()->findChildren<QListWidget*>())
            if (pList->count() > 2) emit pList->itemDoubleClicked(pList->currentItem());
    });
    EXPECT_TRUE(test.platform.fonts.Run({"黑体", true}).has_value()) << "a double click takes the face";
}
