#pragma once

#include <cstdint>
#include <string>
#include <vector>

// A font as the program asks for it.
struct CTextFont {
    std::string strFace;  // UTF-8, e.g. "Tahoma"; a face that the machine lacks is replaced by one that fits
    int nHeight = 0;      // the cell's height in pixels, from the highest ascent to the lowest descent
    int nWeight = 400;    // 400 regular, 700 bold
    bool bItalic = false;
    bool bUnderline = false;
    bool operator==(const CTextFont&) const = default;
};

// Text turned into coverage: a byte a pixel, 0 outside the glyphs to 255 inside, the top row first, no row
// gap. The height is the cell's height, the width the advance of the whole line. Both are 0 for an empty
// text.
struct CTextMask {
    int nWidth = 0;
    int nHeight = 0;
    std::vector<std::uint8_t> coverage;
};

// What only the platform can do: one line of text turned into pixels.
class CTextRasterizer {
  public:
    virtual ~CTextRasterizer() = default;
    // strText is UTF-8. An empty mask if the font cannot be made.
    virtual CTextMask Rasterize(const CTextFont& font, const std::string& strText) = 0;
};
