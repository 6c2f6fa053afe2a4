// What the user says to boxes and dialogs.

#include <algorithm>
#include <array>

#include "play/Verbs.h"

namespace {

bool TakeBox(const CWords& arrWords, CAnswer& answer) {
    constexpr std::array kButtons = {std::pair{"ok", EBoxAnswer::Ok}, std::pair{"cancel", EBoxAnswer::Cancel},
                                     std::pair{"yes", EBoxAnswer::Yes}, std::pair{"no", EBoxAnswer::No}};
    answer.question = EQuestion::Box;
    for (const auto& [szName, button] : kButtons) {
        if (arrWords.size() != 2 || arrWords[1] != szName) continue;
        answer.box = button;
        return true;
    }
    return false;
}

bool TakePath(const CStage& stage, const CWords& arrWords, CAnswer& answer) {
    if (arrWords.size() != 2 || arrWords[1].empty()) return false;
    answer.question = arrWords[0] == "open" ? EQuestion::Open : EQuestion::Save;
    answer.strPath = stage.PathOf(arrWords[1]);
    return true;
}

bool TakeColor(const CWords& arrWords, CAnswer& answer) {
    const std::optional<CColor> color = arrWords.size() == 2 ? ParseColor(arrWords[1]) : std::nullopt;
    if (!color) return false;
    answer.question = EQuestion::Color;
    answer.color = *color;
    return true;
}

bool TakeFont(const CWords& arrWords, CAnswer& answer) {
    if (arrWords.size() != 3 || (arrWords[2] != "regular" && arrWords[2] != "bold")) return false;
    answer.question = EQuestion::Font;
    answer.font = {arrWords[1], arrWords[2] == "bold"};
    return true;
}

// What stands in the edits may be any text.
bool TakeSize(const CWords& arrWords, CAnswer& answer) {
    answer.question = EQuestion::Size;
    if (arrWords.size() == 3) {
        answer.strWidth = arrWords[1];
        answer.strHeight = arrWords[2];
        return true;
    }
    answer.bKeepRatio = arrWords.size() == 4 && arrWords[1] == "keep";
    if (!answer.bKeepRatio || (arrWords[2] != "width" && arrWords[2] != "height")) return false;
    (arrWords[2] == "width" ? answer.strWidth : answer.strHeight) = arrWords[3];
    return true;
}

bool TakeDelete(const CWords& arrWords, CAnswer& answer) {
    answer.question = EQuestion::Delete;
    answer.bDelete = arrWords.size() == 2 && arrWords[1] == "yes";
    return answer.bDelete || (arrWords.size() == 2 && arrWords[1] == "no");
}

bool TakeMenu(const CWords& arrWords, CAnswer& answer) {
    const std::optional<int> nId = arrWords.size() == 2 ? ParseNumber(arrWords[1]) : std::nullopt;
    if (!nId) return false;
    answer.question = EQuestion::Menu;
    answer.nMenuId = *nId;
    return true;
}

bool TakeNumber(const CWords& arrWords, EQuestion question, int CAnswer::*pNumber, int nLeast,
                CAnswer& answer) {
    const std::optional<int> n = arrWords.size() == 2 ? ParseNumber(arrWords[1]) : std::nullopt;
    answer.question = question;
    answer.*pNumber = n.value_or(0);
    return n && *n >= nLeast;
}

// Rows alone are ticked and taken; anything else is done word by word.
bool TakePhoneFiles(const CWords& arrWords, CAnswer& answer) {
    answer.question = EQuestion::PhoneFiles;
    const auto isNumber = [](const std::string& strWord) { return ParseNumber(strWord).has_value(); };
    if (arrWords.size() > 1 && std::all_of(arrWords.begin() + 1, arrWords.end(), isNumber)) {
        for (std::size_t i = 1; i < arrWords.size(); ++i) answer.arrSteps.push_back("tick " + arrWords[i]);
        answer.arrSteps.emplace_back("ok");
        return true;
    }
    for (std::size_t i = 1; i < arrWords.size(); ++i) {
        const std::string& strWord = arrWords[i];
        std::string strStep = strWord;
        if (strWord == "sort" || strWord == "tick" || strWord == "wait") {
            if (++i >= arrWords.size() || !isNumber(arrWords[i])) return false;
            strStep.append(1, ' ').append(arrWords[i]);
        } else if (strWord != "all" && strWord != "none" && strWord != "ok" && strWord != "cancel") {
            return false;
        }
        answer.arrSteps.push_back(std::move(strStep));
    }
    return !answer.arrSteps.empty();
}

bool TakePrint(const CWords& arrWords, CAnswer& answer) {
    constexpr std::array<std::string_view, 4> kSteps = {"stamp", "ok", "cancel", "ready"};
    answer.question = EQuestion::Print;
    answer.arrSteps.assign(arrWords.begin() + 1, arrWords.end());
    return !answer.arrSteps.empty() && std::ranges::all_of(answer.arrSteps, [&](const std::string& strStep) {
        return std::ranges::find(kSteps, strStep) != kSteps.end();
    });
}

bool TakeAnswerWords(const CStage& stage, const CWords& arrWords, CAnswer& answer) {
    const std::string& strKind = arrWords[0];
    if (strKind == "box") return TakeBox(arrWords, answer);
    if (strKind == "open" || strKind == "save") return TakePath(stage, arrWords, answer);
    if (strKind == "color") return TakeColor(arrWords, answer);
    if (strKind == "font") return TakeFont(arrWords, answer);
    if (strKind == "size") return TakeSize(arrWords, answer);
    if (strKind == "delete") return TakeDelete(arrWords, answer);
    if (strKind == "menu") return TakeMenu(arrWords, answer);
    if (strKind == "port") return TakeNumber(arrWords, EQuestion::Port, &CAnswer::nPort, 1, answer);
    if (strKind == "phonesize") return TakeNumber(arrWords, EQuestion::PhoneSize, &CAnswer::nRow, 0, answer);
    if (strKind == "phonefiles") return TakePhoneFiles(arrWords, answer);
    if (strKind == "print") return TakePrint(arrWords, answer);
    answer.bCancel = true;
    return strKind == "cancel" && arrWords.size() == 1;
}

std::string Answer(CStage& stage, const CWords& arrWords) {
    CAnswer answer;
    answer.nLine = stage.nLine;
    if (!TakeAnswerWords(stage, arrWords, answer)) return "there is no such answer";
    stage.platform.Answer(std::move(answer));
    return {};
}

constexpr int kMostWords = 1000;

constexpr CVerb kVerbs[] = {
    {"answer", "box ok|cancel|yes|no", 1, kMostWords, Answer,
     "Waits for the next question of its kind. Questions that find no answer take their default: a box Ok, "
     "Cancel or No, every other one Cancel.",
     "answer box yes"},
    {"answer", "open PATH", 1, kMostWords, Answer, "A file for the open dialog.", "answer open ../海边.jpg"},
    {"answer", "save PATH", 1, kMostWords, Answer, "A file for the save dialog.", "answer save small.jpg"},
    {"answer", "color RRGGBB", 1, kMostWords, Answer, "A colour for the colour dialog.",
     "answer color ff8000"},
    {"answer", "font FACE regular|bold", 1, kMostWords, Answer, "A face for the font dialog.",
     "answer font 黑体 bold"},
    {"answer", "size W H", 1, kMostWords, Answer,
     "What is typed into the size dialog as width and height, with the ratio not kept. Any text will do.",
     "answer size 320 240"},
    {"answer", "size keep width|height N", 1, kMostWords, Answer,
     "What is typed into the size dialog as width or height, with the ratio kept.",
     "answer size keep width 320"},
    {"answer", "delete yes|no", 1, kMostWords, Answer,
     "For the system's own question before it deletes files, which comes for several and with shift.",
     "answer delete yes"},
    {"answer", "menu ID", 1, kMostWords, Answer, "An item for the menu of a right click.",
     "answer menu 32785"},
    {"answer", "port N", 1, kMostWords, Answer, "COMN in the dialog that asks for the phone's port.",
     "answer port 3"},
    {"answer", "phonefiles ROW...", 1, kMostWords, Answer,
     "Ticks these rows of the phone's files, which count from 0, and takes them.", "answer phonefiles 0 2"},
    {"answer", "phonefiles WORD...", 1, kMostWords, Answer,
     "What the hand does there, in order: sort C (by column 0 to 2), tick R (the row as it stands then), "
     "all, "
     "none, wait MS, ok, cancel. What still stands behind the last word is cancelled.",
     "answer phonefiles sort 2 tick 0 ok"},
    {"answer", "phonesize ROW", 1, kMostWords, Answer,
     "A row of the phone's sizes for the picture to be sent; they count from 0.", "answer phonesize 0"},
    {"answer", "print [stamp] ok|cancel", 1, kMostWords, Answer,
     "What the hand does in the print preview: prints, with Ok or Cancel in the print dialog, and ticks the "
     "date before. Words may be more, in any order, and ready among them, which heals the printer in "
     "between; "
     "a preview that still stands behind the last word is cancelled.",
     "answer print stamp ok"},
    {"answer", "cancel", 1, kMostWords, Answer,
     "Leaves the next question without a choice, of whatever kind it is but a box.", "answer cancel"},
};

}  // namespace

std::span<const CVerb> AnswerVerbs() {
    return kVerbs;
}
