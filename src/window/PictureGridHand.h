#pragma once

#include <optional>

#include "window/Dialog.h"

// What a grid of pictures makes of the user's hand, in every window the same: which item has the mark, what
// the dialog hears of, how far the grid has scrolled. nItem is -1 beside all items.
//
// A click moves the mark to its item, or takes it away beside all of them, and tells Clicked; each one does,
// also on the item that has the mark. A key moves the mark and tells the same.
class CPictureGridHand {
  public:
    // The dialog outlives the hand. nId is its control of kind PictureGrid.
    CPictureGridHand(CDialog& dialog, int nId) : m_dialog(dialog), m_nId(nId) {}

    // The left button goes down, and up again: a click if both meet the same. The second press of a double
    // click is none.
    void OnPress(int nItem) { m_nPressed = nItem; }
    void OnRelease(int nItem);
    // False for a key that means nothing to a grid.
    bool OnKey(int nKey);
    // Scrolls no further than it must.
    void BringIntoSight(int nItem);

    // The height that is there to see items in.
    static int Height(const CControl& control);

  private:
    const CControl& Control() const { return *m_dialog.Controls().Find(m_nId); }
    void Choose(int nItem);

    CDialog& m_dialog;
    int m_nId;
    std::optional<int> m_nPressed;
};
