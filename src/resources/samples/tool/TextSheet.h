#pragma once

#include <string>
#include <vector>

#include "Vec.h"

// A printed sheet of paper: how much ink lies at a place, 0..1.
class CTextSheet {
  public:
    struct CLine {
        std::string strText;
        int x;          // left edge, in pixels of the sheet
        int nBase;      // the line on which the characters stand, from the top
        int nSize;      // height of a character
        bool bCentred;  // about x
    };

    // A sheet that shows nothing if the face is not installed.
    CTextSheet(int nWidth, int nHeight, const std::vector<CLine>& lines);

    // u runs right and v down, both in 0..1 over the sheet.
    float InkAt(float u, float v) const;

  private:
    int m_nWidth;
    int m_nHeight;
    std::vector<float> m_ink;
};
