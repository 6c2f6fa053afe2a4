// What the user does in the phone's dialogs.

#include "play/PlayHost.h"
#include "play/ScriptedPlatform.h"
#include "play/Words.h"
#include "resources/Ids.h"

// An answer that cannot be given.
void CScriptedPlatform::Complain(const std::string& strWhy) {
    if (!strWhy.empty()) m_arrProblems.push_back({EProblem::Impossible, strWhy});
}

void CScriptedPlatform::RunPort(CPlayHost& host) {
    const std::optional<CAnswer> answer = TakeAnswer(EQuestion::Port);
    if (!answer) return Complain(host.Click(kPortCancel));
    std::string strWhy = host.SelectRow(kPortList, answer->nPort - 1);
    Complain(strWhy.empty() ? host.Click(kPortOk) : strWhy);
}

void CScriptedPlatform::RunPhoneSize(CPlayHost& host) {
    const std::optional<CAnswer> answer = TakeAnswer(EQuestion::PhoneSize);
    if (!answer) return Complain(host.Click(kPhoneSizeCancel));
    std::string strWhy = host.SelectRow(kPhoneSizes, answer->nRow);
    Complain(strWhy.empty() ? host.Click(kPhoneSizeOk) : strWhy);
}

void CScriptedPlatform::RunPhoneFiles(CPlayHost& host) {
    const std::optional<CAnswer> answer = TakeAnswer(EQuestion::PhoneFiles);
    if (answer) {
        for (const std::string& strStep : answer->arrSteps) {
            // A look at the card may have closed it.
            if (host.Dialog().HasEnded()) return;
            Complain(DoInPhoneFiles(host, strStep));
        }
    }
    if (!host.Dialog().HasEnded()) Complain(host.Click(kPhoneFilesCancel));
}

std::string CScriptedPlatform::DoInPhoneFiles(CPlayHost& host, const std::string& strStep) {
    const std::size_t nBlank = strStep.find(' ');
    const std::string strWord = strStep.substr(0, nBlank);
    const int n = nBlank == std::string::npos ? 0 : ParseNumber(strStep.substr(nBlank + 1)).value_or(0);
    if (strWord == "tick") return host.TickRow(kPhoneFiles, n);
    if (strWord == "all") return host.Click(kPhoneFilesAll);
    if (strWord == "none") return host.Click(kPhoneFilesNone);
    if (strWord == "ok") return host.Click(kPhoneFilesOk);
    if (strWord == "cancel") return host.Click(kPhoneFilesCancel);
    if (strWord == "wait") {
        m_timers.Advance(n);
        return {};
    }
    CAnswer menu;
    menu.question = EQuestion::Menu;
    menu.nMenuId = kMenuSortNumber + n;
    AnswerNext(menu);
    return host.RightClickRow(kPhoneFiles, -1);
}
