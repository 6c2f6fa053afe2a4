#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

// A folder of a test's own, gone with the object.
class CTempFolder {
  public:
    CTempFolder() {
        std::string strName = std::filesystem::temp_directory_path() / "fotarium-XXXXXX";
        m_path = ::mkdtemp(strName.data());
    }
    ~CTempFolder() {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }
    CTempFolder(const CTempFolder&) = delete;
    CTempFolder& operator=(const CTempFolder&) = delete;

    std::string Path() const { return m_path.string(); }
    std::string Path(const std::string& strName) const { return (m_path / strName).string(); }

    std::string Write(const std::string& strName, const std::string& strBytes) const {
        std::ofstream(Path(strName), std::ios::binary) << strBytes;
        return Path(strName);
    }
    // What lies in the folder, so that nothing left over escapes.
    std::set<std::string> Names() const {
        std::set<std::string> setNames;
        for (const auto& entry : std::filesystem::directory_iterator(m_path))
            setNames.insert(entry.path().filename().string());
        return setNames;
    }

  private:
    std::filesystem::path m_path;
};

inline std::string ReadBytes(const std::string& strPath) {
    std::ifstream file(strPath, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
