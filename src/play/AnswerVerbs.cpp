// What the user says to boxes and dialogs.

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

bool TakeAnswerWords(const CStage& stage, const CWords& arrWords, CAnswer& answer) {
    const std::string& strKind = arrWords[0];
    if (strKind == "box") return TakeBox(arrWords, answer);
    if (strKind == "open" || strKind == "save") return TakePath(stage, arrWords, answer);
    if (strKind == "color") return TakeColor(arrWords, answer);
    if (strKind == "font") return TakeFont(arrWords, answer);
    if (strKind == "size") return TakeSize(arrWords, answer);
    if (strKind == "delete") return TakeDelete(arrWords, answer);
    if (strKind == "menu") return TakeMenu(arrWords, answer);
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

constexpr CVerb kVerbs[] = {
    {"answer", "box ok|cancel|yes|no", 1, 4, Answer,
     "Waits for the next question of its kind. Questions that find no answer take their default: a box Ok, "
     "Cancel or No, every other one Cancel.",
     "answer box yes"},
    {"answer", "open PATH", 1, 4, Answer, "A file for the open dialog.", "answer open ../海边.jpg"},
    {"answer", "save PATH", 1, 4, Answer, "A file for the save dialog.", "answer save small.jpg"},
    {"answer", "color RRGGBB", 1, 4, Answer, "A colour for the colour dialog.", "answer color ff8000"},
    {"answer", "font FACE regular|bold", 1, 4, Answer, "A face for the font dialog.",
     "answer font 黑体 bold"},
    {"answer", "size W H", 1, 4, Answer,
     "What is typed into the size dialog as width and height, with the ratio not kept. Any text will do.",
     "answer size 320 240"},
    {"answer", "size keep width|height N", 1, 4, Answer,
     "What is typed into the size dialog as width or height, with the ratio kept.",
     "answer size keep width 320"},
    {"answer", "delete yes|no", 1, 4, Answer,
     "For the system's own question before it deletes files, which comes for several and with shift.",
     "answer delete yes"},
    {"answer", "menu ID", 1, 4, Answer, "An item for the menu of a right click.", "answer menu 32785"},
    {"answer", "cancel", 1, 4, Answer,
     "Leaves the next question without a choice, of whatever kind it is but a box.", "answer cancel"},
};

}  // namespace

std::span<const CVerb> AnswerVerbs() {
    return kVerbs;
}
