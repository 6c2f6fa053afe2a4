// The printer and the day that a script gives the machine.

#include <array>

#include "play/Verbs.h"

namespace {

constexpr int kMostPaper = 65'535;
constexpr int kMostDpi = 2'400;
constexpr int kMostDots = 40'000;

// The number in a word, if it lies in the range.
std::optional<int> NumberIn(const std::string& strWord, int nMin, int nMax) {
    const std::optional<int> n = ParseNumber(strWord);
    return n && *n >= nMin && *n <= nMax ? n : std::nullopt;
}

// "NAME W H" at that place of the words; false if the two behind the name are no such numbers.
bool TakeSides(const CWords& arrWords, std::size_t nAt, int nMost, CSize& size) {
    if (arrWords.size() < nAt + 3) return false;
    const std::optional<int> nWidth = NumberIn(arrWords[nAt + 1], 0, nMost);
    const std::optional<int> nHeight = NumberIn(arrWords[nAt + 2], 0, nMost);
    if (nWidth && nHeight) size = {*nWidth, *nHeight};
    return nWidth && nHeight;
}

std::string NewPrinter(CScriptedPrinters& printers, const CWords& arrWords) {
    if (arrWords.size() < 4) return "it is printer NAME PAPER portrait|landscape DPI";
    const std::optional<int> nPaper = NumberIn(arrWords[1], 0, kMostPaper);
    const std::optional<int> nDpi = NumberIn(arrWords[3], 1, kMostDpi);
    if (!nPaper) return NotA(arrWords[1], "paper");
    if (arrWords[2] != "portrait" && arrWords[2] != "landscape") return NotA(arrWords[2], "orientation");
    if (!nDpi) return NotA(arrWords[3], "resolution");
    CScriptedPrinters::CPrinter printer{.strName = arrWords[0], .sizeDpi = {*nDpi, *nDpi}};
    printer.mode.nPaper = *nPaper;
    if (arrWords[2] == "landscape") printer.mode.orientation = EOrientation::Landscape;
    bool bPrintable = false;
    for (std::size_t i = 4; i < arrWords.size(); i += 3) {
        bPrintable = bPrintable || arrWords[i] == "printable";
        const bool bTaken =
            (arrWords[i] == "size" && TakeSides(arrWords, i, kMostPaper, printer.mode.sizeOwn)) ||
            (arrWords[i] == "printable" && TakeSides(arrWords, i, kMostDots, printer.sizePrintable));
        if (!bTaken) return NotA(arrWords[i], "size of a paper or of what is printable");
    }
    if (!bPrintable) printer.sizePrintable = CScriptedPrinters::DotsOf(printer.mode, *nDpi);
    printers.SetPrinter(printer);
    return {};
}

}  // namespace

std::string DoPrinter(CMachine& machine, const CWords& arrWords) {
    CScriptedPrinters& printers = machine.platform.Printers();
    const std::string& strWord = arrWords[0];
    const std::optional<int> nStrips =
        arrWords.size() == 2 && strWord == "full" ? NumberIn(arrWords[1], 0, kMostDots) : std::nullopt;
    if (nStrips) {
        printers.FailAfterStrips(*nStrips);
    } else if (arrWords.size() != 1) {
        return NewPrinter(printers, arrWords);
    } else if (strWord == "none") {
        printers.RemovePrinter();
    } else if (strWord == "refuse") {
        printers.RefuseDocuments();
    } else if (strWord == "gone") {
        printers.VanishAfterDialog();
    } else {
        return NotA(strWord, "state of a printer");
    }
    return {};
}

std::string DoToday(CMachine& machine, const CWords& arrWords) {
    const std::optional<int> nYear = NumberIn(arrWords[0], 1, 9999);
    const std::optional<int> nMonth = NumberIn(arrWords[1], 1, 12);
    const std::optional<int> nDay = NumberIn(arrWords[2], 1, 31);
    if (!nYear || !nMonth || !nDay) return "there is no such day";
    machine.platform.Clock().SetDate({*nYear, *nMonth, *nDay});
    return {};
}
