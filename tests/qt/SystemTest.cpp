// Text, clipboard and folders as the real system gives them.

#include <gtest/gtest.h>

#include <QClipboard>
#include <QSettings>
#include <QTemporaryDir>
#include <algorithm>
#include <filesystem>

#include "TestDialog.h"
#include "qt/QtPlatform.h"
#include "support/Pictures.h"

namespace fs = std::filesystem;

namespace {

int Inked(const CTextMask& mask) {
    return static_cast<int>(
        std::count_if(mask.coverage.begin(), mask.coverage.end(), [](auto n) { return n >= 128; }));
}

}  // namespace

TEST(TextRasterizer, FacesThatTheMachineLacksStillHaveTheCharacters) {
    CQtTextRasterizer rasterizer;
    const CTextMask missing = rasterizer.Rasterize({"黑体", 32}, "\U0010FFFD");
    for (const char* szFace : {"黑体", "no such face", ""})
        for (const char* szText : {"你", "한", "W"}) {
            const CTextMask mask = rasterizer.Rasterize({szFace, 32}, szText);
            EXPECT_EQ(mask.nHeight, 32);
            EXPECT_EQ(mask.coverage.size(), static_cast<std::size_t>(mask.nWidth) * 32);
            EXPECT_GT(Inked(mask), 30) << szFace << szText;
            EXPECT_NE(mask.coverage, missing.coverage) << "no box for a missing character";
        }
    EXPECT_NE(rasterizer.Rasterize({"黑体", 32}, "你").coverage,
              rasterizer.Rasterize({"黑体", 32}, "好").coverage);
}

TEST(TextRasterizer, CellStyleAndEdges) {
    CQtTextRasterizer rasterizer;
    for (const int nHeight : {1, 7, 12, 16, 33, 100, 400}) {
        const CTextMask mask = rasterizer.Rasterize({"黑体", nHeight}, "Ag字");
        EXPECT_EQ(mask.nHeight, nHeight);
        EXPECT_GT(mask.nWidth, nHeight / 2);
    }
    EXPECT_NE(rasterizer.Rasterize({"黑体", 64, 400, true}, "文字").coverage,
              rasterizer.Rasterize({"黑体", 64}, "文字").coverage);
    const int nRegular = Inked(rasterizer.Rasterize({"黑体", 64}, "文字"));
    EXPECT_GT(Inked(rasterizer.Rasterize({"黑体", 64, 700}, "文字")), nRegular);
    EXPECT_GT(Inked(rasterizer.Rasterize({"黑体", 64, 400, false, true}, "文字")), nRegular);
    EXPECT_EQ(rasterizer.Rasterize({"黑体", 64}, "").nWidth, 0);
    EXPECT_EQ(rasterizer.Rasterize({"黑体", 0}, "x").nHeight, 0);
    // Accents that stand out of the face's own cell are not cut.
    const CTextMask accent = rasterizer.Rasterize({"黑体", 200}, "Ế");
    EXPECT_TRUE(std::all_of(accent.coverage.begin(), accent.coverage.begin() + accent.nWidth,
                            [](std::uint8_t n) { return n == 0; }));
    // A box of a character stands whole in its cell.
    const CTextMask box = rasterizer.Rasterize({"黑体", 60}, "国");
    std::vector<int> arrInkedRows;
    for (int i = 0; i < 60 * box.nWidth; ++i)
        if (box.coverage[static_cast<std::size_t>(i)] >= 128) arrInkedRows.push_back(i / box.nWidth);
    ASSERT_FALSE(arrInkedRows.empty());
    EXPECT_GT(arrInkedRows.back() - arrInkedRows.front(), 40);
    EXPECT_GT(arrInkedRows.front(), 0);
    EXPECT_LT(arrInkedRows.back(), 59);
}

TEST(Application, LooksAndSpeaksAsTheProgramDoes) {
    const QPalette palette = QApplication::palette();
    EXPECT_EQ(palette.color(QPalette::Window), QColor(214, 220, 214));
    EXPECT_EQ(palette.color(QPalette::Highlight), QColor(232, 143, 54));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        EXPECT_NE(palette.color(QPalette::Disabled, role), palette.color(role)) << role;
    EXPECT_EQ(QApplication::font().pixelSize(), 13);
    EXPECT_EQ(QApplication::applicationName(), "Fotarium");
    EXPECT_FALSE(QApplication::quitOnLastWindowClosed()) << "between two dialogs there is no window";
    EXPECT_EQ(QLocale().language(), QLocale::Chinese);
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel").toStdString(), "取消");
    const auto arrSizes = QApplication::windowIcon().availableSizes();
    for (const int nSide : {16, 256}) EXPECT_TRUE(arrSizes.contains(QSize(nSide, nSide))) << nSide;
}

TEST(Clipboard, APictureComesBackAsItWent) {
    CTestBitmaps bitmaps;
    CQtPlatform owner(bitmaps);
    CClipboard& clipboard = owner.Platform().clipboard;
    const CxImage image = NumberedImage(5, 3, 7);
    ASSERT_TRUE(clipboard.SetBitmap(image.CopyToHandle()));
    const auto dib = clipboard.GetBitmap();
    ASSERT_TRUE(dib.has_value());
    CxImage back;
    ASSERT_TRUE(back.CreateFromHANDLE(*dib));
    EXPECT_TRUE(back.Pixels() == image.Pixels());
    EXPECT_FALSE(clipboard.SetBitmap(std::vector<std::uint8_t>(10)));

    // What another program puts there may be see-through: it lands on white.
    QImage clear(2, 1, QImage::Format_ARGB32);
    clear.fill(Qt::transparent);
    QGuiApplication::clipboard()->setImage(clear);
    ASSERT_TRUE(back.CreateFromHANDLE(*clipboard.GetBitmap()));
    EXPECT_EQ(back.GetPixelColor(1, 0), (CColor{255, 255, 255}));
    QGuiApplication::clipboard()->setText("no picture");
    EXPECT_FALSE(clipboard.GetBitmap().has_value());
}

TEST(Folders, InstallValueIsTheStoredOneElseTheUsersFolder) {
    const QTemporaryDir folder;
    qputenv("XDG_DATA_HOME", (folder.path() + "/data").toUtf8());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path() + "/config");
    const CQtFolders folders;
    const std::string strOwn = folders.InstallValue();
    EXPECT_TRUE(fs::is_directory(strOwn)) << strOwn;
    EXPECT_TRUE(strOwn.starts_with(folder.path().toStdString()));
    QSettings("ZEFA Fotarium", "1.0").setValue("Default", "\"/some where\"");
    EXPECT_EQ(folders.InstallValue(), "\"/some where\"") << "as it stands, quotes included";
}

TEST(Folders, CurrentFolderStaysWhenItCannotBeLeft) {
    CQtFolders folders;
    ASSERT_TRUE(folders.SetCurrentFolder("/"));
    EXPECT_EQ(folders.CurrentFolder(), "/");
    EXPECT_FALSE(folders.SetCurrentFolder("/no such folder"));
    EXPECT_EQ(folders.CurrentFolder(), "/");
}
