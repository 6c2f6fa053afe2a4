#pragma once

#include "app/Workshop.h"
#include "resources/ToolTable.h"

// The main window in DRAW, with a hand on the picture and on the panel.
class PaintWorkshop : public Workshop {
  protected:
    const CToolState& Tools() const { return m_dialog.Tools().State(); }
    CMySCrollView& Canvas() { return m_dialog.Canvas(); }
    CDrawGuest& Draw() { return m_dialog.Draw(); }
    void Tool(ETool tool) { Click(FindToolButton(tool)); }
    void Window(EMouseAction action, CPoint pt, EMouseButton button = EMouseButton::Left) {
        EXPECT_EQ(m_host.MouseOnWindow(action, button, pt), "");
    }
    void PressWindow(CPoint pt) {
        Window(EMouseAction::Press, pt);
        Window(EMouseAction::Release, pt);
    }
    // As a hand does it: a whole click comes first.
    void DoubleClickWindow(CPoint pt, EMouseButton button) {
        for (const EMouseAction action :
             {EMouseAction::Press, EMouseAction::Release, EMouseAction::DoubleClick, EMouseAction::Release})
            Window(action, pt, button);
    }
    // On the canvas, in picture pixels at zoom 1.
    void Mouse(EMouseAction action, CPoint pt, EMouseButton button = EMouseButton::Left) {
        const CPoint ptOrigin = Draw().Origin();
        if (action == EMouseAction::Move) button = EMouseButton::None;
        EXPECT_EQ(m_host.MouseOnView(kCanvas, action, button, {pt.x + ptOrigin.x, pt.y + ptOrigin.y}), "");
    }
    void Drag(CPoint ptFrom, CPoint ptTo) {
        Mouse(EMouseAction::Press, ptFrom);
        Mouse(EMouseAction::Move, ptTo);
        Mouse(EMouseAction::Release, ptTo);
    }
    void OpenInDraw(int nWidth, int nHeight) {
        OpenNumbered(nWidth, nHeight);
        GoTo(EMode::Draw);
    }
};
