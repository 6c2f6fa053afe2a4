#include "engines/effects/GreyCounts.h"

#include <algorithm>

#include "image/CpuChoice.h"

#if FOTARIUM_HAS_AVX2
#include <immintrin.h>
#endif

void CGreyCounter::AddPlain(const std::uint8_t* pBytes, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        const std::uint8_t* const p = pBytes + 6 * i;
        ++m_tables[i % kTables][static_cast<std::size_t>(p[0] + p[1] + p[2])];
    }
}

#if FOTARIUM_HAS_AVX2

// The sum of the three bytes from every even address on; every third sum is a sample's.
FOTARIUM_AVX2 void CGreyCounter::AddWide(const std::uint8_t* pBytes, std::size_t n) {
    constexpr std::size_t kChunk = 128;
    constexpr std::size_t kLanes = 16;
    alignas(64) std::array<std::uint16_t, 3 * kChunk> sums;
    const __m256i ones = _mm256_set1_epi8(1);
    const __m256i low = _mm256_set1_epi16(0xFF);
    for (std::size_t nDone = 0; nDone < n; nDone += kChunk) {
        const std::uint8_t* const p = pBytes + 6 * nDone;
        const std::size_t nHere = std::min(kChunk, n - nDone);
        for (std::size_t i = 0; i < 3 * nHere - 2; i += kLanes) {
            const __m256i pair = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p + 2 * i));
            const __m256i next = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p + 2 * i + 2));
            const __m256i sum =
                _mm256_add_epi16(_mm256_maddubs_epi16(pair, ones), _mm256_and_si256(next, low));
            _mm256_store_si256(reinterpret_cast<__m256i*>(sums.data() + i), sum);
        }
        std::size_t i = 0;
        for (; i + kTables <= nHere; i += kTables) {
            for (std::size_t k = 0; k < kTables; ++k) ++m_tables[k][sums[3 * (i + k)]];
        }
        for (; i < nHere; ++i) ++m_tables[0][sums[3 * i]];
    }
}

#else

void CGreyCounter::AddWide(const std::uint8_t* pBytes, std::size_t n) {
    AddPlain(pBytes, n);
}

#endif

void CGreyCounter::Add(const std::uint8_t* pBytes, std::size_t n) {
    if (UseAvx2()) {
        AddWide(pBytes, n);
    } else {
        AddPlain(pBytes, n);
    }
}

CGreyCounts CGreyCounter::Counts() const {
    CGreyCounts counts{};
    for (const auto& table : m_tables) {
        for (std::size_t i = 0; i < table.size(); ++i) counts[i / 3] += table[i];
    }
    return counts;
}
