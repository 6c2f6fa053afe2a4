// Taking pictures off the phone: the list of its files, where they go, and what becomes of what goes wrong.

#include "app/PhoneWorkshop.h"

namespace {

class TakeTest : public PhoneWorkshop {
  protected:
    TakeTest() {
        Phone().arrFiles = {
            {.m_nFileId = 30, .m_nFileSize = 900, .m_strFileName = "cam/Beta"},
            {.m_nFileId = 10, .m_nFileSize = 20, .m_nFileMemory = 1, .m_strFileName = "alpha"},
            {.m_nFileId = 20, .m_nFileSize = 900, .m_strFileName = "花"},
            {.m_nFileId = 40, .m_nFileSize = 5, .m_bFileClosed = 1, .m_strFileName = "shut"}};
        for (std::size_t i = 0; i < Phone().arrFiles.size(); ++i)
            Phone().arrFiles[i].m_nFileNo = static_cast<int>(i);
    }
    void TearDown() override {
        m_dialog.Thum().List().StopFill();
        Workshop::TearDown();
    }
    // A take with these steps in the list of files.
    void Take(std::vector<std::string> arrSteps) {
        AnswerFiles(std::move(arrSteps));
        Click(kCmdTake);
    }
    bool Is(const std::string& strPath) { return std::filesystem::exists(strPath); }
    // The ids of the files taken since the last time, in their order.
    std::string Taken() {
        std::string strIds;
        for (const std::string& strCall : m_platform.Libraries().PhoneTrace().Take())
            if (strCall.starts_with("GetFilefromPhone 7 ")) strIds += strCall.substr(19, 2) + " ";
        return strIds;
    }
};

}  // namespace

TEST_F(TakeTest, PickedFilesComeIntoTheFolderOfTheList) {
    Connect();
    Take({"tick 0", "tick 1", "ok"});
    EXPECT_EQ(Calls(),
              "GetPhoneInfo ChangeUSBStream IsConnected ConnectToPhone GetFileInfoListfromPhone "
              "SendDummyPacket StopDummyPacket GetFilefromPhone GetFilefromPhone SendDummyPacket "
              "StopDummyPacket DisconnectToPhone ");
    EXPECT_EQ(Boxes(), "文件已接受|");
    EXPECT_EQ(ReadBytes(Start("Beta.jpg")), "file 30") << "the path on the phone is cut off";
    EXPECT_EQ(ReadBytes(Start("alpha.jpg")), "file 10");
    EXPECT_NE(m_host.FindIcon(kFileList, "alpha.jpg"), -1);
    // A line that is up is not opened again; what has none to be closed has its stream all the same.
    Phone().nConnected = 0;
    Phone().bNoRestart = 0;
    Take({"cancel"});
    EXPECT_EQ(Calls(),
              "GetPhoneInfo ChangeUSBStream IsConnected GetFileInfoListfromPhone SendDummyPacket "
              "StopDummyPacket DisconnectToPhone ");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(TakeTest, TheListCountsClosesAndSorts) {
    Connect();
    struct {
        std::vector<std::string> arrSteps;
        const char* szTaken;
    } const kCases[] = {
        {{"all", "ok"}, "30 10 20 "},  // a closed file never goes
        {{"all", "none", "tick 2", "ok"}, "20 "},
        {{"sort 0", "all", "ok"}, "30 20 10 "},  // the number's column again: downward
        {{"sort 0", "sort 0", "all", "ok"}, "10 20 30 "},
        {{"sort 1", "all", "ok"}, "10 30 20 "},  // letters upward, others behind them
        {{"sort 1", "sort 1", "all", "ok"}, "20 30 10 "},
        {{"sort 2", "all", "ok"}, "10 30 20 "},  // of equal size as they stood
        {{"sort 2", "sort 2", "all", "ok"}, "30 20 10 "},
        {{"tick 0", "sort 2", "ok"}, "30 "},  // ticks go along
    };
    for (const auto& row : kCases) {
        SCOPED_TRACE(testing::PrintToString(row.arrSteps));
        for (const char* szName : {"Beta.jpg", "alpha.jpg", "花.jpg"}) std::filesystem::remove(Start(szName));
        Taken();
        Take(row.arrSteps);
        EXPECT_EQ(Taken(), row.szTaken);
        EXPECT_EQ(Boxes(), "文件已接受|");
    }
    Take({"ok", "tick 3", "ok", "cancel"});
    EXPECT_EQ(Boxes(), "请选择要传送的文件|请选择要传送的文件|");
}

TEST_F(TakeTest, WhatIsThereOrHasNoGoodNameIsAskedAbout) {
    Phone().arrFiles[1].m_strFileName = "what?";
    Connect();
    m_folder.Write("start/other/mine", "");
    m_folder.Write(std::string("start/") + CFolderTree::kStartFolder + "/Beta.jpg", "old");
    m_platform.AnswerSave(
        Start("inside/taken"));  // for Beta, which is there; the others follow into its folder
    m_platform.AnswerCancel();   // for what?, which is passed over
    AnswerFiles({"tick 0", "tick 1", "tick 2", "ok"});
    std::swap(const_cast<std::vector<CAnswer>&>(m_platform.WaitingAnswers())[1],
              const_cast<std::vector<CAnswer>&>(m_platform.WaitingAnswers())[2]);
    Click(kCmdTake);
    EXPECT_EQ(ReadBytes(Start("Beta.jpg")), "old");
    EXPECT_EQ(ReadBytes(Start("inside/taken.jpg")), "file 30");
    EXPECT_EQ(ReadBytes(Start("inside/花.jpg")), "file 20");
    EXPECT_FALSE(Is(Start("what?.jpg")) || Is(Start("inside/what?.jpg")));
    EXPECT_EQ(Boxes(), "文件已接受|");
    EXPECT_EQ(m_dialog.Thum().List().Path(), Start("inside/")) << "tree and list follow";
    EXPECT_EQ(m_dialog.Thum().Tree().CurrentPath(), Start("inside/"));
    EXPECT_NE(m_host.FindIcon(kFileList, "taken.jpg"), -1);
}

// The process may stand anywhere; the folder may have another name; nothing is written through a link.
TEST_F(TakeTest, TheFolderStaysUnlessTheUserMovesIt) {
    std::filesystem::create_directories(m_folder.Path("far/photos/deep"));
    std::filesystem::create_directory_symlink(m_folder.Path("far/photos"), m_folder.Path("link"));
    std::filesystem::create_symlink(m_folder.Path("outside.jpg"), m_folder.Path("far/photos/alpha.jpg"));
    m_platform.AddDrive('C', m_folder.Path("link"));
    m_dialog.Thum().Build();
    Connect();
    auto& tree = m_dialog.Thum().Tree();
    tree.Model().Select(tree.Model().Children(tree.Model().Children(0).front()).front());
    ASSERT_EQ(tree.CurrentPath(), m_folder.Path("link") + "/");
    std::filesystem::current_path(m_folder.Path("far"));
    m_platform.AnswerCancel();
    AnswerFiles({"tick 1", "tick 2", "ok"});
    std::swap(const_cast<std::vector<CAnswer>&>(m_platform.WaitingAnswers())[0],
              const_cast<std::vector<CAnswer>&>(m_platform.WaitingAnswers())[1]);
    Click(kCmdTake);
    EXPECT_FALSE(Is(m_folder.Path("outside.jpg")));
    EXPECT_TRUE(Is(m_folder.Path("far/photos/花.jpg")));
    EXPECT_EQ(m_dialog.Thum().List().Path(), m_folder.Path("link") + "/");
    Boxes();
}

TEST_F(TakeTest, FailedFilesAreToldAtTheEndAndTheCardAsksAnew) {
    Connect();
    int nFile = 0;
    Phone().fnCode = [&](const std::string& strCall) -> std::int32_t {
        return strCall == "GetFilefromPhone" && ++nFile != 2 ? LINK_FILE_FAILED : LINK_OK;
    };
    Take({"all", "ok"});
    EXPECT_EQ(Boxes(), "下一个文件\ncam/Beta\n花文件传送中出错, 确认后再传送.|");
    EXPECT_TRUE(Is(Start("alpha.jpg")));
    // The card has gone: the list is read again, or the take ends there.
    Phone().fnCode = {};
    Phone().mapCodes["GetFilefromPhone"] = LINK_CARD_GONE;
    m_platform.Answer(EBoxAnswer::Ok);
    AnswerFiles({"tick 2", "ok"});
    AnswerFiles({"cancel"});
    Calls();
    Click(kCmdTake);
    EXPECT_EQ(Calls(),
              "GetPhoneInfo ChangeUSBStream IsConnected ConnectToPhone GetFileInfoListfromPhone "
              "SendDummyPacket StopDummyPacket GetFilefromPhone "
              "GetPhoneInfo ChangeUSBStream IsConnected ConnectToPhone GetFileInfoListfromPhone "
              "SendDummyPacket StopDummyPacket DisconnectToPhone ");
    m_platform.TakeBoxes();
    Take({"tick 2", "ok"});
    EXPECT_EQ(Calls(),
              "GetPhoneInfo ChangeUSBStream IsConnected ConnectToPhone GetFileInfoListfromPhone "
              "SendDummyPacket StopDummyPacket GetFilefromPhone StopDummyPacket DisconnectToPhone ");
    // A phone that is gone by then leaves no line open.
    m_platform.Answer(EBoxAnswer::Ok);
    Phone().fnCode = [](const std::string& strCall) -> std::int32_t {
        if (strCall == "GetFilefromPhone") CFakePhone::Now().mapCodes["GetPhoneInfo"] = LINK_PHONE_FULL;
        return LINK_OK;
    };
    Take({"tick 2", "ok"});
    EXPECT_TRUE(Calls().ends_with("GetFilefromPhone GetPhoneInfo DisconnectToPhone "));
    Boxes();
}

TEST_F(TakeTest, TheCardIsWatchedWhileTheListStands) {
    Phone().bHasCard = 1;
    Connect();
    Take({"wait 4999", "wait 1", "wait 5000", "cancel"});
    EXPECT_EQ(Calls(),
              "GetPhoneInfo ChangeUSBStream IsConnected ConnectToPhone GetFileInfoListfromPhone "
              "GetSDCardStatus GetSDCardStatus DisconnectToPhone ");
    for (const auto& [nCode, szBox] :
         {std::pair{16, "外存卡脱落/装载|"}, {21, "전화가 왔습니다. 자료교환을 중단합니다.|"}, {19, ""}}) {
        Phone().mapCodes["GetSDCardStatus"] = nCode;
        Connect();
        Take({"wait 20000"});
        EXPECT_EQ(Boxes(), szBox);
        EXPECT_EQ(Calls(),
                  "GetPhoneInfo ChangeUSBStream IsConnected ConnectToPhone GetFileInfoListfromPhone "
                  "GetSDCardStatus DisconnectToPhone ");
    }
}

TEST_F(TakeTest, AnotherPhoneOrNoListEndsIt) {
    Connect();
    Phone().nIdentity = 78;
    Click(kCmdTake);
    EXPECT_EQ(Boxes(), "手机已更换. 请重新连接|");
    EXPECT_EQ(Keys(), "x--");
    EXPECT_TRUE(Facts().m_bConnected) << "its facts stay";
    for (const unsigned nRestarts : {0U, 1U}) {
        Phone().bNoRestart = nRestarts == 0 ? 1 : 0;
        ++Phone().nIdentity;
        CFakePhone::PlugIn(m_platform.Libraries(), {"GetFileInfoListfromPhone"});
        Connect();
        Click(kCmdTake);
        EXPECT_EQ(Boxes(), nRestarts == 0 ? "" : "手机重启|");
        EXPECT_NE(Calls().find("IsConnected ConnectToPhone DisconnectToPhone "), std::string::npos);
    }
    Phone().nIdentity = 77;
    m_platform.TakeProblems();
}

// Whatever the phone calls its files, they come into the folder or are asked about.
TEST_F(TakeTest, NoNameLeadsOutOfTheFolder) {
    const auto all = [&] {
        std::set<std::string> setPaths;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(m_folder.Path("")))
            setPaths.insert(entry.path());
        return setPaths;
    };
    std::filesystem::create_symlink(m_folder.Path("outside"), Start("link.jpg"));
    Phone().arrFiles.clear();
    for (const std::string& strName :
         {std::string("../../up"), m_folder.Path("whole"), std::string(".."), std::string("..\\..\\back"),
          std::string("cut\0.exe", 8), std::string("link"), std::string("\xFF\xFE"), std::string(4096, 'n'),
          std::string()})
        Phone().arrFiles.push_back({.m_nFileId = 50, .m_strFileName = strName});
    Connect();
    m_folder.Write("install/FILE.Dat", "");
    std::set<std::string> setWanted = all();
    for (const char* szName : {"up.jpg", "whole.jpg", "...jpg", "\xFF\xFE.jpg", ".jpg"})
        setWanted.insert(Start(szName));
    Take({"all", "ok"});
    EXPECT_EQ(std::ranges::count(m_platform.TakeAsked(), EQuestion::Save, &CAsked::question), 3)
        << "back, cut and link";
    EXPECT_EQ(all(), setWanted);
    EXPECT_EQ(Boxes(), "文件已接受|");
    // The folder has been deleted and made anew behind the program's back.
    std::filesystem::remove_all(Start(""));
    std::filesystem::create_directory(Start(""));
    Phone().arrFiles = {{.m_nFileId = 51, .m_strFileName = "one"}, {.m_nFileId = 52, .m_strFileName = "two"}};
    Take({"all", "ok"});
    EXPECT_EQ(ReadBytes(Start("one.jpg")) + ReadBytes(Start("two.jpg")), "file 51file 52");
    Boxes();
}
