#pragma once

#include <utility>

#include "surface/Surface.h"

// The paper of DRAW: two stores of the picture's size. The committed store is the picture. The scratch store
// is the picture with what the hand is doing at this moment; a copy of the committed one takes that back. Of
// both the user sees one, nearly always the scratch store.
//
// Whoever draws on a store does so through its surface, which keeps the box that was touched. So a copy
// between the stores and the way to the screen cost what has changed, however large the picture is.
class CPaper {
  public:
    CPaper() = default;

    // Both stores become this picture, on surfaces whose pens and brushes are those at the start. The pixels
    // are shared until somebody writes.
    void Load(const CPixels& pixels);

    int Width() const { return m_surfCommit.Width(); }
    int Height() const { return m_surfCommit.Height(); }
    CSurface& Committed() { return m_surfCommit; }
    const CSurface& Committed() const { return m_surfCommit; }
    CSurface& Scratch() { return m_surfScratch; }
    const CSurface& Scratch() const { return m_surfScratch; }

    // The scratch store becomes the picture, which is shown.
    void Commit();
    // The scratch store becomes a copy of the picture and is shown.
    void Revert();
    // Shows a store as it stands.
    void ShowScratch() { SetShown(false); }
    void ShowCommitted() { SetShown(true); }

    // Gives each store pixels of its own, so that no step behind it has to. The working image and the undo
    // step keep the picture as it was, each undo step being a whole picture in one block; so the store that
    // goes on from there needs a block of its own. That copy is made here, once a stroke. False if memory is
    // short.
    [[nodiscard]] bool Separate();

    // The store that is on the screen.
    const CSurface& Shown() const { return m_bCommittedShown ? m_surfCommit : m_surfScratch; }
    // The box of it that the screen does not show yet. Empty as long as nothing is to be shown. The caller
    // brings the box to the screen.
    CRect TakeUnseen();
    // The whole scratch store has been brought to the screen.
    void SetAllSeen();

  private:
    void Collect();
    void SetShown(bool bCommitted);
    // True if the pixels in the box are now the same; else memory was short.
    [[nodiscard]] static bool CopyBox(const CSurface& from, CSurface& to, const CRect& rc);

    CSurface m_surfCommit{0, 0};
    CSurface m_surfScratch{0, 0};
    CRect m_rcDiffer;
    // The screen shows what is on the scratch store, but for this box.
    CRect m_rcUnseen;
    bool m_bCommittedShown = false;
    bool m_bShowWanted = false;
};
