#pragma once

#include "resources/BitmapIds.h"
#include "window/ClientArea.h"

// The picture that runs in a dialog while the phone is waited for, as a step of a flow sees it.
class CRunningPicture {
  public:
    virtual ~CRunningPicture() = default;
    // It stands still from here on.
    virtual void StopPicture() = 0;
};

// What stands on the ground of such a dialog. It is kept, so that the window has it from its first moment and
// whenever all of it is painted anew.
struct CPictureStep {
    int nFrame = 0;  // numbers of bitmaps
    int nStrip = 0;  // 0: none

    void Draw(CClientArea& client) const {
        client.DrawBitmap(nFrame, kLinkFrameAt.x, kLinkFrameAt.y);
        if (nStrip != 0) client.DrawBitmap(nStrip, kLinkStripAt.x, kLinkStripAt.y);
    }
};
