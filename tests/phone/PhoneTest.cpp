#include <sys/resource.h>

#include <algorithm>
#include <csignal>

#include "phone/PhoneLine.h"

namespace {

using Phone = CPhoneLine;

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
    EXPECT_EQ(std::distance(std::filesystem::recursive_directory_iterator(m_strPhone), {}), 4)
        << "inner, large, card and phone.txt";
}

TEST_F(Phone, ASentFileStaysAndTakesRoom) {
    Fact("memory 1000");
    Fact("mostfiles 4");
    Fact("others 1");
    Fact("card 1");
    PutFile("card/not counted", "x");
    ASSERT_EQ(Tool("card in '" + m_strPhone + "'"), 0);
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
    const auto Expect = [&](const char* szWhat, std::initializer_list<std::pair<int, int>> arrAnswers) {
        for (const auto& [nAnswer, nCode] : arrAnswers) EXPECT_EQ(nAnswer, nCode) << szWhat;
        nLines += static_cast<int>(arrAnswers.size());
        EXPECT_EQ(std::ranges::count(Log(), '\n'), nLines) << szWhat << Log();
    };
    Expect("closed", {{m_pNumSizes(7, &nOut), LINK_CONNECT_FAILED},
                      {m_pSize(7, 0, &nOut, &nOther), LINK_SIZES_FAILED},
                      {m_pThumbnail(7, &nOut, &nOther), LINK_SIZES_FAILED},
                      {m_pWait(), LINK_CONNECT_FAILED},
                      {List(), LINK_LIST_FAILED},
                      {Take(1, strFile), LINK_TAKE_FAILED},
                      {m_pMemory(7, &nFree), LINK_MEMORY_FAILED},
                      {m_pTotal(7, &nOut), LINK_INFO_FAILED},
                      {Send(strFile, "x"), LINK_SEND_FAILED},
                      {m_pCardStatus(7), LINK_INFO_FAILED}});
    ASSERT_EQ(Connect(), LINK_OK);
    Expect("no stream", {{Connect(), LINK_CONNECT_FAILED},
                         {List(), LINK_LIST_FAILED},
                         {Send(strFile, "x"), LINK_SEND_FAILED}});
    ASSERT_EQ(m_pStream(kPort, -1, 1, 1, &m_nStream), LINK_OK);
    Expect("not listed", {{Take(1, strFile), LINK_TAKE_FAILED}});
    ASSERT_EQ(List(), LINK_OK);
    m_bFetch = 1;
    ++m_nStream;
    Expect("other values", {{Take(Listed()[0].m_nFileId, strFile), LINK_TAKE_FAILED},
                            {Send(strFile, "x"), LINK_SEND_FAILED},
                            {m_pTotal(8, &nOut), LINK_INFO_FAILED},
                            {m_pSize(7, 3, &nOut, &nOther), LINK_SIZES_FAILED}});
    ASSERT_EQ(m_pWait(), LINK_OK);
    Expect("waiting", {{m_pWait(), LINK_EXCHANGE_IMPOSSIBLE},
                       {Poll(), LINK_EXCHANGE_IMPOSSIBLE},
                       {List(), LINK_EXCHANGE_IMPOSSIBLE},
                       {m_pIsConnected(), 0}});
    m_pStopWait();
    EXPECT_EQ(List(), LINK_OK);
    // A caller that is not interested in a value, or has lost a text.
    EXPECT_EQ(m_pMemory(7, nullptr), LINK_OK);
    EXPECT_EQ(m_pList(1, 7, nullptr, nullptr, 1), LINK_TARGET_FAILED);
    EXPECT_EQ(m_pSend(7, nullptr, nullptr, m_nStream - 1), LINK_SOURCE_FAILED);
    m_pStopWait();
    m_pDisconnect();
    m_pDisconnect();
    Expect("closed again", {{List(), LINK_LIST_FAILED}});
    EXPECT_EQ(ReadBytes(strFile), "x");
}

TEST_F(Phone, ToolSaysWhatItCannotDo) {
    const std::string strPicture = " '" + m_folder.Write("a.jpg", "picture") + "'";
    const std::string strNew = " '" + m_folder.Path("made") + "'";
    EXPECT_EQ(Tool("new" + strNew + strPicture + " /none"), 1);
    EXPECT_EQ(Tool("list" + strNew), 1) << "half a phone";
    EXPECT_EQ(Tool("new" + strNew + strPicture + strPicture), 0) << m_strPrinted;
    EXPECT_EQ(Tool("new" + strNew), 1) << "over a phone";
    EXPECT_EQ(Tool("list" + strNew), 0);
    EXPECT_NE(m_strPrinted.find("\t7\t0\t0\tphoto/IMG0002\n"), std::string::npos) << m_strPrinted;
    for (const std::string& strWords :
         {std::string(), std::string("paint"), std::string("list"), "list" + strNew + " x",
          "fact" + strNew + " colour", "fact" + strNew + " kind 1 2", "fact" + strNew + " card 2",
          "fact" + strNew + " sizes 640", "card up" + strNew, "call" + strNew, "call" + strNew + " Dial 1",
          "call" + strNew + " GetTotalFileNum", "call" + strNew + " GetTotalFileNum x",
          "call" + strNew + " IsConnected then"}) {
        EXPECT_EQ(Tool(strWords), 2) << strWords;
        EXPECT_TRUE(m_strPrinted.starts_with("fotarium-phone: ")) << m_strPrinted;
    }
    EXPECT_EQ(Tool("fact" + strNew + " sizes 640x480 176x144"), 0);
    EXPECT_EQ(Tool("fact" + strNew + " sizes"), 0);
    EXPECT_EQ(m_strPrinted, "640x480 176x144\n");
    EXPECT_EQ(Tool("card in" + strNew), 1) << "it has no place for one";
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
