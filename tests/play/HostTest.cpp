#include <gtest/gtest.h>

#include <array>

#include "play/ScriptedPlatform.h"
#include "resources/Ids.h"
#include "support/TempFolder.h"
#include "window/FileDialogs.h"

namespace {

constexpr int kCheck = 10, kLine = 13, kView = 14, kPlace = 17;
constexpr std::array kControls = {
    CControlTemplate{kCheck, EControlKind::Check, CRect::FromPlace(0, 0, 10, 10)},
    CControlTemplate{kLine, EControlKind::Static, CRect::FromPlace(0, 30, 50, 10)},
    CControlTemplate{kView, EControlKind::View, CRect::FromPlace(50, 50, 40, 40)},
    CControlTemplate{kPlace, EControlKind::Place, CRect::FromPlace(20, 50, 10, 10)},
};
constexpr CDialogTemplate kTemplate = {900, "", {100, 100}, EDialogFrame::Plain, kControls};

std::string Tell(const CMouseEvent& event) {
    return std::to_string(static_cast<int>(event.action)) + std::to_string(static_cast<int>(event.button)) +
           "@" + std::to_string(event.pt.x) + "," + std::to_string(event.pt.y) + "/" +
           std::to_string(event.nFlags);
}

// Writes down what comes to it.
class CLogView : public CScrollView {
  public:
    explicit CLogView(std::string& strLog) : CScrollView({40, 40}), m_strLog(strLog) {}
    void OnMouse(const CMouseEvent& event) override { m_strLog += "view " + Tell(event) + ";"; }
    void OnDraw(CSurface& /*surface*/) override { m_strLog += "draw;"; }

  private:
    std::string& m_strLog;
};

class CLogDialog : public CFileDialogPanel {
  public:
    CLogDialog() : CFileDialogPanel(kTemplate), m_view(m_strLog) {}
    void OnInitDialog() override { m_strLog += "init;"; }
    void OnDestroy() override { m_strLog += "destroy;"; }
    void OnCommand(int nId) override { m_strLog += "command " + std::to_string(nId) + ";"; }
    void OnMouse(const CMouseEvent& event) override { m_strLog += "mouse " + Tell(event) + ";"; }
    void OnHover(int nId, bool bLeft) override {
        m_strLog += "hover " + std::to_string(nId) + (bLeft ? " down;" : ";");
    }
    bool OnKey(const CKeyEvent& event) override { return event.nKey != kKeyEscape; }
    void OnTimer(int nTimer) override { m_strLog += "timer " + std::to_string(nTimer) + ";"; }
    void OnFileNameChange(const std::string& strPath) override {
        m_strLog += "file " + std::filesystem::path(strPath).filename().string() + ";";
        Invalidate();
    }
    CScrollView* ViewOf(int nId) override { return nId == kView ? &m_view : nullptr; }
    void OnPaint(CClientArea& /*client*/) override {
        m_strLog += "paint;";
        if (m_bRestless) Invalidate();
    }
    std::string TakeLog() { return std::exchange(m_strLog, {}); }

    bool m_bRestless = false;
    std::string m_strLog;
    CLogView m_view;
};

class HostTest : public testing::Test {
  protected:
    HostTest() {
        m_host.emplace(m_platform, m_dialog);
        m_host->Init();
        m_dialog.TakeLog();
    }
    CPlatform Get() { return m_platform.Get(); }

    CScriptedPlatform m_platform;
    CLogDialog m_dialog;
    std::optional<CPlayHost> m_host;
};

}  // namespace

TEST_F(HostTest, PaintsBetweenEventsOnlyWhatIsSeen) {
    m_dialog.Controls().Show(kView, false);
    m_dialog.m_view.Invalidate();
    m_dialog.Invalidate();
    EXPECT_EQ(m_host->Click(kCheck), "");
    EXPECT_EQ(m_dialog.TakeLog(), "command 10;paint;");
    m_dialog.Controls().Show(kView, true);
    EXPECT_TRUE(m_host->Pump());
    EXPECT_EQ(m_dialog.TakeLog(), "draw;");
    m_dialog.m_bRestless = true;
    m_dialog.Invalidate();
    EXPECT_FALSE(m_host->Pump());
}

TEST_F(HostTest, EscapeClosesWhatDoesNotTakeIt) {
    EXPECT_EQ(m_host->Key({kKeyEnter}), "");
    EXPECT_FALSE(m_dialog.HasEnded());
    EXPECT_EQ(m_host->Key({kKeyEscape}), "");
    EXPECT_TRUE(m_dialog.HasEnded());
    EXPECT_EQ(m_dialog.EndCode(), CDialog::kDialogCancel);
}

TEST_F(HostTest, EndsTheWindow) {
    Get().timers.SetTimer(m_dialog, 1, 5);
    Get().timers.SetTimer(m_dialog.m_view, 1, 5);
    CLogDialog other;
    Get().timers.SetTimer(other, 1, 5);
    m_host.reset();
    EXPECT_EQ(m_platform.Timers().Count(), 1) << "another window's goes on";
    EXPECT_EQ(m_dialog.TakeLog(), "destroy;");
}

TEST_F(HostTest, NamesPathsByTheNearestDrive) {
    m_platform.AddDrive('D', "/a");
    m_platform.AddDrive('C', "/a/b/");
    m_platform.AddDrive('D', "/");
    EXPECT_EQ(m_platform.OnDrive("/a/b/c/d.jpg"), "C:/c/d.jpg");
    EXPECT_EQ(m_platform.OnDrive("/a/b"), "C:");
    EXPECT_EQ(m_platform.OnDrive("/a/bc/"), "D:/a/bc/");
}

TEST_F(HostTest, OpenDialogFollowsTheSelectionAndMovesThere) {
    const CTempFolder folder;
    CLogDialog panel;
    m_dialog.Invalidate();
    m_platform.AnswerCancel();
    m_platform.AnswerOpen(folder.Path("x.jpg"));
    EXPECT_FALSE(Get().files.RunOpen({}, nullptr));
    // The window behind is painted while the dialog stands.
    EXPECT_EQ(m_dialog.TakeLog(), "paint;");
    const std::optional<CFileChoice> choice = Get().files.RunOpen({"*|*||", ""}, &panel);
    EXPECT_EQ(choice, (CFileChoice{folder.Path("x.jpg"), "x.jpg"}));
    EXPECT_EQ(panel.TakeLog(), "init;paint;draw;file x.jpg;paint;destroy;");
    EXPECT_EQ(Get().folders.CurrentFolder(), std::filesystem::canonical(folder.Path()));
    EXPECT_FALSE(Get().folders.SetCurrentFolder(folder.Path("none")));
    EXPECT_EQ(m_platform.TakeAsked().at(1).request.strFilter, "*|*||");
    EXPECT_TRUE(Get().folders.SetCurrentFolder("/"));
}
