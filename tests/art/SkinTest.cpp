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

// Pictures of one size: their names, or the roots of keys with the letters of the states that each has.
struct CWanted {
    const char* pNames;
    const char* pStates;
    int nWidth;
    int nHeight;
};

constexpr CWanted kWanted[] = {
    {"522", "", 1014, 710},
    {"486 487 488 489 490", "", 310, 32},
    {"296 286 343", "", 310, 563},
    {"440", "", 976, 17},
    {"503 504 505 506", "", 324, 18},
    {"507", "", 323, 18},
    {"336 335 447 329 394 449 452 341 446 450 451 448 333", "", 62, 16},
    {"338 339 332 330 407 331", "", 36, 16},
    {"340", "", 50, 16},
    {"328", "", 112, 16},
    {"444", "", 74, 16},
    {"322", "", 77, 16},
    {"314", "", 64, 16},
    {"327", "", 73, 16},
    {"317", "", 87, 16},
    {"326", "", 42, 16},
    {"OPEN NEW SAVE PRINT LARGE ACTUAL SMALL", "UDFX", 37, 45},
    {"UNDO REDO RESET", "UDFX", 39, 45},
    {"CUT COPY PASTE CROP LEFTRIGHT", "UDFX", 36, 45},
    {"SIZECHANGE", "UDFX", 52, 45},
    {"UPDOWN", "UFX", 36, 45},
    {"MROTATE PROTATE CONNECT UPLOAD", "UDFX", 45, 45},
    {"DOWNLOAD", "UFX", 45, 45},
    {"MINIMIZE", "UD", 18, 12},
    {"THUM", "U", 78, 32},
    {"EFFECT STICK FONT DRAW", "U", 58, 32},
    {"CONFIRM CANCEL", "UDX", 78, 22},
    {"APPLY", "UDX", 40, 23},
    {"CHARACTER", "UD", 66, 26},
    {"COLOR", "UD", 64, 25},
    {"COLOR_SELECT", "UD", 80, 20},
    {"TOOL_01 TOOL_02 TOOL_03 TOOL_04 TOOL_05 TOOL_06 TOOL_07 TOOL_08 TOOL_09 TOOL_10 TOOL_11 TOOL_12 "
     "TOOL_13 TOOL_14 TOOL_15 TOOL_16",
     "UDF", 35, 35},
    {"1246 1247", "", 80, 15},
    {"1248", "", 54, 15},
    {"1249", "", 54, 16},
    {"1250", "", 54, 13},
    {"497 498", "", 400, 192},
    {"668", "", 76, 15},
    {"PHONEIMAGE USERIMAGE", "UD", 156, 25},
    {"SIZEOK SIZECANCEL", "UD", 86, 24},
    {"606", "", 22, 134},
    {"610", "", 26, 13},
    {"413", "", 122, 123},
    {"415", "", 122, 125},
    {"274", "", 447, 350},
    {"168 169 177 176 174", "", 70, 21},
    {"175", "", 67, 19},
    {"128", "", 32, 32},
};

QStringList NamesOf(const CWanted& wanted) {
    return QString(wanted.pNames).split(' ');
}

const QString kSkinFolder = FOTARIUM_SKIN_DIR;

// The pictures of the effect list lie in the same folder; another tool renders them.
bool IsOfAList(const QString& strFile) {
    const int nNumber = strFile.section('.', 0, 0).toInt();
    return nNumber == 196 || (nNumber >= 198 && nNumber <= 259);
}

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

bool IsFlat(const QImage& image, QRgb rgb) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != rgb) return false;
        }
    }
    return true;
}

int Chroma(QRgb rgb) {
    return std::max({qRed(rgb), qGreen(rgb), qBlue(rgb)}) - std::min({qRed(rgb), qGreen(rgb), qBlue(rgb)});
}

int LargestChroma(const QImage& image) {
    int nLargest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) nLargest = std::max(nLargest, Chroma(image.pixel(x, y)));
    }
    return nLargest;
}

// The mean light of the picture within a margin, 0 to 255.
double MeanLight(const QImage& image) {
    double fSum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) fSum += qGray(image.pixel(x, y));
    }
    return fSum / image.width() / image.height();
}

void CheckStates(const QString& strRoot, const QString& strStates, int nDensity) {
    SCOPED_TRACE(strRoot.toStdString());
    const QImage normal = Picture(strRoot + "U", nDensity);
    const QRect rcCap = normal.rect().adjusted(4, 4, -4, -4);
    if (strStates.contains('D')) {
        const QImage pressed = Picture(strRoot + "D", nDensity);
        EXPECT_LT(MeanLight(pressed.copy(rcCap)), MeanLight(normal.copy(rcCap)) - 12);
    }
    if (strStates.contains('F')) {
        // The warm rim: clearly redder than blue along the cap's left side.
        const QRgb rgbRim = Picture(strRoot + "F", nDensity).pixel(3 * nDensity, normal.height() / 2);
        EXPECT_GT(qRed(rgbRim) - qBlue(rgbRim), 40);
    }
    if (strStates.contains('X')) {
        const QImage disabled = Picture(strRoot + "X", nDensity);
        EXPECT_LE(LargestChroma(disabled), 24);
        EXPECT_NE(disabled, normal);
    }
    if (normal.height() == 45 * nDensity) {
        EXPECT_GE(LargestChroma(normal), 60);
    }
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
                           {"SIZECANCEL", "498", {278, 110}}};

QByteArray Bytes(const QString& strPath) {
    QFile file(strPath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

TEST(Skin, HoldsEveryPictureInItsSizeAtBothDensities) {
    for (const int nDensity : {1, 2}) {
        QStringList arrNames;
        for (const CWanted& wanted : kWanted) {
            const QString strStates = *wanted.pStates ? wanted.pStates : " ";
            for (const QString& strRoot : NamesOf(wanted)) {
                for (const QChar chState : strStates) {
                    const QString strName = (strRoot + chState).trimmed() + ".png";
                    arrNames << strName;
                    const QImage image(QString("%1/%2x/%3").arg(kSkinFolder).arg(nDensity).arg(strName));
                    EXPECT_EQ(image.size(), QSize(wanted.nWidth, wanted.nHeight) * nDensity)
                        << strName.toStdString();
                    EXPECT_FALSE(image.hasAlphaChannel()) << strName.toStdString();
                }
            }
        }
        arrNames.sort();
        const QDir folder(QString("%1/%2x").arg(kSkinFolder).arg(nDensity));
        QStringList arrFound = folder.entryList(QDir::Files);
        arrFound.removeIf(IsOfAList);
        arrFound.sort();
        EXPECT_EQ(arrFound, arrNames);
    }
    for (const int nSize : {16, 32, 48, 64, 128, 256}) {
        const QImage icon(QString("%1/icon-%2.png").arg(kSkinFolder).arg(nSize));
        EXPECT_EQ(icon.size(), QSize(nSize, nSize));
        EXPECT_TRUE(icon.hasAlphaChannel());
    }
}

TEST(Skin, DenseSetIsDrawnAndNotEnlarged) {
    for (const char* pName : {"522", "OPENU", "TOOL_11U", "274", "336", "497", "606"}) {
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
                if (strTab == mode.pTab) continue;
                // Laid over the row, a tab's key changes nothing.
                EXPECT_EQ(Picture(QString::fromStdString(strTab) + "U", nDensity),
                          Cut(window, rcTab, nDensity))
                    << strTab << " in row " << mode.pRow;
            }
            const QImage strip = Picture(mode.pStrip, nDensity);
            EXPECT_EQ(strip, Cut(window, QRect(QPoint(0, 110), strip.size() / nDensity), nDensity))
                << mode.pStrip;
            EXPECT_EQ(Picture("440", nDensity), Cut(window, QRect(19, 61, 976, 17), nDensity));
            // The tab that is up is open at its foot and looks different from its key.
            EXPECT_NE(Picture(QString(mode.pTab) + "U", nDensity),
                      Cut(window, kTabs.at(mode.pTab), nDensity));
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

TEST(Skin, StatesOfAKeyAreTold) {
    for (const int nDensity : {1, 2}) {
        for (const CWanted& wanted : kWanted) {
            const QString strStates = wanted.pStates;
            if (strStates.size() < 2) continue;
            for (const QString& strRoot : NamesOf(wanted)) CheckStates(strRoot, strStates, nDensity);
        }
    }
}

TEST(Skin, PicturesOfOneKindAllDiffer) {
    // A line of the table that repeats another's glyph or text would pass everything else.
    std::map<QByteArray, std::string> mapSeen;
    for (const CWanted& wanted : kWanted) {
        for (QString strName : NamesOf(wanted)) {
            if (*wanted.pStates) strName += 'U';
            const QByteArray arrBytes = Bytes(QString("%1/1x/%2.png").arg(kSkinFolder, strName));
            const auto [it, bNew] = mapSeen.emplace(arrBytes, strName.toStdString());
            EXPECT_TRUE(bNew) << strName.toStdString() << " is " << it->second;
        }
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
