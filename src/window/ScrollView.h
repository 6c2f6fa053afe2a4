#pragma once

#include "surface/Surface.h"
#include "window/Cursor.h"
#include "window/Events.h"
#include "window/Timers.h"

// The window that shows a scrolling view.
class CViewHost {
  public:
    virtual ~CViewHost() = default;
    // The view wants its Paint called before the next event.
    virtual void OnPaintWanted() = 0;
    // Pixels of the view's surface have changed; TakeDamage() tells which.
    virtual void OnDrawn() = 0;
    // Scroll sizes or position have changed.
    virtual void OnScrollChanged() = 0;
    virtual void OnCursorChanged() = 0;
};

// A view on something larger than itself. It draws into a surface of its client area, which the host copies
// to the screen; the scroll bars take their room from the client area when the content does not fit, as the
// platform's do.
class CScrollView : public CTimerTarget {
  public:
    // Width of a vertical and height of a horizontal scroll bar.
    static constexpr int kScrollBarPixels = 16;

    explicit CScrollView(CSize sizeOuter);
    ~CScrollView() override = default;
    CScrollView(const CScrollView&) = delete;
    CScrollView& operator=(const CScrollView&) = delete;

    // Size of the content in pixels. A position that no longer fits is brought back into the range.
    void SetScrollSizes(CSize sizeContent);
    CSize ScrollSizes() const { return m_sizeContent; }
    // Top left corner of what is seen, limited to the range.
    void ScrollTo(CPoint pt);
    CPoint ScrollPosition() const { return m_ptScroll; }
    // Largest scroll position; 0 in a direction that needs no bar.
    CPoint ScrollLimit() const;
    bool HasHorizontalBar() const { return m_bHorizontalBar; }
    bool HasVerticalBar() const { return m_bVerticalBar; }

    CSize OuterSize() const { return m_sizeOuter; }
    // The outer size less the scroll bars that are up.
    CSize ClientSize() const;
    const CSurface& Surface() const { return m_surface; }

    // A mouse event in the client area.
    virtual void OnMouse(const CMouseEvent& /*event*/) {}
    void OnTimer(int /*nTimer*/) override {}

    // What the mouse looks like over the view.
    void SetCursor(ECursor cursor);
    ECursor Cursor() const { return m_cursor; }

    void Invalidate();
    bool WantsPaint() const { return m_bWantsPaint; }
    // Draws the client area if that is wanted.
    void Paint();
    // The box of the client area that has been drawn on since the last call.
    CRect TakeDamage();
    // Null to detach.
    void Attach(CViewHost* pHost) { m_pHost = pHost; }

  protected:
    // Draws all that is seen. Coordinates are client pixels: the scroll position has still to be taken off.
    virtual void OnDraw(CSurface& surface) = 0;
    // For drawing at once, outside of OnDraw; Drawn tells the host afterwards which box has changed.
    CSurface& ClientSurface() { return m_surface; }
    void Drawn(const CRect& rc);

  private:
    void LayOutBars();

    CSize m_sizeOuter;
    CSize m_sizeContent;
    CPoint m_ptScroll;
    ECursor m_cursor = ECursor::Arrow;
    bool m_bHorizontalBar = false;
    bool m_bVerticalBar = false;
    bool m_bWantsPaint = true;
    CSurface m_surface;
    CRect m_rcDamage;
    CViewHost* m_pHost = nullptr;
};
