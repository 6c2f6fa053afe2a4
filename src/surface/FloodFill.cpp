#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <vector>

#include "surface/PixelRun.h"
#include "surface/Surface.h"

namespace {

// The fill of one connected area. Each run of pixels is painted when it is found and then waits until the
// rows above and below it have been looked at; as a painted pixel no longer has the old colour, no run is
// found twice. So at most one entry waits for two pixels of the picture.
class CFlood {
  public:
    CFlood(CPixelView view, CColor crOld, CColor crNew) : m_view(view), m_crNew(crNew) {
        std::uint8_t block[3 * kBlock];
        PaintRun(block, kBlock, crOld);
        std::memcpy(m_words.data(), block, sizeof block);
        std::memcpy(&m_nOld, block, 3);
    }

    void Run(CPoint pt) {
        Take(pt.y, pt.x, {pt.y, 0, 0});
        while (!m_waiting.empty()) {
            const CSeed seed = m_waiting.back();
            m_waiting.pop_back();
            if (seed.run.nRow > 0) LookBeside(seed, seed.run.nRow - 1);
            if (seed.run.nRow + 1 < m_view.nHeight) LookBeside(seed, seed.run.nRow + 1);
        }
    }

    const CRect& Box() const { return m_rcBox; }

  private:
    struct CRowRun {
        int nRow;
        int nLeft;
        int nRight;
    };
    // A run, and the one above or below it from which it was found: that one needs no second look.
    struct CSeed {
        CRowRun run;
        CRowRun from;
    };
    // Eight pixels are three whole words.
    static constexpr int kBlock = 8;
    static constexpr int kWords = 3;
    static constexpr bool kLittle = std::endian::native == std::endian::little;

    static const std::uint8_t* At(const std::uint8_t* pRow, int x) { return pRow + std::ptrdiff_t{3} * x; }
    // Reads one byte more than the pixel, which behind the last one may be read as well (CPixels).
    bool IsOld(const std::uint8_t* p) const {
        static constexpr std::uint8_t kPixel[4] = {255, 255, 255, 0};
        std::uint32_t n = 0;
        std::uint32_t nMask = 0;
        std::memcpy(&n, p, 4);
        std::memcpy(&nMask, kPixel, 4);
        return (n & nMask) == m_nOld;
    }

    // The first column from x on that has another colour; x has the old one. Whole blocks are compared, also
    // over the row's end: what lies there is cut off again.
    int End(const std::uint8_t* pRow, int x) const {
        for (; x < m_view.nWidth; x += kBlock) {
            const std::uint8_t* const p = At(pRow, x);
            for (int n = 0; n < kWords; ++n) {
                const std::uint64_t nDifference = Difference(p, n);
                if (nDifference == 0) continue;
                const int nBits = kLittle ? std::countr_zero(nDifference) : std::countl_zero(nDifference);
                return std::min(x + (8 * n + nBits / 8) / 3, m_view.nWidth);
            }
        }
        return m_view.nWidth;
    }

    // The first column of the run that ends before x.
    int Begin(const std::uint8_t* pRow, int x) const {
        for (; x >= kBlock; x -= kBlock) {
            const std::uint8_t* const p = At(pRow, x - kBlock);
            for (int n = kWords - 1; n >= 0; --n) {
                const std::uint64_t nDifference = Difference(p, n);
                if (nDifference == 0) continue;
                const int nBits = kLittle ? std::countl_zero(nDifference) : std::countr_zero(nDifference);
                return x - kBlock + (8 * n + 7 - nBits / 8) / 3 + 1;
            }
        }
        while (x > 0 && IsOld(At(pRow, x - 1))) --x;
        return x;
    }

    // How word n of the block at p differs from the old colour.
    std::uint64_t Difference(const std::uint8_t* p, int n) const {
        std::uint64_t nWord = 0;
        std::memcpy(&nWord, p + std::ptrdiff_t{8} * n, 8);
        return nWord ^ m_words[static_cast<std::size_t>(n)];
    }

    void LookBeside(const CSeed& seed, int nRow) {
        if (nRow != seed.from.nRow) return Look(nRow, seed.run.nLeft, seed.run.nRight, seed.run);
        Look(nRow, seed.run.nLeft, std::min(seed.run.nRight, seed.from.nLeft), seed.run);
        Look(nRow, std::max(seed.run.nLeft, seed.from.nRight), seed.run.nRight, seed.run);
    }

    // Takes the runs of a row that touch the columns nLeft .. nRight - 1.
    void Look(int nRow, int nLeft, int nRight, const CRowRun& from) {
        const std::uint8_t* const pRow = m_view.Row(nRow);
        for (int x = nLeft; x < nRight; ++x)
            if (IsOld(At(pRow, x))) x = Take(nRow, x, from);
    }

    // Takes the run that holds column x, and returns the column behind it, which is none of the run.
    int Take(int nRow, int x, const CRowRun& from) {
        std::uint8_t* const pRow = m_view.Row(nRow);
        const int nLeft = Begin(pRow, x);
        const int nRight = End(pRow, x);
        PaintRun(pRow + std::ptrdiff_t{3} * nLeft, static_cast<std::size_t>(nRight - nLeft), m_crNew);
        m_rcBox = {std::min(m_rcBox.left, nLeft), std::min(m_rcBox.top, nRow),
                   std::max(m_rcBox.right, nRight), std::max(m_rcBox.bottom, nRow + 1)};
        m_waiting.push_back({{nRow, nLeft, nRight}, from});
        return nRight;
    }

    CPixelView m_view;
    CColor m_crNew;
    // The old colour: a block of it, and one pixel.
    std::array<std::uint64_t, kWords> m_words{};
    std::uint32_t m_nOld = 0;
    std::vector<CSeed> m_waiting;
    CRect m_rcBox{std::numeric_limits<int>::max(), std::numeric_limits<int>::max(), 0, 0};
};

}  // namespace

bool CSurface::FloodFill(CPoint pt, CColor crOld) {
    if (!Bounds().Contains(pt) || GetPixel(pt.x, pt.y) != crOld) return false;
    if (m_brush.bHollow || m_brush.color == crOld) return true;
    const CPixelView view = m_pixels.MutableView();
    if (view.pBits == nullptr) return false;
    CFlood flood(view, crOld, m_brush.color);
    flood.Run(pt);
    m_rcDirty = m_rcDirty.Union(flood.Box());
    return true;
}
