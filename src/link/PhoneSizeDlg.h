#pragma once

#include <optional>
#include <vector>

#include "image/Geometry.h"
#include "window/Dialog.h"

// Offers the phone's sizes for the picture to be sent.
class CPhoneSizeDlg : public CDialog {
  public:
    explicit CPhoneSizeDlg(std::vector<CSize> arrSizes);

    // Nothing if the user has left it without a choice; with no sizes there is none.
    const std::optional<CSize>& Chosen() const { return m_sizeChosen; }

    void OnInitDialog() override;
    void OnCommand(int nId) override;

  protected:
    void OnPaint(CClientArea& client) override;

  private:
    void OnOk();

    std::vector<CSize> m_arrSizes;
    std::optional<CSize> m_sizeChosen;
};
