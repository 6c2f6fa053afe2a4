#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <span>
#include <sstream>
#include <string>
#include <vector>

#include "LibraryCalls.h"
#include "engines/linkset/PhoneLibrary.h"
#include "engines/ports/DeviceNumbers.h"
#include "phone/PhoneFacts.h"
#include "phone/PhoneStore.h"

// fotarium-phone: makes and shows phones in folders, and calls a phone library.

namespace fs = std::filesystem;

namespace {

constexpr int kDone = 0;
constexpr int kCannotBeDone = 1;
constexpr int kWrongCall = 2;

using CWords = std::span<const std::string>;

int Fail(int nStatus, const std::string& strError) {
    std::cerr << "fotarium-phone: " << strError << "\n";
    return nStatus;
}

// Two phones in two folders are two phones, and each is the same at every look.
std::uint32_t IdentityFor(const fs::path& folder) {
    const auto nHash = static_cast<std::uint64_t>(std::hash<std::string>()(folder.string()));
    return std::max<std::uint32_t>(1, static_cast<std::uint32_t>(nHash ^ (nHash >> 32U)));
}

int MakePhone(CWords words) {
    const std::string& strFolder = words[0];
    std::error_code error;
    if (fs::exists(strFolder, error) && !fs::is_empty(strFolder, error))
        return Fail(kCannotBeDone, strFolder + " is there already");
    for (const std::string& strPicture : words.subspan(1))
        if (!CPhoneStore::BytesOf(strPicture)) return Fail(kCannotBeDone, strPicture + " cannot be read");
    const fs::path folder = fs::absolute(strFolder, error);
    fs::create_directories(folder / "inner", error);
    fs::create_directories(folder / "card", error);
    if (error) return Fail(kCannotBeDone, strFolder + " cannot be made");

    CPhoneStore store(folder.string());
    int nPicture = 0;
    for (const std::string& strPicture : words.subspan(1)) {
        std::ostringstream name;
        name << "photo/IMG" << std::setw(4) << std::setfill('0') << ++nPicture;
        if (!store.Put(strPicture, name.str())) return Fail(kCannotBeDone, strPicture + " cannot be copied");
    }
    // Last, for they make a phone of the folder.
    CPhoneFacts facts;
    facts.m_nIdentity = IdentityFor(folder.lexically_normal());
    for (const CFactRow& fact : AllFacts())
        if (!WriteFact(folder.string(), fact.szName, fact.tell(facts)))
            return Fail(kCannotBeDone, strFolder + " cannot be written");
    return kDone;
}

int ListFiles(CWords words) {
    std::string strError;
    const std::optional<CPhoneFacts> facts = ReadFacts(words[0], strError);
    if (!facts) return Fail(kCannotBeDone, strError);
    const auto arrFiles = CPhoneStore(words[0]).List(facts->HasCardIn());
    if (!arrFiles) return Fail(kCannotBeDone, "the files in " + words[0] + " cannot be listed");
    for (const CPhoneFile& file : *arrFiles)
        std::cout << file.m_nId << '\t' << file.m_nBytes << '\t' << file.m_bOnCard << '\t' << file.m_bClosed
                  << '\t' << file.m_strName << '\n';
    return kDone;
}

int ShowOrSetFact(CWords words) {
    std::string strError;
    std::optional<CPhoneFacts> facts = ReadFacts(words[0], strError);
    if (!facts) return Fail(kCannotBeDone, strError);
    if (words.size() == 1) {
        for (const CFactRow& fact : AllFacts()) std::cout << fact.szName << ' ' << fact.tell(*facts) << '\n';
        return kDone;
    }
    const CFactRow* const pFact = FindFact(words[1]);
    if (pFact == nullptr) return Fail(kWrongCall, words[1] + " is no fact; fotarium-phone --help lists them");
    if (words.size() == 2) {
        std::cout << pFact->tell(*facts) << '\n';
        return kDone;
    }
    if (!pFact->take(CFactWords(words.begin() + 2, words.end()), *facts))
        return Fail(kWrongCall, "wrong value for " + words[1]);
    if (!WriteFact(words[0], pFact->szName, pFact->tell(*facts)))
        return Fail(kCannotBeDone, words[0] + " cannot be written");
    return kDone;
}

int MoveCard(CWords words) {
    if (words[0] != "in" && words[0] != "out") return Fail(kWrongCall, "it is card in|out FOLDER");
    std::string strError;
    const std::optional<CPhoneFacts> facts = ReadFacts(words[1], strError);
    if (!facts) return Fail(kCannotBeDone, strError);
    if (!facts->m_bCard) return Fail(kCannotBeDone, "this phone has no place for a card: its fact card is 0");
    if (!WriteFact(words[1], "cardin", words[0] == "in" ? "1" : "0"))
        return Fail(kCannotBeDone, words[1] + " cannot be written");
    return kDone;
}

// The library that is tried: the one that is named, or the one that lies where the program has its libraries.
fs::path LibraryPath() {
    const char* const szNamed = std::getenv("FOTARIUM_PHONE_LIBRARY");
    std::error_code error;
    if (szNamed != nullptr && *szNamed != '\0') return fs::absolute(szNamed, error);
    const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
    const fs::path beside = folder / PHONE_LIBRARY_NAME;
    return fs::exists(beside, error) ? beside : folder.parent_path() / "lib/fotarium" / PHONE_LIBRARY_NAME;
}

int CallLibrary(CWords words) {
    if (setenv("FOTARIUM_PHONE_FOLDER", words[0].c_str(), 1) != 0)
        return Fail(kCannotBeDone, "there is no memory for the environment");
    const CCalledLibrary library(LibraryPath().string());
    if (!library.Error().empty()) return Fail(kCannotBeDone, library.Error());
    for (CWords rest = words.subspan(1); !rest.empty();) {
        const auto itThen = std::ranges::find(rest, "then");
        const auto nWords = static_cast<std::size_t>(itThen - rest.begin());
        if (nWords == 0 || nWords + 1 == rest.size())
            return Fail(kWrongCall, "a function is missing beside \"then\"");
        const CCallResult result = library.Call(rest.first(nWords));
        if (!result.bDone) return Fail(result.bWrongCall ? kWrongCall : kCannotBeDone, result.strText);
        std::cout << result.strText << std::endl;
        rest = rest.subspan(std::min(nWords + 1, rest.size()));
    }
    return kDone;
}

struct CVerb {
    const char* szName;
    const char* szWords;
    const char* szHelp;
    std::size_t nFewest;
    std::size_t nMost;
    int (*run)(CWords words);
};

constexpr std::size_t kAny = static_cast<std::size_t>(-1);
constexpr CVerb kVerbs[] = {
    {"new", "FOLDER [PICTURE...]",
     "    Makes a phone in a new or empty folder, with copies of the pictures as photo/IMG0001 and so on.\n",
     1, kAny, MakePhone},
    {"list", "FOLDER",
     "    The phone's files, one a line, parted by tabs: ID BYTES MEMORY CLOSED NAME. MEMORY is 0 for inner\n"
     "    memory, 1 for the card. workbench filedat makes a FILE.Dat of such lines.\n",
     1, 1, ListFiles},
    {"fact", "FOLDER [NAME [VALUE...]]", "    Shows all facts of the phone or one, or gives one its value.\n",
     1, kAny, ShowOrSetFact},
    {"card", "in|out FOLDER", "    Pushes the memory card in or pulls it out.\n", 2, 2, MoveCard},
    {"call", "FOLDER FUNCTION ARGUMENT... [then FUNCTION ARGUMENT...]...",
     "    Calls functions of the phone library, one after the other, and prints for each its name, its code "
     "and\n"
     "    its out-values in their order. Out-values are left out of the arguments. The library is the one "
     "with\n"
     "    this program, or the file that FOTARIUM_PHONE_LIBRARY names.\n",
     2, kAny, CallLibrary},
};

int PrintHelp() {
    std::cout << "fotarium-phone: makes and shows phones in folders, and calls a phone library.\n\n";
    for (const CVerb& verb : kVerbs)
        std::cout << "fotarium-phone " << verb.szName << " " << verb.szWords << "\n" << verb.szHelp << "\n";
    std::cout << "Exit status: 0 done, 1 it cannot be done, 2 a wrong call.\n\nFacts:\n" << std::left;
    for (const CFactRow& fact : AllFacts())
        std::cout << "  " << std::setw(14) << fact.szName << fact.szHelp << "\n";
    std::cout << "\nFunctions (the port of a phone in a folder is " << kFolderPhonePort << "):\n";
    for (const CLibraryCall& call : AllCalls())
        std::cout << "  " << call.szName << " " << call.szWords << "\n";
    return kDone;
}

int Run(CWords words) {
    if (words.size() == 1 && words[0] == "--help") return PrintHelp();
    if (words.empty()) return Fail(kWrongCall, "no verb; fotarium-phone --help lists them");
    const auto* const itVerb = std::ranges::find(kVerbs, words[0], &CVerb::szName);
    if (itVerb == std::end(kVerbs))
        return Fail(kWrongCall, words[0] + " is no verb; fotarium-phone --help lists them");
    const CWords rest = words.subspan(1);
    if (rest.size() < itVerb->nFewest || rest.size() > itVerb->nMost)
        return Fail(kWrongCall, std::string("it is ") + itVerb->szName + " " + itVerb->szWords);
    return itVerb->run(rest);
}

}  // namespace

int main(int nArguments, char** arrArguments) {
    const std::vector<std::string> arrWords(arrArguments + 1, arrArguments + nArguments);
    return Run(arrWords);
}
