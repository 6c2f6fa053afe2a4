#include "link/PhoneCalls.h"

namespace {

constexpr std::int32_t kStream = 1;
constexpr std::int32_t kListOption = 1;

template <class TFunction, class... TArguments>
int Call(TFunction* pFunction, TArguments... arguments) {
    return pFunction == nullptr ? int{LINK_CONNECT_FAILED} : int{pFunction(arguments...)};
}

}  // namespace

bool CPhoneCalls::Load(CLibraries& libraries) {
    std::unique_ptr<CLibrary> pLibrary = libraries.Load(PHONE_LIBRARY_NAME);
    if (pLibrary == nullptr) return false;
    // Functions of a former library are not to be called any more; but it may be at work behind them still.
    std::vector<std::unique_ptr<CLibrary>> arrLoaded = std::move(m_arrLoaded);
    *this = {};
    m_arrLoaded = std::move(arrLoaded);
    m_arrLoaded.push_back(std::move(pLibrary));
    return true;
}

template <class TFunction>
void CPhoneCalls::Find(TFunction& pFunction, const char* szName) {
    pFunction = m_arrLoaded.empty() ? nullptr : reinterpret_cast<TFunction>(m_arrLoaded.back()->Find(szName));
}

void CPhoneCalls::FindForConnect() {
    Find(m_pGetPhoneInfo, "GetPhoneInfo");
    Find(m_pConnectToPhone, "ConnectToPhone");
    Find(m_pDisconnectToPhone, "DisconnectToPhone");
    Find(m_pGetNumResolution, "GetNumResolution");
    Find(m_pGetResolution, "GetResolution");
    Find(m_pSendDummyPacket, "SendDummyPacket");
    Find(m_pStopDummyPacket, "StopDummyPacket");
    Find(m_pGetThumbnailResolution, "GetThumbnailResolution");
}

void CPhoneCalls::FindForExchange() {
    Find(m_pChangeUSBStream, "ChangeUSBStream");
    Find(m_pIsConnected, "IsConnected");
}

void CPhoneCalls::FindForTake() {
    Find(m_pGetFileInfoListfromPhone, "GetFileInfoListfromPhone");
    Find(m_pGetFilefromPhone, "GetFilefromPhone");
}

void CPhoneCalls::FindForSend() {
    Find(m_pGetAvailableMemorySize, "GetAvailableMemorySize");
    Find(m_pTransferFileToPhone, "TransferFileToPhone");
    Find(m_pGetTotalFileNum, "GetTotalFileNum");
}

void CPhoneCalls::FindForCard() {
    Find(m_pGetSDCardStatus, "GetSDCardStatus");
}

// --- the functions ---

int CPhoneCalls::GetPhoneInfo(const CPhoneState& state, std::uint32_t& nIdentity) const {
    return Call(m_pGetPhoneInfo, state.m_nPort, state.m_nModemPort, state.m_bUsbPort, &nIdentity,
                std::int32_t{kTimeLimit});
}

int CPhoneCalls::ConnectToPhone(int nPort, CPhoneState& state, std::int32_t& nKind,
                                std::int32_t& nMostFiles) const {
    return Call(m_pConnectToPhone, std::int32_t{nPort}, state.m_nModemPort, &nKind, &nMostFiles,
                &state.m_bHasCard, &state.m_bFetchOption, &state.m_bNoRestart, state.m_bUsbPort);
}

void CPhoneCalls::DisconnectToPhone() const {
    if (m_pDisconnectToPhone != nullptr) m_pDisconnectToPhone();
}

bool CPhoneCalls::NeedsConnect() const {
    return m_pIsConnected == nullptr || m_pIsConnected() != 0;
}

int CPhoneCalls::ChangeUsbStream(CPhoneState& state) const {
    state.m_nUsbStream = 0;
    if (m_pChangeUSBStream == nullptr) return LINK_OK;
    return m_pChangeUSBStream(state.m_nPort, state.m_nModemPort, state.m_bUsbPort, kStream,
                              &state.m_nUsbStream);
}

int CPhoneCalls::GetNumResolution(std::int32_t& nCount) const {
    return Call(m_pGetNumResolution, std::int32_t{LINK_ITEM_PHOTO}, &nCount);
}

int CPhoneCalls::GetResolution(int nIndex, std::int32_t& nWidth, std::int32_t& nHeight) const {
    return Call(m_pGetResolution, std::int32_t{LINK_ITEM_PHOTO}, std::int32_t{nIndex}, &nWidth, &nHeight);
}

int CPhoneCalls::GetThumbnailResolution(CPhoneState& state) const {
    return Call(m_pGetThumbnailResolution, std::int32_t{LINK_ITEM_PHOTO}, &state.m_nThumbWidth,
                &state.m_nThumbHeight);
}

int CPhoneCalls::SendDummyPacket() const {
    return Call(m_pSendDummyPacket);
}

void CPhoneCalls::StopDummyPacket() const {
    if (m_pStopDummyPacket != nullptr) m_pStopDummyPacket();
}

int CPhoneCalls::GetFileList(const CPhoneState& state, std::int32_t& nCount,
                             const std::string& strFolder) const {
    return Call(m_pGetFileInfoListfromPhone, state.m_bUsbPort, std::int32_t{LINK_ITEM_PHOTO}, &nCount,
                strFolder.c_str(), kListOption);
}

int CPhoneCalls::GetFile(const CPhoneState& state, std::uint32_t nFileId, const std::string& strPath) const {
    return Call(m_pGetFilefromPhone, std::int32_t{LINK_ITEM_PHOTO}, nFileId, strPath.c_str(),
                state.m_bFetchOption);
}

int CPhoneCalls::GetAvailableMemory(std::uint32_t& nBytes) const {
    return Call(m_pGetAvailableMemorySize, std::int32_t{LINK_ITEM_PHOTO}, &nBytes);
}

int CPhoneCalls::GetTotalFiles(int nItemClass, std::int32_t& nCount) const {
    return Call(m_pGetTotalFileNum, std::int32_t{nItemClass}, &nCount);
}

int CPhoneCalls::Transfer(const CPhoneState& state, const std::string& strPath,
                          const std::string& strName) const {
    return Call(m_pTransferFileToPhone, std::int32_t{LINK_ITEM_PHOTO}, strPath.c_str(), strName.c_str(),
                state.m_nUsbStream);
}

int CPhoneCalls::GetCardStatus() const {
    return Call(m_pGetSDCardStatus, std::int32_t{LINK_ITEM_PHOTO});
}
