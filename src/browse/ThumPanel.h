#pragma once

#include <string>

#include "browse/FolderTree.h"
#include "browse/PicFileList.h"

// THUM: the folder tree and the file list beside it, hooked to each other.
class CThumPanel {
  public:
    // All of these outlive the panel.
    CThumPanel(CDrives& drives, const CPicFileList::CEnvironment& env);

    CFolderTree& Tree() { return m_tree; }
    CPicFileList& List() { return m_list; }
    const CPicFileList& List() const { return m_list; }

    // At start: builds the tree.
    void Build() { m_tree.BuildRoot(); }
    // At start, when list and canvas stand: shows the folder that the tree starts on.
    void ShowCurrentFolder() { m_tree.ShowCurrentFolder(); }
    // Opens and selects the tree's current item and reads the list anew.
    void ReturnToFolder();
    // Lets tree and list follow the folder into which a file was saved.
    void FollowFolder(const std::string& strFolder);
    // Lets them follow the folder into which files were taken; bShow: the panel is up and shows it at once.
    void FollowTake(const std::string& strFolder, bool bShow);

  private:
    CPicFileList m_list;
    CFolderTree m_tree;
};
