#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
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
                     private CEditEvents,
                     private CMessageBoxes,
                     private CWaitCursor,
                     private CClipboard {
  protected:
    static constexpr EMouseButton kLeft = EMouseButton::Left;
    static constexpr EMouseButton kRight = EMouseButton::Right;

    CommandBench()
        : m_controls(kMainDialog.arrControls),
          m_editor({m_images, *this, *this}),
          m_canvas({m_state, m_images, *this}),
          m_draw({m_images, m_tools, m_canvas, m_editor, *this, *this, *this, m_random}),
          m_commands({m_images, m_controls, m_draw, m_tools, m_editor, *this, *this, *this, *this}) {
        m_canvas.SetGuest(&m_draw);
    }

    // A picture of numbered colours in DRAW.
    void Open(int nWidth, int nHeight) {
        m_editor.TakePicture(NumberedImage(nWidth, nHeight));
        m_images.SetDisplaySize({nWidth, nHeight});
        m_state.m_bImageOpen = true;
        m_state.m_nMode = EMode::Draw;
        m_draw.LoadCanvas();
        Tell(EEditEvent::SelectionGone);
        m_controls.Enable(kCmdPaste, m_draw.Selection().IsClipReady());
        SelectTool(ETool::Magnifier);
    }
    // What a tool's button does to the canvas.
    void SelectTool(ETool tool) {
        Tell(EEditEvent::SelectionGone);
        const bool bOpen = m_draw.IsShapeOpen();
        m_draw.AbandonShape();
        if (bOpen) m_draw.Revert();
        m_tools.m_nTool = tool;
        EnterTool();
        m_canvas.Paint();
    }
    void Zoom(int nZoom) {
        m_nZoomOption = nZoom;
        SelectTool(ETool::Magnifier);
    }

    CPoint ToClient(CPoint pt) const {
        return {pt.x * m_tools.m_nZoom + m_draw.Origin().x - m_canvas.ScrollPosition().x,
                pt.y * m_tools.m_nZoom + m_draw.Origin().y - m_canvas.ScrollPosition().y};
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
        SelectTool(ETool::SelectRect);
        Drag({{rc.left, rc.top}, {rc.right, rc.bottom}});
    }
    // A triangle with its corner at the upper left.
    void MarkTriangle(CPoint pt, int nSide) {
        SelectTool(ETool::SelectPolygon);
        Drag({pt, {pt.x + nSide, pt.y}});
        Click({pt.x, pt.y + nSide});
        Mouse(EMouseAction::DoubleClick, {pt.x, pt.y + nSide});
        Mouse(EMouseAction::Release, {pt.x, pt.y + nSide});
    }

    // A command of the edit, which takes what stands on the canvas, and lets the canvas have what it makes.
    template <class TCommand>
    void Run(TCommand command) {
        CxImage imgBase;
        ASSERT_TRUE(m_draw.MakeSettled(imgBase));
        if (!command(imgBase)) return;
        m_draw.AbandonShape();
        m_draw.ForgetFloat();
        m_draw.LoadCanvas();
        const ETool tool = std::exchange(m_tools.m_nTool, ETool::Magnifier);
        EnterTool();
        m_tools.m_nTool = tool;
    }
    void Undo() {
        Run([&](const CxImage& imgBase) { return m_editor.Undo(imgBase, EMode::Draw); });
    }
    void Redo() {
        Run([&](const CxImage& imgBase) { return m_editor.Redo(imgBase, EMode::Draw); });
    }
    void Reset() {
        Run([&](const CxImage& /*imgBase*/) { return m_editor.Reset(m_draw.Committed(), EMode::Draw); });
        m_tools.m_nTool = ETool::Magnifier;
    }

    const CPixels& Committed() const { return m_draw.Paper().Committed().Pixels(); }
    const CPixels& Scratch() const { return m_draw.Paper().Scratch().Pixels(); }
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
    CEditor m_editor;
    CMySCrollView m_canvas;
    CDrawGuest m_draw;
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
    void Tell(EEditEvent event) override {
        const bool bSelection = event == EEditEvent::SelectionMade;
        if (event == EEditEvent::ClipFilled || event == EEditEvent::Cropped)
            m_controls.Enable(kCmdPaste, event == EEditEvent::ClipFilled);
        if (!bSelection && event != EEditEvent::SelectionGone && event != EEditEvent::Cropped) return;
        for (const int nId : {kCmdCut, kCmdCopy, kCmdCrop}) m_controls.Enable(nId, bSelection);
    }
    void PickColor(bool bForeground, CColor color) override {
        (bForeground ? m_tools.m_crForeground : m_tools.m_crBackground) = color;
    }
    void SetTimer(CTimerTarget& /*target*/, int /*nTimer*/, int /*nMilliseconds*/) override {
        m_bTimer = true;
    }
    void KillTimer(CTimerTarget& /*target*/, int /*nTimer*/) override { m_bTimer = false; }
    void EnterTool() {
        m_tools.m_nResumeTool = m_tools.m_nTool;
        m_draw.Revert();
        m_draw.ForgetSelection();
        m_draw.DropFloat();
        if (m_tools.m_nTool != ETool::Magnifier) return;
        m_tools.m_nZoom = m_nZoomOption;
        m_draw.ApplyZoom();
    }
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
