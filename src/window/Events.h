#pragma once

#include "image/Geometry.h"

// What the user's hands send. Points are client pixels of the window that gets the event.

enum class EMouseAction { Move, Press, Release, DoubleClick };
enum class EMouseButton { None, Left, Right };

// The platform's flags word of a mouse message.
inline constexpr unsigned kMouseLeftDown = 1;
inline constexpr unsigned kMouseRightDown = 2;
inline constexpr unsigned kMouseShift = 4;
inline constexpr unsigned kMouseCtrl = 8;

struct CMouseEvent {
    EMouseAction action = EMouseAction::Move;
    EMouseButton button = EMouseButton::None;  // the one that acts; None for a move
    CPoint pt;
    unsigned nFlags = 0;  // kMouse..., as they are while the event happens
};

// Key codes as the platform numbers them; letters and digits are their upper-case characters.
inline constexpr int kKeyEnter = 13;
inline constexpr int kKeyEscape = 27;
inline constexpr int kKeySpace = 32;
inline constexpr int kKeyPageUp = 33;
inline constexpr int kKeyPageDown = 34;
inline constexpr int kKeyEnd = 35;
inline constexpr int kKeyHome = 36;
inline constexpr int kKeyLeft = 37;
inline constexpr int kKeyUp = 38;
inline constexpr int kKeyRight = 39;
inline constexpr int kKeyDown = 40;
inline constexpr int kKeyDelete = 46;

struct CKeyEvent {
    int nKey = 0;
    bool bCtrl = false;
    bool bShift = false;
};

// What a control tells its dialog beside a plain click.
// TextChanged comes with every change that the user makes, TextDone when he leaves the edit. A CheckTable
// tells RightClicked, and a TextList DoubleClicked.
enum class ENotice {
    SelectionChanged,
    TextChanged,
    TextDone,
    Scrolled,
    Clicked,
    DoubleClicked,
    RightClicked
};
