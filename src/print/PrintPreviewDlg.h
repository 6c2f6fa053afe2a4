#pragma once

#include <string>

#include "image/Image.h"
#include "print/PreviewPrintView.h"
#include "window/Dialog.h"
#include "window/MessageBoxes.h"

class CClock;
class CWaitCursor;

// Shows the picture on the default printer's paper, with the date in it if the user wants that, and prints
// it.
class CPrintPreviewDlg : public CDialog {
  public:
    // All of these outlive the dialog.
    struct CEnvironment {
        CMessageBoxes& boxes;
        CPrinters& printers;
        CClock& clock;
        CTextRasterizer& text;
        CWaitCursor& wait;
    };

    CPrintPreviewDlg(CxImage image, const CEnvironment& env);

    // --- for the view ---
    const CxImage& Image() const { return m_image; }
    bool HasDateStamp() const { return m_bDateStamp; }
    // Today's date as it is stamped.
    std::string DateText() const;
    // The digits would be tiny: asks whether they are wanted all the same, once a tick of the check box.
    void AskAboutTinyDate();

    void OnInitDialog() override;
    void OnCommand(int nId) override;
    CScrollView* ViewOf(int nId) override;

  protected:
    void OnPaint(CClientArea& client) override;

  private:
    void CheckDefaultPaper();
    void ToggleDate();
    [[nodiscard]] bool Print();

    CEnvironment m_env;
    CxImage m_image;
    PreviewPrintView m_view;
    bool m_bDateStamp = false;
    bool m_bAskTinyDate = true;  // the question may still be asked
};
