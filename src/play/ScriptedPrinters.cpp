#include "play/ScriptedPrinters.h"

#include <algorithm>
#include <utility>

#include "surface/Surface.h"

namespace {

constexpr double kInch = 25.4;  // millimetres

// A page whose pixels are kept one of nFactor each way: that which is in its block's top left corner.
CPixels EachOf(const CPixels& pixels, CPoint pt, int nFactor, CPoint& ptKept) {
    const auto first = [nFactor](int n) { return (n + nFactor - 1) / nFactor; };
    ptKept = {first(pt.x), first(pt.y)};
    const CSize size{first(pt.x + pixels.Width()) - ptKept.x, first(pt.y + pixels.Height()) - ptKept.y};
    CPixels kept;
    if (size.cx <= 0 || size.cy <= 0 || !kept.Create(size.cx, size.cy)) return {};
    const CPixelView view = kept.MutableView();
    for (int y = 0; y < size.cy; ++y)
        for (int x = 0; x < size.cx; ++x)
            view.Set(x, y,
                     pixels.View().Get((ptKept.x + x) * nFactor - pt.x, (ptKept.y + y) * nFactor - pt.y));
    return kept;
}

}  // namespace

// Prints onto the page of the printer that it came from.
class CScriptedPrinters::CDevice : public CPrintDevice {
  public:
    explicit CDevice(CScriptedPrinters& printers) : m_printers(printers), m_printer(printers.m_printer) {}
    ~CDevice() override { AbortDocument(); }
    CDevice(const CDevice&) = delete;
    CDevice& operator=(const CDevice&) = delete;

    CSize DotsPerInch() const override { return m_printer.sizeDpi; }
    CSize PrintableDots() const override { return m_printer.sizePrintable; }

    [[nodiscard]] bool StartDocument(const std::string& strName) override {
        if (m_printers.m_bRefuses) return false;
        m_strName = strName;
        m_nFactor = std::max(1, (m_printer.sizePrintable.cy + kMostPageHeight - 1) / kMostPageHeight);
        const auto kept = [this](int n) { return (n + m_nFactor - 1) / m_nFactor; };
        m_page = CSurface(CPixels::MakeFilled(kept(m_printer.sizePrintable.cx),
                                              kept(m_printer.sizePrintable.cy), {255, 255, 255}));
        m_bStarted = true;
        return true;
    }

    [[nodiscard]] bool DrawPixels(const CPixels& pixels, CPoint pt) override {
        if (!m_bStarted || m_printers.m_nStripsLeft == 0) return false;
        if (m_printers.m_nStripsLeft > 0) --m_printers.m_nStripsLeft;
        m_rcPicture = m_rcPicture.Union(CRect::FromPlace(pt.x, pt.y, pixels.Width(), pixels.Height()));
        CPoint ptKept;
        const CPixels kept = EachOf(pixels, pt, m_nFactor, ptKept);
        m_page.DrawPixels(kept, ptKept.x, ptKept.y);
        return true;
    }

    [[nodiscard]] bool EndDocument() override {
        if (!std::exchange(m_bStarted, false)) return false;
        if (!m_printers.m_bThere) return true;
        ++m_printers.m_nDocuments;
        ++m_printers.m_nPages;  // a document is a page
        m_printers.m_strDocument = m_strName;
        m_printers.m_rcPicture = m_rcPicture;
        m_printers.m_page = m_page.Pixels();
        return true;
    }

    void AbortDocument() override {
        if (std::exchange(m_bStarted, false)) ++m_printers.m_nAborted;
    }

  private:
    CScriptedPrinters& m_printers;
    CPrinter m_printer;
    bool m_bStarted = false;
    int m_nFactor = 1;
    std::string m_strName;
    CRect m_rcPicture;
    CSurface m_page{0, 0};
};

CSize CScriptedPrinters::DotsOf(const CDeviceMode& mode, int nDpi) {
    CSize size = PaperSize(mode);
    const double fParts = mode.nPaper == kOwnPaper && size == mode.sizeOwn ? 10 : 1;  // of a millimetre
    if (mode.orientation == EOrientation::Landscape) std::swap(size.cx, size.cy);
    return {static_cast<int>(size.cx * nDpi / (kInch * fParts)),
            static_cast<int>(size.cy * nDpi / (kInch * fParts))};
}

void CScriptedPrinters::SetPrinter(const CPrinter& printer) {
    m_printer = printer;
    m_bThere = true;
    m_bRefuses = false;
    m_bVanishes = false;
    m_nStripsLeft = -1;
}

std::optional<CDeviceMode> CScriptedPrinters::DefaultMode() {
    return m_bThere ? std::optional(m_printer.mode) : std::nullopt;
}

std::unique_ptr<CPrintDevice> CScriptedPrinters::RunDialog() {
    if (!std::exchange(m_bDialogOk, false)) return nullptr;
    if (m_bVanishes) {
        m_bThere = false;
        m_bRefuses = true;
    }
    return std::make_unique<CDevice>(*this);
}
