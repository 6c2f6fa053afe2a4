#include "image/Ppm.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "image/AtomicFile.h"
#include "image/FileBytes.h"

namespace {

// The words of a head, one after the other.
class CPpmHead {
  public:
    explicit CPpmHead(std::string_view strFile) : m_strRest(strFile) {}

    // Up to the next blank; a comment goes to the end of its line.
    std::string_view Word() {
        SkipBlanks();
        const std::string_view strWord = m_strRest.substr(0, m_strRest.find_first_of(kBlanks));
        m_strRest.remove_prefix(strWord.size());
        return strWord;
    }
    std::optional<int> Number() {
        const std::string_view strWord = Word();
        int n = 0;
        const auto [pEnd, error] = std::from_chars(strWord.data(), strWord.data() + strWord.size(), n);
        if (error != std::errc() || pEnd != strWord.data() + strWord.size()) return std::nullopt;
        return n;
    }
    // What stands behind the one blank that ends the head.
    std::string_view Body() const { return m_strRest.empty() ? m_strRest : m_strRest.substr(1); }

  private:
    static constexpr std::string_view kBlanks = " \t\r\n\v\f";

    void SkipBlanks() {
        while (true) {
            m_strRest.remove_prefix(std::min(m_strRest.find_first_not_of(kBlanks), m_strRest.size()));
            if (!m_strRest.starts_with('#')) return;
            m_strRest.remove_prefix(std::min(m_strRest.find('\n'), m_strRest.size()));
        }
    }

    std::string_view m_strRest;
};

struct CPpmFile {
    int nWidth = 0;
    int nHeight = 0;
    std::string_view strBody;  // all pixels and perhaps more, in the file's bytes
    std::string strError;
};

// Takes the head of a file whose format has that mark and so many bytes a pixel.
CPpmFile ReadHead(const CSharedBytes& bytes, std::string_view strMark, const char* szFormat,
                  std::uint64_t nChannels) {
    CPpmFile file;
    const auto Fail = [&](const std::string& strError) {
        file.strError = strError;
        return file;
    };
    if (bytes.IsEmpty()) return Fail("cannot be read");
    CPpmHead head({reinterpret_cast<const char*>(bytes.Data()), bytes.Size()});
    if (head.Word() != strMark) return Fail(std::string("is no binary ") + szFormat);
    const std::optional<int> nWidth = head.Number();
    const std::optional<int> nHeight = head.Number();
    const std::optional<int> nHighest = head.Number();
    if (!nWidth || !nHeight || *nWidth <= 0 || *nHeight <= 0) return Fail("has no width and height");
    if (nHighest != 255) return Fail("has another highest value than 255");
    const std::uint64_t nPixels = static_cast<std::uint64_t>(*nWidth) * static_cast<std::uint64_t>(*nHeight);
    if (!CSharedBytes::Fits(nChannels * nPixels)) return Fail("is too large");
    file.strBody = head.Body();
    if (file.strBody.size() < nChannels * nPixels) return Fail("ends before its last pixel");
    file.nWidth = *nWidth;
    file.nHeight = *nHeight;
    return file;
}

}  // namespace

CPpmPicture ReadPpm(const std::string& strPath) {
    const CSharedBytes bytes = ReadFileBytes(strPath);
    const CPpmFile file = ReadHead(bytes, "P6", "PPM", 3);
    if (!file.strError.empty()) return {{}, file.strError};
    CPpmPicture picture;
    if (!picture.pixels.CreateRaw(file.nWidth, file.nHeight)) return {{}, "is too large"};
    const std::span<std::uint8_t> pixels = picture.pixels.MutableBytes();
    std::copy_n(file.strBody.begin(), pixels.size(), pixels.begin());
    return picture;
}

CPgmPicture ReadPgm(const std::string& strPath) {
    const CSharedBytes bytes = ReadFileBytes(strPath);
    const CPpmFile file = ReadHead(bytes, "P5", "PGM", 1);
    if (!file.strError.empty()) return {{}, 0, 0, file.strError};
    CPgmPicture picture{{}, file.nWidth, file.nHeight, {}};
    const std::size_t nSize = static_cast<std::size_t>(file.nWidth) * static_cast<std::size_t>(file.nHeight);
    if (!picture.bytes.Allocate(nSize)) return {{}, 0, 0, "is too large"};
    std::copy_n(file.strBody.begin(), nSize, picture.bytes.MutableData());
    return picture;
}

bool WritePpm(const std::string& strPath, const CPixels& pixels) {
    const std::string strHeader =
        "P6\n" + std::to_string(pixels.Width()) + " " + std::to_string(pixels.Height()) + "\n255\n";
    const std::vector<std::uint8_t> arrHeader(strHeader.begin(), strHeader.end());
    CAtomicFile file;
    return file.Open(strPath) && file.Write(arrHeader) && file.Write(pixels.Bytes()) && file.Commit();
}
