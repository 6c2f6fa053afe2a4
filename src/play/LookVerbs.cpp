// Looks at what has become of it all.

#include <algorithm>
#include <array>

#include "image/Ppm.h"
#include "play/States.h"
#include "play/Verbs.h"
#include "play/WindowPicture.h"

namespace {

const char* IconName(EBoxIcon icon) {
    switch (icon) {
        case EBoxIcon::None:
            return "none";
        case EBoxIcon::Information:
            return "information";
        case EBoxIcon::Exclamation:
            return "exclamation";
        case EBoxIcon::Stop:
            break;
    }
    return "stop";
}

// What is in sight of a tree, one item a line, each level further in than the one above.
void ShowTree(std::ostream& out, const CTreeModel& tree, CTreeItem parent, const std::string& strIndent) {
    for (const CTreeItem item : tree.Children(parent)) {
        const char* szMark = tree.IsExpanded(item) ? " open" : tree.HasChildrenMark(item) ? " closed" : "";
        out << strIndent << Quote(tree.Text(item)) << szMark
            << (tree.Selected() == item ? " selected\n" : "\n");
        if (tree.IsExpanded(item)) ShowTree(out, tree, item, strIndent + "  ");
    }
}

void ShowIcons(std::ostream& out, const CIconListModel& icons) {
    for (int i = 0; i < icons.Count(); ++i)
        out << "  " << Quote(icons.Text(i)) << (icons.Picture(i).IsEmpty() ? " empty" : " picture")
            << (icons.IsSelected(i) ? " selected\n" : "\n");
}

void ShowTable(std::ostream& out, const CCheckTableModel& table, int nCurrent) {
    for (int nRow = 0; nRow < table.Count(); ++nRow) {
        out << "  " << (table.Row(nRow).bTicked ? "ticked" : "unticked");
        for (const std::string& strText : table.Row(nRow).arrTexts) out << ' ' << Quote(strText);
        out << (nRow == nCurrent ? " current\n" : "\n");
    }
}

// One control of a dialog.
void ShowControl(std::ostream& out, CDialog& dialog, const CControl& control) {
    out << "show " << control.nId << (control.bShown ? " shown" : " hidden")
        << (control.bEnabled ? " enabled" : " disabled") << (control.bChecked ? " checked " : " unchecked ")
        << Quote(control.strText);
    if (control.kind == EControlKind::Slider || control.kind == EControlKind::Progress)
        out << " at " << control.nPos << " of " << control.nMin << " to " << control.nMax;
    const bool bList = control.kind == EControlKind::PictureList ||
                       control.kind == EControlKind::PictureGrid || control.kind == EControlKind::Combo ||
                       control.kind == EControlKind::TextList;
    if (bList) out << " row " << control.nSel << " of " << control.arrItems.size();
    out << '\n';
    if (const CTreeModel* pTree = dialog.TreeOf(control.nId); pTree != nullptr)
        ShowTree(out, *pTree, kNoTreeItem, "  ");
    if (const CIconListModel* pIcons = dialog.IconsOf(control.nId); pIcons != nullptr)
        ShowIcons(out, *pIcons);
    if (const CCheckTableModel* pTable = dialog.TableOf(control.nId); pTable != nullptr)
        ShowTable(out, *pTable, control.nSel);
}

std::string Show(CStage& stage, const CWords& arrWords) {
    const std::optional<int> nId = ParseNumber(arrWords[0]);
    const CControl* pControl = nId ? stage.dialog.Controls().Find(*nId) : nullptr;
    if (pControl == nullptr) return NotA(arrWords[0], "control");
    ShowControl(stage.out, stage.dialog, *pControl);
    return {};
}

std::string State(CStage& stage, const CWords& arrWords) {
    bool bFound = false;
    for (const CStateEntry& entry : States()) {
        if (!arrWords.empty() && arrWords[0] != entry.szName) continue;
        stage.out << entry.szName << ' ' << entry.pValue(stage) << '\n';
        bFound = true;
    }
    return bFound ? std::string{} : NotA(arrWords[0], "state");
}

std::string Boxes(CStage& stage, const CWords& /*arrWords*/) {
    const std::vector<CMessageBox> arrBoxes = stage.platform.TakeBoxes();
    stage.out << "boxes " << arrBoxes.size() << '\n';
    for (const CMessageBox& box : arrBoxes)
        stage.out << "box " << Quote(box.strTitle) << ' ' << IconName(box.icon) << ' ' << Quote(box.strText)
                  << '\n';
    return {};
}

std::string Calls(CStage& stage, const CWords& /*arrWords*/) {
    const std::vector<std::string> arrCalls = stage.platform.Libraries().PhoneTrace().Take();
    stage.out << "calls " << arrCalls.size() << '\n';
    for (const std::string& strCall : arrCalls) stage.out << strCall << '\n';
    return {};
}

std::string Shell(CStage& stage, const CWords& /*arrWords*/) {
    const std::vector<CShellAct> arrActs = stage.platform.TakeShellActs();
    stage.out << "shell " << arrActs.size() << '\n';
    for (const CShellAct& act : arrActs) {
        stage.out << (act.bOpen ? "open" : act.bToBin ? "bin" : "delete");
        if (!act.bOpen)
            stage.out << (act.bAsked ? " asked" : " unasked") << (act.bDone ? " done" : " refused");
        for (const std::string& strPath : act.arrPaths)
            stage.out << ' ' << Quote(stage.platform.OnDrive(strPath));
        stage.out << '\n';
    }
    return {};
}

// The picture of that name; empty pixels if there is none.
bool FindPicture(CStage& stage, const std::string& strWhich, CPixels& pixels) {
    const CWorkingImages& images = stage.dialog.Images();
    const std::array kImages = {std::pair{"work", &images.m_imgWork},
                                std::pair{"display", &images.m_imgDisplay},
                                std::pair{"opened", &images.m_imgOpened}};
    for (const auto& [szName, pImage] : kImages) {
        if (strWhich != szName) continue;
        pixels = pImage->Pixels();
        return true;
    }
    if (strWhich == "preview") {
        pixels = stage.dialog.Effects().Preview().Pixels();
        return true;
    }
    const CPaper& paper = stage.dialog.Draw().Paper();
    if (strWhich == "canvas") pixels = stage.dialog.Canvas().Surface().Pixels();
    if (strWhich == "committed") pixels = paper.Committed().Pixels();
    if (strWhich == "scratch") pixels = paper.Scratch().Pixels();
    if (strWhich == "window") pixels = ComposeWindow(stage.host, stage.platform.Bitmaps()).Pixels();
    if (strWhich == "page") pixels = stage.platform.Printers().Page();
    constexpr std::array<std::string_view, 5> kDrawn = {"canvas", "committed", "scratch", "window", "page"};
    return std::ranges::find(kDrawn, strWhich) != kDrawn.end();
}

std::string Dump(CStage& stage, const CWords& arrWords) {
    CPixels pixels;
    if (!FindPicture(stage, arrWords[0], pixels)) return NotA(arrWords[0], "picture");
    if (pixels.IsEmpty()) return "there is no picture";
    const std::string strPath = stage.PathOf(arrWords[1]);
    return WritePpm(strPath, pixels) ? std::string{} : Quote(strPath) + " cannot be written";
}

constexpr CVerb kVerbs[] = {
    {"show", "ID", 1, 1, Show,
     "Prints a control: shown or hidden, enabled or disabled, checked or unchecked, its text, and place or "
     "row where it has one. Of the tree also what is in sight, of the file list its items, of a table to "
     "tick "
     "its rows with their ticks and texts.",
     "show 1123"},
    {"state", "[NAME]", 0, 1, State, "Prints a state of the list below, all of them without a name.",
     "state undo"},
    {"boxes", "", 0, 0, Boxes,
     "Prints how many message boxes there were since the last such line, and of each title, icon and text.",
     "boxes"},
    {"calls", "", 0, 0, Calls,
     "Prints how many calls the program made into the phone's library since the last such line, and each: "
     "what "
     "it handed in, behind = the code, and the out-values in their order.",
     "calls"},
    {"shell", "", 0, 0, Shell,
     "Prints what the program had the system do with files since the last such line: open, bin or delete, "
     "whether the system asked, whether all was done, and the paths by their drives.",
     "shell"},
    {"dump", "work|display|opened|preview|canvas|committed|scratch|window|page PATH", 2, 2, Dump,
     "Writes a picture as PPM, 24 bits: one of the edit images, the effect's preview, what the canvas shows, "
     "the picture of DRAW, the same with the stroke in progress, the window, or "
     "the last printed page at its dots, by a whole factor smaller if it is higher than 1000.",
     "dump work after.ppm"},
};

}  // namespace

std::span<const CVerb> LookVerbs() {
    return kVerbs;
}
