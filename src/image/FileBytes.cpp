#include "image/FileBytes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace {

class CFileCloser {
  public:
    explicit CFileCloser(int nFile) : m_nFile(nFile) {}
    ~CFileCloser() {
        if (m_nFile >= 0) close(m_nFile);
    }
    CFileCloser(const CFileCloser&) = delete;
    CFileCloser& operator=(const CFileCloser&) = delete;

  private:
    int m_nFile;
};

bool ReadAll(int nFile, std::uint8_t* pBits, std::size_t nSize) {
    while (nSize > 0) {
        const ssize_t nRead = read(nFile, pBits, nSize);
        if (nRead < 0 && errno == EINTR) continue;
        // A file that has become shorter meanwhile is a cut file.
        if (nRead <= 0) return false;
        pBits += nRead;
        nSize -= static_cast<std::size_t>(nRead);
    }
    return true;
}

}  // namespace

CSharedBytes ReadFileBytes(const std::string& strPath) {
    if (strPath.find('\0') != std::string::npos) return {};
    // Without O_NONBLOCK opening a pipe would wait for its other end.
    const int nFile = open(strPath.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    const CFileCloser closer(nFile);
    struct stat status {};
    if (nFile < 0 || fstat(nFile, &status) != 0 || !S_ISREG(status.st_mode) || status.st_size <= 0) return {};

    CSharedBytes bytes;
    if (!bytes.Allocate(static_cast<std::size_t>(status.st_size))) return {};
    if (!ReadAll(nFile, bytes.MutableData(), bytes.Size())) return {};
    return bytes;
}
