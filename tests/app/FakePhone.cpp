#include "app/FakePhone.h"

#include <algorithm>
#include <fstream>
#include <iterator>

CFakePhone& CFakePhone::Now() {
    static CFakePhone phone;
    return phone;
}

std::int32_t CFakePhone::CodeOf(const char* szFunction) const {
    if (fnCode)
        if (const std::int32_t nCode = fnCode(szFunction); nCode != LINK_OK) return nCode;
    const auto it = mapCodes.find(szFunction);
    return it == mapCodes.end() ? LINK_OK : it->second;
}

namespace {

std::int32_t Info(std::int32_t, std::int32_t, unsigned char, std::uint32_t* pIdentity, std::int32_t) {
    const std::int32_t nCode = CFakePhone::Now().CodeOf("GetPhoneInfo");
    if (nCode == LINK_OK) *pIdentity = CFakePhone::Now().nIdentity;
    return nCode;
}

std::int32_t Connect(std::int32_t, std::int32_t, std::int32_t* pKind, std::int32_t* pMost,
                     unsigned char* pCard, unsigned char* pFetch, unsigned char* pNoRestart, unsigned char) {
    const CFakePhone& phone = CFakePhone::Now();
    *pNoRestart = phone.bNoRestart;
    if (const std::int32_t nCode = phone.CodeOf("ConnectToPhone"); nCode != LINK_OK) return nCode;
    *pKind = phone.nKind;
    *pMost = phone.nMostFiles;
    *pCard = phone.bHasCard;
    *pFetch = 1;
    return LINK_OK;
}

void Disconnect() {}

std::int32_t Connected() {
    return CFakePhone::Now().nConnected;
}

std::int32_t Stream(std::int32_t, std::int32_t, unsigned char, std::int32_t, std::int32_t* pValue) {
    *pValue = 5;
    return CFakePhone::Now().CodeOf("ChangeUSBStream");
}

std::int32_t NumResolution(std::int32_t, std::int32_t* pCount) {
    *pCount = CFakePhone::Now().nSizes;
    return CFakePhone::Now().CodeOf("GetNumResolution");
}

std::int32_t Resolution(std::int32_t, std::int32_t nIndex, std::int32_t* pWidth, std::int32_t* pHeight) {
    const CFakePhone& phone = CFakePhone::Now();
    const CSize size = phone.arrSizes[static_cast<std::size_t>(nIndex) % phone.arrSizes.size()];
    *pWidth = size.cx;
    *pHeight = size.cy;
    return phone.CodeOf("GetResolution");
}

std::int32_t Thumbnail(std::int32_t, std::int32_t* pWidth, std::int32_t* pHeight) {
    *pWidth = CFakePhone::Now().sizeThumb.cx;
    *pHeight = CFakePhone::Now().sizeThumb.cy;
    return CFakePhone::Now().CodeOf("GetThumbnailResolution");
}

std::int32_t SendDummy() {
    return CFakePhone::Now().CodeOf("SendDummyPacket");
}

void StopDummy() {}

std::int32_t FileList(unsigned char, std::int32_t, std::int32_t* pCount, const char* szFolder, std::int32_t) {
    const CFakePhone& phone = CFakePhone::Now();
    CFILESet files;
    files.m_strFileName = std::string(szFolder) + "/FILE.Dat";
    files.m_nDataArray = phone.arrFiles;
    *pCount = static_cast<std::int32_t>(phone.arrFiles.size());
    const std::int32_t nCode = phone.CodeOf("GetFileInfoListfromPhone");
    return nCode == LINK_OK && !files.Write() ? LINK_LIST_FAILED : nCode;
}

std::int32_t File(std::int32_t, std::uint32_t nId, const char* szPath, unsigned char) {
    const std::int32_t nCode = CFakePhone::Now().CodeOf("GetFilefromPhone");
    if (nCode == LINK_OK) std::ofstream(szPath, std::ios::binary) << "file " << nId;
    return nCode;
}

std::int32_t Memory(std::int32_t, std::uint32_t* pBytes) {
    *pBytes = CFakePhone::Now().nFree;
    return CFakePhone::Now().CodeOf("GetAvailableMemorySize");
}

std::int32_t Total(std::int32_t nClass, std::int32_t* pCount) {
    *pCount = nClass == LINK_ITEM_PHOTO ? CFakePhone::Now().nStored : 1;
    return CFakePhone::Now().CodeOf("GetTotalFileNum");
}

std::int32_t Transfer(std::int32_t, const char* szPath, const char* szName, std::int32_t) {
    const std::int32_t nCode = CFakePhone::Now().CodeOf("TransferFileToPhone");
    std::ifstream file(szPath, std::ios::binary);
    if (nCode == LINK_OK) CFakePhone::Now().mapSent[szName] = {std::istreambuf_iterator<char>(file), {}};
    return nCode;
}

std::int32_t Card(std::int32_t) {
    return CFakePhone::Now().CodeOf("GetSDCardStatus");
}

}  // namespace

void CFakePhone::PlugIn(CScriptedLibraries& libraries, const std::vector<std::string>& arrLacking) {
    libraries.RemoveFunctions();
    const auto add = [&](const char* szName, auto pFunction) {
        if (std::ranges::find(arrLacking, szName) == arrLacking.end())
            libraries.AddFunction(szName, reinterpret_cast<void*>(pFunction));
    };
    add("GetPhoneInfo", &Info);
    add("ConnectToPhone", &Connect);
    add("DisconnectToPhone", &Disconnect);
    add("IsConnected", &Connected);
    add("ChangeUSBStream", &Stream);
    add("GetNumResolution", &NumResolution);
    add("GetResolution", &Resolution);
    add("GetThumbnailResolution", &Thumbnail);
    add("SendDummyPacket", &SendDummy);
    add("StopDummyPacket", &StopDummy);
    add("GetFileInfoListfromPhone", &FileList);
    add("GetFilefromPhone", &File);
    add("GetAvailableMemorySize", &Memory);
    add("GetTotalFileNum", &Total);
    add("TransferFileToPhone", &Transfer);
    add("GetSDCardStatus", &Card);
}
