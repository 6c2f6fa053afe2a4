#include "play/ScriptedPorts.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "window/FolderPhone.h"

namespace {

// What the system calls the port: "COM7" in "COM Adapter (COM7)". Empty if the name does not tell.
std::string_view NameIn(std::string_view strFriendlyName) {
    const std::size_t nBegin = strFriendlyName.rfind("COM");
    const std::size_t nEnd = strFriendlyName.rfind(')');
    const bool bTells = nBegin != std::string_view::npos && nEnd != std::string_view::npos && nBegin < nEnd;
    return bTells ? strFriendlyName.substr(nBegin, nEnd - nBegin) : std::string_view{};
}

}  // namespace

CScriptedPorts::CScriptedPorts() {
    const char* const szBefore = std::getenv(kPhoneFolderVariable);
    if (szBefore != nullptr) m_strFolderBefore = szBefore;
}

CScriptedPorts::~CScriptedPorts() {
    if (m_bFolderPhone) SetPhoneFolder(m_strFolderBefore);
}

std::vector<std::pair<std::string, EPortProbe>>::iterator CScriptedPorts::FindPort(
    const std::string& strFriendlyName) {
    return std::find_if(m_arrPorts.begin(), m_arrPorts.end(),
                        [&](const auto& port) { return port.first == strFriendlyName; });
}

void CScriptedPorts::SetPort(const std::string& strFriendlyName, EPortProbe probe) {
    const auto it = FindPort(strFriendlyName);
    if (it == m_arrPorts.end())
        m_arrPorts.emplace_back(strFriendlyName, probe);
    else
        it->second = probe;
}

bool CScriptedPorts::RemovePort(const std::string& strFriendlyName) {
    const auto it = FindPort(strFriendlyName);
    if (it == m_arrPorts.end()) return false;
    m_arrPorts.erase(it);
    return true;
}

void CScriptedPorts::PlugFolderPhone(const std::string& strFolder) {
    m_bFolderPhone = true;
    SetPhoneFolder(strFolder);
}

std::optional<std::vector<CPortInfo>> CScriptedPorts::List() {
    if (m_bRefuseList) return std::nullopt;
    std::vector<CPortInfo> arrPorts;
    for (const auto& [strFriendlyName, probe] : m_arrPorts) arrPorts.push_back({{}, strFriendlyName});
    if (std::optional<CPortInfo> phone; m_bFolderPhone && (phone = FindFolderPhone()))
        arrPorts.push_back(*std::move(phone));
    return arrPorts;
}

EPortProbe CScriptedPorts::Probe(const std::string& strName) {
    m_arrProbed.push_back(strName);
    constexpr std::string_view kDevices = R"(\\.\)";
    const std::string_view strPort =
        std::string_view(strName).substr(strName.starts_with(kDevices) ? kDevices.size() : 0);
    for (const auto& [strFriendlyName, probe] : m_arrPorts)
        if (!strPort.empty() && NameIn(strFriendlyName) == strPort) return probe;
    const std::optional<CPortInfo> phone = m_bFolderPhone ? FindFolderPhone() : std::nullopt;
    return phone && NameIn(phone->m_strFriendlyName) == strPort ? EPortProbe::Free : EPortProbe::Absent;
}
