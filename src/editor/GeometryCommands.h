#pragma once

#include <optional>
#include <vector>

#include "editor/Editor.h"
#include "resources/Texts.h"
#include "window/Dialog.h"

enum class EFlip { Vertical, Horizontal };
// A quarter turn, by the degrees that a picture takes.
enum class ETurn { Left = -90, Right = 90 };

// Flips and quarter turns, which change the working image, and the size dialog and zoom commands, which only
// say at which size it is shown and saved. Each starts from the base of its change (see CEditor) and is one
// undo step; each is true if the edit has changed, and otherwise has said why.
class CGeometryCommands {
  public:
    static constexpr int kLargestSide = 3200;
    static constexpr int kSmallestSide = 20;        // by the size dialog
    static constexpr int kSmallestZoomedSide = 21;  // by Small

    // All of these outlive the commands.
    struct CEnvironment {
        const CEditState& state;
        CWorkingImages& images;
        CMessageBoxes& boxes;
        CModalDialogs& modals;
        CEditor& editor;
    };
    explicit CGeometryCommands(const CEnvironment& env) : m_env(env) {}

    [[nodiscard]] bool Flip(const CxImage& imgBase, EFlip flip);
    [[nodiscard]] bool Turn(const CxImage& imgBase, ETurn turn);
    [[nodiscard]] bool ZoomIn(const CxImage& imgBase);
    [[nodiscard]] bool ZoomOut(const CxImage& imgBase);
    // Back to the size as opened, turned the way the display is turned now.
    [[nodiscard]] bool ZoomToActual(const CxImage& imgBase);

    // The three steps of the size command: whether it may go on, the dialog (nothing if it is cancelled), and
    // the change, for a size within the bounds.
    [[nodiscard]] bool MaySize() { return !IsRefused(kTextPhoneSizeRules); }
    [[nodiscard]] std::optional<CSize> ChooseSize(std::vector<CSize> arrPhoneSizes);
    [[nodiscard]] bool ChangeSize(const CxImage& imgBase, CSize size);
    // To a size of which nobody needs to be asked.
    [[nodiscard]] bool SetSize(const CxImage& imgBase, CSize size);

  private:
    [[nodiscard]] bool IsRefused(const char* szText);
    [[nodiscard]] bool Zoom(const CxImage& imgBase, double fStep);
    void ShowSizeError(const char* szText);

    CEnvironment m_env;
};
