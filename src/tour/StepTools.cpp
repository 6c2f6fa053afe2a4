#include "tour/StepTools.h"

#include "resources/Ids.h"
#include "tour/Screen.h"

QString Unless(bool bGood, const char* szWrong) {
    return bGood ? QString() : QString(szWrong);
}

QString CheckKeys(const CPerson& person, std::initializer_list<int> arrOn,
                  std::initializer_list<int> arrOff) {
    for (const int nId : arrOn)
        if (!person.IsOn(nId)) return QStringLiteral("key %1 should be on").arg(nId);
    for (const int nId : arrOff)
        if (person.IsOn(nId)) return QStringLiteral("key %1 should be off").arg(nId);
    return {};
}

QString CheckTabs(const CPerson& person, int nHidden) {
    for (const int nTab : {kTabThum, kTabEffect, kTabStick, kTabFont, kTabDraw})
        if (person.IsSeen(nTab) == (nTab == nHidden)) return QStringLiteral("tab %1 is wrong").arg(nTab);
    return {};
}

bool ShowsPhotograph(const CPerson& person) {
    return person.IsSeen(kCanvas) && CountColors(person.LookAt(kCanvas), kManyColors) >= kManyColors;
}

QString CheckNew(const CPerson& person, CLooks& looks) {
    if (person.Asking() != nullptr) return person.AskedText();
    const QImage image = person.LookAt(kCanvas);
    if (!ShowsPhotograph(person)) return QStringLiteral("the canvas shows no photograph");
    if (!Differs(image, looks.imageLast)) return QStringLiteral("the canvas shows the same as before");
    looks.imageLast = image;
    return {};
}

CTourStep Tab(const char* szName, const char* szTells, int nTab, CTourCheck fnCheck) {
    return {szName, szTells, [nTab](CPerson& person) { person.Click(nTab); },
            [nTab, fnCheck = std::move(fnCheck)](CPerson& person) {
                const QString strTabs = CheckTabs(person, nTab);
                return strTabs.isEmpty() ? fnCheck(person) : strTabs;
            }};
}

CTourCheck Asks(const QString& strText) {
    return [strText](CPerson& person) {
        const QString strSaid = person.AskedText();
        return strSaid == strText ? QString() : QStringLiteral("the box says \"%1\"").arg(strSaid);
    };
}

CTourStep Answer(const char* szName, const char* szTells, const char* szButton, CTourCheck fnCheck) {
    return {szName, szTells, [szButton](CPerson& person) { person.Answer(QString::fromUtf8(szButton)); },
            [fnCheck = std::move(fnCheck)](CPerson& person) {
                return person.Asking() != nullptr ? QStringLiteral("the box is still up") : fnCheck(person);
            }};
}
