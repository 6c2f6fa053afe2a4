#include "play/ScriptedPlatform.h"

#include <algorithm>
#include <filesystem>
#include <new>
#include <system_error>
#include <utility>

#include "resources/Ids.h"

namespace fs = std::filesystem;

namespace {

CAnswer AnswerTo(EQuestion question) {
    CAnswer answer;
    answer.question = question;
    return answer;
}

}  // namespace

CScriptedPlatform::CScriptedPlatform() : m_strFolderBefore(CurrentFolder()) {
    m_timers.SetTickHook([this] { PaintAll(); });
    AddRunners();
}

CScriptedPlatform::~CScriptedPlatform() {
    std::error_code error;
    fs::current_path(m_strFolderBefore, error);
}

CPlatform CScriptedPlatform::Get() {
    return {*this, *this, *this, *this, *this, *this,       m_timers, *this,      *this,
            *this, *this, *this, *this, *this, m_libraries, m_ports,  m_printers, m_clock};
}

// One entry for each dialog of the program's own that a user of this platform can work through.
void CScriptedPlatform::AddRunners() {
    for (const int nDialog : {kDlgSplash, kDlgLink, kDlgTransfer})
        SetRunner(nDialog, [](CPlayHost& host) {
            while (!host.Dialog().HasEnded() && host.Platform().Timers().AdvanceToNext()) {
            }
        });
    SetRunner(kDlgSize, [this](CPlayHost& host) { RunSize(host); });
    SetRunner(kDlgPortSelect, [this](CPlayHost& host) { RunPort(host); });
    SetRunner(kDlgPhoneFile, [this](CPlayHost& host) { RunPhoneFiles(host); });
    SetRunner(kDlgPhoneSize, [this](CPlayHost& host) { RunPhoneSize(host); });
    SetRunner(kDlgPrint, [this](CPlayHost& host) { RunPrint(host); });
}

// Types what the answer has, with the ratio kept or not, and clicks Ok.
void CScriptedPlatform::RunSize(CPlayHost& host) {
    const std::optional<CAnswer> answer = TakeAnswer(EQuestion::Size);
    if (!answer) return;
    std::string strWhy;
    const auto fnDo = [&strWhy](const std::string& strStep) {
        if (strWhy.empty()) strWhy = strStep;
    };
    if (host.Dialog().Controls().IsChecked(kSizeKeepRatio) != answer->bKeepRatio)
        fnDo(host.Click(kSizeKeepRatio));
    if (answer->strWidth) fnDo(host.Type(kSizeWidth, *answer->strWidth));
    if (answer->strHeight) fnDo(host.Type(kSizeHeight, *answer->strHeight));
    fnDo(host.Click(kSizeOk));
    if (!strWhy.empty()) m_arrProblems.push_back({EProblem::Impossible, strWhy});
}

void CScriptedPlatform::RunPrint(CPlayHost& host) {
    const std::optional<CAnswer> answer = TakeAnswer(EQuestion::Print);
    const std::vector<std::string> arrSteps = answer ? answer->arrSteps : std::vector<std::string>{};
    for (const std::string& strStep : arrSteps) {
        if (host.Dialog().HasEnded())
            return Complain("the print preview has gone before \"" + strStep + "\"");
        if (strStep == "ready") {
            m_printers.SetPrinter(m_printers.Printer());
            continue;
        }
        m_printers.AnswerDialog(strStep == "ok");
        Complain(host.Click(strStep == "stamp" ? kPrintDate : kPrintOk));
    }
    if (!host.Dialog().HasEnded()) Complain(host.Click(kPrintCancel));
}

void CScriptedPlatform::PaintAll() {
    for (CPlayHost* pHost : m_arrHosts) pHost->Pump();
}

// --- answers ---

void CScriptedPlatform::Answer(EBoxAnswer answer) {
    CAnswer full = AnswerTo(EQuestion::Box);
    full.box = answer;
    Answer(std::move(full));
}

void CScriptedPlatform::AnswerOpen(const std::string& strPath) {
    CAnswer answer = AnswerTo(EQuestion::Open);
    answer.strPath = fs::absolute(strPath).lexically_normal().string();
    Answer(std::move(answer));
}

void CScriptedPlatform::AnswerSave(const std::string& strPath) {
    CAnswer answer = AnswerTo(EQuestion::Save);
    answer.strPath = fs::absolute(strPath).lexically_normal().string();
    Answer(std::move(answer));
}

void CScriptedPlatform::AnswerColor(CColor color) {
    CAnswer answer = AnswerTo(EQuestion::Color);
    answer.color = color;
    Answer(std::move(answer));
}

void CScriptedPlatform::AnswerFont(const std::string& strFace, bool bBold) {
    CAnswer answer = AnswerTo(EQuestion::Font);
    answer.font = {strFace, bBold};
    Answer(std::move(answer));
}

void CScriptedPlatform::AnswerSize(const std::string& strWidth, const std::string& strHeight) {
    CAnswer answer = AnswerTo(EQuestion::Size);
    answer.strWidth = strWidth;
    answer.strHeight = strHeight;
    Answer(std::move(answer));
}

void CScriptedPlatform::AnswerDelete(bool bDelete) {
    CAnswer answer = AnswerTo(EQuestion::Delete);
    answer.bDelete = bDelete;
    Answer(std::move(answer));
}

void CScriptedPlatform::AnswerMenu(int nId) {
    CAnswer answer = AnswerTo(EQuestion::Menu);
    answer.nMenuId = nId;
    Answer(std::move(answer));
}

void CScriptedPlatform::AnswerCancel() {
    CAnswer answer;
    answer.bCancel = true;
    Answer(std::move(answer));
}

std::optional<CAnswer> CScriptedPlatform::TakeAnswer(EQuestion question) {
    PaintAll();
    const auto it = std::find_if(m_arrAnswers.begin(), m_arrAnswers.end(), [&](const CAnswer& answer) {
        return answer.bCancel ? question != EQuestion::Box : answer.question == question;
    });
    if (it != m_arrAnswers.end()) {
        CAnswer answer = std::move(*it);
        m_arrAnswers.erase(it);
        return answer.bCancel ? std::nullopt : std::optional(std::move(answer));
    }
    // A box may come beside the dialog that an answer waits for.
    const bool bNoneWaits = m_arrAnswers.empty() || question == EQuestion::Box;
    std::string strText = "no answer waits for a question of the kind " + std::string(NameOf(question));
    if (!bNoneWaits) strText += ", but one of the kind " + std::string(NameOf(m_arrAnswers.front().question));
    m_arrProblems.push_back({bNoneWaits ? EProblem::Missing : EProblem::Mismatch, std::move(strText)});
    return std::nullopt;
}

std::vector<CMessageBox> CScriptedPlatform::TakeBoxes() {
    return std::exchange(m_arrBoxes, {});
}
std::vector<CAsked> CScriptedPlatform::TakeAsked() {
    return std::exchange(m_arrAsked, {});
}
std::vector<CProblem> CScriptedPlatform::TakeProblems() {
    return std::exchange(m_arrProblems, {});
}
std::vector<CShellAct> CScriptedPlatform::TakeShellActs() {
    return std::exchange(m_arrShellActs, {});
}

// --- questions ---

CAsked& CScriptedPlatform::Ask(EQuestion question) {
    m_arrAsked.emplace_back().question = question;
    return m_arrAsked.back();
}

EBoxAnswer CScriptedPlatform::Show(const CMessageBox& box) {
    m_arrBoxes.push_back(box);
    EBoxAnswer answerDefault = EBoxAnswer::Ok;
    if (box.buttons == EBoxButtons::OkCancel) answerDefault = EBoxAnswer::Cancel;
    if (box.buttons == EBoxButtons::YesNo) answerDefault = EBoxAnswer::No;
    const std::optional<CAnswer> answer = TakeAnswer(EQuestion::Box);
    if (!answer) return answerDefault;
    const bool bYesNo = answer->box == EBoxAnswer::Yes || answer->box == EBoxAnswer::No;
    const bool bHasButton = bYesNo ? box.buttons == EBoxButtons::YesNo
                                   : box.buttons == EBoxButtons::OkCancel || answer->box == answerDefault;
    if (bHasButton) return answer->box;
    m_arrProblems.push_back({EProblem::Impossible, "the box \"" + box.strText + "\" has no such button"});
    return answerDefault;
}

int CScriptedPlatform::Run(CDialog& dialog) {
    const int nDialog = dialog.Template().nId;
    Ask(EQuestion::Modal).nDialog = nDialog;
    CPlayHost host(*this, dialog, m_pBitmaps);
    host.Init();
    const auto it = m_mapRunners.find(nDialog);
    if (it != m_mapRunners.end() && it->second)
        it->second(host);
    else
        TakeAnswer(EQuestion::Modal);
    if (!dialog.HasEnded()) dialog.OnClose();
    dialog.EndDialog(CDialog::kDialogCancel);
    return dialog.EndCode();
}

// A name may be typed in a folder that is not there: the process then stays where it is, and the program
// finds out.
CFileChoice CScriptedPlatform::EnterFolderOf(const std::string& strPath) {
    const fs::path path(strPath);
    std::error_code error;
    fs::current_path(path.parent_path(), error);
    return {strPath, path.filename().string()};
}

std::optional<CFileChoice> CScriptedPlatform::RunOpen(const CFileDialogRequest& request,
                                                      CFileDialogPanel* pPanel) {
    CAsked& asked = Ask(EQuestion::Open);
    asked.request = request;
    std::optional<CPlayHost> host;
    if (pPanel != nullptr) {
        asked.nDialog = pPanel->Template().nId;
        host.emplace(*this, *pPanel, m_pBitmaps).Init();
    }
    const std::optional<CAnswer> answer = TakeAnswer(EQuestion::Open);
    if (!answer) return std::nullopt;
    // The user clicks the file before he takes it.
    if (pPanel != nullptr) pPanel->OnFileNameChange(answer->strPath);
    PaintAll();
    return EnterFolderOf(answer->strPath);
}

std::optional<CFileChoice> CScriptedPlatform::RunSave(const CFileDialogRequest& request) {
    Ask(EQuestion::Save).request = request;
    const std::optional<CAnswer> answer = TakeAnswer(EQuestion::Save);
    if (!answer) return std::nullopt;
    return EnterFolderOf(answer->strPath);
}

std::optional<CColor> CScriptedPlatform::Run(CColor colorStart) {
    Ask(EQuestion::Color).colorStart = colorStart;
    const std::optional<CAnswer> answer = TakeAnswer(EQuestion::Color);
    return answer ? std::optional(answer->color) : std::nullopt;
}

std::optional<CFontChoice> CScriptedPlatform::Run(const CFontChoice& start) {
    Ask(EQuestion::Font).fontStart = start;
    const std::optional<CAnswer> answer = TakeAnswer(EQuestion::Font);
    return answer ? std::optional(answer->font) : std::nullopt;
}

int CScriptedPlatform::Track(std::span<const CMenuItem> arrItems) {
    Ask(EQuestion::Menu).arrItems.assign(arrItems.begin(), arrItems.end());
    const std::optional<CAnswer> answer = TakeAnswer(EQuestion::Menu);
    if (!answer) return 0;
    const auto it = std::find_if(arrItems.begin(), arrItems.end(),
                                 [&](const CMenuItem& item) { return item.nId == answer->nMenuId; });
    if (it != arrItems.end() && it->bEnabled) return answer->nMenuId;
    m_arrProblems.push_back(
        {EProblem::Impossible, "menu item " + std::to_string(answer->nMenuId) +
                                   (it == arrItems.end() ? " is not there" : " is grey")});
    return 0;
}

// --- the rest ---

void CScriptedPlatform::Begin() {
    if (m_nWaitDepth++ == 0) ++m_nWaitCount;
}

void CScriptedPlatform::End() {
    --m_nWaitDepth;
}

bool CScriptedPlatform::SetBitmap(std::span<const std::uint8_t> arrDib) try {
    m_clipboard.emplace(arrDib.begin(), arrDib.end());
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

std::string CScriptedPlatform::CurrentFolder() const {
    std::error_code error;
    return fs::current_path(error).string();
}

// The program opens browsed files by their bare names, so the process itself has to be there.
bool CScriptedPlatform::SetCurrentFolder(const std::string& strFolder) {
    std::error_code error;
    fs::current_path(strFolder, error);
    return !error;
}

// Every character is a block that leaves a rim of its cell free: half as wide as high, or square beyond
// ASCII. Enough to see where text goes, and the same on every machine.
CTextMask CScriptedPlatform::Rasterize(const CTextFont& font, const std::string& strText) {
    CTextMask mask;
    if (font.nHeight <= 0) return mask;
    std::vector<int> arrWidths;
    for (const char c : strText) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0U) == 0x80U) continue;
        arrWidths.push_back(byte < 0x80 ? (font.nHeight + 1) / 2 : font.nHeight);
        mask.nWidth += arrWidths.back();
    }
    if (arrWidths.empty()) return {};
    mask.nHeight = font.nHeight;
    mask.coverage.assign(static_cast<std::size_t>(mask.nWidth) * static_cast<std::size_t>(mask.nHeight), 0);
    const int nRim = font.nHeight / 8;
    std::size_t nRow = 0;
    for (int y = 0; y < mask.nHeight; ++y, nRow += static_cast<std::size_t>(mask.nWidth)) {
        if (y < nRim || y >= mask.nHeight - nRim) continue;
        std::size_t nLeft = nRow;
        for (const int nWidth : arrWidths) {
            std::fill_n(mask.coverage.begin() + static_cast<std::ptrdiff_t>(nLeft) + nRim,
                        std::max(0, nWidth - 2 * nRim), std::uint8_t{255});
            nLeft += static_cast<std::size_t>(nWidth);
        }
    }
    return mask;
}
