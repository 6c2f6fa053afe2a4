#include <algorithm>
#include <cstring>
#include <vector>

#include "engines/effects/ColourRows.h"
#include "engines/effects/Effects.h"
#include "engines/effects/RowRing.h"
#include "engines/effects/SoftenKernel.h"

namespace {

FOTARIUM_INLINE std::uint8_t FifthOf(std::uint8_t n) {
    return static_cast<std::uint8_t>(static_cast<std::uint16_t>(n * 205U) >> 10);
}

// Rows that one pass makes a row from: the parts of the pixels that it adds up, and the pixels themselves.
struct CPassRows {
    const std::uint8_t* pAbove;
    const std::uint8_t* pHere;
    const std::uint8_t* pBelow;
    const std::uint8_t* pPixels;
};

struct CSoften {
    static FOTARIUM_INLINE std::uint8_t PartOf(std::uint8_t n) { return ThirdOf(n); }
    static FOTARIUM_INLINE std::uint8_t Pixel(const CPassRows& rows, std::size_t x) {
        return Softened(rows.pAbove, rows.pHere, rows.pBelow, x);
    }
};

// The pixel and a fifth of how far it stands over four fifths of its neighbours, each cut by itself.
struct CSharpen {
    static FOTARIUM_INLINE std::uint8_t PartOf(std::uint8_t n) { return FifthOf(n); }
    static FOTARIUM_INLINE std::uint8_t Pixel(const CPassRows& rows, std::size_t x) {
        const std::uint8_t n = rows.pPixels[x];
        const auto nAround = static_cast<std::uint8_t>(rows.pAbove[x] + rows.pHere[x - 1] +
                                                       rows.pHere[x + 1] + rows.pBelow[x]);
        const std::uint8_t nLarger = n > nAround ? n : nAround;
        const std::uint8_t nSmaller = n > nAround ? nAround : n;
        const std::uint8_t nFifth = FifthOf(static_cast<std::uint8_t>(nLarger - nSmaller));
        const std::uint8_t nOver = nLarger == n ? nFifth : 0;
        const auto nUnder = static_cast<std::uint8_t>(nFifth - nOver);
        const auto nRoom = static_cast<std::uint8_t>(255 - n);
        const auto nRaised = static_cast<std::uint8_t>(n + (nOver < nRoom ? nOver : nRoom));
        return static_cast<std::uint8_t>(nRaised - (nUnder < nRaised ? nUnder : nRaised));
    }
};

template <class TKernel>
FOTARIUM_INLINE void PartsBody(const std::uint8_t* __restrict pPixels, std::uint8_t* __restrict pParts,
                               std::size_t n) {
    for (std::size_t x = 0; x < n; ++x) pParts[x] = TKernel::PartOf(pPixels[x]);
}

template <class TKernel>
FOTARIUM_INLINE void PassBody(const CPassRows& rowsIn, std::uint8_t* __restrict pPixels,
                              std::uint8_t* __restrict pParts, std::size_t n) {
    const CPassRows rows = rowsIn;
    pPixels[0] = rows.pPixels[0];
    pPixels[n - 1] = rows.pPixels[n - 1];
    for (std::size_t x = 1; x < n - 1; ++x) {
        const std::uint8_t nPixel = TKernel::Pixel(rows, x);
        pPixels[x] = nPixel;
        pParts[x] = TKernel::PartOf(nPixel);
    }
    pParts[0] = TKernel::PartOf(pPixels[0]);
    pParts[n - 1] = TKernel::PartOf(pPixels[n - 1]);
}

template <class TKernel>
struct CPlainPass {
    static void Parts(const std::uint8_t* pPixels, std::uint8_t* pParts, std::size_t n) {
        PartsBody<TKernel>(pPixels, pParts, n);
    }
    static void Pass(const CPassRows& rows, std::uint8_t* pPixels, std::uint8_t* pParts, std::size_t n) {
        PassBody<TKernel>(rows, pPixels, pParts, n);
    }
};

template <class TKernel>
struct CWidePass {
    FOTARIUM_AVX2 static void Parts(const std::uint8_t* pPixels, std::uint8_t* pParts, std::size_t n) {
        PartsBody<TKernel>(pPixels, pParts, n);
    }
    FOTARIUM_AVX2 static void Pass(const CPassRows& rows, std::uint8_t* pPixels, std::uint8_t* pParts,
                                   std::size_t n) {
        PassBody<TKernel>(rows, pPixels, pParts, n);
    }
};

struct CPassFunctions {
    void (*parts)(const std::uint8_t*, std::uint8_t*, std::size_t);
    void (*pass)(const CPassRows&, std::uint8_t*, std::uint8_t*, std::size_t);
};

template <class TKernel>
CPassFunctions FunctionsOf() {
    if (UseAvx2()) return {CWidePass<TKernel>::Parts, CWidePass<TKernel>::Pass};
    return {CPlainPass<TKernel>::Parts, CPlainPass<TKernel>::Pass};
}

// Several passes over a plane in one walk from the top to the bottom: as soon as a pass has made a row, the
// next one takes it, one row behind, so that all rows between the passes stay in the cache.
class CPassChain {
  public:
    CPassChain(const CPassFunctions& functions, int nWidth, int nHeight, int nPasses)
        : m_functions(functions), m_w(static_cast<std::size_t>(nWidth)), m_h(nHeight) {
        for (int n = 0; n <= nPasses; ++n) m_stages.push_back({CRowRing(2, nWidth), CRowRing(3, nWidth)});
    }

    // Where row y of the plane is to be written before it is pushed.
    std::uint8_t* Input(int y) { return m_stages.front().pixels.Row(y); }

    // Takes row y, which follows the one before; calls sink(y, pointer) for every row that is finished by it.
    template <class TSink>
    void Push(int y, const TSink& sink) {
        CStage& stage = m_stages.front();
        m_functions.parts(stage.pixels.Row(y), stage.parts.Row(y), m_w);
        Advance(0, y, sink);
    }

  private:
    struct CStage {
        CRowRing pixels;
        CRowRing parts;
    };

    // Row y has come out of the pass before stage nStage. The first and the last row go through as they are.
    template <class TSink>
    void Advance(std::size_t nStage, int y, const TSink& sink) {
        if (nStage + 1 == m_stages.size()) return sink(y, m_stages[nStage].pixels.Row(y));
        if (y >= 2) MakeRow(nStage, y - 1, sink);
        if (y == 0 || y == m_h - 1) CopyRow(nStage, y, sink);
    }

    template <class TSink>
    void MakeRow(std::size_t nStage, int y, const TSink& sink) {
        CStage& from = m_stages[nStage];
        CStage& to = m_stages[nStage + 1];
        m_functions.pass(
            {from.parts.Row(y - 1), from.parts.Row(y), from.parts.Row(y + 1), from.pixels.Row(y)},
            to.pixels.Row(y), to.parts.Row(y), m_w);
        Advance(nStage + 1, y, sink);
    }

    template <class TSink>
    void CopyRow(std::size_t nStage, int y, const TSink& sink) {
        CStage& from = m_stages[nStage];
        CStage& to = m_stages[nStage + 1];
        std::memcpy(to.pixels.Row(y), from.pixels.Row(y), m_w);
        std::memcpy(to.parts.Row(y), from.parts.Row(y), m_w);
        Advance(nStage + 1, y, sink);
    }

    CPassFunctions m_functions;
    std::size_t m_w;
    int m_h;
    std::vector<CStage> m_stages;
};

// Puts a row of new luminance together with the chroma that it came with, worked out anew.
void WriteRow(const CEffectCall& call, int y, const std::uint8_t* pLuma) {
    CChunk chunk;
    const auto nPixels = static_cast<std::size_t>(call.src.nWidth);
    for (std::size_t x = 0; x < nPixels; x += kChunkPixels) {
        const std::size_t n = std::min(kChunkPixels, nPixels - x);
        RgbToYuv(call.src.Row(y) + 3 * x, chunk.a, chunk.b, chunk.c, n);
        YuvToRgb(pLuma + x, chunk.b, chunk.c, call.dst.Row(y) + 3 * x, n);
    }
}

// More passes than one chain takes, far beyond the slider. The plane between the walks lies in the last third
// of the result's memory, where the final walk reads every row before it writes over it; the first third
// holds a plane seen before. Passes that come back to it go round for ever, so whole rounds can be left out.
void SharpenFar(const CEffectCall& call, const CPassFunctions& functions, std::int64_t nPasses, int nDepth) {
    const int h = call.src.nHeight;
    const auto w = static_cast<std::size_t>(call.src.nWidth);
    const std::size_t nPlane = w * static_cast<std::size_t>(h);
    std::uint8_t* const pSeen = call.dst.pBits;
    std::uint8_t* const pPlane = call.dst.pBits + 2 * nPlane;
    const auto row = [&](int y) { return pPlane + w * static_cast<std::size_t>(y); };
    for (int y = 0; y < h; ++y) RgbToY(call.src.Row(y), row(y), w);

    std::memcpy(pSeen, pPlane, nPlane);
    std::int64_t nSinceSeen = 0;
    std::int64_t nKeep = 1;
    while (nPasses > 0) {
        const int nHere = static_cast<int>(std::min<std::int64_t>(nDepth, nPasses));
        CPassChain chain(functions, call.src.nWidth, h, nHere);
        for (int y = 0; y < h; ++y) {
            std::memcpy(chain.Input(y), row(y), w);
            chain.Push(y, [&](int yDone, const std::uint8_t* pRow) { std::memcpy(row(yDone), pRow, w); });
        }
        nPasses -= nHere;
        nSinceSeen += nHere;
        if (std::memcmp(pSeen, pPlane, nPlane) == 0) {
            nPasses %= nSinceSeen;
        } else if (nSinceSeen >= nKeep) {
            std::memcpy(pSeen, pPlane, nPlane);
            nKeep = 2 * nSinceSeen;
            nSinceSeen = 0;
        }
    }

    std::vector<std::uint8_t> luma(w);
    for (int y = 0; y < h; ++y) {
        std::memcpy(luma.data(), row(y), w);
        WriteRow(call, y, luma.data());
    }
}

}  // namespace

// Sharpens (above 0) or softens (below 0) the luminance by as many passes as the level says; level 0 does
// nothing. The outermost rows and columns keep their luminance. Least size 3 by 3.
void Sharpness(const CEffectCall& call) {
    const int w = call.src.nWidth;
    const int h = call.src.nHeight;
    if (call.nLevel == 0 || w < 3 || h < 3) return CopyPicture(call);
    const CPassFunctions functions = call.nLevel < 0 ? FunctionsOf<CSoften>() : FunctionsOf<CSharpen>();
    const std::int64_t nPasses = std::abs(std::int64_t{call.nLevel});
    // For each pass seven rows are held, five by the chain and two of chroma; not to be more than the
    // picture.
    constexpr int kMaxDepth = 16;
    const int nDepth = std::clamp(h / 3, 1, kMaxDepth);
    if (nPasses > nDepth) return SharpenFar(call, functions, nPasses, nDepth);

    const auto nPixels = static_cast<std::size_t>(w);
    CPassChain chain(functions, w, h, static_cast<int>(nPasses));
    CRowRing u(static_cast<std::size_t>(nPasses) + 1, w);
    CRowRing v(static_cast<std::size_t>(nPasses) + 1, w);
    for (int y = 0; y < h; ++y) {
        RgbToYuv(call.src.Row(y), chain.Input(y), u.Row(y), v.Row(y), nPixels);
        chain.Push(y, [&](int yDone, const std::uint8_t* pLuma) {
            YuvToRgb(pLuma, u.Row(yDone), v.Row(yDone), call.dst.Row(yDone), nPixels);
        });
    }
}
