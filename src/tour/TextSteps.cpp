// FONT: words on a photograph, shaped by the hand.

#include "resources/Ids.h"
#include "tour/Pencil.h"
#include "tour/Screen.h"
#include "tour/StepTools.h"

namespace {

// A photograph of 1280 by 960 pixels as FONT shows it, and the corners of the words' shape at their start.
constexpr QSize kShown(653, 490);
constexpr QPoint kTopLeft(163, 184);
constexpr QPoint kTopRight(489, 184);
constexpr QPoint kMiddle(326, 245);

constexpr int kSteps = 7;  // words three times, styles four times

CTourStep Changes(const char* szName, const char* szTells, std::function<void(CPerson&)> fnDo,
                  const CLooksPtr& pLooks) {
    return {szName, szTells, std::move(fnDo),
            [pLooks](CPerson& person) { return CheckNew(person, *pLooks); }};
}

CTourStep Words(const char* szName, const char* szTells, const char* szWords, const CLooksPtr& pLooks) {
    return Changes(
        szName, szTells,
        [szWords](CPerson& person) {
            person.TypeOver(kTextInput, szWords);
            person.Click(kTextApply);
        },
        pLooks);
}

CTourStep Stroke(const char* szName, const char* szTells, QPoint ptFrom, QPoint ptTo, const CLooksPtr& pLooks,
                 Qt::KeyboardModifiers keys = Qt::NoModifier) {
    return Changes(
        szName, szTells,
        [=](CPerson& person) {
            CPencil(person, kShown, keys).Stroke({ptFrom, ptTo});
        },
        pLooks);
}

CTourStep Style(const char* szName, const char* szTells, int nRow, const CLooksPtr& pLooks) {
    return Changes(
        szName, szTells, [nRow](CPerson& person) { person.ClickPicture(kTextEffectList, nRow); }, pLooks);
}

void AddShapes(CSteps& steps, const CLooksPtr& pLooks) {
    steps.push_back(Stroke("text-corner", "a corner dragged: the words in perspective", kTopRight,
                           kTopRight + QPoint(90, -110), pLooks));
    steps.push_back(Stroke("text-moved", "dragged off the corners the whole moves", kMiddle,
                           kMiddle + QPoint(-40, 90), pLooks));
    steps.push_back(Stroke("text-anew", "with Shift the shape is drawn anew", QPoint(60, 60),
                           QPoint(590, 190), pLooks, Qt::ShiftModifier));
    steps.push_back(Changes(
        "text-mesh", "the mesh, where the words have not been yet",
        [](CPerson& person) { person.Click(kLabelMesh); }, pLooks));
    steps.push_back(Stroke("text-bent", "one of its points dragged: the words bend",
                           kTopLeft + QPoint(108, 40), kTopLeft + QPoint(120, 90), pLooks));
}

void AddStyles(CSteps& steps, const CLooksPtr& pLooks) {
    steps.push_back(Style("text-shaded", "the words in relief", 1, pLooks));
    steps.push_back(Style("text-outlined", "their outline only", 2, pLooks));
    steps.push_back(Style("text-reversed", "a box with the words left out", 3, pLooks));
    steps.push_back(Style("text-plain", "plain words again", 0, pLooks));
    steps.push_back(Words("text-chinese", "words in Chinese", "万家灯火", pLooks));
    steps.push_back(Words("text-korean", "words in Korean", "한국어 사진", pLooks));
    steps.push_back(Changes(
        "text-no-lines", "the lines of the shape are hidden",
        [](CPerson& person) { person.Click(kLabelLines); }, pLooks));
}

}  // namespace

void AddText(CSteps& steps) {
    const auto pLooks = std::make_shared<CLooks>();
    steps.push_back({"text", "FONT: the shape of the words stands over the photograph",
                     [pLooks](CPerson& person) {
                         pLooks->imageBare = person.LookAt(kCanvas);
                         person.Click(kTabFont);
                     },
                     [pLooks](CPerson& person) { return CheckNew(person, *pLooks); }});
    steps.push_back(Words("text-words", "words are typed and applied", "Lanterns", pLooks));
    AddShapes(steps, pLooks);
    AddStyles(steps, pLooks);
    steps.push_back(Changes(
        "text-lines", "and shown again", [](CPerson& person) { person.Click(kLabelLines); }, pLooks));
    steps.push_back(Tab("text-left", "EFFECT: the words belong to the picture", kTabEffect,
                        [](CPerson& person) { return Unless(ShowsPhotograph(person), "no picture"); }));
    steps.push_back(Tab("text-back", "FONT again, with a shape at its start", kTabFont,
                        [pLooks](CPerson& person) { return CheckNew(person, *pLooks); }));
    steps.push_back(Changes(
        "text-undo", "its steps taken back: the photograph without words",
        [](CPerson& person) {
            for (int i = 0; i < kSteps; ++i) person.Click(kCmdUndo);
        },
        pLooks));
    steps.push_back(Tab("text-done", "EFFECT again, as before", kTabEffect, [pLooks](CPerson& person) {
        return Unless(!Differs(person.LookAt(kCanvas), pLooks->imageBare), "words are left");
    }));
}
