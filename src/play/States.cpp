#include "play/States.h"

#include <array>
#include <cstdio>

#include "resources/Ids.h"

namespace {

std::string Flag(bool b) {
    return b ? "1" : "0";
}

std::string Pair(CSize size) {
    return std::to_string(size.cx) + " " + std::to_string(size.cy);
}

std::string Mode(const CStage& stage) {
    constexpr std::array kNames = {"THUM", "DRAW", "EFFECT", "FONT", "STICK"};
    const auto nMode = static_cast<std::size_t>(stage.dialog.State().m_nMode);
    return std::to_string(nMode) + " " + kNames.at(nMode);
}

std::string Work(const CStage& stage) {
    const CxImage& image = stage.dialog.Images().m_imgWork;
    return image.IsValid() ? Pair(image.GetSize()) : "none";
}

std::string Image(const CStage& stage) {
    const CxImage& image = stage.dialog.Images().m_imgDisplay;
    return image.IsValid() ? Flag(stage.dialog.State().m_bImageOpen) + " " + Pair(image.GetSize()) : "0";
}

std::string FileList(const CStage& stage) {
    CPicFileList& list = stage.dialog.Thum().List();
    const int nFolders = list.FolderCount();
    return std::to_string(nFolders) + " " + std::to_string(list.Model().Count() - nFolders) + " " +
           Quote(stage.platform.OnDrive(list.Path()));
}

std::string Selected(const CStage& stage) {
    const CIconListModel& model = stage.dialog.Thum().List().Model();
    std::string strText = std::to_string(model.SelectedCount());
    for (const int nItem : model.SelectedItems()) strText.append(1, ' ').append(Quote(model.Text(nItem)));
    return strText;
}

const CPhoneState& Facts(const CStage& stage) {
    return stage.dialog.Link().State();
}

std::string Printed(const CStage& stage) {
    const CScriptedPrinters& printers = stage.platform.Printers();
    const CRect& rc = printers.PicturePlace();
    std::string strText = std::to_string(printers.Documents());
    for (const int n : {printers.Pages(), rc.left, rc.top, rc.Width(), rc.Height()})
        strText.append(1, ' ').append(std::to_string(n));
    return strText;
}

std::string Phone(const CStage& stage) {
    std::string strText = std::to_string(Facts(stage).m_nMaxFiles);
    for (const CSize& size : Facts(stage).m_arrPhoneSizes)
        strText.append(1, ' ').append(std::to_string(size.cx)).append(1, 'x').append(std::to_string(size.cy));
    return strText;
}

std::string Preview(const CStage& stage) {
    const CxImage& image = stage.dialog.Effects().Preview();
    return image.IsValid() ? Pair(image.GetSize()) : "none";
}

std::string Hex(CColor color) {
    std::array<char, 8> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%02X%02X%02X", color.r, color.g, color.b);
    return buffer.data();
}

std::string Colors(const CStage& stage) {
    const CToolState& tools = stage.dialog.Tools().State();
    return Hex(tools.m_crForeground) + " " + Hex(tools.m_crBackground);
}

// A grid of the mesh, x and y of each of its points.
std::string Grid(const MeshValues& x, const MeshValues& y) {
    std::string str;
    for (std::size_t i = 0; i < CTextHandles::kMeshPoints; ++i)
        str.append(1, ' ').append(Pair({static_cast<int>(x[i]), static_cast<int>(y[i])}));
    return str;
}

std::string TextArt(const CStage& stage) {
    const TextArtParam& param = stage.dialog.TextArt().Param();
    std::string str = std::to_string(param.nWarpKind) + " " + std::to_string(param.nTextEffect) + " ";
    if (param.nWarpKind == kWarpMesh)
        return str + Pair({param.nMeshX, param.nMeshY}) + " " + Pair({param.nMeshWidth, param.nMeshHeight}) +
               Grid(param.fMeshSrcX, param.fMeshSrcY) + Grid(param.fMeshDstX, param.fMeshDstY);
    str += Pair({param.nBoxX, param.nBoxY}) + " " + Pair({param.nBoxWidth, param.nBoxHeight});
    for (const float f : param.fQuad) str.append(1, ' ').append(std::to_string(static_cast<int>(f)));
    return str;
}

constexpr CStateEntry kStates[] = {
    {"mode", Mode, "The active mode and its name."},
    {"undo", [](const CStage& s) { return std::to_string(s.dialog.Images().m_stackUndo.Count()); },
     "Steps back."},
    {"redo", [](const CStage& s) { return std::to_string(s.dialog.Images().m_stackRedo.Count()); },
     "Steps forward."},
    {"disp", [](const CStage& s) { return Pair(s.dialog.Images().DisplaySize()); }, "The display size."},
    {"work", Work, "Width and height of the working image, or none."},
    {"image", Image, "Whether a picture is open; if so, width and height of it as it is shown."},
    {"tool", [](const CStage& s) { return std::to_string(NumberOf(s.dialog.Tools().CurrentTool())); },
     "The paint tool, 1 to 16; 17 while a selection floats."},
    {"zoom", [](const CStage& s) { return std::to_string(s.dialog.Tools().State().m_nZoom); },
     "The zoom of DRAW: 1, 2, 4 or 6."},
    {"panel", [](const CStage& s) { return std::to_string(s.dialog.Tools().Panel() + 1); },
     "The tool whose options the panel of DRAW shows."},
    {"colors", Colors, "Foreground and background colour of DRAW."},
    {"frame", [](const CStage& s) { return Flag(s.dialog.Images().m_bFrameOn); },
     "Whether a frame lies on the picture."},
    {"effect", [](const CStage& s) { return std::to_string(s.dialog.Effects().Effect()); },
     "The effect that was chosen last, 0 to 30."},
    {"level", [](const CStage& s) { return std::to_string(s.dialog.Effects().Level()); }, "Its level."},
    {"preview", Preview, "Width and height of the effect's preview, or none."},
    {"pending", [](const CStage& s) { return Flag(s.dialog.Effects().IsPending()); },
     "Whether an effect's preview waits for CONFIRM."},
    {"float", [](const CStage& s) { return Flag(s.dialog.Draw().IsFloating()); },
     "Whether a selection floats over the picture."},
    {"selection", [](const CStage& s) { return Flag(s.dialog.Draw().Selection().IsMarked()); },
     "Whether something is selected to cut or copy."},
    {"textart", TextArt,
     "Kind and effect of the words, then their shape in pixels of the picture: place and size of the box and "
     "its "
     "four corners, or place and size of the mesh and both its grids."},
    {"connected", [](const CStage& s) { return Flag(s.dialog.Link().IsConnected()); },
     "Whether the phone is connected."},
    {"printed", Printed,
     "How many documents have been printed, how many pages, and of the last one place and size of the "
     "picture "
     "in dots: X Y WIDTH HEIGHT."},
    {"phone", Phone, "The most files that it stores, -1 for no limit, and its sizes as WxH."},
    {"port", [](const CStage& s) { return std::to_string(Facts(s).m_nPort); }, "Number of its port."},
    {"modemport", [](const CStage& s) { return std::to_string(Facts(s).m_nModemPort); },
     "Number of its modem's port, -1 for none."},
    {"usbport", [](const CStage& s) { return Flag(Facts(s).m_bUsbPort != 0); },
     "Whether the port was found without asking."},
    {"phoneid", [](const CStage& s) { return std::to_string(Facts(s).m_nPhoneId); }, "Its identity."},
    {"phonekind", [](const CStage& s) { return std::to_string(Facts(s).m_nPhoneKind); }, "Its kind."},
    {"photophone", [](const CStage& s) { return Flag(Facts(s).m_bPhotoPhone); },
     "Whether it takes pictures."},
    {"card", [](const CStage& s) { return Flag(Facts(s).m_bHasCard != 0); }, "Whether it has a memory card."},
    {"norestart", [](const CStage& s) { return Flag(Facts(s).m_bNoRestart != 0); },
     "Whether it goes on working after an exchange."},
    {"thumb",
     [](const CStage& s) {
         return Pair({Facts(s).m_nThumbWidth, Facts(s).m_nThumbHeight});
     },
     "Width and height of its thumbnails."},
    {"connect", [](const CStage& s) { return Flag(s.dialog.Controls().IsEnabled(kCmdConnect)); },
     "Whether the key that connects is on."},
    {"take", [](const CStage& s) { return Flag(s.dialog.Controls().IsEnabled(kCmdTake)); },
     "Whether the key that takes pictures is on."},
    {"send", [](const CStage& s) { return Flag(s.dialog.Controls().IsEnabled(kCmdSend)); },
     "Whether the key that sends pictures is on."},
    {"sizerule",
     [](const CStage& s) { return std::string(s.dialog.Images().IsPhoneSize() ? "phone" : "image"); },
     "Which size rules, the picture's or the phone's."},
    {"tree", [](const CStage& s) { return Quote(s.platform.OnDrive(s.dialog.Thum().Tree().CurrentPath())); },
     "The folder that the tree stands on, by its drive."},
    {"list", FileList, "Folders and files in the list, and the folder that it shows."},
    {"selected", Selected, "How many items of the list are selected, and their names."},
    {"banded", [](const CStage& s) { return std::to_string(s.dialog.Thum().List().SelectedWhilePressed()); },
     "How many were when the mouse last moved over the list with the left button down."},
    {"path", [](const CStage& s) { return Quote(s.dialog.State().m_strFilePath); },
     "Path of the file that was opened."},
    {"name", [](const CStage& s) { return Quote(s.dialog.State().m_strFileName); }, "Name of the picture."},
    {"focus", [](const CStage& s) { return std::to_string(s.dialog.Controls().Focus()); },
     "The control with the keyboard focus, 0 for none."},
};

}  // namespace

std::span<const CStateEntry> States() {
    return kStates;
}
