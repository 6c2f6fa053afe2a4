#pragma once

#include <vector>

#include "window/Dialog.h"
#include "window/MessageBoxes.h"

// Asks for a size: one of the user's own, or one from the phone's list. Ends with kDialogOk or kDialogCancel.
class CSizeChangeDlg : public CDialog {
  public:
    CSizeChangeDlg(CSize size, std::vector<CSize> arrPhoneSizes, CMessageBoxes& boxes);

    // The size asked for; not checked for sense, each side limited to what an int holds. The size that was
    // given until Ok.
    CSize Size() const { return m_size; }

    void OnInitDialog() override;
    void OnCommand(int nId) override;
    void OnNotify(int nId, ENotice notice) override;

  protected:
    void OnPaint(CClientArea& client) override;

  private:
    void ShowPage(int nPage);
    void Follow(int nTyped);
    void Settle(int nTyped);
    void OnOk();
    int Side(int nId) const;
    int Partner(int nTyped, int nValue) const;

    CSize m_sizeFirst;  // at the opening: what the ratio is kept to
    CSize m_size;
    std::vector<CSize> m_arrPhoneSizes;
    CMessageBoxes& m_boxes;
    int m_nPage = 0;       // 0: the user's own size, 1: the phone's
    int m_nUnsettled = 0;  // the edit that has been typed into since both sides last agreed; 0 for none
};
