#include "engines/ports/RegistryKey.h"

#include <algorithm>

namespace {

char Lower(char ch) {
    return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch - 'A' + 'a') : ch;
}

// Takes the first name off a path.
std::string_view TakeName(std::string_view& strPath) {
    const std::string_view strName = strPath.substr(0, strPath.find('\\'));
    strPath.remove_prefix(std::min(strPath.size(), strName.size() + 1));
    return strName;
}

}  // namespace

bool IsSameName(std::string_view strOne, std::string_view strOther) {
    return std::ranges::equal(strOne, strOther, {}, Lower, Lower);
}

std::optional<std::string> CRegistryKey::ValueOf(std::string_view strValue) const {
    for (const CRegistryValue& value : arrValues)
        if (IsSameName(value.strName, strValue)) return value.strData;
    return std::nullopt;
}

const CRegistryKey* CRegistryKey::KeyAt(std::string_view strPath) const {
    const CRegistryKey* pKey = this;
    while (pKey->bReadable && !strPath.empty()) {
        const std::string_view strKey = TakeName(strPath);
        const auto itKey = std::ranges::find_if(
            pKey->arrKeys, [&](const CRegistryKey& key) { return IsSameName(key.strName, strKey); });
        if (itKey == pKey->arrKeys.end()) return nullptr;
        pKey = &*itKey;
    }
    return pKey->bReadable ? pKey : nullptr;
}

CRegistryKey& CRegistryKey::Make(std::string_view strPath) {
    CRegistryKey* pKey = this;
    while (!strPath.empty()) {
        const std::string_view strKey = TakeName(strPath);
        const auto itKey = std::ranges::find_if(
            pKey->arrKeys, [&](const CRegistryKey& key) { return IsSameName(key.strName, strKey); });
        if (itKey == pKey->arrKeys.end()) {
            pKey->arrKeys.emplace_back().strName = strKey;
            pKey = &pKey->arrKeys.back();
        } else {
            pKey = &*itKey;
        }
    }
    return *pKey;
}
