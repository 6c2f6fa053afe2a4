#pragma once

#include "editor/WorkingImages.h"
#include "print/PrintPreviewDlg.h"

// PRINT: runs the preview of the picture that the edit shows.
class CPrintFlow {
  public:
    // All of these outlive the flow.
    struct CEnvironment {
        const CWorkingImages& images;
        CModalDialogs& modals;
        CPrintPreviewDlg::CEnvironment preview;
    };

    explicit CPrintFlow(const CEnvironment& env) : m_env(env) {}

    // Returns when the dialog has gone. The edit is as it was.
    void OnPrint();

  private:
    CEnvironment m_env;
};
