#pragma once

#include <vector>

#include "engines/linkset/FileSet.h"
#include "link/PhoneSession.h"
#include "window/CheckTableModel.h"
#include "window/Dialog.h"

// The files on the phone, to be ticked. On a phone with a card it looks at the card every five seconds and
// closes when that has changed, since the list then holds no more.
class CPhoneFileDlg : public CDialog {
  public:
    // The session outlives the dialog.
    explicit CPhoneFileDlg(CPhoneSession& session);
    ~CPhoneFileDlg() override;

    // Positions in FILE.Dat, in the order in which the rows stood; of a dialog that has ended with kDialogOk.
    const std::vector<int>& Picked() const { return m_arrPicked; }

    void OnInitDialog() override;
    void OnCommand(int nId) override;
    void OnNotify(int nId, ENotice notice) override;
    void OnTimer(int nTimer) override;
    CCheckTableModel* TableOf(int nId) override;

  protected:
    void OnPaint(CClientArea& client) override;

  private:
    void OnAll(bool bTick);
    void OnMenu();
    void SortBy(int nColumn);
    void OnOk();
    void WatchCard();

    CPhoneSession& m_session;
    CFILESet fileSet;  // NOLINT(readability-identifier-naming): what it has always been called
    CCheckTableModel m_table;
    int m_nSortKey = 1;  // the column times two, and 1 for ascending
    std::vector<int> m_arrPicked;
};
