#include "window/LibraryFolders.h"

#include <dlfcn.h>
#include <elf.h>

#include <bit>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace fs = std::filesystem;

namespace {

constexpr const char* kFolderVariable = "FOTARIUM_LIBRARY_DIR";

class CLoadedLibrary : public CLibrary {
  public:
    explicit CLoadedLibrary(void* pHandle) : m_pHandle(pHandle) {}
    ~CLoadedLibrary() override { dlclose(m_pHandle); }
    [[nodiscard]] void* Find(const char* szFunction) override { return dlsym(m_pHandle, szFunction); }

  private:
    void* m_pHandle;
};

// The system's loader trusts the head of a file and dies of one that has been cut off: all that the head
// speaks of has to be there.
bool IsWhole(const fs::path& path) {
    std::error_code error;
    if (!fs::is_regular_file(path, error)) return false;
    const std::uintmax_t nSize = fs::file_size(path, error);
    std::ifstream file(path, std::ios::binary);
    Elf64_Ehdr head{};
    if (error || !file.read(reinterpret_cast<char*>(&head), sizeof head)) return false;
    constexpr unsigned char kOrder = std::endian::native == std::endian::little ? ELFDATA2LSB : ELFDATA2MSB;
    if (std::memcmp(head.e_ident, ELFMAG, SELFMAG) != 0 || head.e_ident[EI_CLASS] != ELFCLASS64 ||
        head.e_ident[EI_DATA] != kOrder || head.e_phentsize != sizeof(Elf64_Phdr))
        return false;
    if (head.e_phoff > nSize || !file.seekg(static_cast<std::streamoff>(head.e_phoff))) return false;
    for (int i = 0; i < head.e_phnum; ++i) {
        Elf64_Phdr part{};
        if (!file.read(reinterpret_cast<char*>(&part), sizeof part)) return false;
        if (part.p_offset > nSize || part.p_filesz > nSize - part.p_offset) return false;
    }
    return true;
}

std::unique_ptr<CLibrary> LoadFile(const fs::path& path) {
    void* const pHandle = IsWhole(path) ? dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL) : nullptr;
    return pHandle == nullptr ? nullptr : std::make_unique<CLoadedLibrary>(pHandle);
}

}  // namespace

std::unique_ptr<CLibrary> CLibraryFolders::Load(const std::string& strFileName) {
    const auto it = m_mapFiles.find(strFileName);
    if (it != m_mapFiles.end()) return LoadFile(it->second);
    std::error_code error;
    for (const std::string& strFolder : m_arrFolders) {
        // Whole, or the loader would look in the system's folders too.
        const fs::path path = fs::absolute(fs::path(strFolder) / strFileName, error);
        if (fs::exists(path, error)) return LoadFile(path);
    }
    return nullptr;
}

std::vector<std::string> FoldersOfLibraries(const std::string& strProgramFolder) {
    const char* const szNamed = std::getenv(kFolderVariable);
    // Whole from the start: the process moves from folder to folder.
    std::error_code error;
    if (szNamed != nullptr && *szNamed != '\0') return {fs::absolute(szNamed, error).string()};
    return {(fs::path(strProgramFolder) / "../lib/fotarium").lexically_normal().string(), strProgramFolder};
}

CLibraryFiles FilesOfLibraries(std::span<const CLibraryVariable> arrVariables) {
    CLibraryFiles mapFiles;
    std::error_code error;
    for (const CLibraryVariable& variable : arrVariables) {
        const char* const szNamed = std::getenv(variable.szVariable);
        if (szNamed != nullptr && *szNamed != '\0')
            mapFiles[variable.szFileName] = fs::absolute(szNamed, error).string();
    }
    return mapFiles;
}
