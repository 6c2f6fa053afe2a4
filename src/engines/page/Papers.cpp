#include "engines/page/Papers.h"

#include <array>

namespace {

struct CPaper {
    const char* szName = "";  // for the reader: nobody shows it
    CSize size;               // millimetres
};

constexpr CSize kA4{210, 297};

// Numbered from 1, as printers number their papers.
constexpr std::array<CPaper, 41> kPapers{{
    {"Letter 8.5 x 11 inches", {215, 279}},
    {"Letter Small 8.5 x 11 inches", {215, 279}},
    {"Tabloid 11 x 17 inches", {279, 431}},
    {"Ledger 17 x 11 inches", {431, 279}},
    {"Legal 8.5 x 14 inches", {215, 355}},
    {"Statement 5.5 x 8.5 inches", {139, 215}},
    {"Executive 7.25 x 10.5 inches", {184, 266}},
    {"A3 297 x 420 mm", {297, 420}},
    {"A4 210 x 297 mm", kA4},
    {"A4 small 210 x 297 mm", kA4},
    {"A5 148 x 210 mm", {148, 210}},
    {"B4 250 x 354 mm", {250, 354}},
    {"B5 182 x 257 mm", {182, 257}},
    {"Folio 8.5 x 13 inches", {215, 330}},
    {"Quarto 215 x 275 mm", {215, 275}},
    {"10 x 14 inches", {253, 355}},
    {"11 x 17 inches", {279, 431}},
    {"Note 8.5 x 11 inches", {215, 279}},
    {"#9 Envelope 3.875 x 8.875 inches", {98, 225}},
    {"#10 Envelope 4.125 x 9.5 inches", {104, 231}},
    {"#11 Envelope 4.5 x 10.375 inches", {114, 263}},
    {"#12 Envelope 4.75 x 11 inches", {123, 279}},
    {"#14 Envelope 5 x 11.5 inches", {126, 292}},
    {"C Sheet 17 x 22 inches", {431, 558}},
    {"D Sheet 22 x 34 inches", {558, 863}},
    {"E Sheet 34 x 44 inches", {863, 1117}},
    {"DL Envelope 110 x 220 mm", {110, 220}},
    {"C5 Envelope 162 x 229 mm", {162, 229}},
    {"C3 Envelope  324 x 458 mm", {324, 458}},
    {"C4 Envelope  229 x 324 mm", {229, 324}},
    {"C6 Envelope  114 x 162 mm", {114, 162}},
    {"C65 Envelope  114 x 229 mm", {114, 229}},
    {"B4 Envelope  250 x 353 mm", {250, 353}},
    {"B5 Envelope  176 x 250 mm", {176, 250}},
    {"B6 Envelope  176 x 125 mm", {176, 125}},
    {"Italy Envelope 110 x 230 mm", {110, 230}},
    {"Monarch Envelope 3.875 x 7.5 inches", {98, 190}},
    {"6 3/4 Envelope 3.625 x 6.5 inches", {92, 165}},
    {"US Std Fanfold 14.875 x 11 inches", {377, 279}},
    {"German Std Fanfold 8.5 x 12 inches", {215, 304}},
    {"German Legal Fanfold 8.5 x 13 inches ", {215, 330}},
}};

bool IsInTable(int nPaper) {
    return nPaper >= 1 && nPaper <= static_cast<int>(kPapers.size());
}

}  // namespace

bool IsPaperKnown(int nPaper) {
    return IsInTable(nPaper) || nPaper == kOwnPaper;
}

CSize PaperSize(const CDeviceMode& mode) {
    if (IsInTable(mode.nPaper)) return kPapers[static_cast<std::size_t>(mode.nPaper - 1)].size;
    const bool bOwn = mode.nPaper == kOwnPaper && mode.sizeOwn.cx > 0 && mode.sizeOwn.cy > 0;
    return bOwn ? mode.sizeOwn : kA4;
}
