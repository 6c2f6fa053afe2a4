// What the user does with mouse and keyboard.

#include <array>

#include "play/Verbs.h"
#include "resources/Ids.h"

namespace {

constexpr std::array<int, 5> kTabs = {kTabThum, kTabDraw, kTabEffect, kTabFont, kTabStick};

// Opens what a double click on that name in the file list would: the name's ending decides, also for a
// folder.
std::string Open(CStage& stage, const CWords& arrWords) {
    const std::filesystem::path path = stage.PathOf(arrWords[0]);
    const std::string strName = path.filename().string();
    std::error_code error;
    if (!std::filesystem::exists(path, error)) return "there is no file " + Quote(path.string());
    if (FindImageTypeOfName(strName) == ImageType::kUnknown) return NotA(strName, "name of a picture");
    if (!stage.platform.Get().folders.SetCurrentFolder(path.parent_path().string()))
        return Quote(path.parent_path().string()) + " cannot be entered";
    stage.dialog.OpenFileByName(path.parent_path().string(), strName);
    return stage.host.Pump() ? std::string{} : "the window never stops painting";
}

// A menu item is chosen by a right click on the picture.
std::string ChooseMenuItem(CStage& stage, int nId) {
    const CEditState& state = stage.dialog.State();
    constexpr char kNoMenu[] = "no menu comes up here";
    // There a right press is not for the menu.
    if (!state.m_bImageOpen || state.IsUp(EMode::Draw) || state.IsUp(EMode::Font)) return kNoMenu;
    CAnswer answer;
    answer.question = EQuestion::Menu;
    answer.nMenuId = nId;
    stage.platform.AnswerNext(answer);
    const CSize size = stage.dialog.Canvas().ClientSize();
    const CPoint pt{size.cx / 2, size.cy / 2};
    stage.platform.TakeAsked();
    for (const EMouseAction action : {EMouseAction::Press, EMouseAction::Release}) {
        std::string strWhy = stage.host.MouseOnView(kCanvas, action, EMouseButton::Right, pt);
        if (!strWhy.empty()) return strWhy;
    }
    for (const CAsked& asked : stage.platform.TakeAsked())
        if (asked.question == EQuestion::Menu) return {};
    stage.platform.TakeAnswer(EQuestion::Menu);
    return kNoMenu;
}

std::string Command(CStage& stage, const CWords& arrWords) {
    const std::optional<int> nId = ParseNumber(arrWords[0]);
    if (!nId) return NotA(arrWords[0], "number of a control");
    return *nId >= kMenuSize && *nId <= kMenuActual ? ChooseMenuItem(stage, *nId) : stage.host.Click(*nId);
}

std::string Mode(CStage& stage, const CWords& arrWords) {
    const std::optional<int> nMode = ParseNumber(arrWords[0]);
    if (!nMode || *nMode < 0 || *nMode >= static_cast<int>(kTabs.size())) return NotA(arrWords[0], "mode");
    if (stage.dialog.State().IsUp(static_cast<EMode>(*nMode))) return "that mode is up already";
    return stage.host.Click(kTabs[static_cast<std::size_t>(*nMode)]);
}

std::string Check(CStage& stage, const CWords& arrWords) {
    const std::optional<int> nId = ParseNumber(arrWords[0]);
    const CControl* pControl = nId ? stage.dialog.Controls().Find(*nId) : nullptr;
    if (pControl == nullptr ||
        (pControl->kind != EControlKind::Check && pControl->kind != EControlKind::Radio))
        return NotA(arrWords[0], "check box or radio button");
    return stage.host.Click(*nId);
}

std::string Select(CStage& stage, const CWords& arrWords) {
    const std::optional<int> nId = ParseNumber(arrWords[0]);
    const std::optional<int> nRow = ParseNumber(arrWords[1]);
    if (!nId || !nRow) return NotA(arrWords[nId ? 1 : 0], "number");
    return stage.host.SelectRow(*nId, *nRow);
}

std::string Slider(CStage& stage, const CWords& arrWords) {
    const std::optional<int> nPos = ParseNumber(arrWords[0]);
    return nPos ? stage.host.MoveSlider(kEffectSlider, *nPos) : NotA(arrWords[0], "number");
}

std::string Text(CStage& stage, const CWords& arrWords) {
    const std::optional<int> nId = ParseNumber(arrWords[0]);
    return nId ? stage.host.Type(*nId, arrWords[1]) : NotA(arrWords[0], "number of a control");
}

std::string Key(CStage& stage, const CWords& arrWords) {
    const std::optional<CKeyEvent> event = ParseChord(arrWords[0]);
    if (!event) return NotA(arrWords[0], "key");
    const CControl* pFocus = stage.dialog.Controls().Find(stage.dialog.Controls().Focus());
    const bool bGrid = pFocus != nullptr && pFocus->kind == EControlKind::PictureGrid;
    const bool bMoves = event->nKey >= kKeySpace && event->nKey <= kKeyDown;
    return bMoves && !bGrid ? "that key is for the frame list" : stage.host.Key(*event);
}

// The words of a mouse event: what, which button, where, with which keys.
struct CMouseWords {
    EMouseAction action = EMouseAction::Move;
    EMouseButton button = EMouseButton::None;
    CPoint pt;
    unsigned nKeys = 0;
};

bool TakeAction(const std::string& strWord, EMouseAction& action) {
    constexpr std::array kActions = {
        std::pair{"press", EMouseAction::Press}, std::pair{"move", EMouseAction::Move},
        std::pair{"release", EMouseAction::Release}, std::pair{"double", EMouseAction::DoubleClick}};
    for (const auto& [szName, value] : kActions) {
        if (strWord != szName) continue;
        action = value;
        return true;
    }
    return false;
}

std::string TakeMouseWords(const CWords& arrWords, CMouseWords& words) {
    if (!TakeAction(arrWords[0], words.action)) return NotA(arrWords[0], "mouse action");
    std::size_t i = 1;
    if (arrWords[i] == "left" || arrWords[i] == "right") {
        words.button = arrWords[i] == "left" ? EMouseButton::Left : EMouseButton::Right;
        ++i;
    }
    if (words.action == EMouseAction::Move && words.button != EMouseButton::None)
        words.nKeys |= words.button == EMouseButton::Left ? kMouseLeftDown : kMouseRightDown;
    if (arrWords.size() < i + 2) return "a place needs two numbers";
    const std::optional<int> x = ParseNumber(arrWords[i]);
    const std::optional<int> y = ParseNumber(arrWords[i + 1]);
    if (!x || !y) return NotA(arrWords[x ? i + 1 : i], "number");
    words.pt = {*x, *y};
    for (i += 2; i < arrWords.size(); ++i) {
        if (arrWords[i] != "shift" && arrWords[i] != "ctrl")
            return NotA(arrWords[i], "key beside shift and ctrl");
        words.nKeys |= arrWords[i] == "shift" ? kMouseShift : kMouseCtrl;
    }
    return {};
}

std::string Mouse(CStage& stage, const CWords& arrWords) {
    CMouseWords words;
    if (std::string strWhy = TakeMouseWords(arrWords, words); !strWhy.empty()) return strWhy;
    return stage.host.MouseOnView(kCanvas, words.action, words.button, words.pt, words.nKeys);
}

std::string Window(CStage& stage, const CWords& arrWords) {
    CMouseWords words;
    if (std::string strWhy = TakeMouseWords(arrWords, words); !strWhy.empty()) return strWhy;
    return stage.host.MouseOnWindow(words.action, words.button, words.pt, words.nKeys);
}

std::string Scroll(CStage& stage, const CWords& arrWords) {
    const std::optional<int> x = ParseNumber(arrWords[0]);
    const std::optional<int> y = ParseNumber(arrWords[1]);
    if (!x || !y) return NotA(arrWords[x ? 1 : 0], "number");
    return stage.host.ScrollView(kCanvas, {*x, *y});
}

std::string Tick(CStage& stage, const CWords& arrWords) {
    const std::optional<int> nMilliseconds = ParseNumber(arrWords[0]);
    if (!nMilliseconds || *nMilliseconds < 0) return NotA(arrWords[0], "number of milliseconds");
    stage.platform.Tick(*nMilliseconds);
    return {};
}

std::string Seed(CStage& stage, const CWords& arrWords) {
    const std::optional<int> nSeed = ParseNumber(arrWords[0]);
    if (!nSeed || *nSeed < 0) return NotA(arrWords[0], "seed");
    stage.dialog.Seed(static_cast<std::uint32_t>(*nSeed));
    return {};
}

constexpr CVerb kVerbs[] = {
    {"open", "PATH", 1, 1, Open, "Opens a picture as a double click in the file list does, in any mode.",
     "open \"照片/海边.jpg\""},
    {"command", "ID", 1, 1, Command,
     "Clicks the button of that number, or chooses the item 32775 to 32785 of the picture's menu by a right "
     "click on the picture. What is hidden, disabled or grey cannot be done.",
     "command 1004"},
    {"mode", "N", 1, 1, Mode,
     "Clicks a tab: 0 THUM, 1 DRAW, 2 EFFECT, 3 FONT, 4 STICK. The active one has no tab to click.",
     "mode 1"},
    {"select", "ID ROW", 2, 2, Select,
     "Clicks a row of a list, or a picture of the frame list; they count from 0. Row -1 is a click beside "
     "all "
     "pictures of a frame or file list.",
     "select 1146 3"},
    {"slider", "POS", 1, 1, Slider,
     "Moves the slider of the effect's level. Its top, the highest level, is the lowest position.",
     "slider -20"},
    {"seed", "N", 1, 1, Seed,
     "Starts the random numbers of the effects and of the airbrush anew, so that a run can be repeated. The "
     "program starts with those of seed 1.",
     "seed 7"},
    {"check", "ID", 1, 1, Check, "Clicks a check box or a radio button.", "check 1188"},
    {"text", "ID STRING", 2, 2, Text,
     "Replaces the text of an edit. What is beyond its most characters does not go in.",
     "text 1051 \"新年快乐\""},
    {"key", "CHORD", 1, 1, Key,
     "Presses a key: a letter, a digit, enter, esc, delete, with ctrl+ and shift+. In the frame list also "
     "left, right, up, down, home, end, pageup, pagedown and space.",
     "key ctrl+z"},
    {"mouse", "press|move|release|double left|right X Y [shift] [ctrl]", 3, 6, Mouse,
     "A mouse event on the canvas, in client pixels of the canvas. A press moves nothing, and a double click "
     "is press, release, double, release. A move needs no button; one that it names counts as held.",
     "mouse press left 120 80 shift"},
    {"window", "press|move|release|double left|right X Y [shift] [ctrl]", 3, 6, Window,
     "The same in client pixels of the main window, beside its controls. Only a move may go over a control: "
     "it brings up the control's hint.",
     "window move 40 30"},
    {"scroll", "X Y", 2, 2, Scroll, "Scrolls the canvas so that this point stands in its top left corner.",
     "scroll 0 240"},
    {"tick", "N", 1, 1, Tick, "Lets N milliseconds pass. Time stands still otherwise.", "tick 1000"},
};

}  // namespace

std::span<const CVerb> HandVerbs() {
    return kVerbs;
}
