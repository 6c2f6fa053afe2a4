#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "paint/DrawGuest.h"
#include "support/Pictures.h"

// A canvas in DRAW with a white picture, and around it a program that only remembers what it was asked.
class ToolBench : public testing::Test,
                  private CCanvasHost,
                  private CPaintHost,
                  private CTimers,
                  private CEditEvents,
                  private CMessageBoxes {
  protected:
    static constexpr CColor kWhite{255, 255, 255};
    static constexpr CColor kFore{200, 10, 20};
    static constexpr CColor kBack{10, 20, 200};
    static constexpr EMouseButton kLeft = EMouseButton::Left;
    static constexpr EMouseButton kRight = EMouseButton::Right;

    ToolBench()
        : m_editor({m_images, *this, *this}),
          m_canvas({m_state, m_images, *this}),
          m_draw({m_images, m_tools, m_canvas, m_editor, *this, *this, *this, m_random}) {
        m_canvas.SetGuest(&m_draw);
        m_tools.m_crForeground = kFore;
        m_tools.m_crBackground = kBack;
        Open(60, 50);
    }

    void Open(int nWidth, int nHeight) { Open(FlatImage(nWidth, nHeight, kWhite)); }
    void Open(const CxImage& image) {
        m_images.TakePicture(image);
        m_state.m_bImageOpen = true;
        m_state.m_nMode = EMode::Draw;
        m_draw.LoadCanvas();
        m_canvas.Paint();
    }
    void Zoom(int nZoom) {
        m_tools.m_nZoom = nZoom;
        m_draw.ApplyZoom();
        m_canvas.Paint();
    }

    // --- the hand; points are picture pixels, which may lie beside the picture ---
    CPoint ToClient(CPoint pt) const {
        const CPoint ptScroll = m_canvas.ScrollPosition();
        return {pt.x * m_tools.m_nZoom + m_draw.Origin().x - ptScroll.x,
                pt.y * m_tools.m_nZoom + m_draw.Origin().y - ptScroll.y};
    }
    void Press(CPoint pt, EMouseButton button = kLeft) {
        m_canvas.OnMouse({EMouseAction::Press, button, ToClient(pt), 0});
    }
    void Move(CPoint pt) { m_canvas.OnMouse({EMouseAction::Move, EMouseButton::None, ToClient(pt), 0}); }
    void Release(CPoint pt, EMouseButton button = kLeft) {
        m_canvas.OnMouse({EMouseAction::Release, button, ToClient(pt), 0});
    }
    void Double(CPoint pt, EMouseButton button = kLeft) {
        m_canvas.OnMouse({EMouseAction::DoubleClick, button, ToClient(pt), 0});
    }
    void Click(CPoint pt, EMouseButton button = kLeft) {
        Press(pt, button);
        Release(pt, button);
    }
    void DoubleClick(CPoint pt, EMouseButton button = kLeft) {
        Click(pt, button);
        Double(pt, button);
        Release(pt, button);
    }
    void Drag(const std::vector<CPoint>& points, EMouseButton button = kLeft) {
        Press(points.front(), button);
        for (std::size_t i = 1; i < points.size(); ++i) Move(points[i]);
        Release(points.back(), button);
    }

    // --- what has come of it ---
    const CPixels& Committed() const { return m_draw.Paper().Committed().Pixels(); }
    const CPixels& Scratch() const { return m_draw.Paper().Scratch().Pixels(); }
    // The picture as a stroke, or what was on it before, has to leave it.
    CSurface Page() const { return CSurface(FlatImage(60, 50, kWhite).Pixels()); }
    static void Line(CSurface& surface, CPoint ptFrom, CPoint ptTo) {
        surface.MoveTo(ptFrom);
        surface.LineTo(ptTo);
    }
    // The stroke is on both stores, and one step of Undo takes back all of it and nothing else.
    void ExpectStroke(const CPixels& after, const CPixels& before) {
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
    // What is on the screen is the scratch store, enlarged and scrolled; the plain form of it.
    void ExpectScreen(const CPixels& store) {
        ASSERT_FALSE(m_canvas.WantsPaint());
        const CSurface& screen = m_canvas.Surface();
        const int nZoom = m_tools.m_nZoom;
        const CPoint ptCorner{m_canvas.ScrollPosition().x / nZoom, m_canvas.ScrollPosition().y / nZoom};
        for (int y = m_draw.Origin().y; y < screen.Height(); ++y)
            for (int x = m_draw.Origin().x; x < screen.Width(); ++x) {
                const CPoint pt{(x - m_draw.Origin().x) / nZoom + ptCorner.x,
                                (y - m_draw.Origin().y) / nZoom + ptCorner.y};
                if (pt.x >= store.Width() || pt.y >= store.Height()) continue;
                ASSERT_EQ(screen.GetPixel(x, y).ToRef(), PixelAt(store, pt.x, pt.y).ToRef()) << x << "," << y;
            }
    }

    void Tick(int nTimes = 1) {
        for (int n = 0; n < nTimes; ++n) m_canvas.OnTimer(CPaintEnvironment::kSprayTimer);
    }

    CEditState m_state;
    CWorkingImages m_images;
    CToolState m_tools;
    CRandomSequence m_random;
    CEditor m_editor;
    CMySCrollView m_canvas;
    CDrawGuest m_draw;
    std::vector<CPixels> m_arrSteps;  // the picture at each snapshot
    int m_nBoxes = 0;
    bool m_bSelectionCommands = false;
    bool m_bTimer = false;

  private:
    void OnCanvasPainted() override {}
    void OnPictureMenu() override {}
    void Tell(EEditEvent event) override {
        if (event == EEditEvent::UndoPushed) m_arrSteps.push_back(m_images.m_stackUndo.Top().image.Pixels());
        if (event == EEditEvent::SelectionMade) m_bSelectionCommands = true;
    }
    EBoxAnswer Show(const CMessageBox& /*box*/) override {
        ++m_nBoxes;
        return EBoxAnswer::Ok;
    }
    void PickColor(bool bForeground, CColor color) override {
        (bForeground ? m_tools.m_crForeground : m_tools.m_crBackground) = color;
    }
    void SetTimer(CTimerTarget& /*target*/, int nTimer, int nMilliseconds) override {
        EXPECT_EQ(nTimer, 1);
        EXPECT_EQ(nMilliseconds, 0);
        m_bTimer = true;
    }
    void KillTimer(CTimerTarget& /*target*/, int /*nTimer*/) override { m_bTimer = false; }
};
