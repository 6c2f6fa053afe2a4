#include "play/ScriptedLibraries.h"

#include "engines/linkset/PhoneLibrary.h"

namespace {

class CTableLibrary : public CLibrary {
  public:
    CTableLibrary(const std::map<std::string, void*>& mapFunctions, int& nLoaded)
        : m_mapFunctions(mapFunctions), m_nLoaded(nLoaded) {
        ++m_nLoaded;
    }
    ~CTableLibrary() override { --m_nLoaded; }
    [[nodiscard]] void* Find(const char* szFunction) override {
        const auto it = m_mapFunctions.find(szFunction);
        return it == m_mapFunctions.end() ? nullptr : it->second;
    }

  private:
    const std::map<std::string, void*>& m_mapFunctions;
    int& m_nLoaded;
};

}  // namespace

std::unique_ptr<CLibrary> CScriptedLibraries::Load(const std::string& strFileName) {
    m_arrAsked.push_back(strFileName);
    std::unique_ptr<CLibrary> pLibrary = LoadPlain(strFileName);
    return strFileName == PHONE_LIBRARY_NAME ? m_trace.Wrap(std::move(pLibrary)) : std::move(pLibrary);
}

std::unique_ptr<CLibrary> CScriptedLibraries::LoadPlain(const std::string& strFileName) {
    if (!m_mapFunctions.empty()) return std::make_unique<CTableLibrary>(m_mapFunctions, m_nLoaded);
    return CLibraryFolders(m_arrFolders, m_mapFiles).Load(strFileName);
}
