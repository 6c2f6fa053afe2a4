#include "paint/ClipboardCommands.h"

#include <utility>

#include "resources/Ids.h"
#include "resources/Texts.h"

void CClipboardCommands::ShowNotice(const char* szText) {
    m_env.boxes.Show({szText, kTitleNotice, EBoxIcon::Exclamation, EBoxButtons::Ok});
}

// Makes the region of the selection and takes its pixels. False, behind a message, if memory is short. If
// nothing is inside, there is nothing to give; the clipboard and the region of the last copy then stay.
bool CClipboardCommands::Lift(CLifted& lifted) {
    CSelection& selection = m_env.draw.Selection();
    const bool bDone = Prepare([&] {
        lifted.bAny = selection.Build(m_env.tools.m_nTool, m_env.draw.Hand());
        if (!lifted.bAny) return true;
        if (!lifted.image.CreateFromHBITMAP(selection.Lift(m_env.draw.Paper().Committed()))) return false;
        lifted.arrDib = lifted.image.CopyToHandle();
        return !lifted.arrDib.empty();
    });
    return bDone || m_env.editor.ReportNoMemory();
}

void CClipboardCommands::GiveToClipboard(const CLifted& lifted, const char* szFailed) {
    if (!lifted.bAny || !m_env.clipboard.SetBitmap(lifted.arrDib))
        m_env.boxes.Show({szFailed, kTextProgram, EBoxIcon::Exclamation, EBoxButtons::Ok});
    if (!lifted.bAny) return;
    m_env.draw.Selection().SetClipReady();
    m_env.events.Tell(EEditEvent::ClipFilled);
}

void CClipboardCommands::OnCopy() {
    if (!m_env.draw.Selection().IsMarked()) return ShowNotice(kTextNothingToCopy);
    const CWaitScope wait(m_env.wait);
    CLifted lifted;
    if (Lift(lifted)) GiveToClipboard(lifted, kTextCopyFailed);
}

void CClipboardCommands::OnCut() {
    CSelection& selection = m_env.draw.Selection();
    if (!selection.IsMarked()) return ShowNotice(kTextNothingToCut);
    const CWaitScope wait(m_env.wait);
    CPaper& paper = m_env.draw.Paper();
    const CxImage imgBase = m_env.draw.Committed();
    CLifted lifted;
    if (!Lift(lifted)) return;
    if (!paper.Separate()) {
        m_env.editor.ReportNoMemory();
        return;
    }
    m_env.editor.PushStep(imgBase);
    GiveToClipboard(lifted, kTextCutFailed);
    paper.Revert();
    if (lifted.bAny) {
        paper.Scratch().FillRegion(selection.m_region, m_env.tools.m_crBackground);
        paper.Commit();
    }
    m_env.events.Tell(EEditEvent::SelectionGone);
    m_env.draw.ShowPaper();
}

// False, behind a message, if memory is short. A clipboard without a picture, which another program has
// taken, leaves the image.
bool CClipboardCommands::TakeFromClipboard(CxImage& image) {
    const bool bDone = Prepare([&] {
        const auto dib = m_env.clipboard.GetBitmap();
        return !dib || image.CreateFromHANDLE(*dib);
    });
    return bDone || m_env.editor.ReportNoMemory();
}

void CClipboardCommands::OnPaste() {
    CSelection& selection = m_env.draw.Selection();
    if (!m_env.draw.PrepareDrop()) return;
    m_env.draw.DropFloat();
    if (!selection.IsClipReady() || !m_env.controls.IsEnabled(kCmdPaste))
        return ShowNotice(kTextNothingToCopy);
    const CWaitScope wait(m_env.wait);
    const CxImage imgBase = m_env.draw.Committed();
    CxImage image;
    if (!TakeFromClipboard(image)) return;
    if (!m_env.draw.Paper().Separate()) {
        m_env.editor.ReportNoMemory();
        return;
    }
    selection.Unmark();
    m_env.editor.PushStep(imgBase);
    m_env.tools.m_nResumeTool = m_env.tools.m_nTool;
    m_env.tools.m_nTool = ETool::Float;
    Float(image);
    m_env.events.Tell(EEditEvent::SelectionGone);
}

// If another program has taken the clipboard, the last float's pixels are up, or none.
void CClipboardCommands::Float(const CxImage& image) {
    CSelection& selection = m_env.draw.Selection();
    selection.SetFloating(true);
    if (!image.IsValid()) return;
    selection.m_imgFloat = image;
    CPaper& paper = m_env.draw.Paper();
    paper.Revert();
    selection.MoveTo(m_env.draw.VisibleCorner());
    selection.DrawFloat(paper.Scratch());
    selection.DrawFloatOutline(paper.Scratch());
    paper.ShowScratch();
    m_env.draw.ShowPaper();
}

void CClipboardCommands::OnCrop() {
    CSelection& selection = m_env.draw.Selection();
    if (!selection.IsMarked()) return ShowNotice(kTextNothingToCrop);
    const CWaitScope wait(m_env.wait);
    CxImage image;
    bool bAny = false;
    const bool bLifted = Prepare([&] {
        bAny = selection.Build(m_env.tools.m_nTool, m_env.draw.Hand());
        return !bAny || image.CreateFromHBITMAP(selection.Lift(m_env.draw.Paper().Committed()));
    });
    if (!bLifted) {
        m_env.editor.ReportNoMemory();
        return;
    }
    // A selection that holds nothing would leave no picture.
    if (!bAny) return ShowNotice(kTextNothingToCrop);
    const bool bCropped = m_env.editor.Change(m_env.draw.Committed(), [&](CEditPictures& next) {
        next.m_imgWork = image;
        next.ShowWork();
        next.SetDisplaySize(image.GetSize());
        return true;
    });
    if (!bCropped) return;
    m_env.draw.LoadCanvas();
    m_env.events.Tell(EEditEvent::Cropped);
}
