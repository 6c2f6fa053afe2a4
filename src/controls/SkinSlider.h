#pragma once

#include "window/ClientArea.h"
#include "window/ControlSet.h"
#include "window/Events.h"

// The looks and the hand of a slider that paints itself from pictures: a channel behind, a thumb with a
// transparent colour in front. Range and position are those of its control; keys, wheel, drag and pages go as
// the platform's track bar has them. Lower bound at the top, or at the left. Repaints only what has moved.
class CSkinSlider {
  public:
    // The controls outlive the slider; the control is of kind Slider. It stands upright where it is higher
    // than wide.
    CSkinSlider(CControlSet& controls, int nId);

    // What it paints on: the size of the control.
    CClientArea& Client() { return m_client; }

    // Gives it its pictures and the screen's density.
    void SetUp(CBitmaps* pBitmaps, int nDensity);

    // The thumb for the present position, in pixels of the control. The channel leaves 13 pixels free at each
    // end and one more.
    CRect ThumbRect() const;
    // Everything.
    void Paint();
    // What lies between the thumb as last painted and as it is now.
    void PaintMove();

    // The hand. True if the position has changed, which the control set then holds.
    bool OnMouse(const CMouseEvent& event);
    bool OnKey(int nKey);
    // nSteps: notches of the wheel, above 0 away from the user.
    bool OnWheel(int nSteps);
    // A press on the channel that is held goes on, a page at each call, until the thumb is under the hand.
    bool OnHeld();

    bool IsThumbHeld() const { return m_bThumbHeld; }
    // The button is held on the channel.
    bool IsPaging() const { return m_nWay != 0; }
    // A press on the channel moves the thumb this far towards it: a fifth of the range.
    int PageStep() const;

  private:
    const CControl& Control() const { return *m_controls.Find(m_nId); }
    int Along(CPoint pt) const { return m_bVertical ? pt.y : pt.x; }
    int ThumbStart() const { return Along({ThumbRect().left, ThumbRect().top}); }
    int WayTo(CPoint pt) const;
    bool MoveTo(int nPos);
    int PositionAt(CPoint pt) const;

    CControlSet& m_controls;
    int m_nId;
    bool m_bVertical;
    CClientArea m_client;
    CBitmaps* m_pBitmaps = nullptr;
    CRect m_rcPainted;          // the thumb as last painted
    bool m_bThumbHeld = false;  // the button went down on the thumb
    int m_nGrip = 0;            // where on the thumb, from its first pixel
    int m_nWay = 0;             // the button went down before (-1) or behind (1) the thumb
    CPoint m_ptHand;            // where the mouse is while it pages
};
