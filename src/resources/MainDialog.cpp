#include "resources/MainDialog.h"

#include "resources/Ids.h"
#include "resources/MainLooks.h"

namespace {

using enum EControlKind;

constexpr CRect At(int x, int y, int nWidth, int nHeight) {
    return CRect::FromPlace(x, y, nWidth, nHeight);
}

// clang-format off
constexpr CControlTemplate kControls[] = {
    // The top bar. What needs a picture or a phone starts disabled.
    {kCmdOpen, BitmapButton, At(29, 16, 37, 45), "Open"},
    {kCmdNew, BitmapButton, At(66, 16, 37, 45), "NEW"},
    {kCmdSave, BitmapButton, At(103, 16, 37, 45), "SAVE", true, false},
    {kCmdPrint, BitmapButton, At(140, 16, 37, 45), "PRINT", true, false},
    {kCmdUndo, BitmapButton, At(198, 16, 39, 45), "Undo", true, false},
    {kCmdRedo, BitmapButton, At(237, 16, 39, 45), "Redo", true, false},
    {kCmdReset, BitmapButton, At(276, 16, 39, 45), "Reset", true, false},
    {kCmdCut, BitmapButton, At(326, 16, 36, 45), "Cut", true, false},
    {kCmdCopy, BitmapButton, At(362, 16, 36, 45), "COPY", true, false},
    {kCmdPaste, BitmapButton, At(398, 16, 36, 45), "PASTE", true, false},
    {kCmdCrop, BitmapButton, At(434, 16, 36, 45), "CROP", true, false},
    {kCmdSize, BitmapButton, At(480, 16, 52, 45), "SIZECHANGE", true, false},
    {kCmdFlipVertical, BitmapButton, At(542, 16, 36, 45), "UPDOWN", true, false},
    {kCmdFlipHorizontal, BitmapButton, At(578, 16, 36, 45), "LEFTRIGHT", true, false},
    {kCmdTurnLeft, BitmapButton, At(618, 16, 45, 45), "MROTATE", true, false},
    {kCmdTurnRight, BitmapButton, At(663, 16, 45, 45), "PROTATE", true, false},
    {kCmdLarge, BitmapButton, At(711, 16, 37, 45), "LARGE", true, false},
    {kCmdActual, BitmapButton, At(748, 16, 37, 45), "Actual", true, false},
    {kCmdSmall, BitmapButton, At(785, 16, 37, 45), "SMALL", true, false},
    {kCmdConnect, BitmapButton, At(838, 16, 45, 45), "CONNECT"},
    {kCmdSend, BitmapButton, At(881, 16, 45, 45), "DownLoad", true, false},
    {kCmdTake, BitmapButton, At(933, 16, 45, 45), "UPLOAD", true, false},
    {kCmdMinimize, BitmapButton, At(0, 0, 0, 0), "MINIMIZE", false},
    // The tabs
    {kTabThum, BitmapButton, At(0, 79, 78, 32), "THUM"},
    {kTabEffect, BitmapButton, At(78, 79, 58, 32), "EFFECT"},
    {kTabStick, BitmapButton, At(136, 79, 58, 32), "STICK"},
    {kTabFont, BitmapButton, At(194, 79, 58, 32), "FONT"},
    {kTabDraw, BitmapButton, At(252, 79, 58, 32), "DRAW"},
    // THUM
    {kFolderTree, Tree, At(37, 130, 250, 544)},
    {kFileList, IconList, At(325, 129, 658, 543)},
    {kProgress, Progress, At(323, 676, 661, 16), "", false},
    // The canvas
    {kCanvas, View, At(325, 130, kCanvasSize.cx, kCanvasSize.cy), "", false},
    // EFFECT
    {kEffectList, PictureList, At(58, 149, 206, 276), "", false},
    {kEffectPreview, Place, At(64, 476, kEffectPreviewSize.cx, kEffectPreviewSize.cy), "", false},
    {kEffectSlider, Slider, At(239, 488, 24, 132), "", false},
    {kEffectLevel, Static, At(236, 468, 30, 14), "", false},
    {kConfirm, BitmapButton, At(76, 635, 78, 22), "CONFIRM", false},
    {kCancel, BitmapButton, At(172, 635, 78, 22), "CANCEL", false},
    // STICK
    {kStickGroup, Group, At(62, 154, 0, 0), "", false},
    {kRadioImageSize, Radio, At(71, 177, 14, 14), "", false},
    {kRadioPhoneSize, Radio, At(71, 199, 14, 14), "", false},
    {kLabelImageSize, BitmapLabel, At(87, 177, 80, 15), "1246", false},
    {kLabelPhoneSize, BitmapLabel, At(87, 199, 80, 15), "1247", false},
    {kFrameList, PictureGrid, At(56, 242, 211, 409), "", false},
    // FONT
    {kTextGroup, Group, At(57, 154, 0, 0), "", false},
    {kFontGroup, Group, At(57, 235, 0, 0), "", false},
    {kColorGroup, Group, At(151, 234, 0, 0), "", false},
    {kLinesGroup, Group, At(57, 315, 0, 0), "", false},
    {kShapeGroup, Group, At(57, 400, 0, 0), "", false},
    {kTextEffectGroup, Group, At(57, 494, 0, 0), "", false},
    {kTextInput, Edit, At(63, 178, 145, 16), "Write in characters", false, true, 22},
    {kTextApply, BitmapButton, At(222, 173, 40, 23), "APPLY", false},
    {kTextFont, BitmapButton, At(70, 254, 66, 26), "CHARACTER", false},
    {kTextColor, BitmapButton, At(162, 254, 64, 25), "COLOR", false},
    {kTextSwatch, Place, At(235, 255, 24, 24), "", false},
    {kCheckLines, Check, At(71, 338, 14, 14), "", false},
    {kLabelLines, BitmapLabel, At(87, 338, 54, 13), "1250", false},
    {kRadioProjection, Radio, At(71, 414, 14, 14), "", false},
    {kLabelProjection, BitmapLabel, At(87, 414, 54, 15), "1248", false},
    {kRadioMesh, Radio, At(71, 435, 14, 14), "", false},
    {kLabelMesh, BitmapLabel, At(87, 435, 54, 16), "1249", false},
    {kTextEffectList, PictureList, At(57, 509, 209, 120), "", false},
    // DRAW: the tool buttons in the order of their numbers; captions name their pictures
    {1168, BitmapButton, At(75, 212, 35, 35), "TOOL_01", false},
    {1169, BitmapButton, At(120, 212, 35, 35), "TOOL_02", false},
    {1170, BitmapButton, At(165, 212, 35, 35), "TOOL_03", false},
    {1182, BitmapButton, At(210, 212, 35, 35), "TOOL_15", false},
    {1178, BitmapButton, At(75, 256, 35, 35), "TOOL_11", false},
    {1181, BitmapButton, At(120, 256, 35, 35), "TOOL_14", false},
    {1177, BitmapButton, At(165, 256, 35, 35), "TOOL_10", false},
    {1180, BitmapButton, At(210, 256, 35, 35), "TOOL_13", false},
    {1183, BitmapButton, At(75, 300, 35, 35), "TOOL_16", false},
    {1179, BitmapButton, At(120, 300, 35, 35), "TOOL_12", false},
    {1171, BitmapButton, At(165, 300, 35, 35), "TOOL_04", false},
    {1174, BitmapButton, At(210, 300, 35, 35), "TOOL_07", false},
    {1173, BitmapButton, At(75, 344, 35, 35), "TOOL_06", false},
    {1172, BitmapButton, At(120, 344, 35, 35), "TOOL_05", false},
    {1176, BitmapButton, At(75, 388, 35, 35), "TOOL_09", false},
    {1175, BitmapButton, At(120, 388, 35, 35), "TOOL_08", false},
    {kPaintColor, BitmapButton, At(83, 500, 80, 20), "COLOR_SELECT", false},
    // The info lines, each a pair on one spot, and the help line
    {kInfoName, Static, At(342, 96, 404, 17), "", false},
    {kBrowseName, Static, At(342, 96, 404, 17)},
    {kInfoSize, Static, At(760, 96, 120, 15), "", false},
    {kBrowseSize, Static, At(760, 96, 120, 15)},
    {kInfoDepth, Static, At(905, 96, 76, 15), "", false},
    {kBrowseDepth, Static, At(905, 96, 76, 15)},
    {kHelpLine, Static, At(55, 678, 680, 12), "", false},
};
// clang-format on

}  // namespace

const CDialogTemplate kMainDialog = {kDlgMain,  "Orvo Fotarium V 1.0", {1014, 710}, EDialogFrame::Caption,
                                     kControls, MainLooks::kTable};
