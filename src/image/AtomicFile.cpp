#include "image/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace {

std::string FolderOf(const std::string& strPath) {
    const std::size_t nSlash = strPath.rfind('/');
    return nSlash == std::string::npos ? std::string() : strPath.substr(0, nSlash + 1);
}

// Follows links to the name that would be written, which need not exist. Empty for a ring of links.
std::string FollowLinks(std::string strPath) {
    constexpr int kMaxLinks = 40;
    for (int i = 0; i < kMaxLinks; ++i) {
        char szLink[4096];
        const ssize_t nLength = readlink(strPath.c_str(), szLink, sizeof(szLink));
        if (nLength < 0) return strPath;
        std::string strLink(szLink, static_cast<std::size_t>(nLength));
        if (!strLink.starts_with('/')) strLink.insert(0, FolderOf(strPath));
        strPath = std::move(strLink);
    }
    return {};
}

// The rights that a new file gets here.
mode_t NewFileRights() {
    const mode_t nMask = umask(0);
    umask(nMask);
    return 0666 & ~nMask;
}

}  // namespace

CAtomicFile::~CAtomicFile() {
    if (m_nFile >= 0) close(m_nFile);
    if (!m_strTemporary.empty()) unlink(m_strTemporary.c_str());
}

bool CAtomicFile::Open(const std::string& strPath) {
    if (m_nFile >= 0 || strPath.empty() || strPath.find('\0') != std::string::npos) return false;
    const std::string strTarget = FollowLinks(strPath);
    if (strTarget.empty() || strTarget.ends_with('/')) return false;

    // The temporary name is short and has nothing of the target's, whose name may be as long as names can be.
    std::string strTemporary = FolderOf(strTarget) + ".fotarium-XXXXXX";
    m_nFile = mkostemp(strTemporary.data(), O_CLOEXEC);
    if (m_nFile < 0) return false;
    m_strTemporary = strTemporary;
    m_strTarget = strTarget;
    return TakeOverRights(strTarget);
}

// Rights that the file system does not know (a memory card's) are no reason to fail.
bool CAtomicFile::TakeOverRights(const std::string& strTarget) {
    struct stat status {};
    if (stat(strTarget.c_str(), &status) != 0) {
        if (errno != ENOENT) return false;
        static_cast<void>(fchmod(m_nFile, NewFileRights()));
        return true;
    }
    // A folder, a pipe or a device must not be replaced, a protected file not against its owner's will.
    if (!S_ISREG(status.st_mode) || access(strTarget.c_str(), W_OK) != 0) return false;
    // Only root can give a file away; for anybody else the file becomes the one who writes it.
    const bool bOwned = fchown(m_nFile, status.st_uid, status.st_gid) == 0;
    static_cast<void>(fchmod(m_nFile, status.st_mode & (bOwned ? 07777 : 0777)));
    return true;
}

bool CAtomicFile::Write(std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        const ssize_t nWritten = write(m_nFile, bytes.data(), bytes.size());
        if (nWritten < 0 && errno == EINTR) continue;
        if (nWritten <= 0) return false;
        bytes = bytes.subspan(static_cast<std::size_t>(nWritten));
    }
    return true;
}

bool CAtomicFile::Commit() {
    return m_nFile >= 0 && PutInPlace(fsync(m_nFile) == 0);
}

bool CAtomicFile::CommitUnsynced() {
    return m_nFile >= 0 && PutInPlace(true);
}

bool CAtomicFile::PutInPlace(bool bWhole) {
    const bool bClosed = close(m_nFile) == 0;
    m_nFile = -1;
    if (!bWhole || !bClosed) return false;
    if (std::rename(m_strTemporary.c_str(), m_strTarget.c_str()) != 0) return false;
    m_strTemporary.clear();
    return true;
}
