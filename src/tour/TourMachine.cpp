#include "tour/TourMachine.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <string_view>

#include "engines/linkset/PhoneLibrary.h"
#include "tour/Screen.h"
#include "window/FolderPhone.h"

namespace {

// The library calls plain functions: who listens to them, and what they stand before.
CTourMachine* g_pMachine = nullptr;
decltype(&::GetFilefromPhone) g_pGetFile = nullptr;
decltype(&::TransferFileToPhone) g_pTransfer = nullptr;

std::int32_t GetFile(std::int32_t nClass, std::uint32_t nFileId, const char* szPath, unsigned char bFetch) {
    if (g_pMachine != nullptr) g_pMachine->OnMove();
    return g_pGetFile(nClass, nFileId, szPath, bFetch);
}

std::int32_t Transfer(std::int32_t nClass, const char* szPath, const char* szName, std::int32_t nStream) {
    if (g_pMachine != nullptr) g_pMachine->OnMove();
    return g_pTransfer(nClass, szPath, szName, nStream);
}

template <class TFunction>
void* Replace(void* pFound, TFunction& pFunction, TFunction pOwn) {
    pFunction = reinterpret_cast<TFunction>(pFound);
    return pFound == nullptr ? nullptr : reinterpret_cast<void*>(pOwn);
}

class CWatchedLibrary : public CLibrary {
  public:
    explicit CWatchedLibrary(std::unique_ptr<CLibrary> pLibrary) : m_pLibrary(std::move(pLibrary)) {}
    void* Find(const char* szFunction) override {
        void* const pFound = m_pLibrary->Find(szFunction);
        const std::string_view strFunction(szFunction);
        if (strFunction == "GetFilefromPhone") return Replace(pFound, g_pGetFile, &GetFile);
        if (strFunction == "TransferFileToPhone") return Replace(pFound, g_pTransfer, &Transfer);
        return pFound;
    }

  private:
    std::unique_ptr<CLibrary> m_pLibrary;
};

bool WriteLine(const QString& strPath, const QString& strLine, QIODevice::OpenMode mode) {
    QFile file(strPath);
    const QByteArray bytes = strLine.toUtf8() + '\n';
    return file.open(mode) && file.write(bytes) == bytes.size();
}

}  // namespace

// The last line about a fact counts.
bool CTourPhone::SetFact(const QString& strFact) const {
    return WriteLine(strFolder + "/phone.txt", strFact, QIODevice::Append);
}

bool CTourPhone::SetFault(const QString& strFault) const {
    return WriteLine(strFolder + "/faults", strFault, QIODevice::WriteOnly);
}

bool CTourPhone::Has(const QString& strName) const {
    return QFileInfo::exists(strFolder + "/inner/" + strName);
}

CTourMachine::~CTourMachine() {
    if (g_pMachine == this) g_pMachine = nullptr;
}

void CTourMachine::PlugIn(const CTourPhone& phone) {
    SetPhoneFolder(QFile::encodeName(phone.strFolder).toStdString());
}

void CTourMachine::PlugOut() {
    SetPhoneFolder({});
}

void CTourMachine::OnMove() {
    m_arrMoves.push_back(LookAtScreen());
}

std::optional<std::vector<CPortInfo>> CTourMachine::List() {
    std::vector<CPortInfo> arrPorts;
    if (!m_strPlainPort.empty()) arrPorts.push_back({{}, m_strPlainPort});
    if (const auto phone = FindFolderPhone()) arrPorts.push_back(*phone);
    return arrPorts;
}

EPortProbe CTourMachine::Probe(const std::string& strName) {
    const bool bPlain =
        !m_strPlainPort.empty() && m_strPlainPort.find("(" + strName + ")") != std::string::npos;
    return bPlain ? EPortProbe::Free : m_ports.Probe(strName);
}

std::unique_ptr<CLibrary> CTourMachine::Load(const std::string& strFileName) {
    std::unique_ptr<CLibrary> pLibrary = m_libraries.Load(strFileName);
    if (pLibrary == nullptr || strFileName != PHONE_LIBRARY_NAME) return pLibrary;
    g_pMachine = this;
    return std::make_unique<CWatchedLibrary>(std::move(pLibrary));
}
