#include "engines/effects/Rgb565.h"

#include <array>

#include "image/CpuChoice.h"

namespace {

// Three wide vectors: the least number of them that is a whole number of pixels.
constexpr std::size_t kStep = 96;

constexpr std::array<std::uint8_t, kStep> kMasks = [] {
    std::array<std::uint8_t, kStep> masks{};
    for (std::size_t i = 0; i < kStep; i += 3) {
        masks[i] = kMask565.r;
        masks[i + 1] = kMask565.g;
        masks[i + 2] = kMask565.b;
    }
    return masks;
}();

FOTARIUM_INLINE void MaskBytes(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t nBytes) {
    std::size_t i = 0;
    for (; i + kStep <= nBytes; i += kStep)
        for (std::size_t k = 0; k < kStep; ++k) pDst[i + k] = pSrc[i + k] & kMasks[k];
    for (std::size_t k = 0; i + k < nBytes; ++k) pDst[i + k] = pSrc[i + k] & kMasks[k];
}

#if FOTARIUM_HAS_AVX2
FOTARIUM_AVX2 void MaskBytesWide(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t nBytes) {
    MaskBytes(pSrc, pDst, nBytes);
}
#endif

}  // namespace

void ReduceTo565(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t n) {
#if FOTARIUM_HAS_AVX2
    if (UseAvx2()) return MaskBytesWide(pSrc, pDst, 3 * n);
#endif
    MaskBytes(pSrc, pDst, 3 * n);
}
