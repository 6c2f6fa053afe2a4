// What the machine has on which the program runs.

#include <array>

#include "engines/linkset/PhoneLibrary.h"
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

std::string Port(CMachine& machine, const CWords& arrWords) {
    CScriptedPorts& ports = machine.platform.Ports();
    if (arrWords[1] == "gone")
        return ports.RemovePort(arrWords[0]) ? std::string{} : "there is no port " + Quote(arrWords[0]);
    constexpr std::array kProbes = {std::pair{"free", EPortProbe::Free}, std::pair{"busy", EPortProbe::Busy},
                                    std::pair{"absent", EPortProbe::Absent}};
    for (const auto& [szName, probe] : kProbes) {
        if (arrWords[1] != szName) continue;
        ports.SetPort(arrWords[0], probe);
        return {};
    }
    return NotA(arrWords[1], "state of a port");
}

std::string ModemPort(CMachine& machine, const CWords& arrWords) {
    machine.platform.Ports().SetModemEntry(arrWords[0] == "none" ? std::nullopt : std::optional(arrWords[0]));
    return {};
}

std::string Install(CMachine& machine, const CWords& arrWords) {
    const std::string strPath = machine.PathOf(arrWords[0]);
    std::error_code error;
    std::filesystem::create_directories(strPath, error);
    if (!std::filesystem::is_directory(strPath, error)) return "there is no folder " + Quote(strPath);
    machine.platform.SetInstallValue(strPath);
    return {};
}

std::string Library(CMachine& machine, const CWords& arrWords) {
    const bool bNone = arrWords[0] == "none";
    const std::string strPath = bNone ? std::string{} : machine.PathOf(arrWords[0]);
    std::error_code error;
    if (!bNone && !std::filesystem::exists(strPath, error)) return "there is no file " + Quote(strPath);
    machine.platform.Libraries().SetFile(PHONE_LIBRARY_NAME, strPath);
    return {};
}

std::string Phone(CMachine& machine, const CWords& arrWords) {
    const std::string strPath = machine.PathOf(arrWords[0]);
    std::error_code error;
    if (!std::filesystem::is_directory(strPath, error)) return "there is no folder " + Quote(strPath);
    machine.platform.Ports().PlugFolderPhone(strPath);
    machine.platform.Libraries().ForgetFile(PHONE_LIBRARY_NAME);
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
    {"port", "FRIENDLY free|busy|absent|gone", 2, 2, nullptr,
     "Gives the machine a serial port of that friendly name behind those it has, or a port that it has "
     "another state: opening it succeeds, is denied, or fails otherwise. gone takes it away.",
     "port \"OrvoE CDMA USB Serial Port (COM7)\" free", Port},
    {"modemport", "DATA|none", 1, 1, nullptr,
     "What the system notes as the port of the phone's modem, or that it notes nothing, as at first.",
     "modemport COM5", ModemPort},
    {"install", "PATH", 1, 1, nullptr,
     "The folder in which the program is installed, made if need be. The program looks it up at its start.",
     "install program", Install},
    {"library", "PATH|none", 1, 1, nullptr,
     "The file that is loaded as the phone's library, or that there is none. Without this it is looked for "
     "where all libraries are.",
     "library my-phone.so", Library},
    {"phone", "FOLDER", 1, 1, nullptr,
     "Plugs in the phone in that folder: its port stands behind all others, and its library is the one that "
     "comes with the program until a library line names another.",
     "phone phones/new", Phone},
    {"printer", "NAME PAPER portrait|landscape DPI [size W H] [printable W H]", 1, 10, nullptr,
     "The printer that the machine has: its paper's number (1 to 41, or 256 with its own size in tenths of a "
     "millimetre, upright), its dots per inch, and the dots that it reaches, all of the paper without this. "
     "At first it is PDF 9 portrait 600.",
     "printer Photo 256 landscape 600 size 1000 1500", DoPrinter},
    {"printer", "none|refuse|gone|full N", 1, 2, nullptr,
     "That there is none; that no document can be started on it; that it vanishes when the print dialog has "
     "been answered; that it takes no more than N strips of a page.",
     "printer gone", DoPrinter},
    {"today", "YEAR MONTH DAY", 3, 3, nullptr, "The day that it is, at first 2006 1 2.", "today 2006 12 31",
     DoToday},
};

}  // namespace

std::span<const CVerb> MachineVerbs() {
    return kVerbs;
}
