#include "qt/QtFolders.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <filesystem>

#include "qt/Text.h"

namespace fs = std::filesystem;

namespace {

#ifdef Q_OS_WIN

QString StoredFolder() {
    const QSettings settings("HKEY_LOCAL_MACHINE\\SOFTWARE\\ZEFA Fotarium\\1.0", QSettings::NativeFormat);
    return settings.value(".").toString();
}

#else

QString StoredFolder() {
    const QSettings settings("ZEFA Fotarium", "1.0");
    QString strStored = settings.value("Default").toString();
    if (!strStored.isEmpty()) return strStored;
    const QString strOwn = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return !strOwn.isEmpty() && QDir().mkpath(strOwn) ? strOwn : QString{};
}

#endif

}  // namespace

char CQtFolders::Separator() const {
    return static_cast<char>(fs::path::preferred_separator);
}

std::string CQtFolders::CurrentFolder() const {
    std::error_code error;
    return fs::current_path(error).string();
}

bool CQtFolders::SetCurrentFolder(const std::string& strFolder) {
    std::error_code error;
    fs::current_path(strFolder, error);
    return !error;
}

std::string CQtFolders::InstallValue() const {
    return PathFromQt(StoredFolder());
}
