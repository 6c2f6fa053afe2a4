#pragma once

#include <string>
#include <vector>

#include "browse/BrowseHost.h"
#include "window/Drives.h"
#include "window/TreeModel.h"

// What follows the tree: shows the folder that is selected in it.
class CFolderFollower {
  public:
    virtual ~CFolderFollower() = default;
    // strPath ends in a separator.
    virtual void ShowFolder(const std::string& strPath) = 0;
};

// The tree of the machine's folders: the computer, its drives, and below them folders that are read when a
// node opens for the first time. It keeps no paths; they are worked out from the texts of the nodes. Each
// time the drives are read it looks at their tops for the folder kStartFolder and, if there is one, starts
// there.
class CFolderTree : public CTreeSink {
  public:
    static constexpr char kStartFolder[] = "ZEFA肖像";

    // All of these outlive the tree.
    CFolderTree(CDrives& drives, CBrowseHost& host, CFolderFollower& follower, char cSeparator);

    CTreeModel& Model() { return m_model; }
    // The folder of the current item, with a closing separator; empty at first.
    const std::string& CurrentPath() const { return m_strCurPath; }
    CTreeItem CurrentItem() const { return m_hCurItem; }

    // Makes the tree anew down to the drives and the start folder.
    void BuildRoot();
    // Selects the current item and shows its folder. Nothing if there is none.
    void ShowCurrentFolder();
    // Opens and selects the current item.
    void ReturnToCurrent();
    // Opens the current item, and makes the child with that path current if there is one. False if there is
    // none.
    bool StepInto(const std::string& strPath);
    // Takes a child of the selected item out of the tree that has been deleted, and opens the item.
    void DropChild(const std::string& strPath);
    // Lets the tree follow the folder into which a file was saved, if that lies on drive C and is not the
    // current one: the tree is made anew, and the folder, if it is a child of the current item, becomes
    // current. The path that counts from then on: the folder itself, or the folder of the first level above
    // it. Empty if nothing is to follow.
    std::string FollowFolder(const std::string& strFolder);

    // The same for the folder into which files were taken, wherever it lies; the tree stays as it is.
    std::string FollowTake(const std::string& strFolder);

    // The folder of an item, with a closing separator; empty for the root and for no item.
    std::string GetPath(CTreeItem item) const;

  private:
    void OnItemExpanding(CTreeItem item, bool bExpand) override;
    void OnSelectionChanged(CTreeItem item, ETreeCause cause) override;

    void FindStartFolder();
    void BuildDrives();
    void ExpandFolder(CTreeItem item);
    CTreeItem InsertFolder(CTreeItem parent, const std::string& strPath, const std::string& strName);
    CTreeItem FindChild(CTreeItem parent, const std::string& strPath) const;
    void ShowItem(CTreeItem item);
    std::string MakeCurrent(std::string strPath, const std::string& strRoot);
    const CDrive* FindDrive(char cLetter) const;
    const CDrive* DriveOfFolder(const std::string& strFolder) const;

    CDrives& m_drives;
    CBrowseHost& m_host;
    CFolderFollower& m_follower;
    char m_cSeparator;
    CTreeModel m_model;
    std::vector<CDrive> m_arrDrives;  // as last read
    CTreeItem m_hRoot = kNoTreeItem;
    CTreeItem m_hCurItem = kNoTreeItem;
    std::string m_strCurPath;
    char m_cStartDrive = 'C';
    bool m_bFoundFolder = false;
};
