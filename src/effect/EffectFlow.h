#pragma once

#include <memory>

#include "controls/ImageListBox.h"
#include "editor/Editor.h"
#include "engines/effects/ImageEffect.h"
#include "window/ClientArea.h"

// What EFFECT asks of the window that it works in.
class CEffectHost {
  public:
    virtual ~CEffectHost() = default;
    // The preview box is to be drawn anew, at once.
    virtual void RepaintPreview() = 0;
    // The whole bottom of the panel.
    virtual void RepaintPanel() = 0;
};

// EFFECT from the first preview to the change of the picture: the list of effects, the live preview on a
// small copy, the level slider, CONFIRM and CANCEL. Nothing changes in the working image until CONFIRM.
class CEffectFlow {
  public:
    // The preview box, in pixels, and where it stands in the window.
    static constexpr CRect kPreviewBox = CRect::FromPlace(64, 476, 158, 122);

    // All of these outlive the flow.
    struct CEnvironment {
        CEditState& state;
        CWorkingImages& images;
        CControlSet& controls;
        CCanvasPort& canvas;
        CEditorHost& editorHost;
        CEffectHost& host;
        CWaitCursor& wait;
        CMessageBoxes& boxes;
        CEditor& editor;
        CRandomSequence& random;
    };
    explicit CEffectFlow(const CEnvironment& env);

    // At start: fills the list.
    void Init();

    // Shows or hides preview box, slider, readout, CONFIRM and CANCEL together.
    void ShowEffectControls(bool bShow);
    // The slider as it stands while no effect is selected.
    void RestSlider();
    // Drops a preview that is up, and its images; for leaving the mode.
    void DropPreview();
    // Draws the preview into its box if one is up.
    void PaintPreview(CClientArea& client) const;

    void OnSelChangeEffectList();
    void OnVScroll();
    void OnConfirm();
    void OnCancel();

    int Effect() const { return m_nEffectIndex; }
    int Level() const { return m_nEffectLevel; }
    // The preview as shown; null if there is none.
    const CxImage* Preview() const { return m_pImgEffectSmall.get(); }

    // The size at which a picture of that size is previewed.
    static CSize PreviewSize(CSize size);
    // The level of a position of the slider in its range: the top end is the highest level.
    static int LevelOf(int nMin, int nMax, int nPos);

  private:
    void SetEffectControls(int nEffect);
    void SetEffectRange(int nEffect);
    bool ApplyToPreview(bool bFull);
    void ShowLevel(bool bHasLevel);
    void EndPreview();

    CEnvironment m_env;
    CImageListBox m_list;
    int m_nEffectIndex = 0;
    int m_nEffectShown = -1;  // whose list picture is in its selected form; -1 for none
    int m_nEffectLevel = 0;
    // The width of the display as the last preview that was new had it; CONFIRM refers to it too.
    int m_nRefWidth = 0;
    std::unique_ptr<CxImage> m_pImgEffectSmall;  // the preview as shown
    std::unique_ptr<CxImage> m_pImgEffectBase;   // the untouched preview, source of every slider move
};
