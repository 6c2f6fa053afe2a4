#pragma once

#include <array>
#include <vector>

#include "engines/warp/GreyView.h"

// A mask in perspective: its four corners at four places of a box. The map of the unit square onto a
// quadrilateral (P. Heckbert, "Fundamentals of Texture Mapping and Image Warping", 1989) and its inverse, by
// which each pixel of the box finds its place in the mask; between pixels the mask is sampled bilinearly.
//
// Coefficients and places are single-precision numbers, each formed from double-precision arithmetic, and the
// order of the operations is part of the result. Corners that give no map (three on a line, no numbers, the
// infinite) give no ink, as does a place at the mask's outermost pixels or beyond.
class CProjection {
  public:
    // quad: x0, y0 to x3, y3 in pixels of the box; top left, top right, bottom right, bottom left. The mask,
    // at least 1 by 1, has to outlive this object and to have 4 bytes behind its last pixel that may be read.
    // Rows have the columns of the box from nFirst to nFirst + nCount - 1. May throw std::bad_alloc.
    CProjection(CConstGreyView mask, const std::array<float, 8>& quad, int nFirst, int nCount);

    // Writes these columns of row y of the box, y from 0 on.
    void Row(int y, std::uint8_t* pOut) const;

    // The share of a column, of a row, and of neither in a place, all over the shares in z.
    struct CShares {
        double fColumn = 0;
        double fRow = 0;
        double fFixed = 0;
    };

  private:
    void FindShares(const std::array<float, 8>& quad);

    CConstGreyView m_mask;
    bool m_bMap = true;  // the corners give a map
    CShares m_s;
    CShares m_t;
    CShares m_z;
    std::vector<double> m_arrColumn;  // each column over the mask's width
};
