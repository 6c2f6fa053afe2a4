#pragma once

#include "paint/DrawGuest.h"
#include "window/Clipboard.h"
#include "window/ControlSet.h"
#include "window/WaitCursor.h"

// Copy, Cut, Paste and Crop of DRAW.
class CClipboardCommands {
  public:
    // All of these outlive the commands.
    struct CEnvironment {
        CWorkingImages& images;
        const CControlSet& controls;
        CDrawGuest& draw;
        CToolState& tools;
        CEditor& editor;
        CEditEvents& events;
        CMessageBoxes& boxes;
        CWaitCursor& wait;
        CClipboard& clipboard;
    };
    explicit CClipboardCommands(const CEnvironment& env) : m_env(env) {}

    void OnCopy();
    void OnCut();
    void OnPaste();
    void OnCrop();

  private:
    // What is selected, ready to be given away.
    struct CLifted {
        bool bAny = false;  // else nothing is inside the selection
        CxImage image;
        std::vector<std::uint8_t> arrDib;
    };
    void ShowNotice(const char* szText);
    [[nodiscard]] bool Lift(CLifted& lifted);
    void GiveToClipboard(const CLifted& lifted, const char* szFailed);
    [[nodiscard]] bool TakeFromClipboard(CxImage& image);
    void Float(const CxImage& image);

    CEnvironment m_env;
};
