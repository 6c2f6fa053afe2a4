// fotarium-tour OUTDIR: walks through the program in its real window and keeps a picture of each step.

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>
#include <cstdio>

#include "app/MainApp.h"
#include "qt/Application.h"
#include "qt/QtPlatform.h"
#include "qt/ResourceFolders.h"
#include "resources/BitmapStore.h"
#include "tour/StartWatch.h"
#include "tour/Steps.h"

namespace {

// The offscreen platform warns of what a screen would be needed for; the walk needs none of it.
void PrintMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& strMessage) {
    if (!strMessage.startsWith("This plugin does not support"))
        std::fprintf(stderr, "%s\n", qUtf8Printable(strMessage));
}

// Copies the samples into a folder that the walk may write to, and finds one of each shape.
bool LayOutFiles(const QString& strFolder, CTourFiles& files) {
    const QDir samples(QFile::decodeName(SampleFolder().c_str()));
    for (const QString& strName : samples.entryList({"*.jpg"}, QDir::Files, QDir::Name)) {
        const QString strCopy = strFolder + "/" + strName;
        if (!QFile::copy(samples.filePath(strName), strCopy)) return false;
        const QSize size = QImageReader(strCopy).size();
        QString& strPlace = size.height() > size.width() ? files.strUpright : files.strPicture;
        if (strPlace.isEmpty()) strPlace = strCopy;
    }
    files.strBroken = strFolder + "/broken.jpg";
    files.strSaved = strFolder + "/saved.jpg";
    QFile broken(files.strBroken);
    return broken.open(QIODevice::WriteOnly) && broken.write("this is no picture") > 0 &&
           !files.strPicture.isEmpty() && !files.strUpright.isEmpty();
}

}  // namespace

int main(int argc, char** argv) {
    qInstallMessageHandler(PrintMessage);
    QApplication application(argc, argv);
    if (argc != 2 || argv[1][0] == '-') {
        std::fputs(
            "usage: fotarium-tour OUTDIR\nWalks through the program and keeps a picture of each step in "
            "OUTDIR.\n",
            stderr);
        return 2;
    }
    const QString strFolder = QDir(QFile::decodeName(argv[1])).absolutePath();
    QTemporaryDir folder;
    CTourFiles files;
    if (!QDir().mkpath(strFolder) || !folder.isValid() || !LayOutFiles(folder.path(), files)) {
        std::fputs("fotarium-tour: cannot lay out the pictures\n", stderr);
        return 1;
    }
    // The walk leaves the user's own settings and data alone.
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path() + "/data"));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path() + "/config"));
    QDir::setCurrent(folder.path());

    SetUpApplication(application);
    CBitmapStore bitmaps(SkinFolder());
    CQtPlatform platform(bitmaps);
    CTour tour(MakeSteps(files), strFolder);
    const CStartWatch watch;
    bool bOver = false;
    tour.Start([&] {
        bOver = true;
        // A walk that has failed leaves windows open; ending every loop lets them go.
        QApplication::closeAllWindows();
        QApplication::exit();
    });
    CMainApp(platform.Platform()).InitInstance();
    if (!bOver) QApplication::exec();
    std::printf("The window was up %lld ms behind the end of the start-up picture\n",
                static_cast<long long>(watch.Milliseconds()));
    std::printf("%s: the pictures are in %s\n",
                tour.HasSucceeded() ? "The walk is done" : "The walk has FAILED", qUtf8Printable(strFolder));
    return tour.HasSucceeded() ? 0 : 1;
}
