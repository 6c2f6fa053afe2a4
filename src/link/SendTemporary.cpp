#include "link/SendTemporary.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

// A new file of that name, whatever stands there; -1 if that cannot be.
int CreateAnew(const std::string& strPath) {
    constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    constexpr mode_t kRights = 0644;
    const bool bLinkOrFile = ::unlink(strPath.c_str()) == 0 || errno == ENOENT;
    return bLinkOrFile ? ::open(strPath.c_str(), kFlags, kRights) : -1;
}

bool WriteAll(int nFile, std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        const ssize_t nWritten = ::write(nFile, bytes.data(), bytes.size());
        if (nWritten < 0 && errno == EINTR) continue;
        if (nWritten <= 0) return false;
        bytes = bytes.subspan(static_cast<std::size_t>(nWritten));
    }
    return true;
}

}  // namespace

bool CSendTemporary::WriteTo(const std::string& strFolder, std::span<const std::uint8_t> bytes) {
    m_strPath = strFolder;
    if (m_strPath.back() != m_cSeparator) m_strPath += m_cSeparator;
    m_strPath += kName;
    const int nFile = CreateAnew(m_strPath);
    if (nFile < 0) return false;
    const bool bWritten = WriteAll(nFile, bytes);
    if (::close(nFile) == 0 && bWritten) return true;
    Remove();
    return false;
}

bool CSendTemporary::Write(std::span<const std::uint8_t> bytes) {
    // A process whose folder has been deleted has none.
    if (!m_strFolder.empty() && WriteTo(m_strFolder, bytes)) return true;
    std::error_code error;
    const fs::path own = fs::temp_directory_path(error);
    return !error && WriteTo(own.string(), bytes);
}

void CSendTemporary::Remove() {
    ::unlink(m_strPath.c_str());
}
