// Oil Painting: square dabs of the mean luma at random places, many times over each pixel.
//
// Every dab takes its mean from the picture's own luma and covers what lies below it, so only the last dab at
// a pixel is seen. The dabs are therefore walked from the last to the first, each paints only what none has
// painted yet, and most of them, which are covered already, cost no more than a look.

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

#include "engines/effects/ColourRows.h"
#include "engines/effects/Effects.h"
#include "engines/effects/RandomRewind.h"
#include "image/CpuChoice.h"

#if FOTARIUM_HAS_AVX2
#include <immintrin.h>
#endif

namespace {

// Dabs lie at least partly inside the picture: places are drawn from so many columns and rows less than it
// has.
constexpr int kKeptOff = 9;
// Cells of a dab that are looked at, summed up or painted at a time.
constexpr std::size_t kPiece = 16;
// Whether any dab of a field of so many places each way has anything to paint is remembered.
constexpr std::size_t kField = 16;
// Dabs up to this side mostly find something to paint, for there are not enough of them to cover the picture.
constexpr std::size_t kSmall = 6;
// Bytes behind the last bit that are read and written with it.
constexpr std::size_t kBitSlack = 16;
// How many dabs ahead memory is called for.
constexpr std::size_t kAhead = 8;

// Bits are taken from bytes by reading several at once, and the lowest bit must come from the first byte.
static_assert(std::endian::native == std::endian::little);

// The luma planes and what is known of them. All of it stands in the memory of the target, which is three
// times as large as a plane and is not needed before the end.
struct CCanvas {
    CCanvas(const CEffectCall& call)
        : nWidth(static_cast<std::size_t>(call.dst.nWidth)),
          nCells(nWidth * static_cast<std::size_t>(call.dst.nHeight)),
          nSide(static_cast<std::size_t>(std::max(call.nLevel, 0))),
          nPlacesX(nWidth - kKeptOff),
          nPlacesY(static_cast<std::size_t>(call.dst.nHeight) - kKeptOff),
          nFieldsX((nPlacesX + kField - 1) / kField),
          pLuma(call.dst.pBits),
          pPainted(pLuma + nCells),
          pDone(pPainted + nCells / 8 + kBitSlack),
          pResult(pLuma + 2 * nCells) {}

    // The cells from the first one of a dab's row up to its right end or the picture's last one. A row that
    // reaches past the right edge runs on in the next row.
    std::size_t RowLength(std::size_t nAt, std::size_t nLength) const {
        return std::min(nLength, nCells - nAt);
    }

    std::size_t nWidth;
    std::size_t nCells;
    std::size_t nSide;
    std::size_t nPlacesX;
    std::size_t nPlacesY;
    std::size_t nFieldsX;
    std::uint8_t* pLuma;
    std::uint8_t* pPainted;  // a bit for each cell
    std::uint8_t* pDone;     // a byte for each field
    std::uint8_t* pResult;   // the luma to come, at the target's end
};

// The bits from nAt on, at least 57 of them.
std::uint64_t BitsFrom(const std::uint8_t* pBits, std::size_t nAt) {
    std::uint64_t nBits = 0;
    std::memcpy(&nBits, pBits + nAt / 8, sizeof nBits);
    return nBits >> (nAt % 8);
}

// The cells of the next n that are not painted yet, n at most kPiece.
std::uint32_t Unpainted(const CCanvas& canvas, std::size_t nAt, std::size_t n) {
    return static_cast<std::uint32_t>(~BitsFrom(canvas.pPainted, nAt)) & ((1U << n) - 1);
}

void MarkPainted(const CCanvas& canvas, std::size_t nAt, std::uint32_t nCells) {
    std::uint32_t nBits = 0;
    std::uint8_t* const p = canvas.pPainted + nAt / 8;
    std::memcpy(&nBits, p, sizeof nBits);
    nBits |= nCells << (nAt % 8);
    std::memcpy(p, &nBits, sizeof nBits);
}

// True if nRows rows of nLength cells from nStart on are painted as far as they lie in the picture.
bool IsPainted(const CCanvas& canvas, std::size_t nStart, std::size_t nRows, std::size_t nLength) {
    constexpr std::size_t kBits = 57;
    for (std::size_t i = 0, nAt = nStart; i < nRows && nAt < canvas.nCells; ++i, nAt += canvas.nWidth) {
        const std::size_t nEnd = nAt + canvas.RowLength(nAt, nLength);
        for (std::size_t n = nAt; n < nEnd; n += kBits) {
            const std::uint64_t nWanted = (std::uint64_t{1} << std::min(kBits, nEnd - n)) - 1;
            if ((~BitsFrom(canvas.pPainted, n) & nWanted) != 0) return false;
        }
    }
    return true;
}

std::uint64_t SumDab(const CCanvas& canvas, std::size_t nStart) {
    std::uint64_t nSum = 0;
    std::size_t nAt = nStart;
    for (std::size_t i = 0; i < canvas.nSide && nAt < canvas.nCells; ++i, nAt += canvas.nWidth) {
        const std::size_t nEnd = nAt + canvas.RowLength(nAt, canvas.nSide);
        for (std::size_t n = nAt; n < nEnd; ++n) nSum += canvas.pLuma[n];
    }
    return nSum;
}

void PaintDab(const CCanvas& canvas, std::size_t nStart, std::uint8_t nLuma) {
    std::size_t nAt = nStart;
    for (std::size_t i = 0; i < canvas.nSide && nAt < canvas.nCells; ++i, nAt += canvas.nWidth) {
        const std::size_t nEnd = nAt + canvas.RowLength(nAt, canvas.nSide);
        for (std::size_t n = nAt; n < nEnd; n += kPiece) {
            std::uint32_t nCells = Unpainted(canvas, n, std::min(kPiece, nEnd - n));
            MarkPainted(canvas, n, nCells);
            for (; nCells != 0; nCells &= nCells - 1) canvas.pResult[n + std::countr_zero(nCells)] = nLuma;
        }
    }
}

#if FOTARIUM_HAS_AVX2
FOTARIUM_AVX2 std::uint64_t SumDabWide(const CCanvas& canvas, std::size_t nStart) {
    // From kPiece - n on: n bytes that keep a cell, then bytes that drop it.
    static constexpr std::array<std::uint8_t, 2 * kPiece> kKeep = [] {
        std::array<std::uint8_t, 2 * kPiece> keep{};
        for (std::size_t i = 0; i < kPiece; ++i) keep[i] = 255;
        return keep;
    }();
    __m128i sum = _mm_setzero_si128();
    std::size_t nAt = nStart;
    for (std::size_t i = 0; i < canvas.nSide && nAt < canvas.nCells; ++i, nAt += canvas.nWidth) {
        const std::size_t nEnd = nAt + canvas.RowLength(nAt, canvas.nSide);
        for (std::size_t n = nAt; n < nEnd; n += kPiece) {
            const std::uint8_t* const pKeep = &kKeep[kPiece - std::min(kPiece, nEnd - n)];
            const __m128i keep = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pKeep));
            const __m128i cells = _mm_loadu_si128(reinterpret_cast<const __m128i*>(canvas.pLuma + n));
            sum = _mm_add_epi64(sum, _mm_sad_epu8(_mm_and_si128(cells, keep), _mm_setzero_si128()));
        }
    }
    return static_cast<std::uint64_t>(_mm_cvtsi128_si64(sum) + _mm_extract_epi64(sum, 1));
}

FOTARIUM_AVX2 void PaintDabWide(const CCanvas& canvas, std::size_t nStart, std::uint8_t nLuma) {
    const __m128i luma = _mm_set1_epi8(static_cast<char>(nLuma));
    const __m128i spread = _mm_set_epi8(1, 1, 1, 1, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0);
    const __m128i bits = _mm_set1_epi64x(static_cast<long long>(0x8040201008040201));
    std::size_t nAt = nStart;
    for (std::size_t i = 0; i < canvas.nSide && nAt < canvas.nCells; ++i, nAt += canvas.nWidth) {
        const std::size_t nEnd = nAt + canvas.RowLength(nAt, canvas.nSide);
        for (std::size_t n = nAt; n < nEnd; n += kPiece) {
            const std::uint32_t nCells = Unpainted(canvas, n, std::min(kPiece, nEnd - n));
            if (nCells == 0) continue;
            MarkPainted(canvas, n, nCells);
            // Each byte gets the byte with its bit, and is full if the bit is set.
            const __m128i all = _mm_shuffle_epi8(_mm_cvtsi32_si128(static_cast<int>(nCells)), spread);
            const __m128i paint = _mm_cmpeq_epi8(_mm_and_si128(all, bits), bits);
            auto* const pResult = reinterpret_cast<__m128i*>(canvas.pResult + n);
            _mm_storeu_si128(pResult, _mm_blendv_epi8(_mm_loadu_si128(pResult), luma, paint));
        }
    }
}
#endif

// The remainder of numbers of 31 bits by the same number, without a division.
class CRemainder {
  public:
    explicit CRemainder(std::uint32_t nDivisor)
        : m_nDivisor(nDivisor),
          m_nShift(31 + std::bit_width(nDivisor - 1)),
          m_nFactor(((std::uint64_t{1} << m_nShift) + nDivisor - 1) / nDivisor) {}
    std::uint32_t Of(std::uint32_t n) const {
        return n - static_cast<std::uint32_t>(n * m_nFactor >> m_nShift) * m_nDivisor;
    }

  private:
    std::uint32_t m_nDivisor;
    int m_nShift;
    std::uint64_t m_nFactor;
};

// A dab that is covered as a whole finds out whether its field is.
void LookAtField(const CCanvas& canvas, std::size_t x, std::size_t y) {
    const std::size_t nLeft = x / kField * kField;
    const std::size_t nTop = y / kField * kField;
    const std::size_t nColumns = std::min(kField, canvas.nPlacesX - nLeft) - 1 + canvas.nSide;
    const std::size_t nRows = std::min(kField, canvas.nPlacesY - nTop) - 1 + canvas.nSide;
    canvas.pDone[y / kField * canvas.nFieldsX + x / kField] =
        IsPainted(canvas, nTop * canvas.nWidth + nLeft, nRows, nColumns) ? 1 : 0;
}

struct CDab {
    std::uint32_t x;
    std::uint32_t y;
};

bool IsDone(const CCanvas& canvas, const CDab& dab) {
    return canvas.pDone[dab.y / kField * canvas.nFieldsX + dab.x / kField] != 0;
}

void Dab(const CCanvas& canvas, const CDab& dab) {
    const std::size_t nStart = dab.y * canvas.nWidth + dab.x;
    if (IsPainted(canvas, nStart, canvas.nSide, canvas.nSide)) return LookAtField(canvas, dab.x, dab.y);
    const std::uint64_t nArea = static_cast<std::uint64_t>(canvas.nSide) * canvas.nSide;
#if FOTARIUM_HAS_AVX2
    if (UseAvx2())
        return PaintDabWide(canvas, nStart, static_cast<std::uint8_t>(SumDabWide(canvas, nStart) / nArea));
#endif
    PaintDab(canvas, nStart, static_cast<std::uint8_t>(SumDab(canvas, nStart) / nArea));
}

// Calls for the memory of a dab to come, which lies anywhere; of a large one, which will seldom paint, only
// for what tells whether it does.
void Fetch(const CCanvas& canvas, const CDab& dab) {
    std::size_t nAt = dab.y * canvas.nWidth + dab.x;
    const std::size_t nRows = std::min<std::size_t>(canvas.nSide, 16);
    for (std::size_t i = 0; i < nRows; ++i, nAt += canvas.nWidth) {
        __builtin_prefetch(canvas.pPainted + nAt / 8);
        if (canvas.nSide > kSmall) continue;
        __builtin_prefetch(canvas.pLuma + nAt);
        __builtin_prefetch(canvas.pResult + nAt);
    }
}

// Each dab has taken two random numbers, first for its column, then for its row.
void Dabs(const CCanvas& canvas, const CRandomSequence& random, std::size_t nDabs) {
    CRandomRewind rewind(random);
    const CRemainder columns(static_cast<std::uint32_t>(canvas.nPlacesX));
    const CRemainder rows(static_cast<std::uint32_t>(canvas.nPlacesY));
    std::array<CDab, CRandomRewind::kBatch / 2> dabs;
    while (nDabs > 0) {
        const CRandomRewind::CBatch& numbers = rewind.Before();
        const std::size_t n = std::min(nDabs, dabs.size());
        std::size_t nOpen = 0;
        for (std::size_t i = numbers.size(); i > numbers.size() - 2 * n; i -= 2) {
            dabs[nOpen] = {columns.Of(numbers[i - 2]), rows.Of(numbers[i - 1])};
            nOpen += IsDone(canvas, dabs[nOpen]) ? 0 : 1;
        }
        for (std::size_t i = 0; i < nOpen; ++i) {
            if (i + kAhead < nOpen) Fetch(canvas, dabs[i + kAhead]);
            Dab(canvas, dabs[i]);
        }
        nDabs -= n;
    }
}

void Prepare(const CEffectCall& call, const CCanvas& canvas) {
    for (std::size_t i = 0; i < canvas.nCells; i += kChunkPixels)
        RgbToY(call.src.pBits + 3 * i, canvas.pLuma + i, std::min(kChunkPixels, canvas.nCells - i));
    std::memcpy(canvas.pResult, canvas.pLuma, canvas.nCells);
    std::memset(canvas.pPainted, 0, canvas.nCells / 8 + kBitSlack);
    const std::size_t nFieldsY = (canvas.nPlacesY + kField - 1) / kField;
    std::memset(canvas.pDone, 0, canvas.nFieldsX * nFieldsY);
}

// Pixels of three bytes are written from the front over the planes; they reach a cell of the result no sooner
// than it has been read.
void Finish(const CEffectCall& call, const CCanvas& canvas) {
    CChunk yuv;
    for (std::size_t i = 0; i < canvas.nCells; i += kChunkPixels) {
        const std::size_t n = std::min(kChunkPixels, canvas.nCells - i);
        RgbToYuv(call.src.pBits + 3 * i, yuv.a, yuv.b, yuv.c, n);
        std::memcpy(yuv.a, canvas.pResult + i, n);
        YuvToRgb(yuv.a, yuv.b, yuv.c, call.dst.pBits + 3 * i, n);
    }
}

}  // namespace

// The level is the side of a dab. There are as many dabs as pixels in every second column of every second
// row. A picture with a side below ten pixels stays as it is and takes no random numbers. So does one at
// level 0.
void OilPainting(const CEffectCall& call) {
    const int w = call.src.nWidth;
    const int h = call.src.nHeight;
    if (call.nLevel == 0 || w <= kKeptOff || h <= kKeptOff) return CopyPicture(call);

    const std::size_t nDabs = (static_cast<std::size_t>(w) + 1) / 2 * ((static_cast<std::size_t>(h) + 1) / 2);
    call.random.Skip(2 * nDabs);
    const CCanvas canvas(call);
    Prepare(call, canvas);
    if (canvas.nSide > 0) Dabs(canvas, call.random, nDabs);
    Finish(call, canvas);
}
