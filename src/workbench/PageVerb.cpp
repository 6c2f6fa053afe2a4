#include <array>
#include <sstream>

#include "engines/page/PageLayout.h"
#include "workbench/Verbs.h"

namespace {

constexpr long long kMost = 1'000'000;

// What stands behind "preview" or "print": numbers, the orientation, and perhaps a word for the stamp.
template <std::size_t nNumbers>
struct CPageCase {
    std::array<int, nNumbers> arrNumbers{};
    EOrientation orientation = EOrientation::Portrait;
    bool bStamp = false;
};

template <std::size_t nNumbers>
std::optional<CPageCase<nNumbers>> Parse(std::span<const std::string> words) {
    CPageCase<nNumbers> page;
    if (words.size() < nNumbers + 1 || words.size() > nNumbers + 2) return std::nullopt;
    for (std::size_t i = 0; i < nNumbers; ++i) {
        const auto n = ParseNumber(words[i], 0, kMost);
        if (!n) return std::nullopt;
        page.arrNumbers[i] = static_cast<int>(*n);
    }
    const std::string& strOrientation = words[nNumbers];
    if (strOrientation != "portrait" && strOrientation != "landscape") return std::nullopt;
    if (strOrientation == "landscape") page.orientation = EOrientation::Landscape;
    page.bStamp = words.size() > nNumbers + 1;
    if (page.bStamp && words.back() != "stamp") return std::nullopt;
    return page;
}

void PrintBox(std::ostream& out, const char* szName, const CRect& rc) {
    out << szName << ' ' << rc.left << ' ' << rc.top << ' ' << rc.Width() << ' ' << rc.Height() << '\n';
}

void PrintLayout(std::ostream& out, const CPageLayout& layout) {
    out << "page " << layout.page.nWidth << ' ' << layout.page.nHeight << '\n'
        << "margin " << layout.page.nMargin << '\n';
    PrintBox(out, "picture", layout.rcPicture);
}

void PrintStamp(std::ostream& out, const CStampPlace& stamp) {
    out << "stamp " << stamp.nSize << ' ' << stamp.nReserved << ' ' << stamp.pt.x << ' ' << stamp.pt.y
        << '\n';
}

CWorkResult Preview(std::span<const std::string> words) {
    const auto page = Parse<7>(words);
    if (!page)
        return {kWrongCall,
                "it is page preview W H CLIENTW CLIENTH PAPER PAPERW PAPERH portrait|landscape [stamp]"};
    const auto [w, h, cw, ch, paper, pw, ph] = page->arrNumbers;
    const CPreviewLayout layout = LayOutPreview({w, h}, {cw, ch}, {paper, {pw, ph}, page->orientation});
    std::ostringstream out;
    PrintLayout(out, layout);
    PrintBox(out, "sheet", layout.rcSheet);
    out << "question " << (layout.bTiny ? "yes" : "no") << '\n';
    if (page->bStamp) PrintStamp(out, layout.stamp);
    return {kDone, {}, out.str()};
}

CWorkResult Print(std::span<const std::string> words) {
    const auto page = Parse<6>(words);
    if (!page)
        return {kWrongCall, "it is page print W H DPIX DPIY HORZRES VERTRES portrait|landscape [stamp]"};
    const auto [w, h, dpix, dpiy, horz, vert] = page->arrNumbers;
    const CPageLayout layout = LayOutPrint({w, h}, {dpix, dpiy}, {horz, vert}, page->orientation);
    std::ostringstream out;
    PrintLayout(out, layout);
    if (page->bStamp) PrintStamp(out, layout.stamp);
    return {kDone, {}, out.str()};
}

}  // namespace

CWorkResult RunPageVerb(std::span<const std::string> words) {
    if (!words.empty() && words[0] == "preview") return Preview(words.subspan(1));
    if (!words.empty() && words[0] == "print") return Print(words.subspan(1));
    return {kWrongCall, "it is page preview or page print; workbench --help tells more"};
}
