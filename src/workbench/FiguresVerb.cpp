#include <fstream>
#include <sstream>
#include <vector>

#include "image/AtomicFile.h"
#include "surface/figures/Figures.h"
#include "workbench/Verbs.h"

CWorkResult RunFiguresVerb(std::span<const std::string> words) {
    if (words.size() != 2) return {kWrongCall, "it is figures CASES OUT"};
    std::ifstream in(words[0]);
    if (!in) return {kCannotBeDone, words[0] + " cannot be read"};
    std::ostringstream text;
    std::string strError;
    if (!DrawFigures(in, text, strError)) return {kCannotBeDone, words[0] + " " + strError};
    const std::string strText = text.str();
    const std::vector<std::uint8_t> arrText(strText.begin(), strText.end());
    CAtomicFile out;
    if (!out.Open(words[1]) || !out.Write(arrText) || !out.Commit())
        return {kCannotBeDone, words[1] + " cannot be written"};
    return {};
}
