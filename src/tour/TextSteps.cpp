// FONT: words on a photograph, shaped by the hand.

#include <memory>

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

struct CSeen {
    QImage imageLast;
    QImage imageBare;
};
using CSeenPtr = std::shared_ptr<CSeen>;

QString CheckNew(const CPerson& person, CSeen& seen) {
    if (person.Asking() != nullptr) return person.AskedText();
    const QImage image = person.LookAt(kCanvas);
    if (!ShowsPhotograph(person)) return QStringLiteral("the canvas shows no photograph");
    if (!Differs(image, seen.imageLast)) return QStringLiteral("the canvas shows the same as before");
    seen.imageLast = image;
    return {};
}

CTourStep Changes(const char* szName, const char* szTells, std::function<void(CPerson&)> fnDo,
                  const CSeenPtr& pSeen) {
    return {szName, szTells, std::move(fnDo), [pSeen](CPerson& person) { return CheckNew(person, *pSeen); }};
}

CTourStep Words(const char* szName, const char* szTells, const char* szWords, const CSeenPtr& pSeen) {
    return Changes(
        szName, szTells,
        [szWords](CPerson& person) {
            person.TypeOver(kTextInput, szWords);
            person.Click(kTextApply);
        },
        pSeen);
}

CTourStep Stroke(const char* szName, const char* szTells, QPoint ptFrom, QPoint ptTo, const CSeenPtr& pSeen,
                 Qt::KeyboardModifiers keys = Qt::NoModifier) {
    return Changes(
        szName, szTells,
        [=](CPerson& person) {
            CPencil(person, kShown, keys).Stroke({ptFrom, ptTo});
        },
        pSeen);
}

CTourStep Style(const char* szName, const char* szTells, int nRow, const CSeenPtr& pSeen) {
    return Changes(
        szName, szTells, [nRow](CPerson& person) { person.ClickPicture(kTextEffectList, nRow); }, pSeen);
}

void AddShapes(CSteps& steps, const CSeenPtr& pSeen) {
    steps.push_back(Stroke("text-corner", "a corner dragged: the words in perspective", kTopRight,
                           kTopRight + QPoint(90, -110), pSeen));
    steps.push_back(Stroke("text-moved", "dragged off the corners the whole moves", kMiddle,
                           kMiddle + QPoint(-40, 90), pSeen));
    steps.push_back(Stroke("text-anew", "with Shift the shape is drawn anew", QPoint(60, 60),
                           QPoint(590, 190), pSeen, Qt::ShiftModifier));
    steps.push_back(Changes(
        "text-mesh", "the mesh, where the words have not been yet",
        [](CPerson& person) { person.Click(kLabelMesh); }, pSeen));
    steps.push_back(Stroke("text-bent", "one of its points dragged: the words bend",
                           kTopLeft + QPoint(108, 40), kTopLeft + QPoint(120, 90), pSeen));
}

void AddStyles(CSteps& steps, const CSeenPtr& pSeen) {
    steps.push_back(Style("text-shaded", "the words in relief", 1, pSeen));
    steps.push_back(Style("text-outlined", "their outline only", 2, pSeen));
    steps.push_back(Style("text-reversed", "a box with the words left out", 3, pSeen));
    steps.push_back(Style("text-plain", "plain words again", 0, pSeen));
    steps.push_back(Words("text-chinese", "words in Chinese", "万家灯火", pSeen));
    steps.push_back(Words("text-korean", "words in Korean", "한국어 사진", pSeen));
    steps.push_back(Changes(
        "text-no-lines", "the lines of the shape are hidden",
        [](CPerson& person) { person.Click(kLabelLines); }, pSeen));
}

}  // namespace

void AddText(CSteps& steps) {
    const auto pSeen = std::make_shared<CSeen>();
    steps.push_back({"text", "FONT: the shape of the words stands over the photograph",
                     [pSeen](CPerson& person) {
                         pSeen->imageBare = person.LookAt(kCanvas);
                         person.Click(kTabFont);
                     },
                     [pSeen](CPerson& person) { return CheckNew(person, *pSeen); }});
    steps.push_back(Words("text-words", "words are typed and applied", "Lanterns", pSeen));
    AddShapes(steps, pSeen);
    AddStyles(steps, pSeen);
    steps.push_back(Changes(
        "text-lines", "and shown again", [](CPerson& person) { person.Click(kLabelLines); }, pSeen));
    steps.push_back(Tab("text-left", "EFFECT: the words belong to the picture", kTabEffect,
                        [](CPerson& person) { return Unless(ShowsPhotograph(person), "no picture"); }));
    steps.push_back(Tab("text-back", "FONT again, with a shape at its start", kTabFont,
                        [pSeen](CPerson& person) { return CheckNew(person, *pSeen); }));
    steps.push_back(Changes(
        "text-undo", "its steps taken back: the photograph without words",
        [](CPerson& person) {
            for (int i = 0; i < kSteps; ++i) person.Click(kCmdUndo);
        },
        pSeen));
    steps.push_back(Tab("text-done", "EFFECT again, as before", kTabEffect, [pSeen](CPerson& person) {
        return Unless(!Differs(person.LookAt(kCanvas), pSeen->imageBare), "words are left");
    }));
}
