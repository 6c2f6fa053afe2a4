#pragma once

#include <map>
#include <string>
#include <vector>

#include "play/PhoneTrace.h"
#include "window/LibraryFolders.h"

// Real libraries from folders that are told, or, once a function has been added, one made of such functions
// in the place of every other.
class CScriptedLibraries : public CLibraries {
  public:
    void SetFolders(std::vector<std::string> arrFolders) { m_arrFolders = std::move(arrFolders); }
    // Another file for the library of that name, see CLibraryFolders; an empty path for none at all.
    void SetFile(const std::string& strFileName, const std::string& strPath) {
        m_mapFiles[strFileName] = strPath;
    }
    void ForgetFile(const std::string& strFileName) { m_mapFiles.erase(strFileName); }
    void SetFiles(CLibraryFiles mapFiles) { m_mapFiles = std::move(mapFiles); }
    void AddFunction(const std::string& strName, void* pFunction) { m_mapFunctions[strName] = pFunction; }
    void RemoveFunctions() { m_mapFunctions.clear(); }
    // What the program has loaded and not let go.
    int LoadedCount() const { return m_nLoaded; }
    // What it has called in the phone's library.
    CPhoneTrace& PhoneTrace() { return m_trace; }
    // The names of the files that it has asked for.
    const std::vector<std::string>& Asked() const { return m_arrAsked; }

    [[nodiscard]] std::unique_ptr<CLibrary> Load(const std::string& strFileName) override;

  private:
    std::vector<std::string> m_arrFolders;
    [[nodiscard]] std::unique_ptr<CLibrary> LoadPlain(const std::string& strFileName);

    CPhoneTrace m_trace;
    CLibraryFiles m_mapFiles;
    std::map<std::string, void*> m_mapFunctions;
    std::vector<std::string> m_arrAsked;
    int m_nLoaded = 0;
};
