#pragma once

#include <functional>

#include "canvas/MySCrollView.h"
#include "compose/TextHandles.h"

// FONT's guest on the canvas: draws the shape's lines over the picture and lets the hand change the shape. A
// drag costs lines on the screen only; the words follow when the button is up.
class CTextGuest : public CCanvasGuest {
  public:
    // All of these outlive the guest.
    struct CEnvironment {
        const CWorkingImages& images;
        CMySCrollView& canvas;
        TextArtParam& param;
        // The button is up: the words take the shape.
        std::function<void()> fnReleased;
    };
    explicit CTextGuest(CEnvironment env) : m_env(std::move(env)) {}

    // FONT comes up with a picture: the shape stands in its middle.
    void Begin();
    // FONT goes.
    void End();
    // Lines that are hidden cannot be taken hold of either.
    void SetShowLines(bool bShow);
    const CTextHandles& Handles() const { return m_handles; }
    // The shape's lines as they are now, over the picture as it was.
    void ShowLines();

    // --- CCanvasGuest ---
    CSize PictureSize() const override { return m_env.images.m_imgDisplay.GetSize(); }
    CPoint PictureAt(CSize /*sizeClient*/) const override { return View().PictureAt(); }
    void OnDraw(CSurface& surface, CPoint ptPicture) override;
    void OnMouse(const CMouseEvent& event) override;
    void OnTimer(int /*nTimer*/) override {}

  private:
    CTextView View() const;
    CRect LinesBox() const;
    void DrawLines(CSurface& surface) const;
    void Press(CPoint pt, bool bShift);
    void Move(CPoint pt, unsigned nFlags);
    bool Drag(const CTextView& view, CPoint pt, unsigned nFlags);
    void Release();

    CEnvironment m_env;
    CTextHandles m_handles;
    bool m_bTextHandles = false;
    bool m_byShowLines = true;
    bool m_bTextButton = false;
    // A shape is being drawn anew from here.
    bool m_bRubber = false;
    CPoint m_ptRubberStart;
    // The whole shape moves from here.
    bool m_bMove = false;
    CPoint m_ptMoveStart;
    int m_nHit = -1;  // the point in the hand
    CRect m_rcLines;  // on the screen
};
