#include "play/Player.h"

#include "app/MainApp.h"
#include "app/MainDlg.h"
#include "play/Verbs.h"
#include "resources/Ids.h"

CPlayer::CPlayer(CScriptedPlatform& platform, std::ostream& out, std::ostream& err)
    : m_platform(platform), m_out(out), m_err(err), m_pathStart(std::filesystem::current_path()) {}

bool CPlayer::Play(std::istream& script, const std::string& strScript) {
    bool bDone = false;
    m_platform.SetRunner(kDlgMain, [&](CPlayHost& host) { bDone = PlayLines(host, script, strScript); });
    CMainApp(m_platform.Get()).InitInstance();
    m_platform.SetRunner(kDlgMain, {});
    return bDone;
}

bool CPlayer::PlayLines(CPlayHost& host, std::istream& script, const std::string& strScript) {
    CStage stage{m_platform, host, static_cast<CMainDlg&>(host.Dialog()), m_out, m_pathStart};
    std::string strLine;
    while (std::getline(script, strLine)) {
        ++stage.nLine;
        const std::string strWhy = PlayLine(stage, strLine);
        m_out.flush();
        if (strWhy.empty()) continue;
        m_err << strScript << ':' << stage.nLine << ": " << strWhy << '\n';
        return false;
    }
    return ReportWaiting(strScript);
}

std::string CPlayer::PlayLine(CStage& stage, const std::string& strLine) const {
    CWords arrWords;
    if (!SplitWords(strLine, arrWords)) return "a quote is not closed where a word ends";
    if (arrWords.empty()) return {};
    const CVerb* pVerb = FindVerb(arrWords[0]);
    if (pVerb == nullptr) return NotA(arrWords[0], "verb");
    arrWords.erase(arrWords.begin());
    const int nWords = static_cast<int>(arrWords.size());
    if (nWords < pVerb->nMin || nWords > pVerb->nMax)
        return "it is " + (std::string(pVerb->szName) + " ") + pVerb->szWords;
    std::string strWhy = pVerb->pHandler(stage, arrWords);
    m_platform.TakeAsked();
    const std::string strProblem = FindProblem();
    return strWhy.empty() ? strProblem : strWhy;
}

std::string CPlayer::FindProblem() const {
    for (const CProblem& problem : m_platform.TakeProblems())
        if (m_bStrict || problem.kind != EProblem::Missing) return problem.strText;
    if (m_platform.WaitDepth() != 0) return "the program is left with the wait cursor on";
    return {};
}

// False if the script cannot end with answers that nobody has asked for.
bool CPlayer::ReportWaiting(const std::string& strScript) {
    for (const CAnswer& answer : m_platform.WaitingAnswers())
        m_err << strScript << ':' << answer.nLine << (m_bStrict ? ": " : ": note: ")
              << "nobody has asked for this answer\n";
    return !m_bStrict || m_platform.WaitingAnswers().empty();
}
