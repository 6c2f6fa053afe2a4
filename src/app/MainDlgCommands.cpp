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
        {kCmdOpen, [](CMainDlg& d) { d.m_commands.OnOpen(); }},
        {kCmdNew, [](CMainDlg& d) { d.m_commands.OnNew(); }},
        {kCmdSave, [](CMainDlg& d) { d.m_commands.OnSave(); }},
        {kCmdPrint, [](CMainDlg& d) { d.m_commands.OnPrint(); }},
        {kCmdUndo, [](CMainDlg& d) { d.m_commands.OnUndo(); }},
        {kCmdRedo, [](CMainDlg& d) { d.m_commands.OnRedo(); }},
        {kCmdReset, [](CMainDlg& d) { d.m_commands.OnReset(); }},
        {kCmdCut, [](CMainDlg& d) { d.m_clipboard.OnCut(); }},
        {kCmdCopy, [](CMainDlg& d) { d.m_clipboard.OnCopy(); }},
        {kCmdPaste, [](CMainDlg& d) { d.m_clipboard.OnPaste(); }},
        {kCmdCrop, [](CMainDlg& d) { d.m_clipboard.OnCrop(); }},
        {kCmdSize, [](CMainDlg& d) { d.m_commands.OnSize(); }},
        {kCmdFlipVertical, [](CMainDlg& d) { d.m_commands.OnFlip(EFlip::Vertical); }},
        {kCmdFlipHorizontal, [](CMainDlg& d) { d.m_commands.OnFlip(EFlip::Horizontal); }},
        {kCmdTurnLeft, [](CMainDlg& d) { d.m_commands.OnTurn(ETurn::Left); }},
        {kCmdTurnRight, [](CMainDlg& d) { d.m_commands.OnTurn(ETurn::Right); }},
        {kCmdLarge, [](CMainDlg& d) { d.m_commands.OnLarge(); }},
        {kCmdActual, [](CMainDlg& d) { d.m_commands.OnActual(); }},
        {kCmdSmall, [](CMainDlg& d) { d.m_commands.OnSmall(); }},
        {kCmdConnect, [](CMainDlg& d) { d.m_link.OnConnect(); }},
        {kCmdSend, [](CMainDlg& d) { d.m_link.OnSend(); }},
        {kCmdTake, [](CMainDlg& d) { d.m_link.OnTake(); }},
        {kTabThum, [](CMainDlg& d) { d.m_commands.OnTab(EMode::Thum); }},
        {kTabEffect, [](CMainDlg& d) { d.m_commands.OnTab(EMode::Effect); }},
        {kTabStick, [](CMainDlg& d) { d.m_commands.OnTab(EMode::Stick); }},
        {kTabFont, [](CMainDlg& d) { d.m_commands.OnTab(EMode::Font); }},
        {kTabDraw, [](CMainDlg& d) { d.m_commands.OnTab(EMode::Draw); }},
        {kConfirm, [](CMainDlg& d) { d.m_commands.OnConfirm(); }},
        {kCancel, [](CMainDlg& d) { d.m_commands.OnCancel(); }},
        {kRadioImageSize, [](CMainDlg& d) { d.m_commands.OnSizeRule(ESizeRule::Picture); }},
        {kLabelImageSize, [](CMainDlg& d) { d.m_commands.OnSizeRule(ESizeRule::Picture); }},
        {kRadioPhoneSize, [](CMainDlg& d) { d.m_commands.OnSizeRule(ESizeRule::PhoneScreen); }},
        {kLabelPhoneSize, [](CMainDlg& d) { d.m_commands.OnSizeRule(ESizeRule::PhoneScreen); }},
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
    if (const auto tool = FindTool(nId)) return m_tools.OnToolButton(*tool);
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
    if (notice == ENotice::TextChanged && nId == kTextInput) m_textArt.OnTextInput();
    if (notice == ENotice::Scrolled && nId == kEffectSlider) m_effects.OnVScroll();
    if (notice == ENotice::Clicked && nId == kFrameList)
        m_frames.OnClickStickerList(Controls().Selection(kFrameList));
}
