#include "tour/Steps.h"

#include "tour/DrawSteps.h"
#include "tour/EffectSteps.h"
#include "tour/PhoneSteps.h"
#include "tour/StepTools.h"

std::vector<CTourStep> MakeSteps(const CTourFiles& files, CTourMachine& machine, CTourPrinters& printers) {
    CSteps steps;
    AddStart(steps);
    AddBrowse(steps, files);
    AddEmptyModes(steps);
    AddNew(steps);
    AddDraw(steps);
    AddOpenFromList(steps, files);
    AddSize(steps);
    AddShape(steps);
    AddOpen(steps, files);
    AddModes(steps);
    AddFrames(steps);
    AddHistory(steps);
    AddText(steps);
    AddEffects(steps);
    AddBroken(steps, files);
    AddSave(steps, files);
    AddPrint(steps, files, printers);
    AddPhone(steps, files, machine);
    AddEnd(steps);
    return steps;
}
