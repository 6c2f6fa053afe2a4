#include "window/FolderPhone.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "engines/ports/DeviceNumbers.h"

namespace fs = std::filesystem;

namespace {

std::string FolderNamed() {
    const char* const szFolder = std::getenv(kPhoneFolderVariable);
    return szFolder == nullptr ? std::string{} : szFolder;
}

}  // namespace

std::optional<CPortInfo> FindFolderPhone() {
    std::error_code error;
    if (!fs::is_directory(FolderNamed(), error)) return std::nullopt;
    return CPortInfo{{}, "OrvoE CDMA USB Serial Port (COM" + std::to_string(kFolderPhonePort) + ")"};
}

void SetPhoneFolder(const std::string& strFolder) {
    if (strFolder.empty())
        unsetenv(kPhoneFolderVariable);
    else
        setenv(kPhoneFolderVariable, strFolder.c_str(), 1);
}

void PinPhoneFolder() {
    std::error_code error;
    if (const std::string strFolder = FolderNamed(); !strFolder.empty())
        SetPhoneFolder(fs::absolute(strFolder, error).string());
}
