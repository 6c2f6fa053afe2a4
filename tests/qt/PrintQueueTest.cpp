// Printing on a real queue, and the dialogs before it.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPushButton>
#include <QSpinBox>

#include "PrintService.h"
#include "PrintedPage.h"
#include "TestDialog.h"
#include "qt/QtPlatform.h"
#include "support/FullDisk.h"

namespace {

class PrintQueue : public testing::Test {
  protected:
    CPrinters& Printers() { return m_owner.Platform().printers; }
    static QPrintDialog& Window() {
        auto* pWindow = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
        EXPECT_NE(pWindow, nullptr);
        return *pWindow;
    }
    std::unique_ptr<CPrintDevice> Accept() {
        Later([] { Window().accept(); });
        return Printers().RunDialog();
    }

    CTestBitmaps m_bitmaps;
    CQtPlatform m_owner{m_bitmaps};
};

}  // namespace

TEST_F(PrintQueue, ThePageArrivesAsItWasDrawn) {
    CPrintService service;
    // A6 is none of the numbered papers.
    const std::optional<CDeviceMode> mode = Printers().DefaultMode();
    ASSERT_TRUE(mode.has_value());
    EXPECT_FALSE(IsPaperKnown(mode->nPaper));
    EXPECT_EQ(mode->orientation, EOrientation::Landscape);

    const auto pDevice = Accept();
    ASSERT_NE(pDevice, nullptr);
    EXPECT_EQ(pDevice->DotsPerInch(), (CSize{300, 300}));
    EXPECT_EQ(pDevice->PrintableDots(), (CSize{1650, 1138}))
        << "a sixth of an inch is out of reach all around";
    const CPixels pixels = MakeTiles(700, 900);
    ASSERT_TRUE(pDevice->StartDocument("Fotarium"));
    for (int y = 0; y < 900; y += 450)
        ASSERT_TRUE(pDevice->DrawPixels(RowsOf(pixels, y, 450), {100, 50 + y}));
    EXPECT_EQ(service.Jobs(), 0);
    ASSERT_TRUE(pDevice->EndDocument());
    const CPrintedPage page(service.WaitForJob());
    EXPECT_EQ(page.Says("Pages"), "1");
    EXPECT_EQ(page.Says("Title"), "Fotarium");
    const QImage image = page.Render(300);
    EXPECT_EQ(FirstDifference(image, PageWith(pixels, {150, 100}, image.size())), "");
}

TEST_F(PrintQueue, ThePaperIsTheOneThatTheQueueIsSetTo) {
    for (const auto& [strPaper, nOrientation] :
         {std::pair("A4", 3), std::pair("Photo", 3), std::pair("A4", 5)}) {
        const CPrintService service(strPaper, nOrientation);
        const std::optional<CDeviceMode> mode = Printers().DefaultMode();
        ASSERT_TRUE(mode.has_value());
        // The queue's own name for a size is not one that somebody has typed.
        EXPECT_EQ(IsPaperKnown(mode->nPaper), strPaper == std::string("A4"));
        EXPECT_EQ(mode->orientation == EOrientation::Portrait, nOrientation == 3);
        const auto pDevice = Accept();
        ASSERT_NE(pDevice, nullptr);
        const CSize dots = pDevice->PrintableDots();
        EXPECT_EQ(dots.cx < dots.cy, nOrientation == 3);
        EXPECT_EQ(std::max(dots.cx, dots.cy), strPaper == std::string("A4") ? 3408 : 1700);
    }
}

TEST_F(PrintQueue, TheDialogOffersNoPagesNoSelectionAndNoFile) {
    CPrintService service;
    Later([] {
        QPrintDialog& window = Window();
        EXPECT_EQ(window.windowTitle(), "打印");
        // The dialog's lower half is folded up at first.
        for (auto* pButton : window.findChildren<QPushButton*>())
            if (pButton->text().startsWith("选项")) pButton->click();
        const auto* pCopies = window.findChild<QSpinBox*>("copies");
        ASSERT_NE(pCopies, nullptr);
        EXPECT_TRUE(pCopies->isVisible());
        for (const char* szChoice :
             {"printRange", "printSelection", "printCurrentPage", "from", "pagesLineEdit"}) {
            const auto* pChoice = window.findChild<QWidget*>(szChoice);
            ASSERT_NE(pChoice, nullptr) << szChoice;
            EXPECT_FALSE(pChoice->isVisible()) << szChoice;
        }
        const auto* pPrinters = window.findChild<QComboBox*>("printers");
        ASSERT_NE(pPrinters, nullptr);
        EXPECT_EQ(pPrinters->count(), 2);
        EXPECT_EQ(pPrinters->currentText(), "Card");
        window.reject();
    });
    EXPECT_EQ(Printers().RunDialog(), nullptr);
    EXPECT_EQ(service.Jobs(), 0);
}

TEST_F(PrintQueue, CopiesAreThePrintersAffair) {
    CPrintService service;
    Later([] {
        Window().findChild<QSpinBox*>("copies")->setValue(3);
        Window().accept();
    });
    const auto pDevice = Printers().RunDialog();
    ASSERT_TRUE(pDevice->StartDocument("a") && pDevice->EndDocument());
    EXPECT_EQ(CPrintedPage(service.WaitForJob()).Says("Pages"), "1");
    EXPECT_EQ(service.Copies(), "3");
    EXPECT_EQ(service.Jobs(), 1);
}

TEST_F(PrintQueue, WhatDoesNotEndWellIsNotPrinted) {
    CPrintService service;
    const CPixels pixels = MakeTiles(400, 400);
    const auto pDevice = Accept();
    ASSERT_TRUE(pDevice->StartDocument("a") && pDevice->DrawPixels(pixels, {0, 0}));
    pDevice->AbortDocument();
    EXPECT_FALSE(pDevice->DrawPixels(pixels, {0, 0}) || pDevice->EndDocument());
    {
        const CFullDisk full(100000);
        ASSERT_TRUE(pDevice->StartDocument("a"));
        EXPECT_FALSE(pDevice->DrawPixels(pixels, {0, 0}));
        pDevice->AbortDocument();
    }
    EXPECT_EQ(service.Jobs(), 0);
    EXPECT_TRUE(pDevice->StartDocument("a") && pDevice->DrawPixels(pixels, {0, 0}) && pDevice->EndDocument());
    EXPECT_EQ(service.Jobs(), 1);

    // The queue takes no jobs, and then takes them again.
    for (const bool bAccepting : {false, true}) {
        service.StartAnew(bAccepting);
        ASSERT_TRUE(pDevice->StartDocument("a") && pDevice->DrawPixels(pixels, {0, 0}));
        EXPECT_EQ(pDevice->EndDocument(), bAccepting);
    }
    EXPECT_EQ(service.Jobs(), 2);

    // The printer vanishes.
    ASSERT_TRUE(pDevice->StartDocument("a") && pDevice->DrawPixels(pixels, {0, 0}));
    service.Stop();
    EXPECT_FALSE(pDevice->EndDocument());
    EXPECT_FALSE(pDevice->StartDocument("a"));
    EXPECT_EQ(service.Jobs(), 2);
}

TEST_F(PrintQueue, WithoutPrintersAPdfFileIsAskedFor) {
    UsePrintService("/nowhere");
    EXPECT_EQ(Printers().DefaultMode(), CDeviceMode{});
    const CTempFolder folder;
    const std::filesystem::path pathBefore = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    for (const bool bAccept : {false, true}) {
        Later([=] {
            auto* pWindow = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(pWindow, nullptr);
            auto* pName = pWindow->findChild<QLineEdit*>("fileNameEdit");
            EXPECT_EQ(pName->text(), "打印.pdf");
            pName->setText("page");
            QMetaObject::invokeMethod(pWindow, bAccept ? "accept" : "reject");
        });
        const auto pDevice = Printers().RunDialog();
        ASSERT_EQ(pDevice != nullptr, bAccept);
        if (bAccept) {
            EXPECT_TRUE(pDevice->StartDocument("a") && pDevice->EndDocument());
        }
    }
    EXPECT_EQ(folder.Names(), std::set<std::string>{"page.pdf"});
    EXPECT_EQ(std::filesystem::current_path(), folder.Path());
    std::filesystem::current_path(pathBefore);
}
