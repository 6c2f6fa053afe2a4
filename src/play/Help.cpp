#include <sstream>

#include "play/Player.h"
#include "play/States.h"
#include "play/Verbs.h"

namespace {

constexpr std::size_t kColumns = 78;

// The text in lines of at most kColumns, each with that indent.
void Fold(std::ostream& out, const std::string& strIndent, const std::string& strText) {
    std::istringstream words(strText);
    std::string strLine = strIndent;
    for (std::string strWord; words >> strWord;) {
        if (strLine.size() > strIndent.size() && strLine.size() + 1 + strWord.size() > kColumns) {
            out << strLine << '\n';
            strLine = strIndent;
        }
        strLine += (strLine.size() > strIndent.size() ? " " : "") + strWord;
    }
    out << strLine << '\n';
}

void TellVerbs(std::ostream& out, const char* szHeading, std::span<const CVerb> arrVerbs) {
    out << '\n' << szHeading << '\n';
    for (const CVerb& verb : arrVerbs) {
        out << "  " << verb.szName << (*verb.szWords == '\0' ? "" : " ") << verb.szWords << '\n';
        Fold(out, "      ", verb.szHelp);
        out << "      Example: " << verb.szExample << '\n';
    }
}

}  // namespace

std::string HelpText() {
    std::ostringstream out;
    out << "fotarium-play [--strict] SCRIPT\n";
    out << "fotarium-play --help\n\n";
    Fold(out, "",
         "Does with Fotarium what SCRIPT says, without a window; - reads the standard input. For "
         "regression tests, and for whoever has a hundred pictures to do.");
    out << '\n';
    Fold(out, "",
         "A script has one verb a line. A # begins a comment. Words with blanks stand in double "
         "quotes, in which \\\" and \\\\ give the character itself. Relative paths count from the folder "
         "in which fotarium-play was started. Numbers of controls are those of src/resources/Ids.h.");
    out << '\n';
    Fold(out, "",
         "The exit status is 0 if all was done, 1 with SCRIPT:LINE: MESSAGE on the standard error at "
         "the first line that cannot be done, 2 for a wrong call. With --strict a question for which "
         "no answer waits cannot be done either, message boxes included, and an answer that nobody "
         "asks for is an error.");
    out << '\n';
    Fold(out, "",
         "The program starts at the first line that needs it: what stands above it about the machine is "
         "there from the start. It sees no drives but those of the script. The pictures of the file list "
         "are all made when a line ends.");
    TellVerbs(out, "What the machine has", MachineVerbs());
    TellVerbs(out, "What the user does", HandVerbs());
    TellVerbs(out, "What the user does in THUM", BrowseVerbs());
    TellVerbs(out, "What the user answers", AnswerVerbs());
    TellVerbs(out, "What there is to see", LookVerbs());
    out << "\nStates\n";
    for (const CStateEntry& entry : States()) {
        std::string strName = entry.szName;
        strName.resize(12, ' ');
        out << "  " << strName << entry.szHelp << '\n';
    }
    out << "\nExample\n"
           "  # A smaller copy of one picture\n"
           "  open photos/sea.jpg\n"
           "  command 1017\n"
           "  answer save small/sea.jpg\n"
           "  command 1002\n";
    return out.str();
}
