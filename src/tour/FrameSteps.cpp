// STICK: frames around a photograph.

#include "resources/Ids.h"
#include "tour/Screen.h"
#include "tour/StepTools.h"

namespace {

constexpr int kListColors = 300;  // the frame list has more once it shows its pictures

struct CFrameLooks : CLooks {
    QImage imageFramed;  // with the last frame
};
using CFrameLooksPtr = std::shared_ptr<CFrameLooks>;

// Something new, and a step to take back.
QString CheckStep(const CPerson& person, CLooks& looks) {
    const QString strWrong = CheckNew(person, looks);
    return strWrong.isEmpty() ? CheckKeys(person, {kCmdUndo}, {}) : strWrong;
}

CTourStep Frame(const char* szName, const char* szTells, int nItem, const CFrameLooksPtr& pLooks) {
    return {szName, szTells, [nItem](CPerson& person) { person.ClickPicture(kFrameList, nItem); },
            [pLooks](CPerson& person) { return CheckStep(person, *pLooks); }};
}

CTourStep Bare(const char* szName, const char* szTells, const CFrameLooksPtr& pLooks) {
    return {szName, szTells,
            [pLooks](CPerson& person) {
                pLooks->imageFramed = person.LookAt(kCanvas);
                person.ClickPicture(kFrameList, 0);
            },
            [pLooks](CPerson& person) {
                pLooks->imageLast = person.LookAt(kCanvas);
                return Unless(!Differs(pLooks->imageLast, pLooks->imageBare), "something of a frame is left");
            }};
}

void AddTurned(CSteps& steps, const CFrameLooksPtr& pLooks) {
    steps.push_back({"frame-turn", "a quarter turn with a frame on",
                     [](CPerson& person) { person.Click(kCmdTurnLeft); },
                     [pLooks](CPerson& person) { return CheckStep(person, *pLooks); }});
    steps.push_back(
        Frame("frame-turned", "another frame stands upright around the turned picture", 5, pLooks));
    steps.push_back({"frame-turn-back", "turned back: that frame lies on its side",
                     [](CPerson& person) { person.Click(kCmdTurnRight); },
                     [pLooks](CPerson& person) { return CheckStep(person, *pLooks); }});
    steps.push_back(Bare("frame-turned-none", "no frame: the picture as it was before all of them", pLooks));
}

void AddPhoneSize(CSteps& steps, const CFrameLooksPtr& pLooks) {
    steps.push_back({"frame-phone", "the phone's screen size: 176 by 144",
                     [](CPerson& person) { person.Click(kLabelPhoneSize); },
                     [](CPerson& person) {
                         return Unless(person.TextOf(kInfoSize).contains("176X144"), "wrong size line");
                     }});
    steps.push_back({"frame-phone-framed", "a frame at that size",
                     [pLooks](CPerson& person) {
                         pLooks->imageLast = person.LookAt(kCanvas);
                         person.ClickPicture(kFrameList, 8);
                     },
                     [pLooks](CPerson& person) {
                         if (!Differs(person.LookAt(kCanvas), pLooks->imageLast))
                             return QStringLiteral("the canvas shows the same as before");
                         return Unless(person.TextOf(kInfoSize).contains("176X144"), "wrong size line");
                     }});
    steps.push_back({"frame-own-size", "the picture's size again: the frame is around all of it",
                     [](CPerson& person) { person.Click(kLabelImageSize); },
                     [pLooks](CPerson& person) { return CheckStep(person, *pLooks); }});
    steps.push_back(Bare("frame-none-again", "no frame", pLooks));
}

}  // namespace

void AddFrames(CSteps& steps) {
    const auto pLooks = std::make_shared<CFrameLooks>();
    steps.push_back(Tab("frames", "STICK: the list shows its frames", kTabStick, [pLooks](CPerson& person) {
        pLooks->imageBare = pLooks->imageLast = person.LookAt(kCanvas);
        return Unless(CountColors(person.LookAt(kFrameList), kListColors) >= kListColors,
                      "the list is empty");
    }));
    steps.push_back(Frame("frame-1", "a frame around the photograph", 1, pLooks));
    steps.push_back(Frame("frame-7", "another in its place", 7, pLooks));
    steps.push_back(Frame("frame-12", "the last of the list, scrolled to", 12, pLooks));
    steps.push_back({"frame-key", "the arrow to the left: the frame before",
                     [](CPerson& person) { person.Key(Qt::Key_Left); },
                     [pLooks](CPerson& person) { return CheckStep(person, *pLooks); }});
    steps.push_back(Bare("frame-none", "no frame: the photograph as it was", pLooks));
    steps.push_back(
        {"frame-undo", "Undo: the last frame is back", [](CPerson& person) { person.Click(kCmdUndo); },
         [pLooks](CPerson& person) {
             pLooks->imageLast = person.LookAt(kCanvas);
             return Unless(!Differs(pLooks->imageLast, pLooks->imageFramed), "not the last frame");
         }});
    AddTurned(steps, pLooks);
    AddPhoneSize(steps, pLooks);
    steps.push_back(Tab("frames-done", "EFFECT again", kTabEffect,
                        [](CPerson& person) { return Unless(ShowsPhotograph(person), "no picture"); }));
}
