#include "window/Folders.h"

std::string CFolders::InstallFolder() const {
    const std::string strValue = InstallValue();
    if (strValue.empty() || strValue.front() != '"') return strValue;
    return strValue.size() < 2 ? std::string{} : strValue.substr(1, strValue.size() - 2);
}
