#pragma once

#include <string>
#include <vector>

#include "browse/BrowseHost.h"
#include "browse/FolderTree.h"
#include "editor/EditEvents.h"
#include "window/Bitmaps.h"
#include "window/ControlSet.h"
#include "window/Events.h"
#include "window/Folders.h"
#include "window/IconListModel.h"
#include "window/MessageBoxes.h"
#include "window/Shell.h"
#include "window/Timers.h"
#include "window/WaitCursor.h"

// The pictures of a folder: its folders, then its JPEG files, each with its name below. Names appear at once,
// pictures one by one in slices between other events, under the wait cursor until the last is there; the
// progress bar goes along. A new fill ends the former.
class CPicFileList : public CIconListSink, public CFolderFollower, private CTimerTarget {
  public:
    // How long one slice of a fill may hold up other events.
    static constexpr int kSliceMilliseconds = 30;

    // All of these outlive the list. The pictures of folders come from the bitmaps of density 1.
    struct CEnvironment {
        CControlSet& controls;
        CFolders& folders;
        CShell& shell;
        CMessageBoxes& boxes;
        CTimers& timers;
        CWaitCursor& wait;
        CBitmaps& bitmaps;
        CBrowseHost& host;
        CEditEvents& events;
    };
    explicit CPicFileList(const CEnvironment& env);
    ~CPicFileList() override;

    void SetTree(CFolderTree* pTree) { m_pTree = pTree; }
    CIconListModel& Model() { return m_model; }
    // The folder shown; empty until the tree sets it.
    const std::string& Path() const { return m_strPath; }
    void SetPath(const std::string& strPath) { m_strPath = strPath; }
    // The number of folders, which stand in front of the files.
    int FolderCount() const { return static_cast<int>(m_arrFolders.size()); }

    // Reads the folder anew and rebuilds everything.
    void FillThumbnails();
    bool IsFilling() const { return m_bFilling; }
    // Makes all pictures that are still missing, at once.
    void FinishFill();
    // Ends a fill where it is.
    void StopFill();

    // The left button is down in the list.
    bool IsPressed() const { return m_bPressed; }
    void ForgetPress() { m_bPressed = false; }
    // How many items were selected when the mouse last moved with the button down.
    int SelectedWhilePressed() const { return m_nSelCount; }

    void DeleteSelected(bool bShift);

    // CFolderFollower
    void ShowFolder(const std::string& strPath) override;

    // CIconListSink
    void OnItemClick(int nItem) override;
    void OnItemDoubleClick(int nItem) override;
    void OnEnter() override;
    void OnKeyDown(int nKey, bool bShift) override;
    void OnRightPress(int nItem) override;
    void OnLeftPress() override { m_bPressed = true; }
    void OnLeftRelease() override { m_bPressed = false; }
    void OnMouseMove() override;

  private:
    void OnTimer(int nTimer) override;
    void BuildThumbnails();
    void MakeNext();
    void RestoreFolder();
    void StepIntoFolder(const std::string& strName);
    const CxImage* FolderPicture(int nBitmap) const;
    std::string PathOf(const std::string& strName) const;
    void RunDelete(const std::vector<std::string>& arrNames, bool bShift);

    CEnvironment m_env;
    CFolderTree* m_pTree = nullptr;
    CIconListModel m_model;
    std::string m_strPath;
    std::vector<std::string> m_arrFolders;
    std::vector<std::string> m_arrFiles;
    int m_nLastClicked = -1;
    bool m_bFolderLit = false;  // the folder at m_nLastClicked shows its lit picture
    bool m_bPressed = false;
    int m_nSelCount = 0;
    bool m_bFilling = false;
    int m_nNextItem = 0;  // the item whose picture comes next
};
