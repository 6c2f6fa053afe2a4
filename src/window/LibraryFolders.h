#pragma once

#include <string>
#include <utility>
#include <vector>

#include "window/Libraries.h"

// The libraries in a few folders of this machine, for every platform to use. The first folder that has a file
// of the name counts, and nothing is searched for beyond them.
class CLibraryFolders : public CLibraries {
  public:
    explicit CLibraryFolders(std::vector<std::string> arrFolders) : m_arrFolders(std::move(arrFolders)) {}
    [[nodiscard]] std::unique_ptr<CLibrary> Load(const std::string& strFileName) override;

  private:
    std::vector<std::string> m_arrFolders;
};

// Where a program that lies in that folder has its libraries: in lib/fotarium beside it, or with the program.
// The environment variable FOTARIUM_LIBRARY_DIR names one folder in the place of both.
std::vector<std::string> FoldersOfLibraries(const std::string& strProgramFolder);
