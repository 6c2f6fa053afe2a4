// STICK: frames around a photograph.

#include <memory>

#include "resources/Ids.h"
#include "tour/Screen.h"
#include "tour/StepTools.h"

namespace {

constexpr int kListColors = 300;  // the frame list has more once it shows its pictures

// What later steps compare with: the canvas at its last look, without a frame, and with the last frame.
struct CSeen {
    QImage imageLast;
    QImage imageBare;
    QImage imageFramed;
};
using CSeenPtr = std::shared_ptr<CSeen>;

// The canvas shows something else than at the last look, and a photograph.
QString CheckNew(const CPerson& person, CSeen& seen) {
    if (person.Asking() != nullptr) return person.AskedText();
    const QImage image = person.LookAt(kCanvas);
    if (!ShowsPhotograph(person)) return QStringLiteral("the canvas shows no photograph");
    if (!Differs(image, seen.imageLast)) return QStringLiteral("the canvas shows the same as before");
    seen.imageLast = image;
    return CheckKeys(person, {kCmdUndo}, {});
}

CTourStep Frame(const char* szName, const char* szTells, int nItem, const CSeenPtr& pSeen) {
    return {szName, szTells, [nItem](CPerson& person) { person.ClickPicture(kFrameList, nItem); },
            [pSeen](CPerson& person) { return CheckNew(person, *pSeen); }};
}

CTourStep Bare(const char* szName, const char* szTells, const CSeenPtr& pSeen) {
    return {szName, szTells,
            [pSeen](CPerson& person) {
                pSeen->imageFramed = person.LookAt(kCanvas);
                person.ClickPicture(kFrameList, 0);
            },
            [pSeen](CPerson& person) {
                pSeen->imageLast = person.LookAt(kCanvas);
                return Unless(!Differs(pSeen->imageLast, pSeen->imageBare), "something of a frame is left");
            }};
}

void AddTurned(CSteps& steps, const CSeenPtr& pSeen) {
    steps.push_back({"frame-turn", "a quarter turn with a frame on",
                     [](CPerson& person) { person.Click(kCmdTurnLeft); },
                     [pSeen](CPerson& person) { return CheckNew(person, *pSeen); }});
    steps.push_back(
        Frame("frame-turned", "another frame stands upright around the turned picture", 5, pSeen));
    steps.push_back({"frame-turn-back", "turned back: that frame lies on its side",
                     [](CPerson& person) { person.Click(kCmdTurnRight); },
                     [pSeen](CPerson& person) { return CheckNew(person, *pSeen); }});
    steps.push_back(Bare("frame-turned-none", "no frame: the picture as it was before all of them", pSeen));
}

void AddPhoneSize(CSteps& steps, const CSeenPtr& pSeen) {
    steps.push_back({"frame-phone", "the phone's screen size: 176 by 144",
                     [](CPerson& person) { person.Click(kLabelPhoneSize); },
                     [](CPerson& person) {
                         return Unless(person.TextOf(kInfoSize).contains("176X144"), "wrong size line");
                     }});
    steps.push_back({"frame-phone-framed", "a frame at that size",
                     [pSeen](CPerson& person) {
                         pSeen->imageLast = person.LookAt(kCanvas);
                         person.ClickPicture(kFrameList, 8);
                     },
                     [pSeen](CPerson& person) {
                         if (!Differs(person.LookAt(kCanvas), pSeen->imageLast))
                             return QStringLiteral("the canvas shows the same as before");
                         return Unless(person.TextOf(kInfoSize).contains("176X144"), "wrong size line");
                     }});
    steps.push_back({"frame-own-size", "the picture's size again: the frame is around all of it",
                     [](CPerson& person) { person.Click(kLabelImageSize); },
                     [pSeen](CPerson& person) { return CheckNew(person, *pSeen); }});
    steps.push_back(Bare("frame-none-again", "no frame", pSeen));
}

}  // namespace

void AddFrames(CSteps& steps) {
    const auto pSeen = std::make_shared<CSeen>();
    steps.push_back(Tab("frames", "STICK: the list shows its frames", kTabStick, [pSeen](CPerson& person) {
        pSeen->imageBare = pSeen->imageLast = person.LookAt(kCanvas);
        return Unless(CountColors(person.LookAt(kFrameList), kListColors) >= kListColors,
                      "the list is empty");
    }));
    steps.push_back(Frame("frame-1", "a frame around the photograph", 1, pSeen));
    steps.push_back(Frame("frame-7", "another in its place", 7, pSeen));
    steps.push_back(Frame("frame-12", "the last of the list, scrolled to", 12, pSeen));
    steps.push_back({"frame-key", "the arrow to the left: the frame before",
                     [](CPerson& person) { person.Key(Qt::Key_Left); },
                     [pSeen](CPerson& person) { return CheckNew(person, *pSeen); }});
    steps.push_back(Bare("frame-none", "no frame: the photograph as it was", pSeen));
    steps.push_back({"frame-undo", "Undo: the last frame is back",
                     [](CPerson& person) { person.Click(kCmdUndo); },
                     [pSeen](CPerson& person) {
                         pSeen->imageLast = person.LookAt(kCanvas);
                         return Unless(!Differs(pSeen->imageLast, pSeen->imageFramed), "not the last frame");
                     }});
    AddTurned(steps, pSeen);
    AddPhoneSize(steps, pSeen);
    steps.push_back(Tab("frames-done", "EFFECT again", kTabEffect,
                        [](CPerson& person) { return Unless(ShowsPhotograph(person), "no picture"); }));
}
