#pragma once

#include "controls/ImageListBox.h"
#include "editor/Editor.h"
#include "engines/effects/ImageEffect.h"
#include "window/ClientArea.h"
#include "window/PanelHost.h"
#include "window/WaitCursor.h"

// EFFECT from the first preview to the change of the picture: the list of effects, the live preview on a
// small copy, the level slider, CONFIRM and CANCEL. Nothing changes in the working image until CONFIRM.
class CEffectFlow {
  public:
    // All of these outlive the flow.
    struct CEnvironment {
        const CEditState& state;
        CWorkingImages& images;
        CControlSet& controls;
        CPanelHost& panel;
        CEditEvents& events;
        CWaitCursor& wait;
        CEditor& editor;
        CRandomSequence& random;
    };
    explicit CEffectFlow(const CEnvironment& env);

    // At start: fills the list.
    void Init();
    // The slider and the readout as they stand while no effect is selected.
    void RestSlider();
    void BlankReadout();
    // Drops a preview that is up, and its images; for leaving the mode.
    void DropPreview();
    // Draws the preview into its box if one is up.
    void PaintPreview(CClientArea& client) const;

    void OnSelChangeEffectList();
    void OnVScroll();
    // Both are true if a preview was up, which has ended: with the picture changed, or as it was.
    [[nodiscard]] bool OnConfirm();
    [[nodiscard]] bool OnCancel();

    int Effect() const { return m_nEffectIndex; }
    int Level() const { return m_nEffectLevel; }
    // A preview waits for CONFIRM or CANCEL.
    bool IsPending() const { return m_bEffectPending; }
    // No effect is selected, or one without a level.
    bool HasNoLevel() const { return m_bNoEffectLevel; }
    // The preview as shown; not valid if there is none.
    const CxImage& Preview() const { return m_imgEffectSmall; }

    // The size at which a picture of that size is previewed.
    static CSize PreviewSize(CSize size);
    // The level of a position of the slider in its range: the top end is the highest level.
    static int LevelOf(int nMin, int nMax, int nPos);

  private:
    CRect PreviewBox() const;
    [[nodiscard]] bool MakePreviewBase(CxImage& image) const;
    [[nodiscard]] bool Apply(CxImage& image, int nEffect, int nLevel) const;
    void ShowSelected(int nEffect);
    void ShowLevel(bool bHasLevel);
    void EndPreview();
    void RepaintPreview();

    CEnvironment m_env;
    CImageListBox m_list;
    int m_nEffectIndex = 0;
    int m_nEffectShown = -1;  // whose list picture is in its selected form; -1 for none
    int m_nEffectLevel = 0;
    // The width of the display as the last preview had it; CONFIRM refers to it too.
    int m_nRefWidth = 0;
    bool m_bNoEffectLevel = true;
    bool m_bEffectPending = false;
    CxImage m_imgEffectSmall;  // the preview as shown
    CxImage m_imgEffectBase;   // the untouched preview, source of every slider move
};
