// Connecting: what is asked of the phone and in which order, what becomes of every code, and what the keys
// say then.

#include <algorithm>

#include "app/PhoneWorkshop.h"
#include "engines/linkset/UserSet.h"
#include "link/PhoneSizeDlg.h"
#include "link/PortSelectDlg.h"
#include "resources/BitmapIds.h"

namespace {

using ConnectTest = PhoneWorkshop;

constexpr char kNewPhone[] =
    "GetPhoneInfo ConnectToPhone GetNumResolution GetResolution GetResolution GetThumbnailResolution "
    "DisconnectToPhone ";

}  // namespace

TEST_F(ConnectTest, ANewPhoneIsAskedForEverythingOnceAndThenKnown) {
    EXPECT_EQ(Keys(), "x--");
    Click(kCmdConnect);
    EXPECT_EQ(Calls(), kNewPhone);
    EXPECT_EQ(Boxes(), "和手机连接完成|");
    EXPECT_EQ(Keys(), "-xx");
    EXPECT_TRUE(Facts().m_bConnected && Facts().m_bPhotoPhone && Facts().m_bUsbPort == 1);
    EXPECT_EQ(Facts().m_nPort, 7);
    EXPECT_EQ(Facts().m_nMaxFiles, -1) << "0 is no limit";
    EXPECT_EQ(Facts().m_arrPhoneSizes, Phone().arrSizes);
    CUserSet users;
    users.m_strFileName = m_folder.Path("install/User.Dat");
    ASSERT_TRUE(users.Open());
    ASSERT_EQ(users.m_nDataArray.size(), 1U);
    EXPECT_EQ(users.m_nDataArray[0].m_arrUserSizes, Phone().arrSizes);

    // Known, it is not asked again, whatever it would say now; its picture runs through.
    Phone().arrSizes = {{1, 1}};
    Phone().nSizes = 1;
    const std::int64_t nBefore = m_platform.Timers().Now();
    m_dialog.OnCommand(kCmdConnect);
    EXPECT_EQ(Calls(), "GetPhoneInfo ");
    EXPECT_EQ(Boxes(), "");
    EXPECT_EQ(Facts().m_arrPhoneSizes.size(), 2U);
    EXPECT_EQ(m_platform.Timers().Now() - nBefore, CTimers::kLeastPeriod + 39 * 180);
    EXPECT_EQ(Keys(), "-xx");
}

TEST_F(ConnectTest, APhoneWithoutPicturesIsConnectedAndForgotten) {
    Phone().nKind = 3;
    Phone().bNoRestart = 0;
    Phone().nMostFiles = 9;
    // The wait for the restart: there, silent twice, there again.
    int nPoll = 0;
    Phone().fnCode = [&](const std::string& strCall) -> std::int32_t {
        if (strCall != "GetPhoneInfo" || ++nPoll <= 2) return LINK_OK;
        return nPoll <= 4 ? LINK_CONNECT_FAILED : LINK_OK;
    };
    const std::int64_t nBefore = m_platform.Timers().Now();
    Click(kCmdConnect);
    EXPECT_EQ(Boxes(), "和手机连接完成\n\n手机重启|");
    EXPECT_EQ(Calls(),
              "GetPhoneInfo ConnectToPhone DisconnectToPhone GetPhoneInfo GetPhoneInfo GetPhoneInfo "
              "GetPhoneInfo ");
    EXPECT_EQ(m_platform.Timers().Now() - nBefore, 40 + CTimers::kLeastPeriod + 3 * 180 + 1300);
    EXPECT_TRUE(Facts().m_bConnected);
    EXPECT_TRUE(!Facts().m_bPhotoPhone && Facts().m_arrPhoneSizes.empty());
    EXPECT_EQ(Facts().m_nMaxFiles, 9);
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path("install/User.Dat")));
    EXPECT_EQ(Keys(), "-xx");
    // Without a way back the wait ends behind its polls, and on a serial port at once.
    Phone().fnCode = {};
    m_dialog.OnCommand(kCmdConnect);
    EXPECT_EQ(std::ranges::count(Calls(), 'I'), 1 + 91);
    m_platform.Ports().SetPort("OrvoE CDMA USB Serial Port (COM7)", EPortProbe::Busy);
    CAnswer port;
    port.question = EQuestion::Port;
    port.nPort = 12;
    m_platform.Answer(port);
    m_dialog.OnCommand(kCmdConnect);
    EXPECT_EQ(std::ranges::count(Calls(), 'I'), 1 + 1);
    EXPECT_EQ(Facts().m_nPort, 12);
    Boxes();
}

TEST_F(ConnectTest, WithoutPortOrLibraryItSaysSo) {
    m_platform.AnswerCancel();
    m_platform.Ports().SetPort("OrvoE CDMA USB Serial Port (COM7)", EPortProbe::Busy);
    Click(kCmdConnect);
    EXPECT_EQ(Boxes(), "") << "the port dialog was left";
    EXPECT_TRUE(m_platform.Ports().RemovePort("OrvoE CDMA USB Serial Port (COM7)"));
    Click(kCmdConnect);
    EXPECT_EQ(m_platform.TakeBoxes(), (std::vector<CMessageBox>{{"请确认手机和USB数据线的连接后重试", "注意",
                                                                 EBoxIcon::Exclamation, EBoxButtons::Ok}}));
    m_platform.Libraries().RemoveFunctions();
    m_platform.Ports().SetPort("OrvoE CDMA USB Serial Port (COM9)", EPortProbe::Free);
    Click(kCmdConnect);
    EXPECT_EQ(m_platform.TakeBoxes(), (std::vector<CMessageBox>{{"下载OrvoLinkMgr.dll失败", "检查DLL文件",
                                                                 EBoxIcon::Stop, EBoxButtons::Ok}}));
    EXPECT_EQ(Keys(), "x--");
    m_platform.TakeProblems();
}

// Frame by frame, round and round; a picture that is asked for has been drawn.
TEST_F(ConnectTest, ThePicturesRunWhileItWorks) {
    struct CNotedBitmaps : CBitmaps {
        const CxImage* Find(const std::string& strName, int /*nDensity*/) override {
            const int n = std::atoi(strName.c_str());
            const bool bFrame = (n >= kBmpConnectFrame && n < kBmpConnectFrame + kConnectFrames) ||
                                (n >= kBmpTakeFrame && n < kBmpTakeFrame + kTransferFrames);
            if (bFrame && (arrFrames.empty() || arrFrames.back() != n)) arrFrames.push_back(n);
            return nullptr;
        }
        std::vector<int> arrFrames;
    } bitmaps;
    Connect();
    m_platform.SetBitmaps(&bitmaps);
    m_dialog.OnCommand(kCmdConnect);
    const auto fnRun = [](int nFirst, int nFrames, int nFrom, int nSteps) {
        std::vector<int> arrRun(static_cast<std::size_t>(nSteps));
        for (int i = 0; i < nSteps; ++i) arrRun[static_cast<std::size_t>(i)] = nFirst + (nFrom + i) % nFrames;
        return arrRun;
    };
    EXPECT_EQ(bitmaps.arrFrames, fnRun(kBmpConnectFrame, kConnectFrames, 0, 40));
    Phone().arrFiles = {{.m_nFileId = 1, .m_strFileName = "one"}};
    Phone().fnCode = [&](const std::string& strCall) -> std::int32_t {
        if (strCall != "GetFilefromPhone") return LINK_OK;
        bitmaps.arrFrames.clear();
        m_platform.Tick(9 * 150);
        return LINK_OK;
    };
    AnswerFiles({"tick 0", "ok"});
    m_dialog.OnCommand(kCmdTake);
    EXPECT_EQ(bitmaps.arrFrames, fnRun(kBmpTakeFrame, kTransferFrames, 2, 9));
    m_platform.SetBitmaps(nullptr);
    m_dialog.Thum().List().StopFill();
    Boxes();
}

TEST_F(ConnectTest, TheSmallDialogsStartAndEndAsTheyShow) {
    m_dialog.Thum().List().StopFill();
    CPhoneSizeDlg sizes({{640, 480}, {176, 144}});
    {
        CPlayHost host(m_platform, sizes);
        host.Init();
        EXPECT_EQ(sizes.Controls().Selection(kPhoneSizes), 0);
        EXPECT_EQ(host.Click(kPhoneSizeOk), "");
    }
    EXPECT_EQ(sizes.Chosen(), (CSize{640, 480}));
    CMessageBoxes& boxes = m_platform.Get().boxes;
    CPortSelectDlg ports({"OrvoE (COM7)"}, boxes);
    CPlayHost host(m_platform, ports);
    host.Init();
    EXPECT_EQ(host.Click(kPortCancel), "");
    EXPECT_TRUE(ports.HasEnded());
    EXPECT_EQ(ports.EndCode(), CDialog::kDialogCancel);
}

// Every function that gives a code with every code, in the exchange that calls it, on a phone that restarts
// and on one that does not.
TEST_F(ConnectTest, EveryCodeOfEveryFunctionIsTold) {
    struct {
        const char* szFunction;
        int nCommand;
        // Codes that are not looked at there, or none
        bool bOnlyTwo;  // just -1 and 2 count
        bool bIgnored;  // no code counts
    } const kCases[] = {
        {"ConnectToPhone", kCmdConnect, false, false},
        {"GetNumResolution", kCmdConnect, true, false},
        {"GetResolution", kCmdConnect, false, false},
        {"GetThumbnailResolution", kCmdConnect, false, false},
        {"GetPhoneInfo", kCmdTake, false, false},
        {"ChangeUSBStream", kCmdTake, false, false},
        {"ConnectToPhone", kCmdTake, false, false},
        {"GetFileInfoListfromPhone", kCmdTake, false, false},
        {"GetFilefromPhone", kCmdTake, false, false},
        {"SendDummyPacket", kCmdTake, false, true},
        {"GetPhoneInfo", kCmdSend, false, false},
        {"ChangeUSBStream", kCmdSend, false, false},
        {"ConnectToPhone", kCmdSend, false, false},
        {"GetTotalFileNum", kCmdSend, false, false},
        {"GetAvailableMemorySize", kCmdSend, false, false},
        {"TransferFileToPhone", kCmdSend, false, false},
        {"SendDummyPacket", kCmdSend, false, true},
    };
    Phone().arrFiles = {{.m_nFileId = 1, .m_strFileName = "one"}};
    for (const auto& row : kCases)
        for (const bool bNoRestart : {true, false})
            for (int nCode = -5; nCode <= 23; ++nCode) {
                if (nCode == LINK_OK) continue;
                // These two have a meaning of their own there.
                if (std::string(row.szFunction) == "GetFilefromPhone" && (nCode == 16 || nCode == 17))
                    continue;
                SCOPED_TRACE(testing::Message() << row.szFunction << " gives " << nCode << " to "
                                                << row.nCommand << (bNoRestart ? "" : ", restarts"));
                std::filesystem::remove(m_folder.Path("install/User.Dat"));
                std::filesystem::remove(Start("one.jpg"));
                Phone().mapCodes.clear();
                Phone().bNoRestart = bNoRestart ? 1 : 0;
                if (row.nCommand != kCmdConnect) m_dialog.OnCommand(kCmdConnect);
                Boxes();
                Calls();
                m_platform.ForgetAnswers();
                if (row.nCommand == kCmdTake) AnswerFiles({"tick 0", "ok"});
                if (row.nCommand == kCmdSend) ClickFile("b.jpg");
                Phone().mapCodes[row.szFunction] = nCode;
                m_dialog.OnCommand(row.nCommand);

                const auto* const pRow =
                    std::ranges::find_if(kLinkCodes, [&](const auto& code) { return code.nCode == nCode; });
                const bool bCounts = !row.bIgnored && (!row.bOnlyTwo || nCode == -1 || nCode == 2);
                const bool bTold = bCounts && pRow != kLinkCodes.end();
                std::string strTold = bTold ? std::string(pRow->szText) : "";
                if (bTold && pRow->bTail && !bNoRestart) strTold += "\n\n手机重启";
                const std::string strBoxes = Boxes();
                EXPECT_EQ(bTold, strBoxes.find(strTold + "|") == 0) << strBoxes;
                EXPECT_TRUE(bTold || strBoxes.find("失败") == std::string::npos) << strBoxes;
                if (bTold && !pRow->bKeepsUp) {
                    EXPECT_FALSE(Facts().m_bConnected);
                    EXPECT_EQ(Keys(), "x--");
                }
                if (bTold && pRow->bKeepsUp && row.nCommand != kCmdConnect) {
                    const char* const szFailed = row.nCommand == kCmdTake ? "--x" : "-x-";
                    const bool bLine = std::string(row.szFunction) == "ConnectToPhone";
                    EXPECT_EQ(Keys(), bLine ? szFailed : "-xx");
                }
                // Whatever was opened is closed.
                const std::string strCalls = Calls();
                const std::size_t nOpened = strCalls.rfind("ConnectToPhone ");
                const bool bOpened = nOpened != std::string::npos && nOpened > 0 &&
                                     !(std::string(row.szFunction) == "ConnectToPhone" && bCounts);
                EXPECT_TRUE(!bOpened || strCalls.rfind("DisconnectToPhone ") != std::string::npos)
                    << strCalls;
                EXPECT_EQ(m_platform.WaitDepth(), m_dialog.Thum().List().IsFilling() ? 1 : 0);
            }
    m_dialog.Thum().List().StopFill();
    m_platform.ForgetAnswers();
}

// What a library has never been told to do must do no harm either.
TEST_F(ConnectTest, OddLibrariesDoNoHarm) {
    const std::vector<std::string> arrAll = {"GetPhoneInfo",
                                             "ConnectToPhone",
                                             "DisconnectToPhone",
                                             "IsConnected",
                                             "ChangeUSBStream",
                                             "GetNumResolution",
                                             "GetResolution",
                                             "GetThumbnailResolution",
                                             "SendDummyPacket",
                                             "StopDummyPacket",
                                             "GetFileInfoListfromPhone",
                                             "GetFilefromPhone",
                                             "GetAvailableMemorySize",
                                             "GetTotalFileNum",
                                             "TransferFileToPhone",
                                             "GetSDCardStatus"};
    Phone().arrFiles = {{.m_nFileId = 1, .m_strFileName = "one"}};
    const auto exchange = [&](bool bCard) {
        std::filesystem::remove(m_folder.Path("install/User.Dat"));
        Phone().bHasCard = bCard ? 1 : 0;
        m_dialog.OnCommand(kCmdConnect);
        AnswerFiles({"wait 6000", "tick 0", "ok"});
        m_dialog.OnCommand(kCmdTake);
        ClickFile("b.jpg");
        m_dialog.OnCommand(kCmdSend);
        m_platform.ForgetAnswers();
        Boxes();
    };
    for (const std::string& strLacking : arrAll)
        for (const bool bCard : {false, true}) {
            SCOPED_TRACE(strLacking);
            CFakePhone::PlugIn(m_platform.Libraries(), {strLacking});
            exchange(bCard);
        }
    CFakePhone::PlugIn(m_platform.Libraries());
    for (const std::int32_t nSizes : {-1, 0, 1000, 1'000'000}) {
        Phone().nSizes = nSizes;
        exchange(false);
        EXPECT_LE(Facts().m_arrPhoneSizes.size(), 1000U);
    }
    Phone().nSizes = 2;
    constexpr int kMost = 2'147'483'647;
    for (const CSize size : {CSize{0, 0}, {-1, kMost}, {kMost, kMost}}) {
        Phone().arrSizes = {size};
        Phone().sizeThumb = size;
        Phone().nStored = kMost;
        exchange(false);
    }
    m_dialog.Thum().List().StopFill();
}
