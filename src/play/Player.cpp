#include "play/Player.h"

#include "app/MainApp.h"
#include "app/MainDlg.h"
#include "play/Verbs.h"
#include "resources/Ids.h"

namespace {

// The verb of a line, and the words behind it. Gives why there is none, or nothing for a line without words.
std::string ParseLine(const std::string& strLine, CWords& arrWords, const CVerb*& pFound) {
    if (!SplitWords(strLine, arrWords)) return "a quote is not closed where a word ends";
    if (arrWords.empty()) return {};
    const CVerb* pVerb = FindVerb(arrWords[0]);
    if (pVerb == nullptr) return NotA(arrWords[0], "verb");
    arrWords.erase(arrWords.begin());
    const int nWords = static_cast<int>(arrWords.size());
    if (nWords < pVerb->nMin || nWords > pVerb->nMax)
        return "it is " + (std::string(pVerb->szName) + " ") + pVerb->szWords;
    pFound = pVerb;
    return {};
}

}  // namespace

CPlayer::CPlayer(CScriptedPlatform& platform, std::ostream& out, std::ostream& err)
    : m_platform(platform), m_out(out), m_err(err), m_pathStart(std::filesystem::current_path()) {}

void CPlayer::CScript::Next() {
    ++nLine;
    bLine = static_cast<bool>(std::getline(stream, strLine));
}

bool CPlayer::Play(std::istream& script, const std::string& strScript) {
    CMachine machine{m_platform, m_out, m_pathStart};
    CScript lines{script, strScript};
    if (!SetUp(machine, lines)) return false;
    bool bDone = false;
    m_platform.SetRunner(kDlgMain, [&](CPlayHost& host) { bDone = PlayLines(machine, host, lines); });
    CMainApp(m_platform.Get()).InitInstance();
    m_platform.SetRunner(kDlgMain, {});
    return bDone;
}

// The lines before the first that needs the program.
bool CPlayer::SetUp(CMachine& machine, CScript& script) {
    for (script.Next(); script.bLine; script.Next()) {
        CWords arrWords;
        const CVerb* pVerb = nullptr;
        std::string strWhy = ParseLine(script.strLine, arrWords, pVerb);
        if (pVerb != nullptr && pVerb->pSetUp == nullptr) return true;
        if (pVerb != nullptr) strWhy = pVerb->pSetUp(machine, arrWords);
        if (!Report(script, strWhy)) return false;
    }
    return true;
}

bool CPlayer::PlayLines(CMachine& machine, CPlayHost& host, CScript& script) {
    CStage stage(machine, host, static_cast<CMainDlg&>(host.Dialog()));
    stage.dialog.Thum().List().FinishFill();
    for (; script.bLine; script.Next()) {
        stage.nLine = script.nLine;
        const std::string strWhy = PlayLine(stage, script.strLine);
        m_out.flush();
        if (!Report(script, strWhy)) return false;
    }
    return ReportWaiting(script.strName);
}

// True if there is nothing to report.
bool CPlayer::Report(const CScript& script, const std::string& strWhy) {
    if (!strWhy.empty()) m_err << script.strName << ':' << script.nLine << ": " << strWhy << '\n';
    return strWhy.empty();
}

std::string CPlayer::PlayLine(CStage& stage, const std::string& strLine) const {
    CWords arrWords;
    const CVerb* pVerb = nullptr;
    std::string strWhy = ParseLine(strLine, arrWords, pVerb);
    if (pVerb == nullptr) return strWhy;
    strWhy = pVerb->pSetUp != nullptr ? pVerb->pSetUp(stage, arrWords) : pVerb->pHandler(stage, arrWords);
    stage.dialog.Thum().List().FinishFill();
    stage.host.Pump();
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
