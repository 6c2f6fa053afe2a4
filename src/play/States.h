#pragma once

#include <span>
#include <string>

#include "play/Verbs.h"

// One thing about the program that a script can ask for by name. Texts come quoted, flags as 0 and 1.
struct CStateEntry {
    const char* szName;
    std::string (*pValue)(const CStage& stage);
    const char* szHelp;
};

std::span<const CStateEntry> States();
