#pragma once

#include <cstddef>

// For tests: a machine that runs out of memory at a chosen moment. While a gate lives, every block of more
// than kCounted bytes that a CSharedBytes asks for is counted, whether it is new or one that was kept, and
// the one with the given number is refused. One gate at a time; one thread.
class CBlockGate {
  public:
    static constexpr std::size_t kCounted = std::size_t{64} << 10;

    // Blocks count from 1; 0 refuses none.
    explicit CBlockGate(int nRefused);
    CBlockGate(const CBlockGate&) = delete;
    CBlockGate& operator=(const CBlockGate&) = delete;
    ~CBlockGate();

    // How many blocks have been asked for.
    int Count() const { return m_nCount; }
    // True if the block with the given number has been asked for.
    bool HasRefused() const { return m_nRefused > 0 && m_nCount >= m_nRefused; }

    // What CSharedBytes asks before it takes a block: counts it, and is false for the one that is refused.
    [[nodiscard]] static bool Admits(std::size_t nSize);

  private:
    static CBlockGate*& Living();

    int m_nRefused;
    int m_nCount = 0;
};
