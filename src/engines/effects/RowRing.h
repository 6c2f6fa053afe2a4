#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// The last few rows of a plane, a byte a pixel: all that an effect needs of a plane that it walks from the
// top to the bottom. Row y stands where row y - nRows stood. Rows begin at addresses that vectors like, and
// 64 bytes behind each may be touched.
class CRowRing {
  public:
    CRowRing(std::size_t nRows, int nWidth)
        : m_nRows(nRows), m_nStride((static_cast<std::size_t>(nWidth) + 2 * kAlign - 1) / kAlign * kAlign) {
        m_bytes.resize(m_nRows * m_nStride + kAlign);
        const auto nAddress = reinterpret_cast<std::uintptr_t>(m_bytes.data());
        m_nStart = (kAlign - nAddress % kAlign) % kAlign;
    }

    std::uint8_t* Row(int y) {
        return m_bytes.data() + m_nStart + static_cast<std::size_t>(y) % m_nRows * m_nStride;
    }

  private:
    static constexpr std::size_t kAlign = 64;
    std::size_t m_nRows;
    std::size_t m_nStride;
    std::size_t m_nStart = 0;
    std::vector<std::uint8_t> m_bytes;
};
