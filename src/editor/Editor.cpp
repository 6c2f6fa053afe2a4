#include "editor/Editor.h"

#include <new>

#include "resources/Ids.h"
#include "resources/Texts.h"

bool CEditor::Push(CUndoStack& stack, int nButton) {
    try {
        stack.Push(m_env.images.MakeEntry());
    } catch (const std::bad_alloc&) {
        m_env.boxes.Show({kTextNoMemory, kTextProgram, EBoxIcon::Exclamation, EBoxButtons::Ok});
        return false;
    }
    m_env.controls.Enable(nButton, true);
    return true;
}

bool CEditor::PushUndo() {
    return Push(m_env.images.m_stackUndo, kCmdUndo);
}
bool CEditor::PushRedo() {
    return Push(m_env.images.m_stackRedo, kCmdRedo);
}

void CEditor::ClearUndo() {
    m_env.images.m_stackUndo.Clear();
    m_env.controls.Enable(kCmdUndo, false);
}

void CEditor::ClearRedo() {
    m_env.images.m_stackRedo.Clear();
    m_env.controls.Enable(kCmdRedo, false);
}

void CEditor::ShowHistory() {
    m_env.controls.Enable(kCmdUndo, !m_env.images.m_stackUndo.IsEmpty());
    m_env.controls.Enable(kCmdRedo, !m_env.images.m_stackRedo.IsEmpty());
}

void CEditor::TransferCanvas(bool bFetch) {
    if (!m_env.state.m_bImageOpen) return;
    if (!bFetch) {
        m_env.canvas.LoadPicture(*m_env.images.m_pImgWork);
        return;
    }
    // If nothing has been loaded into the canvas yet, there is nothing to fetch.
    if (!m_env.images.m_pImgWork->CreateFromHBITMAP(m_env.canvas.CommittedPixels())) return;
    m_env.images.m_pImgDisplay = std::make_unique<CxImage>(*m_env.images.m_pImgWork);
}

bool CEditor::BeginChange() {
    if (m_env.state.m_bDrawMode) TransferCanvas(true);
    if (!PushUndo()) return false;
    if (!m_env.images.m_stackRedo.IsEmpty()) ClearRedo();
    return true;
}

void CEditor::FocusEffectList() {
    if (m_env.state.m_bEffectMode) m_env.controls.SetFocus(kEffectList);
}

void CEditor::OnUndo() {
    if (m_env.images.m_stackUndo.IsEmpty()) return;
    const CWaitScope wait(m_env.wait);
    m_env.canvas.AbandonShape();
    if (m_env.state.m_bDrawMode) {
        if (m_env.canvas.IsFloating()) m_env.canvas.DropFloat();
        TransferCanvas(true);
        m_env.canvas.ForgetFloat();
    }
    // Read behind the merge, which goes back to the tool that was current before the float.
    const int nTool = m_env.tools.CurrentTool();
    if (PushRedo()) TakeBack(m_env.images.m_stackUndo, kCmdUndo, nTool);
}

void CEditor::OnRedo() {
    if (m_env.images.m_stackRedo.IsEmpty()) return;
    const CWaitScope wait(m_env.wait);
    const int nTool = m_env.tools.CurrentTool();
    if (m_env.state.m_bDrawMode) {
        TransferCanvas(true);
        m_env.canvas.ForgetFloat();
    }
    // This push leaves the redo stack alone.
    if (PushUndo()) TakeBack(m_env.images.m_stackRedo, kCmdRedo, nTool);
}

// The common way of Undo and Redo behind the push on the other stack.
void CEditor::TakeBack(CUndoStack& stackFrom, int nButton, int nTool) {
    CWorkingImages& images = m_env.images;
    images.TakeEntry(stackFrom.Top());
    m_env.controls.Check(kRadioImageSize, images.m_bImageSize);
    m_env.controls.Check(kRadioPhoneSize, images.m_bPhoneSize);
    m_env.canvas.ReInitialise();
    if (m_env.state.m_bDrawMode) {
        TransferCanvas(false);
        m_env.tools.SetCurrentTool(kToolMagnifier);
        m_env.tools.EnterTool();
    } else {
        m_env.canvas.Repaint();
    }
    stackFrom.Pop();
    m_env.controls.Enable(nButton, !stackFrom.IsEmpty());
    FocusEffectList();
    if (m_env.state.m_bDrawMode) {
        m_env.tools.SetCurrentTool(nTool);
        m_env.tools.FocusCurrentTool();
    }
    if (m_env.state.m_bFontMode) {
        m_env.host.ShowFontPanel();
        m_env.canvas.ReInitialise();
    }
}

void CEditor::OnReset() {
    if (!m_env.state.m_bImageOpen) return;
    const CWaitScope wait(m_env.wait);
    CWorkingImages& images = m_env.images;
    m_env.canvas.AbandonShape();
    if (m_env.state.m_bDrawMode) TransferCanvas(true);
    if (m_env.canvas.IsFloating()) m_env.canvas.DropFloat();
    if (!PushUndo()) return;
    if (!images.m_stackRedo.IsEmpty()) ClearRedo();

    images.m_pImgWork = std::make_unique<CxImage>(*images.m_pImgOpened);
    images.SetDisplaySize(images.m_pImgWork->GetSize());
    images.RebuildDisplay();
    if (m_env.state.m_bFontMode) m_env.host.ShowFontPanel();
    if (m_env.state.m_bDrawMode) {
        TransferCanvas(false);
        m_env.tools.ResetZoom();
        m_env.tools.SetCurrentTool(kToolMagnifier);
        m_env.tools.EnterTool();
    } else {
        m_env.canvas.ReInitialise();
        m_env.canvas.Repaint();
    }
    if (images.m_bFrameOn) images.m_pImgNoFrame = std::make_unique<CxImage>(*images.m_pImgOpened);
    if (m_env.state.m_bDrawMode) m_env.tools.FocusCurrentTool();
    FocusEffectList();
}

void CEditor::OnImageSize() {
    SetSizeRule(false);
}
void CEditor::OnPhoneSize() {
    SetSizeRule(true);
}

void CEditor::SetSizeRule(bool bPhoneSize) {
    CWorkingImages& images = m_env.images;
    const bool bOpen = m_env.state.m_bImageOpen;
    if (bOpen && !BeginChange()) {
        // The click has already moved the mark.
        m_env.controls.Check(kRadioImageSize, images.m_bImageSize);
        m_env.controls.Check(kRadioPhoneSize, images.m_bPhoneSize);
        return;
    }
    images.SetSizeRule(bPhoneSize);
    m_env.controls.Check(kRadioImageSize, images.m_bImageSize);
    m_env.controls.Check(kRadioPhoneSize, images.m_bPhoneSize);
    if (!bOpen) return;
    m_env.host.EnableSizeCommands(true);
    images.RebuildDisplay();
    m_env.canvas.ReInitialise();
    m_env.canvas.Repaint();
}
