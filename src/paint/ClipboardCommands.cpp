#include "paint/ClipboardCommands.h"

#include <array>

#include "resources/Ids.h"
#include "resources/Texts.h"

namespace {

constexpr std::array kSelectionCommands = {kCmdCut, kCmdCopy, kCmdCrop};

}  // namespace

void CClipboardCommands::EnableSelectionCommands(bool bEnable) {
    m_env.controls.Enable(kSelectionCommands, bEnable);
}

void CClipboardCommands::ShowNotice(const char* szText) {
    m_env.boxes.Show({szText, kTitleNotice, EBoxIcon::Exclamation, EBoxButtons::Ok});
}

// Makes the region and gives its pixels to the clipboard. False if nothing is inside, so that there is
// nothing to give; the clipboard and the region of the last copy then stay.
bool CClipboardCommands::LiftToClipboard(const char* szFailed) {
    CSelection& selection = m_env.canvas.Selection();
    CxImage image;
    const bool bAny = selection.Build(m_env.tools.m_nTool, m_env.canvas.Hand());
    const bool bTaken = bAny && image.CreateFromHBITMAP(selection.Lift(m_env.canvas.Paper().Committed()));
    if (!bTaken || !m_env.clipboard.SetBitmap(image.CopyToHandle()))
        m_env.boxes.Show({szFailed, kTextProgram, EBoxIcon::Exclamation, EBoxButtons::Ok});
    return bAny;
}

void CClipboardCommands::OnCopy() {
    if (!m_env.canvas.Selection().m_bSelection) return ShowNotice(kTextNothingToCopy);
    const CWaitScope wait(m_env.wait);
    if (!LiftToClipboard(kTextCopyFailed)) return;
    m_env.canvas.Selection().m_bClipReady = true;
    m_env.controls.Enable(kCmdPaste, true);
}

void CClipboardCommands::OnCut() {
    CSelection& selection = m_env.canvas.Selection();
    if (!selection.m_bSelection) return ShowNotice(kTextNothingToCut);
    const CWaitScope wait(m_env.wait);
    CPaper& paper = m_env.canvas.Paper();
    if (!m_env.editor.BeginChange() || !paper.Separate()) return;
    const bool bLifted = LiftToClipboard(kTextCutFailed);
    paper.Revert();
    if (bLifted) {
        paper.Committed().FillRegion(selection.m_region, m_env.tools.m_crBackground);
        paper.Scratch().FillRegion(selection.m_region, m_env.tools.m_crBackground);
        paper.Commit();
        selection.m_bClipReady = true;
        m_env.controls.Enable(kCmdPaste, true);
    }
    EnableSelectionCommands(false);
    m_env.state.m_bEffectPending = false;
    m_env.canvas.ShowPaper();
}

void CClipboardCommands::OnPaste() {
    if (m_env.canvas.IsFloating()) m_env.canvas.DropFloat();
    CSelection& selection = m_env.canvas.Selection();
    if (!selection.m_bClipReady || !m_env.controls.IsEnabled(kCmdPaste))
        return ShowNotice(kTextNothingToCopy);
    const CWaitScope wait(m_env.wait);
    selection.m_bSelection = false;
    if (!m_env.editor.BeginChange() || !m_env.canvas.Paper().Separate()) return;
    m_env.tools.m_nResumeTool = m_env.tools.m_nTool;
    m_env.tools.m_nTool = kToolFloat;
    Float();
    EnableSelectionCommands(false);
    m_env.state.m_bEffectPending = false;
}

// If another program has taken the clipboard or what it holds cannot be read, the last float's pixels are up,
// or none.
void CClipboardCommands::Float() {
    CSelection& selection = m_env.canvas.Selection();
    selection.m_bFloating = true;
    const auto dib = m_env.clipboard.GetBitmap();
    if (!dib) return;
    CxImage image;
    if (image.CreateFromHANDLE(*dib)) selection.m_imgFloat = image;
    CPaper& paper = m_env.canvas.Paper();
    paper.Revert();
    selection.MoveTo(m_env.canvas.VisibleCorner());
    selection.DrawFloat(paper.Scratch());
    selection.DrawFloatOutline(paper.Scratch());
    paper.ShowScratch();
    m_env.canvas.ShowPaper();
}

void CClipboardCommands::OnCrop() {
    CSelection& selection = m_env.canvas.Selection();
    // A selection that holds nothing would leave no picture.
    if (!selection.m_bSelection || !selection.Build(m_env.tools.m_nTool, m_env.canvas.Hand()))
        return ShowNotice(kTextNothingToCrop);
    const CWaitScope wait(m_env.wait);
    if (!m_env.editor.BeginChange()) return;
    CxImage image;
    if (!image.CreateFromHBITMAP(selection.Lift(m_env.canvas.Paper().Committed()))) return;
    m_env.images.m_pImgDisplay = std::make_unique<CxImage>(image);
    m_env.images.m_pImgWork = std::make_unique<CxImage>(image);
    m_env.images.SetDisplaySize(image.GetSize());
    m_env.editor.TransferCanvas(false);
    EnableSelectionCommands(false);
    m_env.controls.Enable(kCmdPaste, false);
    m_env.state.m_bEffectPending = false;
}
