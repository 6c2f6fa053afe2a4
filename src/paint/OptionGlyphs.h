#pragma once

#include <vector>

#include "window/ClientArea.h"

// The looks of one kind of options: where each stands in the panel and what is drawn there.
class COptionGlyphs {
  public:
    virtual ~COptionGlyphs() = default;
    // The options' rectangles in their order. They may overlap and reach beyond the panel.
    virtual std::vector<CRect> Layout(const CRect& rcPanel) const = 0;
    // The option numbered nOption, from 0 on, in its rectangle. A selected one is drawn over its normal form.
    virtual void DrawNormal(CClientArea& client, const CRect& rc, int nOption) const = 0;
    virtual void DrawSelected(CClientArea& client, const CRect& rc, int nOption) const = 0;

  protected:
    static constexpr CColor kBlack{0, 0, 0};
    static constexpr CColor kWhite{255, 255, 255};
    // Two dark blues that hardly differ.
    static constexpr CColor kBarBlue = CColor::FromRef(0x7F0000);
    static constexpr CColor kFieldBlue = CColor::FromRef(0x800000);

    // The fraction cut.
    static CPoint Middle(const CRect& rc) { return {(rc.left + rc.right) / 2, (rc.top + rc.bottom) / 2}; }
    static CRect Inset(const CRect& rc, int n) {
        return {rc.left + n, rc.top + n, rc.right - n, rc.bottom - n};
    }
    // The box around a point that reaches nHalf pixels to the left and up, and as many less one to the right
    // and down.
    static CRect Around(CPoint pt, int nHalf) {
        return {pt.x - nHalf, pt.y - nHalf, pt.x + nHalf, pt.y + nHalf};
    }
};
