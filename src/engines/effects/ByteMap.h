#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// A value for each byte, and the fast way to put whole runs of bytes through it.
class CByteMap {
  public:
    explicit CByteMap(const std::array<std::uint8_t, 256>& map);

    // pDst[i] = map[pSrc[i]] for n bytes. Both may be the same memory.
    void Apply(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t n) const;

  private:
    void ApplyPlain(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t n) const;
    void ApplyWide(const std::uint8_t* pSrc, std::uint8_t* pDst, std::size_t n) const;

    static constexpr std::size_t kPart = 16;
    std::array<std::uint8_t, 256> m_map;
    // The map in parts of 16, each but the first of a half combined with the one before it by exclusive or,
    // so that the parts up to the wanted one add up to it. Twice in a row for vectors of 32.
    alignas(64) std::array<std::array<std::uint8_t, 2 * kPart>, 256 / kPart> m_parts{};
};
