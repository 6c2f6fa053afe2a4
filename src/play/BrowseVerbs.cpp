// What the user does with the folder tree and the file list.

#include "play/Verbs.h"
#include "resources/Ids.h"

namespace {

// --- tree ---

CTreeItem FindDriveItem(CStage& stage, CTreeItem root, char cLetter) {
    for (const CDrive& drive : stage.platform.Drives())
        if (drive.cLetter == cLetter) return stage.host.FindItem(kFolderTree, root, drive.strDisplay);
    return kNoTreeItem;
}

// Opens an item on the way to another, as the user must to see what is in it.
std::string OpenOnTheWay(CStage& stage, CTreeItem item) {
    const CTreeModel& model = stage.dialog.Thum().Tree().Model();
    if (model.IsExpanded(item) || !model.HasChildrenMark(item)) return {};
    return stage.host.OpenItem(kFolderTree, item);
}

// Finds the item of a path "D:/photos/sea", or of "/" for the top.
std::string FindItem(CStage& stage, const std::string& strPath, CTreeItem& item) {
    const std::vector<CTreeItem>& arrTop = stage.dialog.Thum().Tree().Model().Children(kNoTreeItem);
    item = arrTop.empty() ? kNoTreeItem : arrTop.front();
    if (strPath == "/") return {};
    const std::filesystem::path path(strPath);
    const std::string strDrive = path.begin() == path.end() ? std::string{} : path.begin()->string();
    const std::optional<char> cLetter =
        strDrive.size() == 2 && strDrive[1] == ':' ? ParseLetter(strDrive.substr(0, 1)) : std::nullopt;
    if (!cLetter) return NotA(strPath, "path that begins with a drive");
    if (std::string strWhy = OpenOnTheWay(stage, item); !strWhy.empty()) return strWhy;
    item = FindDriveItem(stage, item, *cLetter);
    for (auto it = std::next(path.begin()); it != path.end() && item != kNoTreeItem; ++it) {
        if (it->empty()) continue;
        if (std::string strWhy = OpenOnTheWay(stage, item); !strWhy.empty()) return strWhy;
        item = stage.host.FindItem(kFolderTree, item, it->string());
    }
    return item == kNoTreeItem ? "the tree has no " + Quote(strPath) : std::string{};
}

std::string Tree(CStage& stage, const CWords& arrWords) {
    const bool bSelect = arrWords[0] == "select";
    if (!bSelect && arrWords[0] != "open" && arrWords[0] != "close")
        return NotA(arrWords[0], "thing to do in the tree");
    CTreeItem item = kNoTreeItem;
    if (std::string strWhy = FindItem(stage, arrWords[1], item); !strWhy.empty()) return strWhy;
    if (bSelect) return stage.host.SelectItem(kFolderTree, item);
    return arrWords[0] == "open" ? stage.host.OpenItem(kFolderTree, item)
                                 : stage.host.CloseItem(kFolderTree, item);
}

// --- list ---

std::string FindName(CStage& stage, const std::string& strName, int& nItem) {
    nItem = stage.host.FindIcon(kFileList, strName);
    return nItem < 0 ? "the list has no " + Quote(strName) : std::string{};
}

std::string ClickName(CStage& stage, const CWords& arrWords) {
    if (arrWords.size() < 2) return stage.host.ClickIcon(kFileList, -1);
    int nItem = -1;
    if (std::string strWhy = FindName(stage, arrWords[1], nItem); !strWhy.empty()) return strWhy;
    unsigned nKeys = 0;
    for (std::size_t i = 2; i < arrWords.size(); ++i) {
        if (arrWords[i] != "shift" && arrWords[i] != "ctrl")
            return NotA(arrWords[i], "key beside shift and ctrl");
        nKeys |= arrWords[i] == "shift" ? kMouseShift : kMouseCtrl;
    }
    return stage.host.ClickIcon(kFileList, nItem, nKeys);
}

std::string SelectNames(CStage& stage, const CWords& arrWords) {
    std::vector<int> arrItems;
    for (std::size_t i = 1; i < arrWords.size(); ++i)
        if (std::string strWhy = FindName(stage, arrWords[i], arrItems.emplace_back()); !strWhy.empty())
            return strWhy;
    return stage.host.BandIcons(kFileList, arrItems);
}

std::string PressKey(CStage& stage, const CWords& arrWords) {
    std::optional<CKeyEvent> event = ParseChord(arrWords[1]);
    if (!event) return NotA(arrWords[1], "key");
    if (arrWords.size() == 3 && arrWords[2] != "shift") return NotA(arrWords[2], "key beside shift");
    event->bShift = event->bShift || arrWords.size() == 3;
    return stage.host.KeyInIcons(kFileList, *event);
}

std::string List(CStage& stage, const CWords& arrWords) {
    const std::string& strWhat = arrWords[0];
    if (strWhat == "click" && arrWords.size() <= 4) return ClickName(stage, arrWords);
    if (strWhat == "select") return SelectNames(stage, arrWords);
    if (strWhat == "key" && arrWords.size() >= 2 && arrWords.size() <= 3) return PressKey(stage, arrWords);
    const bool bDouble = strWhat == "double";
    if (arrWords.size() != 2 || (!bDouble && strWhat != "right"))
        return "there is no such thing to do in the list";
    int nItem = -1;
    if (std::string strWhy = FindName(stage, arrWords[1], nItem); !strWhy.empty()) return strWhy;
    return bDouble ? stage.host.DoubleClickIcon(kFileList, nItem)
                   : stage.host.RightPressIcon(kFileList, nItem);
}

constexpr int kManyWords = 1000;

constexpr CVerb kVerbs[] = {
    {"tree", "open|close|select PATH", 2, 2, Tree,
     "Opens, closes or selects an item of the folder tree. PATH begins with a drive and is written with /, "
     "or is / alone for the top of the tree. What is closed above the item is opened.",
     "tree select D:/photos/2005"},
    {"list", "click [NAME] [shift] [ctrl]", 1, kManyWords, List,
     "Clicks an item of the file list, or beside all of them. With ctrl the others stay selected, with shift "
     "all from the item clicked before are.",
     "list click sea.jpg ctrl"},
    {"list", "double NAME", 1, kManyWords, List, "Opens a picture, or steps into a folder.",
     "list double sea.jpg"},
    {"list", "right NAME", 1, kManyWords, List, "Presses the right button, which selects or leaves an item.",
     "list right sea.jpg"},
    {"list", "select [NAME...]", 1, kManyWords, List, "Draws a rubber band around just these items.",
     "list select sea.jpg \"two boats.jpg\""},
    {"list", "key CHORD [shift]", 1, kManyWords, List,
     "Presses a key in the list: enter opens the selected item outside of the program, delete throws away "
     "what is selected, shift+delete for good.",
     "list key delete shift"},
};

}  // namespace

std::span<const CVerb> BrowseVerbs() {
    return kVerbs;
}
