#include "tour/EffectSteps.h"

#include <QListView>
#include <QTest>
#include <memory>

#include "effect/EffectFlow.h"
#include "qt/DialogView.h"
#include "qt/QtGeometry.h"
#include "resources/Ids.h"
#include "strips/EffectSamples.h"
#include "tour/Screen.h"

namespace {

// What later steps compare with.
struct CSeen {
    QImage imageUntouched;  // the preview at a level that changes nothing
    QImage imageBefore;     // the canvas before CONFIRM
};

QWidget* WidgetOf(const CPerson& person, int nId) {
    return person.MainWindow() == nullptr ? nullptr : person.MainWindow()->WidgetOf(nId);
}

const CControl& ControlOf(const CPerson& person, int nId) {
    return *person.MainWindow()->Dialog().Controls().Find(nId);
}

const CControl& SliderOf(const CPerson& person) {
    return ControlOf(person, kEffectSlider);
}

// A box of what is seen, which has more pixels on a dense screen.
QRect OnScreen(const QImage& image, const QRect& rc) {
    const int nRatio = qRound(image.devicePixelRatio());
    return {rc.topLeft() * nRatio, rc.size() * nRatio};
}

QImage LookAtPreview(const CPerson& person) {
    const QImage image = person.LookAtWindow();
    return image.copy(OnScreen(image, ToQt(ControlOf(person, kEffectPreview).rcPlace)));
}

// What the list's samples show, but for tiles and blocks, which are small on a preview of a large picture.
int LevelOf(int nEffect) {
    const EEffect effect = EffectOf(nEffect);
    const bool bSmall = effect == EEffect::Tile || effect == EEffect::Laminate;
    return bSmall ? RowOf(effect).nMax - 1 : CEffectSamples::LevelOf(nEffect);
}

void ClickRow(CPerson& person, int nRow) {
    auto* pList = qobject_cast<QListView*>(WidgetOf(person, kEffectList));
    if (pList == nullptr) return;
    const QModelIndex row = pList->model()->index(nRow, 0);
    pList->scrollTo(row);
    QTest::mouseClick(pList->viewport(), Qt::LeftButton, Qt::NoModifier, pList->visualRect(row).center());
}

// The middle of the thumb for a position, in the window.
QPoint ThumbAt(const CPerson& person, int nPos) {
    const CControl& slider = SliderOf(person);
    const double t = static_cast<double>(nPos - slider.nMin) / (slider.nMax - slider.nMin);
    return {slider.rcPlace.left + slider.rcPlace.Width() / 2,
            slider.rcPlace.top + 13 + static_cast<int>((slider.rcPlace.Height() - 27) * t)};
}

// Takes the thumb and brings it to the position by several moves of the mouse.
void DragTo(CPerson& person, int nPos) {
    constexpr int kMoves = 6;
    QWidget* pSlider = WidgetOf(person, kEffectSlider);
    const QPoint ptFrom = pSlider->mapFrom(pSlider->window(), ThumbAt(person, SliderOf(person).nPos));
    const QPoint ptTo = pSlider->mapFrom(pSlider->window(), ThumbAt(person, nPos));
    QTest::mousePress(pSlider, Qt::LeftButton, Qt::NoModifier, ptFrom);
    for (int i = 1; i <= kMoves; ++i) QTest::mouseMove(pSlider, ptFrom + (ptTo - ptFrom) * i / kMoves);
    QTest::mouseRelease(pSlider, Qt::LeftButton, Qt::NoModifier, ptTo);
}

// The commands that a preview turns off, and those that it brings.
QString CheckPending(const CPerson& person, bool bPending) {
    for (const int nId : {kCmdNew, kCmdSave, kCmdPrint, kCmdReset, kCmdSize, kCmdTurnLeft, kCmdLarge})
        if (person.IsOn(nId) == bPending) return QStringLiteral("key %1 is wrong").arg(nId);
    for (const int nId : {kConfirm, kCancel})
        if (person.IsOn(nId) != bPending) return QStringLiteral("button %1 is wrong").arg(nId);
    return {};
}

// The row is lit, and no other that is in sight.
QString CheckLit(const CPerson& person, int nRow) {
    const auto* pList = qobject_cast<QListView*>(WidgetOf(person, kEffectList));
    const QImage image = person.LookAt(kEffectList);
    for (int n = 0; n < kEffectCount; ++n) {
        const QRect rc = pList->visualRect(pList->model()->index(n, 0));
        if (!pList->viewport()->rect().contains(rc)) continue;
        const QRect rcSeen = OnScreen(image, rc);
        const QColor crRim = image.pixelColor(rcSeen.left(), rcSeen.center().y());
        if ((crRim.red() - crRim.blue() > 100) != (n == nRow))
            return QStringLiteral("row %1 has the wrong form").arg(n);
    }
    return {};
}

void AddEffect(std::vector<CTourStep>& steps, int nEffect, const std::shared_ptr<CSeen>& pSeen) {
    const CEffectRow& row = kEffects[static_cast<std::size_t>(nEffect)];
    const QString strLabel = QString::fromUtf8(row.szLabel);
    const int nLevel = LevelOf(nEffect);
    const QString strTells = row.bHasLevel
                                 ? strLabel + QStringLiteral(": the level is drawn to %1").arg(nLevel)
                                 : strLabel + QStringLiteral(": chosen in the list");
    steps.push_back({QStringLiteral("effect-%1").arg(nEffect, 2, 10, QLatin1Char('0')), strTells,
                     [nEffect, nLevel, pSeen](CPerson& person) {
                         ClickRow(person, nEffect);
                         if (nEffect == NumberOf(EEffect::Brightness))
                             pSeen->imageUntouched = LookAtPreview(person);
                         const CControl& slider = SliderOf(person);
                         if (slider.bShown) DragTo(person, slider.nMin < 0 ? -nLevel : slider.nMax - nLevel);
                     },
                     [nEffect, &row, pSeen](CPerson& person) {
                         if (!Differs(LookAtPreview(person), pSeen->imageUntouched))
                             return QStringLiteral("the preview shows no effect");
                         if (person.IsOn(kEffectSlider) != row.bHasLevel)
                             return QStringLiteral("the slider is wrong");
                         const QString strLevel = person.TextOf(kEffectLevel);
                         if (strLevel.isEmpty() == row.bHasLevel || strLevel == QLatin1String("0"))
                             return QStringLiteral("the readout says \"%1\"").arg(strLevel);
                         const QString strKeys = CheckPending(person, true);
                         return strKeys.isEmpty() ? CheckLit(person, nEffect) : strKeys;
                     }});
}

void AddConfirm(std::vector<CTourStep>& steps, const std::shared_ptr<CSeen>& pSeen) {
    steps.push_back(
        {"level-top", "Brightness: the thumb at the top is level 100",
         [pSeen](CPerson& person) {
             pSeen->imageBefore = person.LookAt(kCanvas);
             ClickRow(person, NumberOf(EEffect::Brightness));
             DragTo(person, -100);
         },
         [pSeen](CPerson& person) {
             if (person.TextOf(kEffectLevel) != QLatin1String("100"))
                 return QStringLiteral("the readout says \"%1\"").arg(person.TextOf(kEffectLevel));
             if (Differs(person.LookAt(kCanvas), pSeen->imageBefore))
                 return QStringLiteral("the picture has changed before CONFIRM");
             return CheckPending(person, true);
         }});
    steps.push_back({"confirm", "CONFIRM: the picture itself is brighter, one step to undo",
                     [](CPerson& person) { person.Click(kConfirm); },
                     [pSeen](CPerson& person) {
                         if (!Differs(person.LookAt(kCanvas), pSeen->imageBefore))
                             return QStringLiteral("the picture is as it was");
                         if (person.IsSeen(kEffectSlider)) return QStringLiteral("the slider is still there");
                         if (!person.IsOn(kCmdUndo)) return QStringLiteral("nothing to undo");
                         return CheckPending(person, false);
                     }});
    steps.push_back({"undo-effect", "Undo: the picture as before",
                     [](CPerson& person) { person.Click(kCmdUndo); },
                     [pSeen](CPerson& person) {
                         return Differs(person.LookAt(kCanvas), pSeen->imageBefore)
                                    ? QStringLiteral("another picture than before")
                                    : QString();
                     }});
}

void AddCancel(std::vector<CTourStep>& steps, const std::shared_ptr<CSeen>& pSeen) {
    steps.push_back({"keys", "Arrow keys move through the list from effect to effect",
                     [](CPerson& person) {
                         ClickRow(person, NumberOf(EEffect::CrystalFrame));
                         for (int i = 0; i < 2; ++i) person.Key(Qt::Key_Down);
                     },
                     [](CPerson& person) { return CheckLit(person, NumberOf(EEffect::OilPainting)); }});
    steps.push_back({"cancel", "CANCEL: nothing has happened", [](CPerson& person) { person.Click(kCancel); },
                     [pSeen](CPerson& person) {
                         if (Differs(person.LookAt(kCanvas), pSeen->imageBefore))
                             return QStringLiteral("the picture has changed");
                         const QString strLit = CheckLit(person, NumberOf(EEffect::OilPainting));
                         return strLit.isEmpty() ? CheckPending(person, false) : strLit;
                     }});
}

}  // namespace

void AddEffects(std::vector<CTourStep>& steps) {
    const auto pSeen = std::make_shared<CSeen>();
    for (int nEffect = 0; nEffect < kEffectCount; ++nEffect) AddEffect(steps, nEffect, pSeen);
    AddConfirm(steps, pSeen);
    AddCancel(steps, pSeen);
}
