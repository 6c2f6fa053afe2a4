#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <cstdio>

#include "Compose.h"
#include "Skin.h"
#include "SkinTable.h"

// fotarium-art OUTDIR            renders the skin into OUTDIR/1x and OUTDIR/2x, the icons into OUTDIR itself
// fotarium-art --compose OUTDIR  puts the rendered pictures together as the window shows them, for looking at

namespace {

int Fail(const QString& strWhy) {
    std::fprintf(stderr, "fotarium-art: %s\n", qPrintable(strWhy));
    return 1;
}

// Writes the pictures of one density. Returns false when a file cannot be written.
bool WritePictures(const std::map<QString, QImage>& mapPictures, const QString& strOut, int nDensity) {
    const QString strFolder = QString("%1/%2x").arg(strOut).arg(nDensity);
    if (!QDir().mkpath(strFolder)) return false;
    for (const auto& [strName, image] : mapPictures) {
        const bool bIcon = strName.startsWith("icon-");
        if (bIcon && nDensity > 1) continue;
        const QString strPath = QString("%1/%2.png").arg(bIcon ? strOut : strFolder, strName);
        if (!image.save(strPath, "PNG")) return false;
    }
    return true;
}

}  // namespace

int main(int nArgs, char** apArgs) {
    QGuiApplication app(nArgs, apArgs);
    QStringList arrArgs = app.arguments().mid(1);
    const bool bCompose = arrArgs.removeAll("--compose") > 0;
    if (arrArgs.size() != 1) return Fail("usage: fotarium-art [--compose] OUTDIR");

    const QString strArt = FOTARIUM_ART_DIR;
    QString strError;
    const auto arrLines = ReadSkinTable(strArt + "/skin.txt", strError);
    if (!arrLines) return Fail(strError);

    const QString& strOut = arrArgs[0];
    for (const int nDensity : {1, 2}) {
        CSkin skin(*arrLines, strArt, nDensity);
        const std::map<QString, QImage> mapPictures = skin.Render();
        if (!skin.Missing().isEmpty()) return Fail("unreadable drawings: " + skin.Missing().join(' '));
        const bool bWritten = bCompose ? WriteCompositions(*arrLines, mapPictures, strOut, nDensity)
                                       : WritePictures(mapPictures, strOut, nDensity);
        if (!bWritten) return Fail("cannot write to " + strOut);
    }
    return 0;
}
