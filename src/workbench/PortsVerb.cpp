#include <fstream>
#include <sstream>

#include "workbench/OutFile.h"
#include "workbench/PortCases.h"
#include "workbench/Verbs.h"

CWorkResult RunPortsVerb(std::span<const std::string> words) {
    if (words.size() != 2) return {kWrongCall, "it is ports CASES OUT"};
    std::ifstream in(words[0]);
    if (!in) return {kCannotBeDone, words[0] + " cannot be read"};
    std::ostringstream answers;
    CPortCases cases(answers);
    int nLine = 0;
    for (std::string strLine; std::getline(in, strLine);) {
        ++nLine;
        const std::string strError = cases.Take(strLine);
        if (strError.empty()) continue;
        std::ostringstream text;
        text << words[0] << " line " << nLine << ": " << strError;
        return {kCannotBeDone, text.str()};
    }
    if (in.bad()) return {kCannotBeDone, words[0] + " cannot be read"};
    if (!WriteText(words[1], answers.str())) return {kCannotBeDone, words[1] + " cannot be written"};
    return {};
}
