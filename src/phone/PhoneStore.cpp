#include "phone/PhoneStore.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <span>
#include <utility>

#include "engines/linkset/PhoneLibrary.h"
#include "image/AtomicFile.h"

namespace fs = std::filesystem;

namespace {

constexpr char kInner[] = "inner";
constexpr char kCard[] = "card";
constexpr std::size_t kPieceBytes = std::size_t{256} << 10U;

// An open file or folder; -1 for none.
class CHandle {
  public:
    explicit CHandle(int nFile = -1) : m_nFile(nFile) {}
    CHandle(CHandle&& other) noexcept : m_nFile(std::exchange(other.m_nFile, -1)) {}
    CHandle& operator=(CHandle&& other) noexcept {
        std::swap(m_nFile, other.m_nFile);
        return *this;
    }
    ~CHandle() {
        if (m_nFile >= 0) close(m_nFile);
    }
    int Get() const { return m_nFile; }
    explicit operator bool() const { return m_nFile >= 0; }

  private:
    int m_nFile;
};

// Opened for reading, if it is a plain file. Without O_NONBLOCK a pipe would keep the caller waiting.
CHandle OpenPlainFile(const std::string& strPath, int nFlags, struct stat& status) {
    if (strPath.find('\0') != std::string::npos) return CHandle();
    CHandle file(open(strPath.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | nFlags));
    if (!file || fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode)) return CHandle();
    return file;
}

// The FNV-1a sum, a byte for the memory and then the name.
std::uint32_t IdOf(const CPhoneFile& file) {
    constexpr std::uint32_t kBasis = 2166136261U;
    constexpr std::uint32_t kPrime = 16777619U;
    std::uint32_t n = (kBasis ^ (file.m_bOnCard ? 1U : 0U)) * kPrime;
    for (const char c : file.m_strName) n = (n ^ static_cast<unsigned char>(c)) * kPrime;
    return n;
}

// Adds the files of one memory, sorted. A memory without a folder has none.
bool AddFiles(const fs::path& folder, bool bOnCard, std::vector<CPhoneFile>& arrFiles) {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(folder, error);
    if (status.type() == fs::file_type::not_found || status.type() == fs::file_type::symlink) return true;
    const std::size_t nBefore = arrFiles.size();
    const std::size_t nCut = folder.native().size() + 1;
    for (fs::recursive_directory_iterator it(folder, error), itEnd; !error && it != itEnd;
         it.increment(error)) {
        std::error_code errorOfOne;
        if (it->symlink_status(errorOfOne).type() != fs::file_type::regular) continue;
        const std::uintmax_t nBytes = it->file_size(errorOfOne);
        if (!errorOfOne) arrFiles.push_back({it->path().native().substr(nCut), bOnCard, false, 0, nBytes});
    }
    std::ranges::sort(std::span(arrFiles).subspan(nBefore), {}, &CPhoneFile::m_strName);
    return !error;
}

std::set<std::string> ClosedNames(const fs::path& path) {
    std::set<std::string> setNames;
    std::ifstream file(path);
    for (std::string strName; std::getline(file, strName);) setNames.insert(strName);
    return setNames;
}

// The parts of a name; none if one of them is empty or would lead out of its folder.
std::vector<std::string> PartsOf(const std::string& strName) {
    if (strName.size() > CPhoneStore::kLongestName || strName.find('\0') != std::string::npos) return {};
    std::vector<std::string> arrParts;
    for (std::size_t nStart = 0, nEnd = 0; nEnd != std::string::npos; nStart = nEnd + 1) {
        nEnd = strName.find('/', nStart);
        const std::string strPart = strName.substr(nStart, nEnd - nStart);
        if (strPart.empty() || strPart == "." || strPart == "..") return {};
        arrParts.push_back(strPart);
    }
    return arrParts;
}

// The folder of that name in the folder, made if there is none; nothing for a link or a file.
CHandle Enter(const CHandle& folder, const std::string& strName) {
    if (mkdirat(folder.Get(), strName.c_str(), 0777) != 0 && errno != EEXIST) return CHandle();
    return CHandle(openat(folder.Get(), strName.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

// A file in the phone's folder that is gone with the object unless it has been moved to its place.
class CIncomingFile {
  public:
    explicit CIncomingFile(const std::string& strFolder) : m_strPath(strFolder + "/.incoming-XXXXXX") {
        m_file = CHandle(mkostemp(m_strPath.data(), O_CLOEXEC));
        if (!m_file) m_strPath.clear();
    }
    CIncomingFile(const CIncomingFile&) = delete;
    CIncomingFile& operator=(const CIncomingFile&) = delete;
    ~CIncomingFile() {
        if (!m_strPath.empty()) unlink(m_strPath.c_str());
    }
    explicit operator bool() const { return static_cast<bool>(m_file); }
    bool Write(std::span<const std::uint8_t> bytes) const {
        while (!bytes.empty()) {
            const ssize_t nWritten = write(m_file.Get(), bytes.data(), bytes.size());
            if (nWritten < 0 && errno == EINTR) continue;
            if (nWritten <= 0) return false;
            bytes = bytes.subspan(static_cast<std::size_t>(nWritten));
        }
        return true;
    }
    bool MoveTo(const CHandle& folder, const std::string& strName) {
        constexpr mode_t kReadable = 0644;
        if (fchmod(m_file.Get(), kReadable) != 0 ||
            renameat(AT_FDCWD, m_strPath.c_str(), folder.Get(), strName.c_str()) != 0)
            return false;
        m_strPath.clear();
        return true;
    }

  private:
    std::string m_strPath;
    CHandle m_file;
};

}  // namespace

std::optional<std::vector<CPhoneFile>> CPhoneStore::List(bool bCardIn) const {
    std::vector<CPhoneFile> arrFiles;
    const fs::path folder(m_strFolder);
    if (!AddFiles(folder / kInner, false, arrFiles)) return std::nullopt;
    if (bCardIn && !AddFiles(folder / kCard, true, arrFiles)) return std::nullopt;
    const std::set<std::string> setClosed = ClosedNames(folder / "closed");
    std::set<std::uint32_t> setIds;
    for (CPhoneFile& file : arrFiles) {
        file.m_bClosed = setClosed.contains(file.m_strName);
        file.m_nId = IdOf(file);
        while (!setIds.insert(file.m_nId).second) ++file.m_nId;
    }
    return arrFiles;
}

int CPhoneStore::Take(const CPhoneFile& file, const std::string& strPath) {
    struct stat status {};
    const fs::path folder = fs::path(m_strFolder) / (file.m_bOnCard ? kCard : kInner);
    const CHandle source = OpenPlainFile((folder / file.m_strName).native(), O_NOFOLLOW, status);
    if (!source) return LINK_FILE_FAILED;
    CAtomicFile target;
    if (!target.Open(strPath)) return LINK_TARGET_FAILED;
    bool bWritten = true;
    const bool bCopied = EachPiece(
        source.Get(), [&](std::span<const std::uint8_t> bytes) { return bWritten = target.Write(bytes); });
    if (!bWritten) return LINK_TARGET_FAILED;
    if (!bCopied) return LINK_FILE_FAILED;
    return target.CommitUnsynced() ? LINK_OK : LINK_TARGET_FAILED;
}

std::optional<std::uint64_t> CPhoneStore::BytesOf(const std::string& strPath) {
    struct stat status {};
    if (!OpenPlainFile(strPath, 0, status)) return std::nullopt;
    return static_cast<std::uint64_t>(status.st_size);
}

bool CPhoneStore::Put(const std::string& strPath, const std::string& strName) {
    const std::vector<std::string> arrParts = PartsOf(strName);
    struct stat status {};
    const CHandle source = OpenPlainFile(strPath, 0, status);
    if (arrParts.empty() || !source) return false;
    CIncomingFile incoming(m_strFolder);
    if (!incoming || !EachPiece(source.Get(), [&](auto bytes) { return incoming.Write(bytes); }))
        return false;
    CHandle folder(open(m_strFolder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (folder) folder = Enter(folder, kInner);
    for (std::size_t i = 0; folder && i + 1 < arrParts.size(); ++i) folder = Enter(folder, arrParts[i]);
    return folder && incoming.MoveTo(folder, arrParts.back());
}

template <typename TWrite>
bool CPhoneStore::EachPiece(int nFile, TWrite write) {
    // Kept for the next file: fresh memory would cost each of them its page faults.
    if (!m_pBuffer) m_pBuffer = std::make_unique_for_overwrite<std::uint8_t[]>(kPieceBytes);
    for (;;) {
        const ssize_t nRead = read(nFile, m_pBuffer.get(), kPieceBytes);
        if (nRead < 0 && errno == EINTR) continue;
        if (nRead <= 0) return nRead == 0;
        if (!write(std::span<const std::uint8_t>(m_pBuffer.get(), static_cast<std::size_t>(nRead))))
            return false;
    }
}
