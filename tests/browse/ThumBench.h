#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "browse/FolderReader.h"
#include "browse/ThumPanel.h"
#include "resources/Ids.h"
#include "resources/MainDialog.h"
#include "support/Pictures.h"
#include "support/TempFolder.h"

// Tree and list on real folders, with everything else around them played. What they ask is kept as a list of
// words.
class ThumBench : public testing::Test,
                  public CDrives,
                  public CBrowseHost,
                  public CFolders,
                  public CShell,
                  public CMessageBoxes,
                  public CTimers,
                  public CWaitCursor,
                  public CBitmaps,
                  public CEditEvents,
                  public CControlObserver {
  protected:
    ThumBench()
        : m_strFolderBefore(std::filesystem::current_path().string()),
          m_controls(kMainDialog.arrControls),
          m_thum(*this, {m_controls, *this, *this, *this, *this, *this, *this, *this, *this}) {
        m_controls.Attach(this);
    }
    ~ThumBench() override {
        std::error_code error;
        std::filesystem::current_path(m_strFolderBefore, error);
    }
    void TearDown() override {
        m_list.StopFill();
        EXPECT_EQ(m_nWaits, 0);
        EXPECT_TRUE(m_setTimers.empty());
    }

    // A folder below the test's own, with all above it. Ends in a separator.
    std::string MakeFolder(const std::string& strName) {
        std::filesystem::create_directories(m_folder.Path(strName));
        return m_folder.Path(strName) + '/';
    }
    // A drive on such a folder.
    std::string AddDrive(char cLetter, const std::string& strName) {
        m_arrDrives.push_back(
            {cLetter, MakeFolder(strName), strName + " (" + cLetter + ":)", ETreeIcon::Disk});
        return m_arrDrives.back().strRoot;
    }
    std::string SaveJpeg(const std::string& strName, int nWidth, int nHeight, CColor color = {200, 100, 50}) {
        EXPECT_TRUE(FlatImage(nWidth, nHeight, color).Save(m_folder.Path(strName), ImageType::kJpeg));
        return m_folder.Path(strName);
    }
    void Remove(const std::string& strName) { std::filesystem::remove_all(m_folder.Path(strName)); }
    void Link(const std::string& strTarget, const std::string& strName) {
        std::filesystem::create_symlink(strTarget, m_folder.Path(strName));
    }

    // The list shows that folder.
    void Show(const std::string& strFolder) { static_cast<CFolderFollower&>(m_list).ShowFolder(strFolder); }
    // One tick of every timer. False if there is none.
    bool Tick() {
        const auto setNow = m_setTimers;
        for (const auto& [pTarget, nTimer] : setNow) pTarget->OnTimer(nTimer);
        return !setNow.empty();
    }
    void Fill() {
        while (Tick()) {
        }
    }
    std::vector<std::string> Words() { return std::exchange(m_arrWords, {}); }
    // The events, and the places of the progress bar between them.
    std::string Told() { return std::exchange(m_strTold, {}); }

    std::vector<std::string> Names() const {
        std::vector<std::string> arrNames;
        arrNames.reserve(static_cast<std::size_t>(m_icons.Count()));
        for (int i = 0; i < m_icons.Count(); ++i) arrNames.push_back(m_icons.Text(i));
        return arrNames;
    }
    // A letter for each cell: e empty, f folder, l lit folder, p anything else.
    std::string Cells() const {
        std::string strCells;
        for (int i = 0; i < m_icons.Count(); ++i) {
            const CPixels& cell = m_icons.Picture(i);
            EXPECT_TRUE(cell.IsEmpty() || (cell.Width() == 110 && cell.Height() == 110));
            const CColor color = cell.IsEmpty() ? CColor{} : PixelAt(cell, 60, 60);
            strCells += cell.IsEmpty() ? 'e' : color == kFolder ? 'f' : color == kLit ? 'l' : 'p';
        }
        return strCells;
    }
    void Select(const std::vector<int>& arrItems) { m_icons.TakeSelection(arrItems); }

    // A line for each node: its text with + for the mark, v when it is open, * for the selected one, ! for
    // the current one.
    std::string Dump(CTreeItem item = kNoTreeItem, int nDepth = 0) {
        std::string strLines;
        for (const CTreeItem child : m_nodes.Children(item)) {
            strLines += std::string(static_cast<std::size_t>(nDepth), ' ') + m_nodes.Text(child);
            if (m_nodes.HasChildrenMark(child)) strLines += '+';
            if (m_nodes.IsExpanded(child)) strLines += 'v';
            if (m_nodes.Selected() == child) strLines += '*';
            if (m_tree.CurrentItem() == child) strLines += '!';
            strLines += '\n' + Dump(child, nDepth + 1);
        }
        return strLines;
    }
    // The first node of that text.
    CTreeItem Node(const std::string& strText, CTreeItem parent = kNoTreeItem) {
        for (const CTreeItem child : m_nodes.Children(parent)) {
            if (m_nodes.Text(child) == strText) return child;
            if (const CTreeItem found = Node(strText, child); found != kNoTreeItem) return found;
        }
        return kNoTreeItem;
    }
    // What the hand does.
    void Choose(const std::string& strText) { m_nodes.Select(Node(strText), ETreeCause::Mouse); }
    void Unfold(const std::string& strText) { m_nodes.Expand(Node(strText), true); }

    std::vector<CDrive> List() override { return m_arrDrives; }
    std::string ComputerName() override { return "computer"; }

    void ShowFileInfo(const std::string& strName, EFileInfo kind) override {
        Say("info " + strName + " " + std::to_string(static_cast<int>(kind)));
    }
    void OpenPicture(const std::string& strFolder, const std::string& strName) override {
        Say("open " + strFolder + " " + strName);
    }
    void LeaveEditInfo() override { Say("browse"); }

    void Tell(EEditEvent event) override { m_strTold += kEventWords.at(event); }
    void OnControlChanged(const CControl& control, EControlChange change) override {
        EXPECT_TRUE(control.nId == kProgress && change == EControlChange::Position) << "another's control";
        m_strTold += std::to_string(control.nPos) + ' ';
    }

    char Separator() const override { return '/'; }
    std::string CurrentFolder() const override { return std::filesystem::current_path().string(); }
    bool SetCurrentFolder(const std::string& strFolder) override {
        std::error_code error;
        std::filesystem::current_path(strFolder, error);
        return !error;
    }
    std::string InstallValue() const override { return {}; }

    bool Delete(const std::vector<std::string>& arrPaths, bool bToBin, bool bAsk) override {
        std::string strWord = std::string("delete") + (bToBin ? " to bin" : "") + (bAsk ? " ask" : "");
        for (const std::string& strPath : arrPaths) strWord += " " + strPath;
        Say(strWord);
        if (!m_bShellRefuses)
            for (const std::string& strPath : arrPaths) std::filesystem::remove_all(strPath);
        return !m_bShellRefuses;
    }
    void Open(const std::string& strPath) override { Say("run " + strPath + " in " + CurrentFolder()); }
    EBoxAnswer Show(const CMessageBox& box) override {
        m_arrBoxes.push_back(box);
        return m_answer;
    }
    void SetTimer(CTimerTarget& target, int nTimer, int) override { m_setTimers.emplace(&target, nTimer); }
    void KillTimer(CTimerTarget& target, int nTimer) override { m_setTimers.erase({&target, nTimer}); }
    void Begin() override { ++m_nWaits; }
    void End() override { --m_nWaits; }
    const CxImage* Find(const std::string& strName, int) override {
        if (strName == "413") return &m_imgFolder;
        return strName == "415" ? &m_imgLit : nullptr;
    }

    static inline const std::map<EEditEvent, std::string> kEventWords = {{EEditEvent::FolderShown, "folder "},
                                                                         {EEditEvent::FileShown, "file "},
                                                                         {EEditEvent::FillBegun, "fill "},
                                                                         {EEditEvent::FillEnded, "end "}};
    static constexpr CColor kFolder{10, 20, 30};
    static constexpr CColor kLit{40, 50, 60};

    CTempFolder m_folder;
    std::string m_strFolderBefore;
    std::vector<CDrive> m_arrDrives;
    std::vector<CMessageBox> m_arrBoxes;
    EBoxAnswer m_answer = EBoxAnswer::Yes;
    std::set<std::pair<CTimerTarget*, int>> m_setTimers;
    int m_nWaits = 0;
    bool m_bShellRefuses = false;
    CxImage m_imgFolder = FlatImage(122, 123, kFolder);
    CxImage m_imgLit = FlatImage(122, 125, kLit);
    CControlSet m_controls;
    CThumPanel m_thum;
    CFolderTree& m_tree = m_thum.Tree();
    CTreeModel& m_nodes = m_tree.Model();
    CPicFileList& m_list = m_thum.List();
    CIconListModel& m_icons = m_list.Model();
    CIconListSink& m_hand = m_list;  // what the window tells the list

  private:
    void Say(const std::string& strWord) { m_arrWords.push_back(strWord); }
    std::vector<std::string> m_arrWords;
    std::string m_strTold;
};
