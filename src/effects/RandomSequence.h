#pragma once

#include <array>
#include <cstdint>

// The numbers of the C library's rand() on the platform that the program is built for, 0 to 2^31 - 1, the
// same on every machine: an additive feedback generator over 31 words, x[i] = x[i-3] + x[i-31] modulo 2^32,
// of which the highest 31 bits are given. A program that never seeds it starts as with seed 1.
class CRandomSequence {
  public:
    CRandomSequence() { Seed(1); }
    // Starts anew; 0 counts as 1.
    void Seed(std::uint32_t nSeed);
    int Next() {
        const std::uint32_t nWord = m_arrWords[m_nFront] += m_arrWords[m_nRear];
        m_nFront = m_nFront == kWords - 1 ? 0 : m_nFront + 1;
        m_nRear = m_nRear == kWords - 1 ? 0 : m_nRear + 1;
        return static_cast<int>(nWord >> 1);
    }

  private:
    static constexpr std::size_t kWords = 31;
    static constexpr std::size_t kApart = 3;
    std::array<std::uint32_t, kWords> m_arrWords{};
    std::size_t m_nFront = kApart;
    std::size_t m_nRear = 0;
};
