#pragma once

#include <new>

#include "editor/EditEvents.h"
#include "editor/WorkingImages.h"
#include "window/MessageBoxes.h"

// Runs what may find no memory; false then, by its result or by the exception of a container.
template <class TMake>
[[nodiscard]] bool Prepare(TMake make) {
    try {
        return make();
    } catch (const std::bad_alloc&) {
        return false;
    }
}

// The history of an edit, and the one way in which a command changes its pictures.
//
// The base of a change is the picture that it starts from and that its undo step keeps: the working image, in
// DRAW what stands on the canvas.
class CEditor {
  public:
    // All of these outlive the editor.
    struct CEnvironment {
        CWorkingImages& images;
        CEditEvents& events;
        CMessageBoxes& boxes;
    };
    explicit CEditor(const CEnvironment& env) : m_env(env) {}

    // Prepare, then commit: make gets a copy of the pictures with the base as working image, brings it to
    // what it is to be, and returns false if it finds no memory. Then nothing has changed, the user has been
    // told, and the result is false. Otherwise one undo step stands behind the change and nothing is left to
    // redo.
    template <class TMake>
    [[nodiscard]] bool Change(const CxImage& imgBase, TMake make) {
        CEditPictures next = m_env.images;
        next.m_imgWork = imgBase;
        if (!Prepare([&] { return make(next); })) return ReportNoMemory();
        Commit(imgBase, std::move(next));
        return true;
    }
    // The change of a stroke: the base becomes a step, and the working image, while the canvas goes on from
    // it.
    void PushStep(const CxImage& imgBase);

    // Each takes a step in its direction, with the display image as the mode shows it. False, and nothing
    // changes, on an empty stack or, with a message, if memory is short.
    [[nodiscard]] bool Undo(const CxImage& imgBase, EMode mode);
    [[nodiscard]] bool Redo(const CxImage& imgBase, EMode mode);
    // Back to the picture as opened.
    [[nodiscard]] bool Reset(const CxImage& imgBase, EMode mode);
    // Lets the display size or the phone's screen rule. Without a picture it is only kept in mind.
    [[nodiscard]] bool SetSizeRule(ESizeRule rule);

    // Starts an edit with an empty history.
    void TakePicture(const CxImage& image);

    // Tells the user that there is no memory. False, for who returns it.
    bool ReportNoMemory();

  private:
    void Commit(const CxImage& imgBase, CEditPictures next);
    void PushUndo(const CxImage& imgBase);
    void PushRedo(const CxImage& imgBase);
    void PopUndo();
    void PopRedo();
    void ClearUndo();
    void ClearRedo();
    [[nodiscard]] bool MakeEntryPictures(const CUndoEntry& entry, EMode mode, CEditPictures& next);

    CEnvironment m_env;
};
