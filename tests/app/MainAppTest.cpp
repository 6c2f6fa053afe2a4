#include "app/MainApp.h"

#include "app/SplashDlg.h"
#include "app/Workshop.h"

TEST(MainAppTest, FolderOfAStoredValue) {
    CScriptedPlatform platform;
    struct {
        const char* szValue;
        const char* szPath;
    } const kCases[] = {
        {"", ""},
        {"C:\\Program Files\\x", "C:\\Program Files\\x"},
        {"\"C:\\Program Files\\x\"", "C:\\Program Files\\x"},
        {"\"/opt/x", "/opt/"},  // without its closing quote it loses its last character all the same
        {"/opt/x\"", "/opt/x\""},
        {"\"\"", ""},
        {"\"", ""},
        {" \"/opt/x\"", " \"/opt/x\""},
    };
    for (const auto& row : kCases) {
        platform.SetInstallValue(row.szValue);
        EXPECT_EQ(platform.Get().folders.InstallFolder(), row.szPath) << row.szValue;
    }
}

TEST(MainAppTest, ThePictureStandsThreeSecondsBehindItsFirstPaint) {
    CScriptedPlatform platform;
    CSplashDlg splash(platform.Get().timers);
    CPlayHost host(platform, splash);
    host.Init();
    platform.Tick(3049);
    EXPECT_FALSE(splash.HasEnded());
    platform.Tick(1);
    EXPECT_TRUE(splash.HasEnded());
    EXPECT_EQ(platform.Timers().Count(), 0);
}

TEST(MainAppTest, RunsThePictureThenTheWindowThenEnds) {
    CScriptedPlatform platform;
    std::int64_t nWindowUp = -1;
    platform.SetRunner(kDlgMain, [&](CPlayHost& host) {
        nWindowUp = platform.Timers().Now();
        EXPECT_EQ(host.Click(kCmdNew), "");
        EXPECT_EQ(host.Click(kTabFont), "");
        host.Dialog().OnClose();
    });
    CMainApp app(platform.Get());
    app.InitInstance();
    EXPECT_EQ(nWindowUp, 3050);
    std::vector<int> arrDialogs;
    for (const CAsked& asked : platform.TakeAsked()) arrDialogs.push_back(asked.nDialog);
    EXPECT_EQ(arrDialogs, (std::vector{kDlgSplash, kDlgMain}));
    EXPECT_TRUE(platform.TakeBoxes().empty());
    EXPECT_EQ(platform.Timers().Count(), 0);
}
