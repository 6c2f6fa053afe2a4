#pragma once

#include "window/Events.h"
#include "window/IconListModel.h"

// What a list of icons makes of the user's hand: the one rule of which event its logic hears of, and when.
// The window tells it what the mouse does; what the hand selects meanwhile is the window's business. nItem is
// what lies below the mouse, -1 beside all items.
class CIconListHand {
  public:
    // The list outlives the hand.
    explicit CIconListHand(CIconListModel& icons) : m_icons(icons) {}

    void OnPress(int nItem);
    void OnRightPress(int nItem);
    // bFar: too far from where the button went down for a click.
    void OnMove(bool bFar);
    // bInside: still over the list. Comes when the release has selected what it selects.
    void OnRelease(int nItem, bool bInside, bool bFar);
    // Behind the press and the release of the first click, before the release of the second.
    void OnDoubleClick(int nItem);
    // False for a key that the list's logic does not want.
    bool OnKey(const CKeyEvent& event);

    // A rubber band starts on the ground only: what is drawn along from an item is on its way out of the
    // list.
    bool IsOnItem() const { return m_press == EPress::Item || m_press == EPress::Drag; }
    // What is held has left its place, and its release is no click.
    bool IsDragging() const { return m_press == EPress::Drag; }
    // The items are new: what is held is none of them.
    void Forget() { m_press = EPress::None; }

  private:
    // Where the left button went down, and what has come of it.
    enum class EPress { None, Ground, Item, Drag };

    CIconListModel& m_icons;
    EPress m_press = EPress::None;
};
