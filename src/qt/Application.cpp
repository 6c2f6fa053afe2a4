#include "qt/Application.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QTranslator>
#include <memory>

#include "qt/FontMapping.h"
#include "qt/ResourceFolders.h"
#include "qt/SkinColors.h"
#include "qt/Text.h"

namespace {

constexpr int kFontPixels = 13;

QPalette MakePalette() {
    using namespace SkinColors;
    QPalette palette;
    palette.setColor(QPalette::Window, kFace);
    palette.setColor(QPalette::WindowText, kInk);
    palette.setColor(QPalette::Base, kPaper);
    palette.setColor(QPalette::AlternateBase, kFace.lighter(104));
    palette.setColor(QPalette::Text, kInk);
    palette.setColor(QPalette::Button, kFace.darker(106));
    palette.setColor(QPalette::ButtonText, kInk);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Highlight, kWarm);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, kPaper);
    palette.setColor(QPalette::ToolTipText, kInk);
    palette.setColor(QPalette::PlaceholderText, kPaleInk);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, kPaleInk);
    return palette;
}

// Qt's translations are found beside the program in an installed tree that brings its own, else where Qt has
// them.
void InstallTranslation(QApplication& application) {
    auto pTranslator = std::make_unique<QTranslator>();
    const QString strOwn = PathToQt(ShareFolder()) + "/translations";
    if (!pTranslator->load("qtbase_zh_CN", strOwn) &&
        !pTranslator->load("qtbase_zh_CN", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        return;
    pTranslator->setParent(&application);
    QApplication::installTranslator(pTranslator.release());
}

// The date in a printed picture is laid out for the widths of this face. Debian has it where no program but
// one looks.
void AddDateFace() {
    for (const char* szFile : {"tahoma.ttf", "tahomabd.ttf"})
        if (const QString strPath = QString("/usr/share/wine/fonts/") + szFile; QFile::exists(strPath))
            QFontDatabase::addApplicationFont(strPath);
}

QIcon LoadIcon() {
    QIcon icon;
    for (const int nSize : {16, 24, 32, 48, 64, 128, 256}) {
        const QString strFile = PathToQt(SkinFolder()) + QString("/icon-%1.png").arg(nSize);
        if (QFile::exists(strFile)) icon.addFile(strFile);
    }
    return icon;
}

}  // namespace

void SetUpApplication(QApplication& application) {
    QApplication::setApplicationName("Fotarium");
    QApplication::setStyle("Fusion");
    QApplication::setPalette(MakePalette());
    AddDateFace();
    QApplication::setFont(MapFont({}, kFontPixels));
    QApplication::setWindowIcon(LoadIcon());
    // One dialog's window follows another: between two there is none.
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::China));
    InstallTranslation(application);
}
