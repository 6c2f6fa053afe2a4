#pragma once

#include <vector>

#include "paint/OptionGlyphs.h"
#include "paint/SkinItem.h"

// The kinds of grids: m_nOptNum. Line and curve differ in the number only.
enum EOptNum {
    kOptNone = -1,
    kOptEraser = 1,
    kOptSpray = 4,
    kOptLine = 5,
    kOptZoom = 10,
    kOptBrush = 11,
    kOptCurve = 13,
    kOptFill = 14,
};

// The options of a tool, laid out over the whole option panel.
class COptionGrid : public CSkinItem {
  public:
    COptionGrid() : CSkinItem({}, kEdgeNone) {}

    // Gives the grid its kind and its rectangles in client pixels; what is selected stays. The glyphs outlive
    // the grid.
    void Layout(const CRect& rcFrame, EOptNum nOptNum, const COptionGlyphs& glyphs);

    // The first option that holds the point is selected; beside all of them nothing changes. True if another
    // one is selected now.
    bool HitTest(CPoint pt);

    int Count() const { return static_cast<int>(m_arrRects.size()); }
    EOptNum OptNum() const { return m_nOptNum; }
    int Selected() const { return m_nSel; }
    void Select(int nOption) { m_nSel = nOption; }

    // Every option, and the selected one over its normal form. The ground is there already.
    void Draw(CClientArea& client) const override;

  private:
    int m_nSel = 0;
    EOptNum m_nOptNum = kOptNone;
    std::vector<CRect> m_arrRects;
    const COptionGlyphs* m_pGlyphs = nullptr;
};
