#include "qt/QtDrives.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>
#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>

#include "qt/FileNames.h"
#include "qt/Text.h"

namespace {

constexpr const char* kSampleVariable = "FOTARIUM_SAMPLE_DRIVE";

// Where systems hang in what the user plugs in.
constexpr std::array<std::string_view, 4> kMediaFolders = {"/media/", "/run/media/", "/mnt/", "/Volumes/"};

constexpr std::array<std::string_view, 15> kNetworkTypes = {
    "nfs",        "nfs4",          "cifs",           "smb3",  "smbfs",  "afs",  "afpfs", "ncpfs",
    "fuse.sshfs", "fuse.smbnetfs", "fuse.curlftpfs", "davfs", "webdav", "ceph", "9p"};

// These hold no files of the user's wherever they hang.
constexpr std::array<std::string_view, 12> kPseudoTypes = {
    "tmpfs", "devtmpfs", "ramfs",  "overlay", "squashfs",    "proc",
    "sysfs", "autofs",   "devpts", "cgroup2", "fuse.portal", "fuse.gvfsd-fuse"};

template <std::size_t N>
bool Holds(const std::array<std::string_view, N>& arrNames, std::string_view strName) {
    return std::find(arrNames.begin(), arrNames.end(), strName) != arrNames.end();
}

std::string Closed(std::string strPath) {
    const auto cSeparator = static_cast<char>(std::filesystem::path::preferred_separator);
    if (strPath.empty() || strPath.back() != cSeparator) strPath += cSeparator;
    return strPath;
}

std::string Lettered(const std::string& strName, char cLetter) {
    return strName + " (" + cLetter + ":)";
}

bool IsNetwork(const CVolume& volume) {
    return Holds(kNetworkTypes, volume.strType);
}

bool IsUsersVolume(const CVolume& volume) {
    if (Holds(kPseudoTypes, volume.strType)) return false;
    return IsNetwork(volume) ||
           std::any_of(kMediaFolders.begin(), kMediaFolders.end(), [&](std::string_view strFolder) {
               return volume.strPath.size() > strFolder.size() && volume.strPath.starts_with(strFolder);
           });
}

std::string NameOf(const CVolume& volume) {
    if (!volume.strName.empty()) return volume.strName;
    const std::string& str = volume.strPath;
    return str.substr(str.rfind('/', str.size() - 2) + 1, str.size() - 2 - str.rfind('/', str.size() - 2));
}

}  // namespace

std::vector<CDrive> NameDrives(const std::string& strHome, std::vector<CVolume> arrVolumes,
                               const std::string& strSamples) {
    std::vector<CDrive> arrDrives = {{'C', Closed(strHome), Lettered("主目录", 'C'), ETreeIcon::Home},
                                     {'D', "/", Lettered("文件系统", 'D'), ETreeIcon::Disk}};
    for (CVolume& volume : arrVolumes) volume.strPath = Closed(volume.strPath);
    std::erase_if(arrVolumes, [](const CVolume& volume) { return !IsUsersVolume(volume); });
    std::sort(arrVolumes.begin(), arrVolumes.end(),
              [](const CVolume& a, const CVolume& b) { return a.strPath < b.strPath; });
    char cLetter = 'E';
    const char cLast = strSamples.empty() ? 'Z' : 'Y';
    for (const CVolume& volume : arrVolumes) {
        if (cLetter > cLast) break;
        // A volume that is mounted over another is the one that is seen.
        if (volume.strPath == arrDrives.back().strRoot || volume.strPath == arrDrives.front().strRoot)
            continue;
        arrDrives.push_back({cLetter, volume.strPath, Lettered(NameOf(volume), cLetter),
                             IsNetwork(volume) ? ETreeIcon::Network : ETreeIcon::Removable});
        ++cLetter;
    }
    if (!strSamples.empty())
        arrDrives.push_back({cLetter, Closed(strSamples), Lettered("示例", cLetter), ETreeIcon::Disk});
    return arrDrives;
}

std::string CQtDrives::ComputerName() {
    return "我的电脑";
}

#ifdef Q_OS_WIN

std::vector<CDrive> CQtDrives::List() {
    std::vector<CDrive> arrDrives;
    for (const QFileInfo& info : QDir::drives()) {
        const std::string strPath = info.absolutePath().toStdString();
        const char cLetter = strPath.front();
        const std::string strName = QStorageInfo(info.absolutePath()).name().toStdString();
        arrDrives.push_back({cLetter, std::string{cLetter} + ":\\",
                             Lettered(strName.empty() ? "磁盘" : strName, cLetter), ETreeIcon::Disk});
    }
    return arrDrives;
}

#else

std::vector<CDrive> CQtDrives::List() {
    std::vector<CVolume> arrVolumes;
    for (const QStorageInfo& info : QStorageInfo::mountedVolumes())
        if (info.isValid() && info.isReady() && !info.isRoot())
            arrVolumes.push_back({ResolvePath(info.rootPath()), info.name().toStdString(),
                                  info.fileSystemType().toStdString()});
    std::string strSamples = qgetenv(kSampleVariable).toStdString();
    if (!strSamples.empty() && !QFileInfo(PathToQt(strSamples)).isDir()) strSamples.clear();
    return NameDrives(ResolvePath(QDir::homePath()), std::move(arrVolumes), strSamples);
}

#endif
