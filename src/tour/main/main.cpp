// fotarium-tour OUTDIR: walks through the program in its real window and keeps a picture of each step.

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>

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

bool WriteFile(const QString& strPath, const QByteArray& bytes) {
    QFile file(strPath);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool CopyInto(const QDir& from, const QStringList& arrNames, const QString& strFolder) {
    for (const QString& strName : arrNames)
        if (!QFile::copy(from.filePath(strName), strFolder + "/" + strName)) return false;
    return true;
}

// The samples in a folder that the walk may write to, as the drive of the samples has them; of each shape one
// is picked.
bool LayOutSamples(const QDir& samples, const QString& strFolder, CTourFiles& files) {
    files.arrSamples = samples.entryList({"*.jpg"}, QDir::Files, QDir::Name);
    std::sort(files.arrSamples.begin(), files.arrSamples.end());
    if (!QDir().mkpath(strFolder) || !CopyInto(samples, files.arrSamples, strFolder)) return false;
    for (const QString& strName : files.arrSamples) {
        const QString strCopy = strFolder + "/" + strName;
        const QSize size = QImageReader(strCopy).size();
        QString& strPlace = size.height() > size.width() ? files.strUpright : files.strPicture;
        if (strPlace.isEmpty()) strPlace = strCopy;
    }
    files.strSaved = strFolder + "/saved.jpg";
    files.strPrinted = strFolder + "/page.pdf";
    files.strBrokenCopy = strFolder + "/broken.jpg";
    return !files.strPicture.isEmpty() && !files.strUpright.isEmpty();
}

// Beside the samples an album: a folder of folders, one of which holds photographs among other things.
bool LayOutAlbum(const QDir& samples, const QString& strAlbum, CTourFiles& files) {
    files.arrFolders = {"儿时", "山水", "节日"};
    for (const QString& strName : files.arrFolders)
        if (!QDir().mkpath(strAlbum + "/" + strName)) return false;
    files.strTakeFolder = "节日";
    files.strTakePath = strAlbum + "/节日";
    files.strFolder = "山水";
    files.strMixedFolder = strAlbum + "/山水";
    for (const QString& strName : files.arrSamples)
        if (strName != QFileInfo(files.strUpright).fileName() && files.arrGood.size() < 4)
            files.arrGood.append(strName);
    files.strBrokenName = "破损.jpg";
    files.strBroken = files.strMixedFolder + "/" + files.strBrokenName;
    // A name from another system's time, in bytes that are no valid text here.
    const QByteArray odd = QFile::encodeName(files.strMixedFolder) + "/\xb7\xe7.jpg";
    const bool bOdd = std::ofstream(odd.toStdString(), std::ios::binary).put('x').good();
    files.arrMixed = files.arrGood;
    files.arrMixed.append(files.strBrokenName);
    std::sort(files.arrMixed.begin(), files.arrMixed.end());
    // Those bytes stand before all Chinese ones, and folders before all files.
    files.arrMixed.prepend(QString(2, QChar::ReplacementCharacter) + ".jpg");
    files.arrMixed.prepend("湖边");
    if (!QDir().mkpath(files.strMixedFolder + "/湖边")) return false;
    return bOdd && CopyInto(samples, files.arrGood, files.strMixedFolder) &&
           WriteFile(files.strMixedFolder + "/notes.txt", "not listed") &&
           WriteFile(files.strBroken, "this is no picture");
}

bool MakePhone(CTourPhone& phone, const QString& strFolder, int nIdentity, const QString& strFacts) {
    phone.strFolder = strFolder;
    return QDir().mkpath(strFolder + "/inner/photo") && QDir().mkpath(strFolder + "/card/photo") &&
           phone.SetFact(QStringLiteral("identity %1").arg(nIdentity)) && phone.SetFact(strFacts);
}

bool Shrink(const QString& strFrom, const QString& strTo) {
    return QImage(strFrom).scaled(640, 480).save(strTo, "JPG");
}

// Phones with photographs in sizes that they show themselves, but for one that fills a computer's screen.
bool LayOutPhones(const QDir& samples, const QString& strFolder, CTourFiles& files) {
    const QString strFirst = samples.filePath(files.arrGood[0]);
    const QString strSecond = samples.filePath(files.arrGood[1]);
    const QString strThird = samples.filePath(files.arrGood[2]);
    const QString strPhone = strFolder + "/phone", strCard = strFolder + "/card",
                  strAgain = strFolder + "/again";
    return MakePhone(files.phone, strPhone, 4711, "memory 4000000") &&
           QFile::copy(strFirst, strPhone + "/inner/photo/IMG0001") &&
           Shrink(strSecond, strPhone + "/inner/photo/IMG0002") &&
           Shrink(strThird, strPhone + "/inner/photo/生日") &&
           Shrink(strFirst, strPhone + "/inner/photo/IMG0003") &&
           WriteFile(strPhone + "/closed", "photo/IMG0003\n") &&
           MakePhone(files.phoneCard, strCard, 4712, "card 1\ncardin 1") &&
           Shrink(strFirst, strCard + "/inner/photo/IMG0001") &&
           Shrink(strSecond, strCard + "/card/photo/IMG0101") &&
           Shrink(strThird, strCard + "/card/photo/IMG0102") &&
           MakePhone(files.phoneRestart, strAgain, 4713, "norestart 0\nrestartpolls 4") &&
           Shrink(strFirst, strAgain + "/inner/photo/IMG0001");
}

bool LayOutFiles(const QString& strFolder, CTourFiles& files) {
    const QDir samples(QFile::decodeName(SampleFolder().c_str()));
    files.strTrash = strFolder + "/data/Trash";
    return QDir().mkpath(strFolder + "/home/图片") &&
           LayOutSamples(samples, strFolder + "/drive/ZEFA肖像", files) &&
           LayOutAlbum(samples, strFolder + "/drive/相册", files) &&
           LayOutPhones(samples, strFolder + "/phones", files);
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
    qputenv("HOME", QFile::encodeName(folder.path() + "/home"));
    qputenv("FOTARIUM_SAMPLE_DRIVE", QFile::encodeName(folder.path() + "/drive"));
    QDir::setCurrent(folder.path());

    SetUpApplication(application);
    CBitmapStore bitmaps(SkinFolder());
    CQtPlatform platform(bitmaps);
    const CPlatform& p = platform.Platform();
    CTourMachine machine(p.ports, p.libraries);
    CTourPrinters printers(p.files);
    CTour tour(MakeSteps(files, machine, printers), strFolder);
    const CStartWatch watch;
    bool bOver = false;
    tour.Start([&] {
        bOver = true;
        // A walk that has failed leaves windows open; ending every loop lets them go.
        QApplication::closeAllWindows();
        QApplication::exit();
    });
    CMainApp({p.boxes, p.modals, p.files, p.colors, p.fonts, p.menus, p.timers, p.wait, p.clipboard,
              p.folders, p.text, p.drives, p.shell, p.bitmaps, machine, machine, printers, printers})
        .InitInstance();
    if (!bOver) QApplication::exec();
    // Qt's own way does not find names that are no valid text.
    std::error_code error;
    std::filesystem::remove_all(QFile::encodeName(folder.path()).toStdString(), error);
    std::printf("The window was up %lld ms behind the end of the start-up picture\n",
                static_cast<long long>(watch.Milliseconds()));
    std::printf("%s: the pictures are in %s\n",
                tour.HasSucceeded() ? "The walk is done" : "The walk has FAILED", qUtf8Printable(strFolder));
    return tour.HasSucceeded() ? 0 : 1;
}
