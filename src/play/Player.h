#pragma once

#include <filesystem>
#include <istream>
#include <ostream>
#include <string>

#include "play/ScriptedPlatform.h"

struct CMachine;
struct CStage;
struct CVerb;

// Plays scripts: starts the program as it always starts, does line by line what the script says, and closes
// it. Time passes only as the script says, and for the start-up picture not at all.
class CPlayer {
  public:
    // Prints what scripts ask for on out, and on err as SCRIPT:LINE: MESSAGE why a line cannot be done. Paths
    // in scripts count from where the process stands now. The platform outlives the player.
    CPlayer(CScriptedPlatform& platform, std::ostream& out, std::ostream& err);

    // Makes a question that finds no answer, and an answer that finds no question, an error.
    void SetStrict(bool bStrict) { m_bStrict = bStrict; }

    // Plays to the end or to the first line that cannot be done; false for the latter.
    bool Play(std::istream& script, const std::string& strScript);

  private:
    // The lines of a script, one at a time.
    struct CScript {
        std::istream& stream;
        const std::string& strName;
        std::string strLine{};
        int nLine = 0;
        bool bLine = true;  // strLine is one that is still to be done
        void Next();
    };
    bool SetUp(CMachine& machine, CScript& script);
    bool PlayLines(CMachine& machine, CPlayHost& host, CScript& script);
    std::string PlayLine(CStage& stage, const std::string& strLine) const;
    bool Report(const CScript& script, const std::string& strWhy);
    std::string FindProblem() const;
    bool ReportWaiting(const std::string& strScript);

    CScriptedPlatform& m_platform;
    std::ostream& m_out;
    std::ostream& m_err;
    std::filesystem::path m_pathStart;
    bool m_bStrict = false;
};

// All that the program says about itself.
std::string HelpText();
