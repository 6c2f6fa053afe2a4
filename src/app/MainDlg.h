#pragma once

#include <memory>

#include "app/MainSkin.h"
#include "app/ModeSwitch.h"
#include "app/StatusLines.h"
#include "browse/ThumPanel.h"
#include "compose/FrameFlow.h"
#include "compose/TextArtFlow.h"
#include "editor/Editor.h"
#include "editor/FileCommands.h"
#include "editor/GeometryCommands.h"
#include "effect/EffectFlow.h"
#include "link/PhoneLink.h"
#include "paint/ClipboardCommands.h"
#include "paint/MySCrollView.h"
#include "paint/ToolController.h"
#include "print/PrintFlow.h"
#include "window/Dialog.h"
#include "window/Platform.h"
#include "window/PopupMenus.h"

// The main window: owner of everything that lives for a whole run, and the entry of every command. It decides
// nothing about pictures itself; each event goes on to the class of the room that the command belongs to.
class CMainDlg : public CDialog,
                 private CEditorHost,
                 private CCanvasHost,
                 private CPaintHost,
                 private CToolHost,
                 private CSkinHost,
                 private CBrowseHost,
                 private CEditEvents,
                 private CEffectHost,
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
    // Commands that concern more than one room
    void OnPrint();
    void OnTabClick(int nMode);
    void ToggleLines();
    void OnPaintPress(CPoint pt);
    bool OnCtrlKey(int nKey);

    // CEditorHost
    void GoToMode(int nMode) override;
    void HideEffectPanel() override { m_modes.HideEffect(); }
    void ShowFontPanel() override { m_modes.ShowFont(); }
    void EnableEditCommands() override { m_modes.EnableEditCommands(); }
    void EnableSizeCommands(bool bEnable) override { m_modes.EnableSizeCommands(bEnable); }
    void InitTextArt() override { m_textArt.InitTextArt(); }
    bool IsConnected() const override { return m_link.IsConnected(); }
    std::vector<CSize> PhoneSizes() const override { return m_link.PhoneSizes(); }
    void FollowFolder(const std::string& strFolder) override { m_thum.FollowFolder(strFolder); }

    // CCanvasHost
    void OnCanvasPainted() override;
    void OnPictureMenu() override;

    // CPaintHost; of the selection commands the tools' buttons tell as well
    bool BeginChange() override { return m_editor.BeginChange(); }
    void EnableSelectionCommands(bool bEnable) override { m_clipboard.EnableSelectionCommands(bEnable); }
    void PickColor(bool bForeground, CColor color) override { m_tools.PickColor(bForeground, color); }

    // CToolHost
    CClientArea& PanelArea() override { return Client(); }
    void PresentPanel() override { Present(); }
    void RepaintWindow() override { Invalidate(); }
    void SetHelp(int nCode) override { m_lines.SetHelp(nCode); }

    // CBrowseHost
    void ShowFileInfo(const std::string& strPath, EFileInfo kind) override {
        m_lines.ShowFileInfo(strPath, kind);
    }
    void OpenPicture(const std::string& strFolder, const std::string& strName) override {
        m_files.OpenFileByName(strFolder, strName);
    }
    void LeaveEditInfo() override { m_state.m_bEditInfo = false; }

    // CEditEvents
    void Tell(EEditEvent event) override;

    // CSkinHost
    CColor TextColor() const override { return m_textArt.TextColor(); }
    bool IsListPressed() const override { return m_thum.List().IsPressed(); }
    void PaintToolPanel(CClientArea& /*client*/) override { m_tools.OnPaintPanel(); }
    void PaintEffectPreview(CClientArea& client) override { m_effects.PaintPreview(client); }

    // CEffectHost
    void RepaintPreview() override;
    void RepaintPanel() override { Invalidate(); }

    // CPreviewFactory
    std::unique_ptr<CFileDialogPanel> MakePreview() override;

    CPlatform m_platform;
    CEditState m_state;
    CWorkingImages m_images;
    CToolState m_toolState;
    // The one sequence of the process: effects and airbrush draw from it in turn, and only Seed seeds it.
    CRandomSequence m_random;
    CMySCrollView m_canvas;
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
};
