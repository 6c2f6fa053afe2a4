#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

// Area resampling of a line (K. Fant, "A Nonaliasing, Real-Time Spatial Transform Technique", 1986): each
// target pixel is the mean of the source pixels that its own width covers, fractions included. The places of
// the inverse table are single-precision numbers, all other arithmetic is in double precision.
class CLineResampler {
  public:
    // How far the search for a source pixel may go: not beyond the last one in a row; in a column up to the
    // line's end, from which on every place is the one that the last pixel goes to.
    enum class EPass { Row, Column };

    // For lines of up to nLongest pixels, at least 1. May throw std::bad_alloc.
    explicit CLineResampler(std::size_t nLongest) : m_arrPlace(nLongest) {}

    // map[i] is where pixel i goes, ascending; it has one entry more than the line, which this sets: the
    // line's end stays where it is. A pixel of pOut takes the low byte of its mean. The last one has no ink,
    // and neither have those left at the end of a line that the map leads too far away from the source for it
    // ever to be filled.
    void Run(std::span<float> map, const std::uint8_t* pIn, std::uint8_t* pOut, EPass pass);

  private:
    void InvertMap(std::span<const float> map, EPass pass);

    std::vector<float> m_arrPlace;  // for each target pixel its place in the source
};
