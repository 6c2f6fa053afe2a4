// Jigsaw: the cut lines of a puzzle with pieces of 40 pixels, a dark line with two highlights beside it, on
// the luma.
//
// A stroke always starts from the picture's own luma, so where strokes meet the last one stands alone. All
// that remains of them is therefore one change for each pixel. These changes are drawn for a block of the
// picture at a time and added while the block goes through luma and chroma.

#include <algorithm>
#include <array>

#include "engines/effects/ColourRows.h"
#include "engines/effects/Effects.h"
#include "engines/effects/FrameTables.h"
#include "image/CpuChoice.h"

namespace {

constexpr int kPiece = 40;
constexpr int kDark = -80;
constexpr int kNearLight = 20;
constexpr int kFarLight = 60;

// The columns of the straight parts of a joint across, left and right of its knob.
constexpr int kLeftEnd = 17;
constexpr int kRightBegin = 23;
// From this point on the straight part of a joint down stands so many rows lower, below its knob.
constexpr int kBelowKnob = 17;
constexpr int kKnobRows = 8;

// A block is one row of so many pieces: long, since memory comes faster when it is walked on and on. Around
// it lies a margin for the strokes that start or end outside.
constexpr int kBlockWidth = 100 * kPiece;
constexpr int kMargin = 16;
constexpr int kPitch = kBlockWidth + 2 * kMargin;
constexpr int kRows = kPiece + 2 * kMargin;

// The points of the joints, in the order in which they are drawn. A run of points ends at the first one
// outside the picture.
struct CPuzzle {
    int nWidth;
    int nHeight;

    int PiecesAcross() const { return (nWidth + kPiece - 1) / kPiece; }
    bool Has(int x, int y) const { return x < nWidth && y < nHeight; }

    // The knob of the joint above the piece with the corner (x, y). One in four hangs down, three stand up.
    bool HangsDown(int x, int y) const { return ((y / kPiece - 1) * PiecesAcross() + x / kPiece) % 4 == 0; }
    template <class TStroke>
    void KnobAcross(int x, int y, TStroke stroke) const {
        const int nDown = HangsDown(x, y) ? 1 : -1;
        for (const CJigsawPoint& pt : kJigsawKnobAcross) {
            if (!Has(x + pt.dx, y + nDown * pt.dy)) break;
            stroke(x + pt.dx, y + nDown * pt.dy);
        }
    }

    // The joint left of the piece with the corner (x, y). One knob in three points left, two point right.
    template <class TStroke>
    void JointDown(int x, int y, TStroke stroke) const {
        const int nCounter = y / kPiece * (PiecesAcross() - 1) + x / kPiece - 1;
        const int nRight = nCounter % 3 != 0 ? 1 : -1;
        for (int k = 0; k < static_cast<int>(kJigsawWobble.size()); ++k) {
            const int xPoint = x + nRight * kJigsawWobble[static_cast<std::size_t>(k)];
            const int yPoint = y + k + (k >= kBelowKnob ? kKnobRows : 0);
            if (!Has(xPoint, yPoint)) break;
            stroke(xPoint, yPoint);
        }
        for (const CJigsawPoint& pt : kJigsawKnobDown) {
            if (!Has(x + nRight * pt.dx, y + pt.dy)) break;
            stroke(x + nRight * pt.dx, y + pt.dy);
        }
    }
};

// The changes of luma in a block. All of a joint across, with its knob, comes before any joint down.
class CChanges {
  public:
    CChanges(const CPuzzle& puzzle, int x, int y) : m_puzzle(puzzle), m_x(x), m_y(y) {
        // The margins above and below are never read.
        std::fill(m_changes.begin() + kMargin * kPitch, m_changes.end() - kMargin * kPitch, std::int8_t{0});
        DrawJointAbove();
        DrawKnobsBelow();
        const int xEnd = std::min(x + kBlockWidth + kPiece, puzzle.nWidth);
        for (int xJoint = std::max(x, kPiece); xJoint < xEnd; xJoint += kPiece)
            puzzle.JointDown(xJoint, y, [this](int xPoint, int yPoint) { StrokeDown(xPoint, yPoint); });
        if (x == 0 && puzzle.nWidth > kPiece) {
            if (y > 0) DrawOverhang(y - kPiece);
            DrawOverhang(y);
        }
    }
    CChanges(const CChanges&) = delete;
    CChanges& operator=(const CChanges&) = delete;

    // The changes of row y of the picture from the block's first column on.
    const std::int8_t* Row(int y) const { return &m_changes[Place(m_x, y)]; }

  private:
    std::size_t Place(int x, int y) const {
        const int nPlace = (y - m_y + kMargin) * kPitch + x - m_x + kMargin;
        return static_cast<std::size_t>(nPlace);
    }

    int EndAcross() const { return std::min(m_x + kBlockWidth, m_puzzle.nWidth); }

    void DrawJointAbove() {
        if (m_y == 0) return;
        for (int x = m_x; x < EndAcross(); x += kPiece) {
            DrawLine(x, x + kLeftEnd);
            DrawLine(x + kRightBegin, x + kPiece);
            m_puzzle.KnobAcross(x, m_y, [this](int xPoint, int yPoint) { StrokeAcross(xPoint, yPoint); });
        }
    }

    // Of the joint below only the knobs that stand up reach into the block.
    void DrawKnobsBelow() {
        const int y = m_y + kPiece;
        if (y >= m_puzzle.nHeight) return;
        for (int x = m_x; x < EndAcross(); x += kPiece)
            if (!m_puzzle.HangsDown(x, y))
                m_puzzle.KnobAcross(x, y, [this](int xPoint, int yPoint) { StrokeAcross(xPoint, yPoint); });
    }

    // A part of the straight line on top of the block, which near the end of the picture needs a closer
    // look.
    void DrawLine(int xFrom, int xTo) {
        xTo = std::min(xTo, EndAcross());
        if (m_y + 2 >= m_puzzle.nHeight - 1) {
            for (int x = xFrom; x < xTo; ++x) StrokeAcross(x, m_y);
            return;
        }
        if (xFrom >= xTo) return;
        std::int8_t* const p = &m_changes[Place(xFrom, m_y)];
        std::fill_n(p, xTo - xFrom, std::int8_t{kDark});
        std::fill_n(p + kPitch, xTo - xFrom, std::int8_t{kNearLight});
        std::fill_n(p + 2 * kPitch, xTo - xFrom, std::int8_t{kFarLight});
    }

    // The lights lie below the line. In the last row only the first pixel takes one.
    void StrokeAcross(int x, int y) {
        std::int8_t* const p = &m_changes[Place(x, y)];
        const int nLast = m_puzzle.nHeight - 1;
        p[0] = kDark;
        if (y + 1 < nLast || (y + 1 == nLast && x == 0)) p[kPitch] = kNearLight;
        if (y + 2 < nLast || (y + 2 == nLast && x == 0)) p[2 * kPitch] = kFarLight;
    }

    // The lights lie right of the line; what they have outside the row is drawn by DrawOverhang.
    void StrokeDown(int x, int y) {
        std::int8_t* const p = &m_changes[Place(x, y)];
        p[0] = kDark;
        p[1] = kNearLight;
        p[2] = kFarLight;
    }

    // The lights of the last joint in the row of pieces at y that reach past the right edge: they fall on the
    // first pixels of the next row.
    void DrawOverhang(int y) {
        const int w = m_puzzle.nWidth;
        const int xJoint = (m_puzzle.PiecesAcross() - 1) * kPiece;
        m_puzzle.JointDown(xJoint, y, [this, w](int xPoint, int yPoint) {
            if (yPoint + 1 < m_y || yPoint + 1 >= m_y + kPiece) return;
            if (xPoint + 1 >= w) m_changes[Place(xPoint + 1 - w, yPoint + 1)] = kNearLight;
            if (xPoint + 2 >= w) m_changes[Place(xPoint + 2 - w, yPoint + 1)] = kFarLight;
        });
    }

    CPuzzle m_puzzle;
    int m_x;
    int m_y;
    alignas(64) std::array<std::int8_t, static_cast<std::size_t>(kRows) * kPitch> m_changes;
};

FOTARIUM_INLINE void AddChanges(std::uint8_t* pY, const std::int8_t* pChanges, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        const auto nSum = static_cast<std::int16_t>(pY[i] + pChanges[i]);
        const std::int16_t nAboveZero = nSum < 0 ? std::int16_t{0} : nSum;
        pY[i] = static_cast<std::uint8_t>(nAboveZero > 255 ? std::int16_t{255} : nAboveZero);
    }
}

#if FOTARIUM_HAS_AVX2
FOTARIUM_AVX2 void AddChangesWide(std::uint8_t* pY, const std::int8_t* pChanges, std::size_t n) {
    AddChanges(pY, pChanges, n);
}
#endif

// nPixels of row y from column x on.
void MakeRow(const CEffectCall& call, int x, int y, int nPixels, const std::int8_t* pChanges) {
    const std::ptrdiff_t nOffset = 3 * static_cast<std::ptrdiff_t>(x);
    const std::uint8_t* const pSrc = call.src.Row(y) + nOffset;
    std::uint8_t* const pDst = call.dst.Row(y) + nOffset;
    const auto nAll = static_cast<std::size_t>(nPixels);
    CChunk yuv;
    for (std::size_t i = 0; i < nAll; i += kChunkPixels) {
        const std::size_t n = std::min(kChunkPixels, nAll - i);
        RgbToYuv(pSrc + 3 * i, yuv.a, yuv.b, yuv.c, n);
#if FOTARIUM_HAS_AVX2
        if (UseAvx2()) {
            AddChangesWide(yuv.a, pChanges + i, n);
        } else
#endif
            AddChanges(yuv.a, pChanges + i, n);
        YuvToRgb(yuv.a, yuv.b, yuv.c, pDst + 3 * i, n);
    }
}

}  // namespace

void Jigsaw(const CEffectCall& call) {
    const int w = call.src.nWidth;
    const int h = call.src.nHeight;
    for (int y = 0; y < h; y += kPiece) {
        for (int x = 0; x < w; x += kBlockWidth) {
            const CChanges changes({w, h}, x, y);
            const int nPixels = std::min(kBlockWidth, w - x);
            for (int yRow = y; yRow < std::min(y + kPiece, h); ++yRow)
                MakeRow(call, x, yRow, nPixels, changes.Row(yRow));
        }
    }
}
