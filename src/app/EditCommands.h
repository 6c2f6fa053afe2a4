#pragma once

#include "app/ModeSwitch.h"
#include "editor/FileCommands.h"
#include "editor/GeometryCommands.h"
#include "print/PrintFlow.h"

// The commands of an edit from end to end: what DRAW has to give before them, and what canvas, panels, lines
// and focus take from what they have done.
class CEditCommands {
  public:
    // All of these outlive the commands.
    struct CEnvironment {
        CEditState& state;
        CWorkingImages& images;
        CControlSet& controls;
        CMySCrollView& canvas;
        CDrawGuest& draw;
        CToolController& tools;
        CEditor& editor;
        CFileCommands& files;
        CGeometryCommands& geometry;
        CModeSwitch& modes;
        CStatusLines& lines;
        CThumPanel& thum;
        CEffectFlow& effects;
        CTextArtFlow& textArt;
        CPrintFlow& print;
        CPhoneLink& link;
        CEditEvents& events;
        CFolders& folders;
        CWaitCursor& wait;
        CPanelHost& window;
    };
    explicit CEditCommands(const CEnvironment& env) : m_env(env) {}

    void OnOpen();
    // Opens a file of the file list; the folder may or may not end in a separator.
    void OpenFileByName(const std::string& strFolder, const std::string& strName);
    void OnNew();
    void OnSave();
    void OnPrint();
    void OnUndo();
    void OnRedo();
    void OnReset();
    // The radios "current picture size" and "phone screen size".
    void OnSizeRule(ESizeRule rule);
    void OnSize();
    void OnLarge();
    void OnActual();
    void OnSmall();
    void OnFlip(EFlip flip);
    void OnTurn(ETurn turn);
    void OnConfirm();
    void OnCancel();
    // For the phone: what DRAW has on its canvas becomes the working image, a float merged. False behind a
    // message that there is no memory.
    [[nodiscard]] bool SettlePicture();
    // The picture gets a size of the phone, as one step; words stay on it. False behind such a message.
    [[nodiscard]] bool ResizeForPhone(CSize size);
    void FocusEffectList();
    // The click of a tab.
    void OnTab(EMode mode);
    void GoToMode(EMode mode);
    // A left press beside the controls in DRAW.
    void OnPaintPress(CPoint pt);

  private:
    // Runs a command on the base of its change. True if the edit has changed.
    template <class TCommand>
    [[nodiscard]] bool Run(TCommand command);
    // Runs one that needs a picture, and shows what it has changed.
    template <class TCommand>
    bool Change(TCommand command);
    void ShowPicture();
    void ShowStep();
    void OpenFile(const CFileChoice& choice);
    void EnterEdit();
    void ShowSizeRule();

    CEnvironment m_env;
};
