#pragma once

class CClientArea;

// A dialog as somebody sees it who draws a part of it.
class CPanelHost {
  public:
    virtual ~CPanelHost() = default;
    // What the dialog has drawn of itself, to draw on at once.
    virtual CClientArea& Client() = 0;
    // Brings to the screen what was so drawn outside of a paint.
    virtual void Present() = 0;
    // Asks for a paint of the whole dialog.
    virtual void Invalidate() = 0;
};
