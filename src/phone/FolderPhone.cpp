#include "phone/FolderPhone.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <limits>

#include "engines/linkset/FileSet.h"
#include "engines/linkset/PhoneLibrary.h"
#include "engines/ports/DeviceNumbers.h"

namespace {

// A program that does not hand on what it was given is found out by a number that it would not guess.
constexpr int kStreamValue = 1605;

std::uint32_t Clipped(std::uint64_t n) {
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(n, std::numeric_limits<std::uint32_t>::max()));
}

}  // namespace

int CFolderPhone::GetPhoneInfo(int nPort, std::uint32_t& nIdentity) {
    if (const auto nCode = RefusalAt(nPort, __func__)) return *nCode;
    if (m_nSilentPolls > 0) {
        --m_nSilentPolls;
        return LINK_CONNECT_FAILED;
    }
    nIdentity = m_facts.m_nIdentity;
    return LINK_OK;
}

int CFolderPhone::ConnectToPhone(int nPort, CPhoneFacts& facts) {
    if (const auto nCode = RefusalAt(nPort, __func__)) return *nCode;
    if (m_bOpen) return OutOfOrder(__func__, LINK_CONNECT_FAILED, "the line is open already");
    if (m_nSilentPolls > 0) return LINK_CONNECT_FAILED;
    if (m_facts.m_bLocked) return LINK_PHONE_LOCKED;
    m_bOpen = true;
    m_bCardToldIn = m_facts.HasCardIn();
    facts = m_factsOfLine = m_facts;
    return LINK_OK;
}

void CFolderPhone::DisconnectToPhone() {
    if (m_bWaiting) OutOfOrder(__func__, LINK_OK, "comes before StopDummyPacket");
    if (m_bOpen && !m_factsOfLine.m_bNoRestart) m_nSilentPolls = m_factsOfLine.m_nRestartPolls;
    m_bOpen = m_bStream = m_bWaiting = m_bListed = false;
    m_mapFiles.clear();
}

int CFolderPhone::IsConnected() {
    if (const auto nCode = m_faults.Count(m_strFolder, __func__)) return *nCode;
    const int nAnswer = m_bOpen ? 0 : 1;
    return m_bWaiting ? OutOfOrder(__func__, nAnswer, "comes before StopDummyPacket") : nAnswer;
}

int CFolderPhone::ChangeUSBStream(int nPort, int& nStreamValue) {
    if (const auto nCode = RefusalAt(nPort, __func__)) return *nCode;
    if (m_nSilentPolls > 0) return LINK_CONNECT_FAILED;
    m_bStream = true;
    nStreamValue = kStreamValue;
    return LINK_OK;
}

int CFolderPhone::GetNumResolution(int nClass, int& nCount) {
    // Other codes would not be taken for a failure.
    if (const auto nCode = RefusalOf(nClass, __func__, ENeed::Line, LINK_CONNECT_FAILED)) return *nCode;
    nCount = static_cast<int>(m_facts.m_arrSizes.size());
    return LINK_OK;
}

int CFolderPhone::GetResolution(int nClass, int nIndex, CSize& size) {
    if (const auto nCode = RefusalOf(nClass, __func__, ENeed::Line, LINK_SIZES_FAILED)) return *nCode;
    const auto nPlace = static_cast<std::size_t>(nIndex);
    if (nIndex < 0 || nPlace >= m_facts.m_arrSizes.size())
        return OutOfOrder(__func__, LINK_SIZES_FAILED, "there is no size " + std::to_string(nIndex));
    size = m_facts.m_arrSizes[nPlace];
    return LINK_OK;
}

int CFolderPhone::GetThumbnailResolution(int nClass, CSize& size) {
    if (const auto nCode = RefusalOf(nClass, __func__, ENeed::Line, LINK_SIZES_FAILED)) return *nCode;
    size = m_facts.m_sizeThumbnail;
    return LINK_OK;
}

int CFolderPhone::SendDummyPacket() {
    if (const auto nCode = Refusal(__func__, ENeed::Exchange, LINK_CONNECT_FAILED)) return *nCode;
    m_bWaiting = true;
    return LINK_OK;
}

int CFolderPhone::GetFileInfoListfromPhone(int nClass, int& nCount, const std::string& strTargetFolder) {
    if (const auto nCode = RefusalOf(nClass, __func__, ENeed::Exchange, LINK_LIST_FAILED)) return *nCode;
    const auto arrFiles = m_store.List(m_facts.HasCardIn());
    if (!arrFiles) return LINK_LIST_FAILED;
    m_bCardToldIn = m_facts.HasCardIn();
    m_bListed = true;
    m_mapFiles.clear();
    if (arrFiles->empty()) return LINK_NO_FILES;
    CFILESet set;
    set.m_strFileName = (std::filesystem::path(strTargetFolder) / "FILE.Dat").string();
    for (const CPhoneFile& file : *arrFiles) {
        m_mapFiles[file.m_nId] = file;
        set.m_nDataArray.push_back({file.m_nId, Clipped(file.m_nBytes), file.m_bOnCard ? 1 : 0,
                                    file.m_bClosed ? 1 : 0, file.m_strName, 0});
    }
    if (strTargetFolder.empty() || !set.Write()) return LINK_TARGET_FAILED;
    nCount = static_cast<int>(arrFiles->size());
    return LINK_OK;
}

int CFolderPhone::GetFilefromPhone(int nClass, std::uint32_t nFileId, const std::string& strPath,
                                   bool bFetchOption) {
    if (const auto nCode = RefusalOf(nClass, __func__, ENeed::Exchange, LINK_TAKE_FAILED)) return *nCode;
    if (!m_bListed) return OutOfOrder(__func__, LINK_TAKE_FAILED, "the files have not been listed");
    if (bFetchOption != m_factsOfLine.m_bFetchOption)
        return OutOfOrder(__func__, LINK_TAKE_FAILED, "the fetch option is not that of ConnectToPhone");
    const auto itFile = m_mapFiles.find(nFileId);
    if (itFile == m_mapFiles.end())
        return OutOfOrder(__func__, LINK_FILE_FAILED, "there is no file " + std::to_string(nFileId));
    const CPhoneFile& file = itFile->second;
    if (file.m_bClosed) return OutOfOrder(__func__, LINK_FILE_FAILED, file.m_strName + " is closed");
    if (file.m_bOnCard && !m_facts.HasCardIn()) {
        m_bCardToldIn = false;
        return LINK_CARD_GONE;
    }
    return m_store.Take(file, strPath);
}

int CFolderPhone::GetAvailableMemorySize(int nClass, std::uint32_t& nBytes) {
    if (const auto nCode = RefusalOf(nClass, __func__, ENeed::Exchange, LINK_MEMORY_FAILED)) return *nCode;
    nBytes = m_facts.m_nFreeMemory;
    return LINK_OK;
}

int CFolderPhone::GetTotalFileNum(int nClass, int& nCount) {
    const bool bOthers = nClass == LINK_ITEM_OTHER;
    if (const auto nCode =
            RefusalOf(bOthers ? LINK_ITEM_PHOTO : nClass, __func__, ENeed::Exchange, LINK_INFO_FAILED))
        return *nCode;
    if (bOthers) {
        nCount = m_facts.m_nOthers;
        return LINK_OK;
    }
    const auto arrFiles = m_store.List(false);
    if (!arrFiles) return LINK_INFO_FAILED;
    nCount = static_cast<int>(arrFiles->size());
    return LINK_OK;
}

int CFolderPhone::TransferFileToPhone(int nClass, const std::string& strPath, const std::string& strName,
                                      int nStreamValue) {
    if (const auto nCode = RefusalOf(nClass, __func__, ENeed::Exchange, LINK_SEND_FAILED)) return *nCode;
    if (nStreamValue != kStreamValue)
        return OutOfOrder(__func__, LINK_SEND_FAILED, "the stream value is not that of ChangeUSBStream");
    const auto nBytes = CPhoneStore::BytesOf(strPath);
    if (!nBytes) return LINK_SOURCE_FAILED;
    const auto arrFiles = m_store.List(false);
    if (!arrFiles) return LINK_SEND_FAILED;
    // A file of the same name makes room for the new one.
    const auto itOld = std::ranges::find(*arrFiles, strName, &CPhoneFile::m_strName);
    const bool bReplaces = itOld != arrFiles->end();
    const std::uint64_t nRoom = m_facts.m_nFreeMemory + (bReplaces ? itOld->m_nBytes : 0);
    const std::int64_t nOthers = m_facts.m_nKind == 6 ? 0 : m_facts.m_nOthers;
    const std::int64_t nFiles = static_cast<std::int64_t>(arrFiles->size()) + nOthers + (bReplaces ? 0 : 1);
    if (*nBytes > nRoom || (m_facts.m_nMostFiles > 0 && nFiles > m_facts.m_nMostFiles))
        return LINK_PHONE_FULL;
    if (!m_store.Put(strPath, strName)) return LINK_SEND_FAILED;
    const std::string strLeft = std::to_string(Clipped(nRoom - *nBytes));
    if (!WriteFact(m_strFolder, "memory", strLeft)) Log("the free memory cannot be written to phone.txt");
    return LINK_OK;
}

int CFolderPhone::GetSDCardStatus(int nClass) {
    if (const auto nCode = RefusalOf(nClass, __func__, ENeed::Exchange, LINK_INFO_FAILED)) return *nCode;
    if (m_bCardToldIn == m_facts.HasCardIn()) return LINK_OK;
    m_bCardToldIn = m_facts.HasCardIn();
    return LINK_CARD_GONE;
}

std::optional<int> CFolderPhone::Refusal(const char* szFunction, ENeed need, int nCode) {
    const std::optional<int> nFault = m_faults.Count(m_strFolder, szFunction);
    if (const std::string strLine = m_faults.TakeError(); !strLine.empty())
        Log("faults: \"" + strLine + "\" is not FUNCTION N CODE");
    if (nFault) return nFault;
    if (m_bWaiting) return OutOfOrder(szFunction, LINK_EXCHANGE_IMPOSSIBLE, "comes before StopDummyPacket");
    if (need != ENeed::Nothing && !m_bOpen) return OutOfOrder(szFunction, nCode, "the line is not open");
    if (need == ENeed::Exchange && !m_bStream)
        return OutOfOrder(szFunction, nCode, "ChangeUSBStream has not been called");
    if (!ReadNow()) return LINK_INFO_FAILED;
    if (need != ENeed::Nothing && m_facts.m_bLocked) return LINK_PHONE_LOCKED;
    return std::nullopt;
}

std::optional<int> CFolderPhone::RefusalOf(int nClass, const char* szFunction, ENeed need, int nCode) {
    const std::optional<int> nRefusal = Refusal(szFunction, need, nCode);
    if (nRefusal || nClass == LINK_ITEM_PHOTO) return nRefusal;
    return OutOfOrder(szFunction, nCode, "there is no class " + std::to_string(nClass));
}

std::optional<int> CFolderPhone::RefusalAt(int nPort, const char* szFunction) {
    // In a folder that is no phone there is nothing at the port, and no place for a log.
    if (nPort != kFolderPhonePort || !HasFacts(m_strFolder)) return LINK_CONNECT_FAILED_PORT;
    return Refusal(szFunction, ENeed::Nothing, LINK_CONNECT_FAILED);
}

bool CFolderPhone::ReadNow() {
    const std::optional<std::string> strText = ReadFactsText(m_strFolder);
    if (!strText) return false;
    if (strText == m_strFactsText) return true;
    std::string strError;
    const std::optional<CPhoneFacts> facts = ParseFacts(*strText, strError);
    if (!facts) {
        Log(strError);
        return false;
    }
    m_facts = *facts;
    m_strFactsText = strText;
    return true;
}

int CFolderPhone::OutOfOrder(const char* szFunction, int nCode, const std::string& strWhy) const {
    Log(std::string(szFunction) + " " + std::to_string(nCode) + ": " + strWhy);
    return nCode;
}

void CFolderPhone::Log(const std::string& strLine) const {
    std::ofstream(std::filesystem::path(m_strFolder) / "log.txt", std::ios::app) << strLine << '\n';
}
