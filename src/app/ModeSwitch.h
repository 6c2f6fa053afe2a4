#pragma once

#include "app/ControlDesk.h"
#include "app/StatusLines.h"
#include "browse/ThumPanel.h"
#include "canvas/MySCrollView.h"
#include "compose/TextArtFlow.h"
#include "effect/EffectFlow.h"
#include "link/PhoneLink.h"
#include "paint/DrawGuest.h"
#include "paint/ToolController.h"

// The switch between the five modes: what becomes of the picture, the panels and the canvas on the way from
// one to another. Which keys and controls are there then is the desk's affair.
class CModeSwitch {
  public:
    // All of these outlive the switch.
    struct CEnvironment {
        CEditState& state;
        CWorkingImages& images;
        CControlSet& controls;
        CControlDesk& desk;
        CMySCrollView& canvas;
        CDrawGuest& draw;
        CToolController& tools;
        CEditor& editor;
        CStatusLines& lines;
        CThumPanel& thum;
        CEffectFlow& effects;
        CTextArtFlow& textArt;
        CPhoneLink& link;
        CWaitCursor& wait;
    };
    explicit CModeSwitch(const CEnvironment& env) : m_env(env) {}

    // Takes the panel of the present mode down and brings the new one up, also if both are the same. False,
    // and nothing changes, behind a message that there is no memory for the pictures of the new one.
    [[nodiscard]] bool ChangeMode(EMode mode);
    // What FONT does whenever a picture comes into it.
    void BeginFont();

  private:
    [[nodiscard]] bool MakePictures(EMode mode, CEditPictures& next) const;
    CCanvasGuest* GuestOf(EMode mode) const;
    void Leave(EMode modeNext);
    void EnterThum();
    void EnterDraw();

    CEnvironment m_env;
};
