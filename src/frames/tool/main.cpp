#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <cstdio>

#include "FrameDrawing.h"
#include "frames/FrameLibrary.h"

// fotarium-frames PICTURES OUTDIR            renders the drawings, in the order of their names, into
//                                            OUTDIR/frames.rgb, all records, and OUTDIR/N.png to look at
// fotarium-frames --contact PICTURES PHOTO OUT.png [N]
//                                            all frames over a photograph on one sheet, or frame N alone

namespace {

int Fail(const QString& strWhy) {
    std::fprintf(stderr, "fotarium-frames: %s\n", qUtf8Printable(strWhy));
    return 1;
}

QStringList DrawingsIn(const QString& strFolder) {
    QStringList arrPaths;
    for (const QString& strName : QDir(strFolder).entryList({"*.svg"}, QDir::Files, QDir::Name))
        arrPaths << strFolder + '/' + strName;
    return arrPaths;
}

int WriteRecords(const QStringList& arrDrawings, const QString& strOut) {
    if (arrDrawings.size() != kStickerFrameCount)
        return Fail(QStringLiteral("%1 drawings instead of %2")
                        .arg(arrDrawings.size())
                        .arg(static_cast<int>(kStickerFrameCount)));
    QDir().mkpath(strOut);
    QByteArray records;
    for (int i = 0; i < arrDrawings.size(); ++i) {
        const QImage frame = RenderFrame(arrDrawings[i]);
        if (frame.isNull()) return Fail("cannot read " + arrDrawings[i]);
        if (!frame.save(QStringLiteral("%1/%2.png").arg(strOut).arg(i + 1), "PNG"))
            return Fail("cannot write to " + strOut);
        records += RecordOf(frame);
    }
    QFile file(strOut + "/frames.rgb");
    const bool bWritten = file.open(QIODevice::WriteOnly) && file.write(records) == records.size();
    return bWritten ? 0 : Fail("cannot write to " + strOut);
}

int WriteContactSheet(const QStringList& arrDrawings, const QString& strPhoto, const QString& strOut) {
    constexpr int kColumns = 3;
    constexpr int kGap = 16;
    const QSize size(kStickerFrameWidth, kStickerFrameHeight);
    const QImage photo = QImage(strPhoto).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (photo.isNull()) return Fail("cannot read " + strPhoto);
    const int nColumns = std::min(kColumns, static_cast<int>(arrDrawings.size()));
    const int nRows = (static_cast<int>(arrDrawings.size()) + kColumns - 1) / kColumns;
    QImage sheet(kGap + nColumns * (size.width() + kGap), kGap + nRows * (size.height() + kGap),
                 QImage::Format_RGB888);
    sheet.fill(QColor(110, 122, 127));
    QPainter painter(&sheet);
    for (int i = 0; i < arrDrawings.size(); ++i) {
        const QPoint pt(kGap + i % kColumns * (size.width() + kGap),
                        kGap + i / kColumns * (size.height() + kGap));
        painter.drawImage(pt, photo);
        painter.drawImage(pt, RenderFrame(arrDrawings[i]));
    }
    painter.end();
    return sheet.save(strOut, "PNG") ? 0 : Fail("cannot write " + strOut);
}

}  // namespace

int main(int nArgs, char** apArgs) {
    QGuiApplication app(nArgs, apArgs);
    QStringList arrArgs = app.arguments().mid(1);
    const bool bContact = arrArgs.removeAll("--contact") > 0;
    if (!bContact && arrArgs.size() == 2) return WriteRecords(DrawingsIn(arrArgs[0]), arrArgs[1]);
    if (!bContact || arrArgs.size() < 3 || arrArgs.size() > 4)
        return Fail(
            "usage: fotarium-frames PICTURES OUTDIR\n"
            "       fotarium-frames --contact PICTURES PHOTO OUT.png [N]");
    QStringList arrDrawings = DrawingsIn(arrArgs[0]);
    if (arrArgs.size() == 4) arrDrawings = arrDrawings.mid(arrArgs[3].toInt() - 1, 1);
    if (arrDrawings.isEmpty()) return Fail("no drawings in " + arrArgs[0]);
    return WriteContactSheet(arrDrawings, arrArgs[1], arrArgs[2]);
}
