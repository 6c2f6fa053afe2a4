#include "image/Exif.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace {

constexpr int kUpright = 1;

// Numbers out of bytes in either order; whatever lies outside reads as 0.
class CTiffBytes {
  public:
    CTiffBytes(std::span<const std::uint8_t> bytes, bool bBigEndian)
        : m_bytes(bytes), m_bBigEndian(bBigEndian) {}

    std::uint32_t Number(std::size_t nAt, std::size_t nLength) const {
        if (nAt > m_bytes.size() || m_bytes.size() - nAt < nLength) return 0;
        std::uint32_t n = 0;
        for (std::size_t i = 0; i < nLength; ++i) {
            const std::size_t nByte = m_bBigEndian ? i : nLength - 1 - i;
            n = n << 8 | m_bytes[nAt + nByte];
        }
        return n;
    }
    std::uint32_t Short(std::size_t nAt) const { return Number(nAt, 2); }
    std::uint32_t Long(std::size_t nAt) const { return Number(nAt, 4); }

  private:
    std::span<const std::uint8_t> m_bytes;
    bool m_bBigEndian;
};

int OrientationOfFirstDirectory(const CTiffBytes& tiff) {
    constexpr std::uint32_t kOrientationTag = 0x0112;
    constexpr std::uint32_t kShortType = 3;
    constexpr std::size_t kEntryBytes = 12;

    if (tiff.Short(2) != 42) return kUpright;
    const std::size_t nDirectory = tiff.Long(4);
    const std::uint32_t nEntries = tiff.Short(nDirectory);
    for (std::uint32_t i = 0; i < nEntries; ++i) {
        const std::size_t nEntry = nDirectory + 2 + i * kEntryBytes;
        if (tiff.Short(nEntry) != kOrientationTag) continue;
        const std::uint32_t nValue = tiff.Short(nEntry + 8);
        const bool bSound = tiff.Short(nEntry + 2) == kShortType && tiff.Long(nEntry + 4) == 1;
        return bSound && nValue >= 1 && nValue <= 8 ? static_cast<int>(nValue) : kUpright;
    }
    return kUpright;
}

}  // namespace

int ReadExifOrientation(std::span<const std::uint8_t> segment) {
    constexpr std::array<std::uint8_t, 6> kMark = {'E', 'x', 'i', 'f', 0, 0};
    constexpr std::size_t kHeaderBytes = 8;
    if (segment.size() < kMark.size() + kHeaderBytes) return kUpright;
    if (std::memcmp(segment.data(), kMark.data(), kMark.size()) != 0) return kUpright;

    const std::span<const std::uint8_t> tiff = segment.subspan(kMark.size());
    const std::string_view strOrder(reinterpret_cast<const char*>(tiff.data()), 2);
    if (strOrder != "MM" && strOrder != "II") return kUpright;
    return OrientationOfFirstDirectory(CTiffBytes(tiff, strOrder == "MM"));
}
