#pragma once

#include <cstdint>

#include "image/CpuChoice.h"

#if FOTARIUM_HAS_AVX2
#include <immintrin.h>

// At each of four places of 0 or more the byte there and the three behind it. By four loads: an instruction
// for that is slower by little here, and by much where the processor's microcode guards it.
FOTARIUM_AVX2_PART __m128i FourBytesAt(const std::uint8_t* p, __m128i places) {
    const auto nLow = static_cast<std::uint64_t>(_mm_cvtsi128_si64(places));
    const auto nHigh = static_cast<std::uint64_t>(_mm_extract_epi64(places, 1));
    const __m128i first = _mm_loadu_si32(p + static_cast<std::uint32_t>(nLow));
    const __m128i second = _mm_loadu_si32(p + (nLow >> 32));
    const __m128i third = _mm_loadu_si32(p + static_cast<std::uint32_t>(nHigh));
    const __m128i fourth = _mm_loadu_si32(p + (nHigh >> 32));
    return _mm_unpacklo_epi64(_mm_unpacklo_epi32(first, second), _mm_unpacklo_epi32(third, fourth));
}
#endif
