#include "app/ControlDesk.h"

#include <span>

#include "resources/ToolTable.h"

namespace {

constexpr std::array kThumPanel = {kFolderTree};
constexpr std::array kEffectPanel = {kEffectList, kEffectPreview, kEffectLevel};
constexpr std::array kFontPanel = {
    kTextGroup,  kTextInput,       kShapeGroup,     kRadioProjection, kRadioMesh,  kLabelProjection,
    kLabelMesh,  kTextEffectGroup, kTextEffectList, kColorGroup,      kFontGroup,  kTextFont,
    kLinesGroup, kCheckLines,      kLabelLines,     kTextColor,       kTextSwatch, kTextApply};
constexpr std::array kStickPanel = {kStickGroup,     kRadioImageSize, kRadioPhoneSize,
                                    kLabelImageSize, kLabelPhoneSize, kFrameList};

constexpr std::array kPreview = {kEffectPreview, kEffectLevel, kConfirm, kCancel};
constexpr std::array kEditInfo = {kInfoName, kInfoSize, kInfoDepth};
constexpr std::array kBrowseInfo = {kBrowseName, kBrowseSize, kBrowseDepth};

struct CModeRow {
    EMode mode;
    int nTab;
    EKey CCommandRow::*column;
    std::span<const int> arrPanel;
};

constexpr std::array kModes = std::to_array<CModeRow>({
    {EMode::Thum, kTabThum, &CCommandRow::thum, kThumPanel},
    {EMode::Draw, kTabDraw, &CCommandRow::draw, kToolButtons},
    {EMode::Effect, kTabEffect, &CCommandRow::effect, kEffectPanel},
    {EMode::Font, kTabFont, &CCommandRow::font, kFontPanel},
    {EMode::Stick, kTabStick, &CCommandRow::stick, kStickPanel},
});

}  // namespace

void CControlDesk::Apply(int nId, EKey key) {
    const auto fnOn = [&] {
        switch (key) {
            case EKey::Undo:
                return !m_env.images.m_stackUndo.IsEmpty();
            case EKey::Redo:
                return !m_env.images.m_stackRedo.IsEmpty();
            case EKey::Clip:
                return m_env.selection.IsClipReady();
            case EKey::Phone:
                return m_env.fnConnected();
            case EKey::NoPhone:
                return !m_env.fnConnected();
            case EKey::Sendable:
                return m_env.state.m_bImageOpen || m_env.state.IsUp(EMode::Thum);
            default:
                return key == EKey::On || key == EKey::Picture;
        }
    };
    if (key == EKey::Picture && !m_env.state.m_bImageOpen) return;
    if (key != EKey::Left) m_env.controls.Enable(nId, fnOn());
}

void CControlDesk::Apply(CColumn column) {
    for (const CCommandRow& row : kCommandTable) Apply(row.nId, row.*column);
}

// --- modes ---

void CControlDesk::ShowPanel(EMode mode, bool bShow) {
    for (const CModeRow& row : kModes)
        if (row.mode == mode) m_env.controls.Show(row.arrPanel, bShow);
    if (mode == EMode::Draw) m_env.controls.Show(kPaintColor, bShow);
}

void CControlDesk::EnterMode() {
    const EMode mode = m_env.state.m_nMode;
    const bool bThum = mode == EMode::Thum;
    const bool bOpen = m_env.state.m_bImageOpen;
    m_env.controls.Show(kFileList, bThum);
    if (bThum || bOpen) m_env.controls.Show(kCanvas, !bThum);
    m_env.controls.Show(kProgress, bThum && m_bFilling);
    m_env.controls.Show(kHelpLine, false);
    if (bThum) m_env.controls.Show(kEditInfo, false);
    ShowPreview(false, false);
    for (const CModeRow& row : kModes) {
        if (row.mode != mode) ShowPanel(row.mode, false);
        m_env.controls.Show(row.nTab, row.mode != mode);
    }
    ShowPanel(mode, true);
    for (const CModeRow& row : kModes)
        if (row.mode == mode && (bOpen || bThum)) Apply(row.column);
    // Without a picture there is nothing to send.
    if (!bOpen && !bThum) Apply(kCmdSend, EKey::Off);
}

// --- events ---

// Preview box, readout, CONFIRM and CANCEL, and the slider of an effect with a level.
void CControlDesk::ShowPreview(bool bShow, bool bLevel) {
    m_env.controls.Show(kPreview, bShow);
    m_env.controls.Show(kEffectSlider, bLevel);
    m_env.controls.Enable(kEffectSlider, bLevel);
}

void CControlDesk::Tell(EEditEvent event) {
    for (const CKeyEventRow& row : kKeyEvents)
        if (row.event == event) Apply(row.nId, row.key);
    switch (event) {
        case EEditEvent::PreviewBegun:
        case EEditEvent::LevelPreviewBegun:
            ShowPreview(true, event == EEditEvent::LevelPreviewBegun);
            return Apply(&CCommandRow::previewBegun);
        case EEditEvent::PreviewEnded:
            ShowPreview(false, false);
            return Apply(&CCommandRow::previewEnded);
        case EEditEvent::PreviewDropped:
            return Apply(&CCommandRow::previewDropped);
        case EEditEvent::FolderShown:
        case EEditEvent::FileShown:
            m_env.controls.Show(kCanvas, false);
            m_env.controls.Show(kFileList, true);
            if (event == EEditEvent::FileShown) m_env.controls.Show(kProgress, false);
            return;
        case EEditEvent::FillBegun:
        case EEditEvent::FillEnded:
            m_bFilling = event == EEditEvent::FillBegun;
            return m_env.controls.Show(kProgress, m_bFilling && m_env.state.IsUp(EMode::Thum));
        default:
            return;
    }
}

// --- lines ---

void CControlDesk::ShowInfoLines(bool bEdit) {
    m_env.controls.Show(kEditInfo, bEdit);
    m_env.controls.Show(kBrowseInfo, !bEdit);
}

void CControlDesk::ShowHelpLine() {
    m_env.controls.Show(kHelpLine, true);
}
