#pragma once

#include "editor/CanvasPort.h"
#include "editor/EditState.h"
#include "editor/EditorHost.h"
#include "editor/WorkingImages.h"
#include "window/ControlSet.h"
#include "window/MessageBoxes.h"
#include "window/WaitCursor.h"

// History and size rule: the steps that every command which changes the picture goes through, and the
// commands that take such steps back.
class CEditor {
  public:
    // All of these outlive the editor.
    struct CEnvironment {
        CEditState& state;
        CWorkingImages& images;
        CControlSet& controls;
        CCanvasPort& canvas;
        CToolPort& tools;
        CEditorHost& host;
        CMessageBoxes& boxes;
        CWaitCursor& wait;
    };
    explicit CEditor(const CEnvironment& env) : m_env(env) {}

    // Pushes the present state and turns the button on. When there is no memory for it: false, after a
    // message; the command that wanted it must stop.
    bool PushUndo();
    bool PushRedo();
    // Empty a stack and turn its button off.
    void ClearUndo();
    void ClearRedo();
    // Undo and Redo on or off by their counts.
    void ShowHistory();

    // TRUE: working and display image are made from the canvas. FALSE: the canvas takes the working image.
    void TransferCanvas(bool bFetch);

    // The head of every command that changes the picture: in DRAW the canvas is fetched, then an undo step is
    // pushed and the redo stack emptied. False if the command must stop.
    bool BeginChange();

    // In EFFECT the effect list takes the focus.
    void FocusEffectList();

    void OnUndo();
    void OnRedo();
    void OnReset();
    // The radios "current picture size" and "phone screen size".
    void OnImageSize();
    void OnPhoneSize();

  private:
    bool Push(CUndoStack& stack, int nButton);
    void TakeBack(CUndoStack& stackFrom, int nButton, int nTool);
    void SetSizeRule(bool bPhoneSize);

    CEnvironment m_env;
};
