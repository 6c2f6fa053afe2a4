#include "effect/EffectFlow.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include "resources/BitmapIds.h"
#include "resources/Ids.h"
#include "resources/Texts.h"

namespace {

constexpr CSize kListCell{189, 68};

constexpr std::array kPreviewControls = {kEffectPreview, kEffectSlider, kEffectLevel, kConfirm, kCancel};
// What cannot be done while a preview waits.
constexpr std::array kCommandsOff = {kCmdReset,          kCmdNew,      kCmdSave,      kCmdPrint,
                                     kCmdUndo,           kCmdRedo,     kCmdSize,      kCmdFlipVertical,
                                     kCmdFlipHorizontal, kCmdTurnLeft, kCmdTurnRight, kCmdLarge,
                                     kCmdActual,         kCmdSmall,    kCmdSend,      kCmdTake};
constexpr std::array kCommandsBack = {kCmdReset,     kCmdNew,          kCmdSave,           kCmdPrint,
                                      kCmdSize,      kCmdFlipVertical, kCmdFlipHorizontal, kCmdTurnLeft,
                                      kCmdTurnRight, kCmdLarge,        kCmdActual,         kCmdSmall};

std::string NormalPicture(int nEffect) {
    return std::to_string(kBmpEffectNormal + nEffect);
}
std::string SelectedPicture(int nEffect) {
    return std::to_string(kBmpEffectSelected + nEffect);
}

const CEffectRow& RowOf(int nEffect) {
    return ::RowOf(EffectOf(nEffect));
}

}  // namespace

CEffectFlow::CEffectFlow(const CEnvironment& env) : m_env(env), m_list(env.controls, kEffectList) {}

void CEffectFlow::Init() {
    std::vector<std::string> arrCells;
    arrCells.reserve(kEffectCount);
    for (int i = 0; i < kEffectCount; ++i) arrCells.push_back(NormalPicture(i));
    m_list.SetImageList(std::move(arrCells), kListCell);
    for (int i = 0; i < kEffectCount; ++i) m_list.AddItem(i, 0);
}

void CEffectFlow::ShowEffectControls(bool bShow) {
    m_env.controls.Show(kPreviewControls, bShow);
}

void CEffectFlow::RestSlider() {
    m_env.controls.SetRange(kEffectSlider, -100, 100);
    m_env.controls.SetPosition(kEffectSlider, 100);
    m_env.controls.Show(kEffectSlider, false);
    m_env.controls.Enable(kEffectSlider, false);
}

void CEffectFlow::DropPreview() {
    // What no mode's own rules turn on again.
    if (m_env.state.m_bEffectPending) {
        m_env.controls.Enable(kCmdNew, true);
        if (m_env.editorHost.IsConnected()) m_env.controls.Enable(kCmdTake, true);
    }
    m_env.state.m_bEffectPending = false;
    m_pImgEffectSmall.reset();
    m_pImgEffectBase.reset();
}

// A small picture fills the whole box; a large one keeps its proportions, fractions cut.
CSize CEffectFlow::PreviewSize(CSize size) {
    constexpr int kWidth = kPreviewBox.Width();
    constexpr int kHeight = kPreviewBox.Height();
    if (size.cy < kHeight && size.cx < kWidth) return {kWidth, kHeight};
    const bool bByHeight = size.cy >= kHeight && size.cx <= size.cy;
    if (bByHeight) return {static_cast<int>(std::int64_t{size.cx} * kHeight / size.cy), kHeight};
    return {kWidth, static_cast<int>(std::int64_t{size.cy} * kWidth / size.cx)};
}

int CEffectFlow::LevelOf(int nMin, int nMax, int nPos) {
    return nMin < 0 ? -nPos : nMax - nPos;
}

void CEffectFlow::SetEffectRange(int nEffect) {
    const CEffectRow& row = RowOf(nEffect);
    m_env.controls.SetRange(kEffectSlider, row.nMin, row.nMax);
    m_env.controls.SetPosition(kEffectSlider, row.nStart);
}

void CEffectFlow::SetEffectControls(int nEffect) {
    if (nEffect < 0 || nEffect >= kEffectCount) return;
    const bool bHasLevel = RowOf(nEffect).bHasLevel;
    SetEffectRange(nEffect);
    ShowEffectControls(true);
    m_env.controls.Show(kEffectSlider, bHasLevel);
    m_env.controls.Enable(kEffectSlider, bHasLevel);
    m_env.state.m_bNoEffectLevel = !bHasLevel;
}

void CEffectFlow::ShowLevel(bool bHasLevel) {
    m_env.controls.SetText(kEffectLevel, bHasLevel ? std::to_string(m_nEffectLevel) : kBlankReadout);
}

// Runs the effect on a fresh copy of the untouched preview.
bool CEffectFlow::ApplyToPreview(bool bFull) {
    auto pImage = std::make_unique<CxImage>(*m_pImgEffectBase);
    if (!bFull) m_nRefWidth = m_env.images.m_nDispWidth;
    if (!ApplyEffect(*pImage, EffectOf(m_nEffectIndex), m_nEffectLevel, m_nRefWidth, m_env.random))
        return false;
    m_pImgEffectSmall = std::move(pImage);
    return true;
}

void CEffectFlow::OnSelChangeEffectList() {
    const int nEffect = m_list.Selection();
    if (!m_env.state.m_bImageOpen || nEffect < 0 || nEffect >= kEffectCount) return;
    const CWaitScope wait(m_env.wait);
    auto pBase = std::make_unique<CxImage>(*m_env.images.m_pImgWork);
    const CSize size = PreviewSize(pBase->GetSize());
    // Of a very long and thin picture one line is left at this size.
    if (!pBase->Resample(std::max(1, size.cx), std::max(1, size.cy))) return;
    m_nEffectIndex = nEffect;
    if (m_nEffectShown >= 0) m_list.ReplaceCell(m_nEffectShown, NormalPicture(m_nEffectShown));
    m_list.ReplaceCell(nEffect, SelectedPicture(nEffect));
    m_nEffectShown = nEffect;
    m_nEffectLevel = 0;
    SetEffectControls(nEffect);
    m_env.controls.Enable(kCommandsOff, false);

    m_pImgEffectBase = std::move(pBase);
    // Without memory for the effect the preview shows the picture as it is.
    m_pImgEffectSmall = std::make_unique<CxImage>(*m_pImgEffectBase);
    ShowLevel(RowOf(nEffect).bHasLevel);
    ApplyToPreview(false);
    m_env.state.m_bEffectPending = true;
    m_env.controls.SetFocus(kEffectList);
    m_env.host.RepaintPanel();
}

void CEffectFlow::OnVScroll() {
    if (!m_pImgEffectBase) return;
    m_env.controls.Enable(kCmdReset, false);
    const CControl& slider = *m_env.controls.Find(kEffectSlider);
    m_nEffectLevel = LevelOf(slider.nMin, slider.nMax, slider.nPos);
    m_env.controls.SetFocus(kEffectList);
    ApplyToPreview(m_env.state.m_bNoEffectLevel);
    ShowLevel(true);
    m_env.state.m_bEffectPending = true;
    m_env.host.RepaintPreview();
    m_env.controls.SetFocus(kEffectList);
}

// The effect runs once more, from the picture itself.
void CEffectFlow::OnConfirm() {
    if (!m_env.state.m_bEffectPending) return;
    const CWaitScope wait(m_env.wait);
    auto pFull = std::make_unique<CxImage>(*m_env.images.m_pImgWork);
    if (!ApplyEffect(*pFull, EffectOf(m_nEffectIndex), m_nEffectLevel, m_nRefWidth, m_env.random)) {
        m_env.boxes.Show({kTextNoMemory, kTextProgram, EBoxIcon::Exclamation, EBoxButtons::Ok});
        return;
    }
    if (!m_env.editor.PushUndo()) return;
    if (!m_env.images.m_stackRedo.IsEmpty()) m_env.editor.ClearRedo();
    m_env.images.m_pImgWork = std::move(pFull);
    m_env.images.RebuildDisplay();
    EndPreview();
    m_env.controls.Enable(kCmdRedo, false);
}

void CEffectFlow::OnCancel() {
    if (!m_env.state.m_bEffectPending) return;
    EndPreview();
}

// The common end of CONFIRM and CANCEL: commands back, preview and slider gone. The list's selection and its
// selected picture stay. That CANCEL too makes a frame part of the picture for good is meant.
void CEffectFlow::EndPreview() {
    m_env.images.m_bFrameOn = false;
    m_env.state.m_bEffectPending = false;
    m_env.controls.SetFocus(kEffectList);
    ShowEffectControls(false);
    RestSlider();
    m_env.controls.Enable(kCommandsBack, true);
    m_env.editor.ShowHistory();
    const bool bConnected = m_env.editorHost.IsConnected();
    if (!bConnected) m_env.controls.Enable(kCmdConnect, true);
    m_env.controls.Enable(kCmdSend, bConnected);
    m_env.controls.Enable(kCmdTake, bConnected);
    DropPreview();
    m_env.state.m_bNoEffectLevel = true;
    m_env.host.RepaintPanel();
    m_env.canvas.Repaint();
}

void CEffectFlow::PaintPreview(CClientArea& client) const {
    if (!m_env.state.m_bEffectPending || !m_pImgEffectSmall) return;
    const int nWidth = m_pImgEffectSmall->GetWidth();
    const int nHeight = m_pImgEffectSmall->GetHeight();
    const CClientArea::CClip clip(client, kPreviewBox);
    client.DrawSurface(CSurface(m_pImgEffectSmall->Pixels()),
                       kPreviewBox.left + kPreviewBox.Width() / 2 - nWidth / 2,
                       kPreviewBox.top + kPreviewBox.Height() / 2 - nHeight / 2);
}
