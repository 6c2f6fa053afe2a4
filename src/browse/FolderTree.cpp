#include "browse/FolderTree.h"

#include <algorithm>

#include "browse/FolderReader.h"

CFolderTree::CFolderTree(CDrives& drives, CBrowseHost& host, CFolderFollower& follower, char cSeparator)
    : m_drives(drives), m_host(host), m_follower(follower), m_cSeparator(cSeparator) {
    m_model.SetSink(this);
}

const CDrive* CFolderTree::FindDrive(char cLetter) const {
    const auto it = std::find_if(m_arrDrives.begin(), m_arrDrives.end(),
                                 [&](const CDrive& drive) { return drive.cLetter == cLetter; });
    return it == m_arrDrives.end() ? nullptr : &*it;
}

// The drive with the longest top folder that the folder lies in: where letters are made up, one drive can lie
// in another.
const CDrive* CFolderTree::DriveOfFolder(const std::string& strFolder) const {
    const CDrive* pBest = nullptr;
    for (const CDrive& drive : m_arrDrives) {
        if (!strFolder.starts_with(drive.strRoot)) continue;
        if (pBest == nullptr || drive.strRoot.size() > pBest->strRoot.size()) pBest = &drive;
    }
    return pBest;
}

std::string CFolderTree::GetPath(CTreeItem item) const {
    if (item == kNoTreeItem || item == m_hRoot) return {};
    std::string strPath;
    for (; m_model.Parent(item) != m_hRoot; item = m_model.Parent(item))
        strPath.insert(0, 1, m_cSeparator).insert(0, m_model.Text(item));
    // The text of a drive ends in its letter in brackets: "(X:)".
    const std::string& strText = m_model.Text(item);
    const CDrive* pDrive = strText.size() < 3 ? nullptr : FindDrive(strText[strText.size() - 3]);
    return pDrive == nullptr ? strPath : pDrive->strRoot + strPath;
}

void CFolderTree::BuildRoot() {
    m_model.DeleteAll();
    m_hCurItem = kNoTreeItem;
    m_hRoot = m_model.InsertLast(kNoTreeItem, m_drives.ComputerName(), ETreeIcon::Computer, true);
    m_model.Expand(m_hRoot);
}

void CFolderTree::OnItemExpanding(CTreeItem item, bool bExpand) {
    if (!bExpand) return;
    if (item == m_hRoot)
        BuildDrives();
    else
        ExpandFolder(item);
}

// Of several drives that hold the folder the last one wins.
void CFolderTree::FindStartFolder() {
    m_bFoundFolder = false;
    m_cStartDrive = 'C';
    for (const CDrive& drive : m_arrDrives) {
        if (drive.cLetter == 'A' || drive.cLetter == 'B') continue;
        const std::vector<CFolderEntry> arrEntries = ReadFolder(drive.strRoot);
        const bool bHolds = std::any_of(arrEntries.begin(), arrEntries.end(), [](const CFolderEntry& entry) {
            return entry.bFolder && entry.strName == kStartFolder;
        });
        if (!bHolds) continue;
        m_cStartDrive = drive.cLetter;
        m_bFoundFolder = true;
    }
}

void CFolderTree::BuildDrives() {
    m_arrDrives = m_drives.List();
    FindStartFolder();
    m_model.DeleteChildren(m_hRoot);
    m_hCurItem = kNoTreeItem;
    for (const CDrive& drive : m_arrDrives) {
        // The first two letters are left in peace until the user opens them.
        const bool bFloppy = drive.cLetter == 'A' || drive.cLetter == 'B';
        const CTreeItem item = m_model.InsertLast(m_hRoot, drive.strDisplay, drive.icon,
                                                  !bFloppy && HasSubfolders(drive.strRoot));
        if (drive.cLetter != m_cStartDrive) continue;
        // With its folders in it already, the opening reads nothing further.
        if (m_bFoundFolder) ExpandFolder(item);
        m_model.Expand(item);
        if (m_bFoundFolder) m_hCurItem = FindChild(item, drive.strRoot + kStartFolder + m_cSeparator);
        if (m_hCurItem != kNoTreeItem) m_model.Expand(m_hCurItem);
    }
}

CTreeItem CFolderTree::InsertFolder(CTreeItem parent, const std::string& strPath,
                                    const std::string& strName) {
    return m_model.InsertSorted(parent, strName, ETreeIcon::Folder, HasSubfolders(strPath + strName));
}

// A node is read once.
void CFolderTree::ExpandFolder(CTreeItem item) {
    if (!m_model.Children(item).empty()) return;
    const std::string strPath = GetPath(item);
    for (const CFolderEntry& entry : ReadFolder(strPath))
        if (entry.bFolder) InsertFolder(item, strPath, entry.strName);
}

CTreeItem CFolderTree::FindChild(CTreeItem parent, const std::string& strPath) const {
    if (!m_model.Exists(parent)) return kNoTreeItem;
    for (const CTreeItem child : m_model.Children(parent))
        if (GetPath(child) == strPath) return child;
    return kNoTreeItem;
}

void CFolderTree::OnSelectionChanged(CTreeItem item, ETreeCause cause) {
    if (cause == ETreeCause::Other) return;
    m_hCurItem = item;
    if (item == kNoTreeItem || item == m_hRoot) return;
    m_host.ShowFileInfo(m_model.Text(item), EFileInfo::Folder);
    ShowItem(item);
}

void CFolderTree::ShowItem(CTreeItem item) {
    m_strCurPath = GetPath(item);
    m_follower.ShowFolder(m_strCurPath);
    const bool bHasChildren = HasSubfolders(m_strCurPath);
    if (!bHasChildren) m_model.Collapse(item);
    m_model.SetHasChildrenMark(item, bHasChildren);
}

void CFolderTree::ShowCurrentFolder() {
    if (m_hCurItem == kNoTreeItem || m_hCurItem == m_hRoot) return;
    if (m_model.Selected() == m_hCurItem)
        ShowItem(m_hCurItem);
    else
        m_model.Select(m_hCurItem);
}

void CFolderTree::ReturnToCurrent() {
    if (m_hCurItem == kNoTreeItem) return;
    m_model.Expand(m_hCurItem);
    m_model.Select(m_hCurItem);
}

bool CFolderTree::StepInto(const std::string& strPath) {
    if (m_hCurItem == kNoTreeItem) return false;
    m_model.Expand(m_hCurItem);
    const CTreeItem child = FindChild(m_hCurItem, strPath);
    if (child == kNoTreeItem) return false;
    m_model.Expand(child);
    m_model.Select(child);
    m_hCurItem = child;
    return true;
}

void CFolderTree::DropChild(const std::string& strPath) {
    const CTreeItem selected = m_model.Selected();
    const CTreeItem child = FindChild(selected, strPath);
    if (child == kNoTreeItem) return;
    m_model.Delete(child);
    m_model.Expand(selected);
}

std::string CFolderTree::FollowFolder(const std::string& strFolder) {
    std::string strPath = strFolder;
    if (strPath.empty() || strPath.back() != m_cSeparator) strPath += m_cSeparator;
    const CDrive* pDrive = DriveOfFolder(strPath);
    if (strPath == m_strCurPath || pDrive == nullptr || pDrive->cLetter != 'C') return {};
    const std::string strRoot = pDrive->strRoot;
    BuildRoot();
    return MakeCurrent(strPath, strRoot);
}

std::string CFolderTree::FollowTake(const std::string& strFolder) {
    std::string strPath = strFolder;
    if (strPath.empty() || strPath.back() != m_cSeparator) strPath += m_cSeparator;
    const CDrive* pDrive = DriveOfFolder(strPath);
    // What is below it has perhaps not been read yet.
    if (m_hCurItem != kNoTreeItem) m_model.Expand(m_hCurItem);
    return MakeCurrent(strPath, pDrive != nullptr ? pDrive->strRoot : std::string(1, m_cSeparator));
}

// The child of the current item with that path, or else the one that is the folder of the first level above
// it.
std::string CFolderTree::MakeCurrent(std::string strPath, const std::string& strRoot) {
    CTreeItem child = FindChild(m_hCurItem, strPath);
    if (child == kNoTreeItem && strPath.size() > strRoot.size()) {
        strPath.resize(strPath.find(m_cSeparator, strRoot.size()) + 1);
        child = FindChild(m_hCurItem, strPath);
    }
    if (child != kNoTreeItem) m_hCurItem = child;
    m_strCurPath = strPath;
    return strPath;
}
