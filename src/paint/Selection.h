#pragma once

#include "image/Image.h"
#include "paint/FreeOutline.h"
#include "paint/Hand.h"
#include "resources/ToolTable.h"
#include "surface/Surface.h"

// What is selected, and what floats over the picture. The outline that a selection tool leaves becomes a
// region only when a command needs it. The region outlives the selection: it is the shape of what was last
// copied or cut, and a paste uses it as the mask of the clipboard's picture.
class CSelection {
  public:
    // Outside of the region, and where it lies beside the picture.
    static constexpr CColor kBeside{255, 255, 255};

    CRect m_rcSelect;  // the rectangle as it was drawn, corners in any order; else the region's box
    CFreeOutline m_free;
    CRegion m_region;
    CxImage m_imgFloat;  // the floating pixels; its corner is that of the region's box

    // Something has been marked that can be copied, cut or cropped to.
    bool IsMarked() const { return m_bSelection; }
    void Mark() { m_bSelection = true; }
    void Unmark() { m_bSelection = false; }
    // Copy or Cut has run, so that Paste may run. That stays for the whole run.
    bool IsClipReady() const { return m_bClipReady; }
    void SetClipReady() { m_bClipReady = true; }
    // A pasted selection floats over the picture.
    bool IsFloating() const { return m_bFloating; }
    void SetFloating(bool bFloating) { m_bFloating = bFloating; }

    // Makes the region of what the selection tool has marked. False, and the region stays, if
    // nothing is inside.
    [[nodiscard]] bool Build(ETool tool, const CHand& hand);

    // The pixels of the region in a picture as large as its box. Empty if memory is short.
    [[nodiscard]] CPixels Lift(const CSurface& surface) const;

    // Moves the region so that its box begins at pt.
    void MoveTo(CPoint pt);
    // The pixels of the float that lie in the region.
    void DrawFloat(CSurface& surface) const;
    // What DrawFloat and the outline may have touched.
    CRect FloatBox() const;
    // The dotted line around the float.
    void DrawFloatOutline(CSurface& surface) const;

  private:
    bool m_bSelection = false;
    bool m_bClipReady = false;
    bool m_bFloating = false;
};

// The pen of selections.
inline CPen SelectionPen() {
    return CPen::Dotted(PenStyle::kDot, {0, 0, 0});
}
