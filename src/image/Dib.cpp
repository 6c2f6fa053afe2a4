#include "image/Dib.h"

#include <array>
#include <bit>
#include <cstddef>
#include <new>

namespace {

constexpr std::size_t kHeaderBytes = 40;
constexpr std::size_t kMaskBytes = 12;
// From this length on the masks stand inside the header.
constexpr std::size_t kHeaderWithMasks = 52;
constexpr std::size_t kLongestHeader = 124;
constexpr std::uint32_t kUncompressed = 0;
constexpr std::uint32_t kBitFields = 3;

std::uint32_t Number(const std::uint8_t* p, int nBytes) {
    std::uint32_t n = 0;
    for (int i = nBytes - 1; i >= 0; --i) n = n << 8 | p[i];
    return n;
}

struct CMask {
    std::uint32_t nBits = 0;

    // The channel of a pixel, spread over 0..255.
    std::uint8_t Channel(std::uint32_t nPixel) const {
        if (nBits == 0) return 0;
        const int nShift = std::countr_zero(nBits);
        const std::uint64_t nMax = nBits >> nShift;
        const std::uint64_t n = (nPixel & nBits) >> nShift;
        return static_cast<std::uint8_t>((n * 255 + nMax / 2) / nMax);
    }
    bool IsSound() const {
        const std::uint32_t n = nBits == 0 ? 0 : nBits >> std::countr_zero(nBits);
        return (n & (n + 1)) == 0;
    }
};

struct CLayout {
    int nWidth = 0;
    int nHeight = 0;
    bool bFromTop = false;
    int nBits = 0;
    std::array<CMask, 3> masks;  // red, green, blue; for 16 and 32 bits
    std::span<const std::uint8_t> palette;
    std::size_t nColors = 0;
    std::span<const std::uint8_t> rows;
    std::size_t nStride = 0;

    const std::uint8_t* Row(int y) const {
        return rows.data() + nStride * static_cast<std::size_t>(bFromTop ? y : nHeight - 1 - y);
    }
};

bool ReadSizes(std::span<const std::uint8_t> dib, CLayout& layout) {
    const auto nWidth = static_cast<std::int32_t>(Number(dib.data() + 4, 4));
    const auto nHeight = static_cast<std::int32_t>(Number(dib.data() + 8, 4));
    if (nWidth <= 0 || nHeight == 0 || nHeight == INT32_MIN) return false;
    layout.nWidth = nWidth;
    layout.nHeight = nHeight < 0 ? -nHeight : nHeight;
    layout.bFromTop = nHeight < 0;
    layout.nBits = static_cast<int>(Number(dib.data() + 14, 2));
    layout.nStride =
        (static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(layout.nBits) + 31) / 32 * 4;
    return true;
}

// Returns where the colour table begins; 0 if the header cannot be read.
std::size_t ReadMasks(std::span<const std::uint8_t> dib, CLayout& layout) {
    const std::size_t nHeader = Number(dib.data(), 4);
    const std::uint32_t nCompression = Number(dib.data() + 16, 4);
    if (nHeader < kHeaderBytes || nHeader > kLongestHeader || nHeader > dib.size()) return 0;
    if (nCompression == kUncompressed) {
        if (layout.nBits == 16) layout.masks = {CMask{0x7C00}, CMask{0x03E0}, CMask{0x001F}};
        if (layout.nBits == 32) layout.masks = {CMask{0xFF0000}, CMask{0x00FF00}, CMask{0x0000FF}};
        return nHeader;
    }
    if (nCompression != kBitFields || (layout.nBits != 16 && layout.nBits != 32)) return 0;
    if (dib.size() < kHeaderBytes + kMaskBytes) return 0;
    for (std::size_t i = 0; i < 3; ++i) {
        layout.masks[i].nBits = Number(dib.data() + kHeaderBytes + 4 * i, 4);
        if (!layout.masks[i].IsSound()) return 0;
    }
    return nHeader >= kHeaderWithMasks ? nHeader : nHeader + kMaskBytes;
}

bool ReadLayout(std::span<const std::uint8_t> dib, CLayout& layout) {
    if (dib.size() < kHeaderBytes || !ReadSizes(dib, layout)) return false;
    const int nBits = layout.nBits;
    const bool bIndexed = nBits == 1 || nBits == 4 || nBits == 8;
    if (!bIndexed && nBits != 16 && nBits != 24 && nBits != 32) return false;

    const std::size_t nPalette = ReadMasks(dib, layout);
    if (nPalette == 0) return false;
    layout.nColors = Number(dib.data() + 32, 4);
    if (bIndexed && layout.nColors == 0) layout.nColors = std::size_t{1} << nBits;
    if (layout.nColors > 256) return false;

    const std::size_t nRows = nPalette + 4 * layout.nColors;
    const std::uint64_t nRowBytes =
        static_cast<std::uint64_t>(layout.nStride) * static_cast<std::uint64_t>(layout.nHeight);
    if (nRows > dib.size() || nRowBytes > dib.size() - nRows) return false;
    layout.palette = dib.subspan(nPalette, 4 * layout.nColors);
    layout.rows = dib.subspan(nRows);
    return true;
}

void ReadIndexedRow(const CLayout& layout, const std::uint8_t* pSrc, std::uint8_t* pDst) {
    const auto nBits = static_cast<unsigned>(layout.nBits);
    const unsigned nMask = (1U << nBits) - 1;
    for (std::size_t x = 0; x < static_cast<std::size_t>(layout.nWidth); ++x, pDst += 3) {
        const std::size_t nBit = x * nBits;
        const std::size_t n = (pSrc[nBit / 8] >> (8 - nBits - nBit % 8)) & nMask;
        // An index behind the colour table is black.
        const bool bKnown = n < layout.nColors;
        for (std::size_t c = 0; c < 3; ++c)
            pDst[c] = bKnown ? layout.palette[4 * n + 2 - c] : std::uint8_t{0};
    }
}

void ReadMaskedRow(const CLayout& layout, const std::uint8_t* pSrc, std::uint8_t* pDst) {
    const int nBytes = layout.nBits / 8;
    for (int x = 0; x < layout.nWidth; ++x, pSrc += nBytes, pDst += 3) {
        const std::uint32_t nPixel = Number(pSrc, nBytes);
        for (std::size_t c = 0; c < 3; ++c) pDst[c] = layout.masks[c].Channel(nPixel);
    }
}

// Blue, green, red to red, green, blue and back.
void SwapOrder(const std::uint8_t* pSrc, std::uint8_t* pDst, int nWidth) {
    for (int x = 0; x < nWidth; ++x, pSrc += 3, pDst += 3) {
        pDst[0] = pSrc[2];
        pDst[1] = pSrc[1];
        pDst[2] = pSrc[0];
    }
}

void PutNumber(std::vector<std::uint8_t>& bytes, std::size_t nAt, std::uint32_t n) {
    for (std::size_t i = 0; i < 4; ++i) bytes[nAt + i] = static_cast<std::uint8_t>(n >> (8 * i));
}

}  // namespace

std::optional<CPixels> ReadDib(std::span<const std::uint8_t> dib) {
    CLayout layout;
    CPixels pixels;
    if (!ReadLayout(dib, layout) || !pixels.CreateRaw(layout.nWidth, layout.nHeight)) return std::nullopt;
    const CPixelView view = pixels.MutableView();
    for (int y = 0; y < layout.nHeight; ++y) {
        const std::uint8_t* const pSrc = layout.Row(y);
        if (layout.nBits <= 8) {
            ReadIndexedRow(layout, pSrc, view.Row(y));
        } else if (layout.nBits == 24) {
            SwapOrder(pSrc, view.Row(y), layout.nWidth);
        } else {
            ReadMaskedRow(layout, pSrc, view.Row(y));
        }
    }
    return pixels;
}

std::vector<std::uint8_t> WriteDib(const CPixels& pixels) {
    if (pixels.IsEmpty()) return {};
    const std::size_t nStride = (pixels.Stride() + 3) / 4 * 4;
    const std::size_t nRowBytes = nStride * static_cast<std::size_t>(pixels.Height());
    std::vector<std::uint8_t> dib;
    try {
        dib.resize(kHeaderBytes + nRowBytes);
    } catch (const std::bad_alloc&) {
        return {};
    }
    PutNumber(dib, 0, kHeaderBytes);
    PutNumber(dib, 4, static_cast<std::uint32_t>(pixels.Width()));
    PutNumber(dib, 8, static_cast<std::uint32_t>(pixels.Height()));
    dib[12] = 1;  // planes
    dib[14] = 24;
    PutNumber(dib, 20, static_cast<std::uint32_t>(nRowBytes));
    for (int y = 0; y < pixels.Height(); ++y) {
        const auto nRow = static_cast<std::size_t>(pixels.Height() - 1 - y);
        SwapOrder(pixels.Row(y).data(), dib.data() + kHeaderBytes + nRow * nStride, pixels.Width());
    }
    return dib;
}
