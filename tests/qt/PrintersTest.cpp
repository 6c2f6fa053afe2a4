// Papers by their numbers, and what our own printer writes.

#include <gtest/gtest.h>

#include <QPageSize>
#include <filesystem>
#include <random>

#include "PrintedPage.h"
#include "qt/PaperNumbers.h"
#include "qt/PdfDevice.h"
#include "support/FullDisk.h"
#include "support/TempFolder.h"

namespace {

constexpr const char* kName = "打印.pdf";

// A small paper; its sides are whole dots at 600 and at 300 an inch, and whole points.
QPageLayout Card(QPageLayout::Orientation orientation) {
    return {QPageSize(QSize(144, 216)), orientation, QMarginsF()};
}

// Grey grain, as film has it.
CPixels MakeGrain(int nWidth, int nHeight) {
    std::mt19937 random(7);
    CPixels pixels = CPixels::MakeFilled(nWidth, nHeight, {});
    const std::span<std::uint8_t> bytes = pixels.MutableBytes();
    for (std::size_t i = 0; i < bytes.size(); i += 3)
        bytes[i] = bytes[i + 1] = bytes[i + 2] = static_cast<std::uint8_t>(100 + random() % 64);
    return pixels;
}

}  // namespace

TEST(Printers, EveryPaperHasItsNumber) {
    // Where a sheet goes by two names printers have one of them; 17 is Qt's 3.
    constexpr int kUnnamed = 17;
    std::set<int> setFound;
    for (int i = 0; i <= QPageSize::LastPageSize; ++i) {
        const QPageSize size(static_cast<QPageSize::PageSizeId>(i));
        const CDeviceMode mode = PaperModeOf(size);
        if (!size.isValid() || !IsPaperKnown(mode.nPaper)) continue;
        setFound.insert(mode.nPaper);
        // The table cuts fractions, and has some papers a little otherwise.
        const QSizeF real = size.size(QPageSize::Millimeter);
        const CSize table = PaperSize(mode);
        const double fSlack = mode.nPaper == 20 || mode.nPaper == 12 ? 11 : mode.nPaper == 14 ? 6 : 2.5;
        EXPECT_NEAR(real.width(), table.cx, fSlack) << size.name().toStdString();
        EXPECT_NEAR(real.height(), table.cy, fSlack) << size.name().toStdString();
    }
    for (int n = 1; n <= 41; ++n) EXPECT_EQ(setFound.contains(n), n != kUnnamed) << n;
    EXPECT_EQ(setFound.size(), 40U);

    for (const QPageSize::PageSizeId id : {QPageSize::A6, QPageSize::B5, QPageSize::ArchC,
                                           QPageSize::Executive, QPageSize::JisB6, QPageSize::EnvelopePrc5})
        EXPECT_FALSE(IsPaperKnown(PaperModeOf(QPageSize(id)).nPaper)) << id;
    EXPECT_EQ(PaperModeOf(QPageSize(QPageSize::JisB5)).nPaper, 13);
    EXPECT_EQ(PaperModeOf(QPageSize(QPageSize::A4Small)).nPaper, 10);

    EXPECT_EQ(PaperModeOf(QPageSize(QSizeF(99.5, 201), QPageSize::Millimeter)),
              (CDeviceMode{kOwnPaper, {995, 2010}}));
    EXPECT_EQ(PaperModeOf(QPageSize()).nPaper, 9) << "a queue that says nothing";
}

TEST(Printers, EachPixelIsOneDotOfThePdf) {
    struct CCase {
        QPageLayout::Orientation orientation;
        CSize picture;
        CPoint pt;
        CSize page;
    };
    for (const CCase& one : {CCase{QPageLayout::Portrait, {900, 700}, {200, 300}, {1200, 1800}},
                             CCase{QPageLayout::Landscape, {1500, 1000}, {150, 100}, {1800, 1200}},
                             CCase{QPageLayout::Portrait, {1300, 2000}, {-50, -100}, {1200, 1800}}}) {
        const CTempFolder folder;
        CPdfDevice device(folder.Path(kName), Card(one.orientation));
        ASSERT_EQ(device.PrintableDots(), one.page);
        const CPixels pixels = MakeTiles(one.picture.cx, one.picture.cy);
        ASSERT_TRUE(device.StartDocument("Fotarium 相片"));
        for (int y = 0; y < one.picture.cy; y += 300)
            ASSERT_TRUE(device.DrawPixels(RowsOf(pixels, y, std::min(300, one.picture.cy - y)),
                                          {one.pt.x, one.pt.y + y}));
        ASSERT_TRUE(device.EndDocument());
        EXPECT_EQ(folder.Names(), std::set<std::string>{kName});

        const CPrintedPage page(folder.Path(kName));
        EXPECT_EQ(page.Says("Title"), "Fotarium 相片");
        EXPECT_EQ(page.Says("Pages"), "1");
        EXPECT_EQ(page.Says("Page size"), one.page.cx == 1200 ? "144 x 216 pts" : "216 x 144 pts");
        EXPECT_EQ(FirstDifference(page.Render(600),
                                  PageWith(pixels, {one.pt.x, one.pt.y}, {one.page.cx, one.page.cy})),
                  "");
        EXPECT_EQ(RunTool("pdftotext", {QString::fromStdString(folder.Path(kName)), "-"}).trimmed(), "");
    }
    EXPECT_EQ(CPdfDevice("").PrintableDots(), (CSize{4958, 7017})) << "A4 to its edges";
}

// Grain is kept well enough for the eye, in its place and in far fewer bytes.
TEST(Printers, GrainStaysCloseToWhatItWas) {
    const CTempFolder folder;
    CPdfDevice device(folder.Path(kName), Card(QPageLayout::Portrait));
    const CPixels pixels = MakeGrain(512, 600);
    ASSERT_TRUE(device.StartDocument("a") && device.DrawPixels(pixels, {100, 100}) && device.EndDocument());
    const QImage page = CPrintedPage(folder.Path(kName)).Render(600);
    double fSum = 0;
    for (int y = 0; y < pixels.Height(); ++y)
        for (int x = 0; x < pixels.Width(); ++x)
            fSum += std::abs(qGreen(page.pixel(100 + x, 100 + y)) -
                             pixels.Row(y)[std::size_t{3} * static_cast<std::size_t>(x)]);
    EXPECT_LT(fSum / (pixels.Width() * pixels.Height()), 3);
    EXPECT_LT(std::filesystem::file_size(folder.Path(kName)), pixels.Bytes().size() / 3);
}

TEST(Printers, StripsShowNoSeams) {
    const CTempFolder folder;
    CPdfDevice device(folder.Path(kName), Card(QPageLayout::Portrait));
    constexpr CColor kDark{20, 60, 30};
    ASSERT_TRUE(device.StartDocument("a"));
    for (int y = 100; y < 1700; y += 100)
        ASSERT_TRUE(device.DrawPixels(CPixels::MakeFilled(1000, 100, kDark), {100, y}));
    ASSERT_TRUE(device.EndDocument());
    const CPrintedPage page(folder.Path(kName));
    for (const char* szProgram : {"pdftoppm", "pdftocairo"})
        for (const int nDpi : {72, 96, 110, 150, 300, 600}) {
            const QImage image = page.Render(nDpi, szProgram);
            for (int y = 100 * nDpi / 600 + 2; y < 1700 * nDpi / 600 - 2; ++y)
                ASSERT_NEAR(qRed(image.pixel(image.width() / 2, y)), kDark.r, 1)
                    << szProgram << ' ' << nDpi << ' ' << y;
        }
}

TEST(Printers, AFailedPdfLeavesWhatWasThere) {
    const CTempFolder folder;
    folder.Write(kName, "older");
    const CPixels pixels = MakeGrain(1000, 1000);
    const auto fnPrint = [&](CPdfDevice& device) {
        if (device.StartDocument("a") && device.DrawPixels(pixels, {0, 0}) && device.EndDocument())
            return true;
        device.AbortDocument();
        return false;
    };
    const auto fnExpectOlder = [&](const char* szWhat) {
        EXPECT_EQ(folder.Names(), std::set<std::string>{kName}) << szWhat;
        EXPECT_EQ(ReadBytes(folder.Path(kName)), "older") << szWhat;
    };
    CPdfDevice device(folder.Path(kName), Card(QPageLayout::Portrait));
    for (const rlim_t nBytes : {0, 1000, 100000}) {
        const CFullDisk full(nBytes);
        EXPECT_FALSE(fnPrint(device)) << nBytes;
    }
    fnExpectOlder("full disk");
    {
        // All but the last bytes find room, and those come when the document ends.
        const CFullDisk full(100);
        ASSERT_TRUE(device.StartDocument("a") && device.DrawPixels(CPixels::MakeFilled(8, 8, {}), {0, 0}));
        EXPECT_FALSE(device.EndDocument());
    }
    fnExpectOlder("full at the end");
    ASSERT_TRUE(device.StartDocument("a") && device.DrawPixels(pixels, {0, 0}));
    device.AbortDocument();
    EXPECT_FALSE(device.DrawPixels(pixels, {0, 0}) || device.EndDocument());
    fnExpectOlder("aborted");
    {
        CPdfDevice left(folder.Path(kName));
        ASSERT_TRUE(left.StartDocument("a") && left.DrawPixels(pixels, {0, 0}));
    }
    fnExpectOlder("left alone");
    for (const std::string& strPath : {folder.Path("no folder/a.pdf"), folder.Path(), std::string()})
        EXPECT_FALSE(CPdfDevice(strPath).StartDocument("a")) << strPath;
    EXPECT_TRUE(fnPrint(device)) << "the next try";
    EXPECT_EQ(CPrintedPage(folder.Path(kName)).Says("Pages"), "1");
}
