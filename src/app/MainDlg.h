#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "app/ControlDesk.h"
#include "app/EditCommands.h"
#include "app/MainSkin.h"
#include "app/ModeSwitch.h"
#include "app/StatusLines.h"
#include "browse/ThumPanel.h"
#include "canvas/MySCrollView.h"
#include "compose/FrameFlow.h"
#include "compose/TextArtFlow.h"
#include "effect/EffectFlow.h"
#include "link/PhoneLink.h"
#include "paint/ClipboardCommands.h"
#include "paint/ToolController.h"
#include "print/PrintFlow.h"
#include "window/Dialog.h"
#include "window/Platform.h"
#include "window/PopupMenus.h"

// The main window: owner of everything that lives for a whole run, and the entry of every command. It decides
// nothing about pictures itself; each event goes on to the class of the room that the command belongs to.
class CMainDlg : public CDialog,
                 private CCanvasHost,
                 private CPaintHost,
                 private CToolHost,
                 private CSkinHost,
                 private CBrowseHost,
                 private CPhoneHost,
                 private CPreviewFactory {
  public:
    // What the platform gives outlives the window.
    explicit CMainDlg(const CPlatform& platform);

    // --- for whoever looks on: tests, drivers ---
    const CEditState& State() const { return m_state; }
    const CWorkingImages& Images() const { return m_images; }
    const CToolController& Tools() const { return m_tools; }
    const CPhoneLink& Link() const { return m_link; }
    CMySCrollView& Canvas() { return m_canvas; }
    CDrawGuest& Draw() { return m_draw; }
    const CStatusLines& Lines() const { return m_lines; }
    CTextArtFlow& TextArt() { return m_textArt; }
    CThumPanel& Thum() { return m_thum; }
    CEffectFlow& Effects() { return m_effects; }
    // Starts the random numbers of effects and airbrush anew, for runs that can be repeated.
    void Seed(std::uint32_t nSeed) { m_random.Seed(nSeed); }

    // A double click on a picture file in the file list.
    void OpenFileByName(const std::string& strFolder, const std::string& strName);

    void OnInitDialog() override;
    void OnDestroy() override;
    void OnCommand(int nId) override;
    void OnNotify(int nId, ENotice notice) override;
    void OnMouse(const CMouseEvent& event) override;
    void OnHover(int nIdControl, bool bLeftDown) override;
    bool OnKey(const CKeyEvent& event) override;
    void OnTimer(int nTimer) override;
    CScrollView* ViewOf(int nId) override;
    CTreeModel* TreeOf(int nId) override;
    CIconListModel* IconsOf(int nId) override;

  protected:
    void OnPaint(CClientArea& client) override;

  private:
    void ToggleLines();
    bool OnCtrlKey(int nKey);

    // CCanvasHost
    void OnCanvasPainted() override;
    void OnPictureMenu() override;

    // CPaintHost
    void PickColor(bool bForeground, CColor color) override { m_tools.PickColor(bForeground, color); }

    // CToolHost
    void SetHelp(int nCode) override { m_lines.SetHelp(nCode); }

    // CBrowseHost
    void ShowFileInfo(const std::string& strPath, EFileInfo kind) override {
        m_lines.ShowFileInfo(strPath, kind);
    }
    void OpenPicture(const std::string& strFolder, const std::string& strName) override {
        m_commands.OpenFileByName(strFolder, strName);
    }
    void LeaveEditInfo() override { m_lines.TellOfBrowsing(); }

    // CSkinHost
    CColor TextColor() const override { return m_textArt.TextColor(); }
    bool IsListPressed() const override { return m_thum.List().IsPressed(); }

    // CPhoneHost
    bool SettlePicture() override { return m_commands.SettlePicture(); }
    bool ResizeForPhone(CSize size) override { return m_commands.ResizeForPhone(size); }
    void GoToThum() override { m_commands.GoToMode(EMode::Thum); }
    void FocusEffectList() override { m_commands.FocusEffectList(); }

    // CPreviewFactory
    std::unique_ptr<CFileDialogPanel> MakePreview() override;

    CPlatform m_platform;
    CEditState m_state;
    CWorkingImages m_images;
    CToolState m_toolState;
    // The one sequence of the process: effects and airbrush draw from it in turn, and only Seed seeds it.
    CRandomSequence m_random;
    CMySCrollView m_canvas;
    CDrawGuest m_draw;
    CControlDesk m_desk;
    CToolController m_tools;
    CEditor m_editor;
    CClipboardCommands m_clipboard;
    CFileCommands m_files;
    CGeometryCommands m_geometry;
    CStatusLines m_lines;
    CMainSkin m_skin;
    CThumPanel m_thum;
    CEffectFlow m_effects;
    CFrameFlow m_frames;
    CTextArtFlow m_textArt;
    CPrintFlow m_print;
    CPhoneLink m_link;
    CModeSwitch m_modes;
    CEditCommands m_commands;
};
