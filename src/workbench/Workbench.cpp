#include "workbench/Workbench.h"

#include <algorithm>
#include <ostream>

#include "workbench/Verbs.h"

namespace {

void PrintHelp(std::ostream& out) {
    out << "workbench: runs one engine of the photo workshop on files, without a window.\n\n";
    for (const CWorkVerb& verb : AllVerbs())
        out << "workbench " << verb.szName << " " << verb.szWords << "\n" << verb.szHelp << "\n";
    out << "Exit status: 0 done, 1 a file cannot be read or written, 2 a wrong call.\n\nEffects:\n"
        << EffectList();
}

int Fail(std::ostream& errors, int nStatus, const std::string& strError) {
    errors << "workbench: " << strError << "\n";
    return nStatus;
}

}  // namespace

int RunWorkbench(const CWorkWords& arrWords, std::ostream& out, std::ostream& errors) {
    if (arrWords.size() == 1 && arrWords[0] == "--help") {
        PrintHelp(out);
        return kDone;
    }
    if (arrWords.empty()) return Fail(errors, kWrongCall, "no verb; workbench --help lists them");
    const std::span<const CWorkVerb> verbs = AllVerbs();
    const auto verb = std::ranges::find(verbs, arrWords[0], &CWorkVerb::szName);
    if (verb == verbs.end())
        return Fail(errors, kWrongCall, arrWords[0] + " is no verb; workbench --help lists them");
    const CWorkResult result = verb->run(std::span(arrWords).subspan(1));
    out << result.strOut;
    return result.nStatus == kDone ? kDone : Fail(errors, result.nStatus, result.strError);
}
