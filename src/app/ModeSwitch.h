#pragma once

#include "app/StatusLines.h"
#include "browse/ThumPanel.h"
#include "compose/TextArtFlow.h"
#include "editor/Editor.h"
#include "effect/EffectFlow.h"
#include "link/PhoneLink.h"
#include "paint/MySCrollView.h"
#include "paint/ToolController.h"

// The five modes: what each shows, which commands are on in it, and the switch between them.
class CModeSwitch {
  public:
    // All of these outlive the switch.
    struct CEnvironment {
        CEditState& state;
        CWorkingImages& images;
        CControlSet& controls;
        CMySCrollView& canvas;
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

    // Takes the panels of the other modes down and brings the new one up. The caller has set m_nMode.
    void ChangeMode(int nMode);
    // Hides the tab of the active mode, which the tab row shows as selected, and shows the other four.
    void UpdateTabs();

    void EnableEditCommands();
    void DisableEditCommands();
    void EnableSizeCommands(bool bEnable);

    void HideEffect();
    void ShowFont();

  private:
    void HideThum();
    void HideDraw();
    void HideFont();
    void HideStick();
    void ShowThum();
    void ShowDraw();
    void ShowEffect();
    void ShowStick();
    void ForgetListDrag();
    void ShowNoPicture();
    void BeginEditMode();
    void BeginPictureMode();
    void ShowRuledDisplay();
    void EnterThum();
    void EnterDraw();
    void EnterPictureMode(int nMode);

    CEnvironment m_env;
};
