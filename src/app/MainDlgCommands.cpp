// Where each command goes.

#include <algorithm>
#include <array>

#include "app/MainDlg.h"
#include "resources/Ids.h"
#include "resources/ToolTable.h"

namespace {

// An item of the picture menu does what the button does.
constexpr std::array kMenuButtons = {
    std::pair{kMenuSize, kCmdSize},
    std::pair{kMenuFlipVertical, kCmdFlipVertical},
    std::pair{kMenuFlipHorizontal, kCmdFlipHorizontal},
    std::pair{kMenuTurnLeft, kCmdTurnLeft},
    std::pair{kMenuTurnRight, kCmdTurnRight},
    std::pair{kMenuLarge, kCmdLarge},
    std::pair{kMenuActual, kCmdActual},
    std::pair{kMenuSmall, kCmdSmall},
    std::pair{kMenuUndo, kCmdUndo},
    std::pair{kMenuRedo, kCmdRedo},
    std::pair{kMenuReset, kCmdReset},
};

int ButtonOfMenuItem(int nId) {
    const auto* const pPair = std::find_if(kMenuButtons.begin(), kMenuButtons.end(),
                                           [&](const auto& pair) { return pair.first == nId; });
    return pPair == kMenuButtons.end() ? nId : pPair->second;
}

}  // namespace

void CMainDlg::OnCommand(int nId) {
    using CHandler = void (*)(CMainDlg&);
    struct CCommand {
        int nId;
        CHandler pHandler;
    };
    // clang-format off
    static constexpr CCommand kCommands[] = {
        {kCmdOpen, [](CMainDlg& d) { d.m_files.OnOpen(); }},
        {kCmdNew, [](CMainDlg& d) { d.m_files.OnNew(); }},
        {kCmdSave, [](CMainDlg& d) { d.m_files.OnSave(); }},
        {kCmdPrint, [](CMainDlg& d) { d.OnPrint(); }},
        {kCmdUndo, [](CMainDlg& d) { d.m_editor.OnUndo(); }},
        {kCmdRedo, [](CMainDlg& d) { d.m_editor.OnRedo(); }},
        {kCmdReset, [](CMainDlg& d) { d.m_editor.OnReset(); }},
        {kCmdCut, [](CMainDlg& d) { d.m_clipboard.OnCut(); }},
        {kCmdCopy, [](CMainDlg& d) { d.m_clipboard.OnCopy(); }},
        {kCmdPaste, [](CMainDlg& d) { d.m_clipboard.OnPaste(); }},
        {kCmdCrop, [](CMainDlg& d) { d.m_clipboard.OnCrop(); }},
        {kCmdSize, [](CMainDlg& d) { d.m_geometry.OnSize(); }},
        {kCmdFlipVertical, [](CMainDlg& d) { d.m_geometry.OnFlipVertical(); }},
        {kCmdFlipHorizontal, [](CMainDlg& d) { d.m_geometry.OnFlipHorizontal(); }},
        {kCmdTurnLeft, [](CMainDlg& d) { d.m_geometry.OnTurnLeft(); }},
        {kCmdTurnRight, [](CMainDlg& d) { d.m_geometry.OnTurnRight(); }},
        {kCmdLarge, [](CMainDlg& d) { d.m_geometry.OnLarge(); }},
        {kCmdActual, [](CMainDlg& d) { d.m_geometry.OnActual(); }},
        {kCmdSmall, [](CMainDlg& d) { d.m_geometry.OnSmall(); }},
        {kCmdConnect, [](CMainDlg& d) { d.m_link.OnConnect(); }},
        {kCmdSend, [](CMainDlg& d) { d.m_link.OnSend(); }},
        {kCmdTake, [](CMainDlg& d) { d.m_link.OnTake(); }},
        {kTabThum, [](CMainDlg& d) { d.OnTabClick(kModeThum); }},
        {kTabEffect, [](CMainDlg& d) { d.OnTabClick(kModeEffect); }},
        {kTabStick, [](CMainDlg& d) { d.OnTabClick(kModeStick); }},
        {kTabFont, [](CMainDlg& d) { d.OnTabClick(kModeFont); }},
        {kTabDraw, [](CMainDlg& d) { d.OnTabClick(kModeDraw); }},
        {kConfirm, [](CMainDlg& d) { d.m_effects.OnConfirm(); }},
        {kCancel, [](CMainDlg& d) { d.m_effects.OnCancel(); }},
        {kRadioImageSize, [](CMainDlg& d) { d.m_editor.OnImageSize(); }},
        {kLabelImageSize, [](CMainDlg& d) { d.m_editor.OnImageSize(); }},
        {kRadioPhoneSize, [](CMainDlg& d) { d.m_editor.OnPhoneSize(); }},
        {kLabelPhoneSize, [](CMainDlg& d) { d.m_editor.OnPhoneSize(); }},
        {kRadioProjection, [](CMainDlg& d) { d.m_textArt.OnProjectionShape(); }},
        {kLabelProjection, [](CMainDlg& d) { d.m_textArt.OnProjectionShape(); }},
        {kRadioMesh, [](CMainDlg& d) { d.m_textArt.OnMeshShape(); }},
        {kLabelMesh, [](CMainDlg& d) { d.m_textArt.OnMeshShape(); }},
        {kCheckLines, [](CMainDlg& d) { d.m_textArt.OnShowLines(); }},
        {kLabelLines, [](CMainDlg& d) { d.ToggleLines(); }},
        {kTextColor, [](CMainDlg& d) { d.m_textArt.OnTextColor(); }},
        {kTextFont, [](CMainDlg& d) { d.m_textArt.OnCharacter(); }},
        {kTextApply, [](CMainDlg& d) { d.m_textArt.OnApplyText(); }},
        {kPaintColor, [](CMainDlg& d) { d.m_tools.OnPaintColor(); }},
    };
    // clang-format on
    if (const int nTool = FindTool(nId); nTool != 0) return m_tools.OnToolButton(nTool);
    const int nButton = ButtonOfMenuItem(nId);
    const auto* const pCommand =
        std::find_if(std::begin(kCommands), std::end(kCommands),
                     [&](const CCommand& command) { return command.nId == nButton; });
    if (pCommand != std::end(kCommands)) pCommand->pHandler(*this);
}

void CMainDlg::OnNotify(int nId, ENotice notice) {
    if (notice == ENotice::SelectionChanged) {
        if (nId == kEffectList) m_effects.OnSelChangeEffectList();
        if (nId == kTextEffectList) m_textArt.OnSelChangeTextEffect();
    }
    if (notice == ENotice::Scrolled && nId == kEffectSlider) m_effects.OnVScroll();
    if (notice == ENotice::Clicked && nId == kFrameList) m_frames.OnClickStickerList();
}
