#include "compose/FrameRecord.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <span>
#include <utility>
#include <vector>

#include "image/CpuChoice.h"
#include "image/Resample.h"

#if FOTARIUM_HAS_AVX2
#include <immintrin.h>
#endif

namespace {

// Pixels are written as four bytes of which the next one overwrites the last.
constexpr std::size_t kSlack = 1;

using CRowBytes = std::vector<std::uint8_t>;

// A row of the frame at the width of the picture: byte for byte what is kept of the picture, all of it or
// nothing, and what comes over it.
struct CFrameRow {
    explicit CFrameRow(int nWidth)
        : arrKeep(std::size_t{3} * static_cast<std::size_t>(nWidth) + kSlack), arrOver(arrKeep.size()) {}
    CRowBytes arrKeep;
    CRowBytes arrOver;
};

struct CFramePixel {
    std::uint32_t nKeep = 0;
    std::uint32_t nOver = 0;
};
using CRecordRow = std::array<CFramePixel, kFrameRecord.cx>;

void TakeRow(const std::uint8_t* pSrc, CRecordRow& row) {
    for (CFramePixel& pixel : row) {
        const bool bKey = IsFrameKey({pSrc[0], pSrc[1], pSrc[2]});
        pixel = {bKey ? 0xFFFFFFFFU : 0, 0};
        if (!bKey) std::memcpy(&pixel.nOver, pSrc, 3);
        pSrc += 3;
    }
}

void Stretch(const std::uint8_t* pSrc, std::span<const std::uint32_t> arrColumns, CFrameRow& row) {
    CRecordRow record;
    TakeRow(pSrc, record);
    std::uint8_t* pKeep = row.arrKeep.data();
    std::uint8_t* pOver = row.arrOver.data();
    for (const std::uint32_t nColumn : arrColumns) {
        std::memcpy(pKeep, &record[nColumn].nKeep, 4);
        std::memcpy(pOver, &record[nColumn].nOver, 4);
        pKeep += 3;
        pOver += 3;
    }
}

FOTARIUM_INLINE void Cover(const std::uint8_t* __restrict pSrc, const std::uint8_t* __restrict pKeep,
                           const std::uint8_t* __restrict pOver, std::uint8_t* __restrict pDst,
                           std::size_t nBytes) {
    for (std::size_t i = 0; i < nBytes; ++i)
        pDst[i] = static_cast<std::uint8_t>((pSrc[i] & pKeep[i]) | pOver[i]);
}

void CoverPlain(const std::uint8_t* pSrc, const CFrameRow& row, std::uint8_t* pDst, std::size_t nBytes) {
    Cover(pSrc, row.arrKeep.data(), row.arrOver.data(), pDst, nBytes);
}

#if FOTARIUM_HAS_AVX2
FOTARIUM_AVX2_PART __m256i Load(const std::uint8_t* p) {
    return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p));
}

// Past the caches: a picture is larger than they are, and nothing of it is read again soon.
FOTARIUM_AVX2 void CoverWide(const std::uint8_t* pSrc, const CFrameRow& row, std::uint8_t* pDst,
                             std::size_t nBytes) {
    constexpr std::size_t kVector = 32;
    const std::uint8_t* const pKeep = row.arrKeep.data();
    const std::uint8_t* const pOver = row.arrOver.data();
    const std::size_t nHead =
        std::min(nBytes, (kVector - reinterpret_cast<std::uintptr_t>(pDst) % kVector) % kVector);
    Cover(pSrc, pKeep, pOver, pDst, nHead);
    std::size_t i = nHead;
    for (; i + kVector <= nBytes; i += kVector)
        _mm256_stream_si256(
            reinterpret_cast<__m256i*>(pDst + i),
            _mm256_or_si256(_mm256_and_si256(Load(pSrc + i), Load(pKeep + i)), Load(pOver + i)));
    Cover(pSrc + i, pKeep + i, pOver + i, pDst + i, nBytes - i);
    _mm_sfence();
}
#endif

// The picture under its frame, in pixels of its own: whoever lays a frame holds the picture without it too,
// so that writing into the old ones would copy them first. A row of the frame that covers several of the
// picture is stretched once.
void CoverRows(const std::uint8_t* pRecord, const CPixels& pixels, CPixelView view) {
#if FOTARIUM_HAS_AVX2
    const auto pCover = UseAvx2() ? CoverWide : CoverPlain;
#else
    const auto pCover = CoverPlain;
#endif
    const std::vector<std::uint32_t> arrColumns = NearestPixels(kFrameRecord.cx, pixels.Width());
    const std::vector<std::uint32_t> arrRows = NearestPixels(kFrameRecord.cy, pixels.Height());
    const std::size_t nStride = pixels.Stride();
    CFrameRow row(pixels.Width());
    const std::uint8_t* pStretched = nullptr;
    for (std::size_t y = 0; y < arrRows.size(); ++y) {
        const std::size_t nFromBottom = arrRows[arrRows.size() - 1 - y];
        const std::size_t nRow = static_cast<std::size_t>(kFrameRecord.cy) - 1 - nFromBottom;
        const std::uint8_t* const pRow = pRecord + nRow * 3 * kFrameRecord.cx;
        if (pRow != pStretched) Stretch(pRow, arrColumns, row);
        pStretched = pRow;
        pCover(pixels.Bytes().data() + y * nStride, row, view.pBits + y * nStride, nStride);
    }
}

}  // namespace

bool LayFrame(const std::uint8_t* pRecord, CxImage& image) try {
    CPixels pixels;
    if (!pixels.CreateRaw(image.GetWidth(), image.GetHeight())) return false;
    CoverRows(pRecord, image.Pixels(), pixels.MutableView());
    return image.ReplacePixels(std::move(pixels));
} catch (const std::bad_alloc&) {
    return false;
}
