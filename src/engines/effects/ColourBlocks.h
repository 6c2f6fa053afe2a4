#pragma once

#include "image/CpuChoice.h"

#if FOTARIUM_HAS_AVX2

#include <immintrin.h>

#include <array>
#include <cstddef>
#include <cstdint>

// What the AVX2 forms of the colour conversions are made of: blocks of 32 pixels in three registers, pixels
// in their order.
namespace colour_blocks {

inline constexpr std::size_t kBlock = 32;

struct CBlock {
    __m256i a;
    __m256i b;
    __m256i c;
};

using CLaneMask = std::array<std::uint8_t, 16>;
using CLaneMasks = std::array<CLaneMask, 3>;

// Which of the 48 bytes of sixteen pixels go into the channel nChannel, for each of their three registers.
constexpr CLaneMasks SplitMasks(std::size_t nChannel) {
    CLaneMasks masks{};
    for (CLaneMask& mask : masks) mask.fill(0x80);
    for (std::size_t i = 0; i < 16; ++i) {
        const std::size_t nByte = 3 * i + nChannel;
        masks[nByte / 16][i] = static_cast<std::uint8_t>(nByte % 16);
    }
    return masks;
}

// Which pixels' bytes of each channel go into the register nPart of the three that sixteen pixels fill.
constexpr CLaneMasks JoinMasks(std::size_t nPart) {
    CLaneMasks masks{};
    for (CLaneMask& mask : masks) mask.fill(0x80);
    for (std::size_t i = 0; i < 16; ++i) {
        const std::size_t nByte = 16 * nPart + i;
        masks[nByte % 3][i] = static_cast<std::uint8_t>(nByte / 3);
    }
    return masks;
}

// Four bytes of sixteen, each widened to 32 bits.
constexpr CLaneMask WidenMask(std::size_t nQuarter) {
    CLaneMask mask{};
    mask.fill(0x80);
    for (std::size_t i = 0; i < 4; ++i) mask[4 * i] = static_cast<std::uint8_t>(4 * nQuarter + i);
    return mask;
}

inline constexpr std::array<CLaneMasks, 3> kSplit = {SplitMasks(0), SplitMasks(1), SplitMasks(2)};
inline constexpr std::array<CLaneMasks, 3> kJoin = {JoinMasks(0), JoinMasks(1), JoinMasks(2)};
inline constexpr std::array<CLaneMask, 4> kWiden = {WidenMask(0), WidenMask(1), WidenMask(2), WidenMask(3)};

// The same mask for both lanes.
FOTARIUM_AVX2_PART __m256i BothLanes(const CLaneMask& mask) {
    return _mm256_broadcastsi128_si256(_mm_loadu_si128(reinterpret_cast<const __m128i*>(mask.data())));
}

FOTARIUM_AVX2_PART __m256i Load(const std::uint8_t* p) {
    return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p));
}

FOTARIUM_AVX2_PART void Store(std::uint8_t* p, __m256i bytes) {
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), bytes);
}

// Two runs of sixteen bytes, the second in the upper lane.
FOTARIUM_AVX2_PART __m256i LoadLanes(const std::uint8_t* pLow, const std::uint8_t* pHigh) {
    return _mm256_inserti128_si256(
        _mm256_castsi128_si256(_mm_loadu_si128(reinterpret_cast<const __m128i*>(pLow))),
        _mm_loadu_si128(reinterpret_cast<const __m128i*>(pHigh)), 1);
}

FOTARIUM_AVX2_PART void StoreLanes(std::uint8_t* pLow, std::uint8_t* pHigh, __m256i bytes) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(pLow), _mm256_castsi256_si128(bytes));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(pHigh), _mm256_extracti128_si256(bytes, 1));
}

// The bytes that the masks pick out of three registers, put together.
FOTARIUM_AVX2_PART __m256i Pick(const CBlock& block, const CLaneMasks& masks) {
    return _mm256_or_si256(_mm256_or_si256(_mm256_shuffle_epi8(block.a, BothLanes(masks[0])),
                                           _mm256_shuffle_epi8(block.b, BothLanes(masks[1]))),
                           _mm256_shuffle_epi8(block.c, BothLanes(masks[2])));
}

// 96 bytes of pixels.
FOTARIUM_AVX2_PART CBlock LoadRgb(const std::uint8_t* p) {
    const CBlock raw = {LoadLanes(p, p + 48), LoadLanes(p + 16, p + 64), LoadLanes(p + 32, p + 80)};
    return {Pick(raw, kSplit[0]), Pick(raw, kSplit[1]), Pick(raw, kSplit[2])};
}

FOTARIUM_AVX2_PART void StoreRgb(std::uint8_t* p, const CBlock& rgb) {
    StoreLanes(p, p + 48, Pick(rgb, kJoin[0]));
    StoreLanes(p + 16, p + 64, Pick(rgb, kJoin[1]));
    StoreLanes(p + 32, p + 80, Pick(rgb, kJoin[2]));
}

// The bytes 4 nQuarter .. 4 nQuarter + 3 of both lanes.
FOTARIUM_AVX2_PART __m256i Widen(__m256i bytes, std::size_t nQuarter) {
    return _mm256_shuffle_epi8(bytes, BothLanes(kWiden[nQuarter]));
}

FOTARIUM_AVX2_PART __m256 ToFloat(__m256i bytes, std::size_t nQuarter) {
    return _mm256_cvtepi32_ps(Widen(bytes, nQuarter));
}

// Four quarters as Widen made them back into bytes, each limited to 0..255.
FOTARIUM_AVX2_PART __m256i Narrow(__m256i n0, __m256i n1, __m256i n2, __m256i n3) {
    return _mm256_packus_epi16(_mm256_packs_epi32(n0, n1), _mm256_packs_epi32(n2, n3));
}

}  // namespace colour_blocks

#endif
