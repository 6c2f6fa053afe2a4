#pragma once

#include <memory>
#include <optional>
#include <string>

#include "engines/page/Papers.h"
#include "image/Pixels.h"

// A printer that the user has chosen for one document of one page.
class CPrintDevice {
  public:
    // A document that has not been ended is aborted.
    virtual ~CPrintDevice() = default;
    // Dots per inch in both directions.
    virtual CSize DotsPerInch() const = 0;
    // What of the page the printer reaches, in dots; the points below count from its top left corner.
    virtual CSize PrintableDots() const = 0;
    // False if the printer cannot begin: it has vanished, it refuses, the file cannot be written.
    [[nodiscard]] virtual bool StartDocument(const std::string& strName) = 0;
    // Draws the pixels at their natural size, a dot each, cut at the edges. False if that failed; then the
    // document can only be aborted.
    [[nodiscard]] virtual bool DrawPixels(const CPixels& pixels, CPoint pt) = 0;
    // False if not all of the document has arrived, for instance on a full disk.
    [[nodiscard]] virtual bool EndDocument() = 0;
    virtual void AbortDocument() = 0;
};

class CPrinters {
  public:
    virtual ~CPrinters() = default;
    // What the default printer is set to at this moment, asked of it without a dialog. Nothing if there is no
    // printer.
    virtual std::optional<CDeviceMode> DefaultMode() = 0;
    // The system's print dialog for the default printer: neither page numbers nor a selection nor a file can
    // be chosen in it, and copies are the printer's affair. Null when the user cancels.
    virtual std::unique_ptr<CPrintDevice> RunDialog() = 0;
};
