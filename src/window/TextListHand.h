#pragma once

#include "window/Dialog.h"

// What a list box of texts makes of the user's hand, in every window the same: which row is selected, and
// what the dialog hears of. nRow is -1 below all rows.
class CTextListHand {
  public:
    // Height of a row in pixels.
    static constexpr int kRowPixels = 16;

    // The dialog outlives the hand. nId is its control of kind TextList.
    CTextListHand(CDialog& dialog, int nId) : m_dialog(dialog), m_nId(nId) {}

    // The left button goes down. A row that is selected already is no news; below all rows nothing happens.
    void OnPress(int nRow);
    // In the place of the second press.
    void OnDoubleClick(int nRow);
    // False for a key that means nothing to a list.
    bool OnKey(int nKey);

  private:
    CDialog& m_dialog;
    int m_nId;
};
