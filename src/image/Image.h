#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "image/Color.h"
#include "image/ColorSpace.h"
#include "image/Geometry.h"
#include "image/ImageType.h"
#include "image/PixelView.h"
#include "image/Pixels.h"
#include "image/SharedBytes.h"
#include "image/TextRasterizer.h"

// A picture: 24-bit pixels, an alpha plane if its file had one, and what goes with it into a file. Copy
// construction and assignment make the full copy that the program speaks of everywhere; pixels and alpha are
// shared until one of the copies is written to, so a copy costs nothing. An operation that finds no memory
// returns false and leaves the picture as it was. Nothing throws. One thread.
class CxImage {
  public:
    static constexpr int kDefaultJpegQuality = 90;
    static constexpr int kDefaultDpi = 96;

    // An empty picture.
    CxImage() = default;
    explicit CxImage(ImageType type) : m_type(type) {}
    // Loads a file as the format `type`, whatever its name or content says; IsValid tells whether that
    // worked. A JPEG's orientation mark is applied, so the picture stands upright and its upright size is its
    // size. Of a file with several pictures the first is taken. A folder, a pipe, an empty or a cut file is
    // not valid.
    CxImage(const std::string& strPath, ImageType type);
    // A picture that shares these pixels, without alpha; empty if they are.
    explicit CxImage(CPixels pixels) : m_pixels(std::move(pixels)) {}
    // A black picture; see Create. Empty if that failed.
    CxImage(int nWidth, int nHeight, int nBits = 24, ImageType type = ImageType::kUnknown);

    // Makes this a black picture of that size. Pixels always have 24 bits here; nBits may be any of 1, 4, 8,
    // 16, 24 and 32. False, and nothing changes, if a side is not above 0, the pixels would take more than 2
    // GiB or the machine lacks the memory.
    [[nodiscard]] bool Create(int nWidth, int nHeight, int nBits = 24, ImageType type = ImageType::kUnknown);
    void Copy(const CxImage& src) { *this = src; }
    // Empties the picture, which stays usable.
    void Destroy();

    // A picture that shares these pixels, without alpha. False if they are empty.
    [[nodiscard]] bool CreateFromHBITMAP(CPixels pixels);
    // Takes a packed device-independent bitmap: header, masks, colour table and rows in one block, as a
    // clipboard holds it. Uncompressed with 1, 4, 8, 16, 24 or 32 bits, or with bit masks; rows from below or
    // from above. False, and nothing changes, for anything else and for a block that is shorter than its
    // header says.
    [[nodiscard]] bool CreateFromHANDLE(std::span<const std::uint8_t> dib);
    // The picture as such a block: 24 bits, uncompressed, rows from below. Empty if the picture is not valid
    // or memory is short.
    [[nodiscard]] std::vector<std::uint8_t> CopyToHandle() const;

    bool IsValid() const { return !m_pixels.IsEmpty(); }
    int GetWidth() const { return m_pixels.Width(); }
    int GetHeight() const { return m_pixels.Height(); }
    CSize GetSize() const { return {GetWidth(), GetHeight()}; }
    // The depth of the file that it came from (1, 4, 8 or 24; alpha does not count) until it is written to,
    // then 24.
    int GetBpp() const { return m_nBpp; }
    // The format that it was loaded as or made for.
    ImageType GetType() const { return m_type; }

    // Row 0 is the BOTTOM row in these two, and only here. Outside the picture reading gives black and
    // writing does nothing. For a pixel now and then; loops walk rows of Pixels() and MutableBytes().
    CColor GetPixelColor(int x, int y) const;
    void SetPixelColor(int x, int y, CColor cr);

    // The pixels, top row first. A copy of what Pixels returns shares them.
    const CPixels& Pixels() const { return m_pixels; }
    // The pixels to write, separated from every copy; empty if memory is short.
    [[nodiscard]] std::span<std::uint8_t> MutableBytes();
    [[nodiscard]] CPixelView MutableView();
    // Takes other pixels of the same size and keeps the alpha. False, and nothing changes, for another size.
    [[nodiscard]] bool ReplacePixels(CPixels pixels);

    bool HasAlpha() const { return !m_alpha.IsEmpty(); }
    // A byte a pixel, 255 opaque, the top row first; empty without alpha.
    std::span<const std::uint8_t> Alpha() const { return {m_alpha.Data(), m_alpha.Size()}; }
    // Sets (a byte a pixel) or, with an empty span, removes the alpha. False for a wrong length or short
    // memory.
    [[nodiscard]] bool SetAlpha(std::span<const std::uint8_t> alpha);

    // Scales in place by taking the nearest pixel. nMode is the arithmetic; only 1, the fast one, exists. New
    // pixel (x, y) is old pixel (trunc(x * sx), trunc(y * sy)) with y counted from the bottom row in both
    // pictures and sx, sy = old side / new side in single precision. The same size changes nothing. False for
    // a side of 0 or less.
    [[nodiscard]] bool Resample(int nWidth, int nHeight, int nMode = 1);
    // Of the picture as Resample would make it only nRows rows from nTop on, counted from the top; they have
    // to lie inside. Empty for a side of 0 or less and if memory is short.
    [[nodiscard]] CPixels ResampledRows(CSize size, int nTop, int nRows) const;
    // Exact quarter turns: 90.0 clockwise (the left column becomes the top row), -90.0 the other way. False
    // for another angle.
    [[nodiscard]] bool Rotate(double fDegrees);
    [[nodiscard]] bool Rotate180();
    // Swaps left and right.
    [[nodiscard]] bool Mirror();
    // Swaps top and bottom: Rotate180 and Mirror in one.
    [[nodiscard]] bool Flip();
    // Spreads the luminances over the whole range.
    [[nodiscard]] bool HistogramEqualize();

    // Writes the picture as the format `type`. The file appears as a whole or not at all: on failure (no such
    // folder, no permission, a full disk, a format that cannot be written) an older file of that name is left
    // as it was.
    [[nodiscard]] bool Save(const std::string& strPath, ImageType type) const;
    // 1..100, for JPEG only. Values outside are limited.
    void SetJpegQuality(int nQuality);
    int GetJpegQuality() const { return m_nJpegQuality; }
    // Dots per inch written into a file, 1..65535. Values outside are limited.
    void SetXDPI(int nDpi);
    void SetYDPI(int nDpi);
    int GetXDPI() const { return m_nXDpi; }
    int GetYDPI() const { return m_nYDpi; }

    // Draws at natural size with the top left corner at (x, y); what lies outside the target is cut off.
    // Colours are copied, alpha is not looked at.
    void Draw(CPixelView target, int x, int y) const;
    // Draws scaled into rc: target pixel (rc.left + i, rc.top + j) takes pixel (i * width / rc.Width(),
    // j * height / rc.Height()), both counted from the top left corner, whole numbers with the fraction cut.
    void Stretch(CPixelView target, const CRect& rc) const;
    // Writes one line of text into the target, not into this picture. Its box has the left edge at x and the
    // BOTTOM edge at row y. nSize is the font's cell height in pixels. Glyph pixels (coverage 128 or more)
    // take the colour as a whole.
    static void DrawTextA(CPixelView target, CTextRasterizer& rasterizer, int x, int y,
                          const std::string& strText, CColor cr, const std::string& strFace, int nSize,
                          int nWeight, bool bItalic, bool bUnderline);

    static CColor RGBtoYUV(CColor rgb) { return ColorRGBtoYUV(rgb); }
    static CColor YUVtoRGB(CColor yuv) { return ColorYUVtoRGB(yuv); }
    static CColor RGBtoHSL(CColor rgb) { return ColorRGBtoHSL(rgb); }
    static CColor HSLtoRGB(CColor hsl) { return ColorHSLtoRGB(hsl); }

  private:
    using TurnCall = void (*)(const std::uint8_t* pSrc, std::uint8_t* pDst, int nWidth, int nHeight,
                              int nChannels);
    [[nodiscard]] bool TurnInto(TurnCall turn, CSize sizeNew);
    bool IsInside(int x, int y) const { return x >= 0 && y >= 0 && x < GetWidth() && y < GetHeight(); }

    CPixels m_pixels;
    CSharedBytes m_alpha;
    int m_nBpp = 24;
    ImageType m_type = ImageType::kUnknown;
    int m_nJpegQuality = kDefaultJpegQuality;
    int m_nXDpi = kDefaultDpi;
    int m_nYDpi = kDefaultDpi;
};

// A JPEG at a fraction of its size, for thumbnails and previews.
struct CScaledImage {
    CxImage image;   // upright; not valid if the file cannot be decoded
    CSize sizeFull;  // the upright size of the whole picture
};

// Decodes a JPEG file at the smallest of the sizes 1/8, 2/8 .. 8/8 (each side rounded up) whose upright
// picture is at least nMinWidth wide and nMinHeight high; at full size if none is. Much faster than the whole
// picture. The same files are valid as with CxImage(strPath, ImageType::kJpeg).
CScaledImage LoadJpegScaled(const std::string& strPath, int nMinWidth, int nMinHeight);
