// The print preview in the real window: keys, the question while the preview stands, and the date in a real
// face.

#include <QAbstractButton>
#include <QFontInfo>
#include <QMessageBox>
#include <algorithm>

#include "PrintedPage.h"
#include "TestDialog.h"
#include "play/ScriptedPrinters.h"
#include "print/PrintPreviewDlg.h"
#include "qt/FontMapping.h"
#include "qt/PdfDevice.h"
#include "qt/QtPlatform.h"
#include "resources/Ids.h"
#include "support/Pictures.h"
#include "support/TempFolder.h"

namespace {

constexpr QRgb kRed = qRgb(255, 79, 64);

class PrintPreview : public testing::Test {
  protected:
    static CDialogView& Window() {
        auto* pView = dynamic_cast<CDialogView*>(QApplication::activeModalWidget());
        EXPECT_NE(pView, nullptr);
        return *pView;
    }
    static QWidget& Widget(int nId) { return *Window().WidgetOf(nId); }
    static int CountOf(const QImage& image, QRgb rgb) {
        int n = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) n += (image.pixel(x, y) | 0xFF000000U) == rgb ? 1 : 0;
        return n;
    }
    static QImage View() { return Widget(kPrintView).grab().toImage(); }
    static void Wait() { QTest::qWait(50); }
    // Runs the dialog; the hand works in it when it is seen.
    int Run(const CxImage& image, CPrinters& printers, CTextRasterizer& text, std::function<void()> fnHand) {
        const CPlatform& p = m_owner.Platform();
        CPrintPreviewDlg dialog(image, {p.boxes, printers, m_clock, text, p.wait});
        Later([&] {
            Wait();
            fnHand();
        });
        return p.modals.Run(dialog);
    }

    CTestBitmaps m_bitmaps;
    CQtPlatform m_owner{m_bitmaps};
    CScriptedPrinters m_printers;
    CScriptedClock m_clock;
};

// A date that is seen however small it is.
class CSolidRasterizer : public CTextRasterizer {
  public:
    CTextMask Rasterize(const CTextFont& font, const std::string& /*strText*/) override {
        return {2, font.nHeight, std::vector<std::uint8_t>(static_cast<std::size_t>(2 * font.nHeight), 255)};
    }
};

// A printer that puts every page into that file.
class CFilePrinters : public CPrinters {
  public:
    explicit CFilePrinters(std::string strPath) : m_strPath(std::move(strPath)) {}
    std::optional<CDeviceMode> DefaultMode() override { return CDeviceMode{}; }
    std::unique_ptr<CPrintDevice> RunDialog() override { return std::make_unique<CPdfDevice>(m_strPath); }

  private:
    std::string m_strPath;
};

}  // namespace

TEST_F(PrintPreview, WhatIsAskedAboutIsSeenBehindTheQuestion) {
    CSolidRasterizer text;
    const int nEnd = Run(FlatImage(100, 60, {0, 0, 200}), m_printers, text, [&] {
        const QImage plain = View();
        CDialogView& window = Window();
        int nBoxes = 0;
        auto button = QMessageBox::No;
        // The question runs inside of the paint that asks it.
        QTimer hand;
        QObject::connect(&hand, &QTimer::timeout, [&] {
            auto* pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (pBox == nullptr) return;
            ++nBoxes;
            EXPECT_GT(CountOf(window.WidgetOf(kPrintView)->grab().toImage(), kRed), 0);
            pBox->button(button)->click();
        });
        hand.start(40);
        for (const bool bYes : {false, true}) {
            button = bYes ? QMessageBox::Yes : QMessageBox::No;
            QTest::keyClick(&Widget(kPrintDate), Qt::Key_Space);
            ASSERT_TRUE(QTest::qWaitFor([&] { return nBoxes == (bYes ? 2 : 1); }));
            QTest::qWait(100);
            EXPECT_EQ(window.Dialog().Controls().IsChecked(kPrintDate), bYes);
            EXPECT_EQ(View() == plain, !bYes);
        }
        EXPECT_EQ(nBoxes, 2);
        m_printers.AnswerDialog(true);
        QTest::keyClick(&Window(), Qt::Key_Return);
    });
    EXPECT_EQ(nEnd, CDialog::kDialogOk);
    EXPECT_EQ(m_printers.Documents(), 1);
    EXPECT_EQ(
        Run(FlatImage(300, 200, {}), m_printers, text, [] { QTest::keyClick(&Window(), Qt::Key_Escape); }),
        CDialog::kDialogCancel);
    EXPECT_EQ(m_printers.Documents(), 1);
}

// The widths that are kept for it are those of its own face, which is there.
TEST_F(PrintPreview, TheDateHasItsOwnFace) {
    EXPECT_EQ(QFontInfo(MapFont("Tahoma", 40)).family(), "Tahoma");
    CTextRasterizer& text = m_owner.Platform().text;
    for (const CSize size : {CSize{176, 144}, {1600, 1200}, {120, 2000}}) {
        const CStampPlace stamp = LayOutPrint(size, {600, 600}, {4958, 7017}, EOrientation::Portrait).stamp;
        const CTextMask mask = text.Rasterize({"Tahoma", stamp.nSize, 400, false, false}, "2006.01.02");
        EXPECT_LE(mask.nWidth, stamp.nReserved) << stamp.nSize;
        EXPECT_GT(mask.nWidth, stamp.nReserved * 3 / 4) << stamp.nSize;
        // Digits stand on their line: below it is as much room as the face has for descents.
        const auto itLast =
            std::find_if(mask.coverage.rbegin(), mask.coverage.rend(), [](auto n) { return n > 127; });
        const auto nBelow = static_cast<int>((itLast - mask.coverage.rbegin()) / mask.nWidth);
        EXPECT_NEAR(nBelow, stamp.nSize * 423 / (2049 + 423), 2) << stamp.nSize;
    }
    const CTempFolder folder;
    CFilePrinters printers(folder.Path("a.pdf"));
    Run(FlatImage(400, 300, {0, 0, 200}), printers, text, [] {
        QTest::mouseClick(&Widget(kPrintDateLabel), Qt::LeftButton);
        QTest::mouseClick(&Widget(kPrintOk), Qt::LeftButton);
    });
    const QImage page = CPrintedPage(folder.Path("a.pdf")).Render(600);
    const CPageLayout layout = LayOutPrint({400, 300}, {600, 600}, {4958, 7017}, EOrientation::Portrait);
    const CStampPlace& stamp = layout.stamp;
    const QRect rcDate(layout.rcPicture.left + stamp.pt.x, layout.rcPicture.top + stamp.pt.y - stamp.nSize,
                       stamp.nReserved, stamp.nSize);
    const int nRed = CountOf(page.copy(rcDate), kRed);
    EXPECT_GT(nRed, stamp.nReserved * stamp.nSize / 20);
    EXPECT_EQ(nRed, CountOf(page, kRed)) << "all of it in its place";
}
