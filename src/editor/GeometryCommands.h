#pragma once

#include "editor/Editor.h"
#include "window/Dialog.h"

// Flips and quarter turns, which change the working image, and the size dialog and zoom commands, which only
// say at which size it is shown and saved. Each is one undo step.
class CGeometryCommands {
  public:
    static constexpr int kLargestSide = 3200;
    static constexpr int kSmallestSide = 20;        // by the size dialog
    static constexpr int kSmallestZoomedSide = 21;  // by Small

    // All of these outlive the commands.
    struct CEnvironment {
        CEditState& state;
        CWorkingImages& images;
        CCanvasPort& canvas;
        CToolPort& tools;
        CEditorHost& host;
        CMessageBoxes& boxes;
        CModalDialogs& modals;
        CWaitCursor& wait;
        CEditor& editor;
    };
    explicit CGeometryCommands(const CEnvironment& env) : m_env(env) {}

    void OnFlipVertical();
    void OnFlipHorizontal();
    void OnTurnLeft();
    void OnTurnRight();
    void OnSize();
    void OnLarge();
    void OnSmall();
    void OnActual();

  private:
    bool IsRefused(const char* szText);
    bool BeginEdit();
    void EndEdit();
    void Flip(bool bVertical);
    void Turn(double fDegrees, const char* szRefusal);
    void Zoom(double fStep);
    void ShowSizeError(const char* szText);

    CEnvironment m_env;
};
