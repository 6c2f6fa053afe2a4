#pragma once

#include <optional>
#include <span>
#include <string>

#include "workbench/Workbench.h"

struct CWorkResult {
    int nStatus = kDone;
    std::string strError;  // empty if it was done
    std::string strOut{};  // lines to print
};

// A verb is one function over its words and a line in Verbs.cpp.
struct CWorkVerb {
    const char* szName;
    const char* szWords;  // what stands behind the name
    const char* szHelp;   // lines of help, each with its end
    CWorkResult (*run)(std::span<const std::string> words);
};

std::span<const CWorkVerb> AllVerbs();

// A whole number from nMin to nMax, or nothing for any other text.
std::optional<long long> ParseNumber(const std::string& strWord, long long nMin, long long nMax);

CWorkResult RunEffectVerb(std::span<const std::string> words);
CWorkResult RunFiguresVerb(std::span<const std::string> words);
CWorkResult RunPageVerb(std::span<const std::string> words);
CWorkResult RunPackVerb(std::span<const std::string> words);
CWorkResult RunPortsVerb(std::span<const std::string> words);
CWorkResult RunFileDatVerb(std::span<const std::string> words);
CWorkResult RunUserDatVerb(std::span<const std::string> words);
CWorkResult RunWarpVerb(std::span<const std::string> words);
// Lines that name the effects with their numbers and levels.
std::string EffectList();
