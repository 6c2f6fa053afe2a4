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

// A canvas in DRAW with history and clipboard as in the program; the window around them only remembers what
// it was asked.
class DrawBench : public testing::Test,
                  private CCanvasHost,
                  private CPaintHost,
                  private CTimers,
                  private CEditEvents,
                  private CMessageBoxes,
                  private CWaitCursor,
                  private CClipboard {
  protected:
    static constexpr CColor kWhite{255, 255, 255};
    static constexpr CColor kFore{200, 10, 20};
    static constexpr CColor kBack{10, 20, 200};
    static constexpr EMouseButton kLeft = EMouseButton::Left;
    static constexpr EMouseButton kRight = EMouseButton::Right;

    DrawBench()
        : m_controls(kMainDialog.arrControls),
          m_editor({m_images, *this, *this}),
          m_canvas({m_state, m_images, *this}),
          m_draw({m_images, m_tools, m_canvas, m_editor, *this, *this, *this, m_random}),
          m_commands({m_images, m_controls, m_draw, m_tools, m_editor, *this, *this, *this, *this}) {
        m_canvas.SetGuest(&m_draw);
        m_tools.m_crForeground = kFore;
        m_tools.m_crBackground = kBack;
        OpenPage();
    }
    void OpenPage() { Open(FlatImage(60, 50, kWhite)); }
    // The tool stays, the zoom is that of the last magnifier.
    void Open(const CxImage& image) {
        m_draw.AbandonShape();
        m_draw.ForgetFloat();
        m_editor.TakePicture(image);
        m_images.SetDisplaySize(image.GetSize());
        m_state.m_bImageOpen = true;
        m_state.m_nMode = EMode::Draw;
        m_draw.LoadCanvas();
        Tell(EEditEvent::SelectionGone);
        m_controls.Enable(kCmdPaste, m_draw.Selection().IsClipReady());
        const ETool tool = m_tools.m_nTool;
        SelectTool(ETool::Magnifier);
        m_tools.m_nTool = tool;
        m_arrSteps.clear();
    }

    // --- what the window does to the canvas ---
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
    void Tick() { m_canvas.OnTimer(CPaintEnvironment::kSprayTimer); }

    // --- the hand; points are picture pixels, which may lie beside the picture ---
    CPoint ToClient(CPoint pt) const {
        const CPoint ptScroll = m_canvas.ScrollPosition();
        return {pt.x * m_tools.m_nZoom + m_draw.Origin().x - ptScroll.x,
                pt.y * m_tools.m_nZoom + m_draw.Origin().y - ptScroll.y};
    }
    void Mouse(EMouseAction action, CPoint pt, EMouseButton button = kLeft) {
        m_canvas.OnMouse({action, button, ToClient(pt), 0});
    }
    void Press(CPoint pt, EMouseButton button = kLeft) { Mouse(EMouseAction::Press, pt, button); }
    void Move(CPoint pt) { Mouse(EMouseAction::Move, pt, EMouseButton::None); }
    void Release(CPoint pt, EMouseButton button = kLeft) { Mouse(EMouseAction::Release, pt, button); }
    void Drag(const std::vector<CPoint>& points, EMouseButton button = kLeft) {
        Press(points.front(), button);
        for (std::size_t i = 1; i < points.size(); ++i) Move(points[i]);
        Release(points.back(), button);
    }
    void Click(CPoint pt, EMouseButton button = kLeft) { Drag({pt}, button); }
    // In place of the second press.
    void Double(CPoint pt, EMouseButton button = kLeft) { Mouse(EMouseAction::DoubleClick, pt, button); }
    void DoubleClick(CPoint pt, EMouseButton button = kLeft) {
        Click(pt, button);
        Double(pt, button);
        Release(pt, button);
    }
    // Marks a rectangle with its tool.
    void Mark(CRect rc) {
        SelectTool(ETool::SelectRect);
        Drag({{rc.left, rc.top}, {rc.right, rc.bottom}});
    }
    void MarkAndCopy(CRect rc) {
        Mark(rc);
        m_commands.OnCopy();
    }
    // A triangle with its corner at the upper left.
    void MarkTriangle(CPoint pt, int nSide) {
        SelectTool(ETool::SelectPolygon);
        Drag({pt, {pt.x + nSide, pt.y}});
        DoubleClick({pt.x, pt.y + nSide});
    }

    // --- what has come of it ---
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
        EXPECT_TRUE(m_clip && image.CreateFromHANDLE(*m_clip));
        return image.Pixels();
    }
    // The picture as a stroke, or what was on it before, has to leave it; with that pen and brush.
    static CSurface Page(const CPen& pen = {}, const CBrush& brush = CBrush::Hollow()) {
        CSurface page(FlatImage(60, 50, kWhite).Pixels());
        page.SelectPen(pen);
        page.SelectBrush(brush);
        return page;
    }
    static void Line(CSurface& surface, const std::vector<CPoint>& points) {
        for (std::size_t i = 1; i < points.size(); ++i) {
            surface.MoveTo(points[i - 1]);
            surface.LineTo(points[i]);
        }
    }
    // The stroke is on both stores, and one step of Undo takes back all of it and nothing else.
    void ExpectStroke(const CPixels& after, const CPixels& before = Page().Pixels()) {
        EXPECT_TRUE(Committed() == after);
        EXPECT_TRUE(Scratch() == after);
        ASSERT_EQ(m_arrSteps.size(), 1U);
        EXPECT_TRUE(m_arrSteps[0] == before);
        m_arrSteps.clear();
    }
    // The pixels of a colour, in a box.
    static int Count(const CPixels& pixels, CColor color, CRect rc = {0, 0, 60, 50}) {
        int nCount = 0;
        for (int y = rc.top; y < rc.bottom; ++y)
            for (int x = rc.left; x < rc.right; ++x) nCount += PixelAt(pixels, x, y) == color ? 1 : 0;
        return nCount;
    }
    // What is on the screen is the store, enlarged and scrolled, and the ground around it.
    void ExpectScreen(const CSurface& store) {
        ASSERT_FALSE(m_canvas.WantsPaint());
        const CPoint ptCorner = m_draw.VisibleCorner();
        const CPoint ptOrigin = m_draw.Origin();
        CSurface whole(m_canvas.ClientSize().cx, m_canvas.ClientSize().cy);
        whole.DrawPixels(m_canvas.Surface().Pixels(), 0, 0);
        whole.DrawEnlarged(store.Pixels(), {ptCorner.x, ptCorner.y, store.Width(), store.Height()},
                           ptOrigin.x, ptOrigin.y, m_tools.m_nZoom, whole.Bounds());
        ASSERT_TRUE(whole.Pixels() == m_canvas.Surface().Pixels());
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
    std::vector<CPixels> m_arrSteps;  // the picture at each snapshot
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
        if (event == EEditEvent::UndoPushed) m_arrSteps.push_back(m_images.m_stackUndo.Top().image.Pixels());
        const bool bSelection = event == EEditEvent::SelectionMade;
        if (event == EEditEvent::ClipFilled || event == EEditEvent::Cropped)
            m_controls.Enable(kCmdPaste, event == EEditEvent::ClipFilled);
        if (!bSelection && event != EEditEvent::SelectionGone && event != EEditEvent::Cropped) return;
        for (const int nId : {kCmdCut, kCmdCopy, kCmdCrop}) m_controls.Enable(nId, bSelection);
    }
    void PickColor(bool bForeground, CColor color) override {
        (bForeground ? m_tools.m_crForeground : m_tools.m_crBackground) = color;
    }
    void SetTimer(CTimerTarget& /*target*/, int nTimer, int nMilliseconds) override {
        EXPECT_EQ(std::pair(nTimer, nMilliseconds), std::pair(CPaintEnvironment::kSprayTimer, 0));
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
