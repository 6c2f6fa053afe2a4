#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

// A photograph as the phone wants it: one JPEG file that carries its own thumbnail in an Exif segment. The
// file begins with a fixed head of 438 bytes, then come the thumbnail's file and the picture's file, each
// without its start mark and its sixteen bytes of JFIF. The phone reads the head by heart: dates, sizes and
// resolutions in it are the same for every picture.

// Of both files this much is cut: the start mark and the JFIF segment, as EncodeJpeg writes them.
inline constexpr std::size_t kPlainJpegHead = 20;
// The longest file of a thumbnail; the length of the segment around it has 16 bits.
inline constexpr std::size_t kMostThumbBytes = 65119;
// The packed file is that much longer than the two files together.
inline constexpr std::size_t kPackedMore = 400;

// Packs nPicture bytes of a picture's file and nThumb of a thumbnail's, at least kPlainJpegHead each and no
// thumbnail above kMostThumbBytes. pOut has room for nPicture + nThumb + kPackedMore bytes; that length goes
// to *pOutLength. Nothing is checked, the marks of the files neither.
void PackPhoneJpeg(const std::uint8_t* pPicture, const std::uint8_t* pThumb, std::uint8_t* pOut, int nPicture,
                   int nThumb, std::uint32_t* pOutLength);

// Makes packed the packed file. False, and packed is empty, if a file is shorter than kPlainJpegHead or the
// picture's longer than an int tells, if the thumbnail is above kMostThumbBytes, or if there is no memory for
// the result. Who packs one picture after another hands in the same buffer: touching new memory takes five
// times as long as the packing.
[[nodiscard]] bool PackPhoneJpeg(std::span<const std::uint8_t> picture, std::span<const std::uint8_t> thumb,
                                 std::vector<std::uint8_t>& packed);
