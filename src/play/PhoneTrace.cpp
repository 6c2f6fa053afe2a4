#include "play/PhoneTrace.h"

#include <algorithm>
#include <array>
#include <utility>

#include "engines/linkset/PhoneLibrary.h"
#include "play/Words.h"

namespace {

// The library's own functions, as the program has found them.
struct CFunctions {
    decltype(&::GetPhoneInfo) pGetPhoneInfo;
    decltype(&::ConnectToPhone) pConnectToPhone;
    decltype(&::DisconnectToPhone) pDisconnectToPhone;
    decltype(&::IsConnected) pIsConnected;
    decltype(&::ChangeUSBStream) pChangeUSBStream;
    decltype(&::GetNumResolution) pGetNumResolution;
    decltype(&::GetResolution) pGetResolution;
    decltype(&::GetThumbnailResolution) pGetThumbnailResolution;
    decltype(&::SendDummyPacket) pSendDummyPacket;
    decltype(&::StopDummyPacket) pStopDummyPacket;
    decltype(&::GetFileInfoListfromPhone) pGetFileInfoListfromPhone;
    decltype(&::GetFilefromPhone) pGetFilefromPhone;
    decltype(&::GetAvailableMemorySize) pGetAvailableMemorySize;
    decltype(&::GetTotalFileNum) pGetTotalFileNum;
    decltype(&::TransferFileToPhone) pTransferFileToPhone;
    decltype(&::GetSDCardStatus) pGetSDCardStatus;
};
CFunctions g_functions{};
CPhoneTrace* g_pTrace = nullptr;

std::string Word(const char* sz) {
    return Quote(sz);
}
template <class TNumber>
std::string Word(TNumber n) {
    return std::to_string(n);
}

template <class... TWords>
std::string Line(const char* szName, TWords... words) {
    std::string strLine = szName;
    ((strLine.append(1, ' ').append(Word(words))), ...);
    return strLine;
}

// Behind the call: its code and what has become of the out-values.
template <class... TWords>
std::int32_t Note(std::string strLine, std::int32_t nCode, TWords... words) {
    strLine.append(" = ").append(std::to_string(nCode));
    ((strLine.append(1, ' ').append(Word(words))), ...);
    if (g_pTrace != nullptr) g_pTrace->Note(std::move(strLine));
    return nCode;
}

std::int32_t TraceInfo(std::int32_t nPort, std::int32_t nModem, unsigned char bUsb, std::uint32_t* pIdentity,
                       std::int32_t nLimit) {
    const std::int32_t nCode = g_functions.pGetPhoneInfo(nPort, nModem, bUsb, pIdentity, nLimit);
    return Note(Line("GetPhoneInfo", nPort, nModem, bUsb, nLimit), nCode, *pIdentity);
}

std::int32_t TraceConnect(std::int32_t nPort, std::int32_t nModem, std::int32_t* pKind, std::int32_t* pMost,
                          unsigned char* pCard, unsigned char* pFetch, unsigned char* pNoRestart,
                          unsigned char bUsb) {
    const std::int32_t nCode =
        g_functions.pConnectToPhone(nPort, nModem, pKind, pMost, pCard, pFetch, pNoRestart, bUsb);
    return Note(Line("ConnectToPhone", nPort, nModem, bUsb), nCode, *pKind, *pMost, *pCard, *pFetch,
                *pNoRestart);
}

void TraceDisconnect() {
    g_functions.pDisconnectToPhone();
    if (g_pTrace != nullptr) g_pTrace->Note("DisconnectToPhone");
}

std::int32_t TraceIsConnected() {
    return Note("IsConnected", g_functions.pIsConnected());
}

std::int32_t TraceStream(std::int32_t nPort, std::int32_t nModem, unsigned char bUsb, std::int32_t nStream,
                         std::int32_t* pValue) {
    const std::int32_t nCode = g_functions.pChangeUSBStream(nPort, nModem, bUsb, nStream, pValue);
    return Note(Line("ChangeUSBStream", nPort, nModem, bUsb, nStream), nCode, *pValue);
}

std::int32_t TraceNumResolution(std::int32_t nClass, std::int32_t* pCount) {
    const std::int32_t nCode = g_functions.pGetNumResolution(nClass, pCount);
    return Note(Line("GetNumResolution", nClass), nCode, *pCount);
}

std::int32_t TraceResolution(std::int32_t nClass, std::int32_t nIndex, std::int32_t* pWidth,
                             std::int32_t* pHeight) {
    const std::int32_t nCode = g_functions.pGetResolution(nClass, nIndex, pWidth, pHeight);
    return Note(Line("GetResolution", nClass, nIndex), nCode, *pWidth, *pHeight);
}

std::int32_t TraceThumbnail(std::int32_t nClass, std::int32_t* pWidth, std::int32_t* pHeight) {
    const std::int32_t nCode = g_functions.pGetThumbnailResolution(nClass, pWidth, pHeight);
    return Note(Line("GetThumbnailResolution", nClass), nCode, *pWidth, *pHeight);
}

std::int32_t TraceSendDummy() {
    return Note("SendDummyPacket", g_functions.pSendDummyPacket());
}

void TraceStopDummy() {
    g_functions.pStopDummyPacket();
    if (g_pTrace != nullptr) g_pTrace->Note("StopDummyPacket");
}

std::int32_t TraceFileList(unsigned char bUsb, std::int32_t nClass, std::int32_t* pCount,
                           const char* szFolder, std::int32_t nOption) {
    const std::int32_t nCode = g_functions.pGetFileInfoListfromPhone(bUsb, nClass, pCount, szFolder, nOption);
    return Note(Line("GetFileInfoListfromPhone", bUsb, nClass, szFolder, nOption), nCode, *pCount);
}

std::int32_t TraceFile(std::int32_t nClass, std::uint32_t nId, const char* szPath, unsigned char byFetch) {
    const std::int32_t nCode = g_functions.pGetFilefromPhone(nClass, nId, szPath, byFetch);
    return Note(Line("GetFilefromPhone", nClass, nId, szPath, byFetch), nCode);
}

std::int32_t TraceMemory(std::int32_t nClass, std::uint32_t* pBytes) {
    const std::int32_t nCode = g_functions.pGetAvailableMemorySize(nClass, pBytes);
    return Note(Line("GetAvailableMemorySize", nClass), nCode, *pBytes);
}

std::int32_t TraceTotal(std::int32_t nClass, std::int32_t* pCount) {
    const std::int32_t nCode = g_functions.pGetTotalFileNum(nClass, pCount);
    return Note(Line("GetTotalFileNum", nClass), nCode, *pCount);
}

std::int32_t TraceTransfer(std::int32_t nClass, const char* szPath, const char* szName,
                           std::int32_t nStream) {
    const std::int32_t nCode = g_functions.pTransferFileToPhone(nClass, szPath, szName, nStream);
    return Note(Line("TransferFileToPhone", nClass, szPath, szName, nStream), nCode);
}

std::int32_t TraceCard(std::int32_t nClass) {
    return Note(Line("GetSDCardStatus", nClass), g_functions.pGetSDCardStatus(nClass));
}

// Keeps the library's function and gives the one that listens.
template <class TFunction>
void* Listen(TFunction& pKept, void* pFunction, TFunction pListener) {
    pKept = reinterpret_cast<TFunction>(pFunction);
    return reinterpret_cast<void*>(pListener);
}

void* ListenTo(const std::string& strName, void* pFunction) {
    using CListen = void* (*)(CFunctions&, void*);
    static constexpr std::array kListeners = std::to_array<std::pair<const char*, CListen>>({
        // clang-format off
        {"GetPhoneInfo", [](auto& to, void* p) { return Listen(to.pGetPhoneInfo, p, &TraceInfo); }},
        {"ConnectToPhone", [](auto& to, void* p) { return Listen(to.pConnectToPhone, p, &TraceConnect); }},
        {"DisconnectToPhone", [](auto& to, void* p) { return Listen(to.pDisconnectToPhone, p, &TraceDisconnect); }},
        {"IsConnected", [](auto& to, void* p) { return Listen(to.pIsConnected, p, &TraceIsConnected); }},
        {"ChangeUSBStream", [](auto& to, void* p) { return Listen(to.pChangeUSBStream, p, &TraceStream); }},
        {"GetNumResolution", [](auto& to, void* p) { return Listen(to.pGetNumResolution, p, &TraceNumResolution); }},
        {"GetResolution", [](auto& to, void* p) { return Listen(to.pGetResolution, p, &TraceResolution); }},
        {"GetThumbnailResolution", [](auto& to, void* p) { return Listen(to.pGetThumbnailResolution, p, &TraceThumbnail); }},
        {"SendDummyPacket", [](auto& to, void* p) { return Listen(to.pSendDummyPacket, p, &TraceSendDummy); }},
        {"StopDummyPacket", [](auto& to, void* p) { return Listen(to.pStopDummyPacket, p, &TraceStopDummy); }},
        {"GetFileInfoListfromPhone", [](auto& to, void* p) { return Listen(to.pGetFileInfoListfromPhone, p, &TraceFileList); }},
        {"GetFilefromPhone", [](auto& to, void* p) { return Listen(to.pGetFilefromPhone, p, &TraceFile); }},
        {"GetAvailableMemorySize", [](auto& to, void* p) { return Listen(to.pGetAvailableMemorySize, p, &TraceMemory); }},
        {"GetTotalFileNum", [](auto& to, void* p) { return Listen(to.pGetTotalFileNum, p, &TraceTotal); }},
        {"TransferFileToPhone", [](auto& to, void* p) { return Listen(to.pTransferFileToPhone, p, &TraceTransfer); }},
        {"GetSDCardStatus", [](auto& to, void* p) { return Listen(to.pGetSDCardStatus, p, &TraceCard); }},
        // clang-format on
    });
    const auto* const pListener = std::find_if(kListeners.begin(), kListeners.end(),
                                               [&](const auto& pair) { return strName == pair.first; });
    return pListener == kListeners.end() ? pFunction : pListener->second(g_functions, pFunction);
}

class CTracedLibrary : public CLibrary {
  public:
    explicit CTracedLibrary(std::unique_ptr<CLibrary> pLibrary) : m_pLibrary(std::move(pLibrary)) {}
    void* Find(const char* szFunction) override {
        void* const pFunction = m_pLibrary->Find(szFunction);
        return pFunction == nullptr ? nullptr : ListenTo(szFunction, pFunction);
    }

  private:
    std::unique_ptr<CLibrary> m_pLibrary;
};

}  // namespace

void CPhoneTrace::Note(std::string strCall) {
    m_arrCalls.push_back(std::move(strCall));
}

CPhoneTrace::~CPhoneTrace() {
    if (g_pTrace == this) g_pTrace = nullptr;
}

std::unique_ptr<CLibrary> CPhoneTrace::Wrap(std::unique_ptr<CLibrary> pLibrary) {
    if (pLibrary == nullptr) return nullptr;
    g_pTrace = this;
    return std::make_unique<CTracedLibrary>(std::move(pLibrary));
}
