#pragma once

#include "surface/Surface.h"
#include "window/Events.h"

// Whoever owns the mouse, the painting and the timers of the canvas in a mode. Without a guest the canvas
// shows the display image and brings up the picture menu.
class CCanvasGuest {
  public:
    virtual ~CCanvasGuest() = default;
    // The size in pixels of the picture that it shows, before any zoom: the frame goes around it.
    virtual CSize PictureSize() const = 0;
    // Draws the picture and what it has on it; ground and frame are there. ptPicture is where the frame has
    // the picture's top left corner, in client pixels.
    virtual void OnDraw(CSurface& surface, CPoint ptPicture) = 0;
    // With a picture open. Points are client pixels of the canvas.
    virtual void OnMouse(const CMouseEvent& event) = 0;
    virtual void OnTimer(int nTimer) = 0;
};
