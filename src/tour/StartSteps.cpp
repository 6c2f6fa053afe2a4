// From the start-up picture on, as long as no picture is open.

#include "qt/DialogView.h"
#include "resources/Ids.h"
#include "tour/Screen.h"
#include "tour/StepTools.h"

void AddStart(CSteps& steps) {
    steps.push_back({"splash", "the start-up picture stands in the middle of the screen", [](CPerson&) {},
                     [](CPerson& person) {
                         CDialogView* pSplash = person.FindWindow(kDlgSplash);
                         if (pSplash == nullptr) return QStringLiteral("no start-up picture");
                         return Unless(CountColors(pSplash->grab().toImage(), 100) >= 100,
                                       "the picture is empty");
                     }});
    steps.push_back({"start", "THUM with no picture: only Open, New and Connect are on", [](CPerson&) {},
                     [](CPerson& person) {
                         if (person.MainWindow() == nullptr)
                             return QStringLiteral("the main window is not up yet");
                         const QString strKeys = CheckKeys(
                             person, {kCmdOpen, kCmdNew, kCmdConnect},
                             {kCmdSave, kCmdPrint, kCmdUndo, kCmdRedo, kCmdReset, kCmdSize, kCmdSend});
                         return strKeys.isEmpty() ? CheckTabs(person, kTabThum) : strKeys;
                     }});
    steps.push_back({"hint", "the mouse rests on Open: its label comes up below the key",
                     [](CPerson& person) { person.Hover(kCmdOpen); },
                     [](CPerson& person) {
                         const QImage strip = person.LookAtWindow().copy(48, 61, 62, 16);
                         return Unless(CountColors(strip, 40) > 12, "no label below the key");
                     }});
    steps.push_back({"hint-gone", "a second later the label has gone by itself", [](CPerson&) {},
                     [](CPerson& person) {
                         const QImage window = person.LookAtWindow();
                         const QImage strip = window.copy(48, 62, 62, 14);
                         return Unless(
                             CountColors(strip, 40) <= CountColors(window.copy(480, 62, 62, 14), 40),
                             "the label still stands");
                     }});
}

void AddEmptyModes(CSteps& steps) {
    const auto noCanvas = [](CPerson& person) {
        if (person.IsSeen(kCanvas)) return QStringLiteral("there is a canvas without a picture");
        return CheckKeys(person, {kCmdOpen, kCmdNew},
                         {kCmdSave, kCmdUndo, kCmdReset, kCmdLarge, kCmdTurnLeft});
    };
    steps.push_back(Tab("empty-effect", "EFFECT without a picture", kTabEffect, noCanvas));
    steps.push_back(Tab("empty-stick", "STICK without a picture", kTabStick, noCanvas));
    steps.push_back(Tab("empty-font", "FONT without a picture", kTabFont, noCanvas));
    steps.push_back(Tab("empty-draw", "DRAW without a picture", kTabDraw, noCanvas));
}
