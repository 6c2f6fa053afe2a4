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
    // For lines of up to nLongest pixels: at least 1, at most 2^24, as places are floats. May throw
    // std::bad_alloc.
    explicit CLineResampler(std::size_t nLongest);

    // Where the source line is to be written before each run, which puts a pixel without ink behind it.
    std::uint8_t* Source() { return m_arrSource.data(); }

    // map[i] is where source pixel i goes, ascending; it has one entry more than the line, which this sets:
    // the line's end stays where it is. A pixel of pOut takes the low byte of its mean. The last one has no
    // ink, and neither have those left at the end of a line that the map leads too far away from the source
    // for it ever to be filled.
    void Run(std::span<float> map, std::uint8_t* pOut);

  private:
    void Walk(std::size_t n, std::uint8_t* pOut) const;

    std::vector<float> m_arrPlace;  // for each target pixel its place in the source
    std::vector<int> m_arrCount;    // for each source pixel how many target pixels lie before its end
    std::vector<int> m_arrPixel;    // for each target pixel the source pixel that it is in
    std::vector<std::uint8_t> m_arrSource;
};
