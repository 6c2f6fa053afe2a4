// What the machine has on which the program runs.

#include "play/Verbs.h"

namespace {

std::string Drive(CMachine& machine, const CWords& arrWords) {
    const std::optional<char> cLetter = ParseLetter(arrWords[0]);
    if (!cLetter) return NotA(arrWords[0], "letter of a drive");
    if (arrWords.size() == 1) {
        machine.platform.RemoveDrive(*cLetter);
        return {};
    }
    const std::string strPath = machine.PathOf(arrWords[1]);
    std::error_code error;
    if (!std::filesystem::is_directory(strPath, error)) return "there is no folder " + Quote(strPath);
    machine.platform.AddDrive(*cLetter, strPath);
    return {};
}

std::string Bin(CMachine& machine, const CWords& arrWords) {
    const bool bRefuse = arrWords[0] == "refuse";
    machine.platform.RefuseDeletes(bRefuse);
    if (bRefuse) return {};
    const std::string strPath = machine.PathOf(arrWords[0]);
    std::error_code error;
    std::filesystem::create_directories(strPath, error);
    if (!std::filesystem::is_directory(strPath, error)) return "there is no folder " + Quote(strPath);
    machine.platform.SetBin(strPath);
    return {};
}

std::string Libraries(CMachine& machine, const CWords& arrWords) {
    if (arrWords[0] == "none") {
        machine.platform.Libraries().SetFolders({});
        return {};
    }
    const std::string strPath = machine.PathOf(arrWords[0]);
    std::error_code error;
    if (!std::filesystem::is_directory(strPath, error)) return "there is no folder " + Quote(strPath);
    machine.platform.Libraries().SetFolders({strPath});
    return {};
}

constexpr CVerb kVerbs[] = {
    {"drive", "LETTER [PATH]", 1, 2, nullptr,
     "Gives the machine a drive whose top is that folder, or takes the drive away. The program sees it when "
     "it next reads the drives: at its start, when the tree's top opens, when the tree follows a saved file.",
     "drive D photos", Drive},
    {"bin", "PATH|refuse", 1, 1, nullptr,
     "The folder, made if need be, that takes what goes to the recycle bin; as long as there is none, what "
     "goes there is refused and stays. What does not go there is deleted for good. refuse lets every delete "
     "be refused until a folder is given again.",
     "bin thrown-away", Bin},
    {"libraries", "PATH|none", 1, 1, nullptr,
     "The folder that has the program's libraries, or that there are none. Without this they are looked for "
     "in lib/fotarium beside the program's folder, and with the program.",
     "libraries none", Libraries},
};

}  // namespace

std::span<const CVerb> MachineVerbs() {
    return kVerbs;
}
