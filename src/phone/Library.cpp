#include <cstdlib>
#include <exception>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "engines/linkset/PhoneLibrary.h"
#include "phone/FolderPhone.h"

// The contract's functions, on the phone in the folder that FOTARIUM_PHONE_FOLDER names.

namespace {

// Asked for at every call: another folder is another phone at the line. Null: no folder is named.
CFolderPhone* Phone() {
    struct CLine {
        std::string strNamed;
        CFolderPhone phone;
    };
    static std::optional<CLine> line;
    const char* const szFolder = std::getenv("FOTARIUM_PHONE_FOLDER");
    if (szFolder == nullptr || *szFolder == '\0') {
        line.reset();
        return nullptr;
    }
    // Whole from here on: the process moves from folder to folder.
    std::error_code error;
    if (!line || line->strNamed != szFolder)
        line.emplace(CLine{szFolder, CFolderPhone(std::filesystem::absolute(szFolder, error).string())});
    return &line->phone;
}

// What the call gives on the phone; nNone without one. No exception leaves the library, whose caller may be
// written in any language.
template <typename TCall>
int32_t Ask(int32_t nNone, TCall call) {
    try {
        CFolderPhone* const pPhone = Phone();
        return pPhone == nullptr ? nNone : call(*pPhone);
    } catch (const std::exception&) {
        return LINK_CONNECT_FAILED;
    }
}

template <typename TOut, typename TValue>
void Give(TOut* pOut, TValue value) {
    if (pOut != nullptr) *pOut = static_cast<TOut>(value);
}

std::string Text(const char* szText) {
    return szText == nullptr ? "" : szText;
}

// Asks for one value and gives it to the caller if that went well.
template <typename TOut, typename TCall>
int32_t AskFor(TOut* pOut, TCall call) {
    return Ask(LINK_CONNECT_FAILED_PORT, [&](CFolderPhone& phone) {
        TOut value{};
        const int nCode = call(phone, value);
        if (nCode == LINK_OK) Give(pOut, value);
        return nCode;
    });
}

template <typename TCall>
int32_t AskForSize(int32_t* pWidth, int32_t* pHeight, TCall call) {
    CSize size;
    const int32_t nCode =
        Ask(LINK_CONNECT_FAILED_PORT, [&](CFolderPhone& phone) { return call(phone, size); });
    if (nCode != LINK_OK) return nCode;
    Give(pWidth, size.cx);
    Give(pHeight, size.cy);
    return LINK_OK;
}

}  // namespace

// NOLINTBEGIN(readability-identifier-naming): the contract's names

int32_t GetPhoneInfo(int32_t port, int32_t /*modemPort*/, unsigned char /*usb*/, uint32_t* identity,
                     int32_t /*timeLimit*/) {
    return AskFor(identity, [&](CFolderPhone& phone, uint32_t& n) { return phone.GetPhoneInfo(port, n); });
}

int32_t ConnectToPhone(int32_t port, int32_t /*modemPort*/, int32_t* kind, int32_t* mostFiles,
                       unsigned char* hasCard, unsigned char* fetchOption, unsigned char* noRestart,
                       unsigned char /*usb*/) {
    return Ask(LINK_CONNECT_FAILED_PORT, [&](CFolderPhone& phone) {
        CPhoneFacts facts;
        const int nBefore = phone.ConnectToPhone(port, facts);
        if (nBefore != LINK_OK) return nBefore;
        Give(kind, facts.m_nKind);
        Give(mostFiles, facts.m_nMostFiles);
        Give(hasCard, facts.m_bCard);
        Give(fetchOption, facts.m_bFetchOption);
        Give(noRestart, facts.m_bNoRestart);
        return static_cast<int>(LINK_OK);
    });
}

void DisconnectToPhone() {
    Ask(LINK_OK, [](CFolderPhone& phone) {
        phone.DisconnectToPhone();
        return LINK_OK;
    });
}

int32_t IsConnected() {
    return Ask(1, [](CFolderPhone& phone) { return phone.IsConnected(); });
}

int32_t ChangeUSBStream(int32_t port, int32_t /*modemPort*/, unsigned char /*usb*/, int32_t /*stream*/,
                        int32_t* streamValue) {
    return AskFor(streamValue,
                  [&](CFolderPhone& phone, int32_t& n) { return phone.ChangeUSBStream(port, n); });
}

int32_t GetNumResolution(int32_t itemClass, int32_t* count) {
    return AskFor(count,
                  [&](CFolderPhone& phone, int32_t& n) { return phone.GetNumResolution(itemClass, n); });
}

int32_t GetResolution(int32_t itemClass, int32_t index, int32_t* width, int32_t* height) {
    return AskForSize(width, height, [&](CFolderPhone& phone, CSize& size) {
        return phone.GetResolution(itemClass, index, size);
    });
}

int32_t GetThumbnailResolution(int32_t itemClass, int32_t* width, int32_t* height) {
    return AskForSize(width, height, [&](CFolderPhone& phone, CSize& size) {
        return phone.GetThumbnailResolution(itemClass, size);
    });
}

int32_t SendDummyPacket() {
    return Ask(LINK_CONNECT_FAILED_PORT, [](CFolderPhone& phone) { return phone.SendDummyPacket(); });
}

void StopDummyPacket() {
    Ask(LINK_OK, [](CFolderPhone& phone) {
        phone.StopDummyPacket();
        return LINK_OK;
    });
}

int32_t GetFileInfoListfromPhone(unsigned char /*usb*/, int32_t itemClass, int32_t* count, const char* folder,
                                 int32_t /*option*/) {
    return AskFor(count, [&](CFolderPhone& phone, int32_t& n) {
        return phone.GetFileInfoListfromPhone(itemClass, n, Text(folder));
    });
}

int32_t GetFilefromPhone(int32_t itemClass, uint32_t fileId, const char* path, unsigned char fetchOption) {
    return Ask(LINK_CONNECT_FAILED_PORT, [&](CFolderPhone& phone) {
        return phone.GetFilefromPhone(itemClass, fileId, Text(path), fetchOption != 0);
    });
}

int32_t GetAvailableMemorySize(int32_t itemClass, uint32_t* bytes) {
    return AskFor(
        bytes, [&](CFolderPhone& phone, uint32_t& n) { return phone.GetAvailableMemorySize(itemClass, n); });
}

int32_t GetTotalFileNum(int32_t itemClass, int32_t* count) {
    return AskFor(count,
                  [&](CFolderPhone& phone, int32_t& n) { return phone.GetTotalFileNum(itemClass, n); });
}

int32_t TransferFileToPhone(int32_t itemClass, const char* path, const char* name, int32_t streamValue) {
    return Ask(LINK_CONNECT_FAILED_PORT, [&](CFolderPhone& phone) {
        return phone.TransferFileToPhone(itemClass, Text(path), Text(name), streamValue);
    });
}

int32_t GetSDCardStatus(int32_t itemClass) {
    return Ask(LINK_CONNECT_FAILED_PORT,
               [&](CFolderPhone& phone) { return phone.GetSDCardStatus(itemClass); });
}

// NOLINTEND(readability-identifier-naming)
