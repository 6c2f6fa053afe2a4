#pragma once

#include <filesystem>
#include <ostream>
#include <span>
#include <string>

#include "app/MainDlg.h"
#include "play/PlayHost.h"
#include "play/ScriptedPlatform.h"
#include "play/Words.h"

// What a line of a script can work on before the program has started.
struct CMachine {
    CScriptedPlatform& platform;
    std::ostream& out;
    // Where the process stood at its start: paths of scripts count from there, wherever dialogs have led.
    std::filesystem::path pathStart;

    // Whole, as a dialog would give it.
    std::string PathOf(const std::string& strPath) const {
        return (pathStart / strPath).lexically_normal().string();
    }
};

// And behind the start.
struct CStage : CMachine {
    CStage(const CMachine& machine, CPlayHost& hostMain, CMainDlg& dialogMain)
        : CMachine(machine), host(hostMain), dialog(dialogMain) {}
    CPlayHost& host;
    CMainDlg& dialog;
    int nLine = 0;  // of the script, the one at work
};

// One verb of the scripts. Its handler gets the words behind the verb, as many as nMin to nMax say, and
// returns why the line cannot be done, or an empty text. A verb has one of the two handlers.
struct CVerb {
    const char* szName = "";
    const char* szWords = "";  // what stands behind the name, for the help
    int nMin = 0;
    int nMax = 0;
    std::string (*pHandler)(CStage& stage, const CWords& arrWords) = nullptr;
    const char* szHelp = "";
    const char* szExample = "";
    // Can also be done before the program has started.
    std::string (*pSetUp)(CMachine& machine, const CWords& arrWords) = nullptr;
};

// The verbs by what they are: what the machine has, the user's hands, the same in tree and list, the answers
// to questions, the looks at what has become.
std::span<const CVerb> MachineVerbs();
std::span<const CVerb> HandVerbs();
std::span<const CVerb> BrowseVerbs();
std::span<const CVerb> AnswerVerbs();
std::span<const CVerb> LookVerbs();

// The printer and the day of the machine.
std::string DoPrinter(CMachine& machine, const CWords& arrWords);
std::string DoToday(CMachine& machine, const CWords& arrWords);

// Null if there is no such verb.
const CVerb* FindVerb(const std::string& strName);

// Replaces what is wrong with a word in a sentence: "x" is no number.
std::string NotA(const std::string& strWord, const char* szKind);
