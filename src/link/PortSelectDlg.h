#pragma once

#include <string>
#include <vector>

#include "window/Dialog.h"
#include "window/MessageBoxes.h"

// Asks for the port of the phone. It offers COM1 to COM256 whatever the search has found, so that a port can
// be picked that the search does not know.
class CPortSelectDlg : public CDialog {
  public:
    static constexpr int kMostPorts = 256;

    // The lines of the search; without any there is nothing that Ok could do.
    CPortSelectDlg(std::vector<std::string> arrLines, CMessageBoxes& boxes);

    // Of a dialog that has ended with kDialogOk.
    const std::string& Chosen() const { return m_strChosen; }

    void OnInitDialog() override;
    void OnCommand(int nId) override;
    void OnNotify(int nId, ENotice notice) override;

  protected:
    void OnPaint(CClientArea& client) override;

  private:
    void OnOk();

    std::vector<std::string> m_arrLines;
    CMessageBoxes& m_boxes;
    std::string m_strChosen;
};
