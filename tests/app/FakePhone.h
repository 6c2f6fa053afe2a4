#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "engines/linkset/FileSet.h"
#include "engines/linkset/PhoneLibrary.h"
#include "image/Geometry.h"
#include "play/ScriptedLibraries.h"

// A phone of a few values in the place of the phone's library. Functions with a code here give that code; the
// others do what is asked.
struct CFakePhone {
    std::map<std::string, std::int32_t> mapCodes;
    std::uint32_t nIdentity = 77;
    std::int32_t nKind = 2;
    std::int32_t nMostFiles = 0;
    unsigned char bHasCard = 0;
    unsigned char bNoRestart = 1;
    std::vector<CSize> arrSizes = {{640, 480}, {176, 144}};
    std::int32_t nSizes = 2;  // how many it says there are
    CSize sizeThumb{176, 144};
    std::vector<CFileItem> arrFiles;
    std::int32_t nStored = 0;
    std::int32_t nConnected = 1;  // what IsConnected says
    std::uint32_t nFree = 1'000'000;
    std::map<std::string, std::string> mapSent;  // bytes by the names on the phone
    // Asked for a code by each call of a file or of the identity, if there is one.
    std::function<std::int32_t(const std::string& strCall)> fnCode;

    static CFakePhone& Now();
    std::int32_t CodeOf(const char* szFunction) const;
    // All of its functions but those.
    static void PlugIn(CScriptedLibraries& libraries, const std::vector<std::string>& arrLacking = {});
};
