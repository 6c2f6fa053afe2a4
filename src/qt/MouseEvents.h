#pragma once

#include <QMouseEvent>

#include "window/Events.h"

// A mouse event of Qt's as the logic takes it, at the given point. The button is None for all but left and
// right.
CMouseEvent MakeMouseEvent(const QMouseEvent& event, QPoint pt);

// Gets every mouse event that no control keeps for itself and hands it to what the mouse is over. Qt sends
// all events while a button is held to where it was pressed; the logic counts on the platform that does not.
class CMouseRouter {
  public:
    virtual ~CMouseRouter() = default;
    virtual void Route(const QMouseEvent& event) = 0;
};
