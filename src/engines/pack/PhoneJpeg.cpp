#include "engines/pack/PhoneJpeg.h"

#include <algorithm>
#include <array>
#include <limits>
#include <new>
#include <stdexcept>
#include <string_view>

namespace {

// A directory entry of TIFF. What does not fit into the four bytes of its value stands at that offset.
enum class ETiffType : std::uint16_t { Ascii = 2, Short = 3, Long = 4, Rational = 5, Undefined = 7 };
struct CTiffEntry {
    std::uint16_t nTag;
    ETiffType type;
    std::uint32_t nCount;
    std::uint32_t nValue;
};

// The bytes of a value that stands in its entry, the first one lowest.
constexpr std::uint32_t InPlace(std::uint8_t n0, std::uint8_t n1, std::uint8_t n2, std::uint8_t n3) {
    return n0 | n1 << 8U | n2 << 16U | std::uint32_t{n3} << 24U;
}

// TIFF counts its offsets from here in the file.
constexpr std::size_t kTiff = 12;
// Offsets of what the entries name. The head is not made unless each stands there.
constexpr std::uint32_t kFirstDirectory = 0x08;
constexpr std::uint32_t kPictureXResolution = 0x56;
constexpr std::uint32_t kPictureYResolution = 0x5E;
constexpr std::uint32_t kExifDirectory = 0x66;
constexpr std::uint32_t kDateTaken = 0xEC;
constexpr std::uint32_t kDateDigitized = 0x100;
constexpr std::uint32_t kBitsPerPixel = 0x114;
constexpr std::uint32_t kMakerNote = 0x11C;
constexpr std::uint32_t kInteroperability = 0x12A;
constexpr std::uint32_t kThumbDirectory = 0x144;
constexpr std::uint32_t kThumbXResolution = 0x19A;
constexpr std::uint32_t kThumbYResolution = 0x1A2;
constexpr std::uint32_t kThumbStream = 0x1AA;
// The entry of the thumbnail's XResolution names the byte behind its first. Phones expect the head byte for
// byte, so it stays.
constexpr std::uint32_t kThumbXResolutionAsNamed = kThumbXResolution + 1;

constexpr std::uint32_t kInches = 2;
constexpr std::uint32_t kCosited = 2;
constexpr std::uint32_t kUpright = 1;
constexpr std::uint32_t kJpegThumb = 6;

constexpr CTiffEntry kFirst[] = {
    {0x0112, ETiffType::Short, 1, kUpright},  // Orientation
    {0x011A, ETiffType::Rational, 1, kPictureXResolution},
    {0x011B, ETiffType::Rational, 1, kPictureYResolution},
    {0x0128, ETiffType::Short, 1, kInches},   // ResolutionUnit
    {0x0213, ETiffType::Short, 1, kCosited},  // YCbCrPositioning
    {0x8769, ETiffType::Long, 1, kExifDirectory},
};
constexpr CTiffEntry kExif[] = {
    {0x9000, ETiffType::Undefined, 4, InPlace('0', '2', '1', '0')},  // ExifVersion
    {0x9003, ETiffType::Ascii, 20, kDateTaken},
    {0x9004, ETiffType::Ascii, 20, kDateDigitized},
    {0x9101, ETiffType::Undefined, 4, InPlace(1, 2, 3, 0)},  // ComponentsConfiguration: Y, Cb, Cr
    {0x9102, ETiffType::Rational, 1, kBitsPerPixel},
    {0x927C, ETiffType::Undefined, 13, kMakerNote},
    {0xA000, ETiffType::Undefined, 4, InPlace('0', '1', '0', '0')},  // FlashpixVersion
    {0xA001, ETiffType::Short, 1, 1},                                // ColorSpace: sRGB
    {0xA002, ETiffType::Long, 1, 640},                               // PixelXDimension
    {0xA003, ETiffType::Long, 1, 480},                               // PixelYDimension
    {0xA005, ETiffType::Long, 1, kInteroperability},
};
constexpr CTiffEntry kExchange[] = {
    {0x0001, ETiffType::Ascii, 4, InPlace('R', '9', '8', 0)},        // InteroperabilityIndex
    {0x0002, ETiffType::Undefined, 4, InPlace('0', '1', '0', '0')},  // InteroperabilityVersion
};
// The last entry is the thumbnail's length, put in when it is known.
constexpr CTiffEntry kThumb[] = {
    {0x0103, ETiffType::Short, 1, kJpegThumb},  // Compression
    {0x0112, ETiffType::Short, 1, kUpright},
    {0x011A, ETiffType::Rational, 1, kThumbXResolutionAsNamed},
    {0x011B, ETiffType::Rational, 1, kThumbYResolution},
    {0x0128, ETiffType::Short, 1, kInches},
    {0x0201, ETiffType::Long, 1, kThumbStream},  // JPEGInterchangeFormat
    {0x0202, ETiffType::Long, 1, 0},             // JPEGInterchangeFormatLength
};

constexpr std::size_t kHeadLength = kTiff + kThumbStream;
using CHead = std::array<std::uint8_t, kHeadLength>;

class CHeadWriter {
  public:
    constexpr void Text(std::string_view strText) {
        for (const char ch : strText) m_head.at(m_nAt++) = static_cast<std::uint8_t>(ch);
    }
    constexpr void Number(std::uint32_t n, int nBytes) {
        for (int i = 0; i < nBytes; ++i) m_head.at(m_nAt++) = static_cast<std::uint8_t>(n >> (8 * i));
    }
    constexpr void Rational(std::uint32_t nUpper, std::uint32_t nLower) {
        Number(nUpper, 4);
        Number(nLower, 4);
    }
    // No word for a next directory follows; only the first one has it.
    constexpr void Directory(std::span<const CTiffEntry> entries) {
        Number(static_cast<std::uint32_t>(entries.size()), 2);
        for (const CTiffEntry& entry : entries) {
            Number(entry.nTag, 2);
            Number(static_cast<std::uint32_t>(entry.type), 2);
            Number(entry.nCount, 4);
            Number(entry.nValue, 4);
        }
    }
    // Holds that what comes next stands where an entry says.
    constexpr void Expect(std::uint32_t nOffset) const {
        if (m_nAt != kTiff + nOffset) throw std::logic_error("the head does not stand where it says");
    }
    constexpr const CHead& Head() const { return m_head; }

  private:
    CHead m_head{};
    std::size_t m_nAt = 0;
};

constexpr std::string_view kStart("\xFF\xD8", 2);

constexpr CHead MakeHead() {
    CHeadWriter head;
    head.Text(kStart);
    head.Text("\xFF\xE1");
    head.Number(0, 2);  // the length of the segment
    head.Text({"Exif\0\0", 6});
    head.Text({"II\x2A\0", 4});
    head.Number(kFirstDirectory, 4);
    head.Expect(kFirstDirectory);
    head.Directory(kFirst);
    head.Number(kThumbDirectory, 4);
    head.Expect(kPictureXResolution);
    head.Rational(72, 1);
    head.Expect(kPictureYResolution);
    head.Rational(72, 1);
    head.Expect(kExifDirectory);
    head.Directory(kExif);
    head.Expect(kDateTaken);
    head.Text("0000:01:01 00:00:000");  // twenty characters and no end: phones expect it so
    head.Expect(kDateDigitized);
    head.Text({"0000:01:01 00:00:00\0", 20});
    head.Expect(kBitsPerPixel);
    head.Rational(2, 2);
    head.Expect(kMakerNote);
    head.Number(7, 1);
    head.Text("010001000100");
    head.Number(0, 1);  // the next directory begins at an even offset
    head.Expect(kInteroperability);
    head.Directory(kExchange);
    head.Expect(kThumbDirectory);
    head.Directory(kThumb);
    head.Expect(kThumbXResolution);
    head.Rational(72, 1);
    head.Expect(kThumbYResolution);
    head.Rational(72, 1);
    head.Expect(kThumbStream);
    return head.Head();
}

// A file's length is an int.
constexpr std::size_t kMostPictureBytes = std::numeric_limits<int>::max();

constexpr CHead kHead = MakeHead();
constexpr std::size_t kSegmentLengthAt = 4;
// The value of the last entry before the two resolutions.
constexpr std::size_t kThumbLengthAt = kTiff + kThumbXResolution - 4;
// What stands between the segment's mark and the thumbnail, and the thumbnail's own start mark.
constexpr int kSegmentMore =
    static_cast<int>(kHeadLength - kSegmentLengthAt + kStart.size() - kPlainJpegHead);
constexpr int kThumbLess = static_cast<int>(kPlainJpegHead - kStart.size());
static_assert(kHeadLength + kStart.size() - 2 * kPlainJpegHead == kPackedMore);
static_assert(kMostThumbBytes + kSegmentMore == 0xFFFF);

}  // namespace

void PackPhoneJpeg(const std::uint8_t* pPicture, const std::uint8_t* pThumb, std::uint8_t* pOut, int nPicture,
                   int nThumb, std::uint32_t* pOutLength) {
    std::uint8_t* pAt = std::ranges::copy(kHead, pOut).out;
    const int nSegment = nThumb + kSegmentMore;
    pOut[kSegmentLengthAt] = static_cast<std::uint8_t>(nSegment >> 8);
    pOut[kSegmentLengthAt + 1] = static_cast<std::uint8_t>(nSegment);
    const int nStream = nThumb - kThumbLess;
    pOut[kThumbLengthAt] = static_cast<std::uint8_t>(nStream);
    pOut[kThumbLengthAt + 1] = static_cast<std::uint8_t>(nStream >> 8);
    pAt = std::ranges::copy(kStart, pAt).out;
    pAt = std::copy(pThumb + kPlainJpegHead, pThumb + nThumb, pAt);
    std::copy(pPicture + kPlainJpegHead, pPicture + nPicture, pAt);
    *pOutLength = static_cast<std::uint32_t>(nPicture) + static_cast<std::uint32_t>(nThumb) + kPackedMore;
}

bool PackPhoneJpeg(std::span<const std::uint8_t> picture, std::span<const std::uint8_t> thumb,
                   std::vector<std::uint8_t>& packed) {
    const std::size_t nPacked = picture.size() + thumb.size() + kPackedMore;
    const bool bFits = picture.size() >= kPlainJpegHead && picture.size() <= kMostPictureBytes &&
                       thumb.size() >= kPlainJpegHead && thumb.size() <= kMostThumbBytes;
    // Old bytes need not move into a larger block; where they stay, they are written over.
    if (!bFits || packed.capacity() < nPacked) packed.clear();
    if (!bFits) return false;
    try {
        packed.resize(nPacked);
    } catch (const std::bad_alloc&) {
        return false;
    }
    std::uint32_t nLength = 0;
    PackPhoneJpeg(picture.data(), thumb.data(), packed.data(), static_cast<int>(picture.size()),
                  static_cast<int>(thumb.size()), &nLength);
    return true;
}
