#include <sys/resource.h>

#include <algorithm>
#include <csignal>

#include "phone/PhoneLine.h"

namespace {

using Phone = CPhoneLine;

TEST_F(Phone, TellsWhatItIs) {
    Fact("mostfiles 30");
    Fact("kind 6");
    Fact("card 1");
    Fact("fetchoption 1");
    Fact("sizes 800x600 0x-1");
    Fact("identity 4000000000");
    std::uint32_t nIdentity = 0;
    EXPECT_EQ(m_pInfo(kPort, -1, 1, &nIdentity, 3000), LINK_OK);
    EXPECT_EQ(nIdentity, 4000000000U);
    ASSERT_EQ(Connect(), LINK_OK);
    EXPECT_EQ(std::vector<int>({m_nKind, m_nMostFiles, m_bCard, m_bFetch, m_bNoRestart}),
              std::vector<int>({6, 30, 1, 1, 1}));
    int nCount = 0, nWidth = 0, nHeight = 0;
    EXPECT_EQ(m_pNumSizes(7, &nCount), LINK_OK);
    EXPECT_EQ(nCount, 2);
    EXPECT_EQ(m_pSize(7, 1, &nWidth, &nHeight), LINK_OK);
    EXPECT_EQ(nHeight, -1);
    EXPECT_EQ(m_pThumbnail(7, &nWidth, &nHeight), LINK_OK);
    EXPECT_EQ(nWidth, 176);
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(m_pSize(7, 2, &nWidth, &nHeight), LINK_SIZES_FAILED);
    EXPECT_EQ(nWidth, 176) << "a value of a call that failed";
}

TEST_F(Phone, IsNotThereWithoutItsFolderOrAtAnotherPort) {
    std::uint32_t nIdentity = 5;
    const auto Info = [&](int nPort) { return m_pInfo(nPort, -1, 1, &nIdentity, 3000); };
    EXPECT_EQ(Info(3), LINK_CONNECT_FAILED_PORT);
    for (const std::string& strFolder : {std::string(), m_folder.Path(), m_folder.Path("none")}) {
        setenv("FOTARIUM_PHONE_FOLDER", strFolder.c_str(), 1);
        EXPECT_EQ(Info(kPort), LINK_CONNECT_FAILED_PORT) << strFolder;
        EXPECT_EQ(Connect(), LINK_CONNECT_FAILED_PORT) << strFolder;
        EXPECT_EQ(m_pStream(kPort, -1, 1, 1, &m_nStream), LINK_CONNECT_FAILED_PORT) << strFolder;
    }
    EXPECT_EQ(nIdentity, 5U);
    EXPECT_FALSE(m_folder.Names().contains("log.txt"));

    // The variable may name another phone at any time; a line to the first is no line to the second.
    ASSERT_EQ(Tool("new '" + m_folder.Path("other") + "'"), 0);
    setenv("FOTARIUM_PHONE_FOLDER", m_strPhone.c_str(), 1);
    ASSERT_EQ(Connect(), LINK_OK);
    EXPECT_EQ(m_pIsConnected(), 0);
    setenv("FOTARIUM_PHONE_FOLDER", m_folder.Path("other").c_str(), 1);
    EXPECT_NE(m_pIsConnected(), 0);
    EXPECT_EQ(Info(kPort), LINK_OK);
    const std::uint32_t nOther = std::exchange(nIdentity, 0);
    setenv("FOTARIUM_PHONE_FOLDER", m_strPhone.c_str(), 1);
    EXPECT_EQ(Info(kPort), LINK_OK);
    EXPECT_NE(nIdentity, nOther);

    std::ofstream(m_strPhone + "/phone.txt", std::ios::app) << "sizes 640\n";
    EXPECT_EQ(Info(kPort), LINK_INFO_FAILED);
    EXPECT_NE(Log().find("wrong value for sizes"), std::string::npos);
}

TEST_F(Phone, ATakeBringsEveryFileWhole) {
    const std::string strLarge(700'000, 'x');
    PutFile("inner/photo/b", strLarge);
    PutFile("inner/\xFF.jpg", "odd");
    PutFile("inner/empty", "");
    PutFile("card/photo/b", "on card");
    PutFile("closed", "empty\n");
    std::filesystem::create_symlink("/etc", m_strPhone + "/inner/etc");
    std::filesystem::create_symlink("/etc/passwd", m_strPhone + "/inner/passwd");
    Fact("card 1");
    Fact("cardin 1");
    ASSERT_EQ(Open(), LINK_OK);
    ASSERT_EQ(List(), LINK_OK);
    EXPECT_EQ(m_nFiles, 4);
    const std::vector<CFileItem> arrFiles = Listed();
    ASSERT_EQ(arrFiles.size(), 4U);
    const std::uint32_t nLarge = arrFiles[1].m_nFileId;
    EXPECT_EQ(arrFiles[0], (CFileItem{arrFiles[0].m_nFileId, 0, 0, 1, "empty", 0}));
    EXPECT_EQ(arrFiles[1], (CFileItem{nLarge, 700'000, 0, 0, "photo/b", 1}));
    EXPECT_EQ(arrFiles[2], (CFileItem{arrFiles[2].m_nFileId, 3, 0, 0, "\xFF.jpg", 2}));
    EXPECT_EQ(arrFiles[3], (CFileItem{arrFiles[3].m_nFileId, 7, 1, 0, "photo/b", 3}));

    const std::string strTarget = m_folder.Write("target.jpg", "there before");
    EXPECT_EQ(Take(nLarge, strTarget), LINK_OK);
    EXPECT_EQ(ReadBytes(strTarget), strLarge);
    EXPECT_EQ(Take(arrFiles[0].m_nFileId, strTarget), LINK_FILE_FAILED) << "closed";
    EXPECT_EQ(Take(nLarge + 1, strTarget), LINK_FILE_FAILED);
    EXPECT_EQ(Take(nLarge, m_folder.Path("none/x.jpg")), LINK_TARGET_FAILED);
    EXPECT_EQ(Take(nLarge, m_folder.Path()), LINK_TARGET_FAILED);
    std::filesystem::remove(m_strPhone + "/inner/photo/b");
    EXPECT_EQ(Take(nLarge, strTarget), LINK_FILE_FAILED);
    EXPECT_EQ(ReadBytes(strTarget), strLarge);

    // The numbers stay those of the names, whatever else comes and goes.
    PutFile("inner/a", "new");
    PutFile("inner/photo/b", strLarge);
    ASSERT_EQ(List(), LINK_OK);
    EXPECT_EQ(Listed()[2].m_nFileId, nLarge);
}

TEST_F(Phone, NeverLeavesHalfAFile) {
    PutFile("inner/large", std::string(700'000, 'x'));
    ASSERT_EQ(Open(), LINK_OK);
    ASSERT_EQ(List(), LINK_OK);
    const std::string strSource = m_folder.Write("source", std::string(600'000, 'y'));
    const std::set<std::string> setBefore = m_folder.Names();
    // No file grows above this: a full disk.
    void (*const pOld)(int) = std::signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    const rlimit limit{300'000, old.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
    const int nTaken = Take(Listed()[0].m_nFileId, m_folder.Path("new.jpg"));
    const int nSent = Send(strSource, "sent");
    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, pOld);
    EXPECT_EQ(nTaken, LINK_TARGET_FAILED);
    EXPECT_EQ(nSent, LINK_SEND_FAILED);
    EXPECT_EQ(m_folder.Names(), setBefore);
    EXPECT_EQ(FactOf("memory"), "16777216");
    std::set<std::string> setPhone;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(m_strPhone))
        setPhone.insert(entry.path().filename());
    EXPECT_EQ(setPhone, (std::set<std::string>{"inner", "large", "card", "phone.txt"}));
}

TEST_F(Phone, ASentFileStaysAndTakesRoom) {
    Fact("memory 1000");
    Fact("mostfiles 4");
    Fact("others 1");
    const std::string strLarge = m_folder.Write("large", std::string(600, 'a'));
    const std::string strSmall = m_folder.Write("small", std::string(300, 'b'));
    ASSERT_EQ(Open(), LINK_OK);
    EXPECT_EQ(Send(strLarge, "sent/\xE7\x85\xA7.jpg"), LINK_OK);
    EXPECT_EQ(Send(strLarge, "second"), LINK_PHONE_FULL) << "400 bytes are left";
    EXPECT_EQ(Send(strLarge, "sent/\xE7\x85\xA7.jpg"), LINK_OK) << "in its own place";
    EXPECT_EQ(FactOf("memory"), "400");
    EXPECT_EQ(Send(strSmall, "second"), LINK_OK);
    std::uint32_t nFree = 0;
    EXPECT_EQ(m_pMemory(7, &nFree), LINK_OK);
    EXPECT_EQ(nFree, 100U);
    int nPhotos = 0, nOthers = 0;
    EXPECT_EQ(m_pTotal(7, &nPhotos), LINK_OK);
    EXPECT_EQ(m_pTotal(10, &nOthers), LINK_OK);
    EXPECT_EQ(nPhotos * 10 + nOthers, 21);
    const std::string strTiny = m_folder.Write("tiny", "c");
    EXPECT_EQ(Send(strTiny, "third"), LINK_OK);
    EXPECT_EQ(Send(strTiny, "fourth"), LINK_PHONE_FULL) << "with the other item there are four";
    Fact("kind 6");
    EXPECT_EQ(Send(strTiny, "fourth"), LINK_OK);
    EXPECT_EQ(Send(m_folder.Path("none"), "x"), LINK_SOURCE_FAILED);
    EXPECT_EQ(Send(m_folder.Path(), "x"), LINK_SOURCE_FAILED);
    EXPECT_EQ(ReadBytes(m_strPhone + "/inner/sent/\xE7\x85\xA7.jpg"), std::string(600, 'a'));
    m_pDisconnect();
    EXPECT_EQ(Log(), "");
}

TEST_F(Phone, NoNameLeadsOutOfTheFolder) {
    const std::string strPicture = m_folder.Write("picture", "bytes");
    const std::string strOutside = m_folder.Write("outside", "outside");
    std::filesystem::create_directory(m_folder.Path("away"));
    std::filesystem::create_directory(m_strPhone + "/inner/folder");
    std::filesystem::create_symlink(m_folder.Path("away"), m_strPhone + "/inner/link");
    std::filesystem::create_symlink(strOutside, m_strPhone + "/inner/file");
    ASSERT_EQ(Open(), LINK_OK);
    std::string strDeep;
    for (int i = 0; i < 2048; ++i) strDeep += "a/";
    for (const std::string& strName :
         {std::string(), std::string("/"), std::string("."), std::string("../phone.txt"),
          std::string("a/../../../outside"), strOutside, std::string("a//b"), std::string("a/"),
          std::string("folder"), std::string("link/x"), std::string("file/x"), std::string(4096, 'n'),
          strDeep, std::string(256, 'n')})
        EXPECT_EQ(Send(strPicture, strName), LINK_SEND_FAILED) << strName.substr(0, 40);
    EXPECT_EQ(FactOf("memory"), "16777216");
    // These are names like others.
    for (const std::string& strName : {std::string("\xFF\xFE"), std::string("..."), std::string("a\\..\\b?*"),
                                       std::string(255, 'n'), std::string("file")})
        EXPECT_EQ(Send(strPicture, strName), LINK_OK) << strName;
    EXPECT_EQ(ReadBytes(m_strPhone + "/inner/file"), "bytes");
    EXPECT_EQ(ReadBytes(strOutside), "outside") << "followed a link";
    EXPECT_TRUE(std::filesystem::is_empty(m_folder.Path("away")));
    ASSERT_EQ(List(), LINK_OK);
    EXPECT_EQ(m_nFiles, 5);
}

TEST_F(Phone, GoesSilentAfterAnExchangeIfItRestarts) {
    Fact("norestart 0");
    Fact("restartpolls 2");
    m_pDisconnect();
    EXPECT_EQ(Poll(), LINK_OK) << "nothing has been opened";
    ASSERT_EQ(Open(), LINK_OK);
    EXPECT_EQ(Poll(), LINK_OK);
    m_pDisconnect();
    EXPECT_EQ(Connect(), LINK_CONNECT_FAILED);
    EXPECT_EQ(Poll(), LINK_CONNECT_FAILED);
    m_pDisconnect();
    EXPECT_EQ(Poll(), LINK_CONNECT_FAILED);
    EXPECT_EQ(Poll(), LINK_OK);
    EXPECT_EQ(Connect(), LINK_OK);
    EXPECT_EQ(Log(), "");
}

TEST_F(Phone, TellsOfTheCardOnce) {
    PutFile("inner/a", "a");
    PutFile("card/b", "b");
    Fact("card 1");
    ASSERT_EQ(Tool("card in '" + m_strPhone + "'"), 0);
    ASSERT_EQ(Open(), LINK_OK);
    ASSERT_EQ(List(), LINK_OK);
    const std::vector<CFileItem> arrFiles = Listed();
    ASSERT_EQ(arrFiles.size(), 2U);
    EXPECT_EQ(m_pCardStatus(7), LINK_OK);
    ASSERT_EQ(Tool("card out '" + m_strPhone + "'"), 0);
    EXPECT_EQ(m_pCardStatus(7), LINK_CARD_GONE);
    EXPECT_EQ(m_pCardStatus(7), LINK_OK);
    ASSERT_EQ(Tool("card in '" + m_strPhone + "'"), 0);
    EXPECT_EQ(m_pCardStatus(7), LINK_CARD_GONE);
    ASSERT_EQ(Tool("card out '" + m_strPhone + "'"), 0);
    EXPECT_EQ(Take(arrFiles[1].m_nFileId, m_folder.Path("b.jpg")), LINK_CARD_GONE);
    EXPECT_EQ(m_pCardStatus(7), LINK_OK) << "told already";
    EXPECT_EQ(Take(arrFiles[0].m_nFileId, m_folder.Path("a.jpg")), LINK_OK);
    EXPECT_FALSE(m_folder.Names().contains("b.jpg"));
    ASSERT_EQ(List(), LINK_OK);
    EXPECT_EQ(m_nFiles, 1);
    std::filesystem::remove(m_strPhone + "/inner/a");
    EXPECT_EQ(List(), LINK_NO_FILES);
    EXPECT_EQ(Log(), "");
}

TEST_F(Phone, FailsWhereItIsTold) {
    PutFile("inner/a", "a");
    ASSERT_EQ(Open(), LINK_OK);
    ASSERT_EQ(List(), LINK_OK);
    const std::uint32_t nId = Listed()[0].m_nFileId;
    const auto Taken = [&] { return Take(nId, m_folder.Path("a.jpg")); };
    const std::string strFaults = m_strPhone + "/faults";
    std::ofstream(strFaults)
        << "# ordered\nGetFilefromPhone 2 17\nGetFilefromPhone 4 -4\nIsConnected 1 9\nwhat\n";
    EXPECT_EQ(Taken(), LINK_OK);
    EXPECT_EQ(Taken(), LINK_FILE_FAILED);
    EXPECT_EQ(Taken(), LINK_OK);
    EXPECT_EQ(Taken(), LINK_CONNECT_FAILED_QUIETLY);
    EXPECT_EQ(m_pIsConnected(), 9);
    EXPECT_EQ(m_pIsConnected(), 0);
    EXPECT_EQ(Log(), "faults: \"what\" is not FUNCTION N CODE\n");
    std::ofstream(strFaults) << "GetFilefromPhone 1 21\n";
    EXPECT_EQ(Taken(), LINK_CALL_CAME_IN) << "counted anew";
    std::filesystem::remove(strFaults);
    EXPECT_EQ(Taken(), LINK_OK);

    Fact("locked 1");
    EXPECT_EQ(Taken(), LINK_PHONE_LOCKED);
    m_pDisconnect();
    EXPECT_EQ(Poll(), LINK_OK);
    EXPECT_EQ(Open(), LINK_PHONE_LOCKED);
}

// Each call when it may not come: its code, and one line in the log.
TEST_F(Phone, AnswersWhatComesOutOfOrder) {
    PutFile("inner/a", "a");
    const std::string strFile = m_folder.Write("file", "x");
    int nOut = 0, nOther = 0, nLines = 0;
    std::uint32_t nFree = 0;
    const auto Expect = [&](int nAnswer, int nCode, const char* szWhat) {
        EXPECT_EQ(nAnswer, nCode) << szWhat;
        EXPECT_EQ(std::ranges::count(Log(), '\n'), ++nLines) << szWhat;
    };
    Expect(m_pNumSizes(7, &nOut), LINK_CONNECT_FAILED, "closed");
    Expect(m_pSize(7, 0, &nOut, &nOther), LINK_SIZES_FAILED, "closed");
    Expect(m_pThumbnail(7, &nOut, &nOther), LINK_SIZES_FAILED, "closed");
    Expect(m_pWait(), LINK_CONNECT_FAILED, "closed");
    Expect(List(), LINK_LIST_FAILED, "closed");
    Expect(Take(1, strFile), LINK_TAKE_FAILED, "closed");
    Expect(m_pMemory(7, &nFree), LINK_MEMORY_FAILED, "closed");
    Expect(m_pTotal(7, &nOut), LINK_INFO_FAILED, "closed");
    Expect(Send(strFile, "x"), LINK_SEND_FAILED, "closed");
    Expect(m_pCardStatus(7), LINK_INFO_FAILED, "closed");
    ASSERT_EQ(Connect(), LINK_OK);
    Expect(Connect(), LINK_CONNECT_FAILED, "open");
    Expect(List(), LINK_LIST_FAILED, "no stream");
    Expect(Send(strFile, "x"), LINK_SEND_FAILED, "no stream");
    ASSERT_EQ(m_pStream(kPort, -1, 1, 1, &m_nStream), LINK_OK);
    Expect(Take(1, strFile), LINK_TAKE_FAILED, "not listed");
    ASSERT_EQ(List(), LINK_OK);
    m_bFetch = 1;
    Expect(Take(Listed()[0].m_nFileId, strFile), LINK_TAKE_FAILED, "fetch option");
    ++m_nStream;
    Expect(Send(strFile, "x"), LINK_SEND_FAILED, "stream value");
    Expect(m_pTotal(8, &nOut), LINK_INFO_FAILED, "class");
    Expect(m_pList(1, 10, &nOut, m_folder.Path().c_str(), 1), LINK_LIST_FAILED, "class");
    ASSERT_EQ(m_pWait(), LINK_OK);
    Expect(m_pWait(), LINK_EXCHANGE_IMPOSSIBLE, "waiting");
    Expect(Poll(), LINK_EXCHANGE_IMPOSSIBLE, "waiting");
    Expect(List(), LINK_EXCHANGE_IMPOSSIBLE, "waiting");
    Expect(m_pIsConnected(), 0, "waiting");
    m_pStopWait();
    EXPECT_EQ(List(), LINK_OK);
    m_pStopWait();
    m_pDisconnect();
    m_pDisconnect();
    Expect(List(), LINK_LIST_FAILED, "closed again");
    EXPECT_EQ(ReadBytes(strFile), "x");
    // A caller that is not interested in a value, or has lost a text.
    ASSERT_EQ(Open(), LINK_OK);
    EXPECT_EQ(m_pMemory(7, nullptr), LINK_OK);
    EXPECT_EQ(m_pList(1, 7, nullptr, nullptr, 1), LINK_TARGET_FAILED);
    EXPECT_EQ(m_pSend(7, nullptr, nullptr, m_nStream), LINK_SOURCE_FAILED);
}

TEST_F(Phone, ToolSaysWhatItCannotDo) {
    const std::string strPicture = m_folder.Write("a.jpg", "picture");
    const std::string strNew = m_folder.Path("made");
    EXPECT_EQ(Tool("new '" + strNew + "' '" + strPicture + "' '" + m_folder.Path("none") + "'"), 1);
    EXPECT_FALSE(std::filesystem::exists(strNew));
    EXPECT_EQ(Tool("new '" + strNew + "' '" + strPicture + "' '" + strPicture + "'"), 0) << m_strPrinted;
    EXPECT_EQ(Tool("new '" + strNew + "'"), 1) << "over a phone";
    EXPECT_EQ(Tool("list '" + strNew + "'"), 0);
    EXPECT_NE(m_strPrinted.find("\t7\t0\t0\tphoto/IMG0002\n"), std::string::npos) << m_strPrinted;

    const std::string strOn = "'" + strNew + "' ";
    const std::pair<std::string, int> arrCalls[] = {{"", 2},
                                                    {"paint", 2},
                                                    {"list", 2},
                                                    {"list " + strOn + "x", 2},
                                                    {"list '" + m_folder.Path() + "'", 1},
                                                    {"fact " + strOn + "colour", 2},
                                                    {"fact " + strOn + "kind 1 2", 2},
                                                    {"fact " + strOn + "card 2", 2},
                                                    {"fact " + strOn + "sizes 640", 2},
                                                    {"fact " + strOn + "sizes none", 0},
                                                    {"card up " + strOn, 2},
                                                    {"card in " + strOn, 1},
                                                    {"call " + strOn, 2},
                                                    {"call " + strOn + "Dial 1", 2},
                                                    {"call " + strOn + "GetTotalFileNum", 2},
                                                    {"call " + strOn + "GetTotalFileNum x", 2},
                                                    {"call " + strOn + "IsConnected then", 2}};
    for (const auto& [strWords, nStatus] : arrCalls) {
        EXPECT_EQ(Tool(strWords), nStatus) << strWords;
        EXPECT_EQ(m_strPrinted.starts_with("fotarium-phone: "), nStatus != 0) << strWords << m_strPrinted;
    }
    EXPECT_EQ(FactOf("sizes"), "640x480 320x240 176x144") << "of the other phone";
    EXPECT_EQ(Tool("--help"), 0);
    EXPECT_NE(m_strPrinted.find("restartpolls"), std::string::npos);
}

TEST_F(Phone, ToolTriesALibrary) {
    PutFile("phone.txt", "# by hand\nkind 5\n\nidentity 77\n");
    EXPECT_EQ(Tool("fact '" + m_strPhone + "' identity 78"), 0);
    EXPECT_EQ(ReadBytes(m_strPhone + "/phone.txt"), "# by hand\nkind 5\n\nidentity 78\n");
    EXPECT_EQ(Tool("call '" + m_strPhone + "' GetPhoneInfo 200 -1 1 3000 then ConnectToPhone 200 -1 1 then " +
                   "GetResolution 7 0 then GetResolution 7 9 then DisconnectToPhone then IsConnected"),
              0);
    EXPECT_EQ(m_strPrinted,
              "GetPhoneInfo 0 78\nConnectToPhone 0 5 0 0 0 1\nGetResolution 0 640 480\nGetResolution 5 0 0\n"
              "DisconnectToPhone\nIsConnected 1\n");
    setenv("FOTARIUM_PHONE_LIBRARY", m_folder.Path("none.dll").c_str(), 1);
    EXPECT_EQ(Tool("call '" + m_strPhone + "' IsConnected"), 1);
    unsetenv("FOTARIUM_PHONE_LIBRARY");
}

}  // namespace
