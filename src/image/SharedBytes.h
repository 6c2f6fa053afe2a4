#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

// A block of bytes that copies share until one of them writes. One thread.
//
// Behind the last byte lie kSlack more that belong to the block: a loop may read or write whole vectors over
// the end of the data. Blocks of some megabytes come from the system in large pages, and the last few that
// were given back are kept for the next picture of that size, which then takes no page faults.
class CSharedBytes {
  public:
    static constexpr std::size_t kSlack = 64;
    static constexpr std::size_t kMaxSize = std::size_t{1} << 31;

    // True if a block of that size may be asked for: not above kMaxSize and no more than the machine has
    // left.
    [[nodiscard]] static bool Fits(std::uint64_t nSize);

    // Makes this the only owner of nSize bytes with undefined content. False, and the old block stays, if
    // nSize is 0 or above kMaxSize or if the machine has not got the memory.
    [[nodiscard]] bool Allocate(std::size_t nSize);
    void Clear();

    // Gives this object a block of its own if it shares one. False if there is no memory for it; nothing
    // changes.
    [[nodiscard]] bool Separate();

    std::size_t Size() const { return m_nSize; }
    bool IsEmpty() const { return m_nSize == 0; }
    const std::uint8_t* Data() const { return m_pBlock.get(); }
    // Separates first. Null if that failed or if there are no bytes.
    [[nodiscard]] std::uint8_t* MutableData();
    bool IsShared() const { return m_pBlock.use_count() > 1; }
    bool SharesWith(const CSharedBytes& other) const { return !IsEmpty() && m_pBlock == other.m_pBlock; }

  private:
    std::shared_ptr<std::uint8_t> m_pBlock;
    std::size_t m_nSize = 0;
};

// The bytes that the machine can still give without swapping or failing; a guess on the high side where the
// system does not tell.
std::size_t AvailableMemory();
