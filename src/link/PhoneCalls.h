#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "engines/linkset/PhoneLibrary.h"
#include "link/PhoneState.h"
#include "window/Libraries.h"

// The phone library with its functions, by the names in its contract. Each is looked up when its step begins,
// and a step finds out what the library lacks. A function that is not there fails as a connection does, and
// one without a code does nothing. All of them block until the library is done.
class CPhoneCalls {
  public:
    // How long the phone may take to tell who it is, in milliseconds.
    static constexpr int kTimeLimit = 3000;

    // False if there is no such library; one that was loaded before then stays.
    [[nodiscard]] bool Load(CLibraries& libraries);

    void FindForConnect();
    void FindForExchange();  // what take and send have in common
    void FindForTake();
    void FindForSend();
    void FindForCard();
    bool CanList() const { return m_pGetFileInfoListfromPhone != nullptr; }
    bool CanTransfer() const { return m_pTransferFileToPhone != nullptr; }

    // Each gives a code of the contract.
    int GetPhoneInfo(const CPhoneState& state, std::uint32_t& nIdentity) const;
    // Fills card, fetch option and restart of the state; kind and most files go where told.
    int ConnectToPhone(int nPort, CPhoneState& state, std::int32_t& nKind, std::int32_t& nMostFiles) const;
    void DisconnectToPhone() const;
    bool NeedsConnect() const;
    // LINK_OK, and nothing happens, in a library without it.
    int ChangeUsbStream(CPhoneState& state) const;
    int GetNumResolution(std::int32_t& nCount) const;
    int GetResolution(int nIndex, std::int32_t& nWidth, std::int32_t& nHeight) const;
    int GetThumbnailResolution(CPhoneState& state) const;
    int SendDummyPacket() const;
    void StopDummyPacket() const;
    int GetFileList(const CPhoneState& state, std::int32_t& nCount, const std::string& strFolder) const;
    int GetFile(const CPhoneState& state, std::uint32_t nFileId, const std::string& strPath) const;
    int GetAvailableMemory(std::uint32_t& nBytes) const;
    int GetTotalFiles(int nItemClass, std::int32_t& nCount) const;
    int Transfer(const CPhoneState& state, const std::string& strPath, const std::string& strName) const;
    int GetCardStatus() const;

  private:
    template <class TFunction>
    void Find(TFunction& pFunction, const char* szName);

    std::vector<std::unique_ptr<CLibrary>> m_arrLoaded;  // the last one is in use; none is let go
    decltype(&::GetPhoneInfo) m_pGetPhoneInfo = nullptr;
    decltype(&::ConnectToPhone) m_pConnectToPhone = nullptr;
    decltype(&::DisconnectToPhone) m_pDisconnectToPhone = nullptr;
    decltype(&::IsConnected) m_pIsConnected = nullptr;
    decltype(&::ChangeUSBStream) m_pChangeUSBStream = nullptr;
    decltype(&::GetNumResolution) m_pGetNumResolution = nullptr;
    decltype(&::GetResolution) m_pGetResolution = nullptr;
    decltype(&::GetThumbnailResolution) m_pGetThumbnailResolution = nullptr;
    decltype(&::SendDummyPacket) m_pSendDummyPacket = nullptr;
    decltype(&::StopDummyPacket) m_pStopDummyPacket = nullptr;
    decltype(&::GetFileInfoListfromPhone) m_pGetFileInfoListfromPhone = nullptr;
    decltype(&::GetFilefromPhone) m_pGetFilefromPhone = nullptr;
    decltype(&::GetAvailableMemorySize) m_pGetAvailableMemorySize = nullptr;
    decltype(&::GetTotalFileNum) m_pGetTotalFileNum = nullptr;
    decltype(&::TransferFileToPhone) m_pTransferFileToPhone = nullptr;
    decltype(&::GetSDCardStatus) m_pGetSDCardStatus = nullptr;
};
