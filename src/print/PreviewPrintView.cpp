#include "print/PreviewPrintView.h"

#include <algorithm>

#include "print/PrintPreviewDlg.h"
#include "resources/Grounds.h"
#include "resources/Ids.h"
#include "window/Printers.h"

namespace {

// A strip of the page: large enough to cost nothing on its own, small beside the program.
constexpr int kStripPixels = 2 << 20;

// Set as long as it lives.
class CFlagScope {
  public:
    explicit CFlagScope(bool& bFlag) : m_bFlag(bFlag) { m_bFlag = true; }
    CFlagScope(const CFlagScope&) = delete;
    CFlagScope& operator=(const CFlagScope&) = delete;
    ~CFlagScope() { m_bFlag = false; }

  private:
    bool& m_bFlag;
};

}  // namespace

PreviewPrintView::PreviewPrintView(CPrintPreviewDlg& dialog, CPrinters& printers, CTextRasterizer& rasterizer)
    : CScrollView(dialog.Controls().Find(kPrintView)->rcPlace.Size()),
      m_dialog(dialog),
      m_printers(printers),
      m_rasterizer(rasterizer) {}

CPagePicture PreviewPrintView::MakePicture(const CPageLayout& layout) const {
    std::optional<CDateStamp> stamp;
    if (m_dialog.HasDateStamp()) stamp = {m_dialog.DateText(), layout.stamp};
    return {m_dialog.Image(), layout.rcPicture.Size(), m_rasterizer, std::move(stamp)};
}

void PreviewPrintView::OnDraw(CSurface& surface) {
    if (m_bPrinting) return;
    surface.FillRect(surface.Bounds(), Grounds::kList);
    const std::optional<CDeviceMode> mode = m_printers.DefaultMode();
    if (!mode) return;
    const CPreviewLayout layout = LayOutPreview(m_dialog.Image().GetSize(), ClientSize(), *mode);
    surface.Rectangle(layout.rcSheet);
    // What is asked about shows behind the question.
    if (layout.bTiny) m_dialog.AskAboutTinyDate();
    surface.DrawPixels(MakePicture(layout).Whole(), layout.rcPicture.left, layout.rcPicture.top);
}

PreviewPrintView::EPage PreviewPrintView::OnPrint(CPrintDevice& device) {
    const std::optional<CDeviceMode> mode = m_printers.DefaultMode();
    if (!mode) return EPage::Done;
    const CPageLayout layout = LayOutPrint(m_dialog.Image().GetSize(), device.DotsPerInch(),
                                           device.PrintableDots(), mode->orientation);
    const CSize size = layout.rcPicture.Size();
    if (size.cx <= 0 || size.cy <= 0) return EPage::Done;
    const CPagePicture picture = MakePicture(layout);
    const int nStrip = std::max(1, kStripPixels / size.cx);
    const CFlagScope printing(m_bPrinting);
    for (int y = 0; y < size.cy; y += nStrip) {
        const CPixels rows = picture.Rows(y, std::min(nStrip, size.cy - y));
        if (rows.IsEmpty()) return EPage::NoMemory;
        if (!device.DrawPixels(rows, {layout.rcPicture.left, layout.rcPicture.top + y})) return EPage::Failed;
    }
    return EPage::Done;
}
