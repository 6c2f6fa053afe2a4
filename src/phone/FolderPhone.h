#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "phone/PhoneFacts.h"
#include "phone/PhoneFaults.h"
#include "phone/PhoneStore.h"

// A phone in a folder, behind the port kFolderPhonePort: the functions of engines/linkset/PhoneLibrary.h by
// their names, with its codes. What has to last stands in the folder; here stands what a line to a phone
// knows. A call that comes when it may not is answered by a code and written to log.txt in the folder.
class CFolderPhone {
  public:
    explicit CFolderPhone(const std::string& strFolder) : m_strFolder(strFolder), m_store(strFolder) {}

    int GetPhoneInfo(int nPort, std::uint32_t& nIdentity);
    int ConnectToPhone(int nPort, CPhoneFacts& facts);
    void DisconnectToPhone();
    int IsConnected();
    int ChangeUSBStream(int nPort, int& nStreamValue);
    int GetNumResolution(int nClass, int& nCount);
    int GetResolution(int nClass, int nIndex, CSize& size);
    int GetThumbnailResolution(int nClass, CSize& size);
    int SendDummyPacket();
    void StopDummyPacket() { m_bWaiting = false; }
    int GetFileInfoListfromPhone(int nClass, int& nCount, const std::string& strTargetFolder);
    int GetFilefromPhone(int nClass, std::uint32_t nFileId, const std::string& strPath, bool bFetchOption);
    int GetAvailableMemorySize(int nClass, std::uint32_t& nBytes);
    int GetTotalFileNum(int nClass, int& nCount);
    int TransferFileToPhone(int nClass, const std::string& strPath, const std::string& strName,
                            int nStreamValue);
    int GetSDCardStatus(int nClass);

  private:
    // What has to have happened before a function is called.
    enum class ENeed {
        Nothing,
        Line,      // ConnectToPhone
        Exchange,  // ChangeUSBStream too
    };
    // What answers a function before it begins: an ordered fault, a call out of order, a phone that is gone
    // or locked. nCode is the function's own code for a call out of order. Nothing if it may go on; m_facts
    // then is what the phone is now.
    std::optional<int> Refusal(const char* szFunction, ENeed need, int nCode);
    // The same for a function that is about a class of items, of which it has to be photos.
    std::optional<int> RefusalOf(int nClass, const char* szFunction, ENeed need, int nCode);
    // The same for a function that looks for the phone at a port.
    std::optional<int> RefusalAt(int nPort, const char* szFunction);
    // Brings m_facts up to date; false if that cannot be done.
    bool ReadNow();
    int OutOfOrder(const char* szFunction, int nCode, const std::string& strWhy) const;
    void Log(const std::string& strLine) const;

    std::string m_strFolder;
    CPhoneStore m_store;
    CPhoneFaults m_faults;
    std::optional<std::string> m_strFactsText;  // from which m_facts was made
    CPhoneFacts m_facts;
    CPhoneFacts m_factsOfLine;  // as they were when the line was opened
    bool m_bOpen = false;
    bool m_bStream = false;
    bool m_bWaiting = false;  // between SendDummyPacket and StopDummyPacket
    int m_nSilentPolls = 0;   // still to come
    bool m_bCardToldIn = false;
    bool m_bListed = false;
    std::map<std::uint32_t, CPhoneFile> m_mapFiles;  // as last listed
};
