#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

using CGreyCounts = std::array<std::uint32_t, 256>;

// A histogram of greys over every second pixel. A sample is three bytes behind each other, its grey a third
// of their sum without the fraction; samples stand 6 bytes apart.
class CGreyCounter {
  public:
    // Counts n samples, the first at pBytes. Up to 32 bytes behind the last one may be read.
    void Add(const std::uint8_t* pBytes, std::size_t n);
    CGreyCounts Counts() const;

  private:
    void AddPlain(const std::uint8_t* pBytes, std::size_t n);
    void AddWide(const std::uint8_t* pBytes, std::size_t n);

    // The sums are counted as they are. Equal sums often follow each other; in tables that take turns their
    // counts do not wait for one another.
    static constexpr std::size_t kTables = 8;
    std::array<std::array<std::uint32_t, 3 * 255 + 1>, kTables> m_tables{};
};
