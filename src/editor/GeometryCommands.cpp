#include "editor/GeometryCommands.h"

#include <algorithm>

#include "editor/SizeChangeDlg.h"
#include "resources/Ids.h"
#include "resources/Texts.h"

namespace {

constexpr double kZoomStep = 0.25;

[[nodiscard]] bool FlipImage(CxImage& image, bool bVertical) {
    return bVertical ? image.Flip() : image.Mirror();
}

}  // namespace

// Under the phone size rule the display has one size only. True for a command that must stop, after a
// message.
bool CGeometryCommands::IsRefused(const char* szText) {
    if (!m_env.state.m_bImageOpen) return true;
    if (!m_env.images.m_bPhoneSize) return false;
    m_env.boxes.Show({szText, kTitleNotice, EBoxIcon::Exclamation, EBoxButtons::Ok});
    return true;
}

// The head of the commands. False if they must stop.
bool CGeometryCommands::BeginEdit() {
    if (m_env.state.m_bDrawMode && m_env.canvas.IsFloating()) m_env.canvas.DropFloat();
    m_env.canvas.AbandonShape();
    return m_env.editor.BeginChange();
}

// Their tail.
void CGeometryCommands::EndEdit() {
    m_env.editor.FocusEffectList();
    if (m_env.state.m_bDrawMode) return m_env.editor.TransferCanvas(false);
    m_env.canvas.ReInitialise();
    m_env.canvas.Repaint();
}

void CGeometryCommands::OnFlipVertical() {
    Flip(true);
}
void CGeometryCommands::OnFlipHorizontal() {
    Flip(false);
}

void CGeometryCommands::Flip(bool bVertical) {
    if (!m_env.state.m_bImageOpen) return;
    const CWaitScope wait(m_env.wait);
    if (!BeginEdit()) return;
    CWorkingImages& images = m_env.images;
    if (!FlipImage(*images.m_pImgWork, bVertical)) return;
    // In DRAW the display keeps its own size also under the phone size rule.
    const bool bPhoneScreen = images.m_bPhoneSize && !m_env.state.m_bDrawMode;
    images.RebuildDisplay(bPhoneScreen ? CWorkingImages::kPhoneScreen : images.DisplaySize());
    EndEdit();
    if (images.m_bFrameOn && images.m_pImgNoFrame && !FlipImage(*images.m_pImgNoFrame, bVertical))
        images.m_pImgNoFrame.reset();
    if (m_env.state.m_bDrawMode) m_env.tools.FocusCurrentTool();
}

void CGeometryCommands::OnTurnLeft() {
    Turn(-90.0, kTextNoTurnLeft);
}
void CGeometryCommands::OnTurnRight() {
    Turn(90.0, kTextNoTurnRight);
}

void CGeometryCommands::Turn(double fDegrees, const char* szRefusal) {
    if (IsRefused(szRefusal)) return;
    const CWaitScope wait(m_env.wait);
    if (!BeginEdit()) return;
    CWorkingImages& images = m_env.images;
    if (!images.m_pImgWork->Rotate(fDegrees)) return;
    images.SetDisplaySize({images.m_nDispHeight, images.m_nDispWidth});
    images.RebuildDisplay(images.DisplaySize());
    EndEdit();
    if (images.m_bFrameOn && images.m_pImgNoFrame && !images.m_pImgNoFrame->Rotate(fDegrees))
        images.m_pImgNoFrame.reset();
}

void CGeometryCommands::ShowSizeError(const char* szText) {
    m_env.boxes.Show({szText, kTitleSizeChange, EBoxIcon::Stop, EBoxButtons::Ok});
}

void CGeometryCommands::OnSize() {
    if (IsRefused(kTextPhoneSizeRules)) return;
    CSizeChangeDlg dialog(m_env.images.DisplaySize(), m_env.host.PhoneSizes(), m_env.boxes);
    if (m_env.modals.Run(dialog) != CDialog::kDialogOk) return m_env.editor.FocusEffectList();

    const CWaitScope wait(m_env.wait);
    const CSize size = dialog.Size();
    if (std::max(size.cx, size.cy) > kLargestSide) return ShowSizeError(kTextTooLarge);
    if (std::min(size.cx, size.cy) < kSmallestSide) return ShowSizeError(kTextTooSmall);
    if (!m_env.editor.BeginChange()) return;
    m_env.images.SetDisplaySize(size);
    m_env.images.RebuildDisplay(size);
    m_env.canvas.ReInitialise();
    m_env.canvas.Repaint();
    m_env.editor.FocusEffectList();
}

void CGeometryCommands::OnLarge() {
    Zoom(kZoomStep);
}
void CGeometryCommands::OnSmall() {
    Zoom(-kZoomStep);
}

// A refusal comes behind the undo step, which stays.
void CGeometryCommands::Zoom(double fStep) {
    if (IsRefused(kTextPhoneSizeRules)) return;
    const CWaitScope wait(m_env.wait);
    if (!m_env.editor.BeginChange()) return;
    CWorkingImages& images = m_env.images;
    const auto fnStep = [fStep](int nSide) { return static_cast<int>(nSide + nSide * fStep); };
    const CSize size{fnStep(images.m_nDispWidth), fnStep(images.m_nDispHeight)};
    const bool bTooLarge = fStep > 0 && std::max(size.cx, size.cy) > kLargestSide;
    const bool bTooSmall = fStep < 0 && std::min(size.cx, size.cy) < kSmallestZoomedSide;
    if (!bTooLarge && !bTooSmall) images.SetDisplaySize(size);
    images.RebuildDisplay(images.DisplaySize());
    EndEdit();
    if (bTooLarge) ShowSizeError(kTextTooLarge);
    if (bTooSmall) ShowSizeError(kTextTooSmall);
}

// Back to the size as opened, turned the way the display is turned now.
void CGeometryCommands::OnActual() {
    if (IsRefused(kTextPhoneSizeRules)) return;
    const CWaitScope wait(m_env.wait);
    if (!BeginEdit()) return;
    CWorkingImages& images = m_env.images;
    const auto [nSmall, nBig] =
        std::minmax({images.m_pImgOpened->GetWidth(), images.m_pImgOpened->GetHeight()});
    const bool bUpright = images.m_nDispWidth <= images.m_nDispHeight;
    const CSize size = bUpright ? CSize{nSmall, nBig} : CSize{nBig, nSmall};
    if (!images.m_pImgWork->Resample(size.cx, size.cy)) return;
    images.SetDisplaySize(size);
    images.RebuildDisplay(images.DisplaySize());
    EndEdit();
}
