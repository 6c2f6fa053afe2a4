#include "play/States.h"

#include <array>

#include "play/Words.h"
#include "resources/Ids.h"

namespace {

std::string Flag(bool b) {
    return b ? "1" : "0";
}

std::string Pair(CSize size) {
    return std::to_string(size.cx) + " " + std::to_string(size.cy);
}

std::string Mode(CMainDlg& dialog) {
    constexpr std::array kNames = {"THUM", "DRAW", "EFFECT", "FONT", "STICK"};
    const int nMode = dialog.State().m_nMode;
    return std::to_string(nMode) + " " + kNames.at(static_cast<std::size_t>(nMode));
}

std::string Work(CMainDlg& dialog) {
    const auto& pImage = dialog.Images().m_pImgWork;
    return pImage ? Pair(pImage->GetSize()) : "none";
}

std::string Image(CMainDlg& dialog) {
    const auto& pImage = dialog.Images().m_pImgDisplay;
    return pImage ? Flag(dialog.State().m_bImageOpen) + " " + Pair(pImage->GetSize()) : "0";
}

std::string Preview(CMainDlg& dialog) {
    const CxImage* pPreview = dialog.Effects().Preview();
    return pPreview == nullptr ? "none" : Pair(pPreview->GetSize());
}

constexpr CStateEntry kStates[] = {
    {"mode", Mode, "The active mode and its name."},
    {"undo", [](CMainDlg& d) { return std::to_string(d.Images().m_stackUndo.Count()); }, "Steps back."},
    {"redo", [](CMainDlg& d) { return std::to_string(d.Images().m_stackRedo.Count()); }, "Steps forward."},
    {"disp", [](CMainDlg& d) { return Pair(d.Images().DisplaySize()); }, "The display size."},
    {"work", Work, "Width and height of the working image, or none."},
    {"image", Image, "Whether a picture is open; if so, width and height of it as it is shown."},
    {"tool", [](CMainDlg& d) { return std::to_string(d.Tools().CurrentTool()); }, "The paint tool, 1 to 16."},
    {"zoom", [](CMainDlg& d) { return std::to_string(d.Tools().Zoom()); }, "The zoom of DRAW: 1, 2, 4 or 6."},
    {"frame", [](CMainDlg& d) { return Flag(d.Images().m_bFrameOn); },
     "Whether a frame lies on the picture."},
    {"effect", [](CMainDlg& d) { return std::to_string(d.Effects().Effect()); },
     "The effect that was chosen last, 0 to 30."},
    {"level", [](CMainDlg& d) { return std::to_string(d.Effects().Level()); }, "Its level."},
    {"preview", Preview, "Width and height of the effect's preview, or none."},
    {"pending", [](CMainDlg& d) { return Flag(d.State().m_bEffectPending); },
     "Whether an effect's preview waits for CONFIRM."},
    {"float", [](CMainDlg& d) { return Flag(d.Canvas().IsFloating()); },
     "Whether a selection floats over the picture."},
    // Cut is on for as long as something is selected, and never otherwise.
    {"selection", [](CMainDlg& d) { return Flag(d.Controls().IsEnabled(kCmdCut)); },
     "Whether something is selected to cut or copy."},
    {"connected", [](CMainDlg& d) { return Flag(d.Link().IsConnected()); },
     "Whether the phone is connected."},
    {"sizerule", [](CMainDlg& d) { return std::string(d.Images().m_bPhoneSize ? "phone" : "image"); },
     "Which size rules, the picture's or the phone's."},
    {"path", [](CMainDlg& d) { return Quote(d.State().m_strFilePath); }, "Path of the file that was opened."},
    {"name", [](CMainDlg& d) { return Quote(d.State().m_strFileName); }, "Name of the picture."},
    {"focus", [](CMainDlg& d) { return std::to_string(d.Controls().Focus()); },
     "The control with the keyboard focus, 0 for none."},
};

}  // namespace

std::span<const CStateEntry> States() {
    return kStates;
}
