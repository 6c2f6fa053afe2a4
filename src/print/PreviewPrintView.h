#pragma once

#include "engines/page/PagePicture.h"
#include "window/ScrollView.h"

class CPrintDevice;
class CPrintPreviewDlg;
class CPrinters;

// Draws the picture on its sheet, small in the dialog and large on the printer's page.
class PreviewPrintView : public CScrollView {
  public:
    // The dialog owns the view; the rest outlives both.
    PreviewPrintView(CPrintPreviewDlg& dialog, CPrinters& printers, CTextRasterizer& rasterizer);

    enum class EPage {
        Done,
        Failed,    // the printer does not take it
        NoMemory,  // not even for a strip of it
    };
    // Draws the page of a document that has been started. Where there is no printer any more it stays empty.
    [[nodiscard]] EPage OnPrint(CPrintDevice& device);

  protected:
    void OnDraw(CSurface& surface) override;

  private:
    CPagePicture MakePicture(const CPageLayout& layout) const;

    CPrintPreviewDlg& m_dialog;
    CPrinters& m_printers;
    CTextRasterizer& m_rasterizer;
    bool m_bPrinting = false;
};
