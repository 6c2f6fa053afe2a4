#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <map>
#include <string>
#include <vector>

// The rendered skin, looked at as the window uses it: right names, right sizes, no seams, clear states.

namespace {

const QString kSkinFolder = FOTARIUM_SKIN_DIR;

QImage Picture(const QString& strName, int nDensity) {
    return QImage(QString("%1/%2x/%3.png").arg(kSkinFolder).arg(nDensity).arg(strName))
        .convertToFormat(QImage::Format_RGB32);
}

QImage Cut(const QImage& image, const QRect& rc, int nDensity) {
    return image.copy(QRect(rc.topLeft() * nDensity, rc.size() * nDensity));
}

// Copies a picture into another as the window does.
void Lay(QImage& image, const QImage& part, QPoint pt, int nDensity) {
    for (int y = 0; y < part.height(); ++y) {
        for (int x = 0; x < part.width(); ++x)
            image.setPixel(pt.x() * nDensity + x, pt.y() * nDensity + y, part.pixel(x, y));
    }
}

struct CMode {
    const char* pRow;
    const char* pPanel;  // null where the window's own ground is the panel
    const char* pTab;
    const char* pStrip;
};

constexpr CMode kModes[] = {{"486", nullptr, "THUM", "503"},
                            {"490", "343", "DRAW", "507"},
                            {"487", nullptr, "EFFECT", "504"},
                            {"488", "296", "FONT", "505"},
                            {"489", "286", "STICK", "506"}};

const std::map<std::string, QRect> kTabs = {{"THUM", QRect(0, 79, 78, 32)},
                                            {"EFFECT", QRect(78, 79, 58, 32)},
                                            {"STICK", QRect(136, 79, 58, 32)},
                                            {"FONT", QRect(194, 79, 58, 32)},
                                            {"DRAW", QRect(252, 79, 58, 32)}};

// The window's ground in a mode, before the keys.
QImage Window(const CMode& mode, int nDensity) {
    QImage image = Picture("522", nDensity);
    Lay(image, Picture(mode.pRow, nDensity), {0, 79}, nDensity);
    if (mode.pPanel) Lay(image, Picture(mode.pPanel, nDensity), {0, 111}, nDensity);
    return image;
}

template <typename T>
void EachPixel(const QImage& image, T visit) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) visit(image.pixel(x, y));
}

bool IsFlat(const QImage& image, QRgb rgb) {
    bool bFlat = true;
    EachPixel(image, [&](QRgb rgbPixel) { bFlat = bFlat && rgbPixel == rgb; });
    return bFlat;
}

int Chroma(QRgb rgb) {
    return std::max({qRed(rgb), qGreen(rgb), qBlue(rgb)}) - std::min({qRed(rgb), qGreen(rgb), qBlue(rgb)});
}

int LargestChroma(const QImage& image) {
    int nLargest = 0;
    EachPixel(image, [&](QRgb rgb) { nLargest = std::max(nLargest, Chroma(rgb)); });
    return nLargest;
}

// 0 to 255.
double MeanLight(const QImage& image) {
    double fSum = 0;
    EachPixel(image, [&](QRgb rgb) { fSum += qGray(rgb); });
    return fSum / image.width() / image.height();
}

// By how many grey levels two pictures differ, on average over their pixels.
double MeanChange(const QImage& a, const QImage& b) {
    double fSum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) fSum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
    return fSum / a.width() / a.height();
}

void CheckStates(const QString& strRoot, int nDensity) {
    SCOPED_TRACE(strRoot.toStdString());
    const QImage normal = Picture(strRoot + "U", nDensity);
    const QRect rcCap = normal.rect().adjusted(4, 4, -4, -4);
    const QImage pressed = Picture(strRoot + "D", nDensity);
    EXPECT_TRUE(pressed.isNull() || MeanLight(pressed.copy(rcCap)) < MeanLight(normal.copy(rcCap)) - 12);
    // The warm rim: clearly redder than blue along the cap's left side.
    const QImage focused = Picture(strRoot + "F", nDensity);
    const QRgb rgbRim =
        focused.isNull() ? qRgb(255, 0, 0) : focused.pixel(3 * nDensity, focused.height() / 2);
    EXPECT_GT(qRed(rgbRim) - qBlue(rgbRim), 40);
    EXPECT_LE(LargestChroma(Picture(strRoot + "X", nDensity)), 24);
    EXPECT_TRUE(normal.height() != 45 * nDensity || LargestChroma(normal) >= 60);
}

struct CKeyPlace {
    const char* pRoot;
    const char* pGround;  // the picture that the window shows around the key
    QPoint ptPlace;       // the key's place in that picture
};

constexpr int kPanelTop = 111;

const CKeyPlace kKeys[] = {{"OPEN", "522", {29, 16}},
                           {"NEW", "522", {66, 16}},
                           {"UNDO", "522", {198, 16}},
                           {"CUT", "522", {326, 16}},
                           {"SIZECHANGE", "522", {480, 16}},
                           {"MROTATE", "522", {618, 16}},
                           {"ACTUAL", "522", {748, 16}},
                           {"CONNECT", "522", {838, 16}},
                           {"DOWNLOAD", "522", {881, 16}},
                           {"UPLOAD", "522", {933, 16}},
                           {"CONFIRM", "522", {76, 635}},
                           {"CANCEL", "522", {172, 635}},
                           {"APPLY", "296", {222, 173 - kPanelTop}},
                           {"CHARACTER", "296", {70, 254 - kPanelTop}},
                           {"COLOR", "296", {162, 254 - kPanelTop}},
                           {"COLOR_SELECT", "343", {83, 500 - kPanelTop}},
                           {"TOOL_01", "343", {75, 212 - kPanelTop}},
                           {"TOOL_15", "343", {210, 212 - kPanelTop}},
                           {"TOOL_08", "343", {120, 388 - kPanelTop}},
                           {"PHONEIMAGE", "498", {7, 20}},
                           {"USERIMAGE", "497", {163, 20}},
                           {"SIZEOK", "497", {278, 69}},
                           {"SIZEOK", "498", {278, 69}},
                           {"SIZECANCEL", "497", {278, 110}},
                           {"SIZECANCEL", "498", {278, 110}},
                           {"SIZEOK", "544", {278, 69}},
                           {"SIZECANCEL", "544", {278, 110}},
                           {"PCLINKOK", "546", {100, 255}},
                           {"PCLINKCANCEL", "546", {202, 255}},
                           {"PORTSELOK", "565", {38, 102}},
                           {"PORTSELCANCEL", "565", {140, 102}}};

QByteArray Bytes(const QString& strPath) {
    QFile file(strPath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

TEST(Skin, DenseSetIsDrawnAndNotEnlarged) {
    for (const char* pName : {"522", "OPENU", "TOOL_11U", "274", "336", "497", "606", "619", "638"}) {
        const QImage small = Picture(pName, 1);
        const QImage enlarged = small.scaled(small.size() * 2, Qt::IgnoreAspectRatio, Qt::FastTransformation);
        EXPECT_NE(Picture(pName, 2), enlarged) << pName;
    }
}

TEST(Skin, StripsAndTabsAreThePixelsOfTheWindow) {
    for (const int nDensity : {1, 2}) {
        for (const CMode& mode : kModes) {
            QImage window = Window(mode, nDensity);
            for (const auto& [strTab, rcTab] : kTabs) {
                // Laid over the row, a tab's key changes nothing, but for the tab that is up: open at its
                // foot.
                const QImage key = Picture(QString::fromStdString(strTab) + "U", nDensity);
                EXPECT_EQ(key == Cut(window, rcTab, nDensity), strTab != mode.pTab) << strTab << mode.pRow;
            }
            const QImage strip = Picture(mode.pStrip, nDensity);
            EXPECT_EQ(strip, Cut(window, QRect(QPoint(0, 110), strip.size() / nDensity), nDensity))
                << mode.pStrip;
            EXPECT_EQ(Picture("440", nDensity), Cut(window, QRect(19, 61, 976, 17), nDensity));
        }
    }
}

TEST(Skin, PanelsJoinTheWindowAroundThem) {
    for (const int nDensity : {1, 2}) {
        const QImage window = Picture("522", nDensity);
        for (const char* pPanel : {"296", "286", "343"}) {
            const QImage panel = Picture(pPanel, nDensity);
            for (const QRect rc :
                 {QRect(0, 111, 36, 563), QRect(289, 111, 21, 563), QRect(0, 111, 310, 18)}) {
                EXPECT_EQ(Cut(panel, rc.translated(0, -kPanelTop), nDensity), Cut(window, rc, nDensity))
                    << pPanel;
            }
        }
    }
}

TEST(Skin, GroundsHaveTheColoursOfTheControlsOnThem) {
    struct CFlat {
        const char* pPicture;
        QRect rc;
        QRgb rgb;
    };
    const CFlat kFlats[] = {{"522", QRect(342, 96, 404, 17), qRgb(142, 154, 143)},
                            {"522", QRect(760, 96, 120, 17), qRgb(142, 154, 143)},
                            {"522", QRect(905, 96, 76, 17), qRgb(142, 154, 143)},
                            {"522", QRect(55, 678, 680, 12), qRgb(117, 131, 134)},
                            {"522", QRect(323, 676, 661, 16), qRgb(117, 131, 134)},
                            {"522", QRect(236, 468, 30, 14), qRgb(75, 94, 103)},
                            {"522", QRect(325, 129, 659, 544), qRgb(109, 121, 126)},
                            {"522", QRect(58, 149, 206, 276), qRgb(109, 121, 126)},
                            {"522", QRect(239, 488, 8, 132), qRgb(142, 154, 143)},
                            {"522", QRect(255, 488, 8, 132), qRgb(142, 154, 143)},
                            {"606", QRect(0, 0, 1, 134), qRgb(142, 154, 143)},
                            {"606", QRect(21, 0, 1, 134), qRgb(142, 154, 143)},
                            {"286", QRect(56, 242 - kPanelTop, 211, 409), qRgb(109, 121, 126)},
                            {"296", QRect(57, 509 - kPanelTop, 209, 120), qRgb(109, 121, 126)},
                            {"343", QRect(168, 344 - kPanelTop, 75, 77), qRgb(144, 151, 151)},
                            {"343", QRect(210, 489 - kPanelTop, 46, 46), qRgb(210, 210, 210)},
                            {"550", QRect(22, 206, 356, 20), qRgb(200, 200, 177)},
                            {"546", QRect(7, 32, 386, 164), qRgb(109, 121, 126)},
                            {"565", QRect(17, 14, 229, 80), qRgb(109, 121, 126)},
                            {"413", QRect(0, 0, 122, 8), qRgb(110, 121, 127)},
                            {"168", QRect(0, 0, 20, 21), qRgb(144, 151, 151)},
                            {"177", QRect(0, 0, 20, 21), qRgb(0, 0, 128)}};
    for (const int nDensity : {1, 2}) {
        for (const CFlat& flat : kFlats) {
            EXPECT_TRUE(IsFlat(Cut(Picture(flat.pPicture, nDensity), flat.rc, nDensity), flat.rgb))
                << flat.pPicture << " at " << flat.rc.x() << "," << flat.rc.y() << " density " << nDensity;
        }
    }
}

TEST(Skin, KeysStandOnTheirGroundWithoutASeam) {
    for (const int nDensity : {1, 2}) {
        for (const CKeyPlace& key : kKeys) {
            const QImage ground = Picture(key.pGround, nDensity);
            for (const char chState : {'U', 'D', 'F', 'X'}) {
                const QImage image = Picture(QString(key.pRoot) + chState, nDensity);
                if (image.isNull()) continue;
                const QImage below = Cut(ground, QRect(key.ptPlace, image.size() / nDensity), nDensity);
                for (int x = 0; x < image.width(); ++x) {
                    ASSERT_EQ(image.pixel(x, 0), below.pixel(x, 0)) << key.pRoot << chState;
                    ASSERT_EQ(image.pixel(x, image.height() - 1), below.pixel(x, below.height() - 1))
                        << key.pRoot;
                }
                // Two keys of the top bar overlap by two columns: whichever is drawn last, both caps stay
                // whole.
                const int nMargin = image.height() == 45 * nDensity ? 2 * nDensity : 1;
                for (int y = 0; y < image.height(); ++y) {
                    for (int i = 0; i < nMargin; ++i) {
                        const int nRight = image.width() - 1 - i;
                        ASSERT_EQ(image.pixel(i, y), below.pixel(i, y)) << key.pRoot << chState;
                        ASSERT_EQ(image.pixel(nRight, y), below.pixel(nRight, y)) << key.pRoot << chState;
                    }
                }
            }
        }
    }
}

TEST(Skin, KeyThatItsButtonCutsOffIsWholeOnItsGround) {
    for (const int nDensity : {1, 2}) {
        const QImage key = Picture("PHONEIMAGEU", nDensity);
        EXPECT_EQ(Cut(Picture("544", nDensity), QRect(7, 20, 156, 25), nDensity), key);
    }
}

TEST(Skin, RunningPicturesMoveInSmallStepsAndTheirLoopsClose) {
    for (const auto& [nFirst, nFrames] : {std::pair(619, 17), std::pair(647, 8), std::pair(639, 8)}) {
        for (const int nDensity : {1, 2}) {
            for (int i = 0; i < nFrames; ++i) {
                const QImage frame = Picture(QString::number(nFirst + i), nDensity);
                const QImage next = Picture(QString::number(nFirst + (i + 1) % nFrames), nDensity);
                ASSERT_EQ(frame.size(), QSize(386, 182) * nDensity) << nFirst + i;
                ASSERT_EQ(next.size(), frame.size()) << nFirst + i;
                const double fChange = MeanChange(frame, next);
                EXPECT_GT(fChange, 0.2) << nFirst + i << " stands still, density " << nDensity;
                EXPECT_LT(fChange, 6) << nFirst + i << " jumps, density " << nDensity;
            }
        }
    }
}

TEST(Skin, StripsOfThePhoneAreLegibleAndWhole) {
    for (const int nDensity : {1, 2}) {
        for (const char* pName : {"638", "658", "602", "601", "603", "604"}) {
            SCOPED_TRACE(pName);
            const QImage strip = Picture(pName, nDensity);
            ASSERT_EQ(strip.size(), QSize(369, 26) * nDensity);
            // Ink stands only in the middle: nothing is cut off, and a strip hides the one below it.
            const QRgb rgbGround = strip.pixel(0, 0);
            for (const QRect rc :
                 {QRect(0, 0, 369, 3), QRect(0, 23, 369, 3), QRect(0, 0, 5, 26), QRect(200, 0, 169, 26)})
                EXPECT_TRUE(IsFlat(Cut(strip, rc, nDensity), rgbGround));
            int nDark = 0;
            EachPixel(Cut(strip, QRect(31, 3, 169, 20), nDensity),
                      [&](QRgb rgb) { nDark += qGray(rgb) < qGray(rgbGround) - 120 ? 1 : 0; });
            EXPECT_GT(nDark, 80 * nDensity * nDensity);
        }
    }
}

TEST(Skin, StatesOfAKeyAreTold) {
    QStringList arrKeys = QDir(kSkinFolder + "/1x").entryList({"*U.png"});
    EXPECT_GE(arrKeys.size(), 50);
    for (QString& strKey : arrKeys)
        for (const int nDensity : {1, 2}) CheckStates(strKey.section("U.png", 0, 0), nDensity);
}

TEST(Skin, AllPicturesDiffer) {
    // A line of the table that repeats another's glyph or text would pass everything else.
    std::map<QByteArray, std::string> mapSeen;
    for (const QString& strFile : QDir(kSkinFolder + "/1x").entryList(QDir::Files)) {
        const auto [it, bNew] = mapSeen.emplace(Bytes(kSkinFolder + "/1x/" + strFile), strFile.toStdString());
        EXPECT_TRUE(bNew) << strFile.toStdString() << " is " << it->second;
    }
}

TEST(Skin, ThumbIsDrawnWithinItsControlOnACleanGround) {
    constexpr int kControlWidth = 24;
    for (const int nDensity : {1, 2}) {
        const QImage thumb = Picture("610", nDensity);
        const QRgb rgbGround = thumb.pixel(0, 0);
        int nDrawn = 0;
        for (int y = 0; y < thumb.height(); ++y) {
            for (int x = 0; x < thumb.width(); ++x) {
                if (thumb.pixel(x, y) == rgbGround) continue;
                ++nDrawn;
                EXPECT_LT(x, kControlWidth * nDensity);
                // No mixture with the ground, which is of a colour that nothing else has.
                EXPECT_LT(Chroma(thumb.pixel(x, y)), 200);
            }
        }
        EXPECT_GT(nDrawn, 200 * nDensity * nDensity);
    }
}

TEST(Skin, ComesOutTheSameOnEveryRun) {
    QTemporaryDir folder;
    ASSERT_EQ(QProcess::execute(FOTARIUM_ART_TOOL, {folder.path()}), 0);
    for (const char* pSub : {"1x", "2x", "."}) {
        const QDir again(folder.path() + '/' + pSub);
        ASSERT_FALSE(again.isEmpty());
        for (const QString& strName : again.entryList(QDir::Files)) {
            EXPECT_EQ(Bytes(again.filePath(strName)), Bytes(kSkinFolder + '/' + pSub + '/' + strName))
                << strName.toStdString();
        }
    }
}

TEST(Skin, ToolSaysWhenItCannotWork) {
    EXPECT_EQ(QProcess::execute(FOTARIUM_ART_TOOL, {}), 1);
    QTemporaryDir folder;
    QFile file(folder.filePath("taken"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(QProcess::execute(FOTARIUM_ART_TOOL, {file.fileName()}), 1);
}
