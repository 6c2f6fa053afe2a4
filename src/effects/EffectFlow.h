#pragma once

#include "window/ControlSet.h"

// EFFECT from the first preview to the change of the picture.
class CEffectFlow {
  public:
    explicit CEffectFlow(CControlSet& controls) : m_controls(controls) {}

    // Shows or hides preview box, slider, readout, CONFIRM and CANCEL together.
    void ShowEffectControls(bool bShow);
    // The slider as it stands while no effect is selected.
    void RestSlider();

    void OnSelChangeEffectList() {}
    void OnVScroll() {}
    void OnConfirm() {}
    void OnCancel() {}

  private:
    CControlSet& m_controls;
};
