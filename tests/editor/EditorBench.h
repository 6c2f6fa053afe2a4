#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "editor/Editor.h"
#include "editor/FileCommands.h"
#include "editor/GeometryCommands.h"
#include "resources/Ids.h"
#include "resources/MainDialog.h"
#include "support/Pictures.h"

// The commands of an edit with everything around them played: what they ask is kept as a list of words.
class EditorBench : public testing::Test,
                    public CCanvasPort,
                    public CToolPort,
                    public CEditorHost,
                    public CMessageBoxes,
                    public CWaitCursor,
                    public CFileDialogs,
                    public CFolders,
                    public CModalDialogs,
                    public CPreviewFactory {
  protected:
    EditorBench()
        : m_controls(kMainDialog.arrControls),
          m_editor({m_state, m_images, m_controls, *this, *this, *this, *this, *this}),
          m_files({m_state, m_images, m_controls, *this, *this, *this, *this, *this, *this, *this, *this,
                   m_editor}),
          m_geometry({m_state, m_images, *this, *this, *this, *this, *this, *this, m_editor}) {
        m_arrWords.reserve(100);  // a word costs no memory
    }

    // An open picture in that mode, with a canvas of another colour.
    void Open(int nMode) {
        m_images.TakePicture(NumberedImage(30, 20));
        m_images.SetDisplaySize({30, 20});
        m_state.m_bImageOpen = true;
        m_state.m_nMode = m_state.m_nLastMode = nMode;
        m_state.m_bDrawMode = nMode == kModeDraw;
        m_state.m_bFontMode = nMode == kModeFont;
        m_state.m_bEffectMode = nMode == kModeEffect;
        m_state.m_bStickMode = nMode == kModeStick;
        m_state.m_bThumbMode = nMode == kModeThum;
        m_pixelsCanvas = CPixels::MakeFilled(30, 20, {200, 0, 0});
    }
    std::vector<std::string> Words() { return std::exchange(m_arrWords, {}); }
    CPixels Work() const { return m_images.m_pImgWork->Pixels(); }

    void AbandonShape() override { Say("abandon"); }
    bool IsFloating() const override { return m_bFloating; }
    void DropFloat() override {
        Say("drop");
        m_bFloating = false;
        m_nTool = m_nResumeTool;
        m_pixelsCanvas = CPixels::MakeFilled(30, 20, {0, 200, 0});
    }
    void ForgetFloat() override {
        Say("forget");
        m_bFloating = false;
    }
    void ReInitialise() override { Say("fit"); }
    void Repaint() override { Say("repaint"); }
    const CPixels& CommittedPixels() const override { return m_pixelsCanvas; }
    void LoadPicture(const CxImage& image) override {
        Say("load");
        m_pixelsCanvas = image.Pixels();
    }

    int CurrentTool() const override { return m_nTool; }
    void SetCurrentTool(int nTool) override { m_nTool = nTool; }
    void EnterTool() override { Say("enter " + std::to_string(m_nTool)); }
    void ResetZoom() override { Say("zoom 1"); }
    void FocusCurrentTool() override { Say("focus " + std::to_string(m_nTool)); }

    void GoToMode(int nMode) override {
        Say("mode " + std::to_string(nMode) + " from " + std::to_string(m_state.m_nLastMode));
    }
    void HideEffectPanel() override { Say("hide effect"); }
    void ShowFontPanel() override { Say("font panel"); }
    void EnableEditCommands() override {}
    void EnableSizeCommands(bool bEnable) override { Say(bEnable ? "size on" : "size off"); }
    void InitTextArt() override { Say("text defaults"); }
    bool IsConnected() const override { return m_bConnected; }
    std::vector<CSize> PhoneSizes() const override { return {}; }
    void FollowFolder(const std::string& strFolder) override { Say("follow " + strFolder); }

    EBoxAnswer Show(const CMessageBox& box) override {
        m_arrBoxes.push_back(box);
        return EBoxAnswer::Ok;
    }
    void Begin() override { ++m_nWaits; }
    void End() override { --m_nWaits; }
    std::optional<CFileChoice> RunOpen(const CFileDialogRequest&, CFileDialogPanel*) override {
        return m_choice;
    }
    std::optional<CFileChoice> RunSave(const CFileDialogRequest&) override { return m_choice; }
    int Run(CDialog& dialog) override {
        dialog.OnInitDialog();
        m_fnRun(dialog);
        return dialog.HasEnded() ? dialog.EndCode() : CDialog::kDialogCancel;
    }
    char Separator() const override { return '\\'; }
    std::string CurrentFolder() const override { return "here"; }
    bool SetCurrentFolder(const std::string&) override { return true; }
    std::string InstallValue() const override { return {}; }
    std::unique_ptr<CFileDialogPanel> MakePreview() override { return nullptr; }

    CEditState m_state;
    CWorkingImages m_images;
    CControlSet m_controls;
    CPixels m_pixelsCanvas;
    bool m_bFloating = false;
    bool m_bConnected = false;
    int m_nTool = 5;
    int m_nResumeTool = 5;
    int m_nWaits = 0;
    std::optional<CFileChoice> m_choice;
    std::vector<CMessageBox> m_arrBoxes;
    std::function<void(CDialog&)> m_fnRun = [](CDialog&) {};
    CEditor m_editor;
    CFileCommands m_files;
    CGeometryCommands m_geometry;

  private:
    void Say(const std::string& strWord) { m_arrWords.push_back(strWord); }
    std::vector<std::string> m_arrWords;
};
