#include "window/Marks.h"

#include <cstddef>
#include <vector>

#include "window/ControlSet.h"

namespace {

// The ids of the radio buttons that share a group with nId, itself included.
std::vector<int> RadioGroupOf(const CControlSet& controls, int nId) {
    std::vector<int> arrGroup;
    bool bMine = false;
    for (const CControl& control : controls.All()) {
        if (control.kind == EControlKind::Group) {
            if (bMine) break;
            arrGroup.clear();
        }
        if (control.kind != EControlKind::Radio) continue;
        arrGroup.push_back(control.nId);
        bMine = bMine || control.nId == nId;
    }
    return arrGroup;
}

}  // namespace

void ClickMark(CControlSet& controls, int nId) {
    const CControl* pControl = controls.Find(nId);
    if (pControl == nullptr) return;
    if (pControl->kind == EControlKind::Check) controls.Check(nId, !pControl->bChecked);
    if (pControl->kind != EControlKind::Radio) return;
    for (const int nOther : RadioGroupOf(controls, nId)) controls.Check(nOther, nOther == nId);
}
