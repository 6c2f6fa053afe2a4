#pragma once

#include <QImage>
#include <functional>
#include <initializer_list>
#include <memory>
#include <vector>

#include "tour/Steps.h"

// What the steps are made of. A check gives an empty text when all is as it should be.

using CSteps = std::vector<CTourStep>;
using CTourCheck = std::function<QString(CPerson&)>;

inline constexpr int kManyColors = 2000;  // a photograph has more, an empty canvas far fewer

QString Unless(bool bGood, const char* szWrong);
QString CheckKeys(const CPerson& person, std::initializer_list<int> arrOn, std::initializer_list<int> arrOff);
// The tab of the mode that is up is not there as a button; the others are.
QString CheckTabs(const CPerson& person, int nHidden);
bool ShowsPhotograph(const CPerson& person);

// What the steps on one photograph compare with: the canvas at its last look, and as it was before them.
struct CLooks {
    QImage imageLast;
    QImage imageBare;
};
using CLooksPtr = std::shared_ptr<CLooks>;
// The canvas shows a photograph that is not what it showed at the last look; this is the next one.
QString CheckNew(const CPerson& person, CLooks& looks);

// A click on a tab.
CTourStep Tab(const char* szName, const char* szTells, int nTab, CTourCheck fnCheck);
// A message box with that text is up.
CTourCheck Asks(const QString& strText);
// The button of a box; it closes, and the check looks at what comes of it.
CTourStep Answer(const char* szName, const char* szTells, const char* szButton, CTourCheck fnCheck);

// The themes of the walk, each in its file.
void AddStart(CSteps& steps);
void AddEmptyModes(CSteps& steps);
void AddBrowse(CSteps& steps, const CTourFiles& files);
void AddOpenFromList(CSteps& steps, const CTourFiles& files);
void AddShape(CSteps& steps);
void AddSize(CSteps& steps);
void AddNew(CSteps& steps);
void AddOpen(CSteps& steps, const CTourFiles& files);
void AddModes(CSteps& steps);
void AddFrames(CSteps& steps);
void AddText(CSteps& steps);
void AddHistory(CSteps& steps);
void AddBroken(CSteps& steps, const CTourFiles& files);
void AddSave(CSteps& steps, const CTourFiles& files);
void AddPrint(CSteps& steps, const CTourFiles& files, CTourPrinters& printers);
void AddEnd(CSteps& steps);
