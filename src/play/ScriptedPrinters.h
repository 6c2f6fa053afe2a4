#pragma once

#include <memory>
#include <string>

#include "image/Pixels.h"
#include "window/Clock.h"
#include "window/Printers.h"

// The printer that a script gives the machine, which keeps its last page to be looked at. At first there is
// one like the program's own, named PDF.
class CScriptedPrinters : public CPrinters {
  public:
    struct CPrinter {
        std::string strName = "PDF";
        CDeviceMode mode{};
        CSize sizeDpi{600, 600};
        CSize sizePrintable{4958, 7017};  // dots
    };
    // The dots of the whole paper at a resolution.
    static CSize DotsOf(const CDeviceMode& mode, int nDpi);

    // Ready for documents, whatever was before.
    void SetPrinter(const CPrinter& printer);
    // There is none: nothing says how a page lies, and documents come to nothing.
    void RemovePrinter() { m_bThere = false; }
    // From now on no document can be started.
    void RefuseDocuments() { m_bRefuses = true; }
    // It will be gone when the print dialog has been answered.
    void VanishAfterDialog() { m_bVanishes = true; }
    // After this many strips the printer takes no more of a page, as with a full disk.
    void FailAfterStrips(int nStrips) { m_nStripsLeft = nStrips; }
    // What the user does in the next print dialog.
    void AnswerDialog(bool bOk) { m_bDialogOk = bOk; }
    const CPrinter& Printer() const { return m_printer; }

    // --- what has been printed ---
    int Documents() const { return m_nDocuments; }
    int Pages() const { return m_nPages; }
    int Aborted() const { return m_nAborted; }
    // Of the last document: its name, where the picture is on the page, and the page at its dots, by a whole
    // factor smaller if it is higher than kMostPageHeight, empty before the first document.
    static constexpr int kMostPageHeight = 1000;
    const std::string& DocumentName() const { return m_strDocument; }
    const CRect& PicturePlace() const { return m_rcPicture; }
    const CPixels& Page() const { return m_page; }

    std::optional<CDeviceMode> DefaultMode() override;
    std::unique_ptr<CPrintDevice> RunDialog() override;

  private:
    class CDevice;

    CPrinter m_printer;
    bool m_bThere = true;
    bool m_bRefuses = false;
    bool m_bVanishes = false;
    bool m_bDialogOk = false;
    int m_nStripsLeft = -1;  // below 0: no end
    int m_nDocuments = 0;
    int m_nPages = 0;
    int m_nAborted = 0;
    std::string m_strDocument;
    CRect m_rcPicture;
    CPixels m_page;
};

// Stands still at a day of the script's.
class CScriptedClock : public CClock {
  public:
    void SetDate(const CDate& date) { m_date = date; }
    CDate Today() override { return m_date; }

  private:
    CDate m_date{2006, 1, 2};
};
