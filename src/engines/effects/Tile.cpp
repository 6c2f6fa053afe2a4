// Tile: white joints of random thickness, as between ceramic tiles.

#include <algorithm>

#include "engines/effects/ColourRows.h"
#include "engines/effects/Effects.h"

namespace {

constexpr int kMaxThickness = 3;

// The side of a tile, twenty full-picture pixels a level; 0 if there is none. It is kept below the picture's
// smaller side, but it is compared as a number of 16 bits: beyond them a side can count as a negative one and
// pass, and then one tile or a row of them is all there is.
int TileSide(const CEffectCall& call) {
    const int w = call.src.nWidth;
    const int h = call.src.nHeight;
    if (call.nLevel <= 0 || std::min(w, h) < 2) return 0;
    const std::uint64_t nUnit = static_cast<std::uint64_t>(w) * 20;
    const std::uint64_t nLevel = std::min(static_cast<std::uint64_t>(call.nLevel), UINT64_MAX / nUnit);
    const std::uint64_t nSide = nUnit * nLevel / static_cast<std::uint64_t>(call.nRefWidth);
    const auto nCompared = static_cast<std::int16_t>(nSide);
    if (nCompared >= w || nCompared >= h) return std::min(w, h) - 1;
    return static_cast<int>(std::min(nSide, std::uint64_t{INT32_MAX}));
}

class CJoints {
  public:
    CJoints(CPixelView dst, int nSide) : m_dst(dst), m_nSide(nSide) {}

    // The joints of the tile with the corner (x, y). Thickness counts down from the top, and to the right.
    void Draw(int x, int y, int nTop, int nLeft) const {
        const int nRows = std::min(m_nSide, m_dst.nHeight - y);
        for (int i = 0; i < nRows; ++i) Whiten(x, y + i, nLeft);
        const int nColumns = std::min(m_nSide, m_dst.nWidth - x);
        for (int j = 0; j < std::min(nTop, m_dst.nHeight - y); ++j) Whiten(x, y + j, nColumns);
    }

  private:
    // n pixels from (x, y) on: what reaches past the right edge runs on in the next row, if there is one.
    void Whiten(int x, int y, int n) const {
        std::uint8_t* const p = m_dst.Row(y) + 3 * static_cast<std::ptrdiff_t>(x);
        const std::uint8_t* const pEnd =
            m_dst.pBits + m_dst.Stride() * static_cast<std::size_t>(m_dst.nHeight);
        std::fill_n(p, std::min<std::ptrdiff_t>(3 * static_cast<std::ptrdiff_t>(n), pEnd - p),
                    std::uint8_t{255});
    }

    CPixelView m_dst;
    int m_nSide;
};

// The way of every pixel through luma and chroma and back, which changes some colours a little.
void RoundTrip(const CEffectCall& call, int nFromRow, int nToRow) {
    const std::size_t nStart = call.src.Stride() * static_cast<std::size_t>(nFromRow);
    const std::size_t nPixels =
        static_cast<std::size_t>(call.src.nWidth) * static_cast<std::size_t>(nToRow - nFromRow);
    CChunk yuv;
    for (std::size_t i = 0; i < nPixels; i += kChunkPixels) {
        const std::size_t n = std::min(kChunkPixels, nPixels - i);
        RgbToYuv(call.src.pBits + nStart + 3 * i, yuv.a, yuv.b, yuv.c, n);
        YuvToRgb(yuv.a, yuv.b, yuv.c, call.dst.pBits + nStart + 3 * i, n);
    }
}

}  // namespace

// Two random numbers a tile, tile by tile from the left, row by row from the top: first the thickness of the
// joint along its top, then of the one down its left side, 1 to 3 pixels each. A tile that would have no
// pixels leaves the picture as it is and takes no random numbers, and so does a picture with a side of one
// pixel.
void Tile(const CEffectCall& call) {
    const int w = call.src.nWidth;
    const int h = call.src.nHeight;
    const int nSide = TileSide(call);
    if (nSide <= 0) return CopyPicture(call);

    const CJoints joints(call.dst, nSide);
    // Rows are made shortly before the joints in them. A joint can reach into the row below its tiles, but
    // that one becomes white as a whole by the next tiles' own.
    for (std::int64_t y = 0; y < h; y += nSide) {
        RoundTrip(call, static_cast<int>(y), static_cast<int>(std::min<std::int64_t>(y + nSide, h)));
        for (std::int64_t x = 0; x < w; x += nSide) {
            const int nTop = call.random.Next() % kMaxThickness + 1;
            const int nLeft = call.random.Next() % kMaxThickness + 1;
            joints.Draw(static_cast<int>(x), static_cast<int>(y), nTop, nLeft);
        }
    }
}
