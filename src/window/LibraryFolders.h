#pragma once

#include <map>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "window/Libraries.h"

// Other files in the place of libraries, each a whole path by the name of its library.
using CLibraryFiles = std::map<std::string, std::string>;

// The libraries in a few folders of this machine, for every platform to use. The first folder that has a file
// of the name counts, and nothing is searched for beyond them; a library that another file is named for is
// that file or none.
class CLibraryFolders : public CLibraries {
  public:
    explicit CLibraryFolders(std::vector<std::string> arrFolders, CLibraryFiles mapFiles = {})
        : m_arrFolders(std::move(arrFolders)), m_mapFiles(std::move(mapFiles)) {}
    [[nodiscard]] std::unique_ptr<CLibrary> Load(const std::string& strFileName) override;

  private:
    std::vector<std::string> m_arrFolders;
    CLibraryFiles m_mapFiles;
};

// Where a program that lies in that folder has its libraries: in lib/fotarium beside it, or with the program.
// The environment variable FOTARIUM_LIBRARY_DIR names one folder in the place of both.
std::vector<std::string> FoldersOfLibraries(const std::string& strProgramFolder);

// The environment variable that names another file for the library of one name.
struct CLibraryVariable {
    const char* szFileName;
    const char* szVariable;
};
inline constexpr const char* kPhoneLibraryVariable = "FOTARIUM_PHONE_LIBRARY";

// What those variables name at this moment.
CLibraryFiles FilesOfLibraries(std::span<const CLibraryVariable> arrVariables);
