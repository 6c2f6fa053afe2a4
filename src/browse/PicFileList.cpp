#include "browse/PicFileList.h"

#include <algorithm>
#include <chrono>
#include <filesystem>

#include "browse/FolderReader.h"
#include "browse/Thumbnail.h"
#include "resources/BitmapIds.h"
#include "resources/Ids.h"
#include "resources/Texts.h"

namespace {

constexpr int kProgressEnd = 50;
constexpr int kTimerFill = 0;

ImageType TypeOf(const std::string& strName) {
    return FindImageTypeOfName(strName);
}

bool IsPicture(const std::string& strName) {
    return TypeOf(strName) != ImageType::kUnknown;
}

}  // namespace

CPicFileList::CPicFileList(const CEnvironment& env) : m_env(env) {
    m_model.SetSink(this);
    m_env.controls.SetRange(kProgress, 0, kProgressEnd);
}

CPicFileList::~CPicFileList() {
    StopFill();
}

std::string CPicFileList::PathOf(const std::string& strName) const {
    const bool bClosed = !m_strPath.empty() && m_strPath.back() == m_env.folders.Separator();
    return bClosed ? m_strPath + strName : m_strPath + m_env.folders.Separator() + strName;
}

void CPicFileList::ShowFolder(const std::string& strPath) {
    m_strPath = strPath;
    FillThumbnails();
    m_env.events.Tell(EEditEvent::FolderShown);
}

const CxImage* CPicFileList::FolderPicture(int nBitmap) const {
    return m_env.bitmaps.Find(std::to_string(nBitmap), 1);
}

// --- filling ---

void CPicFileList::FillThumbnails() {
    if (m_strPath.empty()) return;
    const CWaitScope wait(m_env.wait);
    StopFill();
    m_env.controls.SetPosition(kProgress, 0);
    m_env.events.Tell(EEditEvent::FillBegun);
    // What cannot be entered has nothing that could be shown.
    const bool bEntered = m_env.folders.SetCurrentFolder(m_strPath);
    m_arrFolders.clear();
    m_arrFiles.clear();
    for (CFolderEntry& entry : bEntered ? ReadFolder(m_strPath) : std::vector<CFolderEntry>()) {
        if (entry.bFolder)
            m_arrFolders.push_back(std::move(entry.strName));
        else if (TypeOf(entry.strName) == ImageType::kJpeg)
            m_arrFiles.push_back(std::move(entry.strName));
    }
    std::sort(m_arrFolders.begin(), m_arrFolders.end());
    std::sort(m_arrFiles.begin(), m_arrFiles.end());
    BuildThumbnails();
}

// The names at once; the folders' pictures too, since they are all the same.
void CPicFileList::BuildThumbnails() {
    m_bFolderLit = false;
    m_nLastClicked = -1;
    std::vector<std::string> arrNames = m_arrFolders;
    arrNames.insert(arrNames.end(), m_arrFiles.begin(), m_arrFiles.end());
    m_model.SetItems(arrNames);
    const CPixels cell = MakeFolderCell(FolderPicture(kBmpFolder));
    for (int i = 0; i < FolderCount(); ++i) m_model.SetPicture(i, cell);
    m_nNextItem = FolderCount();
    m_bFilling = true;
    m_env.wait.Begin();
    m_env.timers.SetTimer(*this, kTimerFill, 0);
}

// Begins another picture only if one like the last still goes into the slice.
void CPicFileList::OnTimer(int /*nTimer*/) {
    using CClock = std::chrono::steady_clock;
    const auto tEnd = CClock::now() + std::chrono::milliseconds(kSliceMilliseconds);
    CClock::duration tLast{};
    do {
        const auto tBegin = CClock::now();
        MakeNext();
        tLast = CClock::now() - tBegin;
    } while (m_bFilling && CClock::now() + tLast <= tEnd);
}

void CPicFileList::FinishFill() {
    while (m_bFilling) MakeNext();
}

void CPicFileList::MakeNext() {
    if (m_nNextItem >= m_model.Count()) {
        m_env.controls.SetPosition(kProgress, kProgressEnd);
        StopFill();
        return;
    }
    const int nItem = m_nNextItem++;
    CPixels pixels = MakeThumbnail(PathOf(m_model.Text(nItem)));
    // A file that cannot be opened keeps an empty cell and its name.
    if (!pixels.IsEmpty()) m_model.SetPicture(nItem, std::move(pixels));
    const auto nFiles = static_cast<int>(m_arrFiles.size());
    m_env.controls.SetPosition(kProgress, static_cast<int>(std::int64_t{nItem} * kProgressEnd / nFiles));
}

void CPicFileList::StopFill() {
    if (!m_bFilling) return;
    m_bFilling = false;
    m_env.timers.KillTimer(*this, kTimerFill);
    m_env.wait.End();
    m_env.events.Tell(EEditEvent::FillEnded);
}

// --- clicks ---

void CPicFileList::RestoreFolder() {
    if (m_nLastClicked >= 0 && m_nLastClicked < FolderCount())
        m_model.SetPicture(m_nLastClicked, MakeFolderCell(FolderPicture(kBmpFolder)));
}

// A folder with a picture's name counts as a picture here and in the double click: the name alone decides.
void CPicFileList::OnItemClick(int nItem) {
    if (nItem < 0 || nItem >= m_model.Count()) return;
    const std::string strName = m_model.Text(nItem);
    if (m_bFolderLit) RestoreFolder();
    m_bFolderLit = false;
    m_env.host.LeaveEditInfo();
    if (IsPicture(strName)) {
        m_env.host.ShowFileInfo(PathOf(strName), EFileInfo::Picture);
        m_env.events.Tell(EEditEvent::FileShown);
    } else {
        m_env.host.ShowFileInfo(strName, EFileInfo::Folder);
        m_model.SetPicture(nItem, MakeFolderCell(FolderPicture(kBmpFolderLit)));
        m_bFolderLit = true;
    }
    m_nLastClicked = nItem;
}

void CPicFileList::OnItemDoubleClick(int nItem) {
    if (nItem < 0 || nItem >= m_model.Count()) return;
    // The whole folder has gone meanwhile.
    if (!m_env.folders.SetCurrentFolder(m_strPath)) return FillThumbnails();
    const std::string strName = m_model.Text(nItem);
    if (IsPicture(strName))
        m_env.host.OpenPicture(m_strPath, strName);
    else
        StepIntoFolder(strName);
}

// A folder that has gone leaves the list in the one above, read anew.
void CPicFileList::StepIntoFolder(const std::string& strName) {
    const std::string strPath = PathOf(strName);
    if (m_env.folders.SetCurrentFolder(strPath)) {
        m_strPath = strPath;
        const std::string strClosed = strPath + m_env.folders.Separator();
        // Where the tree can follow, its selection has filled the list already.
        if (m_pTree != nullptr && m_pTree->StepInto(strClosed) && m_strPath == strClosed) return;
    }
    FillThumbnails();
}

void CPicFileList::OnEnter() {
    const std::vector<int> arrItems = m_model.SelectedItems();
    if (arrItems.size() != 1) return;
    if (!m_env.folders.SetCurrentFolder(m_strPath)) return FillThumbnails();
    m_env.shell.Open(PathOf(m_model.Text(arrItems.front())));
}

void CPicFileList::OnRightPress(int nItem) {
    if (nItem >= 0 && nItem < m_model.Count()) m_model.Select(nItem, !m_model.IsSelected(nItem));
}

void CPicFileList::OnMouseMove() {
    if (m_bPressed) m_nSelCount = m_model.SelectedCount();
}

// --- deleting ---

void CPicFileList::OnKeyDown(int nKey, bool bShift) {
    if (nKey == kKeyDelete && m_model.SelectedCount() > 0) DeleteSelected(bShift);
}

// One item without Shift is asked about by the program; in all other cases the system asks.
void CPicFileList::RunDelete(const std::vector<std::string>& arrNames, bool bShift) {
    std::vector<std::string> arrPaths;
    arrPaths.reserve(arrNames.size());
    for (const std::string& strName : arrNames) arrPaths.push_back(PathOf(strName));
    const bool bOwnQuestion = arrNames.size() == 1 && !bShift;
    if (bOwnQuestion) {
        const std::string strText = kTextDeleteBefore + arrNames.front() + kTextDeleteBehind;
        if (m_env.boxes.Show({strText, kTitleDelete, EBoxIcon::Exclamation, EBoxButtons::YesNo}) !=
            EBoxAnswer::Yes)
            return;
    }
    // What stays is seen in the list.
    static_cast<void>(m_env.shell.Delete(arrPaths, !bShift, !bOwnQuestion));
}

void CPicFileList::DeleteSelected(bool bShift) {
    std::vector<std::string> arrNames;
    for (const int nItem : m_model.SelectedItems()) arrNames.push_back(m_model.Text(nItem));
    if (arrNames.empty()) return;
    // The last selected item decides whether the tree is looked after.
    const bool bDirDeleted = !IsPicture(arrNames.back());
    const std::vector<std::string> arrGone = arrNames;
    RunDelete(arrNames, bShift);
    if (bDirDeleted && m_pTree != nullptr) {
        for (const std::string& strName : arrGone) {
            std::error_code error;
            // A folder that was refused, or spared by the answer, keeps its node.
            if (std::filesystem::exists(PathOf(strName), error)) continue;
            m_pTree->DropChild(PathOf(strName) + m_env.folders.Separator());
        }
    }
    FillThumbnails();
    m_env.host.ShowFileInfo("", EFileInfo::Clear);
}
