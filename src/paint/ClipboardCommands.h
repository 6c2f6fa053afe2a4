#pragma once

#include "editor/Editor.h"
#include "paint/MySCrollView.h"
#include "window/Clipboard.h"

// Copy, Cut, Paste and Crop of DRAW.
class CClipboardCommands {
  public:
    // All of these outlive the commands.
    struct CEnvironment {
        CEditState& state;
        CWorkingImages& images;
        CControlSet& controls;
        CMySCrollView& canvas;
        CToolState& tools;
        CEditor& editor;
        CMessageBoxes& boxes;
        CWaitCursor& wait;
        CClipboard& clipboard;
    };
    explicit CClipboardCommands(const CEnvironment& env) : m_env(env) {}

    void OnCopy();
    void OnCut();
    void OnPaste();
    void OnCrop();

    // Those that need a selection: Cut, Copy and Crop.
    void EnableSelectionCommands(bool bEnable);

  private:
    void ShowNotice(const char* szText);
    bool LiftToClipboard(const char* szFailed);
    void Float();

    CEnvironment m_env;
};
