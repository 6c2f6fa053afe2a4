#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <set>

#include "resources/Texts.h"
#include "strips/EffectCells.h"
#include "strips/FrameCells.h"

// The rendered pictures of the effect list and the frame list, looked at as the lists use them.

namespace {

const QString kSkinFolder = FOTARIUM_SKIN_DIR;
const QString kSamples = FOTARIUM_SOURCE_DIR "/src/resources/samples";
constexpr int kFirstSelected = 198;
constexpr int kFirstNormal = 229;
constexpr int kFirstFrame = 700;
const QString kFrames = FOTARIUM_FRAMES_DIR;

QImage Picture(int nNumber, int nDensity) {
    return QImage(QString("%1/%2x/%3.png").arg(kSkinFolder).arg(nDensity).arg(nNumber))
        .convertToFormat(QImage::Format_RGB888);
}

QByteArray Bytes(const QString& strPath) {
    QFile file(strPath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QImage Cut(const QImage& image, const QRect& rc, int nDensity) {
    return image.copy(QRect(rc.topLeft() * nDensity, rc.size() * nDensity));
}

int CountColors(const QImage& image) {
    std::set<QRgb> setColors;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) setColors.insert(image.pixel(x, y));
    return static_cast<int>(setColors.size());
}

double MeanDifference(const QImage& imageA, const QImage& imageB) {
    double sum = 0;
    for (int y = 0; y < imageA.height(); ++y) {
        for (int x = 0; x < imageA.width(); ++x) {
            const QRgb a = imageA.pixel(x, y);
            const QRgb b = imageB.pixel(x, y);
            sum +=
                std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
        }
    }
    return sum / (3.0 * imageA.width() * imageA.height());
}

}  // namespace

TEST(Strips, EveryEffectHasBothFormsInBothSizes) {
    std::set<QByteArray> setSeen;
    for (const int nDensity : {1, 2}) {
        const QImage strip = Picture(196, nDensity);
        ASSERT_EQ(strip.size(), QSize(5859, 68) * nDensity);
        for (int i = 0; i < kEffectCount; ++i) {
            const QRect rcCell(i * 189, 0, 189, 68);
            for (const int nNumber : {kFirstNormal + i, kFirstSelected + i}) {
                const QImage image = Picture(nNumber, nDensity);
                ASSERT_EQ(image.size(), QSize(189, 68) * nDensity) << nNumber;
                EXPECT_TRUE(setSeen
                                .insert(QByteArray(reinterpret_cast<const char*>(image.constBits()),
                                                   image.sizeInBytes()))
                                .second)
                    << nNumber << " repeats another";
            }
            EXPECT_EQ(Cut(strip, rcCell, nDensity), Picture(kFirstNormal + i, nDensity)) << i;
        }
    }
}

TEST(Strips, TheLabelCanBeReadAndTheSampleShowsAPicture) {
    std::set<QByteArray> setLabels;
    const QRect rcLabel(8, 8, 70, 17);
    const QRect rcClear(8, 28, 70, 18);
    for (int i = 0; i < kEffectCount; ++i) {
        for (const int nNumber : {kFirstNormal + i, kFirstSelected + i}) {
            const QImage image = Picture(nNumber, 1);
            const QImage label = Cut(image, rcLabel, 1);
            // The ground alone has a colour a row, not more than two by the rounding of a gradient.
            EXPECT_LE(CountColors(Cut(image, rcClear, 1)), 2 * rcClear.height()) << nNumber;
            int nInk = 0;
            for (int y = 0; y < label.height(); ++y)
                for (int x = 0; x < label.width(); ++x)
                    nInk += std::abs(qGray(label.pixel(x, y)) - qGray(image.pixel(rcClear.left(), 40))) > 80;
            EXPECT_GT(nInk, 40) << nNumber;
            const int nColors = CountColors(Cut(image, CEffectCells::kSample, 1));
            const EEffect effect = EffectOf(i);
            const bool bFew =
                effect == EEffect::PureBlackWhite || effect == EEffect::Engrave || effect == EEffect::Sketch;
            EXPECT_GT(nColors, bFew ? 2 : 60) << nNumber;
        }
        const QImage label = Cut(Picture(kFirstNormal + i, 1), rcLabel, 1);
        setLabels.insert(QByteArray(reinterpret_cast<const char*>(label.constBits()), label.sizeInBytes()));
    }
    EXPECT_EQ(setLabels.size(), static_cast<std::size_t>(kEffectCount)) << "each has a label of its own";
}

// Both forms show the same sample on another ground, and nobody can take one for the other.
TEST(Strips, TheSelectedFormIsSeenAtOnce) {
    for (int i = 0; i < kEffectCount; ++i) {
        const QImage normal = Picture(kFirstNormal + i, 1);
        const QImage selected = Picture(kFirstSelected + i, 1);
        EXPECT_EQ(Cut(normal, CEffectCells::kSample, 1), Cut(selected, CEffectCells::kSample, 1)) << i;
        EXPECT_GT(MeanDifference(normal, selected), 30) << i;
        const QColor crRim(selected.pixel(0, 34));
        EXPECT_GT(crRim.red() - crRim.blue(), 100) << "a warm rim";
    }
}

// Each frame can be told from the others by its border, and leaves the photograph of the first cell to be
// seen in its middle.
TEST(Strips, EveryFrameHasItsCellInBothSizes) {
    const QRect rcMiddle(30, 24, 30, 20);
    const QRect rcSign(68, 46, 18, 18);
    for (const int nDensity : {1, 2}) {
        const QImage strip = Picture(165, nDensity);
        ASSERT_EQ(strip.size(), QSize(1183, 69) * nDensity);
        std::vector<QImage> arrCells;
        for (int i = 0; i < CFrameCells::kCount; ++i) {
            const QImage cell = Picture(kFirstFrame + i, nDensity);
            EXPECT_EQ(cell, Cut(strip, QRect(i * 91, 0, 91, 69), nDensity)) << i;
            for (const QImage& other : arrCells) EXPECT_GT(MeanDifference(cell, other), 10) << i;
            arrCells.push_back(cell);
            EXPECT_EQ(Cut(cell, rcMiddle, nDensity), Cut(arrCells[0], rcMiddle, nDensity)) << i;
        }
        EXPECT_GT(CountColors(Cut(arrCells[0], rcMiddle, nDensity)), 100) << "a photograph";
        int nInk = 0;
        const QImage sign = Cut(arrCells[0], rcSign, nDensity);
        for (int y = 0; y < sign.height(); ++y)
            for (int x = 0; x < sign.width(); ++x) nInk += qGray(sign.pixel(x, y)) > 220;
        EXPECT_GT(nInk, 20 * nDensity * nDensity) << "the sign for none";
    }
}

// Each style's words can be told from the others', at rest and lit.
TEST(Strips, EveryTextEffectHasBothFormsInBothSizes) {
    for (const int nDensity : {1, 2}) {
        for (int i = 0; i < kTextEffectCount; ++i) {
            const QImage normal = Picture(265 + i, nDensity);
            ASSERT_EQ(normal.size(), QSize(209, 24) * nDensity);
            EXPECT_GT(MeanDifference(normal, Picture(269 + i, nDensity)), 30) << i;
            for (int k = 0; k < i; ++k) EXPECT_GT(MeanDifference(normal, Picture(265 + k, nDensity)), 1) << i;
        }
    }
}

TEST(Strips, ComeOutTheSameOnEveryRun) {
    QTemporaryDir folder;
    ASSERT_EQ(QProcess::execute(FOTARIUM_STRIPS_TOOL, {folder.path(), kSamples, kFrames}), 0);
    for (const char* szSub : {"/1x", "/2x"}) {
        const QStringList arrNames = QDir(folder.path() + szSub).entryList(QDir::Files);
        EXPECT_EQ(arrNames.size(), 2 * kEffectCount + 1 + CFrameCells::kCount + 1 + 2 * kTextEffectCount);
        for (const QString& strName : arrNames) {
            EXPECT_EQ(Bytes(folder.path() + szSub + '/' + strName),
                      Bytes(kSkinFolder + szSub + '/' + strName))
                << strName.toStdString();
        }
    }
}

TEST(Strips, ToolSaysWhenItCannotWork) {
    QTemporaryDir folder;
    EXPECT_EQ(QProcess::execute(FOTARIUM_STRIPS_TOOL, {}), 1);
    EXPECT_EQ(QProcess::execute(FOTARIUM_STRIPS_TOOL, {folder.path(), folder.path(), kFrames}), 1)
        << "no photographs";
    EXPECT_EQ(QProcess::execute(FOTARIUM_STRIPS_TOOL, {folder.path(), kSamples, folder.path()}), 1)
        << "no frames";
    EXPECT_EQ(QProcess::execute(FOTARIUM_STRIPS_TOOL, {"--contact", "none.jpg", folder.filePath("a.png")}),
              1);
    QFile file(folder.filePath("taken"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(QProcess::execute(FOTARIUM_STRIPS_TOOL, {file.fileName(), kSamples, kFrames}), 1);
}
