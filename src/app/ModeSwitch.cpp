#include "app/ModeSwitch.h"

#include <array>

#include "resources/Ids.h"
#include "resources/Texts.h"
#include "resources/ToolTable.h"

namespace {

// The controls that come and go with a mode. Those of EFFECT are CEffectFlow's affair but for the list.
constexpr std::array kFontControls = {
    kTextGroup,  kTextInput,       kShapeGroup,     kRadioProjection, kRadioMesh,  kLabelProjection,
    kLabelMesh,  kTextEffectGroup, kTextEffectList, kColorGroup,      kFontGroup,  kTextFont,
    kLinesGroup, kCheckLines,      kLabelLines,     kTextColor,       kTextSwatch, kTextApply};
constexpr std::array kStickControls = {kStickGroup,     kRadioImageSize, kRadioPhoneSize,
                                       kLabelImageSize, kLabelPhoneSize, kFrameList};

constexpr std::array kEditCommands = {kCmdSave,  kCmdPrint,        kCmdReset,          kCmdNew,
                                      kCmdSize,  kCmdFlipVertical, kCmdFlipHorizontal, kCmdLarge,
                                      kCmdSmall, kCmdTurnLeft,     kCmdTurnRight,      kCmdActual};
constexpr std::array kCommandsOff = {kCmdSave,         kCmdPrint,          kCmdUndo,  kCmdRedo,  kCmdReset,
                                     kCmdCut,          kCmdCopy,           kCmdPaste, kCmdCrop,  kCmdSize,
                                     kCmdFlipVertical, kCmdFlipHorizontal, kCmdLarge, kCmdSmall, kCmdTurnLeft,
                                     kCmdTurnRight,    kCmdActual};
constexpr std::array kSizeCommands = {kCmdNew,       kCmdReset, kCmdSize,   kCmdTurnLeft,
                                      kCmdTurnRight, kCmdLarge, kCmdActual, kCmdSmall};
constexpr std::array kZoomCommands = {kCmdSize, kCmdLarge, kCmdActual, kCmdSmall};
constexpr std::array kClipboardCommands = {kCmdCut, kCmdCopy, kCmdPaste, kCmdCrop};

constexpr std::array kTabs = {std::pair{kModeThum, kTabThum}, std::pair{kModeDraw, kTabDraw},
                              std::pair{kModeEffect, kTabEffect}, std::pair{kModeFont, kTabFont},
                              std::pair{kModeStick, kTabStick}};

}  // namespace

void CModeSwitch::EnableEditCommands() {
    m_env.controls.Enable(kEditCommands, true);
    if (!m_env.link.IsConnected()) return;
    m_env.controls.Enable(kCmdSend, true);
    m_env.controls.Enable(kCmdTake, true);
}

void CModeSwitch::DisableEditCommands() {
    m_env.controls.Enable(kCommandsOff, false);
}

void CModeSwitch::EnableSizeCommands(bool bEnable) {
    m_env.controls.Enable(kSizeCommands, bEnable);
    m_env.editor.ShowHistory();
}

void CModeSwitch::UpdateTabs() {
    for (const auto& [nMode, nTab] : kTabs) m_env.controls.Show(nTab, nMode != m_env.state.m_nMode);
}

// --- hide steps ---

// A fill ends here: the list is read anew on the way back.
void CModeSwitch::HideThum() {
    m_env.thum.List().StopFill();
    m_env.controls.Show(kFolderTree, false);
    m_env.controls.Show(kProgress, false);
    m_env.state.m_bThumbMode = false;
}

void CModeSwitch::HideDraw() {
    m_env.controls.Show(kToolButtons, false);
    m_env.controls.Show(kPaintColor, false);
    m_env.controls.Show(kHelpLine, false);
    m_env.state.m_bDrawMode = false;
}

// A preview that waits for CONFIRM is dropped: the working image never held it.
void CModeSwitch::HideEffect() {
    m_env.controls.Show(kEffectList, false);
    m_env.effects.ShowEffectControls(false);
    m_env.effects.DropPreview();
    m_env.controls.SetText(kEffectLevel, kBlankLevel);
    m_env.state.m_bNoEffectLevel = true;
    m_env.state.m_bEffectMode = false;
}

void CModeSwitch::HideFont() {
    m_env.controls.Show(kFontControls, false);
    m_env.controls.Show(kHelpLine, false);
    // The picture that was scaled to fit goes.
    if (m_env.state.m_bImageOpen)
        m_env.images.m_pImgDisplay = std::make_unique<CxImage>(*m_env.images.m_pImgWork);
    m_env.state.m_bFontMode = false;
    m_env.textArt.ForgetBase();
}

void CModeSwitch::HideStick() {
    m_env.controls.Show(kStickControls, false);
    m_env.state.m_bStickMode = false;
}

// --- show steps ---

void CModeSwitch::ForgetListDrag() {
    m_env.link.ForgetSend();
    m_env.thum.List().ForgetPress();
}

void CModeSwitch::ShowNoPicture() {
    m_env.lines.ShowFileInfo("", EFileInfo::Clear);
}

// What every edit mode does with an open picture before its own steps.
void CModeSwitch::BeginEditMode() {
    m_env.state.m_bEditSource = true;
    m_env.state.m_bEditInfo = true;
}

// The same for all but DRAW itself: paint that DRAW has left on the canvas is fetched.
void CModeSwitch::BeginPictureMode() {
    BeginEditMode();
    if (m_env.state.m_nLastMode == kModeDraw) m_env.editor.TransferCanvas(true);
}

// The display as EFFECT and STICK have it: at the size that rules, and with nothing to cut or copy.
void CModeSwitch::ShowRuledDisplay() {
    const CSize size = m_env.images.RuledSize();
    if (!m_env.images.m_pImgDisplay->Resample(size.cx, size.cy)) m_env.images.RebuildDisplay(size);
    m_env.controls.Enable(kClipboardCommands, false);
}

void CModeSwitch::ShowThum() {
    m_env.state.m_bThumbMode = true;
    m_env.state.m_bEditInfo = false;
    m_env.state.m_bEditSource = false;
    ForgetListDrag();
    m_env.controls.Show(kFolderTree, true);
    m_env.controls.Enable(kCmdSend, m_env.link.IsConnected());
}

void CModeSwitch::ShowDraw() {
    ForgetListDrag();
    m_env.controls.Show(kToolButtons, true);
    m_env.controls.Show(kPaintColor, true);
    m_env.tools.FocusCurrentTool();
    m_env.controls.Enable(kCmdSend, false);
    m_env.state.m_bDrawMode = true;
    if (!m_env.state.m_bImageOpen) return ShowNoPicture();

    BeginEditMode();
    const CSize size = m_env.images.DisplaySize();
    if (!m_env.images.m_pImgDisplay->Resample(size.cx, size.cy)) m_env.images.RebuildDisplay(size);
    m_env.editor.ShowHistory();
    m_env.controls.Enable(kZoomCommands, false);
    m_env.controls.Enable(kClipboardCommands, false);
    m_env.controls.Enable(kCmdPaste, m_env.canvas.IsClipReady());
    m_env.lines.SetHelp(kHelpTool + m_env.tools.CurrentTool());
    m_env.state.m_nLastMode = kModeDraw;
    m_env.editor.TransferCanvas(false);
    m_env.controls.Enable(kCmdSend, m_env.link.IsConnected());
    m_env.tools.SetCurrentTool(kToolMagnifier);
    m_env.tools.EnterTool();
}

void CModeSwitch::ShowEffect() {
    ForgetListDrag();
    m_env.controls.Show(kEffectList, true);
    m_env.controls.Enable(kEffectList, true);
    m_env.controls.SetFocus(kEffectList);
    m_env.controls.Show(kEffectPreview, true);
    m_env.controls.Show(kEffectLevel, true);
    m_env.effects.RestSlider();
    m_env.controls.Enable(kCmdSend, false);
    if (!m_env.state.m_bImageOpen) return ShowNoPicture();

    BeginPictureMode();
    ShowRuledDisplay();
    m_env.state.m_bEffectMode = true;
    m_env.editor.ShowHistory();
    m_env.controls.Enable(kCmdSend, m_env.link.IsConnected());
}

void CModeSwitch::ShowFont() {
    ForgetListDrag();
    m_env.controls.Show(kFontControls, true);
    m_env.controls.Enable(kCmdSend, false);
    if (!m_env.state.m_bImageOpen) return ShowNoPicture();

    BeginPictureMode();
    m_env.textArt.ForgetBase();
    DisableEditCommands();
    for (const int nId : {kCmdSave, kCmdPrint, kCmdReset}) m_env.controls.Enable(nId, true);
    m_env.state.m_bFontMode = true;
    m_env.images.FitDisplay();
    m_env.editor.ShowHistory();
    m_env.textArt.InitTextHandles();
    m_env.controls.Enable(kCmdSend, m_env.link.IsConnected());
}

void CModeSwitch::ShowStick() {
    ForgetListDrag();
    m_env.controls.Show(kStickControls, true);
    m_env.controls.Enable(kCmdSend, false);
    if (!m_env.state.m_bImageOpen) return ShowNoPicture();

    BeginPictureMode();
    ShowRuledDisplay();
    m_env.controls.SetFocus(m_env.images.m_bImageSize ? kRadioImageSize : kRadioPhoneSize);
    if (!m_env.images.m_bImageSize) EnableSizeCommands(true);
    m_env.editor.ShowHistory();
    m_env.state.m_bStickMode = true;
    m_env.controls.Enable(kCmdSend, m_env.link.IsConnected());
}

// --- the switch ---

void CModeSwitch::ChangeMode(int nMode) {
    const CWaitScope wait(m_env.wait);
    if (nMode == kModeThum)
        EnterThum();
    else if (nMode == kModeDraw)
        EnterDraw();
    else
        EnterPictureMode(nMode);
    m_env.state.m_nLastMode = nMode;
}

// Paint is not fetched on this way: the working image stays one stroke behind the canvas.
void CModeSwitch::EnterThum() {
    m_env.lines.SetHelp(kHelpClear);
    m_env.thum.ReturnToFolder();
    m_env.controls.Show(kFileList, true);
    m_env.controls.Show(kCanvas, false);
    for (const int nId : {kInfoSize, kInfoName, kInfoDepth}) m_env.controls.Show(nId, false);
    DisableEditCommands();
    HideDraw();
    HideEffect();
    HideFont();
    HideStick();
    ShowThum();
    m_env.canvas.OnInitialUpdate();
}

void CModeSwitch::EnterDraw() {
    m_env.controls.Show(kFileList, false);
    if (m_env.state.m_bImageOpen) {
        EnableEditCommands();
        m_env.tools.ResetZoom();
        m_env.controls.Show(kCanvas, true);
    }
    HideThum();
    HideEffect();
    HideFont();
    HideStick();
    ShowDraw();
}

// EFFECT, FONT and STICK.
void CModeSwitch::EnterPictureMode(int nMode) {
    m_env.controls.Show(kFileList, false);
    if (m_env.state.m_bImageOpen) {
        // FONT has its own few commands.
        if (nMode != kModeFont) EnableEditCommands();
        if (m_env.canvas.IsFloating()) m_env.canvas.DropFloat();
        m_env.controls.Show(kCanvas, true);
    }
    HideThum();
    HideDraw();
    if (nMode != kModeEffect) HideEffect();
    if (nMode != kModeFont) HideFont();
    if (nMode != kModeStick) HideStick();
    if (nMode == kModeEffect) ShowEffect();
    if (nMode == kModeFont) ShowFont();
    if (nMode == kModeStick) ShowStick();
    m_env.canvas.OnInitialUpdate();
}
