#include "engines/effects/ByteMap.h"

#include <cstring>

#include "image/CpuChoice.h"

#if FOTARIUM_HAS_AVX2
#include <immintrin.h>
#endif

CByteMap::CByteMap(const std::array<std::uint8_t, 256>& map) : m_map(map) {
    for (std::size_t i = 0; i < 256; ++i) {
        const bool bFirstOfHalf = i % 128 < kPart;
        const auto n = static_cast<std::uint8_t>(bFirstOfHalf ? map[i] : map[i] ^ map[i - kPart]);
        m_parts[i / kPart][i % kPart] = n;
        m_parts[i / kPart][i % kPart + kPart] = n;
    }
}

// Eight bytes are loaded and stored at a time; byte by byte the loop waits for the stores.
void CByteMap::ApplyPlain(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t n) const {
    std::size_t i = 0;
    for (; i + 8 <= n; i += 8) {
        std::uint64_t nFrom;
        std::memcpy(&nFrom, pSrc + i, sizeof nFrom);
        std::uint64_t nTo = 0;
        for (int k = 0; k < 64; k += 8) nTo |= std::uint64_t{m_map[nFrom >> k & 0xFF]} << k;
        std::memcpy(pDst + i, &nTo, sizeof nTo);
    }
    for (; i < n; ++i) pDst[i] = m_map[pSrc[i]];
}

#if FOTARIUM_HAS_AVX2

// A shuffle looks 16 values up and gives 0 for an index with its highest bit set. So the index goes down by
// 16 from part to part and stays below 0 once it is there; the parts of the other half see only such indexes.
FOTARIUM_AVX2 void CByteMap::ApplyWide(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t n) const {
    constexpr std::size_t kVectors = 4;
    const __m256i step = _mm256_set1_epi8(kPart);
    const __m256i top = _mm256_set1_epi8(-128);
    std::size_t i = 0;
    for (; i + 32 * kVectors <= n; i += 32 * kVectors) {
        __m256i low[kVectors];
        __m256i high[kVectors];
        __m256i sum[kVectors];
        for (std::size_t k = 0; k < kVectors; ++k) {
            low[k] = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(pSrc + i + 32 * k));
            high[k] = _mm256_xor_si256(low[k], top);
            sum[k] = _mm256_setzero_si256();
        }
        for (std::size_t j = 0; j < 8; ++j) {
            const __m256i partLow = _mm256_load_si256(reinterpret_cast<const __m256i*>(m_parts[j].data()));
            const __m256i partHigh =
                _mm256_load_si256(reinterpret_cast<const __m256i*>(m_parts[j + 8].data()));
            for (std::size_t k = 0; k < kVectors; ++k) {
                sum[k] = _mm256_xor_si256(sum[k], _mm256_xor_si256(_mm256_shuffle_epi8(partLow, low[k]),
                                                                   _mm256_shuffle_epi8(partHigh, high[k])));
                low[k] = _mm256_subs_epi8(low[k], step);
                high[k] = _mm256_subs_epi8(high[k], step);
            }
        }
        for (std::size_t k = 0; k < kVectors; ++k) {
            _mm256_storeu_si256(reinterpret_cast<__m256i*>(pDst + i + 32 * k), sum[k]);
        }
    }
    ApplyPlain(pSrc + i, pDst + i, n - i);
}

#else

void CByteMap::ApplyWide(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t n) const {
    ApplyPlain(pSrc, pDst, n);
}

#endif

void CByteMap::Apply(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t n) const {
    if (UseAvx2()) {
        ApplyWide(pSrc, pDst, n);
    } else {
        ApplyPlain(pSrc, pDst, n);
    }
}
