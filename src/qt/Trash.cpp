#include "qt/Trash.h"

#include "qt/Text.h"

#ifdef Q_OS_LINUX

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDateTime>
#include <cstdlib>
#include <filesystem>
#include <optional>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLongestName = 200;  // leaves room for what is put behind a name
constexpr int kMostNames = 10000;

struct CTrash {
    fs::path folder;
    fs::path top;  // of the volume, if the trash is the volume's own; names are told from there on
};

std::optional<dev_t> DeviceOf(const fs::path& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) return std::nullopt;
    return status.st_dev;
}

fs::path HomeTrash() {
    const char* szData = std::getenv("XDG_DATA_HOME");
    if (szData != nullptr && *szData == '/') return fs::path(szData) / "Trash";
    const char* szHome = std::getenv("HOME");
    return fs::path(szHome == nullptr ? "/" : szHome) / ".local/share/Trash";
}

bool IsRealFolder(const fs::path& path) {
    std::error_code error;
    return fs::is_directory(fs::symlink_status(path, error));
}

bool MakeFolders(const fs::path& folder) {
    std::error_code error;
    const bool bNew = fs::create_directories(folder, error);
    if (bNew) fs::permissions(folder, fs::perms::owner_all, error);
    for (const char* szPart : {"files", "info"}) fs::create_directory(folder / szPart, error);
    return IsRealFolder(folder / "files") && IsRealFolder(folder / "info");
}

fs::path TopOfVolume(fs::path folder, dev_t device) {
    while (folder.has_relative_path() && DeviceOf(folder.parent_path()) == device)
        folder = folder.parent_path();
    return folder;
}

// A trash that all users share counts only if no user can put a link or a folder of his own in its place.
bool IsShared(const fs::path& folder) {
    struct stat status {};
    return lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && (status.st_mode & S_ISVTX) != 0;
}

std::optional<CTrash> FindTrash(const fs::path& parent) {
    const auto device = DeviceOf(parent);
    if (!device) return std::nullopt;
    const fs::path home = HomeTrash();
    if (MakeFolders(home) && DeviceOf(home) == device) return CTrash{home, {}};
    const fs::path top = TopOfVolume(parent, *device);
    const std::string strUser = std::to_string(getuid());
    if (IsShared(top / ".Trash") && MakeFolders(top / ".Trash" / strUser))
        return CTrash{top / ".Trash" / strUser, top};
    const fs::path own = top / (".Trash-" + strUser);
    std::error_code error;
    const bool bLink = fs::is_symlink(fs::symlink_status(own, error));
    if (!bLink && MakeFolders(own)) return CTrash{own, top};
    return std::nullopt;
}

// Says where the file came from; the note is there before the file, so that its name is taken.
bool WriteNote(const fs::path& note, const fs::path& origin) {
    const int nFile = open(note.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (nFile < 0) return false;
    const QByteArray text =
        "[Trash Info]\nPath=" + QByteArray::fromStdString(origin.string()).toPercentEncoding("/") +
        "\nDeletionDate=" + QDateTime::currentDateTime().toString("yyyy-MM-ddThh:mm:ss").toLatin1() + "\n";
    const bool bWritten =
        write(nFile, text.constData(), static_cast<std::size_t>(text.size())) == text.size();
    close(nFile);
    if (!bWritten) unlink(note.c_str());
    return bWritten;
}

}  // namespace

bool MoveToTrash(const std::string& strPath) {
    std::error_code error;
    const fs::path parent = fs::canonical(fs::path(strPath).parent_path(), error);
    const std::string strName = fs::path(strPath).filename().string();
    if (error || strName.empty()) return false;
    const auto trash = FindTrash(parent);
    if (!trash) return false;
    const fs::path origin =
        trash->top.empty() ? parent / strName : (parent / strName).lexically_relative(trash->top);
    const std::string strBase = strName.substr(0, kLongestName);
    for (int nCopy = 1; nCopy < kMostNames; ++nCopy) {
        const std::string strPlace = nCopy == 1 ? strBase : strBase + "." + std::to_string(nCopy);
        const fs::path note = trash->folder / "info" / (strPlace + ".trashinfo");
        const fs::path place = trash->folder / "files" / strPlace;
        if (fs::exists(fs::symlink_status(place, error)) || fs::exists(fs::symlink_status(note, error)))
            continue;
        if (!WriteNote(note, origin)) return false;
        if (rename(strPath.c_str(), place.c_str()) == 0) return true;
        unlink(note.c_str());
        return false;
    }
    return false;
}

#else

bool MoveToTrash(const std::string& strPath) {
    return QFile::moveToTrash(PathToQt(strPath));
}

#endif
