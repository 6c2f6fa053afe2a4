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

std::string Show(CStage& stage, const CWords& arrWords) {
    const std::optional<int> nId = ParseNumber(arrWords[0]);
    const CControl* pControl = nId ? stage.dialog.Controls().Find(*nId) : nullptr;
    if (pControl == nullptr) return NotA(arrWords[0], "control");
    stage.out << "show " << pControl->nId << (pControl->bShown ? " shown" : " hidden")
              << (pControl->bEnabled ? " enabled" : " disabled")
              << (pControl->bChecked ? " checked " : " unchecked ") << Quote(pControl->strText);
    if (pControl->kind == EControlKind::Slider || pControl->kind == EControlKind::Progress)
        stage.out << " at " << pControl->nPos << " of " << pControl->nMin << " to " << pControl->nMax;
    const bool bList = pControl->kind == EControlKind::PictureList ||
                       pControl->kind == EControlKind::IconList || pControl->kind == EControlKind::Combo;
    if (bList) stage.out << " row " << pControl->nSel << " of " << pControl->arrItems.size();
    stage.out << '\n';
    return {};
}

std::string State(CStage& stage, const CWords& arrWords) {
    bool bFound = false;
    for (const CStateEntry& entry : States()) {
        if (!arrWords.empty() && arrWords[0] != entry.szName) continue;
        stage.out << entry.szName << ' ' << entry.pValue(stage.dialog) << '\n';
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

// The picture of that name; empty pixels if there is none.
bool FindPicture(CStage& stage, const std::string& strWhich, CPixels& pixels) {
    const CWorkingImages& images = stage.dialog.Images();
    const std::array kImages = {std::pair{"work", &images.m_pImgWork},
                                std::pair{"display", &images.m_pImgDisplay},
                                std::pair{"opened", &images.m_pImgOpened}};
    for (const auto& [szName, ppImage] : kImages) {
        if (strWhich != szName) continue;
        if (*ppImage) pixels = (*ppImage)->Pixels();
        return true;
    }
    if (strWhich == "preview") {
        const CxImage* pPreview = stage.dialog.Effects().Preview();
        if (pPreview != nullptr) pixels = pPreview->Pixels();
        return true;
    }
    if (strWhich == "canvas") pixels = stage.dialog.Canvas().Surface().Pixels();
    if (strWhich == "window") pixels = ComposeWindow(stage.host, stage.platform.Bitmaps()).Pixels();
    return strWhich == "canvas" || strWhich == "window";
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
     "row where it has one.",
     "show 1123"},
    {"state", "[NAME]", 0, 1, State, "Prints a state of the list below, all of them without a name.",
     "state undo"},
    {"boxes", "", 0, 0, Boxes,
     "Prints how many message boxes there were since the last such line, and of each title, icon and text.",
     "boxes"},
    {"dump", "work|display|opened|preview|canvas|window PATH", 2, 2, Dump,
     "Writes a picture as PPM, 24 bits: one of the edit images, the effect's preview, what the canvas shows, "
     "or "
     "the window.",
     "dump work after.ppm"},
};

}  // namespace

std::span<const CVerb> LookVerbs() {
    return kVerbs;
}
