#include "editor/Editor.h"

#include <utility>

#include "resources/Texts.h"

bool CEditor::ReportNoMemory() {
    m_env.boxes.Show({kTextNoMemory, kTextProgram, EBoxIcon::Exclamation, EBoxButtons::Ok});
    return false;
}

// --- the stacks ---

void CEditor::PushUndo(const CxImage& imgBase) {
    m_env.images.m_stackUndo.Push(m_env.images.MakeEntry(imgBase));
    m_env.events.Tell(EEditEvent::UndoPushed);
}

void CEditor::PushRedo(const CxImage& imgBase) {
    m_env.images.m_stackRedo.Push(m_env.images.MakeEntry(imgBase));
    m_env.events.Tell(EEditEvent::RedoPushed);
}

void CEditor::PopUndo() {
    m_env.images.m_stackUndo.Pop();
    if (m_env.images.m_stackUndo.IsEmpty()) m_env.events.Tell(EEditEvent::UndoEmptied);
}

void CEditor::PopRedo() {
    m_env.images.m_stackRedo.Pop();
    if (m_env.images.m_stackRedo.IsEmpty()) m_env.events.Tell(EEditEvent::RedoEmptied);
}

void CEditor::ClearUndo() {
    m_env.images.m_stackUndo.Clear();
    m_env.events.Tell(EEditEvent::UndoEmptied);
}

void CEditor::ClearRedo() {
    m_env.images.m_stackRedo.Clear();
    m_env.events.Tell(EEditEvent::RedoEmptied);
}

// --- changes ---

void CEditor::Commit(const CxImage& imgBase, CEditPictures next) {
    PushUndo(imgBase);
    ClearRedo();
    static_cast<CEditPictures&>(m_env.images) = std::move(next);
}

void CEditor::PushStep(const CxImage& imgBase) {
    CEditPictures next = m_env.images;
    next.m_imgWork = imgBase;
    next.ShowWork();
    Commit(imgBase, std::move(next));
}

bool CEditor::MakeEntryPictures(const CUndoEntry& entry, EMode mode, CEditPictures& next) {
    next = m_env.images;
    next.TakeEntry(entry);
    return Prepare([&] { return next.RebuildDisplay(mode, next.DisplaySize()); }) || ReportNoMemory();
}

bool CEditor::Undo(const CxImage& imgBase, EMode mode) {
    CWorkingImages& images = m_env.images;
    CEditPictures next;
    if (images.m_stackUndo.IsEmpty() || !MakeEntryPictures(images.m_stackUndo.Top(), mode, next))
        return false;
    PushRedo(imgBase);
    PopUndo();
    static_cast<CEditPictures&>(images) = std::move(next);
    return true;
}

// The step that this pushes leaves the redo stack alone.
bool CEditor::Redo(const CxImage& imgBase, EMode mode) {
    CWorkingImages& images = m_env.images;
    CEditPictures next;
    if (images.m_stackRedo.IsEmpty() || !MakeEntryPictures(images.m_stackRedo.Top(), mode, next))
        return false;
    PushUndo(imgBase);
    PopRedo();
    static_cast<CEditPictures&>(images) = std::move(next);
    return true;
}

bool CEditor::Reset(const CxImage& imgBase, EMode mode) {
    const CxImage& imgOpened = m_env.images.m_imgOpened;
    return Change(imgBase, [&](CEditPictures& next) {
        next.m_imgWork = imgOpened;
        next.SetDisplaySize(imgOpened.GetSize());
        if (next.m_bFrameOn) next.m_imgNoFrame = imgOpened;
        return next.RebuildDisplay(mode, next.RuledSize());
    });
}

bool CEditor::SetSizeRule(ESizeRule rule) {
    if (!m_env.images.m_imgWork.IsValid()) {
        m_env.images.m_sizeRule = rule;
        return true;
    }
    return Change(m_env.images.m_imgWork, [rule](CEditPictures& next) {
        next.m_sizeRule = rule;
        return next.RebuildDisplay(next.RuledSize());
    });
}

void CEditor::TakePicture(const CxImage& image) {
    m_env.images.TakePicture(image);
    ClearUndo();
    ClearRedo();
}
