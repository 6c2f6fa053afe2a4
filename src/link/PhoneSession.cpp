#include "link/PhoneSession.h"

#include <algorithm>
#include <filesystem>

#include "engines/linkset/UserSet.h"
#include "engines/ports/PortSearch.h"
#include "link/PortSelectDlg.h"
#include "resources/PhoneTexts.h"
#include "resources/Texts.h"

// Without a folder of its own the program remembers a phone for as long as the system keeps such files.
std::string CPhoneSession::InstallFolder() const {
    std::string strFolder = m_env.folders.InstallFolder();
    if (!strFolder.empty()) return strFolder;
    std::error_code error;
    return std::filesystem::temp_directory_path(error).string();
}

std::string CPhoneSession::DataFile(std::string_view strName) const {
    return InstallFolder() + m_env.folders.Separator() + std::string(strName);
}

std::string CPhoneSession::WithRestart(std::string strText, const char* szBetween) const {
    if (Restarts()) strText.append(szBetween).append(kTextRestart);
    return strText;
}

EBoxAnswer CPhoneSession::Show(std::string strText, const char* szTitle, EBoxIcon icon,
                               EBoxButtons buttons) const {
    return m_env.boxes.Show({std::move(strText), szTitle, icon, buttons});
}

void CPhoneSession::LoseConnection() {
    m_state.m_bConnected = false;
    m_env.events.Tell(EEditEvent::PhoneLost);
}

void CPhoneSession::ReportLinkError(int nCode) {
    const auto* const pRow = std::find_if(kLinkCodes.begin(), kLinkCodes.end(),
                                          [nCode](const CLinkCodeRow& row) { return row.nCode == nCode; });
    if (pRow == kLinkCodes.end()) return;
    Show(pRow->bTail ? WithRestart(pRow->szText) : pRow->szText, kTitleLinkCode, EBoxIcon::Exclamation);
    if (!pRow->bKeepsUp) LoseConnection();
}

// The phone's facts stay: the next connect replaces them.
bool CPhoneSession::CheckPhone() {
    std::uint32_t nIdentity = 0;
    const int nCode = m_calls.GetPhoneInfo(m_state, nIdentity);
    if (nCode != LINK_OK) {
        ReportLinkError(nCode);
        return false;
    }
    if (nIdentity == m_state.m_nPhoneId) return true;
    Show(kTextOtherPhone, kTitleNotice);
    m_env.events.Tell(EEditEvent::PhoneLost);
    return false;
}

// --- the line ---

// A machine whose ports cannot be listed has none.
int CPhoneSession::FindPhonePort() {
    const CWaitScope wait(m_env.wait);
    CPortInfoArray arrPorts = m_env.ports.List().value_or(CPortInfoArray{});
    DropModems(arrPorts);
    const auto probe = [this](const std::string& strName) { return m_env.ports.Probe(strName); };
    const CPortSearch search = SearchPhonePort(std::move(arrPorts), probe, {kTextPortUsable, kTextPortBusy});
    const auto choose = [this](std::span<const std::string> lines) -> std::optional<std::string> {
        CPortSelectDlg dialog({lines.begin(), lines.end()}, m_env.boxes);
        if (m_env.modals.Run(dialog) != CDialog::kDialogOk) return std::nullopt;
        return dialog.Chosen();
    };
    const CPhonePort port = ConcludePortSearch(search, choose);
    if (port.nPort == kPortChoiceCancelled) return kPortChoiceCancelled;
    m_state.m_bUsbPort = port.bUsb ? 1 : 0;
    if (port.nPort == kNoPort)
        Show(kTextNoPorts, kTitleNotice, EBoxIcon::Exclamation);
    else if (port.bAskModem)
        m_state.m_nModemPort = ModemPortOf(m_env.ports.ModemEntry());
    return port.nPort;
}

// --- User.Dat ---

bool CPhoneSession::ReadKnownPhone(std::uint32_t nIdentity) {
    CUserSet users;
    users.m_strFileName = DataFile("User.Dat");
    // What cannot be read holds no record.
    static_cast<void>(users.Open());
    const auto it = std::ranges::find_if(users.m_nDataArray,
                                         [&](const CUserItem& item) { return item.m_nUserId == nIdentity; });
    if (it == users.m_nDataArray.end()) return false;
    m_state.m_nMaxFiles = it->m_nUserMaxFiles;
    m_state.m_nThumbWidth = it->m_nUserThumbWidth;
    m_state.m_nThumbHeight = it->m_nUserThumbHeight;
    m_state.m_arrPhoneSizes = it->m_arrUserSizes;
    m_state.m_bHasCard = it->m_nUserHasCard != 0 ? 1 : 0;
    m_state.m_bFetchOption = it->m_nUserFetchOption != 0 ? 1 : 0;
    m_state.m_bNoRestart = it->m_nUserNoRestart != 0 ? 1 : 0;
    return true;
}

// A phone that cannot be remembered is asked again the next time.
void CPhoneSession::RememberPhone() {
    CUserSet users;
    users.m_strFileName = DataFile("User.Dat");
    static_cast<void>(users.Open());
    users.m_nDataArray.push_back({.m_nUserId = m_state.m_nPhoneId,
                                  .m_nUserMaxFiles = m_state.m_nMaxFiles,
                                  .m_nUserThumbWidth = m_state.m_nThumbWidth,
                                  .m_nUserThumbHeight = m_state.m_nThumbHeight,
                                  .m_nUserHasCard = m_state.m_bHasCard,
                                  .m_nUserFetchOption = m_state.m_bFetchOption,
                                  .m_nUserNoRestart = m_state.m_bNoRestart,
                                  .m_arrUserSizes = m_state.m_arrPhoneSizes});
    static_cast<void>(users.Write());
}
