#include <algorithm>
#include <bit>
#include <cstdint>
#include <limits>
#include <new>
#include <vector>

#include "surface/PixelBits.h"
#include "surface/Surface.h"

namespace {

constexpr int kBits = CPixelBits::kPixels;

// The runs of set bits in nOpen that hold a bit of nSeeds, which is a part of it.
std::uint64_t WholeRuns(std::uint64_t nSeeds, std::uint64_t nOpen) {
    if (((nSeeds << 1 | nSeeds >> 1) & nOpen & ~nSeeds) == 0) return nSeeds;
    // Upwards by the carry of an addition, downwards by doubled steps.
    std::uint64_t n = (((nOpen + nSeeds) ^ nOpen) & nOpen) | nSeeds;
    for (int nStep = 1; nStep < kBits; nStep *= 2) {
        n |= nOpen & n >> nStep;
        nOpen &= nOpen >> nStep;
    }
    return n;
}

// The fill of one connected area, on bits: a pixel has one that tells whether it is open, which is to say
// that it has the old colour and has not been reached, and one that tells whether it has been reached. Words
// of 64 pixels are looked at when a neighbour is reached, so that a small area costs what it covers. From a
// word the fill goes straight on, up or down, and leaves behind what it could have reached else. It takes
// three bits for each pixel of the rows that it comes near.
class CFlood {
  public:
    CFlood(CPixelView view, CColor crOld, CColor crNew, CPoint ptStart)
        : m_view(view),
          m_bits(crOld, crNew),
          m_nWords((view.nWidth + kBits - 1) / kBits),
          m_beside(static_cast<std::size_t>(m_nWords) + 2),
          m_ptStart(ptStart),
          m_arrRows(static_cast<std::size_t>(view.nHeight) + 2) {
        m_arrRows.front() = m_arrRows.back() = m_beside.data();
    }

    // Finds the area. The first pixel has the old colour.
    void Spread() {
        const int nWord = m_ptStart.x / kBits + 1;
        const std::uint64_t nSeed = std::uint64_t{1} << m_ptStart.x % kBits;
        Leave(Reach(m_ptStart.y), {m_ptStart.y, nWord, -1}, nSeed);
        while (!m_arrStops.empty()) {
            const CStop stop = m_arrStops.back();
            m_arrStops.pop_back();
            Follow(stop);
        }
    }

    // Paints what has been found and returns the box around it.
    CRect Paint() {
        CRect rc{m_view.nWidth, m_nTop, 0, m_nBottom + 1};
        for (int y = m_nTop; y <= m_nBottom; ++y) {
            const CWord* const pWords = Reach(y);
            std::uint8_t* const pRow = m_view.Row(y);
            for (int nWord = m_nFirst; nWord <= m_nLast; ++nWord) {
                const CWord& word = pWords[nWord];
                if (word.nReached == 0 || word.IsUnknown()) continue;
                m_bits.Paint(pRow + 3 * std::ptrdiff_t{kBits} * (nWord - 1), word.nReached);
                rc.left = std::min(rc.left, (nWord - 1) * kBits + std::countr_zero(word.nReached));
                rc.right = std::max(rc.right, nWord * kBits - std::countl_zero(word.nReached));
            }
        }
        return rc;
    }

  private:
    // No pixel is both open and reached, but for a word that nobody has looked at.
    struct CWord {
        bool IsUnknown() const { return (nOpen & nReached) != 0; }
        std::uint64_t nOpen = 0;
        std::uint64_t nReached = 0;
        // Those that have been reached from beside, and may be open.
        std::uint64_t nWaiting = 0;
    };
    // Words of a row that are looked at together.
    static constexpr int kTogether = 8;
    static constexpr std::uint64_t kEnds = std::uint64_t{1} << (kBits - 1) | 1;
    static constexpr CWord kUnknown{~std::uint64_t{0}, ~std::uint64_t{0}, 0};
    using CRow = std::vector<CWord>;
    // A word with pixels that wait, and which way to go on from there: 1 down, -1 up. Small, for there can be
    // many.
    class CStop {
      public:
        CStop(int y, int nWord, int nStep) : m_y(y), m_nWay(nWord * nStep) {}
        int Row() const { return m_y; }
        int Word() const { return m_nWay < 0 ? -m_nWay : m_nWay; }
        int Step() const { return m_nWay < 0 ? -1 : 1; }

      private:
        int m_y;
        int m_nWay;
    };

    // The words of a row, or of the one above the first or below the last. They count from 1; there is one
    // more at each end, in which nothing is open.
    CWord* Reach(int y) {
        CWord*& pRow = m_arrRows[PlaceOf(y)];
        if (pRow == nullptr) pRow = AddRow();
        return pRow;
    }
    static std::size_t PlaceOf(int y) {
        const int nPlace = y + 1;
        return static_cast<std::size_t>(nPlace);
    }
    CWord* AddRow() {
        CRow& row = m_arrReached.emplace_back(m_beside.size(), kUnknown);
        row.front() = row.back() = {};
        return row.data();
    }

    // The open pixels of a word. Whoever looks at one looks at its neighbours as well: memory is faster along
    // a row.
    std::uint64_t Open(CWord* pRow, int y, int nWord) {
        if (pRow[nWord].IsUnknown()) {
            const int nFirst = (nWord - 1) / kTogether * kTogether + 1;
            for (int n = nFirst; n < nFirst + kTogether && n <= m_nWords; ++n) {
                const int x = (n - 1) * kBits;
                pRow[n] = {m_bits.Find(m_view.Row(y) + std::ptrdiff_t{3} * x, m_view.nWidth - x), 0, 0};
            }
        }
        return pRow[nWord].nOpen;
    }

    // Reaches the runs of open pixels that hold one that waits, and from there on row for row.
    void Follow(const CStop& stop) {
        const int nWord = stop.Word();
        const int nStep = stop.Step();
        CWord* pRow = Reach(stop.Row());
        CWord* pBack = Reach(stop.Row() - nStep);
        int y = stop.Row();
        // What the row behind has brought here: as long as no run goes on beside it, nothing behind is new.
        std::uint64_t nKnown = 0;
        for (std::uint64_t nSeeds = pRow[nWord].nWaiting & pRow[nWord].nOpen; nSeeds != 0; y += nStep) {
            CWord& word = pRow[nWord];
            const std::uint64_t nRuns = WholeRuns(nSeeds | (word.nWaiting & word.nOpen), word.nOpen);
            word.nOpen ^= nRuns;
            word.nReached |= nRuns;
            word.nWaiting = 0;
            if ((nRuns & kEnds) != 0) LeaveBeside(pRow, {y, nWord, nStep}, nRuns);
            if (nRuns != nKnown) Leave(pBack, {y - nStep, nWord, -nStep}, nRuns);
            pBack = pRow;
            pRow = Reach(y + nStep);
            nSeeds = nKnown = nRuns & Open(pRow, y + nStep, nWord);
        }
        if (y == stop.Row()) return;
        m_nFirst = std::min(m_nFirst, nWord);
        m_nLast = std::max(m_nLast, nWord);
        m_nTop = std::min({m_nTop, stop.Row(), y - nStep});
        m_nBottom = std::max({m_nBottom, stop.Row(), y - nStep});
    }

    // Lets the pixels beside these wait that lie in the next words.
    void LeaveBeside(CWord* pRow, const CStop& stop, std::uint64_t nPixels) {
        if ((nPixels & 1) != 0)
            Leave(pRow, {stop.Row(), stop.Word() - 1, stop.Step()}, std::uint64_t{1} << (kBits - 1));
        if (nPixels >> (kBits - 1) != 0) Leave(pRow, {stop.Row(), stop.Word() + 1, stop.Step()}, 1);
    }

    // Lets those of the pixels wait that are open.
    void Leave(CWord* pRow, const CStop& stop, std::uint64_t nPixels) {
        const std::uint64_t nOpen = Open(pRow, stop.Row(), stop.Word());
        if ((nPixels & nOpen) == 0) return;
        CWord& word = pRow[stop.Word()];
        if ((word.nWaiting & nOpen) == 0) m_arrStops.push_back(stop);
        word.nWaiting |= nPixels;
    }

    CPixelView m_view;
    CPixelBits m_bits;
    int m_nWords;
    // Above the first row and below the last one.
    CRow m_beside;
    CPoint m_ptStart;
    // Each row's words, from the row above the first on; null if nothing has come near.
    std::vector<CWord*> m_arrRows;
    std::vector<CRow> m_arrReached;
    std::vector<CStop> m_arrStops;
    // The rows and words that hold what has been reached.
    int m_nTop = std::numeric_limits<int>::max();
    int m_nBottom = 0;
    int m_nFirst = std::numeric_limits<int>::max();
    int m_nLast = 0;
};

}  // namespace

bool CSurface::FloodFill(CPoint pt, CColor crOld) {
    if (!Bounds().Contains(pt) || GetPixel(pt.x, pt.y) != crOld) return false;
    if (m_brush.bHollow || m_brush.color == crOld) return true;
    const CPixelView view = m_pixels.MutableView();
    if (view.pBits == nullptr) return false;
    try {
        CFlood flood(view, crOld, m_brush.color, pt);
        flood.Spread();
        m_rcDirty = m_rcDirty.Union(flood.Paint());
    } catch (const std::bad_alloc&) {
        return false;  // nothing has been painted yet
    }
    return true;
}
