#include "effects/EffectFlow.h"

#include "resources/Ids.h"

void CEffectFlow::ShowEffectControls(bool bShow) {
    for (const int nId : {kEffectPreview, kEffectSlider, kEffectLevel, kConfirm, kCancel})
        m_controls.Show(nId, bShow);
}

void CEffectFlow::RestSlider() {
    m_controls.SetRange(kEffectSlider, -100, 100);
    m_controls.SetPosition(kEffectSlider, 100);
    m_controls.Show(kEffectSlider, false);
    m_controls.Enable(kEffectSlider, false);
}
