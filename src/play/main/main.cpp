#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "engines/linkset/PhoneLibrary.h"
#include "play/Player.h"
#include "resources/BitmapStore.h"

namespace {

constexpr int kCannotBeDone = 1;
constexpr int kWrongCall = 2;

// Where this program's file lies; szSelf is what it was called as.
std::filesystem::path FolderOfProgram(const char* szSelf) {
    std::error_code error;
    const std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", error);
    return (error ? std::filesystem::absolute(szSelf, error) : path).parent_path();
}

int Play(const std::string& strScript, bool bStrict, const char* szSelf) {
    std::ifstream file;
    const bool bStandardInput = strScript == "-";
    if (!bStandardInput) file.open(strScript);
    if (!bStandardInput && !file) {
        std::cerr << "fotarium-play: " << strScript << " cannot be read\n";
        return kWrongCall;
    }
    CBitmapStore bitmaps((FolderOfProgram(szSelf) / "../share/fotarium/skin").string());
    CScriptedPlatform platform;
    platform.SetBitmaps(&bitmaps);
    platform.Libraries().SetFolders(FoldersOfLibraries(FolderOfProgram(szSelf).string()));
    platform.Libraries().SetFiles(
        FilesOfLibraries(std::array{CLibraryVariable{PHONE_LIBRARY_NAME, kPhoneLibraryVariable}}));
    CPlayer player(platform, std::cout, std::cerr);
    player.SetStrict(bStrict);
    return player.Play(bStandardInput ? std::cin : file, strScript) ? 0 : kCannotBeDone;
}

}  // namespace

int main(int nArguments, char** arrArguments) {
    const std::vector<std::string> arrWords(arrArguments + 1, arrArguments + nArguments);
    if (arrWords.size() == 1 && arrWords[0] == "--help") {
        std::cout << HelpText();
        return 0;
    }
    const bool bStrict = !arrWords.empty() && arrWords[0] == "--strict";
    const bool bScript = arrWords.size() == (bStrict ? 2U : 1U);
    if (bScript && (arrWords.back() == "-" || !arrWords.back().starts_with('-')))
        return Play(arrWords.back(), bStrict, arrArguments[0]);
    std::cerr << "usage: fotarium-play [--strict] SCRIPT\n       fotarium-play --help\n";
    return kWrongCall;
}
