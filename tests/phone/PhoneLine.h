#pragma once

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>

#include "engines/linkset/FileSet.h"
#include "engines/linkset/PhoneLibrary.h"
#include "support/TempFolder.h"

// The library of the phone in a folder, loaded as the program does, and such a phone, made by the tool.
class CPhoneLine : public testing::Test {
  protected:
    static constexpr int kPort = 200;

    CPhoneLine() { setenv("FOTARIUM_PHONE_FOLDER", m_strPhone.c_str(), 1); }
    ~CPhoneLine() override {
        unsetenv("FOTARIUM_PHONE_FOLDER");
        dlclose(m_pLibrary);
    }
    void SetUp() override { ASSERT_EQ(Tool("new '" + m_strPhone + "'"), 0); }

    // Runs the tool; what it prints goes to m_strPrinted. Gives its exit status.
    int Tool(const std::string& strWords) {
        const std::string strOut = m_folder.Path("printed");
        const std::string strCall = "'" FOTARIUM_PHONE_TOOL "' " + strWords + " >'" + strOut + "' 2>&1";
        const int nStatus = std::system(strCall.c_str());
        m_strPrinted = ReadBytes(strOut);
        return WEXITSTATUS(nStatus);
    }
    void Fact(const std::string& strNameAndValue) {
        ASSERT_EQ(Tool("fact '" + m_strPhone + "' " + strNameAndValue), 0) << m_strPrinted;
    }
    std::string FactOf(const std::string& strName) {
        EXPECT_EQ(Tool("fact '" + m_strPhone + "' " + strName), 0) << m_strPrinted;
        return m_strPrinted.substr(0, m_strPrinted.size() - 1);
    }
    void PutFile(const std::string& strPlace, const std::string& strBytes) const {
        const std::filesystem::path path = std::filesystem::path(m_strPhone) / strPlace;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << strBytes;
    }
    std::string Log() const { return ReadBytes(m_strPhone + "/log.txt"); }

    template <typename TFunction>
    TFunction* Find(TFunction* /*pDeclared*/, const char* szName) const {
        return reinterpret_cast<TFunction*>(dlsym(m_pLibrary, szName));
    }

    int Connect() {
        return m_pConnect(kPort, -1, &m_nKind, &m_nMostFiles, &m_bCard, &m_bFetch, &m_bNoRestart, 1);
    }
    // The head of a take or a send.
    int Open() {
        const int nCode = m_pStream(kPort, -1, 1, 1, &m_nStream);
        return nCode == LINK_OK ? Connect() : nCode;
    }
    int List() { return m_pList(1, LINK_ITEM_PHOTO, &m_nFiles, m_folder.Path().c_str(), 1); }
    std::vector<CFileItem> Listed() const {
        CFILESet set;
        set.m_strFileName = m_folder.Path("FILE.Dat");
        EXPECT_TRUE(set.Open());
        return set.m_nDataArray;
    }
    int Take(std::uint32_t nId, const std::string& strPath) {
        return m_pTake(LINK_ITEM_PHOTO, nId, strPath.c_str(), m_bFetch);
    }
    int Send(const std::string& strPath, const std::string& strName) {
        return m_pSend(LINK_ITEM_PHOTO, strPath.c_str(), strName.c_str(), m_nStream);
    }
    int Poll() {
        std::uint32_t nIdentity = 0;
        return m_pInfo(kPort, -1, 1, &nIdentity, 3000);
    }

    CTempFolder m_folder;
    std::string m_strPhone = m_folder.Path("phone");
    std::string m_strPrinted;
    int m_nKind = 0, m_nMostFiles = 0, m_nStream = 0, m_nFiles = 0;
    unsigned char m_bCard = 0, m_bFetch = 0, m_bNoRestart = 0;

    void* m_pLibrary = dlopen(FOTARIUM_PHONE_LIBRARY, RTLD_NOW | RTLD_LOCAL);
#define FIND(name) Find(static_cast<decltype(::name)*>(nullptr), #name)
    decltype(::GetPhoneInfo)* m_pInfo = FIND(GetPhoneInfo);
    decltype(::ConnectToPhone)* m_pConnect = FIND(ConnectToPhone);
    decltype(::DisconnectToPhone)* m_pDisconnect = FIND(DisconnectToPhone);
    decltype(::IsConnected)* m_pIsConnected = FIND(IsConnected);
    decltype(::ChangeUSBStream)* m_pStream = FIND(ChangeUSBStream);
    decltype(::GetNumResolution)* m_pNumSizes = FIND(GetNumResolution);
    decltype(::GetResolution)* m_pSize = FIND(GetResolution);
    decltype(::GetThumbnailResolution)* m_pThumbnail = FIND(GetThumbnailResolution);
    decltype(::SendDummyPacket)* m_pWait = FIND(SendDummyPacket);
    decltype(::StopDummyPacket)* m_pStopWait = FIND(StopDummyPacket);
    decltype(::GetFileInfoListfromPhone)* m_pList = FIND(GetFileInfoListfromPhone);
    decltype(::GetFilefromPhone)* m_pTake = FIND(GetFilefromPhone);
    decltype(::GetAvailableMemorySize)* m_pMemory = FIND(GetAvailableMemorySize);
    decltype(::GetTotalFileNum)* m_pTotal = FIND(GetTotalFileNum);
    decltype(::TransferFileToPhone)* m_pSend = FIND(TransferFileToPhone);
    decltype(::GetSDCardStatus)* m_pCardStatus = FIND(GetSDCardStatus);
#undef FIND
};
