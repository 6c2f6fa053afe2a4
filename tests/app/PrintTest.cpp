// PRINT: what the preview shows and asks, what comes onto the page, and what becomes of a printer that fails.

#include "app/PaintWorkshop.h"
#include "engines/page/PagePicture.h"
#include "resources/BitmapIds.h"

namespace {

constexpr CColor kRed{255, 79, 64};  // the date

class PrintTest : public PaintWorkshop {
  protected:
    // Runs the preview; the hand does that in it.
    void Print(CScriptedPlatform::CRunner fnHand) {
        m_platform.SetRunner(kDlgPrint, std::move(fnHand));
        Click(kCmdPrint);
    }
    void PrintAnswering(std::vector<std::string> arrSteps) {
        CAnswer answer;
        answer.question = EQuestion::Print;
        answer.arrSteps = std::move(arrSteps);
        m_platform.Answer(std::move(answer));
        Click(kCmdPrint);
    }
    CScriptedPrinters& Printers() { return m_platform.Printers(); }
    // Documents that were printed, and that were not ended.
    std::pair<int, int> Counts() { return {Printers().Documents(), Printers().Aborted()}; }
    static const CPixels& Shown(CPlayHost& host) { return host.ViewOf(kPrintView)->Surface().Pixels(); }
    static int CountOf(const CPixels& pixels, CColor color) {
        int n = 0;
        for (int y = 0; y < pixels.Height(); ++y)
            for (int x = 0; x < pixels.Width(); ++x) n += PixelAt(pixels, x, y) == color ? 1 : 0;
        return n;
    }
    static CPixels Cut(const CPixels& pixels, const CRect& rc) {
        CSurface part(rc.Width(), rc.Height());
        part.DrawPart(pixels, rc, 0, 0);
        return part.Pixels();
    }
};

}  // namespace

TEST_F(PrintTest, ThePreviewLaysThePictureOnTheSheet) {
    OpenNumbered(176, 144);
    const CSnapshot before = Snapshot();
    Print([&](CPlayHost& host) {
        EXPECT_EQ(host.Dialog().Template().szTitle, std::string("打印 [打印预览]"));
        EXPECT_FALSE(host.Dialog().Controls().IsChecked(kPrintDate));
        const CPixels plain = Shown(host);
        EXPECT_EQ(Cut(plain, CRect::FromPlace(138, 144, 59, 48)),
                  NaiveResample(NumberedPixels(176, 144), 59, 48));
        // The sheet: black edge, white inside; beside it the desk.
        EXPECT_EQ(PixelAt(plain, 49, 0), (CColor{0, 0, 0}));
        EXPECT_EQ(PixelAt(plain, 285, 335), (CColor{0, 0, 0}));
        EXPECT_EQ(PixelAt(plain, 50, 1), (CColor{255, 255, 255}));
        EXPECT_EQ(PixelAt(plain, 48, 0), PixelAt(plain, 286, 335));
        EXPECT_NE(PixelAt(plain, 48, 0), (CColor{255, 255, 255}));
        // The date, by the box and by its label
        EXPECT_EQ(host.Click(kPrintDate), "");
        EXPECT_GT(CountOf(Shown(host), kRed), 0);
        EXPECT_EQ(host.Click(kPrintDateLabel), "");
        EXPECT_FALSE(host.Dialog().Controls().IsChecked(kPrintDate));
        EXPECT_EQ(Shown(host), plain);
        EXPECT_EQ(host.Key({kKeyEscape}), "");
        EXPECT_TRUE(host.Dialog().HasEnded());
    });
    EXPECT_EQ(Snapshot(), before);
    EXPECT_EQ(Printers().Documents(), 0);
}

TEST_F(PrintTest, TheDialogStandsOnItsGround) {
    struct CNotedBitmaps : CBitmaps {
        const CxImage* Find(const std::string& strName, int /*nDensity*/) override {
            bGround = bGround || strName == std::to_string(kBmpPrint);
            return nullptr;
        }
        bool bGround = false;
    } bitmaps;
    OpenNumbered(176, 144);
    m_platform.SetBitmaps(&bitmaps);
    Print([](CPlayHost& host) { host.Pump(); });
    EXPECT_TRUE(bitmaps.bGround);
    m_platform.SetBitmaps(nullptr);
}

TEST_F(PrintTest, TinyDigitsAreAskedAboutOnceATick) {
    OpenNumbered(100, 60);
    const CMessageBox box{"表示日期的数字很小还要表示吗？", "打印预览", EBoxIcon::Exclamation,
                          EBoxButtons::YesNo};
    Print([&](CPlayHost& host) {
        const auto answer = [&](EBoxAnswer button) {
            m_platform.Answer(button);
            EXPECT_EQ(host.Click(kPrintDate), "");
            ExpectBoxes({box});
            return host.Dialog().Controls().IsChecked(kPrintDate);
        };
        const CPixels plain = Shown(host);
        EXPECT_FALSE(answer(EBoxAnswer::No));
        EXPECT_EQ(Shown(host), plain);
        EXPECT_TRUE(answer(EBoxAnswer::Yes));
        EXPECT_NE(Shown(host), plain);
        host.ViewOf(kPrintView)->Invalidate();
        host.Pump();
        ExpectBoxes({});
        EXPECT_EQ(host.Click(kPrintDate), "");
        EXPECT_EQ(Shown(host), plain);
        EXPECT_TRUE(answer(EBoxAnswer::Yes));
    });
    OpenNumbered(101, 76);
    Print([&](CPlayHost& host) {
        EXPECT_EQ(host.Click(kPrintDate), "");
        ExpectBoxes({});
    });
}

TEST_F(PrintTest, ThePageHasThePictureAtThePrintersDots) {
    OpenNumbered(176, 144);
    const CSnapshot before = Snapshot();
    Printers().SetPrinter({.mode = {}, .sizeDpi = {72, 72}, .sizePrintable = {590, 830}});
    PrintAnswering({"ok"});
    EXPECT_EQ(Printers().Documents(), 1);
    EXPECT_EQ(Printers().DocumentName(), "Orvo Fotarium V 1.0");
    const CRect rc = LayOutPrint({176, 144}, {72, 72}, {590, 830}, EOrientation::Portrait).rcPicture;
    EXPECT_EQ(Printers().PicturePlace(), rc);
    EXPECT_EQ(Cut(Printers().Page(), rc), NaiveResample(NumberedPixels(176, 144), rc.Width(), rc.Height()));
    EXPECT_EQ(CountOf(Printers().Page(), {255, 255, 255}), 590 * 830 - rc.Width() * rc.Height());
    m_platform.Clock().SetDate({2026, 3, 4});
    PrintAnswering({"stamp", "ok"});
    EXPECT_GT(CountOf(Printers().Page(), kRed), 0);
    EXPECT_EQ(Snapshot(), before);
    // At many dots the page is made in strips; with the date they are those of the whole.
    Printers().SetPrinter({.mode = {.orientation = EOrientation::Landscape},
                           .sizeDpi = {600, 600},
                           .sizePrintable = {7016, 4960}});
    PrintAnswering({"stamp", "ok"});
    const CPageLayout layout = LayOutPrint({176, 144}, {600, 600}, {7016, 4960}, EOrientation::Landscape);
    EXPECT_EQ(Printers().PicturePlace(), layout.rcPicture);
    const CPagePicture picture(NumberedImage(176, 144), layout.rcPicture.Size(), m_platform.Get().text,
                               CDateStamp{"2026.03.04", layout.stamp});
    const CPixels whole = picture.Whole();
    const CPixels& page = Printers().Page();
    for (int y = 0; y < page.Height(); ++y)
        for (int x = 0; x < page.Width(); ++x) {
            const CPoint pt{x * 5 - layout.rcPicture.left, y * 5 - layout.rcPicture.top};
            const bool bInside = CRect::FromPlace(0, 0, whole.Width(), whole.Height()).Contains(pt);
            ASSERT_EQ(PixelAt(page, x, y), bInside ? PixelAt(whole, pt.x, pt.y) : (CColor{255, 255, 255}));
        }
}

TEST_F(PrintTest, WhatFailsLeavesTheDialogForTheNextTry) {
    OpenNumbered(900, 640);
    PrintAnswering({"cancel", "ok"});
    EXPECT_EQ(Counts(), (std::pair(1, 0)));
    Printers().RefuseDocuments();
    PrintAnswering({"ok", "ready", "ok"});
    Printers().VanishAfterDialog();
    PrintAnswering({"ok", "stamp", "ready", "ok"});
    EXPECT_EQ(Counts(), (std::pair(3, 0)));
    // A disk that is full, at once and with the last of the page's strips
    for (const int nStrips : {0, 1}) {
        Printers().SetPrinter({.sizeDpi = {600, 600}, .sizePrintable = {4960, 7016}});
        Printers().FailAfterStrips(nStrips);
        PrintAnswering({"ok", "ready", "ok"});
    }
    EXPECT_EQ(Counts(), (std::pair(5, 2)));
    // No printer at all: the preview is empty, and the print ends quietly with nothing.
    Printers().RemovePrinter();
    Print([&](CPlayHost& host) {
        EXPECT_EQ(CountOf(Shown(host), PixelAt(Shown(host), 0, 0)), 336 * 336);
        EXPECT_EQ(host.Click(kPrintDate), "");
        Printers().AnswerDialog(true);
        EXPECT_EQ(host.Click(kPrintOk), "");
        EXPECT_TRUE(host.Dialog().HasEnded());
    });
    EXPECT_EQ(Counts(), (std::pair(5, 2)));
}

TEST_F(PrintTest, PaperThatIsNotSupportedIsToldAndShownAsA4) {
    OpenNumbered(300, 200);
    CPixels a4;
    Print([&](CPlayHost& host) { a4 = Shown(host); });
    for (const int nPaper : {0, 42, 65535}) {
        Printers().SetPrinter({.mode = {.nPaper = nPaper, .sizeOwn = {70, 50}}});
        m_platform.Answer(nPaper == 0 ? EBoxAnswer::Ok : EBoxAnswer::Cancel);
        Print([&](CPlayHost& host) { EXPECT_EQ(Shown(host), a4); });
        ExpectBoxes({{"不支持此种用纸。显示A4纸", "打印预览", EBoxIcon::None, EBoxButtons::OkCancel}});
    }
    Printers().SetPrinter({.mode = {.nPaper = 256, .sizeOwn = {1000, 1500}}});
    Print([&](CPlayHost& host) { EXPECT_NE(Shown(host), a4); });
}

TEST_F(PrintTest, EveryPictureCanBePrinted) {
    for (const CSize size : {CSize{1, 1}, {1, 20000}, {20000, 1}, {3000, 4000}}) {
        Open(SavePicture("odd.jpg", FlatImage(size.cx, size.cy, {1, 2, 3})));
        for (const CSize sizePrintable : {CSize{2400, 3400}, {0, 0}, {10, 20}}) {
            Printers().SetPrinter({.sizePrintable = sizePrintable});
            if (size.cx < 101 || size.cy < 76) m_platform.Answer(EBoxAnswer::Yes);
            PrintAnswering({"stamp", "ok"});
            m_platform.TakeBoxes();
        }
    }
    EXPECT_EQ(Printers().Documents(), 12);
}

// What is drawn on the canvas is printed, an open figure is not; neither is a step of the edit.
TEST_F(PrintTest, InDrawTheCanvasIsFetchedFirst) {
    OpenInDraw(200, 150);
    Tool(ETool::Line);
    Drag({10, 20}, {190, 20});
    const CPixels drawn = Draw().Paper().Committed().Pixels();
    ASSERT_NE(drawn, NumberedPixels(200, 150));
    Tool(ETool::Polygon);
    Drag({30, 40}, {90, 110});
    ASSERT_TRUE(Draw().IsShapeOpen());
    const int nUndos = Undos();
    Printers().SetPrinter({.sizeDpi = {72, 72}, .sizePrintable = {590, 830}});
    PrintAnswering({"ok"});
    const CRect rc = Printers().PicturePlace();
    const auto printed = [&] { return Cut(Printers().Page(), rc); };
    EXPECT_EQ(printed(), NaiveResample(drawn, rc.Width(), rc.Height()));
    EXPECT_FALSE(Draw().IsShapeOpen());
    EXPECT_EQ(Undos(), nUndos);
    EXPECT_EQ(State().m_nMode, EMode::Draw);
    // A float is merged, whoever cancels then.
    Tool(ETool::SelectRect);
    Drag({100, 50}, {150, 100});
    Click(kCmdCopy);
    Click(kCmdPaste);
    ASSERT_TRUE(Draw().IsFloating());
    PrintAnswering({"ok"});
    EXPECT_FALSE(Draw().IsFloating());
    CSurface merged(drawn);
    merged.DrawPart(drawn, CRect::FromPlace(100, 50, 50, 50), 0, 0);
    EXPECT_EQ(printed(), NaiveResample(merged.Pixels(), rc.Width(), rc.Height()));
}
