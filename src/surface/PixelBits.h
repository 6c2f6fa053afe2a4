#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "image/Color.h"
#include "surface/PixelRun.h"

// Eight pixels are three whole words; for each choice of eight the bits of their bytes.
inline constexpr std::size_t kGroupBytes = 24;
inline constexpr auto kGroupMasks = [] {
    std::array<std::array<std::uint64_t, 3>, 256> masks{};
    for (std::size_t nChoice = 0; nChoice < masks.size(); ++nChoice)
        for (std::size_t nByte = 0; nByte < kGroupBytes; ++nByte) {
            if ((nChoice >> nByte / 3 & 1) == 0) continue;
            const bool bLittle = std::endian::native == std::endian::little;
            masks[nChoice][nByte / 8] |= std::uint64_t{0xff} << 8 * (bLittle ? nByte % 8 : 7 - nByte % 8);
        }
    return masks;
}();

// 64 pixels as the bits of one word, the leftmost one in the lowest bit: those that have one colour are
// found, and those that are to have another one painted, many at a time.
class CPixelBits {
  public:
    static constexpr int kPixels = 64;
    static constexpr std::size_t kBytes = 3 * std::size_t{kPixels};

    CPixelBits(CColor crFind, CColor crPaint) {
        PaintRun(m_arrFind.data(), kPixels, crFind);
        PaintRun(m_arrPaint.data(), kPixels, crPaint);
    }

    // The first nPixels of the pixels at p that have the colour; from 1 on, those beyond 64 do not count.
    std::uint64_t Find(const std::uint8_t* p, int nPixels) const {
        if (nPixels >= kPixels) return Find(p);
        std::array<std::uint8_t, kBytes> few{};
        std::memcpy(few.data(), p, 3 * static_cast<std::size_t>(nPixels));
        return Find(few.data()) & ~(~std::uint64_t{0} << nPixels);
    }

    // Paints those of the pixels at p whose bits are set. May write the bytes of up to seven pixels behind
    // the last of them, as they are.
    void Paint(std::uint8_t* p, std::uint64_t nBits) const {
        if (nBits == ~std::uint64_t{0}) {
            std::memcpy(p, m_arrPaint.data(), kBytes);
            return;
        }
        for (; nBits != 0; nBits >>= 8, p += kGroupBytes) {
            const auto& mask = kGroupMasks[nBits & 0xff];
            std::array<std::uint64_t, 3> words{};
            std::array<std::uint64_t, 3> paint{};
            std::memcpy(words.data(), p, kGroupBytes);
            std::memcpy(paint.data(), m_arrPaint.data(), kGroupBytes);
            for (std::size_t i = 0; i < words.size(); ++i) words[i] ^= (words[i] ^ paint[i]) & mask[i];
            std::memcpy(p, words.data(), kGroupBytes);
        }
    }

  private:
    // Every third bit, 21 of them, brought together.
    static constexpr std::uint64_t EveryThird(std::uint64_t n) {
        n &= 0x1249249249249249;
        n = (n ^ n >> 2) & 0x10c30c30c30c30c3;
        n = (n ^ n >> 4) & 0x100f00f00f00f00f;
        n = (n ^ n >> 8) & 0x001f0000ff0000ff;
        n = (n ^ n >> 16) & 0x001f00000000ffff;
        return (n ^ n >> 32) & 0x1fffff;
    }

    // A bit for each of 64 bytes that is as it is looked for.
    static std::uint64_t EqualBytes(const std::uint8_t* p, const std::uint8_t* pFind) {
        std::uint64_t nEqual = 0;
#if defined(__SSE2__)
        for (int i = 0; i < 4; ++i, p += 16, pFind += 16) {
            __m128i a, b;
            std::memcpy(&a, p, sizeof a);
            std::memcpy(&b, pFind, sizeof b);
            const auto n = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(a, b)));
            nEqual |= std::uint64_t{n} << 16 * i;
        }
#else
        for (int i = 0; i < kPixels; ++i) nEqual |= std::uint64_t{p[i] == pFind[i]} << i;
#endif
        return nEqual;
    }

    std::uint64_t Find(const std::uint8_t* p) const {
        const std::uint64_t n0 = EqualBytes(p, m_arrFind.data());
        const std::uint64_t n1 = EqualBytes(p + 64, m_arrFind.data() + 64);
        const std::uint64_t n2 = EqualBytes(p + 128, m_arrFind.data() + 128);
        if ((n0 & n1 & n2) == ~std::uint64_t{0}) return ~std::uint64_t{0};
        // A pixel is right if its byte is and the two behind it; the words begin with bytes 0, 1 and 2 of a
        // pixel.
        const std::uint64_t nPixels0 = n0 & (n0 >> 1 | n1 << 63) & (n0 >> 2 | n1 << 62);
        const std::uint64_t nPixels1 = n1 & (n1 >> 1 | n2 << 63) & (n1 >> 2 | n2 << 62);
        const std::uint64_t nPixels2 = n2 & n2 >> 1 & n2 >> 2;
        return EveryThird(nPixels0) | nPixels0 >> 63 << 21 | EveryThird(nPixels1 >> 2) << 22 |
               EveryThird(nPixels2 >> 1) << 43;
    }

    std::array<std::uint8_t, kBytes> m_arrFind{};
    std::array<std::uint8_t, kBytes> m_arrPaint{};
};
