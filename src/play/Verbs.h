#pragma once

#include <filesystem>
#include <ostream>
#include <span>
#include <string>

#include "app/MainDlg.h"
#include "play/PlayHost.h"
#include "play/ScriptedPlatform.h"
#include "play/Words.h"

// What a line of a script works on.
struct CStage {
    CScriptedPlatform& platform;
    CPlayHost& host;
    CMainDlg& dialog;
    std::ostream& out;
    // Where the process stood at its start: paths of scripts count from there, wherever dialogs have led.
    std::filesystem::path pathStart;
    int nLine = 0;

    // Whole, as a dialog would give it.
    std::string PathOf(const std::string& strPath) const {
        return (pathStart / strPath).lexically_normal().string();
    }
};

// One verb of the scripts. The handler gets the words behind the verb, as many as nMin to nMax say, and
// returns why the line cannot be done, or an empty text.
struct CVerb {
    const char* szName;
    const char* szWords;  // what stands behind the name, for the help
    int nMin;
    int nMax;
    std::string (*pHandler)(CStage& stage, const CWords& arrWords);
    const char* szHelp;
    const char* szExample;
};

// The verbs by what they are: the user's hands, the answers to questions, the looks at what has become.
std::span<const CVerb> HandVerbs();
std::span<const CVerb> AnswerVerbs();
std::span<const CVerb> LookVerbs();

// Null if there is no such verb.
const CVerb* FindVerb(const std::string& strName);

// Replaces what is wrong with a word in a sentence: "x" is no number.
std::string NotA(const std::string& strWord, const char* szKind);
