#include <fstream>
#include <sstream>

#include "surface/figures/Figures.h"
#include "workbench/OutFile.h"
#include "workbench/Verbs.h"

CWorkResult RunFiguresVerb(std::span<const std::string> words) {
    if (words.size() != 2) return {kWrongCall, "it is figures CASES OUT"};
    std::ifstream in(words[0]);
    if (!in) return {kCannotBeDone, words[0] + " cannot be read"};
    std::ostringstream text;
    std::string strError;
    if (!DrawFigures(in, text, strError)) return {kCannotBeDone, words[0] + " " + strError};
    if (!WriteText(words[1], text.str())) return {kCannotBeDone, words[1] + " cannot be written"};
    return {};
}
