#pragma once

#include <vector>

#include "paint/OptionGlyphs.h"

// The options of a tool, laid out over the whole option panel.
class COptionGrid {
  public:
    // Gives the grid its rectangles in client pixels. The glyphs outlive the grid.
    void Layout(const CRect& rcPanel, const COptionGlyphs& glyphs);

    // The first option that holds the point is selected; beside all of them nothing changes.
    void HitTest(CPoint pt);

    int Selected() const { return m_nSel; }
    void Select(int nOption) { m_nSel = nOption; }

    // Every option, and the selected one over its normal form. The ground is there already.
    void Draw(CClientArea& client) const;

  private:
    int m_nSel = 0;
    std::vector<CRect> m_arrRects;
    const COptionGlyphs* m_pGlyphs = nullptr;
};
