#pragma once

#include "surface/Surface.h"
#include "window/Events.h"

// Where a picture begins that stands in the middle of a client area, the fraction cut; 0 along a side on
// which it does not fit.
constexpr CPoint Centred(CSize sizeClient, CSize sizePicture) {
    const auto centre = [](int nClient, int nPicture) {
        return nClient > nPicture ? (nClient - nPicture) / 2 : 0;
    };
    return {centre(sizeClient.cx, sizePicture.cx), centre(sizeClient.cy, sizePicture.cy)};
}

// Whoever owns the mouse, the painting and the timers of the canvas in a mode. Without a guest the canvas
// shows the display image and brings up the picture menu.
class CCanvasGuest {
  public:
    virtual ~CCanvasGuest() = default;
    // The size in pixels of the picture that it shows, before any zoom: the frame goes around it.
    virtual CSize PictureSize() const = 0;
    // Where the picture begins in a client area of that size while nothing is scrolled: in its middle.
    virtual CPoint PictureAt(CSize sizeClient) const { return Centred(sizeClient, PictureSize()); }
    // Draws the picture and what it has on it; ground and frame are there. ptPicture is where the frame has
    // the picture's top left corner, in client pixels.
    virtual void OnDraw(CSurface& surface, CPoint ptPicture) = 0;
    // With a picture open. Points are client pixels of the canvas.
    virtual void OnMouse(const CMouseEvent& event) = 0;
    virtual void OnTimer(int nTimer) = 0;
};
