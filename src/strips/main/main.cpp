#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <cstdio>

#include "resources/BitmapIds.h"
#include "resources/Texts.h"
#include "strips/EffectCells.h"
#include "strips/FrameCells.h"
#include "strips/TextCells.h"

// fotarium-strips OUTDIR SAMPLEDIR FRAMEDIR renders the pictures of the lists into OUTDIR/1x and OUTDIR/2x
// fotarium-strips --contact PHOTO OUT.png  all effects on one photograph, for looking at

namespace {

int Fail(const QString& strWhy) {
    std::fprintf(stderr, "fotarium-strips: %s\n", qUtf8Printable(strWhy));
    return 1;
}

// Writes the pictures of one density: each effect's two forms, and the strip of all normal ones. Returns what
// has gone wrong, or an empty text.
QString WriteEffects(const QString& strFolder, CEffectSamples& samples, int nDensity) {
    CEffectCells cells(samples, nDensity);
    const QSize sizeCell = CEffectCells::kCell * nDensity;
    QImage strip(sizeCell.width() * kEffectCount, sizeCell.height(), QImage::Format_RGB888);
    QPainter painter(&strip);
    const auto save = [&](const QImage& image, int nNumber) {
        return image.save(QStringLiteral("%1/%2.png").arg(strFolder).arg(nNumber), "PNG");
    };
    for (int nEffect = 0; nEffect < kEffectCount; ++nEffect) {
        const QImage normal = cells.Render(nEffect, false);
        const QImage selected = cells.Render(nEffect, true);
        if (normal.isNull() || selected.isNull()) return "the photographs cannot be read";
        if (!save(normal, kBmpEffectNormal + nEffect) || !save(selected, kBmpEffectSelected + nEffect))
            return "cannot write to " + strFolder;
        painter.drawImage(nEffect * sizeCell.width(), 0, normal);
    }
    painter.end();
    return save(strip, kBmpEffectStrip) ? QString() : "cannot write to " + strFolder;
}

// Writes each picture of the frame list at one density, and the strip of all. Returns as above.
QString WriteFrames(const QString& strFolder, const CFrameCells& cells, int nDensity) {
    const QSize sizeCell = CFrameCells::kCell * nDensity;
    QImage strip(sizeCell.width() * CFrameCells::kCount, sizeCell.height(), QImage::Format_RGB888);
    QPainter painter(&strip);
    const auto save = [&](const QImage& image, int nNumber) {
        return image.save(QStringLiteral("%1/%2.png").arg(strFolder).arg(nNumber), "PNG");
    };
    for (int nFrame = 0; nFrame < CFrameCells::kCount; ++nFrame) {
        const QImage cell = cells.Render(nFrame, nDensity);
        if (cell.isNull()) return "the frames or their photograph cannot be read";
        if (!save(cell, kBmpFrameCell + nFrame)) return "cannot write to " + strFolder;
        painter.drawImage(nFrame * sizeCell.width(), 0, cell);
    }
    painter.end();
    return save(strip, kBmpFrameStrip) ? QString() : "cannot write to " + strFolder;
}

// Writes each text effect's two forms at one density. Returns as above.
QString WriteTextEffects(const QString& strFolder, int nDensity) {
    for (int nEffect = 0; nEffect < kTextEffectCount; ++nEffect) {
        for (const bool bSelected : {false, true}) {
            const int nNumber = (bSelected ? kBmpTextEffectSelected : kBmpTextEffectNormal) + nEffect;
            const QImage cell = RenderTextCell(nEffect, bSelected, nDensity);
            if (!cell.save(QStringLiteral("%1/%2.png").arg(strFolder).arg(nNumber), "PNG"))
                return "cannot write to " + strFolder;
        }
    }
    return {};
}

int WriteContactSheet(const QString& strPhoto, const QString& strOut) {
    const QImage sheet = RenderContactSheet(CxImage(strPhoto.toStdString(), ImageType::kJpeg));
    if (sheet.isNull()) return Fail("cannot read " + strPhoto);
    return sheet.save(strOut, "PNG") ? 0 : Fail("cannot write " + strOut);
}

}  // namespace

int main(int nArgs, char** apArgs) {
    QGuiApplication app(nArgs, apArgs);
    const QStringList arrArgs = app.arguments().mid(1);
    if (arrArgs.size() == 3 && arrArgs[0] == "--contact") return WriteContactSheet(arrArgs[1], arrArgs[2]);
    if (arrArgs.size() != 3 || arrArgs[0].startsWith('-'))
        return Fail(
            "usage: fotarium-strips OUTDIR SAMPLEDIR FRAMEDIR\n       fotarium-strips --contact PHOTO "
            "OUT.png");
    CEffectSamples samples(arrArgs[1]);
    const CFrameCells frames(arrArgs[1], arrArgs[2]);
    for (const int nDensity : {1, 2}) {
        const QString strFolder = QStringLiteral("%1/%2x").arg(arrArgs[0]).arg(nDensity);
        if (!QDir().mkpath(strFolder)) return Fail("cannot write to " + strFolder);
        if (const QString strWhy = WriteEffects(strFolder, samples, nDensity); !strWhy.isEmpty())
            return Fail(strWhy);
        if (const QString strWhy = WriteFrames(strFolder, frames, nDensity); !strWhy.isEmpty())
            return Fail(strWhy);
        if (const QString strWhy = WriteTextEffects(strFolder, nDensity); !strWhy.isEmpty())
            return Fail(strWhy);
    }
    return 0;
}
