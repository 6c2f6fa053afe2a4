#pragma once

#include <array>
#include <cstdint>

// The numbers of the C library's rand() on the platform that the program is built for, 0 to 2^31 - 1, the
// same on every machine: an additive feedback generator over 31 words, x[i] = x[i-3] + x[i-31] modulo 2^32,
// of which the highest 31 bits are given. A program that never seeds it starts as with seed 1.
class CRandomSequence {
  public:
    static constexpr std::size_t kWords = 31;
    // The last numbers, the oldest first, with the lowest bit that Next leaves out. The next word is the sum
    // of the oldest and the third last one, so they say all about the sequence in both directions.
    using CWords = std::array<std::uint32_t, kWords>;

    CRandomSequence() { Seed(1); }
    // Starts anew; 0 counts as 1.
    void Seed(std::uint32_t nSeed);
    int Next() {
        const std::uint32_t nWord = m_arrWords[m_nFront] += m_arrWords[m_nRear];
        m_nFront = m_nFront == kWords - 1 ? 0 : m_nFront + 1;
        m_nRear = m_nRear == kWords - 1 ? 0 : m_nRear + 1;
        return static_cast<int>(nWord >> 1);
    }

    // As n calls of Next, in a time that hardly grows with n.
    void Skip(std::uint64_t n);
    CWords Words() const;

  private:
    // The square of a polynomial, modulo the sequence's own.
    static CWords Square(const CWords& factors);

    static constexpr std::size_t kApart = 3;
    CWords m_arrWords{};
    std::size_t m_nFront = kApart;
    std::size_t m_nRear = 0;
};
