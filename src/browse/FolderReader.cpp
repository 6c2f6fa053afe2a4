#include "browse/FolderReader.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 4> kNeverShown = {".", "..", "System Volume Information", "Recycled"};

// Hands each entry that may appear to the visitor until it returns false.
template <typename T>
void Visit(const std::string& strFolder, T visitor) {
    std::error_code error;
    fs::directory_iterator it(fs::path(strFolder), fs::directory_options::skip_permission_denied, error);
    for (; !error && it != fs::directory_iterator(); it.increment(error)) {
        std::string strName = it->path().filename().string();
        if (std::find(kNeverShown.begin(), kNeverShown.end(), strName) != kNeverShown.end()) continue;
        std::error_code errorEntry;
        // A link that leads nowhere, or to itself, is no folder.
        const bool bFolder = it->is_directory(errorEntry) && !errorEntry;
        if (!visitor(CFolderEntry{std::move(strName), bFolder})) return;
    }
}

}  // namespace

std::vector<CFolderEntry> ReadFolder(const std::string& strFolder) {
    std::vector<CFolderEntry> arrEntries;
    Visit(strFolder, [&](CFolderEntry entry) {
        arrEntries.push_back(std::move(entry));
        return true;
    });
    return arrEntries;
}

bool HasSubfolders(const std::string& strFolder) {
    bool bFound = false;
    Visit(strFolder, [&](const CFolderEntry& entry) {
        bFound = entry.bFolder;
        return !bFound;
    });
    return bFound;
}
