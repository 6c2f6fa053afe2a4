#include <algorithm>
#include <array>
#include <cstring>

#include "engines/effects/Effects.h"
#include "image/CpuChoice.h"

namespace {

// What 5-6-5 colour keeps of the three channels, for as many bytes as whole pixels and whole vectors share.
constexpr std::size_t kBlock = 96;
using CKeptBits = std::array<std::uint8_t, kBlock>;
constexpr CKeptBits kKeptBits = [] {
    CKeptBits bits{};
    for (std::size_t i = 0; i < kBlock; ++i) bits[i] = i % 3 == 1 ? 0xFC : 0xF8;
    return bits;
}();

// limit(to - from + 128) in bytes alone: one of the two differences is always 0.
FOTARIUM_INLINE std::uint8_t Relief(std::uint8_t nFrom, std::uint8_t nTo, std::uint8_t nKept) {
    const auto a = static_cast<std::uint8_t>(nFrom & nKept);
    const auto b = static_cast<std::uint8_t>(nTo & nKept);
    const auto nUp = static_cast<std::uint8_t>((a > b ? a : b) - a);
    const auto nDown = static_cast<std::uint8_t>((a > b ? a : b) - b);
    const auto n = static_cast<std::uint8_t>(128 + (nUp < 127 ? nUp : 127) - (nDown < 128 ? nDown : 128));
    return static_cast<std::uint8_t>(n & nKept);
}

FOTARIUM_INLINE void EngraveBody(const std::uint8_t* __restrict pFrom, const std::uint8_t* __restrict pTo,
                                 std::uint8_t* __restrict pDst, std::size_t nBytes) {
    std::size_t i = 0;
    for (; i + kBlock <= nBytes; i += kBlock) {
        for (std::size_t k = 0; k < kBlock; ++k) pDst[i + k] = Relief(pFrom[i + k], pTo[i + k], kKeptBits[k]);
    }
    for (std::size_t k = 0; i < nBytes; ++i, ++k) pDst[i] = Relief(pFrom[i], pTo[i], kKeptBits[k]);
}

void EngravePlain(const std::uint8_t* pFrom, const std::uint8_t* pTo, std::uint8_t* pDst,
                  std::size_t nBytes) {
    EngraveBody(pFrom, pTo, pDst, nBytes);
}

FOTARIUM_AVX2 void EngraveWide(const std::uint8_t* pFrom, const std::uint8_t* pTo, std::uint8_t* pDst,
                               std::size_t nBytes) {
    EngraveBody(pFrom, pTo, pDst, nBytes);
}

void ReducePixel(const std::uint8_t* pSrc, std::uint8_t* pDst) {
    for (std::size_t k = 0; k < 3; ++k) pDst[k] = pSrc[k] & kKeptBits[k];
}

}  // namespace

// Relief in 5-6-5 colour: a pixel becomes its lower right neighbour less its upper left one, plus 128. The
// neighbours are taken by their number, so those of the outermost columns stand at the far end of the rows
// beside. The first and the last row are black, and the two pixels next to them that have a neighbour outside
// the picture only lose their low bits.
void Engrave(const CEffectCall& call) {
    const std::size_t nStride = call.src.Stride();
    const std::size_t nEnd = nStride * static_cast<std::size_t>(call.src.nHeight);
    std::uint8_t* const pDst = call.dst.pBits;
    if (call.src.nHeight > 2) {
        const std::size_t nStep = nStride + 3;
        ReducePixel(call.src.pBits + nStride, pDst + nStride);
        ReducePixel(call.src.pBits + nEnd - nStep, pDst + nEnd - nStep);
        if (nEnd > 2 * nStep) {
            const auto engrave = UseAvx2() ? EngraveWide : EngravePlain;
            engrave(call.src.pBits, call.src.pBits + 2 * nStep, pDst + nStep, nEnd - 2 * nStep);
        }
    }
    std::memset(pDst, 0, nStride);
    std::memset(pDst + nEnd - nStride, 0, nStride);
}
