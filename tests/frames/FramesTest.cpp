#include <dlfcn.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QProcess>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <memory>
#include <set>
#include <string>

#include "frames/FrameLibrary.h"
#include "frames/tool/FrameDrawing.h"

// The library of frames as the program loads it, held against its drawings.

namespace {

const QString kPictures = FOTARIUM_SOURCE_DIR "/src/frames/pictures";

struct CPixel {
    int r = 0, g = 0, b = 0;
    bool IsKey() const { return r >= 254 && g <= 1 && b <= 1; }
    bool operator==(const CPixel&) const = default;
};
constexpr CPixel kKey{255, 0, 0};

class Frames : public ::testing::Test {
  protected:
    // Null where there is none.
    const unsigned char* Record(int nFrame) const {
        const std::string strName = "FuncStickerFrameData_" + std::to_string(nFrame);
        void* pFunction = dlsym(m_pLibrary.get(), strName.c_str());
        return pFunction ? reinterpret_cast<const unsigned char* (*)()>(pFunction)() : nullptr;
    }

    static CPixel At(const unsigned char* pRecord, int x, int y) {
        const unsigned char* p = pRecord + (y * kStickerFrameWidth + x) * 3;
        return {p[0], p[1], p[2]};
    }

    // Calls what it is given with each frame's number, record, and each place.
    template <typename T>
    void EachPixel(T visit) const {
        for (int nFrame = 1; nFrame <= kStickerFrameCount; ++nFrame) {
            const unsigned char* pRecord = Record(nFrame);
            for (int y = 0; y < kStickerFrameHeight; ++y)
                for (int x = 0; x < kStickerFrameWidth; ++x) visit(nFrame, pRecord, x, y);
        }
    }

    void SetUp() override {
        ASSERT_TRUE(m_pLibrary) << dlerror();
        for (int nFrame = 1; nFrame <= kStickerFrameCount; ++nFrame) ASSERT_TRUE(Record(nFrame)) << nFrame;
    }

  private:
    struct CLetGo {
        void operator()(void* pLibrary) const { dlclose(pLibrary); }
    };
    std::unique_ptr<void, CLetGo> m_pLibrary{dlopen(FOTARIUM_FRAME_LIBRARY, RTLD_NOW | RTLD_LOCAL)};
};

// The drawing by the renderer alone, at the size of the record.
QImage Plain(const QString& strDrawing) {
    QImage image(kStickerFrameWidth, kStickerFrameHeight, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QSvgRenderer(strDrawing).render(&painter);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

int Difference(const CPixel& pixel, QRgb rgb) {
    return std::abs(pixel.r - qRed(rgb)) + std::abs(pixel.g - qGreen(rgb)) + std::abs(pixel.b - qBlue(rgb));
}

QByteArray Bytes(const QString& strPath) {
    QFile file(strPath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

TEST_F(Frames, TwelveAndNoMoreEachUnlikeTheOthers) {
    EXPECT_FALSE(Record(0));
    EXPECT_FALSE(Record(kStickerFrameCount + 1));
    for (int nA = 1; nA <= kStickerFrameCount; ++nA) {
        for (int nB = 1; nB < nA; ++nB) {
            const unsigned char* pA = Record(nA);
            const unsigned char* pB = Record(nB);
            int nUnlike = 0;
            for (int i = 0; i < kStickerFrameBytes; ++i) nUnlike += std::abs(pA[i] - pB[i]) > 40;
            // A third of the border, which is less than half of the record.
            EXPECT_GT(nUnlike, kStickerFrameBytes / 8) << nA << " and " << nB;
        }
    }
}

// Where the drawing covers most of a pixel there is its colour, elsewhere the key, and no mixture of the two.
TEST_F(Frames, RecordsAreWhatTheDrawingsCover) {
    // Where thin shapes cross, the renderer's own reckoning of what is covered is a rough one.
    constexpr int kSurely = 208;
    const QStringList arrNames = QDir(kPictures).entryList({"*.svg"}, QDir::Files, QDir::Name);
    ASSERT_EQ(arrNames.size(), kStickerFrameCount);
    for (int nFrame = 1; nFrame <= kStickerFrameCount; ++nFrame) {
        const QImage plain = Plain(kPictures + '/' + arrNames[nFrame - 1]);
        const unsigned char* pRecord = Record(nFrame);
        int nWrong = 0;
        long long nEdge = 0, nEdgeDifference = 0, nInner = 0, nInnerDifference = 0;
        for (int y = 0; y < kStickerFrameHeight; ++y) {
            for (int x = 0; x < kStickerFrameWidth; ++x) {
                const CPixel pixel = At(pRecord, x, y);
                const QRgb rgb = plain.pixel(x, y);
                const int nAlpha = qAlpha(rgb);
                nWrong += pixel.IsKey() && pixel != kKey;
                nWrong += nAlpha > kSurely && pixel.IsKey();
                nWrong += nAlpha < 255 - kSurely && pixel != kKey;
                if (pixel.IsKey() || nAlpha <= kSurely) continue;
                (nAlpha < 250 ? nEdge : nInner) += 1;
                (nAlpha < 250 ? nEdgeDifference : nInnerDifference) += Difference(pixel, rgb);
            }
        }
        EXPECT_EQ(nWrong, 0) << nFrame;
        EXPECT_LT(nInnerDifference, 3 * 4 * nInner) << nFrame;
        EXPECT_LT(nEdgeDifference, 3 * 24 * nEdge) << nFrame << ": a fringe";
    }
}

TEST_F(Frames, TheWindowIsWideTheRimIsClosedAndNoSpeckStandsAlone) {
    std::array<int, kStickerFrameCount + 1> arrKeys{}, arrMiddle{}, arrOpenRim{}, arrSpecks{};
    EachPixel([&](int nFrame, const unsigned char* pRecord, int x, int y) {
        const auto n = static_cast<std::size_t>(nFrame);
        const bool bKey = At(pRecord, x, y).IsKey();
        arrKeys[n] += bKey;
        arrMiddle[n] += !bKey && std::abs(x - 320) < 160 && std::abs(y - 240) < 90;
        if (x == 0 || y == 0 || x == kStickerFrameWidth - 1 || y == kStickerFrameHeight - 1) {
            arrOpenRim[n] += bKey;
            return;
        }
        int nAlike = 0;
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx) nAlike += At(pRecord, x + dx, y + dy).IsKey() == bKey;
        arrSpecks[n] += nAlike == 1;
    });
    for (std::size_t n = 1; n <= kStickerFrameCount; ++n) {
        EXPECT_GE(arrKeys[n], kStickerFrameWidth * kStickerFrameHeight * 55 / 100) << n;
        EXPECT_EQ(arrMiddle[n], 0) << n;
        EXPECT_EQ(arrOpenRim[n], 0) << n;
        EXPECT_EQ(arrSpecks[n], 0) << n;
    }
}

// The first four pass for the key and are moved, the next two do not and stay; nothing is the key.
TEST(FrameDrawing, MovesAsideWhatWouldPassForTheKey) {
    const std::array<QRgb, 7> arrFrom = {qRgb(255, 0, 0), qRgb(254, 1, 1), qRgb(254, 0, 1),  qRgb(255, 1, 0),
                                         qRgb(253, 0, 0), qRgb(255, 2, 0), qRgba(0, 0, 0, 0)};
    const std::array<CPixel, 7> arrTo = {
        {{255, 2, 0}, {254, 2, 1}, {254, 2, 1}, {255, 2, 0}, {253, 0, 0}, {255, 2, 0}, kKey}};
    QImage image(7, 1, QImage::Format_ARGB32);
    for (int x = 0; x < 7; ++x) image.setPixel(x, 0, arrFrom[static_cast<std::size_t>(x)]);
    const QByteArray record = RecordOf(image);
    ASSERT_EQ(record.size(), 21);
    for (std::size_t i = 0; i < 7; ++i) {
        const auto* p = reinterpret_cast<const unsigned char*>(record.constData()) + i * 3;
        const CPixel pixel{p[0], p[1], p[2]};
        EXPECT_EQ(pixel, arrTo[i]) << i;
    }
}

TEST(FrameTool, ComesOutTheSameOnEveryRunAndSaysWhenItCannotWork) {
    QTemporaryDir folder;
    ASSERT_EQ(QProcess::execute(FOTARIUM_FRAMES_TOOL, {kPictures, folder.path()}), 0);
    ASSERT_EQ(Bytes(folder.filePath("frames.rgb")).size(), kStickerFrameCount * kStickerFrameBytes);
    for (const QString& strName : QDir(folder.path()).entryList(QDir::Files))
        EXPECT_EQ(Bytes(folder.filePath(strName)), Bytes(QStringLiteral(FOTARIUM_FRAMES_DIR "/") + strName))
            << strName.toStdString();

    QTemporaryDir drawings;
    EXPECT_EQ(QProcess::execute(FOTARIUM_FRAMES_TOOL, {drawings.path(), folder.path()}), 1) << "none";
    for (int i = 1; i <= kStickerFrameCount; ++i) {
        QFile file(drawings.filePath(QString::number(i) + ".svg"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    EXPECT_EQ(QProcess::execute(FOTARIUM_FRAMES_TOOL, {drawings.path(), folder.path()}), 1) << "broken";
    EXPECT_EQ(QProcess::execute(FOTARIUM_FRAMES_TOOL, {kPictures, folder.filePath("frames.rgb")}), 1);
    EXPECT_EQ(QProcess::execute(FOTARIUM_FRAMES_TOOL, {}), 1);
}
