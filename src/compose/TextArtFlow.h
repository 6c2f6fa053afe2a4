#pragma once

#include <string>

#include "compose/TextGuest.h"
#include "controls/ImageListBox.h"
#include "editor/Editor.h"
#include "engines/warp/TextWarp.h"
#include "image/TextRasterizer.h"
#include "window/Choosers.h"
#include "window/PanelHost.h"
#include "window/WaitCursor.h"

// FONT: a line of text, shaped by the hand and blended into the picture. Text and font give a mask of the
// words, the shape on the canvas says how it is warped, and every drawing starts from the picture as it was
// when FONT began: so words can be reshaped and recoloured, and only the last ones stay.
class CTextArtFlow {
  public:
    // All of these outlive the flow.
    struct CEnvironment {
        const CEditState& state;
        CWorkingImages& images;
        CControlSet& controls;
        CMySCrollView& canvas;
        CPanelHost& panel;
        CEditor& editor;
        CColorDialogs& colors;
        CFontDialogs& fonts;
        CTextRasterizer& text;
        CWaitCursor& wait;
    };
    explicit CTextArtFlow(const CEnvironment& env);

    // At start: fills the list of styles.
    void Init();
    // Settings back to their defaults, for a picture that comes in; text, font and colour stay.
    void InitTextArt();
    // FONT comes up, or its picture has been changed by somebody else: a new base, the handles at their
    // start.
    void Begin();
    // FONT goes; the words belong to the picture from here on.
    void End();

    CColor TextColor() const { return m_color; }
    CTextGuest& Guest() { return m_guest; }
    const TextArtParam& Param() const { return m_textParam; }

    // The words again, in the shape and over the picture that they have now.
    void DrawAnew();

    // --- the commands ---
    // The words have been typed into; the picture has them from the next command on.
    void OnTextInput();
    void OnApplyText();
    void OnCharacter();
    void OnTextColor();
    void OnProjectionShape() { TakeKind(kWarpProjection); }
    void OnMeshShape() { TakeKind(kWarpMesh); }
    void OnShowLines();
    void OnSelChangeTextEffect();

  private:
    // All that a drawing needs beside the picture. A value: a command works on a copy of it.
    struct CWords {
        CTextWarp warp;
        TextArtParam param;
    };

    CWords Words() const { return {m_textWarp, m_textParam}; }
    [[nodiscard]] bool RenderTextMask(CWords& words, const std::string& strText,
                                      const CFontChoice& font) const;
    // Draws the words over the base, into pictures that are shown as FONT shows them.
    [[nodiscard]] bool Draw(CWords& words, CEditPictures& pictures) const;
    void Take(CWords words);
    // A step and the words drawn anew, after make has changed them. False, and nothing changes, behind a
    // message that there is no memory.
    template <class TMake>
    [[nodiscard]] bool Change(TMake make);
    // The words drawn anew without a step.
    [[nodiscard]] bool RunTextArt(CWords words);
    void TakeKind(int nWarpKind);
    void ShowKind();
    void ShowEffect();

    CEnvironment m_env;
    std::string m_strTextInput;
    CFontChoice m_font{"黑体", false};
    TextArtParam m_textParam;
    CColor m_color{m_textParam.byRed, m_textParam.byGreen, m_textParam.byBlue};
    CTextWarp m_textWarp;
    bool m_bTextBaseLoaded = false;  // the engine's base is the picture that FONT began with
    CImageListBox m_list;
    int m_nTextEffectShown = 0;  // whose list picture is in its selected form
    CTextGuest m_guest;
};
