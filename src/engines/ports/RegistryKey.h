#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What a system's registry holds below HKEY_LOCAL_MACHINE, as a plain value: a tree of keys. As in a
// registry, a key or a value that is asked for by its name is found in any case of its letters.

struct CRegistryValue {
    std::string strName;
    std::optional<std::string> strData;  // without the zero at its end; nothing if it cannot be read
};

struct CRegistryKey {
    std::string strName;
    bool bReadable = true;  // it can be opened
    std::vector<CRegistryValue> arrValues;
    std::vector<CRegistryKey> arrKeys;

    // The data of the value; nothing if there is none of that name or if it cannot be read.
    std::optional<std::string> ValueOf(std::string_view strValue) const;
    // The key at a path from here, such as "Hardware\Devicemap"; null if it or one above it is not there or
    // cannot be opened.
    const CRegistryKey* KeyAt(std::string_view strPath) const;
    // The key at a path, made with those above it where they are missing.
    CRegistryKey& Make(std::string_view strPath);
};

// The same name, ASCII letters in any case.
bool IsSameName(std::string_view strOne, std::string_view strOther);
