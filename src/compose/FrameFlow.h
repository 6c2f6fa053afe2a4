#pragma once

#include "canvas/MySCrollView.h"
#include "compose/StickerFrame.h"
#include "editor/Editor.h"
#include "window/ControlSet.h"
#include "window/WaitCursor.h"

// STICK: the list of frames, and what a click in it does to the picture. A frame lies on the working image at
// its own size; the picture without it is kept, so that the next frame takes its place.
class CFrameFlow {
  public:
    // All of these outlive the flow.
    struct CEnvironment {
        const CEditState& state;
        const CWorkingImages& images;
        CControlSet& controls;
        CMySCrollView& canvas;
        CEditor& editor;
        CMessageBoxes& boxes;
        CWaitCursor& wait;
        CLibraries& libraries;
    };
    explicit CFrameFlow(const CEnvironment& env) : m_env(env), m_frame(env.libraries) {}

    // At start: fills the list.
    void Init();
    // Item 0 means no frame, 1 to CStickerFrame::kCount a frame, -1 a click beside all items.
    void OnClickStickerList(int nItem);

  private:
    // Brings the pictures from the click before to this one's. False if there is no memory.
    [[nodiscard]] bool MakePictures(int nItem, CEditPictures& next, bool& bMissing);

    CEnvironment m_env;
    CStickerFrame m_frame;
    int m_nMarked = -1;  // the item with the list's selection mark
};
