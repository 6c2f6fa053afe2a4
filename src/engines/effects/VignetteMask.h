#pragma once

#include <array>
#include <cstdint>

// A grey picture of a soft bright frame round a dark oval, which Art adds to the luma: 16 to 235, the top row
// first. It is 235 in the corners and along the left and right edges, and lowest in an oval with its middle
// at column 79, row 62, that reaches from column 45 to 113 and from row 25 to 99.
class CVignetteMask {
  public:
    static constexpr int kWidth = 160;
    static constexpr int kHeight = 120;
    using CRow = std::array<std::uint8_t, kWidth>;

    CVignetteMask();
    const CRow& Row(int y) const { return m_rows[static_cast<std::size_t>(y)]; }

  private:
    std::array<CRow, kHeight> m_rows;
};

// The one mask, made when it is first asked for.
const CVignetteMask& VignetteMask();
