#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "paint/ClipboardCommands.h"
#include "resources/Ids.h"
#include "resources/MainDialog.h"
#include "resources/Texts.h"
#include "support/Pictures.h"

// The canvas with history and clipboard as in the program; the window around them is played.
class CommandBench : public testing::Test,
                     private CCanvasHost,
                     private CPaintHost,
                     private CTimers,
                     private CToolPort,
                     private CEditorHost,
                     private CMessageBoxes,
                     private CWaitCursor,
                     private CClipboard {
  protected:
    static constexpr EMouseButton kLeft = EMouseButton::Left;
    static constexpr EMouseButton kRight = EMouseButton::Right;

    CommandBench()
        : m_controls(kMainDialog.arrControls),
          m_canvas({m_state, m_images, m_tools, *this, *this, *this, m_random}),
          m_editor({m_state, m_images, m_controls, m_canvas, *this, *this, *this, *this}),
          m_commands({m_state, m_images, m_controls, m_canvas, m_tools, m_editor, *this, *this, *this}) {}

    // A picture of numbered colours in DRAW.
    void Open(int nWidth, int nHeight) {
        m_images.TakePicture(NumberedImage(nWidth, nHeight));
        m_images.SetDisplaySize({nWidth, nHeight});
        m_state.m_bImageOpen = m_state.m_bDrawMode = true;
        m_editor.ClearUndo();
        m_editor.ClearRedo();
        m_editor.TransferCanvas(false);
        m_commands.EnableSelectionCommands(false);
        m_controls.Enable(kCmdPaste, m_canvas.IsClipReady());
        SelectTool(kToolMagnifier);
    }
    // What a tool's button does to the canvas.
    void SelectTool(int nTool) {
        m_commands.EnableSelectionCommands(false);
        const bool bOpen = m_canvas.IsShapeOpen();
        m_canvas.AbandonShape();
        if (bOpen) m_canvas.Revert();
        m_tools.m_nTool = nTool;
        EnterTool();
        m_canvas.Paint();
    }
    void Zoom(int nZoom) {
        m_nZoomOption = nZoom;
        SelectTool(kToolMagnifier);
    }

    CPoint ToClient(CPoint pt) const {
        return {pt.x * m_tools.m_nZoom + m_canvas.Origin().x - m_canvas.ScrollPosition().x,
                pt.y * m_tools.m_nZoom + m_canvas.Origin().y - m_canvas.ScrollPosition().y};
    }
    void Mouse(EMouseAction action, CPoint pt, EMouseButton button = kLeft) {
        m_canvas.OnMouse({action, button, ToClient(pt), 0});
    }
    void Drag(const std::vector<CPoint>& points) {
        Mouse(EMouseAction::Press, points.front());
        for (std::size_t i = 1; i < points.size(); ++i) Mouse(EMouseAction::Move, points[i]);
        Mouse(EMouseAction::Release, points.back());
    }
    void Click(CPoint pt) { Drag({pt}); }
    // Marks a rectangle with its tool.
    void Mark(CRect rc) {
        SelectTool(kToolSelectRect);
        Drag({{rc.left, rc.top}, {rc.right, rc.bottom}});
    }
    // A triangle with its corner at the upper left.
    void MarkTriangle(CPoint pt, int nSide) {
        SelectTool(kToolSelectPolygon);
        Drag({pt, {pt.x + nSide, pt.y}});
        Click({pt.x, pt.y + nSide});
        Mouse(EMouseAction::DoubleClick, {pt.x, pt.y + nSide});
        Mouse(EMouseAction::Release, {pt.x, pt.y + nSide});
    }

    const CPixels& Committed() const { return m_canvas.CommittedPixels(); }
    const CPixels& Scratch() const { return m_canvas.Paper().Scratch().Pixels(); }
    int Undos() const { return m_images.m_stackUndo.Count(); }
    // Cut, Copy, Paste, Crop as they stand: an x for each that is on.
    std::string Commands() const {
        std::string strOn;
        for (const int nId : {kCmdCut, kCmdCopy, kCmdPaste, kCmdCrop})
            strOn += m_controls.IsEnabled(nId) ? 'x' : '-';
        return strOn;
    }
    void ExpectBox(const char* szText, const char* szTitle = kTitleNotice) {
        ASSERT_EQ(m_arrBoxes.size(), 1U);
        EXPECT_EQ(m_arrBoxes[0], (CMessageBox{szText, szTitle, EBoxIcon::Exclamation, EBoxButtons::Ok}));
        m_arrBoxes.clear();
    }
    CPixels Clip() const {
        CxImage image;
        return m_clip && image.CreateFromHANDLE(*m_clip) ? image.Pixels() : CPixels();
    }

    CEditState m_state;
    CWorkingImages m_images;
    CControlSet m_controls;
    CToolState m_tools;
    CRandomSequence m_random;
    CMySCrollView m_canvas;
    CEditor m_editor;
    CClipboardCommands m_commands;
    std::optional<std::vector<std::uint8_t>> m_clip;
    bool m_bClipboardBusy = false;
    std::vector<CMessageBox> m_arrBoxes;
    bool m_bTimer = false;
    int m_nWaits = 0;
    int m_nZoomOption = 1;

  private:
    void OnCanvasPainted() override {}
    void OnPictureMenu() override {}
    bool BeginChange() override { return m_editor.BeginChange(); }
    void EnableSelectionCommands(bool bEnable) override { m_commands.EnableSelectionCommands(bEnable); }
    void PickColor(bool bForeground, CColor color) override {
        (bForeground ? m_tools.m_crForeground : m_tools.m_crBackground) = color;
    }
    void SetTimer(CTimerTarget& /*target*/, int /*nTimer*/, int /*nMilliseconds*/) override {
        m_bTimer = true;
    }
    void KillTimer(CTimerTarget& /*target*/, int /*nTimer*/) override { m_bTimer = false; }
    int CurrentTool() const override { return m_tools.m_nTool; }
    void SetCurrentTool(int nTool) override { m_tools.m_nTool = nTool; }
    void EnterTool() override {
        m_tools.m_nResumeTool = m_tools.m_nTool;
        m_canvas.Revert();
        m_canvas.ForgetSelection();
        if (m_canvas.IsFloating()) m_canvas.DropFloat();
        if (m_tools.m_nTool != kToolMagnifier) return;
        m_tools.m_nZoom = m_nZoomOption;
        m_canvas.ApplyZoom();
    }
    void ResetZoom() override { m_tools.m_nZoom = m_nZoomOption = 1; }
    void FocusCurrentTool() override {}
    void GoToMode(int /*nMode*/) override {}
    void HideEffectPanel() override {}
    void ShowFontPanel() override {}
    void EnableEditCommands() override {}
    void EnableSizeCommands(bool /*bEnable*/) override {}
    void InitTextArt() override {}
    bool IsConnected() const override { return false; }
    std::vector<CSize> PhoneSizes() const override { return {}; }
    void FollowFolder(const std::string& /*strFolder*/) override {}
    EBoxAnswer Show(const CMessageBox& box) override {
        m_arrBoxes.push_back(box);
        return EBoxAnswer::Ok;
    }
    void Begin() override { ++m_nWaits; }
    void End() override { --m_nWaits; }
    bool SetBitmap(std::span<const std::uint8_t> arrDib) override {
        if (m_bClipboardBusy) return false;
        m_clip.emplace(arrDib.begin(), arrDib.end());
        return true;
    }
    std::optional<std::vector<std::uint8_t>> GetBitmap() override { return m_clip; }
};
