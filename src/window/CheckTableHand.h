#pragma once

#include <vector>

#include "window/CheckTableModel.h"
#include "window/Dialog.h"

// What a table of rows to tick makes of the user's hand, in every window the same: which row is current (the
// control's selection), which one is ticked, what the dialog hears of. nRow is -1 below all rows.
//
// A click makes its row the current one, and on the box ticks or unticks it; so do a double click anywhere in
// the row, and Space. The current row goes along with its data when the rows are put in another order.
class CCheckTableHand {
  public:
    // Pixels: the heights of the titles and of a row, and where the box stands in it.
    static constexpr int kTitlePixels = 20;
    static constexpr int kRowPixels = 18;
    static constexpr int kBoxPixels = 14;
    static constexpr int kBoxLeft = 4;

    // Dialog and table outlive the hand. nId is the dialog's control of kind CheckTable.
    CCheckTableHand(CDialog& dialog, int nId, CCheckTableModel& table);

    // The left button goes down; bOnBox: where the row has its box.
    void OnPress(int nRow, bool bOnBox);
    // In the place of the second press.
    void OnDoubleClick(int nRow);
    // The right button has gone down and up again.
    void OnRightClick(int nRow);
    // False for a key that means nothing to a table.
    bool OnKey(int nKey);
    // From the table's observer.
    void OnRowsReset();

    // Whether a point x pixels from the left edge of a row belongs to its box: there is a little room around
    // what is drawn.
    static bool IsOnBox(int x) { return x >= 0 && x < kBoxLeft + kBoxPixels + 2; }

  private:
    void Toggle(int nRow);

    CDialog& m_dialog;
    int m_nId;
    CCheckTableModel& m_table;
    std::vector<int> m_arrData;  // of the rows as they stood last
};
